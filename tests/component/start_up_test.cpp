#include <gtest/gtest.h>

#include <map>

#include "image/memory_map.h"
#include "ui/choice_lists.h"
#include "support/desk.h"

namespace pellam::component {
namespace {

using testing::Desk;

// Which control gets which list; the lists' texts, counts and quirks are checked item by
// item in the start_up_lists form script.
TEST(StartUp, FillsEveryChoiceList) {
  Desk desk;
  desk.startUp();
  namespace lists = ui::lists;
  const std::pair<std::vector<std::string>, std::vector<const char*>> wiring[] = {
      {lists::operatingModes(), {"ComboBox1"}},
      {lists::masterSlave(), {"ComboBox2"}},
      {lists::slaveIds(), {"ComboBox25"}},
      {lists::hardwareTypes(), {"ComboBox48"}},
      {lists::refreshRates(), {"ComboBox55"}},
      {lists::fadeRates(), {"ComboBox27", "ComboBox49"}},
      {lists::levels(), {"ComboBox28", "ComboBox47"}},
      {lists::firstChannels(), {"ComboBox45"}},
      {lists::inputs(), {"ComboBox26", "ComboBox7", "ComboBox20", "ComboBox30", "ComboBox42", "ComboBox69"}},
      {lists::rooms(), {"ComboBox8", "ComboBox9", "ComboBox22", "ComboBox23", "ComboBox31", "ComboBox32", "ComboBox33",
                        "ComboBox36", "ComboBox43"}},
      {lists::groups(), {"ComboBox37"}},
      {lists::channels(), {"ComboBox38"}},
      {lists::presetStationKinds(), {"ComboBox39"}},
      {lists::linkStationTypes(), {"ComboBox34"}},
      {lists::personalitySeries(), {"ComboBox17"}},
      {lists::netIds(), {"ComboBox35", "ComboBox50"}},
      {lists::netIdNames(), {"ComboBox41", "ComboBox19"}},
      {lists::personalities(), {"ComboBox18"}},
      {lists::remoteNetIds(), {"ComboBox68"}},
      {lists::remotePages(), {"ComboBox70"}},
      {lists::remoteButtons(), {"ListBox17"}},
  };
  for (const auto& [items, controls] : wiring) {
    for (const char* name : controls) {
      const auto* list = dynamic_cast<const ui::ListControl*>(desk.form().find(name));
      ASSERT_NE(list, nullptr) << name;
      EXPECT_EQ(list->items(), items) << name;
      EXPECT_EQ(list->listIndex(), -1) << name << ": nothing is chosen after start-up";
    }
  }
  EXPECT_EQ(desk.form().ComboBox6.count(), 0) << "the input-action list waits for an operating mode";
  EXPECT_TRUE(desk.shown().empty());
}

std::map<std::string, std::pair<std::vector<std::string>, int>> snapshotLists(ui::UserForm1& form) {
  std::map<std::string, std::pair<std::vector<std::string>, int>> lists;
  for (const ui::Control* c : form.controls()) {
    if (const auto* list = dynamic_cast<const ui::ListControl*>(c)) lists[std::string(c->name())] = {list->items(), list->listIndex()};
  }
  return lists;
}

TEST(StartUp, RunningItTwiceGivesTheSameLists) {
  Desk desk;
  desk.startUp();
  const auto first = snapshotLists(desk.form());
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
