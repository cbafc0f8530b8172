#pragma once

#include <string>

// The memory map's regions by name, for findings and byte differences a person reads.
namespace pellam::image {

// A whole region: its bytes and its name ("per-input block 3", "board setup: operating mode").
struct Region {
  int first = 0;
  int last = 0;
  std::string name;
};

// The region an offset lies in; an offset no region holds is "unused", a region of its own.
Region regionOf(int offset);

// The region's name and where in it the offset lies: "per-input block 3 (+12)",
// "room-combine map (channel 101)".
std::string regionName(int offset);

}  // namespace pellam::image
