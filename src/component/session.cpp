#include "component/session.h"

#include <iostream>
#include <memory>

#include "component/platform.h"

namespace pellam::component {

Session::Session(ui::Dialogs& dialogs, ui::Shell& shell, ui::Clock& clock)
    : platform_(dialogs, shell, clock),
      navigation(form, job.board),
      boardPage(form, job.board, platform_, navigation),
      channelEmulationPage(form, job.channelEmulation, platform_),
      roomLinkPage(form, job.roomLink, platform_),
      roomCombinePage(form, job.roomCombine, platform_),
      namingPage(form, job.roomGroupNames, platform_),
      filesPage(*this) {
  navigation.setBoardPage(boardPage);
}

Session& Session::shared() {
  static UnattendedDialogs dialogs(std::cerr);
  static NoViewer shell;
  static SystemClock clock;
  static const std::unique_ptr<Session> session = std::make_unique<Session>(dialogs, shell, clock);
  return *session;
}

}  // namespace pellam::component
