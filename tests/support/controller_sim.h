#pragma once

#include <sys/types.h>

#include <filesystem>
#include <string>
#include <vector>

namespace pellam::testing {

// The controller's FTP service, played by a real FTP server on loopback for as long as the
// object lives: controller_sim.py with `flags` such as --stations=5,7 (the net ids that have a
// station) and the faults it plays. Files the stations take land in `received()`.
class ControllerSim {
 public:
  explicit ControllerSim(const std::vector<std::string>& flags);
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
