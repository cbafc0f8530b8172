#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "support/desk.h"

// A job built through the form as a person builds it, saved, and opened in a fresh session:
// the lists show what was entered and a second save writes the same files.
namespace pellam::component {
namespace {

using testing::Desk;
using testing::TempFolder;
using Lines = std::vector<std::string>;

void confirmBoard(ui::UserForm1& f, int mode) {
  f.ComboBox48.select(2);
  f.ComboBox1.select(mode);
  f.ComboBox2.select(1);
  f.ComboBox6.select(2);
  f.CommandButton4.click();
}

std::map<std::string, std::string> folderContents(const std::filesystem::path& folder) {
  std::map<std::string, std::string> files;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    files[entry.path().filename().string()] = testing::readAll(entry.path());
  }
  return files;
}

std::vector<std::string> names(const std::map<std::string, std::string>& files) {
  std::vector<std::string> out;
  for (const auto& entry : files) out.push_back(entry.first);
  return out;
}

class FormRoundTrip : public ::testing::Test {
 protected:
  void SetUp() override { author.startUp(); }

  // Saves the author's job, opens it in the reader and saves it again beside it.
  void saveAndReopen() {
    std::string path = first.file("Job.txt");
    author.class1().Create_Pellam_Zpd(path);
    EXPECT_EQ(author.shown(), Lines{});
    reader.startUp();
    component::Class1 c = reader.class1();
    std::string zpd = first.file("Job.zpd");
    ASSERT_EQ(c.Product_Type(zpd), 1);
    c.ReadZPD_ImageFile(zpd);
    EXPECT_EQ(reader.shown(), Lines{});
    std::string again = second.file("Job.txt");
    c.Create_Pellam_Zpd(again);
    const auto saved = folderContents(first.path());
    const auto resaved = folderContents(second.path());
    ASSERT_EQ(names(saved), names(resaved));
    for (const auto& [name, bytes] : saved) {
      // The report quotes the room-link list, whose lines an opened job words its own way.
      if (name != "JobUserData.txt") {
        EXPECT_TRUE(bytes == resaved.at(name)) << name << " differs";
      }
    }
    EXPECT_EQ(saved.at("Job.zpd").size(), 32767u);
  }

  Desk author;
  Desk reader;
  ui::UserForm1& a = author.form();
  ui::UserForm1& r = reader.form();
  TempFolder first;
  TempFolder second;
};

TEST_F(FormRoundTrip, ChannelEmulation) {
  confirmBoard(a, 1);
  auto add = [&](int input, int from, int to, int level) {
    a.ComboBox26.select(input);
    a.ComboBox45.select(from);
    if (to > from) a.ComboBox46.select(to - from);
    a.ComboBox28.select(level);
    a.CommandButton19.click();
  };
  a.ComboBox27.select(6);
  a.ComboBox49.select(75);
  add(1, 1, 20, 50);
  add(1, 30, 30, 75);
  add(1, 7, 7, 10);  // splits the range in three groups
  a.ListBox9.select(20);
  a.ComboBox47.select(33);
  author.answer(ui::Answer::OK);
  a.CommandButton23.click();
  a.ComboBox27.select(240);
  a.ComboBox49.select(0);
  add(16, 1900, 2048, 100);
  add(9, 2047, 2048, 1);  // the last channel is reached only as a range's end
  EXPECT_EQ(author.shown(), (Lines{"msgbox \"Change Channel: 30  Level to  33%\" OKCancel -> OK"}));

  saveAndReopen();
  EXPECT_EQ(r.ComboBox26.listIndex(), 1) << "the first input in use is shown";
  for (int input = 1; input <= 16; ++input) {
    SCOPED_TRACE("input " + std::to_string(input));
    a.ComboBox26.select(input);
    r.ComboBox26.select(input);
    EXPECT_EQ(r.ListBox8.items(), a.ListBox8.items());
    EXPECT_EQ(r.ListBox9.items(), a.ListBox9.items());
    EXPECT_EQ(r.ComboBox27.listIndex(), a.ComboBox27.listIndex());
    EXPECT_EQ(r.ComboBox49.listIndex(), a.ComboBox49.listIndex());
  }
  r.ComboBox26.select(1);
  EXPECT_EQ(r.ListBox9.item(20), "Channel :30 @ % 33");
  EXPECT_EQ(r.Label43.caption(), "Fade Rate: 5 Seconds");
  r.ComboBox26.select(16);
  EXPECT_EQ(r.ListBox8.count(), 149) << "1900..2048";
}

TEST_F(FormRoundTrip, RoomLink) {
  confirmBoard(a, 2);
  const int links[][3] = {{9, 12, 13}, {2, 3, 4}, {16, 255, 1}};
  for (const auto& link : links) {
    a.ComboBox7.select(link[0]);
    a.ComboBox8.select(link[1]);
    a.ComboBox9.select(link[2]);
    a.CommandButton2.click();
  }
  // Choosing an input that has no link yet says so before it is linked.
  EXPECT_EQ(author.shown(), (Lines{"msgbox \"No Entry for Input 9\" OK", "msgbox \"No Entry for Input 2\" OK",
                                   "msgbox \"No Entry for Input 16\" OK"}));
  saveAndReopen();
  EXPECT_EQ(r.ListBox4.items(), (Lines{"Input:2,Links Rooms,3,and,4", "Input:9,Links Rooms,12,and,13",
                                      "Input:16,Links Rooms,255,and,1"}));
  r.ListBox4.select(2);
  EXPECT_EQ(r.ComboBox7.listIndex(), 16);
  EXPECT_EQ(r.ComboBox8.listIndex(), 255);
}

TEST_F(FormRoundTrip, RoomCombine) {
  confirmBoard(a, 3);
  auto combine = [&](int room, int group, int channel) {
    a.ComboBox36.select(room);
    a.ComboBox37.select(group);
    a.ComboBox38.select(channel);
    a.CommandButton11.click();
  };
  combine(5, 3, 12);
  combine(5, 4, 1);
  combine(255, 255, 2048);
  combine(7, 3, 100);
  a.ComboBox30.select(4);
  a.ComboBox31.select(5);
  a.ComboBox32.select(7);
  a.CommandButton7.click();
  a.CommandButton30.click();
  author.shown();

  saveAndReopen();
  EXPECT_EQ(r.ListBox1.items(), a.ListBox1.items());
  EXPECT_EQ(r.ListBox1.items(), (Lines{"Room 5,  Group 4, Channel:1", "Room 5,  Group 3, Channel:12",
                                      "Room 7,  Group 3, Channel:100", "Room 255,  Group 255, Channel:2048"}));
  EXPECT_EQ(r.ListBox2.items(), Lines{"Input:4,Links Rooms,5,and,7"});
}

}  // namespace
}  // namespace pellam::component
