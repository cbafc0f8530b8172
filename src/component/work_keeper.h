#pragma once

#include <functional>
#include <string>

namespace pellam::component {

enum class UnsavedChoice { Save, Discard, Cancel };

// The questions a face that keeps a person's work answers for the session. A host program
// that keeps the job itself leaves them unset, and then the session asks nothing of its own.
struct WorkKeeper {
  // Save, Discard or Cancel, for a job with unsaved changes that is about to be replaced.
  std::function<UnsavedChoice()> askUnsaved;
  // The job path (.txt) a Save As writes, "" when the person cancels; `suggested` is the job's
  // save target, "" for a job without one.
  std::function<std::string(const std::string& suggested)> chooseSavePath;
};

}  // namespace pellam::component
