#include "component/session.h"

#include "job/job_content.h"

#include <stdexcept>

namespace pellam::component {

Session::Session(ui::Dialogs& dialogs, ui::Shell& shell, ui::Clock& clock)
    : platform_(dialogs, shell, clock),
      navigation(form, job.board),
      boardPage(form, job.board, platform_, navigation),
      masterInputsPage(form, job.masterInputs, platform_),
      channelEmulationPage(form, job.channelEmulation, platform_),
      presetEmulationPage(form, job.presetEmulation, platform_),
      roomLinkPage(form, job.roomLink, platform_),
      stationLinkPage(form, job.stationLink, platform_),
      stationPersonalityPage(form, job.stationPersonality, platform_),
      roomCombinePage(form, job.roomCombine, platform_),
      namingPage(form, job.roomGroupNames, platform_),
      remoteCommandsPage(form, job.remoteCommands, platform_),
      inputNumberingPage(form, job.inputNumbering, platform_),
      filesPage(*this),
      uploadPage(*this) {
  navigation.setBoardPage(boardPage);
  form.setErrorReport([this](const std::string& what) { platform_.errorBox("Unexpected Error: " + what); });
}

std::array<ui::EditorPage*, 10> Session::editorPages() {
  return {&masterInputsPage, &channelEmulationPage, &presetEmulationPage, &roomLinkPage, &stationLinkPage,
          &stationPersonalityPage, &roomCombinePage, &namingPage, &remoteCommandsPage, &inputNumberingPage};
}

bool Session::modified() const { return recovered_ || !unmodified_ || !job::sameContent(job, *unmodified_); }

void Session::checkThread() const {
  if (std::this_thread::get_id() != owner_) throw std::logic_error("the session was called from another thread");
}

}  // namespace pellam::component
