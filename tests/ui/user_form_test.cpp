#include <gtest/gtest.h>

#include <map>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

#include "job/runtime_error.h"
#include "ui/trap.h"
#include "ui/user_form.h"

namespace pellam::ui {
namespace {

struct Box {
  int left, top, right, bottom;
};

// The control table is what every renderer walks: a mistake there shows on every face.
TEST(UserForm1Table, NamesAreUniqueAndFollowTheirKind) {
  std::set<std::string_view> names;
  for (const ControlSpec& spec : userForm1Table()) {
    EXPECT_TRUE(names.insert(spec.name).second) << spec.name << " is declared twice";
    EXPECT_TRUE(spec.name.starts_with(kindName(spec.kind))) << spec.name << " is a " << kindName(spec.kind);
  }
}

TEST(UserForm1Table, ParentsAreContainersAndHoldTheirChildren) {
  std::map<std::string_view, const ControlSpec*> byName;
  for (const ControlSpec& spec : userForm1Table()) byName[spec.name] = &spec;
  for (const ControlSpec& spec : userForm1Table()) {
    if (spec.kind == Kind::MultiPage) {
      EXPECT_TRUE(spec.parent.empty());
      EXPECT_LE(spec.width, 1024);
      EXPECT_LE(spec.height, 768 - 60) << "room for a title bar and a menu on a 1024 x 768 screen";
      continue;
    }
    const auto it = byName.find(spec.parent);
    ASSERT_NE(it, byName.end()) << spec.name << " has no parent " << spec.parent;
    const ControlSpec& parent = *it->second;
    if (spec.kind == Kind::Page) {
      EXPECT_EQ(parent.kind, Kind::MultiPage) << spec.name;
      continue;
    }
    ASSERT_TRUE(parent.kind == Kind::Page || parent.kind == Kind::Frame) << spec.name << " sits in a " << parent.name;
    const int width = parent.kind == Kind::Frame ? parent.width : 1000;
    const int height = parent.kind == Kind::Frame ? parent.height : 670;
    EXPECT_GE(spec.left, 0) << spec.name;
    EXPECT_GE(spec.top, 0) << spec.name;
    EXPECT_LE(spec.left + spec.width, width) << spec.name << " sticks out of " << parent.name;
    EXPECT_LE(spec.top + spec.height, height) << spec.name << " sticks out of " << parent.name;
  }
}

TEST(UserForm1Table, ControlsOfOnePageDoNotOverlap) {
  const auto table = userForm1Table();
  auto boxOf = [](const ControlSpec& s) { return Box{s.left, s.top, s.left + s.width, s.top + s.height}; };
  for (std::size_t i = 0; i < table.size(); ++i) {
    for (std::size_t j = i + 1; j < table.size(); ++j) {
      const ControlSpec& a = table[i];
      const ControlSpec& b = table[j];
      if (a.parent != b.parent || a.kind == Kind::Page || a.parent.empty()) continue;
      const Box p = boxOf(a), q = boxOf(b);
      const bool apart = p.right <= q.left || q.right <= p.left || p.bottom <= q.top || q.bottom <= p.top;
      EXPECT_TRUE(apart) << a.name << " overlaps " << b.name;
    }
  }
}

TEST(ListControl, IndexFromCodeFiresOnlyOnChangeAPersonsChoiceAlways) {
  UserForm1 form;
  int clicks = 0;
  form.ComboBox1.onClick = [&] { ++clicks; };
  form.ComboBox1.setItems({" ", "a", "b"});
  EXPECT_EQ(clicks, 0) << "filling a list is not a choice";
  form.ComboBox1.setListIndex(1);
  form.ComboBox1.setListIndex(1);
  EXPECT_EQ(clicks, 1);
  form.ComboBox1.select(1);
  EXPECT_EQ(clicks, 2);
  EXPECT_EQ(form.ComboBox1.text(), "a");
  EXPECT_THROW(form.ComboBox1.setListIndex(3), job::RuntimeError);
  EXPECT_THROW(form.ComboBox1.select(-2), job::RuntimeError);
  form.ComboBox1.setListIndex(-1);
  EXPECT_EQ(form.ComboBox1.text(), "");
  form.ComboBox1.setItems({"x"});
  EXPECT_EQ(form.ComboBox1.listIndex(), -1);
}

TEST(OptionButton, ChoosingOneClearsOnlyItsFrame) {
  UserForm1 form;
  form.OptionButton1.choose();
  form.OptionButton7.choose();
  form.OptionButton8.choose();
  EXPECT_FALSE(form.OptionButton7.value());
  EXPECT_TRUE(form.OptionButton8.value());
  EXPECT_TRUE(form.OptionButton1.value()) << "another frame's buttons are left alone";
}

TEST(MultiPage, HidingTheShownPageMovesToAVisibleOne) {
  UserForm1 form;
  EXPECT_THROW(form.MultiPage1.setValue(3), job::RuntimeError) << "editor pages start hidden";
  form.Page4.setVisible(true);
  form.MultiPage1.setValue(3);
  form.Page4.setVisible(false);
  EXPECT_EQ(form.MultiPage1.value(), 0);
  EXPECT_THROW(form.MultiPage1.setValue(3), job::RuntimeError) << "a hidden page cannot be shown";
}

// A trap takes the board's run-time errors only; anything else reaches the form's report,
// once, at the end of the person's action, and a nested handler's error reaches its caller.
TEST(UserForm1, ErrorsEndWhereTheyBelong) {
  UserForm1 form;
  struct : Dialogs {
    std::vector<std::string> shown;
    Answer msgBox(const std::string& text, Buttons) override {
      shown.push_back(text);
      return Answer::OK;
    }
    std::string openFile(const FileDialogRequest&) override { return {}; }
  } dialogs;
  form.setErrorReport([&](const std::string& what) { dialogs.shown.push_back("report: " + what); });
  form.ComboBox2.onClick = [] { throw job::RuntimeError(job::kOverflow); };
  form.ComboBox1.onClick = [&] { trap(dialogs, "Error M2Trap20", [&] { form.ComboBox2.select(0); }); };
  form.CommandButton4.onClick = [&] { trap(dialogs, "never shown", [] { throw std::logic_error("fault"); }); };
  form.ComboBox1.setItems({"", "a"});
  form.ComboBox2.setItems({""});
  form.ComboBox1.select(1);
  form.CommandButton4.click();
  form.ComboBox2.select(0);
  EXPECT_EQ(dialogs.shown, (std::vector<std::string>{"Error M2Trap20", "report: fault", "report: Overflow"}));
}

// Each face that draws the form is told, until its subscription ends.
TEST(UserForm1, TellsItsObserversWhatChanged) {
  UserForm1 form;
  std::vector<std::string_view> changed, second;
  const auto watch = form.observe([&](const Control* c) { changed.push_back(c ? c->name() : "UserForm1"); });
  {
    const auto other = form.observe([&](const Control* c) { second.push_back(c ? c->name() : "UserForm1"); });
    form.TextBox5.setText("x");
  }
  form.Label23.setCaption("Slave");
  form.ComboBox2.setVisible(false);
  form.setVisible(true);
  EXPECT_EQ(changed, (std::vector<std::string_view>{"TextBox5", "Label23", "ComboBox2", "UserForm1", "UserForm1"}))
      << "showing the form loads it first";
  EXPECT_EQ(second, std::vector<std::string_view>{"TextBox5"});
}

TEST(UserForm1, UnloadForgetsContentsButKeepsHandlers) {
  UserForm1 form;
  int clicks = 0;
  form.ComboBox1.onClick = [&] { ++clicks; };
  form.ComboBox1.setItems({" ", "a"});
  form.Label23.setCaption("changed");
  form.Label23.setVisible(true);
  form.show(true);
  form.unload();
  EXPECT_FALSE(form.loaded());
  EXPECT_FALSE(form.visible());
  EXPECT_EQ(form.ComboBox1.count(), 0);
  EXPECT_EQ(form.Label23.caption(), "Slave ID");
  EXPECT_FALSE(form.Label23.visible());
  form.ComboBox1.setItems({" ", "a"});
  form.ComboBox1.select(1);
  EXPECT_EQ(clicks, 1);
}

}  // namespace
}  // namespace pellam::ui
