#pragma once

#include "job/board_setup.h"
#include "job/tables.h"

namespace pellam::job {

// Everything a job holds besides the image: the board setup and the editors' tables.
struct Job {
  BoardSetup board;
  ChannelEmulationTable channelEmulation;
  RoomLinkTable roomLink;
  RoomCombineTable roomCombine;
  RoomGroupNames roomGroupNames;
  PresetEmulationTable presetEmulation;
  StationLinkTable stationLink;
  StationPersonalityTable stationPersonality;
  RemoteCommandTable remoteCommands;
  InputNumberTable inputNumbering;
  MasterInputs masterInputs;
};

}  // namespace pellam::job
