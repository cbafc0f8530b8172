#include "component/upload_page.h"

#include <chrono>
#include <exception>
#include <utility>

#include "component/session.h"
#include "files/controller_settings.h"
#include "files/file_type.h"
#include "files/job_paths.h"
#include "files/upload.h"

namespace pellam::component {

namespace {
constexpr auto kBlink = std::chrono::seconds(1);
}

UploadPage::UploadPage(Session& session)
    : settingsPath(files::defaultControllerSettingsPath()), transport(files::makeSystemFtpTransport()), s_(session) {
  s_.form.CommandButton27.onClick = [this] { Upload(); };
}

// A face that goes away takes its transfer with it.
UploadPage::~UploadPage() {
  cancel();
  if (worker_.joinable()) worker_.join();
}

void UploadPage::cancel() {
  const std::lock_guard lock(stopLock_);
  stop_.request_stop();
}

// The file clicked in the job list, or else the job last saved or opened.
std::string UploadPage::imageToSend() const {
  const std::string chosen = s_.filesPage.chosenImage();
  return chosen.empty() ? s_.currentJobFile : chosen;
}

void UploadPage::Upload() { upload({s_.form.ComboBox50.listIndex(), imageToSend(), s_.form.TextBox7.text()}); }

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

  busy_ = true;
  std::stop_token stop;
  {
    const std::lock_guard lock(stopLock_);
    stop_ = std::stop_source();
    stop = stop_.get_token();
  }
  f.Label60.setCaption("Starting Up Load Please Wait");
  f.Label60.setVisible(true);
  f.CommandButton27.setVisible(false);
  // Any error of the transfer is the upload's own failure, whatever threw it.
  auto transfer = [this, request = std::move(request), stop](const files::TransferTick& tick) {
    try {
      return files::UploadImage(request, *transport, s_.clock(), tick, stop);
    } catch (const std::exception&) {
      return files::UploadOutcome{false, {}, {"RQC Connection Time Out"}};
    }
  };
  auto blink = [last = std::chrono::steady_clock::now()]() mutable {
    if (const auto now = std::chrono::steady_clock::now(); now - last >= kBlink) {
      last = now;
      return true;
    }
    return false;
  };
  const auto toggle = [this] { s_.form.Label60.setVisible(!s_.form.Label60.visible()); };
  const auto progress = [this](const files::TransferProgress& p) {
    if (onProgress) onProgress({true, p.sent, p.total});
  };

  if (!postToFace) {
    const files::UploadOutcome outcome = transfer([&](const files::TransferProgress& p) {
      if (blink()) toggle();
      progress(p);
      if (keepResponsive) keepResponsive();
    });
    return finish(outcome);
  }
  // The face's own thread only draws: the form is touched in what is posted to it.
  if (worker_.joinable()) worker_.join();
  worker_ = std::thread([this, post = postToFace, transfer = std::move(transfer), blink, toggle, progress]() mutable {
    files::UploadOutcome outcome = transfer([&](const files::TransferProgress& p) {
      if (blink()) post(toggle);
      post([progress, p] { progress(p); });
    });
    post([this, outcome = std::move(outcome)] { finish(outcome); });
  });
  return {};
}

UploadPage::Result UploadPage::finish(const files::UploadOutcome& outcome) {
  ui::UserForm1& f = s_.form;
  const Result result{outcome.completed, outcome.logPath};
  lastCompleted = result.completed;
  f.Label60.setCaption("Click On File Name To UpLoad");
  f.Label60.setVisible(true);
  f.CommandButton27.setVisible(true);
  if (!result.logPath.empty()) f.Label62.setCaption(result.logPath);
  busy_ = false;
  if (onProgress) onProgress({});
  for (const std::string& message : outcome.messages) s_.dialogs().msgBox(message, ui::Buttons::OK);
  if (onUploaded) onUploaded(result);
  return result;
}

}  // namespace pellam::component
