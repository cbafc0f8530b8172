#include <QMessageBox>
#include <gmock/gmock.h>
#include <variant>

#include "form_driver.h"

namespace pellam::qt::testing {
namespace {

using ::testing::ElementsAreArray;

// What a person does on a page, one action a step.
struct Choose {
  const char* combo;
  int index;
};
struct Click {
  const char* button;
};
struct ClickLine {
  const char* list;
  int row;
};
// The answer for the next message box that offers a choice.
struct Answer {
  QMessageBox::StandardButton button;
};
using Step = std::variant<Choose, Click, ClickLine, Answer>;

void act(FormDriver& app, const Choose& s) { app.choose(s.combo, s.index); }
void act(FormDriver& app, const Click& s) { app.click(s.button); }
void act(FormDriver& app, const ClickLine& s) { app.clickLine(s.list, s.row); }
void act(FormDriver& app, const Answer& s) { app.boxes.queue(s.button); }

struct PageCase {
  const char* name;
  int mode;
  std::vector<Step> onBoardPage;  // after the board is confirmed, before the page is shown
  const char* page;
  std::vector<Step> steps;
  std::vector<std::string> boxes;
  const char* list;
  std::vector<QString> lines;
  std::vector<std::pair<const char*, QString>> captions;  // what labels and frames show at the end
};

void PrintTo(const PageCase& c, std::ostream* out) { *out << c.name; }

const PageCase kPages[] = {
    {"ChannelEmulationAddsARangeAtALevel", 1, {}, "Page2",
     {Choose{"ComboBox26", 2}, Choose{"ComboBox27", 61}, Choose{"ComboBox49", 1}, Choose{"ComboBox45", 10},
      Choose{"ComboBox46", 3}, Choose{"ComboBox28", 40}, Click{"CommandButton19"}},
     {},
     "ListBox8",
     {"Channel :10 @ % 40", "Channel :11 @ % 40", "Channel :12 @ % 40", "Channel :13 @ % 40"},
     {{"Label43", "Fade Rate: 1 Minutes"}}},
    {"RoomCombineTakesAChannelFromALongList", 3, {}, "Page4",
     // Far down a list of thousands.
     {Choose{"ComboBox36", 5}, Choose{"ComboBox37", 3}, Choose{"ComboBox38", 1500}, Click{"CommandButton11"}},
     {},
     "ListBox1",
     {"Room 5,  Group 3, Channel:1500"},
     {}},
    {"StationLinkDeletesAfterYes", 5, {}, "Page6",
     {Choose{"ComboBox35", 12}, Choose{"ComboBox34", 2}, Choose{"ComboBox33", 4}, Click{"CommandButton8"},
      ClickLine{"ListBox3", 0}, Answer{QMessageBox::Yes}, Click{"CommandButton21"}},
     {"msgbox \"Delete NetId 12\" -> Yes"},
     "ListBox3",
     {},
     {}},
    {"RemoteCommandsAddAButtonCommand", 1, {}, "Page7",
     {Click{"OptionButton13"}, Choose{"ComboBox68", 7}, Choose{"ComboBox69", 3}, Choose{"ComboBox70", 2},
      ClickLine{"ListBox17", 3}, Click{"CommandButton38"}},
     {"msgbox \"No Entries\" -> OK"},
     "ListBox19",
     {"NetId 7 Btn 4"},
     {{"Frame104", "Remote To Buttons"}, {"Label70", "Input 3 Page 2"}}},
        // The input scan brings the numbering page.
    {"InputNumberingNumbersAnInput", 2, {Click{"OptionButton4"}, Choose{"ComboBox55", 30}, Click{"CommandButton4"}},
     "Page9",
     {Choose{"ComboBox110", 3}, Choose{"ComboBox111", 41}, Click{"CommandButton110"}},
     {},
     "ListBox101",
     {"Input 3: Room 41"},
     {}},
};

class EditorPageWidgets : public ::testing::TestWithParam<PageCase> {};

// Each editor page driven through its widgets as a person would: the boxes they are shown, and
// the list and captions they end up with, drawn from the form. The widgets are made per kind of
// control, not per page: the cases between them use every kind and every way of using one (a
// typed label is the recovery case's, a cancelled question the dialogs' own).
TEST_P(EditorPageWidgets, PersonSeesWhatThePageDid) {
  const PageCase& c = GetParam();
  FormDriver app;
  app.confirmBoard(c.mode);
  auto run = [&](const std::vector<Step>& steps) {
    for (const Step& step : steps) {
      std::visit([&](const auto& s) { act(app, s); }, step);
      if (HasFatalFailure()) return false;
    }
    return true;
  };
  if (!run(c.onBoardPage)) return;
  app.showPage(c.page);
  if (!run(c.steps)) return;
  EXPECT_THAT(app.boxes.seen, ElementsAreArray(c.boxes));
  EXPECT_THAT(app.lines(c.list), ElementsAreArray(c.lines));
  QStringList held;
  for (const std::string& line : static_cast<ui::ListControl*>(app.form().find(c.list))->items())
    held << QString::fromStdString(line);
  EXPECT_EQ(app.lines(c.list), held) << "the list shows what the form holds";
  for (const auto& [control, caption] : c.captions) EXPECT_EQ(app.shownText(control), caption) << control;
}

INSTANTIATE_TEST_SUITE_P(Pages, EditorPageWidgets, ::testing::ValuesIn(kPages),
                         [](const auto& info) { return std::string(info.param.name); });

}  // namespace
}  // namespace pellam::qt::testing
