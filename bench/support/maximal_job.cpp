#include "maximal_job.h"

#include "component/session.h"

namespace pellam::bench {

void fillMaximalJob(component::Session& s, int mode) {
  ui::UserForm1& f = s.form;
  f.ComboBox48.select(2);
  f.ComboBox1.select(mode);
  f.ComboBox2.select(1);
  f.ComboBox6.select(1);
  f.OptionButton4.choose();
  f.ComboBox55.select(30);
  f.CommandButton4.click();
  job::Job& job = s.job;
  for (std::int16_t i = 0; i < 17; ++i) job.inputNumbering.records[static_cast<std::size_t>(i)] = {i, static_cast<std::int16_t>(100 + i)};
  job.masterInputs.entries.fill(1);
  for (std::size_t p = 1; p <= 16; ++p) {
    job.remoteCommands.blocks[p].Mode = 2;
    job.remoteCommands.blocks[p].Page = 1;
    for (std::int16_t n = 1; n <= 30; ++n) {
      job.remoteCommands.blocks[p].Listed[static_cast<std::size_t>(n)] = n;
      job.remoteCommands.blocks[p].Value[static_cast<std::size_t>(n)] = 3;
    }
  }
  for (std::int16_t i = 0; i < 17; ++i) job.roomLink.records[static_cast<std::size_t>(i)] = {static_cast<std::int16_t>(i + 1), 1, 2, i};
  for (std::int16_t n = 1; n <= 127; ++n) {
    job.stationLink.records[static_cast<std::size_t>(n)] = {n, 9, static_cast<std::int16_t>(n % 255 + 1), n};
    job.stationPersonality.records[static_cast<std::size_t>(n - 1)] = {n, 9, 4, n, 1};
  }
  for (std::uint16_t c = 1; c <= 2048; ++c) {
    job.roomCombine.records[c] = {c, static_cast<std::uint16_t>(c % 255 + 1), static_cast<std::uint16_t>(c / 9 % 255 + 1), c};
  }
  for (int k = 1; k <= 32; ++k) {
    for (int j = 0; j < 37; ++j) job.presetEmulation.at(j, k) = {static_cast<std::int16_t>(j + 1), 9, 3, 2, 0};
  }
  // Action two is never saved, so the second bank is full only in a job opened from a board
  // whose inputs 17..32 are in use: those records are marked as the decoder marks them.
  for (std::size_t k = 1; k <= 32; ++k) {
    job::ChannelEmulationRecord& r = job.channelEmulation.records[k];
    for (std::size_t s2 = 0; s2 < 150; ++s2) {
      r.Channels[s2] = static_cast<std::int16_t>((k - 1) % 16 * 120 + s2 + 1);
      r.Levels[s2] = static_cast<std::int16_t>(s2 / 10 * 5);  // 15 ranges of 10 channels
    }
    r.InputNumber = static_cast<std::int16_t>(k);
    r.Header6 = static_cast<std::int16_t>(k > 16 ? 30 : 0);
  }
}

}  // namespace pellam::bench
