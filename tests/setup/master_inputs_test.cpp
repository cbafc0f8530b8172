#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "component/job_files.h"
#include "image/memory_map.h"
#include "setup/master_inputs.h"
#include "support/desk.h"

namespace pellam::setup {
namespace {

using testing::TempFolder;
using testing::readAll;
using Lines = std::vector<std::string>;

class MasterInputsTest : public testing::DeskTest {
 protected:
  // A channel-emulation master, whose action list ends with "Latch Unlatch" at 5.
  void confirmBoard(int action) {
    desk.chooseBoard(1, action);
    f.CommandButton4.click();
  }

  std::string save(const std::string& name) {
    std::string path = folder.file(name + ".txt");
    desk.class1().Create_Pellam_Zpd(path);
    return readAll(folder.path() / (name + ".zpd"));
  }

  static int byteAt(const std::string& bytes, int offset) { return static_cast<unsigned char>(bytes[static_cast<std::size_t>(offset)]); }

  TempFolder folder;
};

// The list, its refusals and a save and open are walked through in tests/scripts/master_inputs.
TEST(MasterInputLine, AValueFromAForeignImageIsStillShown) { EXPECT_EQ(masterInputLine(4, 9), "Input 4: Value 9"); }

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
