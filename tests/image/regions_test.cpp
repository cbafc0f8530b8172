#include <gtest/gtest.h>

#include "image/regions.h"

namespace pellam::image {
namespace {

// What `pellam diff --bytes` and `pellam check` tell a person about an offset: the region's name,
// where in it the offset lies, and the bytes the region spans. The gaps between regions are
// "unused" regions of their own, bounded by the next region wherever it starts.
TEST(Regions, NameAndSpanEveryOffset) {
  struct Case {
    int offset;
    const char* name;
    int first, last;
  };
  const Case cases[] = {
      {0, "signature", 0, 0},
      {2, "room-combine map (channel 1)", 0, 4097},
      {4097, "room-combine map (channel 2048)", 0, 4097},
      {4098, "unused", 4098, 4999},
      {5003, "station slots (row 1)", 5000, 5383},
      {5300, "input numbering (input 0)", 5300, 5316},
      {5316, "input numbering (input 16)", 5300, 5316},
      {5384, "unused", 5384, 5766},
      {5767, "station personalities (net id 1)", 5767, 6021},
      {6021, "station personalities (net id 255)", 5767, 6021},
      {6022, "unused", 6022, 6099},
      {6101, "board setup: file type", 6101, 6101},
      {6203, "unused", 6203, 6203},
      {6205, "master inputs (input 1)", 6205, 6220},
      {6220, "master inputs (input 16)", 6205, 6220},
      {6252, "board setup: timer", 6252, 6252},
      {6451, "unused", 6451, 7873},
      {7874, "room links (row 0)", 7874, 7907},
      {7907, "room links (row 16)", 7874, 7907},
      {7908, "unused", 7908, 8299},
      {8300, "per-input block 1 (+0)", 8300, 8599},
      {13099, "per-input block 16 (+299)", 12800, 13099},
      {13100, "unused", 13100, 20299},
      {20300, "per-input block 17 (+0)", 20300, 20599},
      {25099, "per-input block 32 (+299)", 24800, 25099},
      {25100, "unused", 25100, 25199},
      {25200, "remote commands page 1", 25200, 25259},
      {26159, "remote commands page 16", 26100, 26159},
      {26160, "unused", 26160, 34001},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(regionName(c.offset), c.name) << "offset " << c.offset;
    const Region region = regionOf(c.offset);
    EXPECT_EQ(region.first, c.first) << "offset " << c.offset;
    EXPECT_EQ(region.last, c.last) << "offset " << c.offset;
  }
}

}  // namespace
}  // namespace pellam::image
