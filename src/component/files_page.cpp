#include "component/files_page.h"

#include <filesystem>
#include <system_error>

#include "component/job_files.h"
#include "component/keep_work.h"
#include "component/session.h"
#include "files/file_type.h"
#include "files/job_paths.h"
#include "files/open_job.h"

namespace pellam::component {

FilesPage::FilesPage(Session& session) : s_(session) {
  ui::UserForm1& f = s_.form;
  f.CommandButton26.onClick = [this] { Save(); };
  f.CommandButton101.onClick = [this] { ListFiles(); };
  f.CommandButton102.onClick = [this] { OpenChosen(); };
  f.TextBox102.onChange = [this] { s_.form.ListBox11.clear(); };
}

void FilesPage::Save() { SaveJobSequence(s_, s_.form.TextBox101.text(), "Folder Not Found"); }

void FilesPage::ListFiles() {
  ui::UserForm1& f = s_.form;
  f.ListBox11.clear();
  const std::string& folder = f.TextBox102.text();
  if (folder.empty()) {
    s_.dialogs().msgBox("No Path Selected ", ui::Buttons::OK);
    return;
  }
  std::error_code ec;
  if (!std::filesystem::is_directory(files::fsPath(folder), ec)) {
    s_.dialogs().msgBox("Invalid Path", ui::Buttons::OK);
    return;
  }
  listedFolder_ = folder;
  for (std::string& name : files::ListImageFiles(folder)) f.ListBox11.addItem(std::move(name));
  if (f.ListBox11.count() == 0) s_.dialogs().msgBox("No Files Found", ui::Buttons::OK);
}

std::string FilesPage::chosenImage() const {
  if (s_.form.ListBox11.listIndex() < 0 || listedFolder_.empty()) return {};
  std::string folder = listedFolder_;
  if (!files::isSeparator(folder.back())) folder += '/';
  return folder + s_.form.ListBox11.text();
}

void FilesPage::OpenChosen() {
  const std::string path = chosenImage();
  if (path.empty()) {
    s_.dialogs().msgBox("No File Selected", ui::Buttons::OK);
    return;
  }
  if (CheckFileType(s_, path) == 1 && MayReplaceJob(s_)) OpenJobSequence(s_, path);
}

}  // namespace pellam::component
