#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <fstream>
#include <algorithm>
#include <map>
#include <random>
#include <set>
#include <tuple>

#include "component/job_files.h"
#include "component/operating_modes.h"
#include "image/memory_map.h"
#include "support/desk.h"

namespace pellam::files {
namespace {

namespace fs = std::filesystem;
using testing::Desk;
using testing::okBox;
using testing::TempFolder;
using testing::readAll;
using Lines = std::vector<std::string>;

std::map<std::string, std::string> folderContents(const fs::path& folder) {
  std::map<std::string, std::string> files;
  for (const auto& entry : fs::directory_iterator(folder)) {
    files[entry.path().filename().string()] = entry.is_directory() ? "<folder>" : readAll(entry.path());
  }
  return files;
}

// The first differing file and offset: a whole image in a failure message helps nobody.
std::string firstDifference(const std::map<std::string, std::string>& a, const std::map<std::string, std::string>& b) {
  if (a.size() != b.size()) return "different files";
  for (const auto& [name, bytes] : a) {
    const std::string& other = b.count(name) ? b.at(name) : std::string("<missing>");
    const auto at = std::mismatch(bytes.begin(), bytes.end(), other.begin(), other.end());
    if (at.first != bytes.end() || at.second != other.end()) return name + " at " + std::to_string(at.first - bytes.begin());
  }
  return "";
}

// The board option a job of `mode` is built with, so that each of the three is reopened.
ui::OptionButton& boardOption(ui::UserForm1& f, int mode) {
  ui::OptionButton* options[] = {&f.OptionButton7, &f.OptionButton8, &f.OptionButton9};
  return *options[mode % 3];
}

// A master board of the given mode with input scan, a refresh rate and input numbering, master
// inputs and remote commands, and a table for the mode filled as its editor would.
void buildJob(Desk& desk, int mode) {
  ui::UserForm1& f = desk.form();
  desk.chooseBoard(mode, mode == 1 || mode == 4 ? 5 : 2);
  f.OptionButton4.choose();
  boardOption(f, mode).choose();
  f.ComboBox55.select(190);
  f.OptionButton1.choose();

  job::Job& job = desk.job();
  job.inputNumbering.records[1] = {1, 40};
  job.inputNumbering.records[2] = {2, 41};
  job.masterInputs.entries = {1, 0, 2, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 3};
  job.remoteCommands.blocks[2].Mode = 2;
  job.remoteCommands.blocks[2].Page = 3;
  job.remoteCommands.blocks[2].Listed[5] = 5;
  job.remoteCommands.blocks[2].Value[5] = 7;
  switch (mode) {
    case 1: {
      auto& one = job.channelEmulation.records[3];
      auto& two = job.channelEmulation.records[19];
      one.InputNumber = 3;
      one.PartnerIndex = 19;
      one.FadeRate = 61;
      two.FadeRate = 12;
      for (int s = 0; s < 20; ++s) {
        one.Channels[static_cast<std::size_t>(s)] = two.Channels[static_cast<std::size_t>(s)] = static_cast<std::int16_t>(100 + s);
        one.Levels[static_cast<std::size_t>(s)] = static_cast<std::int16_t>(s < 10 ? 75 : 40);
      }
      one.Channels[5] = two.Channels[5] = -1;  // a deleted slot stays a hole
      one.Channels[20] = two.Channels[20] = 2048;
      two.Levels[20] = 100;
      break;
    }
    case 4:
      job.presetEmulation.at(4, 2) = {5, 10, 17, 2, 0};
      job.presetEmulation.at(7, 2) = {8, 9, 16, 200, 1};
      job.presetEmulation.at(0, 16) = {1, 11, 3, 0, 0};
      job.presetEmulation.at(126, 18) = {127, 7, 1, 0, 0};
      break;
    default:
      job.roomLink.records[2] = {3, 12, 13, 0};
      job.roomLink.records[16] = {17, 1, 255, 1};
      job.stationLink.records[1] = {1, 10, 7, 2};
      job.stationLink.records[21] = {21, 9, 4, 0};
      job.stationLink.records[127] = {127, 14, 255, 1};
      job.stationPersonality.records[20] = {21, 9, 3, 0, 4};
      job.stationPersonality.records[126] = {127, 10, 2, 0, 1};
      if (mode == 3) {
        job.roomCombine.records[12] = {12, 3, 5, 1};
        job.roomCombine.records[2048] = {2048, 255, 255, 2};
        job.board.FurtherOption = 9;
        // Labels have no place in the image: they go beside it, any text kept whole.
        job.roomGroupNames.names[4] = {"Lobby", "", "Front\\desk\tA\r\n", 7};
        job.roomGroupNames.names[255] = {"Ballroom", "Stage", "", 0};
      }
      // Tables filled by hand are listed as an opened job lists them: the report prints the list.
      desk.session().roomLinkPage.listDecodedFor(mode);
      desk.session().stationLinkPage.listDecoded();
  }
}

void save(Desk& desk, const std::string& jobPath) {
  std::string path = jobPath;
  desk.class1().Create_Pellam_Zpd(path);
}

void open(Desk& desk, const std::string& zpd) {
  component::Class1 c = desk.class1();
  std::string path = zpd;
  ASSERT_EQ(c.Product_Type(path), 1);
  c.ReadZPD_ImageFile(path);
}

TEST(SaveAndOpen, EveryModeWritesItsOwnFilesAndSurvivesAReopen) {
  // The files each mode writes beside its image.
  const std::map<int, std::set<std::string>> besides = {
      {1, {".txt"}},
      {2, {".txt"}},
      {3, {"UserData.txt", "LnkData.txt", "NetData.txt", "GrpRoom.txt", "Labels.txt"}},
      {4, {"PreSetData.txt"}},
      {5, {"LnkData.txt", "NetData.txt"}},
  };
  for (const auto& [mode, suffixes] : besides) {
    SCOPED_TRACE("mode " + std::to_string(mode));
    TempFolder first, second;
    first.write("Lobby.zpd", std::string(40000, 'x'));  // a longer file is replaced whole
    Desk author;
    author.startUp();
    buildJob(author, mode);
    save(author, first.file("Lobby.txt"));
    EXPECT_TRUE(author.shown().empty());
    EXPECT_EQ(author.session().currentJobFile, first.file("Lobby.zpd"));
    EXPECT_EQ(author.form().Label144.caption(), first.file("Lobby.zpd"));
    // The mode's list of its files is what Save As checks before it replaces any.
    std::set<std::string> listed(component::operatingMode(mode)->fileSuffixes.begin(),
                                 component::operatingMode(mode)->fileSuffixes.end());
    if (mode == 3) listed.insert("Labels.txt");
    EXPECT_EQ(listed, suffixes);

    Desk reader;
    reader.startUp();
    open(reader, first.file("Lobby.zpd"));
    EXPECT_TRUE(reader.shown().empty());
    save(reader, second.file("Lobby.txt"));

    const auto written = folderContents(first.path());
    std::set<std::string> names, expected = {"Lobby.zpd"};
    for (const auto& [name, bytes] : written) names.insert(name);
    for (const std::string& suffix : suffixes) expected.insert("Lobby" + suffix);
    EXPECT_EQ(names, expected);
    EXPECT_EQ(firstDifference(written, folderContents(second.path())), "");
    EXPECT_EQ(written.at("Lobby.zpd").size(), 32767u);
    EXPECT_EQ(written.at("Lobby.zpd")[6101], 11);

    // The same files again mean the reader holds every saved value; the form must show them too.
    EXPECT_EQ(reader.form().ComboBox55.text(), "10 Minutes");
    EXPECT_TRUE(boardOption(reader.form(), mode).value());
    const ui::Page* modePage[] = {nullptr, &reader.form().Page2, &reader.form().Page3, &reader.form().Page4,
                                  &reader.form().Page5, &reader.form().Page6};
    EXPECT_TRUE(modePage[mode]->visible());
    EXPECT_EQ(reader.form().ListBox12.items(), mode == 3 ? Lines({"4: Lobby", "255: Ballroom"}) : Lines{});
    EXPECT_EQ(reader.form().ComboBox58.items(), mode == 3 ? Lines({"255: Stage"}) : Lines{});
    // The room-combine report is read from its file, not made again.
    EXPECT_EQ(reader.session().companionReport, mode == 3 ? written.at("LobbyUserData.txt") : "");
  }
}

// One person saves a job, another opens it.
class SaveOpen : public ::testing::Test {
 protected:
  void SetUp() override {
    author.startUp();
    reader.startUp();
  }
  // The author's job of `mode`, saved as NAME.txt: its image.
  std::string saved(int mode, const std::string& name = "a") {
    buildJob(author, mode);
    save(author, folder.file(name + ".txt"));
    return folder.file(name + ".zpd");
  }
  Desk author, reader;
  TempFolder folder;
};

TEST_F(SaveOpen, AnEmptyTableWritesOnlyTheFileEnd) {
  author.form().ComboBox1.select(2);
  save(author, folder.file("a.txt"));
  EXPECT_EQ(readAll(folder.path() / "a.txt"), "\r\n\r\n");
}

// Whatever stops a save, the old job stays whole and nothing of the new one is left.
TEST_F(SaveOpen, AFailedSaveLeavesTheOldJobAsItWas) {
  buildJob(author, 5);
  struct Case {
    const char* obstacle;
    std::function<void(const fs::path&)> make;
    std::string message;
  };
  const Case cases[] = {
      {"aNetData.txt.pellam-new", [](const fs::path& p) { fs::create_directory(p); }, "Cannot Write File: "},
      {"aNetData.txt", [](const fs::path& p) { fs::create_directory(p); }, "Cannot Write File: "},
      {"aNetData.txt", [](const fs::path& p) {
         std::ofstream(p) << "old stations";
         fs::permissions(p, fs::perms::owner_read | fs::perms::group_read);
       }, "Read-Only File Not Replaced: "},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.obstacle);
    TempFolder folder;
    folder.write("a.zpd", "the old job");
    folder.write("aLnkData.txt", "old links");
    c.make(folder.path() / c.obstacle);
    const auto before = folderContents(folder.path());
    save(author, folder.file("a.txt"));
    EXPECT_EQ(author.shown(), Lines{okBox(c.message + folder.file("aNetData.txt"))});
    EXPECT_EQ(firstDifference(folderContents(folder.path()), before), "");
  }
}

// A save killed at any moment is finished or undone when the job is next opened: the files
// left on the disk in the middle of a save are laid out here by hand.
TEST_F(SaveOpen, AnInterruptedSaveIsFinishedOrUndoneWhenTheJobIsNextOpened) {
  saved(5);
  const auto fresh = folderContents(folder.path());
  struct Case {
    const char* record;
    std::map<std::string, std::string> files;  // besides the record
    bool finished;
  };
  const std::string zpd = fresh.at("a.zpd");
  const Case cases[] = {
      // Interrupted while the new files were written: undone.
      {"prepared\n+LnkData.txt\n+NetData.txt\n+.zpd\n",
       {{"aLnkData.txt.pellam-new", "half"}, {"aLnkData.txt", "old links"}, {"aNetData.txt", "old stations"}, {"a.zpd", "old"}},
       false},
      // Interrupted between two renames: finished, a target missing for a moment included.
      {"committed\n+LnkData.txt\n+NetData.txt\n-.zpd\n",
       {{"aLnkData.txt", fresh.at("aLnkData.txt")}, {"aLnkData.txt.pellam-old", "old links"},
        {"aNetData.txt.pellam-old", "old stations"}, {"aNetData.txt.pellam-new", fresh.at("aNetData.txt")},
        {"a.zpd.pellam-new", zpd}},
       true},
      // Interrupted after an old labels file was set aside: finished, the labels gone.
      {"committed\n+LnkData.txt\n+NetData.txt\n+.zpd\nxLabels.txt\n",
       {{"aLnkData.txt", fresh.at("aLnkData.txt")}, {"aNetData.txt", fresh.at("aNetData.txt")}, {"a.zpd", zpd},
        {"aLabels.txt.pellam-old", "room\t4\tLobby\n"}},
       true},
      // Interrupted while undoing a rename that failed: undone, the new image taken away.
      {"prepared\n+LnkData.txt\n+NetData.txt\n-.zpd\n",
       {{"aLnkData.txt", fresh.at("aLnkData.txt")}, {"aLnkData.txt.pellam-old", "old links"},
        {"aNetData.txt", "old stations"}, {"a.zpd", zpd}},
       false},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.record);
    TempFolder folder;
    folder.write("a.pellam-save", c.record);
    folder.write("a.pellam-save.pellam-new", "a record never finished");
    for (const auto& [name, bytes] : c.files) folder.write(name, bytes);
    std::string path = folder.file("a.zpd");
    reader.answer(ui::Answer::No);
    reader.class1().Product_Type(path);
    reader.shown();
    auto expected = c.finished ? fresh : std::map<std::string, std::string>{{"aLnkData.txt", "old links"}, {"aNetData.txt", "old stations"}};
    if (!c.finished && c.files.count("a.zpd") && c.files.at("a.zpd") == "old") expected["a.zpd"] = "old";
    EXPECT_EQ(firstDifference(folderContents(folder.path()), expected), "");
  }
}

