// Saving and opening a maximal job of each mode, next to writing and reading the same bytes
// with plain streams: the difference is what packing, decoding and safe replacing cost.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <sstream>
#include <vector>
#include <unistd.h>

#include "component/job_files.h"
#include "component/platform.h"
#include "component/session.h"
#include "component/start_up.h"

namespace {

namespace fs = std::filesystem;
using namespace pellam;

struct Bench {
  std::ostringstream log;
  component::UnattendedDialogs dialogs{log};
  component::NoViewer shell;
  component::SystemClock clock;
  std::unique_ptr<component::Session> session = std::make_unique<component::Session>(dialogs, shell, clock);
  fs::path folder = fs::temp_directory_path() / ("pellam-bench-" + std::to_string(::getpid()));

  Bench() {
    fs::create_directories(folder);
    component::Initailize_Pellam_Variables_And_Form(*session);
  }
  ~Bench() { fs::remove_all(folder); }
  std::string jobPath() const { return (folder / "Max.txt").string(); }
};

// Every table of the mode as full as its editor lets it be.
void fillMaximalJob(component::Session& s, int mode) {
  ui::UserForm1& f = s.form;
  f.ComboBox48.select(2);
  f.ComboBox1.select(mode);
  f.ComboBox2.select(1);
  f.ComboBox6.select(1);
  f.OptionButton4.choose();
  f.ComboBox55.select(30);
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
  for (std::size_t k = 1; k <= 16; ++k) {
    for (std::size_t s2 = 0; s2 < 150; ++s2) {
      const auto level = static_cast<std::int16_t>(s2 / 10 * 5);  // 15 ranges of 10 channels
      for (std::size_t r : {k, k + 16}) {
        job.channelEmulation.records[r].Channels[s2] = static_cast<std::int16_t>(k * 120 + s2);
        job.channelEmulation.records[r].Levels[s2] = level;
      }
    }
    job.channelEmulation.records[k].InputNumber = static_cast<std::int16_t>(k);
  }
}

std::map<fs::path, std::string> filesOf(const fs::path& folder) {
  std::map<fs::path, std::string> files;
  for (const auto& e : fs::directory_iterator(folder)) {
    std::ifstream in(e.path(), std::ios::binary);
    files[e.path()] = std::string(std::istreambuf_iterator<char>(in), {});
  }
  return files;
}

void Save(benchmark::State& state) {
  Bench b;
  fillMaximalJob(*b.session, static_cast<int>(state.range(0)));
  for (auto _ : state) benchmark::DoNotOptimize(component::SaveJobSequence(*b.session, b.jobPath(), "Directory Not Found"));
}

void PlainWrite(benchmark::State& state) {
  Bench b;
  fillMaximalJob(*b.session, static_cast<int>(state.range(0)));
  component::SaveJobSequence(*b.session, b.jobPath(), "Directory Not Found");
  const auto files = filesOf(b.folder);
  for (auto _ : state) {
    for (const auto& [path, bytes] : files) {
      std::ofstream out(path, std::ios::binary | std::ios::trunc);
      out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    }
  }
}

void Open(benchmark::State& state) {
  Bench b;
  fillMaximalJob(*b.session, static_cast<int>(state.range(0)));
  const std::string zpd = component::SaveJobSequence(*b.session, b.jobPath(), "Directory Not Found");
  for (auto _ : state) benchmark::DoNotOptimize(component::OpenJobSequence(*b.session, zpd));
}

// The files an open reads: the image, and in room-combine mode the report beside it.
void PlainRead(benchmark::State& state) {
  Bench b;
  const int mode = static_cast<int>(state.range(0));
  fillMaximalJob(*b.session, mode);
  std::vector<std::string> paths{component::SaveJobSequence(*b.session, b.jobPath(), "Directory Not Found")};
  if (mode == 3) paths.push_back((b.folder / "MaxUserData.txt").string());
  std::string bytes(1 << 20, '\0');
  for (auto _ : state) {
    for (const std::string& path : paths) {
      std::ifstream in(path, std::ios::binary);
      in.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
      benchmark::DoNotOptimize(bytes.data());
    }
  }
}

BENCHMARK(Save)->DenseRange(1, 5)->Unit(benchmark::kMicrosecond);
BENCHMARK(PlainWrite)->DenseRange(1, 5)->Unit(benchmark::kMicrosecond);
BENCHMARK(Open)->DenseRange(1, 5)->Unit(benchmark::kMicrosecond);
BENCHMARK(PlainRead)->DenseRange(1, 5)->Unit(benchmark::kMicrosecond);

}  // namespace
