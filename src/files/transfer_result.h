#pragma once

#include <string>

#include "files/ftp_transport.h"

// Reading a transfer's outcome from the controller's dialogue as the command-line client
// prints it, and the words a person is given for a transfer that did not complete.
namespace pellam::files {

// The last reply in which the controller refused something (4xx or 5xx), or empty.
std::string lastRefusal(const std::string& dialogue);

// Why a transfer did not complete, for "Down Load Not Completed: <why>".
std::string failureWhy(TransferFailure failure, const std::string& dialogue);

// The system's ftp client, given `total` bytes to send: done only when the controller
// answered 226 and the client reports every byte sent.
TransferResult clientTransferResult(const std::string& output, long long total);

}  // namespace pellam::files
