// Every caption, combo item and list line fits its control at 96 and 144 DPI, measured with
// the system's text metrics in the message font the form's window uses, each mode with every
// page and frame shown and the lists holding their longest lines. Prints what is cut off.
#include <sstream>
#include <string>

#include <windows.h>

#include "component/class1.h"
#include "component/platform.h"
#include "component/session.h"
#include "form/win_metrics.h"
#include "support/longest_lines.h"
#include "wide_text.h"

namespace {

using namespace pellam;

void say(const std::string& line) {
  const std::string text = line + "\n";
  DWORD written = 0;
  WriteFile(GetStdHandle(STD_OUTPUT_HANDLE), text.data(), static_cast<DWORD>(text.size()), &written, nullptr);
}

void everythingShown(component::Session& s, int mode) {
  ui::UserForm1& f = s.form;
  f.ComboBox48.select(2);
  f.ComboBox1.select(mode);
  f.ComboBox2.select(1);
  f.ComboBox6.select(1);
  f.CommandButton4.click();
  f.OptionButton4.choose();
  f.ComboBox55.select(30);
  f.CommandButton4.click();
  f.Frame23.setVisible(true);
  f.Frame28.setVisible(true);
  testing::fillLongestLines(f);
}

bool shown(const ui::UserForm1& f, const ui::Control& control) {
  for (const ui::Control* c = &control; c; c = c->spec().parent.empty() ? nullptr : f.find(c->spec().parent))
    if (!c->visible()) return false;
  return true;
}

std::vector<std::string> textsOf(const ui::Control& c) {
  switch (c.kind()) {
    case ui::Kind::Label:
    case ui::Kind::CommandButton:
    case ui::Kind::OptionButton:
    case ui::Kind::Frame: return {static_cast<const ui::CaptionedControl&>(c).caption()};
    case ui::Kind::ComboBox:
    case ui::Kind::ListBox: return static_cast<const ui::ListControl&>(c).items();
    default: return {};
  }
}

}  // namespace

int wmain() {
  std::ostringstream messages;
  component::UnattendedDialogs dialogs(messages);
  component::NoViewer viewer;
  component::SystemClock clock;
  HDC dc = CreateCompatibleDC(nullptr);
  int measured = 0, cut = 0;
  for (const UINT dpi : {96u, 144u}) {
    const win::Scale scale{dpi};
    HFONT font = win::messageFont(dpi);
    HGDIOBJ old = SelectObject(dc, font);
    for (int mode = 1; mode <= 5; ++mode) {
      component::Session session(dialogs, viewer, clock);
      component::Class1 class1(session);
      class1.Initailize_Pellam_Variables_And_Form();
      class1.New_KX_Job_Display_Board_SetUp();
      class1.Load_User_Form();
      everythingShown(session, mode);
      for (const ui::Control* control : session.form.controls()) {
        const int room = win::textRoom(control->spec(), scale);
        if (room <= 0 || !shown(session.form, *control)) continue;
        // Thousands of numbered items share a few lengths: the longest texts decide.
        for (const std::string& text : textsOf(*control)) {
          const std::wstring w = win::wide(text);
          SIZE size{};
          GetTextExtentPoint32W(dc, w.c_str(), static_cast<int>(w.size()), &size);
          ++measured;
          if (size.cx <= room) continue;
          ++cut;
          if (cut > 40) continue;
          std::ostringstream line;
          line << "cut: mode " << mode << " at " << dpi << " dpi: " << control->name() << " \"" << text << "\" "
               << size.cx << " > " << room;
          say(line.str());
        }
      }
    }
    SelectObject(dc, old);
    DeleteObject(font);
  }
  DeleteDC(dc);
  std::ostringstream summary;
  summary << measured << " texts measured at 96 and 144 dpi, " << cut << " cut off";
  say(summary.str());
  return cut == 0 && measured > 0 ? 0 : 1;
}
