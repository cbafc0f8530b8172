#pragma once

#include <cstdint>
#include <vector>

#include "image/eeprom_image.h"
#include "job/tables.h"

namespace pellam::image {

// The 300-byte block of one input of the board. Block k (1..16) holds action one of input k
// (record k). Block k + 16 is the board's input k + 16, of its second bank (record k + 16):
// the editor keeps action two of input k in that record but never marks it in use, so action
// two is not written; only an opened image marks it, so that its second-bank inputs are kept.
// Both banks list the channels of their record in slot order.
//
//   +0       blocks 1..16: fade-rate code of action one (0..240);
//            blocks 17..32: the record's word 6, the setting the board keeps for that input
//   +1       0
//   +2       number of channels (1..150); 0 = the input is not in use
//   +3 ...   groups, in the order of the record's slots, then a 0 count (left out when the
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
inline constexpr int kChannelBlockGroupsStart = 3;

struct ChannelGroup {
  int level = 0;
  std::vector<int> channels;  // every channel, in slot order
};

// The live slots of a record (channel > 0) grouped as the block and the text file hold them.
std::vector<ChannelGroup> channelGroups(const job::ChannelEmulationRecord& record);

// Bytes the record's groups take from +3 on, terminator not counted.
int channelGroupBytes(const job::ChannelEmulationRecord& record);

// Byte +0 of input k's block, which the text file also sends as the input's fade.
std::int16_t blockSetting(const job::ChannelEmulationRecord& record, int input);

// Whether the blocks a save writes for an input can hold its records: action one's always,
// action two's record only when it is in use (an opened image's second-bank input). The
// editor asks before it takes a channel, so that a save never has to drop one.
bool channelsFit(const job::ChannelEmulationRecord& actionOne, const job::ChannelEmulationRecord& actionTwo);

// Writes input k's block (1..32); a record that does not fit is a run-time error and writes
// nothing of it. Nothing is written at or past the block's 300th byte.
void PackChannelBlock(EepromImage& image, int input, const job::ChannelEmulationRecord& record);

// Reads input k's block back into the record's byte +0 setting and slots 0..; garbage never
// reads past the block.
void DecodeChannelBlock(const EepromImage& image, int input, job::ChannelEmulationRecord& record);

}  // namespace pellam::image
