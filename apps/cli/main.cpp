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
#include "component/platform.h"
#include "component/script/form_script.h"
#include "component/session.h"
#include "component/start_up.h"
#include "files/job_paths.h"
#include "files/open_job.h"
#include "image/memory_map.h"

namespace {

constexpr int kUsageError = 2;
constexpr int kRefused = 1;

constexpr std::string_view kUsage =
    "usage: pellam run SCRIPT      run a form script (\"-\" reads standard input)\n"
    "       pellam show FILE.zpd   print a saved job: its board setup and its tables\n"
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
  std::error_code ec;
  const auto fsPath = pellam::files::fsPath(path);
  if (std::filesystem::is_directory(fsPath, ec)) {
    std::cerr << "pellam: " << path << " is a folder, not a script\n";
    return kUsageError;
  }
  std::ifstream in(fsPath, std::ios::binary);
  if (!in) {
    std::cerr << "pellam: cannot read " << path << "\n";
    return kUsageError;
  }
  return script::runFormScript(in, std::cout, std::cerr);
}

int showJob(const std::string& path) {
  namespace component = pellam::component;
  namespace map = pellam::image::map;
  auto file = pellam::files::OpenImageFile(path);
  std::vector<std::uint8_t> bytes(map::kZpdSize);
  const long size = file ? pellam::files::ReadImageBytes(*file, bytes) : -1;
  if (size < 0) {
    std::cerr << "pellam: cannot read " << path << "\n";
    return kRefused;
  }
  const int type = size > map::kProductTypeByte ? bytes[map::kProductTypeByte] : -1;
  if (type != map::kProductTypeValue) {
    std::cerr << "pellam: " << path << " is not a Pellam job image (" << size << " bytes, type byte "
              << (type < 0 ? std::string("missing") : std::to_string(type)) << ", not 11)\n";
    return kRefused;
  }
  component::UnattendedDialogs dialogs(std::cerr);
  component::NoViewer shell;
  component::SystemClock clock;
  auto session = std::make_unique<component::Session>(dialogs, shell, clock);
  component::Initailize_Pellam_Variables_And_Form(*session);
  if (!component::OpenJobSequence(*session, path)) return kRefused;
  std::cout << "Job: " << path << "\n" << component::listJob(*session);
  return 0;
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
  std::cerr << (command.empty() ? "pellam: no command given\n" : "pellam: cannot understand the command line\n")
            << kUsage;
  return kUsageError;
}
