// Writes a maximal job (room combine unless MODE says otherwise) for the benchmarks and the
// job tools' tests, and times the save a host's save runs on it here:
//   pellam_maximal_job FOLDER [SAVES [MODE]]
// The job is saved as FOLDER/Max.txt, opened again as a host would, then saved SAVES times.
#include <chrono>
#include <cstdlib>
#include <iostream>
#include <sstream>
#include <string>

#include "component/job_files.h"
#include "component/unattended_session.h"
#include "maximal_job.h"

int main(int argc, char** argv) {
  using namespace pellam;
  if (argc < 2) {
    std::cerr << "usage: pellam_maximal_job FOLDER [SAVES [MODE]]\n";
    return 2;
  }
  std::ostringstream log;
  component::UnattendedSession session(log);
  bench::fillMaximalJob(*session, argc > 3 ? std::atoi(argv[3]) : 3);
  const std::string job = std::string(argv[1]) + "/Max.txt";
  const std::string zpd = component::SaveJobSequence(*session, job, "Directory Not Found");
  if (zpd.empty()) {
    std::cerr << log.str();
    return 1;
  }
  const int saves = argc > 2 ? std::atoi(argv[2]) : 0;
  if (saves <= 0) return 0;
  component::OpenJobSequence(*session, zpd);
  const auto started = std::chrono::steady_clock::now();
  for (int i = 0; i < saves; ++i) component::SaveJobSequence(*session, job, "Directory Not Found");
  const std::chrono::duration<double, std::milli> took = std::chrono::steady_clock::now() - started;
  std::cout << "ms per save " << took.count() / saves << '\n';
  return 0;
}
