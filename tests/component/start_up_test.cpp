#include <gtest/gtest.h>

#include <map>

#include "image/memory_map.h"
#include "support/desk.h"

namespace pellam::component {
namespace {

using testing::Desk;

// The lists that change with the board are walked through in the start_up_lists form script.
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

// The fixed lists a person chooses from: how many items, and the items at their edges.
TEST(StartUp, FillsEachFixedList) {
  Desk desk;
  desk.startUp();
  const struct {
    std::vector<const char*> controls;
    int count, index;
    const char* text;
  } lists[] = {
      {{"ComboBox1"}, 6, 2, "Room Link "},
      {{"ComboBox2"}, 3, 2, "Slaved Station"},
      {{"ComboBox48"}, 3, 1, "T3100 Room Combine Station"},
      {{"ComboBox55"}, 201, 180, "180 Seconds"},
      {{"ComboBox55"}, 201, 181, "1 Minute"},
      {{"ComboBox55"}, 201, 200, "20 Minutes"},
      {{"ComboBox27", "ComboBox49"}, 241, 240, "180 Minutes"},
      {{"ComboBox27"}, 241, 1, "0 Seconds"},
      {{"ComboBox27"}, 241, 2, "1 Seconds"},
      {{"ComboBox27"}, 241, 61, "1 Minute"},
      {{"ComboBox45"}, 2048, 2047, "Channel :2047"},
      {{"ComboBox38"}, 2049, 2048, "2048"},
      {{"ComboBox28"}, 101, 0, "0%"},
      {{"ComboBox47"}, 101, 100, "100%"},
      {{"ComboBox26", "ComboBox7", "ComboBox20", "ComboBox30", "ComboBox42", "ComboBox69"}, 17, 16, "Input 16"},
      {{"ComboBox70"}, 17, 16, "16"},
      {{"ComboBox33", "ComboBox8", "ComboBox9", "ComboBox22", "ComboBox23", "ComboBox31", "ComboBox32", "ComboBox36",
        "ComboBox43"},
       256, 255, "Room 255"},
      {{"ComboBox37"}, 256, 255, "Group 255"},
      {{"ComboBox34"}, 6, 3, "T6600 Slider"},
      {{"ComboBox39"}, 6, 5, "Contact Closure"},
      {{"ComboBox35", "ComboBox25", "ComboBox50"}, 128, 127, "127"},
      {{"ComboBox41"}, 127, 0, "NetID 1"},
      {{"ComboBox19"}, 127, 126, "NetID 127"},
  };
  for (const auto& list : lists) {
    for (const char* name : list.controls) {
      SCOPED_TRACE(name);
      const auto* control = dynamic_cast<const ui::ListControl*>(desk.form().find(name));
      ASSERT_NE(control, nullptr);
      EXPECT_EQ(control->count(), list.count);
      ASSERT_GT(control->count(), list.index);
      EXPECT_EQ(control->items()[static_cast<std::size_t>(list.index)], list.text);
    }
  }
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
