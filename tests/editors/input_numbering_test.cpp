#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "component/job_files.h"
#include "editors/input_numbering/input_numbering_page.h"
#include "image/memory_map.h"
#include "support/desk.h"

namespace pellam::editors::input_numbering {
namespace {

using testing::Desk;
using testing::okBox;
using Lines = std::vector<std::string>;

TEST(NumberInputTest, RefusesWhatTheBoardCouldNotKeep) {
  Desk desk;
  job::InputNumberTable table;
  ui::Dialogs& dialogs = desk.session().dialogs();
  ASSERT_TRUE(NumberInput(table, dialogs, 5, 41));
  ASSERT_TRUE(NumberInput(table, dialogs, 16, 255));
  const job::InputNumberTable before = table;

  struct Case {
    int input, room;
    const char* message;
  };
  const Case cases[] = {
      {0, 7, "Input Not Selected"},       {-1, 7, "Input Not Selected"},
      {3, 0, "Room Not Selected"},        {0, 0, "Input Not Selected"},
      {17, 7, "Input Out Of Range"},      {3, 256, "Room Out Of Range"},
      {3, 255, "Room Already Used By Input 16"}, {5, 7, "Input Already Numbered"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.message);
    EXPECT_FALSE(NumberInput(table, dialogs, c.input, c.room));
    EXPECT_EQ(desk.shown(), Lines{okBox(c.message)});
  }
  for (std::size_t i = 0; i < table.records.size(); ++i) {
    EXPECT_EQ(table.records[i].InputNumber, before.records[i].InputNumber) << "record " << i;
    EXPECT_EQ(table.records[i].RoomNumber, before.records[i].RoomNumber) << "record " << i;
  }
}

using InputNumberingPageTest = testing::DeskTest;

// Numbers left in an image whose option bit 0 is clear are not the job's; a new job has none.
TEST_F(InputNumberingPageTest, ANewJobAndAnImageWithoutNumberingListNothing) {
  auto number = [&](int input, int room) {
    f.ComboBox110.select(input);
    f.ComboBox111.select(room);
    f.CommandButton110.click();
  };
  number(4, 60);
  ASSERT_EQ(f.ListBox101.items(), Lines{"Input 4: Room 60"});
  desk.startUp();
  EXPECT_EQ(f.ListBox101.count(), 0);
  EXPECT_EQ(desk.job().inputNumbering.records[4].InputNumber, 0);

  number(4, 60);
  image::EepromImage& img = desk.session().image;
  img.put(image::map::kOperatingModeByte, 2);
  img.put(image::map::kMasterSlaveByte, job::kMaster);
  img.put(image::map::kInputNumberingPerInputBase + 7, 9);  // left over, but bit 0 is clear
  component::DecodeImage(desk.session());
  EXPECT_EQ(f.ListBox101.count(), 0);
  EXPECT_EQ(desk.job().inputNumbering.records[7].RoomNumber, 0);

  img.put(image::map::kOptionFlagsByte, 1);
  component::DecodeImage(desk.session());
  EXPECT_EQ(f.ListBox101.items(), Lines{"Input 7: Room 9"});
  EXPECT_TRUE(f.Page9.visible());
}

}  // namespace
}  // namespace pellam::editors::input_numbering
