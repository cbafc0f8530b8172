#include "main_window.h"

#include <commdlg.h>

#include "component/job_files.h"
#include "component/keep_work.h"
#include "files/save_job.h"
#include "form/win_metrics.h"
#include "wide_text.h"

namespace pellam::win {

namespace {

enum Command : WORD { kNew = 100, kOpen, kSave, kSaveAs, kUpload, kQuit };

// The filter index the host passes is 3, so the image files are the third filter.
const std::string kOpenFilter = "Job Files (*.txt)|*.txt|All Files (*.*)|*.*|Image Files (*.zpd)|*.zpd";

HMENU jobMenu() {
  HMENU job = CreatePopupMenu();
  AppendMenuW(job, MF_STRING, kNew, L"&New\tCtrl+N");
  AppendMenuW(job, MF_STRING, kOpen, L"&Open...\tCtrl+O");
  AppendMenuW(job, MF_STRING, kSave, L"&Save\tCtrl+S");
  AppendMenuW(job, MF_STRING, kSaveAs, L"Save &As...");
  AppendMenuW(job, MF_SEPARATOR, 0, nullptr);
  AppendMenuW(job, MF_STRING, kUpload, L"&Upload...\tCtrl+U");
  AppendMenuW(job, MF_SEPARATOR, 0, nullptr);
  AppendMenuW(job, MF_STRING, kQuit, L"&Quit\tCtrl+Q");
  HMENU bar = CreateMenu();
  AppendMenuW(bar, MF_POPUP, reinterpret_cast<UINT_PTR>(job), L"&Job");
  return bar;
}

HACCEL jobKeys() {
  ACCEL keys[] = {{FCONTROL | FVIRTKEY, 'N', kNew},
                  {FCONTROL | FVIRTKEY, 'O', kOpen},
                  {FCONTROL | FVIRTKEY, 'S', kSave},
                  {FCONTROL | FVIRTKEY, 'U', kUpload},
                  {FCONTROL | FVIRTKEY, 'Q', kQuit}};
  return CreateAcceleratorTableW(keys, static_cast<int>(std::size(keys)));
}

// The folder part of a path, with its last separator.
std::string folderOf(const std::string& path) {
  const auto cut = path.find_last_of("\\/");
  return cut == std::string::npos ? std::string() : path.substr(0, cut + 1);
}

}  // namespace

MainWindow::MainWindow() : session_(dialogs_, viewer_, clock_), class1_(session_) {
  const PerMonitorAware aware;
  const VisualStyles styles(GetModuleHandleW(nullptr));
  form_ = std::make_unique<FormWindow>(session_.form, jobMenu());
  keys_ = jobKeys();
  dialogs_.setOwner(form_->window());
  form_->onPersonAction = [this] {
    fresh_ = false;
    updateTitle();
  };
  form_->onMenu = [this](WORD id) { form_->personAction([&] { menu(id); }); };
  form_->onClose = [this] { form_->personAction([&] { quit(); }); };
  // The session asks before a job is replaced and saves through the window's own dialog.
  session_.keeper.askUnsaved = [this] { return askUnsaved(); };
  session_.keeper.chooseSavePath = [this](const std::string& suggested) { return chooseSavePath(suggested); };
  // The transfer runs on a thread of its own; its outcome comes back through the window's
  // queue, so no handler runs in the middle of another.
  session_.uploadPage.postToFace = [this](std::function<void()> done) { form_->post(std::move(done)); };
  updateTitle();
}

void MainWindow::menu(WORD id) {
  switch (id) {
    case kNew:
      if (component::MayReplaceJob(session_)) newJob();
      break;
    case kOpen:
      if (component::MayReplaceJob(session_)) chooseAndOpen();
      break;
    case kSave:
      component::SaveJob(session_);
      saved();
      break;
    case kSaveAs:
      component::SaveJobAs(session_);
      saved();
      break;
    case kUpload: upload(); break;
    case kQuit: quit(); break;
    default: break;
  }
}

void MainWindow::start(const std::string& path) {
  class1_.Initailize_Pellam_Variables_And_Form();
  fresh_ = true;
  if (path.empty()) {
    newJob();
  } else if (GetFileAttributesW(wide(path).c_str()) == INVALID_FILE_ATTRIBUTES) {
    dialogs_.msgBox("File Not Found: " + path, ui::Buttons::OK);
    newJob();
  } else {
    openJob(path);
  }
}

int MainWindow::run() {
  MSG message;
  while (GetMessageW(&message, nullptr, 0, 0) > 0) {
    if (TranslateAcceleratorW(form_->window(), keys_, &message)) continue;
    if (form_->preTranslate(message)) continue;
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
  return static_cast<int>(message.wParam);
}

void MainWindow::initialise() {
  // Start-up fills every list of the form, so a session that has just run it is not run again.
  if (!fresh_) class1_.Initailize_Pellam_Variables_And_Form();
  fresh_ = false;
}

void MainWindow::newJob() {
  initialise();
  class1_.New_KX_Job_Display_Board_SetUp();
  class1_.Load_User_Form();
  form_->flush();
  updateTitle();
}

void MainWindow::openJob(const std::string& zpdPath) {
  std::string path = zpdPath;
  if (class1_.Product_Type(path) != 1) return;
  initialise();
  class1_.ReadZPD_ImageFile(path);
  class1_.Load_User_Form();
  form_->flush();
  updateTitle();
}

void MainWindow::chooseAndOpen() {
  std::string filter = kOpenFilter;
  const std::string path = class1_.Return_FileName_Path(filter);
  if (!path.empty()) openJob(path);
}

void MainWindow::saved() {
  form_->flush();
  updateTitle();
}

// Jobs are shown by their image, the one file every mode writes; a save asks before it replaces
// any file itself, so the dialog does not.
std::string MainWindow::chooseSavePath(const std::string& suggested) {
  std::wstring file(32768, L'\0');
  const std::wstring start = suggested.empty() ? std::wstring() : wide(files::jobPrefix(suggested) + ".zpd");
  std::copy(start.begin(), start.end(), file.begin());
  OPENFILENAMEW dialog{};
  dialog.lStructSize = sizeof dialog;
  dialog.hwndOwner = form_->window();
  dialog.lpstrFilter = L"Pellam Jobs (*.zpd)\0*.zpd\0";
  dialog.lpstrDefExt = L"zpd";
  dialog.lpstrFile = file.data();
  dialog.nMaxFile = static_cast<DWORD>(file.size());
  dialog.Flags = OFN_EXPLORER | OFN_HIDEREADONLY | OFN_PATHMUSTEXIST;
  const VisualStyles styles(GetModuleHandleW(nullptr));
  if (!GetSaveFileNameW(&dialog)) return {};
  file.resize(wcslen(file.c_str()));
  const std::string path = utf8(file);
  // The job is named by its text file, cut where the name's first dot is, as every save cuts it.
  std::string name = path.substr(folderOf(path).size());
  return folderOf(path) + name.substr(0, name.find('.')) + ".txt";
}

component::UnsavedChoice MainWindow::askUnsaved() {
  const VisualStyles styles(GetModuleHandleW(nullptr));
  switch (MessageBoxW(form_->window(), L"Save the changes to this job?", L"Pellam Setup", MB_YESNOCANCEL | MB_ICONQUESTION)) {
    case IDYES: return component::UnsavedChoice::Save;
    case IDNO: return component::UnsavedChoice::Discard;
    default: return component::UnsavedChoice::Cancel;
  }
}

void MainWindow::upload() {
  // The upload frame is where the target station and the controller are chosen.
  session_.navigation.showUploadFrame();
  form_->flush();
  if (HWND target = form_->windowFor("ComboBox50")) SetFocus(target);
}

void MainWindow::quit() {
  if (!component::MayReplaceJob(session_)) return;
  class1_.Unload_Pellam_Form();
  PostQuitMessage(0);
}

void MainWindow::updateTitle() {
  const std::string& target = session_.saveTarget;
  const std::string name = target.empty() ? "New Job" : target.substr(folderOf(target).size());
  form_->setTitle(name + (session_.modified() ? "*" : "") + " - Pellam Setup");
}

}  // namespace pellam::win
