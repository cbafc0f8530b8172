#include "editors/channel_emulation/channel_emulation_page.h"

#include "ui/scoped.h"

#include "job/runtime_error.h"

#include <algorithm>
#include <string>
#include <vector>

#include "editors/channel_emulation/list_lines.h"
#include "image/channel_emulation_block.h"

namespace pellam::editors::channel_emulation {

namespace {

constexpr int kActionTwoOffset = 16;
constexpr int kSearchedSlots = 301;  // slots 0..300, one past what is listed
constexpr int kLastFullRangeStart = 1898;
constexpr int kRangeLength = 150;
constexpr int kChannelEmulationPageIndex = 1;
const std::string kAddChannels = "Add Channels";
const std::string kActionOneLevel = "Action One Level";

job::ChannelEmulationRecord& recordAt(job::ChannelEmulationTable& table, int index) {
  return table.records.at(static_cast<std::size_t>(index));
}

// The first slot holding the channel, -1 when none does.
int slotOf(const job::ChannelEmulationRecord& record, int channel) {
  for (int s = 0; s < kSearchedSlots; ++s) {
    if (record.Channels[static_cast<std::size_t>(s)] == channel) return s;
  }
  return -1;
}


// Lists the live slots of both records; the counts are the caller's to keep or recount.
void listInput(job::ChannelEmulationRecord& one, job::ChannelEmulationRecord& two, ui::ListBox& listOne,
               ui::ListBox& listTwo) {
  std::vector<std::string> linesOne;
  std::vector<std::string> linesTwo;
  linesOne.reserve(static_cast<std::size_t>(job::kChannelSlotsListed));
  linesTwo.reserve(static_cast<std::size_t>(job::kChannelSlotsListed));
  for (std::size_t s = 0; s < static_cast<std::size_t>(job::kChannelSlotsListed); ++s) {
    if (one.Channels[s] <= 0) continue;
    one.ListChannels[linesOne.size()] = one.Channels[s];
    linesOne.push_back(channelLine(one.Channels[s], one.Levels[s]));
    two.ListChannels[linesTwo.size()] = two.Channels[s];
    linesTwo.push_back(channelLine(two.Channels[s], two.Levels[s]));
  }
  listOne.setItems(std::move(linesOne));
  listTwo.setItems(std::move(linesTwo));
}

}  // namespace

void ShowChannelEmulationInput(job::ChannelEmulationTable& table, ui::ListBox& one, ui::ListBox& two, int input) {
  job::ChannelEmulationRecord& a = recordAt(table, input);
  job::ChannelEmulationRecord& b = recordAt(table, input + kActionTwoOffset);
  listInput(a, b, one, two);
  a.ChannelCount = job::narrow(one.count());
  b.ChannelCount = job::narrow(two.count());
}

void DeleteEmulatedChannel(job::ChannelEmulationTable& table, ui::ListBox& one, ui::ListBox& two, int channel,
                           int input) {
  job::ChannelEmulationRecord& a = recordAt(table, input);
  job::ChannelEmulationRecord& b = recordAt(table, input + kActionTwoOffset);
  if (const int s = slotOf(a, channel); s >= 0) {
    for (job::ChannelEmulationRecord* r : {&a, &b}) {
      r->Channels[static_cast<std::size_t>(s)] = job::kNotListed;
      r->Levels[static_cast<std::size_t>(s)] = 0;
      r->ListChannels[static_cast<std::size_t>(s)] = 0;
    }
  }
  a.ChannelCount = 0;
  b.ChannelCount = 0;
  ShowChannelEmulationInput(table, one, two, input);
}

ChannelEmulationPage::ChannelEmulationPage(ui::UserForm1& form, job::ChannelEmulationTable& table,
                                           ui::Dialogs& dialogs)
    : form_(form), table_(table), dialogs_(dialogs) {
  form_.ComboBox26.onClick = [this] { chooseInput(); };
  form_.ComboBox27.onClick = [this] {
    FadeRateOne = job::narrow(form_.ComboBox27.listIndex());
    form_.Label43.setCaption(fadeRateLabel(FadeRateOne));
  };
  form_.ComboBox49.onClick = [this] {
    FadeRateTwo = job::narrow(form_.ComboBox49.listIndex());
    form_.Label51.setCaption(fadeRateLabel(FadeRateTwo));
  };
  form_.ComboBox45.onClick = [this] { chooseFirstChannel(); };
  form_.ComboBox46.onClick = [this] { ToChannelOffset = job::narrow(form_.ComboBox46.listIndex()); };
  // A level list set back to nothing means 0%, never a level the board cannot store.
  form_.ComboBox28.onClick = [this] { LevelOne = job::narrow(std::max(0, form_.ComboBox28.listIndex())); };
  form_.ComboBox47.onClick = [this] { LevelTwo = job::narrow(std::max(0, form_.ComboBox47.listIndex())); };
  form_.ListBox8.onClick = [this] { clickLine(form_.ListBox8, form_.ListBox9, false); };
  form_.ListBox9.onClick = [this] { clickLine(form_.ListBox9, form_.ListBox8, true); };
  form_.CommandButton19.onClick = [this] { addOrChangeLevelOne(); };
  form_.CommandButton23.onClick = [this] { changeLevelTwo(); };
  form_.CommandButton6.onClick = [this] { deleteChannel(); };
}

void ChannelEmulationPage::reset() {
  SelectedInput = FadeRateOne = FadeRateTwo = FromChannel = ToChannelOffset = 0;
  LevelOne = LevelTwo = SelectedChannelOne = SelectedChannelTwo = 0;
  ListRefreshing = false;
  // Unloading the form puts the caption back to "Add Channels"; the mode goes with it.
  levelOneButton_ = LevelOneButton::AddChannels;
}

void ChannelEmulationPage::setLevelOneButton(LevelOneButton mode) {
  levelOneButton_ = mode;
  form_.CommandButton19.setCaption(mode == LevelOneButton::AddChannels ? kAddChannels : kActionOneLevel);
}

void ChannelEmulationPage::clear() {
  job::ClearChannelEmulation(table_);
  form_.ListBox8.clear();
  form_.ListBox9.clear();
}

void ChannelEmulationPage::listDecoded() {
  if (!seen) return;
  int first = 1;
  for (int input = 1; input <= kActionTwoOffset; ++input) {
    if (recordAt(table_, input).InputNumber != 0) {
      first = input;
      break;
    }
  }
  form_.ComboBox26.select(first);
}

job::ChannelEmulationRecord& ChannelEmulationPage::actionOne() { return recordAt(table_, SelectedInput); }
job::ChannelEmulationRecord& ChannelEmulationPage::actionTwo() {
  return recordAt(table_, SelectedInput + kActionTwoOffset);
}

void ChannelEmulationPage::chooseInput() {
  form_.CommandButton6.setEnabled(false);
  form_.CommandButton23.setEnabled(false);
  form_.ComboBox47.setEnabled(false);
  const int position = form_.ComboBox26.listIndex();
  if (position < 1) {
    if (form_.MultiPage1.value() == kChannelEmulationPageIndex) {
      dialogs_.msgBox("Input Not Selected ", ui::Buttons::OK);
    }
    return;
  }
  SelectedInput = job::narrow(position);
  backToIdle();
  ShowChannelEmulationInput(table_, form_.ListBox8, form_.ListBox9, SelectedInput);
  const std::string label = "Input: " + std::to_string(SelectedInput);
  form_.Label42.setCaption(label);
  form_.Label45.setCaption(label);
  // An input in use shows its own fade rates, so that the next add keeps them.
  if (actionOne().InputNumber != 0) {
    form_.ComboBox27.setListIndex(std::clamp<int>(actionOne().FadeRate, -1, form_.ComboBox27.count() - 1));
    form_.ComboBox49.setListIndex(std::clamp<int>(actionTwo().FadeRate, -1, form_.ComboBox49.count() - 1));
  }
}

void ChannelEmulationPage::chooseFirstChannel() {
  FromChannel = job::narrow(form_.ComboBox45.listIndex());
  ToChannelOffset = -1;
  if (FromChannel < 1) {
    form_.ComboBox46.clear();
    return;
  }
  const int end = FromChannel <= kLastFullRangeStart ? FromChannel + kRangeLength : job::kLastChannel;
  std::vector<std::string> items;
  items.reserve(static_cast<std::size_t>(end - FromChannel + 1));
  for (int c = FromChannel; c <= end; ++c) items.push_back("Channel :" + std::to_string(c));
  form_.ComboBox46.setItems(std::move(items));
}

// Both lists show the same channels line for line, so a click in either selects the channel of
// both actions; the other list follows without running its own handler.
void ChannelEmulationPage::clickLine(ui::ListBox& clicked, ui::ListBox& other, bool actionTwo) {
  if (ListRefreshing || SelectedInput < 1) return;
  const int line = clicked.listIndex();
  if (line < 0) return;
  const auto at = static_cast<std::size_t>(line);
  SelectedChannelOne = actionOne().ListChannels[at];
  SelectedChannelTwo = this->actionTwo().ListChannels[at];
  form_.ComboBox45.setEnabled(false);
  form_.ComboBox46.setEnabled(false);
  form_.CommandButton6.setEnabled(true);
  if (actionTwo) {
    form_.CommandButton23.setEnabled(true);
    form_.ComboBox47.setEnabled(true);
  } else {
    setLevelOneButton(LevelOneButton::ChangeLevel);
  }
  const ui::Scoped refreshing(ListRefreshing, true);
  other.setListIndex(line < other.count() ? line : -1);
}

bool ChannelEmulationPage::inputRefused() {
  if (SelectedInput > 0) return false;
  dialogs_.msgBox("No Input Selected 2", ui::Buttons::OK);
  return true;
}

void ChannelEmulationPage::addOrChangeLevelOne() {
  if (inputRefused()) return;
  job::ChannelEmulationRecord& one = actionOne();
  one.InputNumber = SelectedInput;
  one.PartnerIndex = job::narrow(SelectedInput + kActionTwoOffset);
  one.FadeRate = FadeRateOne;
  actionTwo().FadeRate = FadeRateTwo;

  if (levelOneButton_ == LevelOneButton::AddChannels) {
    addChannels();
    relist();
    return;
  }
  const std::string question = "Change Channel: " + std::to_string(SelectedChannelOne) + "  Level to  " +
                               std::to_string(LevelOne) + "%";
  if (dialogs_.msgBox(question, ui::Buttons::OKCancel) == ui::Answer::OK) {
    const int s = slotOf(one, SelectedChannelOne);
    if (s >= 0 && !changeIfFits([&] { one.Levels[static_cast<std::size_t>(s)] = LevelOne; })) {
      dialogs_.msgBox("Input Memory Full: Level Not Changed", ui::Buttons::OK);
    }
  }
  relist();
  backToIdle();
}

// Channels are taken in ascending order until the input holds 150 or its blocks are full;
// the channels taken before a refusal stay.
void ChannelEmulationPage::addChannels() {
  job::ChannelEmulationRecord& one = actionOne();
  job::ChannelEmulationRecord& two = actionTwo();
  if (FromChannel < 1) {
    dialogs_.msgBox("Channel Not Selected", ui::Buttons::OK);
    return;
  }
  const int length = ToChannelOffset == -1 ? 1 : ToChannelOffset + 1;
  for (int c = FromChannel; c < FromChannel + length; ++c) {
    if (const int s = slotOf(one, c); s >= 0) {
      if (!changeIfFits([&] { one.Levels[static_cast<std::size_t>(s)] = LevelOne; })) {
        dialogs_.msgBox("Input Memory Full: Channel " + std::to_string(c) + " Not Changed", ui::Buttons::OK);
        return;
      }
      continue;
    }
    if (one.ChannelCount >= image::kChannelsPerInput) {
      dialogs_.msgBox("150 channels MAX per Input", ui::Buttons::OK);
      return;
    }
    const auto slot = static_cast<std::size_t>(one.ChannelCount);
    const bool taken = changeIfFits([&] {
      one.Channels[slot] = job::narrow(c);
      one.Levels[slot] = LevelOne;
      two.Channels[slot] = job::narrow(c);
      two.Levels[slot] = 0;
    });
    if (!taken) {
      dialogs_.msgBox("Input Memory Full: Channel " + std::to_string(c) + " Not Added", ui::Buttons::OK);
      return;
    }
    ++one.ChannelCount;
    ++two.ChannelCount;
  }
}

bool ChannelEmulationPage::changeIfFits(const std::function<void()>& change) {
  const job::ChannelEmulationRecord oldOne = actionOne();
  const job::ChannelEmulationRecord oldTwo = actionTwo();
  change();
  if (image::channelsFit(actionOne(), actionTwo())) return true;
  actionOne() = oldOne;
  actionTwo() = oldTwo;
  return false;
}

void ChannelEmulationPage::changeLevelTwo() {
  if (inputRefused()) return;
  actionOne().FadeRate = FadeRateOne;
  actionTwo().FadeRate = FadeRateTwo;
  const std::string question = "Change Channel: " + std::to_string(SelectedChannelTwo) + "  Level to  " +
                               std::to_string(LevelTwo) + "%";
  if (dialogs_.msgBox(question, ui::Buttons::OKCancel) == ui::Answer::OK) {
    job::ChannelEmulationRecord& two = actionTwo();
    const int s = slotOf(two, SelectedChannelTwo);
    if (s >= 0 && !changeIfFits([&] { two.Levels[static_cast<std::size_t>(s)] = LevelTwo; })) {
      dialogs_.msgBox("Input Memory Full: Level Not Changed", ui::Buttons::OK);
    }
  }
  relist();
  backToIdle();
}

void ChannelEmulationPage::deleteChannel() {
  if (inputRefused()) return;
  if (SelectedChannelOne > 0 &&
      dialogs_.msgBox("Delete Channel: " + std::to_string(SelectedChannelOne), ui::Buttons::OKCancel) ==
          ui::Answer::OK) {
    DeleteEmulatedChannel(table_, form_.ListBox8, form_.ListBox9, SelectedChannelOne, SelectedInput);
  }
  backToIdle();
}

void ChannelEmulationPage::relist() { listInput(actionOne(), actionTwo(), form_.ListBox8, form_.ListBox9); }

// The lists were rebuilt, so nothing is selected any more: no change or delete is offered.
void ChannelEmulationPage::backToIdle() {
  setLevelOneButton(LevelOneButton::AddChannels);
  form_.CommandButton23.setEnabled(false);
  form_.CommandButton6.setEnabled(false);
  form_.ComboBox45.setEnabled(true);
  form_.ComboBox46.setEnabled(true);
  SelectedChannelOne = SelectedChannelTwo = 0;
}

}  // namespace pellam::editors::channel_emulation
