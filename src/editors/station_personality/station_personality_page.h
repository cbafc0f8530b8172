#pragma once

#include "job/tables.h"
#include "ui/dialogs.h"
#include "ui/editor_page.h"
#include "ui/user_form.h"

namespace pellam::editors::station_personality {

// Presenter of the station personalities in Frame102 of Page6: per net id, the station's
// series, personality and room. The choosers' list indexes are the editor state.
class StationPersonalityPage final : public ui::EditorPage {
 public:
  StationPersonalityPage(ui::UserForm1& form, job::StationPersonalityTable& table, ui::Dialogs& dialogs);

  // A new job keeps no personality of the last one: they go with the stations.
  void clear() override;
  // Lists a decoded table. Decoding knows no series, so the lines show the one chosen now.
  void listDecoded() override { relist(); }

 private:
  bool everyChooserSet() const;
  void choosePersonality();
  void add();
  void remove();
  void relist();
  void clickLine();

  ui::UserForm1& form_;
  job::StationPersonalityTable& table_;
  ui::Dialogs& dialogs_;
  // Set while a clicked line fills the choosers, so that the personality is not refused.
  bool fillingChoosers_ = false;
};

}  // namespace pellam::editors::station_personality
