#pragma once

#include <optional>
#include <string>
#include <vector>

// A job's files are replaced all or nothing, even when the process dies half-way or a rename
// fails part-way: the job is then wholly its old files or wholly its new ones.
namespace pellam::files {

// One file of a job: the job prefix followed by `suffix` ("LnkData.txt", ".zpd").
struct JobFile {
  std::string suffix;
  std::string bytes;
  // Taken away by the save instead (a file an earlier save wrote that this job no longer has).
  bool remove = false;
};

// Checks every target, writes each file beside its target and flushes it, then renames them
// over their targets under a record that lets RecoverInterruptedSave finish the work after a
// crash; a rename that fails undoes those done before it. Returns the message to show when
// nothing was replaced.
std::optional<std::string> ReplaceJobFiles(const std::string& prefix, const std::vector<JobFile>& files);

// Finishes a replacement of the job's files that had been committed, or undoes one that had
// not, and removes its working files. Run before a job is opened or saved, by any face.
void RecoverInterruptedSave(const std::string& prefix);

}  // namespace pellam::files
