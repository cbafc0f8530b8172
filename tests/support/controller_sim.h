#pragma once

#include <sys/types.h>

#include <filesystem>
#include <string>
#include <vector>

namespace pellam::testing {

// The controller's FTP service, played by a real FTP server on loopback for as long as the
// object lives. Files the stations take land in `received()`.
class ControllerSim {
 public:
  struct Options {
    std::vector<int> stations;  // net ids that have a station
    bool silent = false;        // accepts connections and never answers
    int dropAfter = -1;         // closes both connections once this many bytes arrived
    bool failAfterTransfer = false;  // 451 where 226 belongs
    const char* greeting = nullptr;  // the 220 line's text instead of the server's own
    bool refuseLogin = false;   // 530 to every login
    bool stall = false;         // takes the data, then never answers
  };
  explicit ControllerSim(const Options& options);
  ~ControllerSim();
  ControllerSim(const ControllerSim&) = delete;
  ControllerSim& operator=(const ControllerSim&) = delete;

  int port() const { return port_; }
  const std::filesystem::path& received() const { return root_; }

 private:
  std::filesystem::path root_;
  pid_t pid_ = -1;
  int port_ = 0;
};

// A port on loopback that nothing listens on.
int closedPort();

}  // namespace pellam::testing
