#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "editors/station_personality/station_personality_page.h"
#include "support/desk.h"

namespace pellam::editors::station_personality {
namespace {

using testing::Desk;
using Lines = std::vector<std::string>;

class StationPersonalityPageTest : public ::testing::Test {
 protected:
  void SetUp() override { desk.startUp(); }

  void choose(int series, int personality, int netIdIndex, int room) {
    f.ComboBox17.select(series);
    f.ComboBox18.select(personality);
    f.ComboBox19.select(netIdIndex);
    f.ComboBox43.select(room);
  }
  void add(int series, int personality, int netIdIndex, int room) {
    choose(series, personality, netIdIndex, room);
    f.CommandButton14.click();
  }
  const job::StationPersonalityRecord& slot(int s) const { return table.records[static_cast<std::size_t>(s)]; }

  Desk desk;
  ui::UserForm1& f = desk.form();
  job::StationPersonalityTable& table = desk.job().stationPersonality;
};

TEST_F(StationPersonalityPageTest, AddListsTheStationAndFeedsItsImageByte) {
  add(1, 3, 20, 4);
  add(0, 200, 0, 255);
  EXPECT_EQ(f.ListBox7.items(), (Lines{"T6600 Series  NetId: 21  Personality  3  Room : 4",
                                       "T3100 Series  NetId: 1  Personality  200  Room : 255"}));
  EXPECT_EQ(slot(20).PersSeries, 9);
  EXPECT_EQ(slot(0).PersSeries, 10);
  EXPECT_EQ(slot(0).PersListPosition, 1);
  EXPECT_EQ(job::personalityOf(table, 21), 3);
  EXPECT_EQ(job::personalityOf(table, 1), 200);
}

TEST_F(StationPersonalityPageTest, DeleteAsksThenRelistsWithTheSeriesShownNow) {
  add(0, 5, 40, 1);
  add(0, 6, 2, 2);
  add(0, 7, 9, 3);
  table.records[127] = {128, 10, 1, 0, 1};  // beyond the rebuild
  desk.shown();

  choose(0, 1, 3, 1);
  f.CommandButton15.click();
  choose(1, 1, 2, 1);
  desk.answer(ui::Answer::No);
  f.CommandButton15.click();
  EXPECT_EQ(f.ListBox7.count(), 3);
  desk.answer(ui::Answer::Yes);
  f.CommandButton15.click();

  EXPECT_EQ(desk.shown(), (Lines{"msgbox \"Entry Not Found\" OK", "msgbox \"Delete NetId 3\" YesNo -> No",
                                 "msgbox \"Delete NetId 3\" YesNo -> Yes"}));
  EXPECT_EQ(f.ListBox7.items(), (Lines{"T6600 Series  NetId: 10  Personality  7  Room : 3",
                                       "T6600 Series  NetId: 41  Personality  5  Room : 1"}));
  EXPECT_EQ(slot(2).PersNetIdPlusOne, 0);
  EXPECT_EQ(slot(2).PersListPosition, job::kNotListed);
  EXPECT_EQ(slot(40).PersListPosition, 1);
  EXPECT_EQ(slot(40).PersSeries, 10) << "only the lines take the shown series";
}

TEST_F(StationPersonalityPageTest, ALineFillsTheChoosers) {
  add(1, 12, 6, 33);
  add(0, 4, 2, 5);
  f.ListBox7.select(0);
  EXPECT_EQ(f.ComboBox17.listIndex(), 1);
  EXPECT_EQ(f.ComboBox18.listIndex(), 12);
  EXPECT_EQ(f.ComboBox19.listIndex(), 6);
  EXPECT_EQ(f.ComboBox43.listIndex(), 33);

  // A decoded record knows no series; its personality is shown all the same.
  desk.startUp();
  table.records[8] = {9, 0, 17, job::kNotListed, 2};
  desk.session().stationPersonalityPage.ListDecoded();
  f.ListBox7.select(0);
  EXPECT_EQ(desk.shown(), Lines{});
  EXPECT_EQ(f.ComboBox17.listIndex(), -1);
  EXPECT_EQ(f.ComboBox18.listIndex(), 17);
  EXPECT_EQ(f.ComboBox19.listIndex(), 8);
}

}  // namespace
}  // namespace pellam::editors::station_personality
