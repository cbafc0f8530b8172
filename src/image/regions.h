#pragma once

#include <string>

// The memory map's regions by name, for findings and byte differences a person reads.
namespace pellam::image {

// "board setup: operating mode", "per-input block 3 (+12)", "remote commands page 2", ...;
// an offset no region holds is "unused".
std::string regionName(int offset);

}  // namespace pellam::image
