#include "setup/board_setup_page.h"

#include <algorithm>
#include <cmath>
#include <exception>

#include "ui/choice_lists.h"

namespace pellam::setup {

namespace {
constexpr int kSecondsListEnd = 180;
constexpr int kUnitsPerSecond = 20;  // the board counts in 50-millisecond units
constexpr int kHardwareToggleOnly = 1;  // a T3100 room combine station only toggles
constexpr int kRoomCombineMode = 3;
constexpr int kInputScanBit = 0;
constexpr int kOptionBitOne = 1;
constexpr int kOptionBitTwo = 2;

std::int16_t chosen(const ui::ListControl& list) { return static_cast<std::int16_t>(std::max(0, list.listIndex())); }
}  // namespace

BoardSetupPage::BoardSetupPage(ui::UserForm1& form, job::BoardSetup& board, ui::Dialogs& dialogs, ModePages& pages)
    : form_(form), board_(board), dialogs_(dialogs), pages_(pages) {
  attachHandlers();
}

int BoardSetupPage::refreshRateUnits(int listIndex) {
  if (listIndex < 1) return 0;
  const int seconds = listIndex <= kSecondsListEnd ? listIndex : (listIndex - kSecondsListEnd) * 60;
  return seconds * kUnitsPerSecond;
}

void BoardSetupPage::attachHandlers() {
  form_.ComboBox48.onClick = [this] {
    board_.HardwareType = chosen(form_.ComboBox48);
    boardChoiceChanged();
    reloadInputActions();
  };
  form_.ComboBox1.onClick = [this] {
    board_.OperatingMode = chosen(form_.ComboBox1);
    boardChoiceChanged();
    reloadInputActions();
  };
  form_.ComboBox2.onClick = [this] {
    board_.MasterSlaveMode = chosen(form_.ComboBox2);
    const bool master = board_.MasterSlaveMode == job::kMaster;
    form_.ComboBox25.setVisible(!master);
    form_.Label23.setVisible(!master);
    form_.ComboBox64.setVisible(master);
    form_.Label162.setVisible(master);
    form_.Frame28.setVisible(master);
    if (!master) {
      form_.Frame36.setVisible(false);
      form_.Frame26.setVisible(false);
    }
    boardChoiceChanged();
  };
  form_.ComboBox25.onClick = [this] {
    board_.SlaveId = chosen(form_.ComboBox25);
    boardChoiceChanged();
  };
  form_.ComboBox6.onClick = [this] {
    board_.InputAction = chosen(form_.ComboBox6);
    boardChoiceChanged();
  };
  form_.ComboBox55.onClick = [this] {
    board_.RefreshRate = refreshRateUnits(form_.ComboBox55.listIndex());
    boardChoiceChanged();
  };
  form_.OptionButton1.onClick = [this] { board_.InputScan = 1; };
  form_.OptionButton2.onClick = [this] { board_.InputScan = 0; };
  // Bit 0 also decides whether the numbering page belongs to the job: confirm again.
  form_.OptionButton4.onClick = [this] {
    setOptionBit(kInputScanBit, true);
    boardChoiceChanged();
    refreshDependentControls();
  };
  form_.OptionButton6.onClick = [this] {
    setOptionBit(kInputScanBit, false);
    boardChoiceChanged();
    refreshDependentControls();
  };
  form_.OptionButton7.onClick = [this] {
    setOptionBit(kOptionBitOne, true);
    setOptionBit(kOptionBitTwo, false);
  };
  form_.OptionButton8.onClick = [this] {
    setOptionBit(kOptionBitTwo, true);
    setOptionBit(kOptionBitOne, false);
  };
  form_.OptionButton9.onClick = [this] {
    setOptionBit(kOptionBitOne, true);
    setOptionBit(kOptionBitTwo, true);
  };
  form_.CommandButton4.onClick = [this] { Confirm(); };
}

void BoardSetupPage::setOptionBit(int bit, bool on) {
  const int mask = 1 << bit;
  board_.BoardOptions = static_cast<std::int16_t>(on ? (board_.BoardOptions | mask) : (board_.BoardOptions & ~mask));
}

void BoardSetupPage::boardChoiceChanged() {
  form_.TextBox5.setText("");
  form_.CommandButton4.setVisible(true);
  pages_.hideModePages();
}

void BoardSetupPage::resetBoardValues() {
  board_ = job::BoardSetup{};
  for (ui::OptionButton* b : {&form_.OptionButton1, &form_.OptionButton2, &form_.OptionButton4, &form_.OptionButton6,
                              &form_.OptionButton7, &form_.OptionButton8, &form_.OptionButton9}) {
    b->setValue(false);
  }
  form_.ComboBox6.clear();
  form_.TextBox5.setText("");
  form_.CommandButton4.setVisible(true);
  form_.ComboBox25.setVisible(false);
  form_.Label23.setVisible(false);
  form_.ComboBox64.setVisible(false);
  form_.Label162.setVisible(false);
  form_.Frame28.setVisible(false);
  form_.ComboBox55.setVisible(false);
  form_.Label67.setVisible(false);
  form_.Frame29.setVisible(false);
  form_.Frame31.setVisible(false);
  form_.Frame38.setVisible(false);
}

void BoardSetupPage::fillRefreshRates() { form_.ComboBox55.setItems(ui::lists::refreshRates()); }

void BoardSetupPage::fillBoardLists() {
  form_.ComboBox1.setItems(ui::lists::operatingModes());
  form_.ComboBox2.setItems(ui::lists::masterSlave());
  form_.ComboBox25.setItems(ui::lists::slaveIds());
  form_.ComboBox48.setItems(ui::lists::hardwareTypes());
}

void BoardSetupPage::refreshDependentControls() {
  const bool modeChosen = board_.OperatingMode >= 1 && board_.OperatingMode <= 5;
  form_.Frame29.setVisible(modeChosen);
  form_.Frame31.setVisible(modeChosen);
  form_.Frame38.setVisible(board_.OperatingMode == kRoomCombineMode);
  const bool scanning = (board_.BoardOptions & (1 << kInputScanBit)) != 0;
  form_.ComboBox55.setVisible(scanning);
  form_.Label67.setVisible(scanning);
}

void BoardSetupPage::LoadInputActionList(int selector, int operatingMode) {
  form_.ComboBox6.setItems(ui::lists::inputActions(selector, operatingMode));
}

// A rebuilt list keeps the person's choice while it is still offered.
void BoardSetupPage::reloadInputActions() {
  const int previous = board_.InputAction;
  LoadInputActionList(board_.HardwareType == kHardwareToggleOnly ? 1 : 0, board_.OperatingMode);
  if (previous >= 1 && previous < form_.ComboBox6.count()) {
    form_.ComboBox6.setListIndex(previous);
  } else {
    board_.InputAction = 0;
  }
}

void BoardSetupPage::Confirm() {
  try {
    form_.TextBox5.setText("");
    bool passed = true;
    auto check = [&](bool failed, const char* message, bool hidesConfirm) {
      if (!failed) return;
      passed = false;
      dialogs_.msgBox(message, ui::Buttons::OK);
      if (hidesConfirm) form_.CommandButton4.setVisible(false);
    };
    check(form_.ComboBox48.listIndex() < 1, "Hardware type not Selected", true);
    check(form_.ComboBox1.listIndex() < 1, "Operating Mode Not Selected", true);
    check(form_.ComboBox2.listIndex() < 1, "Master Slave Mode Not Selected", true);
    check(form_.ComboBox2.listIndex() == job::kSlaved && form_.ComboBox25.listIndex() < 1, "Slave ID not Selected", true);
    check(form_.ComboBox6.listIndex() < 1, "Input Action Not Selected", true);
    check(form_.ComboBox55.visible() && board_.RefreshRate == 0, "Please Select a Refresh Rate", false);
    if (!passed) return;

    pages_.showModePage();
    form_.TextBox5.setText(summary());
    if (board_.SlaveId == 0) board_.SlaveId = job::kMasterSlaveIdValue;
  } catch (const std::exception& e) {
    dialogs_.errorBox(std::string("Error Module CommandButton4 ") + e.what());
  }
}

std::string BoardSetupPage::summary() const {
  const std::string crlf = "\r\n";
  std::string text = "HardWare Type: " + form_.ComboBox48.text() + crlf + "Operating Mode: " + form_.ComboBox1.text() +
                     crlf + form_.ComboBox2.text() + crlf;
  if (board_.MasterSlaveMode == job::kMaster) {
    text += "Input Action: " + form_.ComboBox6.text();
    if (form_.Label67.visible() && board_.RefreshRate != 0) {
      text += crlf + "Input Scan Enabled" + crlf + "Refresh Rate: " + form_.ComboBox55.text();
    }
  } else {
    text += "Slave Id: " + form_.ComboBox25.text() + crlf + "Input Action: " + form_.ComboBox6.text();
  }
  return text;
}

}  // namespace pellam::setup
