#include "files/transfer_result.h"

#include <cctype>
#include <sstream>

namespace pellam::files {

namespace {

bool startsWithCode(const std::string& line, const char* code) { return line.rfind(code, 0) == 0; }

std::string withoutLineEnd(std::string line) {
  while (!line.empty() && (line.back() == '\r' || line.back() == '\n')) line.pop_back();
  return line;
}

}  // namespace

std::string lastRefusal(const std::string& dialogue) {
  std::istringstream in(dialogue);
  std::string refusal;
  for (std::string line; std::getline(in, line);) {
    if (line.size() > 3 && (line[0] == '4' || line[0] == '5') && std::isdigit(static_cast<unsigned char>(line[1])) &&
        std::isdigit(static_cast<unsigned char>(line[2])) && line[3] == ' ') {
      refusal = withoutLineEnd(line);
    }
  }
  return refusal;
}

std::string failureWhy(TransferFailure failure, const std::string& dialogue) {
  switch (failure) {
    case TransferFailure::None: return {};
    case TransferFailure::NotReached: return "the controller could not be reached";
    case TransferFailure::LoginRefused: return "the controller refused the login";
    case TransferFailure::TimedOut: return "the controller stopped answering";
    case TransferFailure::Broken: break;
  }
  const std::string refusal = lastRefusal(dialogue);
  if (!refusal.empty()) return "the controller answered " + refusal;
  return "the connection was lost before the controller confirmed the file";
}

TransferResult clientTransferResult(const std::string& output, long long total) {
  TransferResult r;
  r.bytesTotal = total;
  bool greeted = false;
  bool confirmed = false;
  bool refusedLogin = false;
  std::istringstream in(output);
  for (std::string line; std::getline(in, line);) {
    greeted = greeted || startsWithCode(line, "220");
    confirmed = confirmed || startsWithCode(line, "226");
    refusedLogin = refusedLogin || startsWithCode(line, "530");
    // "ftp: 32767 bytes sent in 0.00Seconds 32767.00Kbytes/sec."
    if (const auto at = line.find(" bytes sent in "); at != std::string::npos && at > 0) {
      const auto digits = line.find_last_not_of("0123456789", at - 1);
      const std::string number = line.substr(digits == std::string::npos ? 0 : digits + 1, at - digits - 1);
      if (!number.empty() && number.size() < 19) r.bytesSent = std::stoll(number);
    }
  }
  r.completed = confirmed && r.bytesSent == total;
  if (r.completed) return r;
  r.failure = !greeted       ? TransferFailure::NotReached
              : refusedLogin ? TransferFailure::LoginRefused
                             : TransferFailure::Broken;
  r.why = failureWhy(r.failure, output);
  return r;
}

}  // namespace pellam::files
