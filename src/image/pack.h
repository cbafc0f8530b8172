#pragma once

#include "image/eeprom_image.h"
#include "job/job.h"

// Packing the tables into the image: the save's steps in their order, then the regions the
// save packs together with the text file of each (in the order it writes those files).
// Every value goes through the checked byte conversion; an error stops the step it is in.
namespace pellam::image {

// The five board-setup values, in the order of the bytes they feed.
struct BoardValues {
  int masterSlave;    // 1 master, 2 slaved
  int slaveId;
  int inputAction;
  int hardwareType;
  int operatingMode;
};

void PackBoardSetup(EepromImage& image, BoardValues values);
void PackSignature(EepromImage& image);
void PackTimerOption(EepromImage& image, int optionFlags, int timer);
void PackInputNumbering(EepromImage& image, int optionFlags, const job::InputNumberTable& table);
void PackRemoteCommands(EepromImage& image, const job::RemoteCommandTable& table);
void PackMasterInputs(EepromImage& image, const job::MasterInputs& inputs);

// The offset flag: set when the master inputs run in mode 1 with companion setting 2 and the
// input action lies above the offset; the action is then stored 4 lower than the list shows
// it, and reads back 4 higher. An action the offset cannot express is stored as it is.
bool inputActionOffset(const job::MasterInputs& inputs, int inputAction);
int inputActionForImage(const job::MasterInputs& inputs, int inputAction);
void PackOffsetFlag(EepromImage& image, const job::MasterInputs& inputs, int inputAction);

void PackRoomLink(EepromImage& image, const job::RoomLinkTable& table);
void PackRoomCombine(EepromImage& image, const job::RoomCombineTable& table, int inputScan);
void PackStationsFormA(EepromImage& image, const job::StationLinkTable& table);
void PackStationsFormB(EepromImage& image, const job::StationLinkTable& table,
                       const job::StationPersonalityTable& personalities);
void PackFurtherOption(EepromImage& image, int option);
void PackPresetEmulation(EepromImage& image, const job::PresetEmulationTable& table);
// Block k (1..32): action one's of inputs 1..16 always; a second-bank block only when its
// record is in use, so that the editor's action two is never sent as inputs 17..32.
void PackChannelEmulationInput(EepromImage& image, const job::ChannelEmulationTable& table, int input);

bool optionBitZero(int optionFlags);

}  // namespace pellam::image
