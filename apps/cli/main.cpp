#include <CLI/CLI.hpp>

#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

#include "component/job_files.h"
#include "component/job_listing.h"
#include "component/script/form_script.h"
#include "component/unattended_session.h"
#include "files/controller_address.h"
#include "files/file_type.h"
#include "files/job_paths.h"
#include "files/replace_files.h"
#include "files/save_job.h"
#include "tools/job_check.h"
#include "tools/job_diff.h"
#include "tools/job_json.h"

namespace {

constexpr int kUsageError = 2;
constexpr int kRefused = 1;

constexpr const char* kScriptHelp =
    "A form script drives the set-up form as a person and a host program would, one command a\n"
    "line, and prints what they would see:\n"
    "  call MEMBER [ARG ...]     call a Class1 member (strings in double quotes, numbers, True, False)\n"
    "  select CONTROL INDEX      choose an item of a combo box or list box (-1 for none)\n"
    "  click CONTROL             click a command button or choose an option button\n"
    "  text CONTROL \"TEXT\"       type into a text box\n"
    "  answer WORD ...           answers (Yes, No, OK, Cancel) for the next questions\n"
    "  choose \"PATH\"             the path the next file dialog returns (\"\" cancels)\n"
    "  clock \"YYYY-MM-DD HH:MM:SS\" fix the date and time\n"
    "  show CONTROL              print a control's state (or UserForm1)\n"
    "  bytes OFFSET [COUNT]      print image bytes\n"
    "Start with: call Initailize_Pellam_Variables_And_Form\n";

int runScript(const std::string& path) {
  namespace script = pellam::component::script;
  if (path == "-") return script::runFormScript(std::cin, std::cout, std::cerr);
  if (const auto refusal = script::scriptFileRefusal(path)) {
    std::cerr << "pellam: " << path << ' ' << *refusal << "\n";
    return kUsageError;
  }
  std::ifstream in(pellam::files::fsPath(path), std::ios::binary);
  if (!in) {
    std::cerr << "pellam: cannot read " << path << "\n";
    return kUsageError;
  }
  return script::runFormScript(in, std::cout, std::cerr);
}

// A job image as the tools take it, or a message and nullopt.
std::optional<std::vector<std::uint8_t>> readJob(const std::string& path) {
  auto job = pellam::files::ReadJobImage(path);
  if (!job.problem.empty()) {
    std::cerr << "pellam: " << job.problem << "\n";
    return std::nullopt;
  }
  return std::move(job.bytes);
}

int showJob(const std::string& path) {
  namespace component = pellam::component;
  // Opening a job finishes a save of it that was cut off, in every face.
  pellam::files::RecoverInterruptedSave(pellam::files::jobPrefix(path));
  const auto bytes = readJob(path);
  if (!bytes) return kRefused;
  // Never freed: the process ends here, and the form's thousands of list items would only be
  // handed back one by one.
  static auto& session = *new component::UnattendedSession(std::cerr);
  component::OpenImageBytes(*session, *bytes);
  std::cout << "Job: " << path << "\n" << component::listJob(*session);
  return 0;
}

int diffJobs(const std::string& a, const std::string& b, bool bytes) {
  const auto first = readJob(a);
  const auto second = readJob(b);
  if (!first || !second) return kUsageError;
  const std::string changes = pellam::tools::diffJobs(*first, *second, bytes);
  std::cout << changes;
  return changes.empty() ? 0 : 1;
}

int checkJobs(const std::vector<std::string>& paths, bool json) {
  std::vector<pellam::tools::Finding> all;
  for (const std::string& path : paths) {
    auto findings = pellam::tools::checkJobFile(path);
    all.insert(all.end(), std::make_move_iterator(findings.begin()), std::make_move_iterator(findings.end()));
  }
  if (json) {
    std::cout << pellam::tools::findingsJson(all);
  } else {
    for (const auto& f : all) std::cout << pellam::tools::findingLine(f) << "\n";
  }
  return pellam::tools::checkStatus(all);
}

int exportJob(const std::string& path) {
  namespace component = pellam::component;
  const auto bytes = readJob(path);
  if (!bytes) return kRefused;
  std::ostringstream messages;
  component::UnattendedSession session(messages);
  component::OpenImageBytes(*session, *bytes);
  component::ReadJobLabels(*session, path);
  std::cout << pellam::tools::exportJob(*session);
  return 0;
}

int importJob(const std::string& document, const std::string& jobPath) {
  std::string text;
  if (document == "-") {
    text.assign(std::istreambuf_iterator<char>(std::cin), {});
  } else {
    std::ifstream in(pellam::files::fsPath(document), std::ios::binary);
    if (!in) {
      std::cerr << "pellam: cannot read " << document << "\n";
      return kUsageError;
    }
    text.assign(std::istreambuf_iterator<char>(in), {});
  }
  // The form's save wants a folder; a bare name is the current folder's.
  std::error_code error;
  const auto absolute = std::filesystem::absolute(pellam::files::fsPath(jobPath), error);
  const auto imported = pellam::tools::importJob(text, error ? jobPath : pellam::files::utf8Text(absolute));
  if (!imported.problem.empty()) {
    std::cerr << "pellam: " << document << ": " << imported.problem << "\n";
    return kRefused;
  }
  std::cout << "saved " << imported.zpd << "\n";
  return 0;
}

// The upload frame's procedure, from the command line: the same checks, files, log and
// messages; the exit status says whether the controller took the file. An image with errors
// is not sent unless forced; an address the upload refuses is left to its own words.
int uploadJob(const std::string& file, int netId, const std::string& address, bool force) {
  namespace component = pellam::component;
  if (!force && pellam::files::parseControllerAddress(address)) {
    const auto findings = pellam::tools::checkJobFile(file);
    for (const auto& f : findings) std::cerr << pellam::tools::findingLine(f) << "\n";
    if (pellam::tools::checkStatus(findings) == 2) {
      std::cerr << "pellam: not sent: " << file << " has errors (--force sends it all the same)\n";
      return kRefused;
    }
  }
  component::UnattendedSession session(std::cout);
  const auto result = session->uploadPage.upload({netId, file, address});
  if (!result.logPath.empty()) std::cout << "log: " << result.logPath << "\n";
  return result.completed ? 0 : kRefused;
}

}  // namespace

