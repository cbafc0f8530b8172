#pragma once

#include "editors/channel_emulation/list_lines.h"
#include "editors/input_numbering/input_numbering_page.h"
#include "editors/preset_emulation/list_lines.h"
#include "editors/remote_commands/list_lines.h"
#include "editors/room_combine/list_lines.h"
#include "editors/room_link/list_lines.h"
#include "editors/station_link/list_lines.h"
#include "editors/station_personality/list_lines.h"
#include "setup/master_inputs.h"
#include "ui/user_form.h"

// What every renderer's layout test fills the lists with.
namespace pellam::testing {

// The longest line each list can be given, made by the editors' own line makers.
inline void fillLongestLines(ui::UserForm1& f) {
  namespace ed = editors;
  const job::PresetRecord release{128, 7, 16, 255, 0}, preset{128, 11, 255, 255, 0};
  const std::vector<std::string> presets{
      ed::preset_emulation::entryLine(ed::preset_emulation::stationKindName(7), release,
                                      ed::preset_emulation::chosenActionText(release, "")),
      ed::preset_emulation::entryLine(ed::preset_emulation::stationKindName(11), preset,
                                      ed::preset_emulation::chosenActionText(preset, ""))};
  const job::RoomLinkRecord link{16, 255, 255, 0};
  const std::vector<std::string> links{ed::room_link::lineFormat1(link), ed::room_link::lineFormat2(link),
                                       ed::room_link::lineFormat3(link), ed::room_link::lineFormatDecoded(link)};
  const job::RoomCombineRecord combine{2048, 255, 255, 0};
  f.ListBox1.setItems({ed::room_combine::allLine(combine), ed::room_combine::roomLine(combine),
                       ed::room_combine::groupLine(combine)});
  f.ListBox2.setItems(links);
  f.ListBox4.setItems(links);
  f.ListBox6.setItems(links);
  f.ListBox3.setItems({ed::station_link::linkLine({127, 13, 255, 0}, ed::station_link::stationTypeName(13))});
  f.ListBox5.setItems(presets);
  f.ListBox10.setItems(presets);
  f.ListBox7.setItems({ed::station_personality::personalityLine(ed::station_personality::seriesName(9),
                                                                {128, 9, 255, 0, 255})});
  f.ListBox8.setItems({ed::channel_emulation::channelLine(2048, 100)});
  f.ListBox9.setItems({ed::channel_emulation::channelLine(2048, 100)});
  f.Label43.setCaption(ed::channel_emulation::fadeRateLabel(240));
  f.Label51.setCaption(ed::channel_emulation::fadeRateLabel(240));
  f.ListBox19.setItems({ed::remote_commands::commandLine(255, 16, 1), ed::remote_commands::commandLine(255, 16, 2)});
  f.ListBox101.setItems({ed::input_numbering::numberingLine({16, 255})});
  f.ListBox102.setItems({setup::masterInputLine(16, 0), setup::masterInputLine(16, 1), setup::masterInputLine(16, 2)});
}

}  // namespace pellam::testing
