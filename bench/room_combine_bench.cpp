// A person filling a whole room-combine job by hand: every add rebuilds the "all" view first,
// so 2,048 adds must stay far from 2,048 full rewrites of the list.
#include <benchmark/benchmark.h>

#include <memory>
#include <sstream>

#include "component/unattended_session.h"

namespace {

using namespace pellam::component;

void confirmRoomCombineBoard(pellam::ui::UserForm1& f) {
  f.ComboBox48.select(2);
  f.ComboBox1.select(3);
  f.ComboBox2.select(1);
  f.ComboBox6.select(1);
  f.CommandButton4.click();
}

void RoomCombineAddEveryChannelThenViewAll(benchmark::State& state) {
  for (auto _ : state) {
    state.PauseTiming();
    std::ostringstream log;
    auto session = std::make_unique<UnattendedSession>(log);
    pellam::ui::UserForm1& f = (*session)->form;
    confirmRoomCombineBoard(f);
    state.ResumeTiming();
    for (int c = 1; c <= 2048; ++c) {
      f.ComboBox36.select(c % 255 + 1);
      f.ComboBox37.select(c / 9 % 255 + 1);
      f.ComboBox38.select(c);
      f.CommandButton11.click();
    }
    f.CommandButton30.click();
    benchmark::DoNotOptimize(f.ListBox1.count());
    state.PauseTiming();
    if (f.ListBox1.count() != 2048 || !log.str().empty()) state.SkipWithError("the adds did not all land");
    session.reset();
    state.ResumeTiming();
  }
}
BENCHMARK(RoomCombineAddEveryChannelThenViewAll)->Unit(benchmark::kMillisecond);

}  // namespace
