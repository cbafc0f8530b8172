#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "component/job_files.h"
#include "support/desk.h"

// The page as a person walks it, and a job saved and opened again, are in
// tests/scripts/remote_commands; a full input takes 31 adds, and an image without entries
// needs a job opened over another.
namespace pellam::editors::remote_commands {
namespace {

using RemoteCommandsPageTest = testing::DeskTest;

// Thirty stations fill an input, a duplicate is refused as full too, and the image keeps 29.
TEST_F(RemoteCommandsPageTest, ThirtyStationsFillAnInputAndTheImageKeepsTwentyNine) {
  desk.chooseBoard(1);
  f.CommandButton4.click();
  f.OptionButton13.choose();
  f.ComboBox69.select(9);
  f.ComboBox70.select(2);
  f.ListBox17.select(3);
  desk.shown();
  const auto add = [&](int netId) {
    f.ComboBox68.select(netId);
    f.CommandButton38.click();
  };
  for (int netId = 1; netId <= 31; ++netId) add(netId);
  add(5);
  EXPECT_EQ(desk.shown(), std::vector<std::string>(2, "msgbox \"Max of 30 Stations Per Input\" OK"));
  EXPECT_EQ(f.ListBox19.count(), 30);

  testing::TempFolder folder;
  std::string path = folder.file("rc.txt");
  desk.class1().Create_Pellam_Zpd(path);
  desk.startUp();
  path = folder.file("rc.zpd");
  desk.class1().ReadZPD_ImageFile(path);
  f.ComboBox69.select(9);
  EXPECT_EQ(f.ListBox19.count(), 29);
  EXPECT_EQ(f.ListBox19.items().back(), "NetId 29 Btn 4");
}

TEST_F(RemoteCommandsPageTest, AnImageWithoutEntriesShowsNoneAndTheDisabledMode) {
  image::EepromImage& image = desk.session().image;
  image.put(6400, 1);
  image.put(6200, 1);
  image.put(25380, 2);  // input 4: buttons, page 3, net id 8
  image.put(25381, 3);
  image.put(25382, 8);
  image.put(25383, 5);
  component::DecodeImage(desk.session());
  ASSERT_TRUE(f.OptionButton13.value());
  ASSERT_EQ(f.ListBox19.items(), std::vector<std::string>{"NetId 8 Btn 5"});

  image.fill(25200, 26159, 0);
  component::DecodeImage(desk.session());
  EXPECT_EQ(desk.shown(), std::vector<std::string>{}) << "no message either";
  EXPECT_EQ(desk.job().remoteCommands.RemoteMode, 0);
  EXPECT_TRUE(f.OptionButton14.value());
  EXPECT_EQ(f.ListBox19.count(), 0);
}

}  // namespace
}  // namespace pellam::editors::remote_commands