// A refused save takes away the folders it made, even a path too long for the system.
TEST_F(SaveOpen, NoFolderIsLeftBehind) {
  buildJob(author, 5);
  std::string deep = folder.path().string();
  for (int level = 0; level < 20; ++level) deep += "/" + std::string(250, 'd');
  author.answer(ui::Answer::Yes);
  save(author, deep + "/a.txt");
  author.answer(ui::Answer::Yes);
  save(author, folder.file("made/a.doc"));
  EXPECT_EQ(author.shown(), (Lines{"msgbox \"Folder not Found! Create Folder?\" YesNo -> Yes", okBox("Directory Not Found"),
                                   "msgbox \"Folder not Found! Create Folder?\" YesNo -> Yes",
                                   okBox("File extension must be .txt")}));
  EXPECT_TRUE(fs::is_empty(folder.path()));
}

TEST_F(SaveOpen, AShortFileLeavesTheRestZeroAndALongOneIsCut) {
  std::string shortImage(6200, '\0');
  shortImage[6100] = 2;
  shortImage[6101] = 11;
  shortImage[5] = 9;
  open(reader, folder.write("short.zpd", shortImage));
  EXPECT_EQ(reader.session().image.at(5), 9);
  EXPECT_EQ(reader.session().image.at(6400), 0);
  EXPECT_EQ(reader.job().board.HardwareType, 2);

  std::string longImage(40000, '\x07');
  longImage[6101] = 11;
  open(reader, folder.write("long.zpd", longImage));
  EXPECT_EQ(reader.session().image.at(32766), 7);
  EXPECT_EQ(reader.session().image.at(32767), 0) << "only 32,767 bytes are read";
}

