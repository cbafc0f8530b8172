#include "support/controller_sim.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <signal.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <fstream>
#include <random>
#include <stdexcept>
#include <thread>

extern char** environ;

namespace pellam::testing {

namespace {
// Debian's pyftpdlib is installed for the system's own interpreter.
constexpr const char* kPython = "/usr/bin/python3";
}  // namespace

ControllerSim::ControllerSim(const std::vector<std::string>& flags) {
  std::random_device seed;
  root_ = std::filesystem::temp_directory_path() / ("pellam-controller-" + std::to_string(std::mt19937_64(seed())()));
  std::filesystem::create_directories(root_);
  const std::string portFile = (root_ / "port").string();
  std::vector<std::string> args = {kPython, PELLAM_CONTROLLER_SIM, "--port-file", portFile,
                                   "--root", (root_ / "disk").string()};
  args.insert(args.end(), flags.begin(), flags.end());
  std::filesystem::create_directories(root_ / "disk");
  std::vector<char*> argv;
  for (std::string& a : args) argv.push_back(a.data());
  argv.push_back(nullptr);
  if (posix_spawn(&pid_, kPython, nullptr, nullptr, argv.data(), environ) != 0) {
    throw std::runtime_error("cannot start the controller simulator");
  }
  auto fail = [this](const std::string& why) {
    if (pid_ > 0) {
      kill(pid_, SIGTERM);
      waitpid(pid_, nullptr, 0);
    }
    std::error_code ec;
    std::filesystem::remove_all(root_, ec);
    throw std::runtime_error(why);
  };
  const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(15);
  while (std::chrono::steady_clock::now() < deadline) {
    std::ifstream in(portFile);
    if (in >> port_) {
      root_ /= "disk";
      return;
    }
    int status = 0;
    if (waitpid(pid_, &status, WNOHANG) == pid_) {
      pid_ = -1;
      fail("the controller simulator stopped at once (is python3-pyftpdlib installed?)");
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
  }
  fail("the controller simulator did not come up");
}

ControllerSim::~ControllerSim() {
  if (pid_ > 0) {
    kill(pid_, SIGTERM);
    waitpid(pid_, nullptr, 0);
  }
  std::error_code ec;
  std::filesystem::remove_all(root_.filename() == "disk" ? root_.parent_path() : root_, ec);
}

int closedPort() {
  const int s = socket(AF_INET, SOCK_STREAM, 0);
  sockaddr_in a{};
  a.sin_family = AF_INET;
  a.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  socklen_t size = sizeof a;
  bind(s, reinterpret_cast<sockaddr*>(&a), size);
  getsockname(s, reinterpret_cast<sockaddr*>(&a), &size);
  close(s);
  return ntohs(a.sin_port);
}

}  // namespace pellam::testing
