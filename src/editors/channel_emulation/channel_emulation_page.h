#pragma once

#include <cstdint>
#include <functional>

#include "job/tables.h"
#include "ui/dialogs.h"
#include "ui/editor_page.h"
#include "ui/user_form.h"

namespace pellam::editors::channel_emulation {

// Rebuilds ListBox8 and ListBox9 for input n and recounts both of its records.
void ShowChannelEmulationInput(job::ChannelEmulationTable& table, ui::ListBox& one, ui::ListBox& two, int input);

// Removes a channel from both records of an input: the slot is marked deleted, never compacted.
void DeleteEmulatedChannel(job::ChannelEmulationTable& table, ui::ListBox& one, ui::ListBox& two, int channel,
                           int input);

// Presenter of Page2: an input's two actions, their fade rates, channels and levels.
class ChannelEmulationPage final : public ui::EditorPage {
 public:
  ChannelEmulationPage(ui::UserForm1& form, job::ChannelEmulationTable& table, ui::Dialogs& dialogs);

  // The editor state the form keeps, back to 0 as when the form is created.
  void reset() override;
  // A new job: no record, no line.
  void clear() override;
  // Shows the first input in use of a decoded table (input 1 when none is).
  void listDecoded() override;

  // The editor state, named as the form has always named it.
  std::int16_t SelectedInput = 0;
  std::int16_t FadeRateOne = 0;
  std::int16_t FadeRateTwo = 0;
  std::int16_t FromChannel = 0;
  std::int16_t ToChannelOffset = 0;
  std::int16_t LevelOne = 0;
  std::int16_t LevelTwo = 0;
  std::int16_t SelectedChannelOne = 0;
  std::int16_t SelectedChannelTwo = 0;
  bool ListRefreshing = false;
 private:
  // What CommandButton19 does next; its caption is drawn from this.
  enum class LevelOneButton { AddChannels, ChangeLevel };
  void setLevelOneButton(LevelOneButton mode);
  void chooseInput();
  void chooseFirstChannel();
  void clickLine(ui::ListBox& clicked, ui::ListBox& other, bool actionTwo);
  void addOrChangeLevelOne();
  void changeLevelTwo();
  void deleteChannel();
  void addChannels();
  // Runs a change of the input's records and takes it back when its blocks could no longer
  // hold it; false then.
  bool changeIfFits(const std::function<void()>& change);
  void relist();
  void backToIdle();
  bool inputRefused();
  LevelOneButton levelOneButton_ = LevelOneButton::AddChannels;
  job::ChannelEmulationRecord& actionOne();
  job::ChannelEmulationRecord& actionTwo();

  ui::UserForm1& form_;
  job::ChannelEmulationTable& table_;
  ui::Dialogs& dialogs_;
};

}  // namespace pellam::editors::channel_emulation
