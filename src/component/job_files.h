#pragma once

#include <cstdint>
#include <span>
#include <string>

#include "component/session.h"

// The save and open sequences of a whole session: board values, packing, folders, files,
// decoding and the form's display of what was opened.
namespace pellam::component {

// Packs the board setup and the settings, checks the job's folder (offering to create it),
// and saves the files; `noFolder` is the message when there is no folder to save into.
// Returns the .zpd path written, or an empty string.
std::string SaveJobSequence(Session& session, const std::string& jobPath, const std::string& noFolder);

// Packs the job into the session's image as a save does, and writes no file: the image a save
// would write.
void PackJobImage(Session& session);

// Clears, reads and decodes an image file; a file that cannot be read is refused with a
// message and changes nothing.
bool OpenJobSequence(Session& session, const std::string& path);

// Opens an image already read, as OpenJobSequence opens a file of those bytes (the first
// 32,767 count; a shorter image reads as one ending in zeros). For the job tools.
void OpenImageBytes(Session& session, std::span<const std::uint8_t> bytes);

// Decodes the session's image into the board page, the tables and the pages of the mode.
void DecodeImage(Session& session);

}  // namespace pellam::component
