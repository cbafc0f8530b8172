#pragma once

#include <array>
#include <functional>
#include <memory>
#include <string>
#include <thread>

#include "component/files_page.h"
#include "component/upload_page.h"
#include "component/work_keeper.h"
#include "component/page_navigation.h"
#include "editors/channel_emulation/channel_emulation_page.h"
#include "editors/input_numbering/input_numbering_page.h"
#include "editors/naming/naming_page.h"
#include "editors/preset_emulation/preset_emulation_page.h"
#include "editors/remote_commands/remote_commands_page.h"
#include "editors/room_combine/room_combine_page.h"
#include "editors/room_link/room_link_page.h"
#include "editors/station_link/station_link_page.h"
#include "editors/station_personality/station_personality_page.h"
#include "files/room_combine_report.h"
#include "image/eeprom_image.h"
#include "job/job.h"
#include "setup/board_setup_page.h"
#include "setup/master_inputs.h"
#include "ui/dialogs.h"
#include "ui/user_form.h"

namespace pellam::component {

// Forwards to the dialogs, viewer and clock a face has given the session, so that presenters
// keep one reference while the face may change.
class PlatformProxy final : public ui::Dialogs, public ui::Shell, public ui::Clock {
 public:
  PlatformProxy(ui::Dialogs& dialogs, ui::Shell& shell, ui::Clock& clock)
      : dialogs_(&dialogs), shell_(&shell), clock_(&clock) {}
  void set(ui::Dialogs& dialogs, ui::Shell& shell, ui::Clock& clock) {
    dialogs_ = &dialogs;
    shell_ = &shell;
    clock_ = &clock;
  }
  ui::Answer msgBox(const std::string& text, ui::Buttons buttons) override { return dialogs_->msgBox(text, buttons); }
  ui::Answer errorBox(const std::string& text) override { return dialogs_->errorBox(text); }
  std::string openFile(const ui::FileDialogRequest& request) override { return dialogs_->openFile(request); }
  bool openInViewer(const std::string& path) override { return shell_->openInViewer(path); }
  ui::DateTime now() override { return clock_->now(); }

 private:
  ui::Dialogs* dialogs_;
  ui::Shell* shell_;
  ui::Clock* clock_;
};

// Everything the component keeps for the life of the process: the job, the image, the form
// and its presenters. Class1 holds none of it.
class Session {
 public:
  Session(ui::Dialogs& dialogs, ui::Shell& shell, ui::Clock& clock);
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

  // A session belongs to the thread that made it; a call from another is a fault of the face.
  void checkThread() const;

  void setPlatform(ui::Dialogs& dialogs, ui::Shell& shell, ui::Clock& clock) { platform_.set(dialogs, shell, clock); }
  ui::Dialogs& dialogs() { return platform_; }
  ui::Shell& shell() { return platform_; }
  ui::Clock& clock() { return platform_; }

  // Whether the host lets a component show a modeless form.
  bool hostAllowsModelessForms = true;
  // Shows the form modally until the person closes or hides it: a face that draws the form
  // sets it, so that a host without a modeless form still gets a usable one.
  std::function<void()> runModalForm;
  // The .zpd last saved or opened: the file an upload sends.
  std::string currentJobFile;
  // The job path (.txt) a person's Save writes: the path it was last saved under, or the one
  // of the job image it was opened from. A new job or a file of another kind has none.
  std::string saveTarget;
  // What a face that keeps a person's work asks (unset for a host that keeps the job itself).
  WorkKeeper keeper;
  // The room-combine report read beside a mode-3 job when it was opened.
  std::string companionReport;
  // Input-bank setting of the save: any value but 2 writes the second bank's text too.
  int inputBank = 0;
  files::RoomsAndGroupsInUse roomsAndGroupsInUse;

  job::Job job;
  image::EepromImage image;
  ui::UserForm1 form;

  // Whether the job holds anything that was not there when it was last started, opened or
  // saved: every face asks this before it lets a job go.
  bool modified() const;
  void markUnmodified() {
    recovered_ = false;
    if (!tracksChanges_) return;
    if (unmodified_) {
      *unmodified_ = job;
    } else {
      unmodified_ = std::make_unique<job::Job>(job);
    }
  }
  // For a session nobody works in or sees (the command line's tools): no copy of the job
  // (165 kB, a page fault for every 4 kB) is kept to tell whether it changed, so it always
  // counts as changed, and an open fills none of the pages' lists that only a person reads.
  void runUnattended() {
    tracksChanges_ = false;
    unmodified_.reset();
    for (ui::EditorPage* page : editorPages()) page->seen = false;
  }
  // A job brought back after a crash is unsaved work whatever it holds.
  void markRecovered() { recovered_ = true; }

 private:
  PlatformProxy platform_;
  std::unique_ptr<job::Job> unmodified_;  // the job as last started, opened or saved
  bool tracksChanges_ = true;
  bool recovered_ = false;
  std::thread::id owner_ = std::this_thread::get_id();

 public:
  // Every editor page, for what a job's life asks of each alike.
  std::array<ui::EditorPage*, 10> editorPages();

  PageNavigation navigation;
  setup::BoardSetupPage boardPage;
  setup::MasterInputsPage masterInputsPage;
  editors::channel_emulation::ChannelEmulationPage channelEmulationPage;
  editors::preset_emulation::PresetEmulationPage presetEmulationPage;
  editors::room_link::RoomLinkPage roomLinkPage;
  editors::station_link::StationLinkPage stationLinkPage;
  editors::station_personality::StationPersonalityPage stationPersonalityPage;
  editors::room_combine::RoomCombinePage roomCombinePage;
  editors::naming::NamingPage namingPage;
  editors::remote_commands::RemoteCommandsPage remoteCommandsPage;
  editors::input_numbering::InputNumberingPage inputNumberingPage;
  FilesPage filesPage;
  UploadPage uploadPage;
};

}  // namespace pellam::component
