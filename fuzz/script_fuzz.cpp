// A form script run on a fresh session whose working folder is private to this process.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "component/script/form_script.h"
#include "component/script/script_error.h"
#include "component/script/script_tokens.h"
#include "component/session.h"
#include "files/ftp_transport.h"
#include "private_folder.h"

namespace {

using namespace pellam;

// A script may type any address and press "Up Load": nothing may leave the machine.
class NoNetwork final : public files::FtpTransport {
 public:
  files::TransferResult run(const files::TransferJob&, const files::TransferTick&) override {
    throw std::runtime_error("no network while fuzzing");
  }
};

// Every path a script names is a quoted string: one that is absolute or climbs out with ".."
// could write outside the private folder, so such a script is not run.
bool staysInFolder(std::string_view script) {
  while (!script.empty()) {
    const std::size_t end = script.find('\n');
    const std::string_view line = script.substr(0, end);
    script = end == std::string_view::npos ? std::string_view() : script.substr(end + 1);
    try {
      for (const component::script::Token& token : component::script::tokenize(line)) {
        if (token.quoted && (token.text.starts_with('/') || token.text.find("..") != std::string::npos)) return false;
      }
    } catch (const component::script::ScriptError&) {
      // The script stops at this line; what follows never runs.
      return true;
    }
  }
  return true;
}

// A script's relative paths are taken from the working folder, so each run is moved into the
// private one; libFuzzer itself must keep the folder it was started in for its corpus.
class InPrivateFolder {
 public:
  InPrivateFolder() : home_(std::filesystem::current_path()) { std::filesystem::current_path(fuzz::privateFolder()); }
  ~InPrivateFolder() {
    std::filesystem::current_path(home_);
    fuzz::emptyPrivateFolder();
  }
  InPrivateFolder(const InPrivateFolder&) = delete;
  InPrivateFolder& operator=(const InPrivateFolder&) = delete;

 private:
  std::filesystem::path home_;
};

}  // namespace

// A crash is written while the run is in the private folder, which is not kept: unless told
// otherwise, libFuzzer puts its findings in the folder it was started in.
extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
  static std::vector<char*> args(*argv, *argv + *argc);
  static std::string prefix = "-artifact_prefix=" + std::filesystem::current_path().string() + "/";
  const bool given = std::any_of(args.begin(), args.end(),
                                 [](const char* arg) { return std::string_view(arg).starts_with("-artifact_prefix="); });
  if (!given) {
    args.insert(args.begin() + 1, prefix.data());
    args.push_back(nullptr);
    *argc = static_cast<int>(args.size()) - 1;
    *argv = args.data();
  }
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string script(reinterpret_cast<const char*>(data), size);
  if (!staysInFolder(script)) return -1;
  std::istringstream in(script);
  std::ostringstream out, err;
  const InPrivateFolder scope;
  component::script::runFormScript(in, out, err, [](component::Session& session) {
    session.uploadPage.transport = std::make_unique<NoNetwork>();
    session.uploadPage.settingsPath = (fuzz::privateFolder() / "controller.ini").string();
  });
  return 0;
}
