#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <random>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "files/command_text.h"
#include "image/channel_emulation_block.h"
#include "image/eeprom_image.h"
#include "support/channel_slots.h"

namespace pellam::files {
namespace {

TEST(RoomLinkText, RowsWithAnInputInIndexOrder) {
  job::RoomLinkTable table;
  EXPECT_EQ(RoomLinkText(table), "");
  table.records[16] = {17, 1, 2, 0};
  table.records[5] = {0, 20, 21, 0};
  table.records[2] = {3, 12, 13, 0};
  EXPECT_EQ(RoomLinkText(table), "\r\n\r\n\r\nI,3,L,12,13,:\r\n\r\n\r\nI,17,L,1,2,:");
}

// Room combine lines have no comma after the letters; the board reads them so.
TEST(RoomCombineText, NoCommaAfterTheLetters) {
  auto table = std::make_unique<job::RoomCombineTable>();
  table->records[2048] = {2048, 3, 255, 0};
  table->records[20] = {0, 4, 4, 0};
  table->records[17] = {17, 2, 5, 0};
  EXPECT_EQ(RoomCombineText(*table), "\r\nG2,R5,C17:\r\nG3,R255,C2048:");
}

TEST(StationText, FormsDifferOnlyInWhichNetIdsAreInUse) {
  job::StationLinkTable table;
  table.records[21] = {21, 9, 4, 0};
  EXPECT_EQ(StationTextFormA(table), "\r\n\r\n\r\nR,4,T,9,N,21,:");
  EXPECT_EQ(StationTextFormB(table), "\r\n\r\n\r\nR,4,T,9,N,21,:");
  table.records[30] = {-1, 10, 6, 0};
  EXPECT_EQ(StationTextFormB(table), "\r\n\r\n\r\nR,4,T,9,N,21,:") << "form B wants a net id above 0";
  const std::string formA = StationTextFormA(table);
  EXPECT_EQ(formA.rfind("\r\n\r\n\r\nR,4,T,9,N,21,:\r\n\r\n\r\nR,6,T,10,N,", 0), 0u) << "form A takes any non-zero";
  EXPECT_EQ(std::count(formA.begin(), formA.end(), ':'), 2);
}

TEST(PresetInputText, HeaderOnceThenOneLinePerSlot) {
  auto table = std::make_unique<job::PresetEmulationTable>();
  table->at(4, 3) = {5, 9, 2, 6, 0};
  table->at(5, 3) = {-1, 9, 2, 6, 0};
  table->at(7, 3) = {8, 10, 17, 0, 0};
  EXPECT_EQ(PresetInputText(*table, 3), "\r\n\r\nP,1,I,3,\r\nT,9,N,5,B,2,\r\nT,10,N,8,B,17,:");
  EXPECT_EQ(PresetInputText(*table, 5), "") << "an input with no slot in use writes nothing";
}

// Input 16 is written as input 0 of bank 1: the board numbers it so.
TEST(PresetInputText, BankAndInputNumberAtTheBankEdges) {
  auto table = std::make_unique<job::PresetEmulationTable>();
  const std::pair<int, const char*> cases[] = {
      {1, "P,1,I,1,"}, {15, "P,1,I,15,"}, {16, "P,1,I,0,"}, {17, "P,2,I,1,"}, {32, "P,2,I,16,"}};
  for (const auto& [input, header] : cases) {
    SCOPED_TRACE(::testing::Message() << "input " << input);
    table->at(0, input) = {1, 7, 1, 0, 0};
    EXPECT_EQ(PresetInputText(*table, input), std::string("\r\n\r\n") + header + "\r\nT,7,N,1,B,1,:");
  }
}

// Action two (record 19, never in use) is not sent as input 3 of the second bank; a second-bank
// input that an opened image held (record 32) is, with its block's setting as its fade.
TEST(ChannelInputText, HandWrittenTexts) {
  auto table = std::make_unique<job::ChannelEmulationTable>();
  testing::Slots one, two;
  for (int c = 1; c <= 10; ++c) {
    one.emplace_back(c, 75);
    two.emplace_back(c, 0);
  }
  one.insert(one.end(), {{-1, 40}, {20, 75}, {30, 50}});  // -1: a deleted channel
  two.insert(two.end(), {{-1, 40}, {20, 100}, {30, 0}});
  table->records[3] = testing::channelRecord(3, 5, one);
  table->records[19] = testing::channelRecord(0, 61, two);
  EXPECT_EQ(ChannelInputText(*table, 3), "\r\n\r\n\r\nP,1,I,3,F,5,\r\nL,75,C,1,2,3,4,5,6,7,8,9,10,20,\r\nL,50,C,30,:");
  EXPECT_EQ(ChannelInputText(*table, 19), "");
  EXPECT_EQ(ChannelInputText(*table, 4), "");
  table->records[16] = testing::channelRecord(16, 1, {{2048, 100}});
  table->records[32] = testing::channelRecord(32, 50, {{2048, 0}});
  table->records[32].Header6 = 4;
  EXPECT_EQ(ChannelInputText(*table, 16), "\r\n\r\n\r\nP,1,I,16,F,1,\r\nL,100,C,2048,:");
  EXPECT_EQ(ChannelInputText(*table, 32), "\r\n\r\n\r\nP,2,I,16,F,4,\r\nL,0,C,2048,:");
}

// The levels of the text's groups, in order, and every (channel, level) it names.
struct ParsedText {
  std::vector<int> groupLevels;
  std::vector<std::pair<int, int>> slots;
};
ParsedText parse(const std::string& text) {
  ParsedText p;
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) {
    if (line.rfind("L,", 0) != 0) continue;
    std::istringstream fields(line.substr(2));
    std::string field;
    std::getline(fields, field, ',');
    p.groupLevels.push_back(std::stoi(field));
    std::getline(fields, field, ',');  // "C"
    while (std::getline(fields, field, ',') && field.find(':') == std::string::npos && field != "\r") {
      p.slots.emplace_back(std::stoi(field), p.groupLevels.back());
    }
  }
  return p;
}

// The text's groups are the image block's: same count and levels, channels in slot order.
TEST(ChannelInputText, GroupsAreTheBlocksAndEachTextHasOneColon) {
  std::mt19937 rng(11);
  auto pick = [&](int lo, int hi) { return std::uniform_int_distribution<int>(lo, hi)(rng); };
  auto table = std::make_unique<job::ChannelEmulationTable>();
  auto eeprom = std::make_unique<image::EepromImage>();
  for (int round = 0; round < 200; ++round) {
    SCOPED_TRACE(::testing::Message() << "round " << round);
    const int input = pick(1, 32);
    job::ChannelEmulationRecord& r = table->records[static_cast<std::size_t>(input)];
    r = {};
    r.InputNumber = static_cast<std::int16_t>(input);
    std::vector<std::pair<int, int>> live;
    for (int c = pick(1, 40), s = 0; s < 60 && c <= 2048; ++s, c += pick(1, 3)) {
      const int channel = pick(0, 9) == 0 ? -1 : c;
      const int level = pick(0, 3) * 25;
      r.Channels[static_cast<std::size_t>(s)] = static_cast<std::int16_t>(channel);
      r.Levels[static_cast<std::size_t>(s)] = static_cast<std::int16_t>(level);
      if (channel > 0) live.emplace_back(channel, level);
    }
    const std::string text = ChannelInputText(*table, input);
    ASSERT_EQ(std::count(text.begin(), text.end(), ':'), 1);
    EXPECT_EQ(text.back(), ':');
    const ParsedText parsed = parse(text);
    EXPECT_EQ(parsed.slots, live);

    if (!image::channelsFit(r, r)) continue;
    image::PackChannelBlock(*eeprom, input, r);
    const int base = image::map::blockBase(input);
    std::vector<int> blockLevels;
    for (int at = base + 3; at < base + 300 && eeprom->at(at) != 0; at += 2 + 2 * eeprom->at(at)) {
      blockLevels.push_back(eeprom->at(at + 1));
    }
    EXPECT_EQ(parsed.groupLevels, blockLevels);
  }
}

}  // namespace
}  // namespace pellam::files
