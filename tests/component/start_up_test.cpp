#include <gtest/gtest.h>

#include <map>

#include "image/memory_map.h"
#include "support/desk.h"

namespace pellam::component {
namespace {

using testing::Desk;

// Which control gets which list, and the lists' texts, are walked through in the start_up_lists
// form script.
std::map<std::string, std::pair<std::vector<std::string>, int>> snapshotLists(ui::UserForm1& form) {
  std::map<std::string, std::pair<std::vector<std::string>, int>> lists;
  for (const ui::Control* c : form.controls()) {
    const auto* list = dynamic_cast<const ui::ListControl*>(c);
    if (!list) continue;
    // A long fixed list tells its count before it is made: the two must agree.
    EXPECT_EQ(list->count(), static_cast<int>(list->items().size())) << c->name();
    lists[std::string(c->name())] = {list->items(), list->listIndex()};
  }
  return lists;
}

TEST(StartUp, ChoosesNothingAndRunningItTwiceGivesTheSameLists) {
  Desk desk;
  desk.startUp();
  const auto first = snapshotLists(desk.form());
  for (const auto& [name, list] : first) EXPECT_EQ(list.second, -1) << name << " starts with nothing chosen";
  desk.form().ComboBox1.select(4);
  desk.form().ComboBox26.select(3);
  desk.form().ComboBox50.select(26);
  desk.startUp();
  EXPECT_EQ(snapshotLists(desk.form()), first);
}

TEST(StartUp, EmptiesTheTablesAndTheImage) {
  Desk desk;
  job::Job& job = desk.job();
  job.board.BoardOptions = 7;
  job.board.InputScan = 1;
  job.presetEmulation.at(3, 2).NetIdPlusOne = 4;
  job.channelEmulation.records[2].Channels[5] = 12;
  job.masterInputs.entries[3] = 1;
  job.masterInputs.Mode = 1;
  job.stationLink.records[9] = {9, 10, 4, 0};
  job.remoteCommands.blocks[1].Listed[5] = 5;
  job.remoteCommands.RemoteMode = 2;
  job.inputNumbering.records[2] = {2, 40};
  desk.session().image.put(image::map::kOperatingModeByte, 3);
  desk.session().image.put(0, 11);
  desk.form().ListBox1.addItem("Room 5,  Group 3, Channel:12");
  desk.form().ListBox8.addItem("Channel :12 @ % 75");

  desk.startUp();

  EXPECT_EQ(job.board.BoardOptions, 0);
  EXPECT_EQ(job.board.InputScan, 0);
  EXPECT_EQ(job.presetEmulation.at(3, 2).NetIdPlusOne, 0);
  EXPECT_EQ(job.channelEmulation.records[2].Channels[5], 0);
  EXPECT_EQ(job.masterInputs.entries[3], 0);
  EXPECT_EQ(job.masterInputs.Mode, 0);
  EXPECT_EQ(job.stationLink.records[9].LinkNetId, 0);
  EXPECT_EQ(job.stationLink.records[9].LinkRoom, 4) << "a clear leaves station rooms";
  EXPECT_EQ(job.remoteCommands.blocks[1].Listed[5], 0);
  EXPECT_EQ(job.remoteCommands.RemoteMode, 0);
  EXPECT_EQ(job.inputNumbering.records[2].RoomNumber, 0);
  EXPECT_EQ(desk.session().image.at(image::map::kOperatingModeByte), 0);
  EXPECT_EQ(desk.session().image.at(0), 11) << "the clear keeps byte 0";
  EXPECT_EQ(desk.form().ListBox1.count() + desk.form().ListBox8.count(), 0) << "no stale line of an emptied table";
}

}  // namespace
}  // namespace pellam::component