int main(int argc, char** argv) {
  CLI::App app{"pellam: set up the contact-closure input board of a networked dimming system", "pellam"};
  app.set_version_flag("--version", "pellam 0.1.0");
  app.require_subcommand(1);
  app.footer("'pellam COMMAND --help' tells more of each command.\n");

  std::string script;
  auto* run = app.add_subcommand("run", "run a form script (\"-\" reads standard input)");
  run->add_option("SCRIPT", script, "the form script")->required();
  run->footer(kScriptHelp);

  std::string shown;
  auto* show = app.add_subcommand("show", "print a saved job: its board setup, then each table as its editor lists it");
  show->add_option("FILE.zpd", shown, "the job image")->required();

  std::vector<std::string> pair;
  bool bytes = false;
  auto* diff = app.add_subcommand("diff", "what changed between two jobs: exit 0 same, 1 different, 2 trouble");
  diff->add_option("A.zpd B.zpd", pair, "the two job images")->required()->expected(2);
  diff->add_flag("--bytes", bytes, "also list the differing bytes by region of the memory map");

  std::vector<std::string> checked;
  bool json = false;
  auto* check = app.add_subcommand("check", "errors and warnings of job images: exit 0 clean, 1 warnings, 2 errors");
  check->add_option("FILE.zpd", checked, "the job images")->required();
  check->add_flag("--json", json, "print the findings as JSON");

  std::string exported;
  auto* exportCommand = app.add_subcommand("export", "write a job as JSON to standard output");
  exportCommand->add_option("FILE.zpd", exported, "the job image")->required();

  std::string document;
  std::string savePath;
  auto* importCommand = app.add_subcommand("import", "save a JSON job as the form saves it");
  importCommand->add_option("FILE.json", document, "the document (\"-\" reads standard input)")->required();
  importCommand->add_option("--save", savePath, "the job to save, JOB.txt")->required();

  std::string uploaded;
  int netId = 0;
  std::string address;
  bool force = false;
  auto* upload = app.add_subcommand("upload", "send a job to station N through the network controller (exit 0 when taken)");
  upload->add_option("FILE.zpd", uploaded, "the job image")->required();
  upload->add_option("--netid", netId, "the station's net id")->required()->check(CLI::Range(1, 127));
  upload->add_option("--to", address, "the controller, ADDRESS[:PORT]")->required();
  upload->add_flag("--force", force, "send an image with errors all the same");

  for (CLI::App* command : app.get_subcommands({})) {
    if (command != run) command->footer("");
  }
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& e) {
    const int status = app.exit(e);
    return status == 0 ? 0 : kUsageError;
  }
  if (*run) return runScript(script);
  if (*show) return showJob(shown);
  if (*diff) return diffJobs(pair[0], pair[1], bytes);
  if (*check) return checkJobs(checked, json);
  if (*exportCommand) return exportJob(exported);
  if (*importCommand) return importJob(document, savePath);
  return uploadJob(uploaded, netId, address, force);
}
