#include "editors/preset_emulation/list_lines.h"

#include "ui/list_line.h"

namespace pellam::editors::preset_emulation {

std::string_view stationKindName(int kind) {
  switch (kind) {
    case 7: return "T6600 Entry";
    case 9: return "T6600 LCD";
    case 10: return "T3100 LCD";
    case 11: return "Contact Closure";
    case 12: return "T3100 Entry";
    default: return "";
  }
}

std::string rebuiltActionText(const job::PresetRecord& r, const std::string& previous) {
  switch (r.StationKind) {
    case 7:
    case 9: return ui::listLine("  Button :", r.ActionNumber);
    case 10:
      if (r.ActionNumber == 17) return "  Max On";
      if (r.ActionNumber == 18) return "  Max Off";
      return ui::listLine("  Preset :", r.ActionNumber);
    case 11:
    case 12: return ui::listLine("  Preset :", r.ActionNumber);
    default: return previous;
  }
}

namespace {
constexpr int kButtonRelease = 16;
const std::string kButtonReleaseText = "  Button : Release";
bool isButtonKind(int kind) { return kind == 7 || kind == 9; }
}  // namespace

std::string chosenActionText(const job::PresetRecord& r, const std::string& previous) {
  if (isButtonKind(r.StationKind) && r.ActionNumber == kButtonRelease) return kButtonReleaseText;
  return rebuiltActionText(r, previous);
}

std::string addedActionText(job::PresetEmulationTable& table, int netIdSlot, int inputSlot) {
  const job::PresetRecord& r = table.at(netIdSlot, inputSlot);
  switch (r.StationKind) {
    case 7: return chosenActionText(r, "");
    case 9:
      if (table.at(netIdSlot + 1, inputSlot).ActionNumber == kButtonRelease) return kButtonReleaseText;
      return ui::listLine("  Button :", table.at(netIdSlot, inputSlot + 1).ActionNumber);
    default: return rebuiltActionText(r, "");
  }
}

std::string entryLine(std::string_view kindName, const job::PresetRecord& r, const std::string& actionText) {
  return ui::listLine(kindName, "  NetId: ", r.NetIdPlusOne, "  Personality  ", r.Personality, actionText);
}

}  // namespace pellam::editors::preset_emulation