TEST_F(SaveOpen, AnEmptyOrMissingFileIsRefusedAndChangesNothing) {
  reader.session().image.put(6400, 4);
  reader.job().roomLink.records[3].LinkInput = 4;
  std::string missing = folder.file("missing.zpd");
  reader.class1().ReadZPD_ImageFile(missing);
  EXPECT_EQ(reader.shown(), Lines{okBox("Cannot Open File: " + missing)});
  EXPECT_EQ(reader.session().image.at(6400), 4);
  EXPECT_EQ(reader.job().roomLink.records[3].LinkInput, 4);

  std::string empty = folder.write("empty.zpd", "");
  reader.answer(ui::Answer::No);
  EXPECT_EQ(reader.class1().Product_Type(empty), -1);
  EXPECT_EQ(reader.job().roomLink.records[3].LinkInput, 4) << "a foreign file answered No leaves the tables";
}

// Only an image this program saved, under the name its save gives, is saved again in place.
TEST_F(SaveOpen, OnlyAJobImageOfOursBecomesTheSaveTarget) {
  saved(2, "Hall");
  EXPECT_EQ(author.session().saveTarget, folder.file("Hall.txt"));
  fs::copy_file(folder.path() / "Hall.zpd", folder.path() / "Hall.v2.zpd");
  folder.write("Lobby.txt", "P,1,I,1,notes of another program\r\n");
  const std::pair<std::string, std::string> cases[] = {
      {"Hall.zpd", folder.file("Hall.txt")}, {"Lobby.txt", ""}, {"Hall.v2.zpd", ""}};
  for (const auto& [file, target] : cases) {
    SCOPED_TRACE(file);
    reader.answer(ui::Answer::Yes);
    open(reader, folder.file(file));
    reader.shown();
    EXPECT_EQ(reader.session().saveTarget, target);
  }
  reader.startUp();
  EXPECT_EQ(reader.session().saveTarget, "") << "a new job has none";
}

