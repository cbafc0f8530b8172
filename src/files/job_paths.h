#pragma once

#include <filesystem>
#include <string>

#include "ui/dialogs.h"

namespace pellam::files {

// Paths are kept as UTF-8 text; these turn them into the file system's paths and back.
std::filesystem::path fsPath(const std::string& utf8);
std::string utf8Text(const std::filesystem::path& path);

// Folder separators: "/" everywhere, "\" as well on Windows.
bool isSeparator(char c);

// The folder part of a job path: cut after the last separator when the path holds a "."
// (anywhere, so a dot in a folder name counts too); a path without a dot is a folder itself.
std::string folderPart(const std::string& jobPath);

enum class MissingFolder { Refuse, OfferToCreate };

// The folder of a job path when it exists or was created on request; empty otherwise.
std::string FolderCheck(const std::string& jobPath, MissingFolder missing, ui::Dialogs& dialogs);

// Creates each missing level of a folder path; false when a level could not be made.
bool CreateFolderPath(const std::string& folder);

}  // namespace pellam::files
