#pragma once

#include <filesystem>

namespace pellam::fuzz {

// A folder only this process uses, made once and removed when the process exits.
const std::filesystem::path& privateFolder();

// Empties the folder, so that every input starts from the same state.
void emptyPrivateFolder();

}  // namespace pellam::fuzz