// Labels written by a save are read back; a job without labels leaves no file of them, and a
// damaged line is named while the others are kept.
TEST_F(SaveOpen, LabelsComeBackAndNoLabelsLeaveNoFile) {
  const std::string labels = "room\t4\tLobby\r\ngroup\t300\tToo far\r\nname\t4\t7\tFront\n";
  folder.write("aLabels.txt", labels);
  const std::string zpd = saved(2);
  EXPECT_FALSE(fs::exists(folder.path() / "aLabels.txt")) << "an old labels file goes with the save";

  folder.write("aLabels.txt", labels);
  open(reader, zpd);
  EXPECT_EQ(reader.shown(), Lines{okBox("Labels Not Read: " + folder.file("aLabels.txt") + " Line 2")});
  const job::RoomGroupName& room = reader.job().roomGroupNames.names[4];
  EXPECT_EQ(std::tie(room.RoomLabel, room.RoomName, room.RoomValue), std::make_tuple("Lobby", "Front", 7));
  EXPECT_EQ(reader.form().ListBox12.items(), Lines{"4: Lobby"});
  fs::remove(folder.path() / "aLabels.txt");
  open(reader, zpd);
  EXPECT_EQ(reader.form().ListBox12.count(), 0) << "an opened job keeps no label of the last one";
}

