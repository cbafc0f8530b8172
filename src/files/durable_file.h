#pragma once

#include <filesystem>
#include <string_view>

// Writes that are on the disk, not only in the system's cache, when they return: a save that
// said it is done must survive a power cut.
namespace pellam::files {

// Creates or truncates the file, writes the bytes and flushes them to the disk.
bool writeDurably(const std::filesystem::path& path, std::string_view bytes);

// Flushes a folder's entries (names created, renamed or removed) to the disk.
void syncFolder(const std::filesystem::path& folder);

}  // namespace pellam::files
