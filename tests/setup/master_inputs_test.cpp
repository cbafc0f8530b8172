#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "component/job_files.h"
#include "image/memory_map.h"
#include "setup/master_inputs.h"
#include "support/desk.h"

namespace pellam::setup {
namespace {

using testing::Desk;
using testing::TempFolder;
using testing::readAll;
using Lines = std::vector<std::string>;

class MasterInputsTest : public ::testing::Test {
 protected:
  void SetUp() override { desk.startUp(); }

  // A channel-emulation master, whose action list ends with "Latch Unlatch" at 5.
  void confirmBoard(int action) {
    f.ComboBox48.select(2);
    f.ComboBox1.select(1);
    f.ComboBox2.select(job::kMaster);
    f.ComboBox6.select(action);
    f.CommandButton4.click();
  }

  std::string save(const std::string& name) {
    std::string path = folder.file(name + ".txt");
    desk.class1().Create_Pellam_Zpd(path);
    return readAll(folder.path() / (name + ".zpd"));
  }

  void open(const std::string& name) {
    std::string path = folder.file(name + ".zpd");
    desk.class1().ReadZPD_ImageFile(path);
  }

  static int byteAt(const std::string& bytes, int offset) { return static_cast<unsigned char>(bytes[static_cast<std::size_t>(offset)]); }

  Desk desk;
  ui::UserForm1& f = desk.form();
  TempFolder folder;
};

TEST_F(MasterInputsTest, EachInputGetsOneActionAndTheBytesFollowTheList) {
  confirmBoard(1);
  EXPECT_TRUE(f.Frame28.visible());
  EXPECT_EQ(f.ListBox102.count(), 16);
  f.CommandButton113.click();
  f.ComboBox65.select(3);
  f.CommandButton113.click();
  EXPECT_EQ(desk.shown(), (Lines{"msgbox \"Input Not Selected\" OK", "msgbox \"Master Action Not Selected\" OK"}));

  f.ComboBox112.select(3);
  f.CommandButton113.click();
  f.ComboBox65.select(16);
  f.ComboBox112.select(2);
  f.CommandButton113.click();
  f.ComboBox65.select(3);
  f.ComboBox112.select(2);
  f.CommandButton113.click();  // a second choice replaces the first
  EXPECT_EQ(f.ListBox102.item(2), "Input 3: Master On");
  EXPECT_EQ(f.ListBox102.item(15), "Input 16: Master On");
  EXPECT_EQ(f.ListBox102.item(0), "Input 1: Ordinary Input");

  const std::string bytes = save("a");
  EXPECT_EQ(testing::bytesAt(desk.session().image, image::map::kMasterInputsBase, 16),
            (std::vector<int>{0, 0, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1}));
  EXPECT_EQ(byteAt(bytes, image::map::kMasterInputsBase + 2), 1);

  desk.startUp();
  EXPECT_EQ(f.ListBox102.item(2), "Input 3: Ordinary Input") << "a new job has no master input";
  open("a");
  EXPECT_EQ(f.ListBox102.item(2), "Input 3: Master On");
  f.ListBox102.select(15);
  EXPECT_EQ(f.ComboBox65.listIndex(), 16);
  EXPECT_EQ(f.ComboBox112.listIndex(), 2);
  EXPECT_EQ(masterInputLine(4, 9), "Input 4: Value 9") << "a value read from a foreign image is still shown";
}

// The companion setting comes only from an image whose offset flag is set: such a job keeps
// its flag and its action through open and save, and a new job never raises it.
TEST_F(MasterInputsTest, TheOffsetFlagSurvivesOnlyWhereAnImageSetIt) {
  confirmBoard(5);
  std::string bytes = save("plain");
  // The same board as an image with the flag: Latch Unlatch stored as 1.
  image::EepromImage& img = desk.session().image;
  for (int i = 0; i < image::map::kZpdSize; ++i) img.put(i, byteAt(bytes, i));
  img.put(image::map::kInputActionByte, 1);
  img.put(image::map::kOffsetFlagByte, 1);
  component::DecodeImage(desk.session());
  EXPECT_EQ(f.ComboBox6.text(), "Latch Unlatch");
  EXPECT_EQ(f.ComboBox64.text(), "Master Inputs On");
  bytes = save("flagged");
  EXPECT_EQ(byteAt(bytes, image::map::kInputActionByte), 1);
  EXPECT_EQ(byteAt(bytes, image::map::kOffsetFlagByte), 1);

  f.ComboBox64.select(2);
  bytes = save("off");
  EXPECT_EQ(byteAt(bytes, image::map::kInputActionByte), 5);
  EXPECT_EQ(byteAt(bytes, image::map::kOffsetFlagByte), 0);

  desk.startUp();
  confirmBoard(5);
  f.ComboBox64.select(1);
  bytes = save("new");
  EXPECT_EQ(byteAt(bytes, image::map::kInputActionByte), 5);
  EXPECT_EQ(byteAt(bytes, image::map::kOffsetFlagByte), 0) << "a new job forgets the last job's companion setting";
  EXPECT_EQ(desk.shown(), Lines{});
}

}  // namespace
}  // namespace pellam::setup
