#include "files/transfer_result.h"

#include <cctype>
#include <sstream>

namespace pellam::files {

namespace {

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
    case TransferFailure::Cancelled: return "the upload was cancelled";
    case TransferFailure::Broken: break;
  }
  const std::string refusal = lastRefusal(dialogue);
  if (!refusal.empty()) return "the controller answered " + refusal;
  return "the connection was lost before the controller confirmed the file";
}

}  // namespace pellam::files
