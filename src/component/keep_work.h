#pragma once

#include <string>
#include <vector>

#include "component/session.h"

// A person's work is never lost by a path that replaces the job or writes over files: the
// rules every face that keeps a person's work shares.
namespace pellam::component {

// Whether the job in memory may be replaced now. A job with unsaved changes is saved,
// discarded or kept as the person answers; a save that does not happen keeps it.
bool MayReplaceJob(Session& session);

// Saves to the job's save target; a job without one is saved as Save As does.
bool SaveJob(Session& session);
// Asks for a job path, and before any file there is replaced, then saves.
bool SaveJobAs(Session& session);

// The image of the job a path names: a job's text file, or its name as a title shows it,
// stands for the job's .zpd when there is one.
std::string JobImageFor(const std::string& path);

// The files a save to `jobPath` would write or take away that are there now.
std::vector<std::string> FilesASaveReplaces(const Session& session, const std::string& jobPath);

}  // namespace pellam::component