TEST_F(SaveOpen, StationsOnNumberedRoomsSurviveAndNumberingAddsNone) {
  buildJob(author, 5);
  for (std::int16_t i = 1; i <= 16; ++i) author.job().inputNumbering.records[static_cast<std::size_t>(i)] = {i, i};
  author.job().stationLink.records[2] = {2, 9, 6, 0};
  author.job().stationLink.records[3] = {3, 10, 7, 0};
  save(author, folder.file("a.txt"));
  open(reader, folder.file("a.zpd"));
  std::vector<int> netIds;
  for (const auto& r : reader.job().stationLink.records) {
    if (r.LinkNetId > 0) netIds.push_back(r.LinkNetId);
  }
  EXPECT_EQ(netIds, (std::vector<int>{1, 2, 3, 21, 127}));
  EXPECT_EQ(reader.job().inputNumbering.records[5].InputNumber, 5);
  EXPECT_EQ(reader.job().inputNumbering.records[5].RoomNumber, 5);
}

TEST_F(SaveOpen, AnInputThatCannotBeStoredIsNamedAndTheOthersAreKept) {
  buildJob(author, 1);
  auto& crowded = author.job().channelEmulation.records[2];
  for (std::size_t s = 0; s < 150; ++s) {
    crowded.Channels[s] = static_cast<std::int16_t>(1 + 2 * s);  // 150 scattered channels
    crowded.Levels[s] = static_cast<std::int16_t>(s % 2 * 50);
  }
  save(author, folder.file("a.txt"));
  EXPECT_EQ(author.shown(), Lines{okBox("Error module WriteChannelEmulation Input 2")});
  open(reader, folder.file("a.zpd"));
  EXPECT_EQ(reader.job().channelEmulation.records[3].ChannelCount, 20) << "input 3 after it is packed";
  EXPECT_EQ(reader.job().channelEmulation.records[3].FadeRate, 61);
}

