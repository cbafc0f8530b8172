#pragma once

#include <cstdint>
#include <vector>

#include "image/eeprom_image.h"
#include "job/tables.h"

namespace pellam::image {

// The 300-byte block of one channel-emulation action. Block k (inputs 1..16) holds action
// one of input k (record k), block k + 16 its action two (record k + 16); both blocks list the
// same channels in the same order, each with its own levels.
//
//   +0       fade-rate code of the action (0..240)
//   +1       0
//   +2       number of channels (1..150); 0 = the input is not in use
//   +3 ...   groups, in the order of the editor's slots, then a 0 count (left out when the
//            groups end exactly at the block's end):
//              count n (1..255)  the number of byte pairs in the group
//              level             0..100, shared by every channel of the group
//              n byte pairs      a channel, high byte first (bits 0..11); bit 7 of the high
//                                byte marks a range end: the channels after the previous
//                                pair's, up to this one, belong to the group too
//
// A group is a run of slots at one level; a range is a run of consecutive channel numbers,
// so a range of any length at one level costs 6 bytes, and a scattered channel 2.
inline constexpr int kChannelsPerInput = 150;
inline constexpr int kChannelLast = 2048;
inline constexpr int kChannelBlockGroupsStart = 3;

struct ChannelGroup {
  int level = 0;
  std::vector<int> channels;  // every channel, in slot order
};

// The live slots of a record (channel > 0) grouped as the block and the text file hold them.
std::vector<ChannelGroup> channelGroups(const job::ChannelEmulationRecord& record);

// Bytes the record's groups take from +3 on, terminator not counted.
int channelGroupBytes(const job::ChannelEmulationRecord& record);

// Whether both actions of an input fit their blocks. The editor asks before it takes a
// channel, so that a save never has to drop one.
bool channelsFit(const job::ChannelEmulationRecord& actionOne, const job::ChannelEmulationRecord& actionTwo);

// Writes the block; a record that does not fit is a run-time error and writes nothing of it.
// Nothing is written at or past the block's 300th byte.
void PackChannelBlock(EepromImage& image, int base, const job::ChannelEmulationRecord& record);

// Reads a block back into a record's fade rate and slots 0..; garbage never reads past the block.
void DecodeChannelBlock(const EepromImage& image, int base, job::ChannelEmulationRecord& record);

}  // namespace pellam::image
