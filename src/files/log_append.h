#pragma once

#include <filesystem>
#include <string>

namespace pellam::files {

// Appends `text` to the file, creating it, in one write: entries of uploads running at the
// same time then follow each other instead of interleaving. Throws CannotWriteFile.
void AppendInOneWrite(const std::filesystem::path& path, const std::string& text);

}  // namespace pellam::files
