#pragma once

#include <string>

#include "job/board_setup.h"
#include "ui/dialogs.h"
#include "ui/user_form.h"

namespace pellam::setup {

// What the board page asks of page navigation, which lives above it.
class ModePages {
 public:
  virtual void hideModePages() = 0;
  virtual void showModePage() = 0;

 protected:
  ~ModePages() = default;
};

// Presenter of Page1: the board-wide settings, their checks and the summary.
class BoardSetupPage {
 public:
  BoardSetupPage(ui::UserForm1& form, job::BoardSetup& board, ui::Dialogs& dialogs, ModePages& pages);

  // Start-up: values to 0, the refresh-rate list and mode-dependent frames hidden.
  void resetBoardValues();
  void fillRefreshRates();
  void fillBoardLists();
  // Shows the frames that belong to the chosen mode and options.
  void refreshDependentControls();

  void LoadInputActionList(int selector, int operatingMode);
  void Confirm();
  std::string summary() const;

  // A refresh-rate list position in 50-millisecond units: 1..180 seconds, then 1..20 minutes.
  static int refreshRateUnits(int listIndex);

 private:
  void attachHandlers();
  void boardChoiceChanged();
  void setOptionBit(int bit, bool on);
  void reloadInputActions();

  ui::UserForm1& form_;
  job::BoardSetup& board_;
  ui::Dialogs& dialogs_;
  ModePages& pages_;
};

}  // namespace pellam::setup
