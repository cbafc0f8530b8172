#include "component/job_files.h"

#include <algorithm>

#include "component/operating_modes.h"
#include "component/start_up.h"
#include "editors/room_combine/views.h"
#include "files/file_type.h"
#include "files/job_paths.h"
#include "files/room_combine_report.h"
#include "files/open_job.h"
#include "files/room_labels.h"
#include "files/save_job.h"
#include "image/clear.h"
#include "image/decode.h"
#include "image/memory_map.h"
#include "image/pack.h"
#include "job/runtime_error.h"
#include "ui/trap.h"

namespace pellam::component {

namespace {

void packSettings(Session& s) {
  job::Job& job = s.job;
  image::EepromImage& img = s.image;
  ui::Dialogs& d = s.dialogs();
  image::ClearImageOnly(img);
  ui::trap(d, "Error module PackBoardSetup", [&] {
    image::PackBoardSetup(img, {job.board.MasterSlaveMode, job.board.SlaveId,
                                image::inputActionForImage(job.masterInputs, job.board.InputAction),
                                job.board.HardwareType, job.board.OperatingMode});
  });
  image::PackSignature(img);
  ui::trap(d, "Error module PackTimerOption", [&] { image::PackTimerOption(img, job.board.BoardOptions, job.board.RefreshRate); });
  ui::trap(d, "Error M7Trap4", [&] { image::PackInputNumbering(img, job.board.BoardOptions, job.inputNumbering); });
  ui::trap(d, "Error M11Trap5", [&] { image::PackRemoteCommands(img, job.remoteCommands); });
  ui::trap(d, "Error M13Trap4", [&] {
    image::PackMasterInputs(img, job.masterInputs);
    image::PackOffsetFlag(img, job.masterInputs, job.board.InputAction);
  });
}

// Index of a refresh period in the refresh-rate list, -1 when the list has no such item.
int refreshRateIndex(int seconds) {
  if (seconds >= 1 && seconds <= 180) return seconds;
  if (seconds % 60 == 0 && seconds / 60 >= 1 && seconds / 60 <= 20) return 180 + seconds / 60;
  return -1;
}

void showIndex(ui::ListControl& list, int index) { list.setListIndex(index < list.count() ? index : -1); }

void displayBoard(Session& s, const image::DecodedBoard& b) {
  ui::UserForm1& f = s.form;
  s.job.board.InputScan = static_cast<std::int16_t>(b.inputScan);
  s.job.board.FurtherOption = static_cast<std::int16_t>(b.furtherOption);
  job::BoardSetup& board = s.job.board;
  showIndex(f.ComboBox48, b.hardwareType);
  showIndex(f.ComboBox1, b.operatingMode);
  showIndex(f.ComboBox2, b.masterSlave);
  if (b.masterSlave != job::kMaster) showIndex(f.ComboBox25, b.slaveId);
  showIndex(f.ComboBox6, b.inputAction);
  showIndex(f.ComboBox55, refreshRateIndex(image::timerSeconds(b.timer)));
  f.OptionButton4.setValue(image::optionBitZero(b.optionFlags));
  f.OptionButton6.setValue(!image::optionBitZero(b.optionFlags));
  const int bits = b.optionFlags & 6;
  f.OptionButton7.setValue(bits == 2);
  f.OptionButton8.setValue(bits == 4);
  f.OptionButton9.setValue(bits == 6);
  f.OptionButton1.setValue(b.inputScan == 1);
  f.OptionButton2.setValue(b.inputScan != 1);

  // The lists' handlers have run; the decoded values stand, even those a list cannot show.
  board.HardwareType = static_cast<std::int16_t>(b.hardwareType);
  board.OperatingMode = static_cast<std::int16_t>(b.operatingMode);
  board.MasterSlaveMode = static_cast<std::int16_t>(b.masterSlave);
  board.SlaveId = static_cast<std::int16_t>(b.slaveId);
  board.InputAction = static_cast<std::int16_t>(b.inputAction);
  board.BoardOptions = static_cast<std::int16_t>(b.optionFlags);
  board.RefreshRate = b.timer;
  s.boardPage.refreshDependentControls();
}

// Remote commands and master inputs are packed in every mode, so every mode reads them back;
// then the regions of the mode.
void decodeRegions(Session& s, int mode) {
  const image::EepromImage& img = s.image;
  ui::Dialogs& d = s.dialogs();
  ui::trap(d, "Error M11Trap3", [&] {
    image::DecodeRemoteCommands(img, s.job.remoteCommands);
    s.remoteCommandsPage.listDecoded();
  });
  ui::trap(d, "Error M13Trap2", [&] {
    image::DecodeMasterInputs(img, s.job.masterInputs);
    s.masterInputsPage.listDecoded();
  });
  if (const OperatingMode* m = operatingMode(mode)) m->decode(s);
}

// The report lists the room-combine lines as the all view shows them, so that view is rebuilt
// first, then the rooms and groups in use.
std::string roomCombineReport(Session& s) {
  ui::UserForm1& f = s.form;
  editors::room_combine::RebuildAllView(s.job.roomCombine, f.ListBox1);
  ui::trap(s.dialogs(), "Error M15trap1", [&] { files::RebuildRoomsAndGroupsInUse(s.job.roomCombine, s.roomsAndGroupsInUse); });
  std::string report;
  ui::trap(s.dialogs(), "Error M15trap2", [&] {
    report = files::RoomCombineReport(s.job.roomCombine, s.roomsAndGroupsInUse,
                                      {f.ListBox1.items(), f.ListBox2.items(), f.ListBox3.items()}, s.clock().now());
  });
  return report;
}

// The mode's files, then the labels, which every mode keeps beside its image.
void addJobFiles(Session& s, files::JobFiles& files, bool withReport) {
  if (const OperatingMode* mode = operatingMode(s.job.board.OperatingMode)) {
    if (mode->keepsReport && withReport) files.exact(files::kReportSuffix, roomCombineReport(s));
    mode->save(s, files);
  }
  const std::string labels = files::LabelsText(s.job.roomGroupNames);
  if (labels.empty()) {
    files.remove(files::kLabelsSuffix);
  } else {
    files.exact(files::kLabelsSuffix, labels);
  }
}


// Only a job image this program saves becomes the save target: 32,767 bytes of the right type
// under the name its own save would give it.
std::string saveTargetOf(const Session& s, const std::string& zpdPath, long bytesRead) {
  const std::string prefix = files::jobPrefix(zpdPath);
  const bool job = bytesRead == image::map::kZpdSize &&
                   s.image.at(image::map::kProductTypeByte) == image::map::kProductTypeValue;
  return job && zpdPath == prefix + ".zpd" ? prefix + ".txt" : std::string();
}

}  // namespace

std::int16_t CheckFileType(Session& s, const std::string& path) {
  switch (files::ReadProductType(path, s.image)) {
    case files::FileKind::PellamJob: return 1;
    case files::FileKind::OtherKind:
      return s.dialogs().msgBox("Select File is not Pellam Type Continue Loading?", ui::Buttons::YesNo) == ui::Answer::Yes
                 ? 1
                 : -1;
    case files::FileKind::Unreadable: break;
  }
  s.dialogs().msgBox("Cannot Open File: " + path, ui::Buttons::OK);
  return -1;
}

std::string FolderCheck(Session& s, const std::string& jobPath, MissingFolder missing, files::CreatedFolders* created) {
  const std::string folder = files::folderPart(jobPath);
  if (folder.empty()) return {};
  if (files::isFolder(folder)) return folder;
  if (missing == MissingFolder::Refuse) return {};
  if (s.dialogs().msgBox("Folder not Found! Create Folder?", ui::Buttons::YesNo) != ui::Answer::Yes) return {};
  return files::CreateFolderPath(folder, created) ? folder : std::string{};
}

std::vector<files::JobFile> RecoveryFiles(Session& s, const std::string& jobPath) {
  packSettings(s);
  files::JobFiles files(jobPath, s.inputBank);
  addJobFiles(s, files, false);
  files.image(s.image);
  return files.files();
}

std::string SaveJobSequence(Session& s, const std::string& jobPath, const std::string& noFolder) {
  packSettings(s);
  files::CreatedFolders created;
  if (FolderCheck(s, jobPath, MissingFolder::OfferToCreate, &created).empty()) {
    s.dialogs().msgBox(noFolder, ui::Buttons::OK);
    return {};
  }
  const OperatingMode* mode = operatingMode(s.job.board.OperatingMode);
  const files::Saved saved =
      files::SaveJob(jobPath, s.inputBank, s.image, [&](files::JobFiles& files) { addJobFiles(s, files, true); });
  if (!saved.refusal.empty()) s.dialogs().msgBox(saved.refusal, ui::Buttons::OK);
  const std::string& zpd = saved.zpd;
  if (!zpd.empty()) {
    created.keep();
    s.currentJobFile = zpd;
    s.saveTarget = jobPath;
    s.form.Label144.setCaption(zpd);
    if (mode && mode->keepsReport && !s.shell().openInViewer(files::reportPath(jobPath))) {
      s.dialogs().msgBox("Can't Start Notepad", ui::Buttons::OK);
    }
  }
  ui::trap(s.dialogs(), "Error module LoadNetIds", [&] { fillNetIdLists(s.form, NetIdChoice::Keep); });
  if (!zpd.empty()) s.markUnmodified();
  return zpd;
}

void PackJobImage(Session& s) {
  packSettings(s);
  files::JobFiles unwritten("job.txt", s.inputBank);
  if (const OperatingMode* mode = operatingMode(s.job.board.OperatingMode)) mode->save(s, unwritten);
}

// Labels are read back when the job has a file of them; a damaged line is named and passed
// over, the others kept.
void ReadJobLabels(Session& s, const std::string& zpdPath) {
  const std::string path = files::jobPrefix(zpdPath) + files::kLabelsSuffix;
  const std::optional<std::string> text = files::ReadTextFile(path);
  files::ReadLabels read = text ? files::ParseLabels(*text) : files::ReadLabels{};
  s.job.roomGroupNames = std::move(read.names);
  s.namingPage.listDecoded();
  if (read.badLine > 0) {
    s.dialogs().msgBox("Labels Not Read: " + path + " Line " + std::to_string(read.badLine), ui::Buttons::OK);
  }
}

void DecodeImage(Session& s) {
  ui::Dialogs& d = s.dialogs();
  // Reading the board bytes cannot fail: every offset lies inside the image.
  const image::DecodedBoard board = image::DecodeBoardSetup(s.image);
  ui::trap(d, "Error M2TRap10", [&] {
    s.job.masterInputs.Mode = static_cast<std::int16_t>(board.masterInputMode);
    if (board.masterInputMode == 1) s.job.masterInputs.Companion = 2;
  });
  ui::trap(d, "Error M2Trap20", [&] { displayBoard(s, board); });
  ui::trap(d, "Error M7Trap3", [&] {
    if (image::optionBitZero(board.optionFlags)) {
      image::DecodeInputNumbering(s.image, s.job.inputNumbering);
    } else {
      job::ClearInputNumbering(s.job.inputNumbering);
    }
    s.inputNumberingPage.listDecoded();
  });
  ui::trap(d, "Error M2Trap30", [&] {
    s.navigation.showModePage();
    decodeRegions(s, board.operatingMode);
  });
}

bool OpenJobSequence(Session& s, const std::string& path) {
  s.form.load();
  auto file = files::OpenImageFile(path);
  if (!file) {
    s.dialogs().msgBox("Cannot Open File: " + path, ui::Buttons::OK);
    return false;
  }
  // Cleared and read as one: the file's bytes, then 0 up to 33998; byte 0 stays when the file
  // is empty, and 33999..34001 always.
  long bytesRead = 0;
  ui::trap(s.dialogs(), "Error module ClearEEpromImage", [&] {
    image::ClearRoomTables(s.job);
    long read = files::ReadImageBytes(*file, s.image.bytes().first(image::map::kZpdSize));
    if (read < 0) {
      s.dialogs().msgBox("Cannot Read File: " + path, ui::Buttons::OK);
      read = 0;
    }
    s.image.fill(std::max<int>(image::map::kClearFirst, static_cast<int>(read)), image::map::kClearLast, 0);
    bytesRead = read;
  });
  s.saveTarget = saveTargetOf(s, path, bytesRead);
  DecodeImage(s);
  s.currentJobFile = path;
  s.companionReport.clear();
  const OperatingMode* mode = operatingMode(s.job.board.OperatingMode);
  if (mode && mode->keepsReport) s.companionReport = files::ReadTextFile(files::companionReportPath(path)).value_or("");
  ReadJobLabels(s, path);
  s.markUnmodified();
  return true;
}

void OpenImageBytes(Session& s, std::span<const std::uint8_t> bytes) {
  s.form.load();
  image::ClearRoomTables(s.job);
  const std::size_t read = std::min<std::size_t>(bytes.size(), image::map::kZpdSize);
  std::copy_n(bytes.begin(), read, s.image.bytes().begin());
  s.image.fill(std::max<int>(image::map::kClearFirst, static_cast<int>(read)), image::map::kClearLast, 0);
  DecodeImage(s);
  s.markUnmodified();
}

}  // namespace pellam::component
