#pragma once

#include "job/board_setup.h"
#include "setup/board_setup_page.h"
#include "ui/user_form.h"

namespace pellam::component {

// Which editor page the form shows: only the page of the confirmed operating mode.
class PageNavigation final : public setup::ModePages {
 public:
  PageNavigation(ui::UserForm1& form, const job::BoardSetup& board) : form_(form), board_(board) {}
  void setBoardPage(setup::BoardSetupPage& page) { boardPage_ = &page; }

  void hideModePages() override;
  void showModePage() override;
  // The board page with its upload frame open, where a face sends a person to upload.
  void showUploadFrame();

 private:
  ui::UserForm1& form_;
  const job::BoardSetup& board_;
  setup::BoardSetupPage* boardPage_ = nullptr;
};

}  // namespace pellam::component
