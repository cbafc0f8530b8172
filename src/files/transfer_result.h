#pragma once

#include <string>

#include "files/ftp_transport.h"

// The words a person is given for a transfer that did not complete.
namespace pellam::files {

// The last reply in which the controller refused something (4xx or 5xx), or empty.
std::string lastRefusal(const std::string& dialogue);

// Why a transfer did not complete, for "Down Load Not Completed: <why>".
std::string failureWhy(TransferFailure failure, const std::string& dialogue);

}  // namespace pellam::files
