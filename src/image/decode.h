#pragma once

#include "image/eeprom_image.h"
#include "job/job.h"

// Decoding an image back into the tables: each function the inverse of its packer, safe on
// any bytes (a short, foreign or random file).
namespace pellam::image {

struct DecodedBoard {
  int hardwareType = 0;
  int masterSlave = 0;  // a stored 0 reads back as 2, the slaved choice
  int slaveId = 0;
  int masterInputMode = 0;
  int inputAction = 0;  // 4 added back when the offset flag is set
  int operatingMode = 0;
  int inputScan = 0;
  int furtherOption = 0;
  int optionFlags = 0;
  int timer = 0;        // 50-millisecond units
};

DecodedBoard DecodeBoardSetup(const EepromImage& image);
// The timer in whole seconds, as the board page shows it.
int timerSeconds(int timerUnits);

void DecodeInputNumbering(const EepromImage& image, job::InputNumberTable& table);
void DecodeRoomLink(const EepromImage& image, job::RoomLinkTable& table);
void DecodeRoomCombine(const EepromImage& image, job::RoomCombineTable& table);
// Input numbering shares bytes 5000.. with the station slots: give the decoded numbering
// table when numbering is on, so that its bytes are not read back as stations.
void DecodeStationsFormA(const EepromImage& image, job::StationLinkTable& table,
                         const job::InputNumberTable* numbering);
void DecodeStationsFormB(const EepromImage& image, job::StationLinkTable& table,
                         job::StationPersonalityTable& personalities, const job::InputNumberTable* numbering);
void DecodePresetEmulation(const EepromImage& image, job::PresetEmulationTable& table);
void DecodeChannelEmulation(const EepromImage& image, job::ChannelEmulationTable& table);
void DecodeRemoteCommands(const EepromImage& image, job::RemoteCommandTable& table);
void DecodeMasterInputs(const EepromImage& image, job::MasterInputs& inputs);

}  // namespace pellam::image
