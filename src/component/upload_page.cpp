#include "component/upload_page.h"

#include <chrono>
#include <utility>

#include "component/session.h"
#include "files/controller_settings.h"
#include "files/file_type.h"
#include "files/job_paths.h"
#include "files/upload.h"
#include "ui/scoped.h"
#include "ui/trap.h"

namespace pellam::component {

namespace {
constexpr auto kBlink = std::chrono::seconds(1);
}

UploadPage::UploadPage(Session& session)
    : settingsPath(files::defaultControllerSettingsPath()), transport(files::makeSystemFtpTransport()), s_(session) {
  s_.form.CommandButton27.onClick = [this] { Upload(); };
}

UploadPage::~UploadPage() = default;

// The file clicked in the job list, or else the job last saved or opened.
std::string UploadPage::imageToSend() const {
  const std::string chosen = s_.filesPage.chosenImage();
  return chosen.empty() ? s_.currentJobFile : chosen;
}

void UploadPage::Upload() {
  const Result result = upload({s_.form.ComboBox50.listIndex(), imageToSend(), s_.form.TextBox7.text()});
  if (!result.logPath.empty()) s_.form.Label62.setCaption(result.logPath);
}

UploadPage::Result UploadPage::upload(const Order& order) {
  if (busy_) return {};
  ui::UserForm1& f = s_.form;
  ui::Dialogs& d = s_.dialogs();
  lastCompleted = false;
  if (order.netId < 1) {
    d.msgBox("Target Station NetID not Selected", ui::Buttons::OK);
    return {};
  }
  // Everything a person typed is checked before a file is written.
  files::UploadRequest request;
  request.netId = order.netId;
  request.imagePath = order.imagePath;
  if (request.imagePath.empty()) {
    d.msgBox("No File Selected", ui::Buttons::OK);
    return {};
  }
  request.addressText = order.address;
  if (request.addressText.empty()) {
    d.msgBox("RQC IP Address Not Entered", ui::Buttons::OK);
    return {};
  }
  const auto address = files::parseControllerAddress(request.addressText);
  if (!address) {
    d.msgBox("Not An IP Address Or Host Name: " + request.addressText, ui::Buttons::OK);
    return {};
  }
  request.address = *address;
  const files::SettingsRead settings = files::readControllerSettings(settingsPath);
  if (!settings.problem.empty()) {
    d.msgBox("Controller Settings Not Understood: " + settings.problem, ui::Buttons::OK);
    return {};
  }
  request.settings = settings.settings;
  // Read once: the bytes checked here are the bytes sent.
  files::JobImage job = files::ReadJobImage(request.imagePath);
  if (!job.problem.empty()) {
    d.msgBox(job.problem, ui::Buttons::OK);
    return {};
  }
  request.image = std::move(job.bytes);

  const ui::Scoped busy(busy_, true);
  f.Label60.setCaption("Starting Up Load Please Wait");
  f.Label60.setVisible(true);
  f.CommandButton27.setVisible(false);
  // The frame comes back ready for the next upload, whatever ends this one.
  struct FrameBack {
    ui::UserForm1& f;
    ~FrameBack() {
      f.Label60.setCaption("Click On File Name To UpLoad");
      f.Label60.setVisible(true);
      f.CommandButton27.setVisible(true);
    }
  } frameBack{f};
  auto lastBlink = std::chrono::steady_clock::now();
  const files::TransferTick tick = [&](const files::TransferProgress&) {
    if (const auto now = std::chrono::steady_clock::now(); now - lastBlink >= kBlink) {
      f.Label60.setVisible(!f.Label60.visible());
      lastBlink = now;
    }
    if (keepResponsive) keepResponsive();
  };
  Result result;
  ui::trap(d, "RQC Connection Time Out", [&] {
    const files::UploadOutcome outcome = files::UploadImage(request, *transport, s_.clock(), tick);
    lastCompleted = result.completed = outcome.completed;
    result.logPath = outcome.logPath;
    for (const std::string& message : outcome.messages) d.msgBox(message, ui::Buttons::OK);
  });
  return result;
}

}  // namespace pellam::component
