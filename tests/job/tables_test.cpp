#include <gtest/gtest.h>

#include "job/job.h"
#include "job/runtime_error.h"

namespace pellam::job {
namespace {

// The clears leave some slots alone on purpose; a "tidier" clear would change saved jobs.
TEST(TableClears, ChannelEmulationKeepsSlotZeroAndTheOuterRecords) {
  auto table = std::make_unique<ChannelEmulationTable>();
  for (auto& r : table->records) {
    r.Channels.fill(9);
    r.Levels.fill(9);
    r.ListChannels.fill(9);
    r.ChannelCount = 9;
    r.InputNumber = 9;
  }
  ClearChannelEmulation(*table);
  const auto& input3 = table->records[3];
  EXPECT_EQ(input3.Channels[1], 0);
  EXPECT_EQ(input3.Channels[299], 0);
  EXPECT_EQ(input3.ListChannels[1], -1);
  EXPECT_EQ(input3.ChannelCount, 1);
  EXPECT_EQ(input3.InputNumber, 0);
  EXPECT_EQ(input3.Channels[0], 9) << "slot 0 is left";
  EXPECT_EQ(input3.Channels[300], 9) << "slot 300 is left";
  EXPECT_EQ(table->records[0].ChannelCount, 9) << "record 0 is left";
  EXPECT_EQ(table->records[33].Channels[5], 9) << "record 33 is left";
  EXPECT_EQ(table->records[32].Channels[5], 0);
  EXPECT_EQ(table->records[1].Channels[5], 0) << "the first input is cleared too";
}

TEST(TableClears, PresetEmulationKeepsTheLastSlots) {
  auto table = std::make_unique<PresetEmulationTable>();
  for (auto& row : table->records) row.fill(PresetRecord{1, 2, 3, 4, 5});
  ClearPresetEmulation(*table);
  EXPECT_EQ(table->at(0, 0).NetIdPlusOne, 0);
  EXPECT_EQ(table->at(126, 31).ListPosition, -1);
  EXPECT_EQ(table->at(126, 32).NetIdPlusOne, 1) << "input slot 32 is left";
  EXPECT_EQ(table->at(127, 0).NetIdPlusOne, 1) << "net id slot 127 is left";
  EXPECT_THROW(table->at(129, 0), RuntimeError);
  EXPECT_THROW(table->at(0, 34), RuntimeError);
}

TEST(TableClears, StationLinkKeepsRoomsAndTheLastSlots) {
  StationLinkTable table;
  table.records.fill(StationLinkRecord{5, 9, 12, 3});
  ClearStationLink(table);
  EXPECT_EQ(table.records[0].LinkNetId, 0);
  EXPECT_EQ(table.records[126].LinkListPosition, -1);
  EXPECT_EQ(table.records[40].LinkRoom, 12) << "the room survives a clear";
  EXPECT_EQ(table.records[127].LinkNetId, 5);
  EXPECT_EQ(table.records[128].LinkStationType, 9);
}

}  // namespace
}  // namespace pellam::job
