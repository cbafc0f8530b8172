#include <QGroupBox>
#include <QListWidget>
#include <gmock/gmock.h>

#include "form_driver.h"

namespace pellam::qt::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(EditorPageWidgets, ChannelEmulationAddsARangeAtALevel) {
  FormDriver app;
  app.confirmBoard(1);
  app.showPage("Page2");
  app.choose("ComboBox26", 2);
  app.choose("ComboBox27", 61);
  app.choose("ComboBox49", 1);
  app.choose("ComboBox45", 10);
  app.choose("ComboBox46", 3);
  app.choose("ComboBox28", 40);
  app.click("CommandButton19");
  EXPECT_THAT(app.boxes.seen, IsEmpty());
  EXPECT_EQ(app.shownText("Label43"), "Fade Rate: 1 Minutes");
  EXPECT_THAT(app.lines("ListBox8"), ElementsAre("Channel :10 @ % 40", "Channel :11 @ % 40", "Channel :12 @ % 40",
                                                 "Channel :13 @ % 40"));
  EXPECT_EQ(app.form().ListBox8.count(), 4);
}

TEST(EditorPageWidgets, RoomLinkKeepsTheListWhenTheQuestionIsCancelled) {
  FormDriver app;
  app.confirmBoard(2);
  app.showPage("Page3");
  app.choose("ComboBox7", 3);
  app.choose("ComboBox8", 2);
  app.choose("ComboBox9", 5);
  app.click("CommandButton2");
  app.choose("ComboBox7", 1);
  app.choose("ComboBox8", 4);
  app.choose("ComboBox9", 4);
  app.boxes.queue(QMessageBox::Cancel);
  app.click("CommandButton2");
  EXPECT_THAT(app.boxes.seen,
              ElementsAre("msgbox \"No Entry for Input 3\" -> OK", "msgbox \"No Entry for Input 1\" -> OK",
                          "msgbox \"Link Error Room Numbers Equal\" -> Cancel"));
  EXPECT_THAT(app.lines("ListBox4"), ElementsAre("Input:3  Links Rooms:  2 and 5"));
}

TEST(EditorPageWidgets, RoomCombineTakesAChannelFromALongList) {
  FormDriver app;
  app.confirmBoard(3);
  app.showPage("Page4");
  app.choose("ComboBox36", 5);
  app.choose("ComboBox37", 3);
  app.choose("ComboBox38", 1500);  // far down a list of thousands
  app.click("CommandButton11");
  EXPECT_THAT(app.boxes.seen, IsEmpty());
  EXPECT_THAT(app.lines("ListBox1"), ElementsAre("Room 5,  Group 3, Channel:1500"));
}

TEST(EditorPageWidgets, PresetEmulationAddsAStationToAKxInput) {
  FormDriver app;
  app.confirmBoard(4);
  app.showPage("Page5");
  app.choose("ComboBox41", 4);
  app.choose("ComboBox42", 2);
  app.choose("ComboBox39", 1);
  app.choose("ComboBox40", 16);
  app.choose("ComboBox44", 1);
  app.click("CommandButton1");
  EXPECT_THAT(app.boxes.seen, ElementsAre("msgbox \"No entries found\" -> OK"));
  EXPECT_EQ(app.shownText("Label41"), "KX Input: 2");
  EXPECT_THAT(app.lines("ListBox5"), ElementsAre("T3100 LCD  NetId: 5  Personality  2  Max On"));
}

TEST(EditorPageWidgets, StationLinkAddsAndDeletesAfterYes) {
  FormDriver app;
  app.confirmBoard(5);
  app.showPage("Page6");
  app.choose("ComboBox35", 12);
  app.choose("ComboBox34", 2);
  app.choose("ComboBox33", 4);
  app.click("CommandButton8");
  EXPECT_THAT(app.lines("ListBox3"), ElementsAre("Room: 4 T6600 LCD  NetId: 12"));
  app.clickLine("ListBox3", 0);
  app.boxes.queue(QMessageBox::Yes);
  app.click("CommandButton21");
  EXPECT_THAT(app.boxes.seen, ElementsAre("msgbox \"Delete NetId 12\" -> Yes"));
  EXPECT_THAT(app.lines("ListBox3"), IsEmpty());
}

TEST(EditorPageWidgets, RemoteCommandsAddAButtonCommand) {
  FormDriver app;
  app.confirmBoard(1);
  app.showPage("Page7");
  app.click("OptionButton13");
  EXPECT_EQ(app.shownText("Frame104"), "Remote To Buttons");
  app.choose("ComboBox68", 7);
  app.choose("ComboBox69", 3);
  app.choose("ComboBox70", 2);
  app.clickLine("ListBox17", 3);
  app.click("CommandButton38");
  EXPECT_THAT(app.boxes.seen, ElementsAre("msgbox \"No Entries\" -> OK"));
  EXPECT_EQ(app.shownText("Label70"), "Input 3 Page 2");
  EXPECT_THAT(app.lines("ListBox19"), ElementsAre("NetId 7 Btn 4"));
}

TEST(EditorPageWidgets, NamingLabelsARoomFromTypedText) {
  FormDriver app;
  app.confirmBoard(3);
  app.showPage("Page8");
  app.type("TextBox103", "Lobby");
  EXPECT_EQ(app.form().TextBox103.text(), "Lobby");
  app.choose("ComboBox101", 4);
  app.click("CommandButton33");
  EXPECT_THAT(app.boxes.seen, IsEmpty());
  EXPECT_THAT(app.lines("ListBox12"), ElementsAre("4: Lobby"));
}

TEST(EditorPageWidgets, InputNumberingAppearsWithInputScan) {
  FormDriver app;
  app.confirmBoard(2);
  EXPECT_FALSE(app.tabShown(8));
  app.click("OptionButton4");
  app.choose("ComboBox55", 30);
  app.click("CommandButton4");
  app.showPage("Page9");
  app.choose("ComboBox110", 3);
  app.choose("ComboBox111", 41);
  app.click("CommandButton110");
  EXPECT_THAT(app.boxes.seen, IsEmpty());
  EXPECT_THAT(app.lines("ListBox101"), ElementsAre("Input 3: Room 41"));
}

}  // namespace
}  // namespace pellam::qt::testing