// A board image whose second bank holds inputs 19 and 20 keeps them through an open and a save,
// while the action two that the job gives input 3 is never written.
TEST_F(SaveOpen, SecondBankInputsOfAnImageAreKeptAndActionTwoIsNotWritten) {
  std::string image = readAll(saved(1));
  EXPECT_EQ(image.substr(20900, 300), std::string(300, '\0')) << "action two of input 3";
  EXPECT_EQ(readAll(folder.path() / "a.txt").find("P,2"), std::string::npos);

  const auto put = [&](int base, const std::vector<int>& bytes) {
    for (std::size_t i = 0; i < bytes.size(); ++i) image[static_cast<std::size_t>(base) + i] = static_cast<char>(bytes[i]);
  };
  put(20900, {9, 0, 3, 2, 60, 0, 50, 0, 52, 1, 80, 0, 54});  // input 19
  put(21200, {4, 0, 1, 1, 30, 0, 7});                        // input 20; input 4 is not in use
  open(reader, folder.write("b.zpd", image));
  save(reader, folder.file("b.txt"));
  EXPECT_EQ(readAll(folder.path() / "b.zpd"), image);
  const std::string text = readAll(folder.path() / "b.txt");
  EXPECT_NE(text.find(":\r\n\r\n\r\nP,2,I,3,F,9,\r\nL,60,C,50,52,\r\nL,80,C,54,:"), std::string::npos) << text;
  EXPECT_EQ(text.find("P,2,I,4"), std::string::npos) << "written only after its first-bank partner";
  EXPECT_TRUE(reader.shown().empty());
}

TEST_F(SaveOpen, ALargeTimerAndTheScanBytesComeBackWhole) {
  buildJob(author, 3);
  // Timers in twentieths of a second, and the refresh list's item: seconds up to 180, then whole
  // minutes up to 20; no item for any other.
  for (const auto& [timer, item] : {std::pair{3600, 180}, {3620, -1}, {4800, 184}, {24000, 200}, {25200, -1}}) {
    author.job().board.RefreshRate = timer;
    save(author, folder.file("t.txt"));
    open(reader, folder.file("t.zpd"));
    EXPECT_EQ(reader.form().ComboBox55.listIndex(), item) << timer;
  }
  author.job().board.RefreshRate = 65535;
  save(author, folder.file("a.txt"));
  reader.job().board.FurtherOption = 44;
  open(reader, folder.file("a.zpd"));
  EXPECT_EQ(reader.job().board.RefreshRate, 65535);
  EXPECT_EQ(reader.form().ComboBox55.listIndex(), -1) << "no list item says 3277 seconds";
  EXPECT_EQ(reader.job().board.FurtherOption, 9);

  open(reader, saved(2, "b"));
  EXPECT_EQ(reader.job().board.FurtherOption, 0) << "nothing is left over from the job before";
}

// Random images must decode and save again without a crash or a sanitizer report.
TEST(SaveAndOpenFuzz, RandomImagesDecodeAndSave) {
  std::mt19937 random(20261123);
  TempFolder folder;
  Desk desk;
  desk.startUp();
  for (int round = 0; round < 2000; ++round) {
    auto bytes = desk.session().image.bytes();
    for (int i = 0; i < image::map::kZpdSize; ++i) bytes[static_cast<std::size_t>(i)] = static_cast<std::uint8_t>(random());
    if (round % 2 == 0) bytes[image::map::kOperatingModeByte] = static_cast<std::uint8_t>(round % 7);
    component::DecodeImage(desk.session());
    if (round % 10 == 0) {
      desk.answer(ui::Answer::No);
      component::SaveJobSequence(desk.session(), folder.file("fuzz.txt"), "Directory Not Found");
    }
    desk.shown();
  }
  SUCCEED();
}

}  // namespace
}  // namespace pellam::files
