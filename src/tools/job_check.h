#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

// Checking a job image before it goes to a board: errors the board cannot run with, and
// warnings of entries that are there but will not do what they seem to.
namespace pellam::tools {

struct Finding {
  std::string file;
  int offset = 0;
  std::string region;  // the memory map's name for the offset
  bool error = false;
  std::string text;
};

// The findings for one file's bytes, in offset order within each kind of check.
std::vector<Finding> checkImage(const std::string& file, std::span<const std::uint8_t> bytes);
// Reads the file first; a file that cannot be read is one error.
std::vector<Finding> checkJobFile(const std::string& path);

// "FILE:OFFSET: error: REGION: TEXT"
std::string findingLine(const Finding& finding);
// An array of {file, offset, region, severity, message}.
std::string findingsJson(const std::vector<Finding>& findings);
// 0 clean, 1 warnings only, 2 errors.
int checkStatus(const std::vector<Finding>& findings);

}  // namespace pellam::tools
