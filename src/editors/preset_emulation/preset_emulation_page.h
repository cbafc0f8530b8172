#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "job/tables.h"
#include "ui/dialogs.h"
#include "ui/editor_page.h"
#include "ui/user_form.h"

namespace pellam::editors::preset_emulation {

// Presenter of Page5: the station keys that the inputs of both banks stand in for.
class PresetEmulationPage final : public ui::EditorPage {
 public:
  PresetEmulationPage(ui::UserForm1& form, job::PresetEmulationTable& table, ui::Dialogs& dialogs);

  // The editor state the form keeps, back to nothing chosen as when the form is created.
  void reset() override;
  // A new job: no record, no line.
  void clear() override;
  // Shows the first input with entries in either bank of a decoded table; none when no input has any.
  void listDecoded() override;

  // The editor state, named as the form has always named it.
  std::int16_t SelectedNetId = -1;
  std::int16_t SelectedInput = 0;
  std::int16_t StationKindCode = -1;
  std::int16_t SelectedAction = -1;
  std::int16_t Personality = 0;
  // Names by combo position (1..5) and by kind code (7, 9..12).
  std::array<std::string, 13> StationKindNames;
  bool ListRefreshing = false;

 private:
  // One entry list: the KX inputs in the table's first bank, the board's own inputs 16 slots on.
  struct Bank {
    ui::ListBox& list;
    ui::Label& label;
    int slotOffset;
    int lastDeletableSlot;
    const char* noInput;
    const char* captionAfterDelete;
  };
  using ActionText = std::string (*)(const job::PresetRecord&, const std::string&);

  void chooseStationType();
  void setUpStationKindNames();
  std::string kindName(int kind) const;
  void add(Bank& b);
  void clickLine(Bank& b);
  void chooseInput();
  void relist(Bank& b, ActionText actionText);
  void emptyBoth();
  int entriesOf(int inputSlot);

  ui::UserForm1& form_;
  job::PresetEmulationTable& table_;
  ui::Dialogs& dialogs_;
  Bank kx_;
  Bank board_;
};

}  // namespace pellam::editors::preset_emulation
