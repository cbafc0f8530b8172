#include "ui/control_tips.h"

#include <array>
#include <utility>

namespace pellam::ui {

namespace {

constexpr std::string_view kNetId = "Net id: a station's address on the dimming network (1 to 127)";

constexpr std::array<std::pair<std::string_view, std::string_view>, 18> kTips = {{
    {"ComboBox2", "Master: this board's inputs drive the network. Slave: the board is a station under a master and "
                  "takes a slave ID"},
    {"ComboBox25", "Slave ID: the number this slave board answers to"},
    {"ComboBox64", "Master-input mode: whether inputs may be set to switch the whole network on or off"},
    {"ComboBox65", "Master input: the input (1 to 16) to set"},
    {"ComboBox112", "What the chosen input does: an ordinary input, Master On or Master Off"},
    {"ListBox102", "What each of the 16 inputs does"},
    {"Frame29", "Input scan: the board reports which of its inputs are closed, every refresh period"},
    {"OptionButton4", "Input scan: the board reports which of its inputs are closed, every refresh period"},
    {"ComboBox55", "Refresh rate: how often the board reports its inputs when input scan is enabled"},
    {"Frame31", "Board options: option bits the board is set up with"},
    {"Frame38", "Room combine input scan: whether the inputs are scanned for the room combine"},
    {"TextBox5", "The board setup as confirmed"},
    {"TextBox101", "The job's path, ending in .txt: the image (.zpd) and the text files are written beside it"},
    {"TextBox102", "A folder whose jobs (.zpd) List Files shows"},
    {"ListBox11", "The jobs of the folder: choose one and press Open Job"},
    {"ComboBox50", kNetId},
    {"TextBox7", "The network controller's address: an IP address or a host name, with an optional :port"},
    {"Label62", "The log of the controller's replies"},
}};

}  // namespace

std::string_view ControlTip(std::string_view name) {
  for (const auto& [control, tip] : kTips) {
    if (control == name) return tip;
  }
  return {};
}

}  // namespace pellam::ui
