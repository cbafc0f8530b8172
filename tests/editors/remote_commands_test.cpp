#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "component/job_files.h"
#include "support/desk.h"

// The page as a person walks it, and a job saved and opened again, are in
// tests/scripts/remote_commands; an image without entries needs a job opened over another.
namespace pellam::editors::remote_commands {
namespace {

TEST(RemoteCommandsPageTest, AnImageWithoutEntriesShowsNoneAndTheDisabledMode) {
  testing::Desk desk;
  desk.startUp();
  ui::UserForm1& f = desk.form();
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
