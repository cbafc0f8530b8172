#pragma once

#include <cstdint>
#include <span>
#include <string>

// What changed between two jobs, in the editors' terms: the board setup by field, then each
// table's entries as the form lists them, removed ("- ") and added ("+ ").
namespace pellam::tools {

// Empty when the jobs are the same to the byte. With `bytes`, the differing byte runs follow,
// named by the memory map's regions.
std::string diffJobs(std::span<const std::uint8_t> a, std::span<const std::uint8_t> b, bool bytes);

}  // namespace pellam::tools
