// libcurl and its dozens of libraries are loaded only when an upload runs: the transport lives
// in a plugin library, so that every other command and the desktop app start without them.
#include <dlfcn.h>

#include <array>
#include <filesystem>
#include <mutex>

#include "files/ftp_transport.h"

namespace pellam::files {

namespace {

constexpr const char* kPluginName = "pellam-ftp-curl.so";

// Beside an installed program (bin/ and lib/pellam/), then where the build put it.
std::filesystem::path pluginPath() {
  std::error_code error;
  const auto exe = std::filesystem::read_symlink("/proc/self/exe", error);
  const std::array<std::filesystem::path, 2> candidates = {
      error ? std::filesystem::path() : exe.parent_path().parent_path() / "lib" / "pellam" / kPluginName,
      std::filesystem::path(PELLAM_PLUGIN_BUILD_DIR) / kPluginName};
  for (const auto& candidate : candidates) {
    if (!candidate.empty() && std::filesystem::exists(candidate, error)) return candidate;
  }
  return kPluginName;  // left to the loader's own search path
}

using MakeTransport = FtpTransport* (*)();

// Loaded once and kept for the life of the process: libcurl is initialised once per process.
MakeTransport loadPlugin(std::string& why) {
  static std::once_flag once;
  static MakeTransport make = nullptr;
  static std::string failure;
  std::call_once(once, [] {
    void* handle = dlopen(pluginPath().c_str(), RTLD_NOW | RTLD_LOCAL);
    if (handle) make = reinterpret_cast<MakeTransport>(dlsym(handle, "pellam_make_curl_transport"));
    if (!make) failure = std::string("cannot load the upload transport: ") + dlerror();
  });
  why = failure;
  return make;
}

class PluginTransport final : public FtpTransport {
 public:
  TransferResult run(const TransferJob& job, const TransferTick& tick) override {
    if (!loaded_) {
      std::string why;
      MakeTransport make = loadPlugin(why);
      if (!make) {
        TransferResult r;
        r.failure = TransferFailure::Broken;
        r.why = why;
        return r;
      }
      loaded_.reset(make());
    }
    return loaded_->run(job, tick);
  }

 private:
  std::unique_ptr<FtpTransport> loaded_;
};

}  // namespace

std::unique_ptr<FtpTransport> makeSystemFtpTransport() { return std::make_unique<PluginTransport>(); }

}  // namespace pellam::files
