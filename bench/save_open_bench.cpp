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
#include "maximal_job.h"

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
  bench::fillMaximalJob(*b.session, static_cast<int>(state.range(0)));
  for (auto _ : state) benchmark::DoNotOptimize(component::SaveJobSequence(*b.session, b.jobPath(), "Directory Not Found"));
}

void PlainWrite(benchmark::State& state) {
  Bench b;
  bench::fillMaximalJob(*b.session, static_cast<int>(state.range(0)));
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
  bench::fillMaximalJob(*b.session, static_cast<int>(state.range(0)));
  const std::string zpd = component::SaveJobSequence(*b.session, b.jobPath(), "Directory Not Found");
  for (auto _ : state) benchmark::DoNotOptimize(component::OpenJobSequence(*b.session, zpd));
}

// The files an open reads: the image, and in room-combine mode the report beside it.
void PlainRead(benchmark::State& state) {
  Bench b;
  const int mode = static_cast<int>(state.range(0));
  bench::fillMaximalJob(*b.session, mode);
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
