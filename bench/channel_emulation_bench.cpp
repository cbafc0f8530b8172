// A full channel-emulation job entered by hand: 150 channels on each of 16 inputs, one add a
// channel, each add checking the input's image blocks and rebuilding both lists.
#include <benchmark/benchmark.h>

#include <memory>
#include <sstream>

#include "component/unattended_session.h"

namespace {

using namespace pellam::component;

void ChannelEmulationFullJobByHand(benchmark::State& state) {
  for (auto _ : state) {
    state.PauseTiming();
    std::ostringstream log;
    auto session = std::make_unique<UnattendedSession>(log);
    pellam::ui::UserForm1& f = (*session)->form;
    state.ResumeTiming();
    for (int input = 1; input <= 16; ++input) {
      f.ComboBox26.select(input);
      for (int c = 1; c <= 150; ++c) {
        f.ComboBox45.select(c + 120 * (input - 1));
        f.ComboBox28.select(c / 10 * 5);  // a new level every ten channels
        f.CommandButton19.click();
      }
    }
    if (f.ListBox8.count() != 150 || !log.str().empty()) state.SkipWithError("a channel was refused");
    state.PauseTiming();
    session.reset();
    state.ResumeTiming();
  }
}
BENCHMARK(ChannelEmulationFullJobByHand)->Unit(benchmark::kMillisecond);

}  // namespace
