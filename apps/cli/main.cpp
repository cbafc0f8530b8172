#include <filesystem>
#include <fstream>
#include <iostream>
#include <memory>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "component/job_files.h"
#include "component/job_listing.h"
#include "component/script/form_script.h"
#include "component/unattended_session.h"
#include "files/file_type.h"
#include "files/job_paths.h"

namespace {

constexpr int kUsageError = 2;
constexpr int kRefused = 1;

constexpr std::string_view kUsage =
    "usage: pellam run SCRIPT      run a form script (\"-\" reads standard input)\n"
    "       pellam show FILE.zpd   print a saved job: its board setup and its tables\n"
    "       pellam upload FILE.zpd --netid N --to ADDRESS[:PORT]\n"
    "                              send a saved job to station N through the network controller\n"
    "       pellam --help          show this help\n"
    "       pellam --version       show the version\n"
    "\n"
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

int showJob(const std::string& path) {
  namespace component = pellam::component;
  if (const auto job = pellam::files::ReadJobImage(path); !job.problem.empty()) {
    std::cerr << "pellam: " << job.problem << "\n";
    return kRefused;
  }
  component::UnattendedSession session(std::cerr);
  if (!component::OpenJobSequence(*session, path)) return kRefused;
  std::cout << "Job: " << path << "\n" << component::listJob(*session);
  return 0;
}

// The upload frame's procedure, from the command line: the same checks, files, log and
// messages; the exit status says whether the controller took the file.
int uploadJob(int argc, char** argv) {
  namespace component = pellam::component;
  std::string file;
  std::string netId;
  std::string address;
  for (int i = 2; i < argc; ++i) {
    const std::string_view arg = argv[i];
    if (arg == "--netid" && i + 1 < argc) {
      netId = argv[++i];
    } else if (arg == "--to" && i + 1 < argc) {
      address = argv[++i];
    } else if (file.empty() && !arg.starts_with("--")) {
      file = arg;
    } else {
      std::cerr << "pellam: cannot understand " << arg << "\n" << kUsage;
      return kUsageError;
    }
  }
  const bool netIdFine = !netId.empty() && netId.size() <= 3 &&
                         netId.find_first_not_of("0123456789") == std::string::npos && std::stoi(netId) >= 1 &&
                         std::stoi(netId) <= 127;
  if (file.empty() || address.empty() || !netIdFine) {
    std::cerr << "pellam: upload needs FILE.zpd, --netid 1..127 and --to ADDRESS\n";
    return kUsageError;
  }
  component::UnattendedSession session(std::cout);
  const auto result = session->uploadPage.upload({std::stoi(netId), file, address});
  if (!result.logPath.empty()) std::cout << "log: " << result.logPath << "\n";
  return result.completed ? 0 : kRefused;
}

}  // namespace

int main(int argc, char** argv) {
  const std::string_view command = argc > 1 ? argv[1] : "";
  if (command == "--help" || command == "-h" || command == "help") {
    std::cout << kUsage;
    return 0;
  }
  if (command == "--version") {
    std::cout << "pellam 0.1.0\n";
    return 0;
  }
  if (command == "run" && argc == 3) return runScript(argv[2]);
  if (command == "show" && argc == 3) return showJob(argv[2]);
  if (command == "upload") return uploadJob(argc, argv);
  std::cerr << (command.empty() ? "pellam: no command given\n" : "pellam: cannot understand the command line\n")
            << kUsage;
  return kUsageError;
}
