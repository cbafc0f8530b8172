#include <gtest/gtest.h>

#include "image/clear.h"
#include "image/eeprom_image.h"
#include "image/memory_map.h"
#include "job/runtime_error.h"

namespace pellam::image {
namespace {

TEST(EepromImage, WritesAreChecked) {
  EepromImage image;
  image.put(0, 255);
  image.put(34001, 1);
  EXPECT_EQ(image.at(0), 255);
  EXPECT_EQ(image.at(34001), 1);
  EXPECT_THROW(image.put(34002, 0), job::RuntimeError);
  EXPECT_THROW(image.put(-1, 0), job::RuntimeError);
  EXPECT_THROW(image.put(10, 256), job::RuntimeError) << "a value above 255 is an error, not a wrap";
  EXPECT_THROW(image.put(10, -1), job::RuntimeError);
  EXPECT_EQ(image.at(10), 0) << "a refused write leaves the byte alone";
  EXPECT_THROW((void)image.at(34002), job::RuntimeError);
  EXPECT_THROW((void)toByte(300), job::RuntimeError);
  EXPECT_EQ(toByte(200), 200);
}

class ClearEEpromImageTest : public ::testing::Test {
 protected:
  void SetUp() override {
    image.fill(0, map::kImageSize - 1, 0xAB);
    for (auto& r : job.roomLink.records) r = {3, 4, 5, 6};
    for (auto& r : job.roomCombine.records) r = {7, 8, 9, 10};
    job.roomLink.LinkFirstRoom = 1;
    job.roomLink.LinkSecondRoom = 2;
    job.roomLink.LinkInputGroupC = 3;
  }
  EepromImage image;
  job::Job job;
};

TEST_F(ClearEEpromImageTest, KeepsByteZeroAndTheLastThreeBytes) {
  ClearEEpromImage(image, job);
  EXPECT_EQ(image.at(0), 0xAB);
  for (int i = 1; i <= 33998; ++i) ASSERT_EQ(image.at(i), 0) << "byte " << i;
  EXPECT_EQ(image.at(33999), 0xAB);
  EXPECT_EQ(image.at(34000), 0xAB);
  EXPECT_EQ(image.at(34001), 0xAB);
}

TEST_F(ClearEEpromImageTest, ResetsOnlyTheMiddleRowsOfTheRoomTables) {
  ClearEEpromImage(image, job);
  const auto& links = job.roomLink.records;
  for (std::size_t i = 1; i <= 15; ++i) {
    EXPECT_EQ(links[i].LinkInput, 0);
    EXPECT_EQ(links[i].ListLine, -1) << "65535";
  }
  for (std::size_t i : {0u, 16u, 17u}) EXPECT_EQ(links[i].LinkInput, 3) << "row " << i << " is kept";
  const auto& combine = job.roomCombine.records;
  EXPECT_EQ(combine[1].CombineChannel, 0);
  EXPECT_EQ(combine[2046].CombineListLine, 65535);
  for (std::size_t i : {0u, 2047u, 2048u, 2049u}) EXPECT_EQ(combine[i].CombineChannel, 7) << "row " << i << " is kept";
  EXPECT_EQ(job.roomLink.LinkFirstRoom, 0);
  EXPECT_EQ(job.roomLink.LinkSecondRoom, 0);
  EXPECT_EQ(job.roomLink.LinkInputGroupC, 0);
}

TEST_F(ClearEEpromImageTest, ImageOnlyClearTouchesNoTable) {
  ClearImageOnly(image);
  EXPECT_EQ(image.at(0), 0xAB);
  EXPECT_EQ(image.at(6400), 0);
  EXPECT_EQ(image.at(33999), 0xAB);
  EXPECT_EQ(job.roomLink.records[5].LinkInput, 3);
  EXPECT_EQ(job.roomCombine.records[5].CombineChannel, 7);
}

}  // namespace
}  // namespace pellam::image
