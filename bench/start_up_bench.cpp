// Start-up fills some 9,000 list items; a host calls it before it shows anything.
#include <benchmark/benchmark.h>

#include <memory>
#include <sstream>

#include "component/platform.h"
#include "component/session.h"
#include "component/start_up.h"

namespace {

using namespace pellam::component;

void StartUpOnAFreshSession(benchmark::State& state) {
  std::ostringstream log;
  UnattendedDialogs dialogs(log);
  NoViewer shell;
  SystemClock clock;
  for (auto _ : state) {
    state.PauseTiming();
    auto session = std::make_unique<Session>(dialogs, shell, clock);
    state.ResumeTiming();
    Initailize_Pellam_Variables_And_Form(*session);
    benchmark::DoNotOptimize(session->form.ComboBox45.count());
    state.PauseTiming();
    session.reset();
    state.ResumeTiming();
  }
}
BENCHMARK(StartUpOnAFreshSession)->Unit(benchmark::kMicrosecond);

void StartUpAgain(benchmark::State& state) {
  std::ostringstream log;
  UnattendedDialogs dialogs(log);
  NoViewer shell;
  SystemClock clock;
  auto session = std::make_unique<Session>(dialogs, shell, clock);
  for (auto _ : state) {
    Initailize_Pellam_Variables_And_Form(*session);
    benchmark::DoNotOptimize(session->form.ComboBox45.count());
  }
}
BENCHMARK(StartUpAgain)->Unit(benchmark::kMicrosecond);

}  // namespace
