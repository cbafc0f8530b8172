#include "component/form_members.h"

#include "ui/unicode_text.h"

namespace pellam::component {

void LoadUserForm(Session& s) {
  s.form.load();
  for (ui::EditorPage* page : s.editorPages()) page->formLoaded();
  s.form.CommandButton17.setVisible(false);
  s.form.Frame23.setVisible(false);
  s.form.Frame28.setVisible(false);
  s.form.show(s.hostAllowsModelessForms);
  if (!s.hostAllowsModelessForms && s.runModalForm) s.runModalForm();
}

// The form forgets its controls' contents and its board values; the tables stay.
void UnloadUserForm(Session& s) {
  s.form.unload();
  s.job.board = job::BoardSetup{};
  for (ui::EditorPage* page : s.editorPages()) page->reset();
}

void ShowHideUserForm(Session& s, bool show) {
  s.form.load();
  s.form.Frame21.setVisible(false);
  s.form.Frame23.setVisible(false);
  s.form.setVisible(show);
}

void NewJobDisplayBoardSetUp(Session& s) {
  s.form.load();
  s.form.Page1.setVisible(true);
  s.form.MultiPage1.setValue(0);
}

std::string ChooseFile(Session& s, const std::string& filter) {
  constexpr int kFilterIndex = 3;
  return s.dialogs().openFile({filter, kFilterIndex, true});
}

std::string ReturnFileName(const std::string& filePath, const std::string& name) {
  if (filePath.empty() || name.empty()) return {};
  return ui::rightUtf16Units(filePath, ui::utf16Length(name));
}

}  // namespace pellam::component
