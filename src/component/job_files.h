#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "component/session.h"
#include "files/job_paths.h"
#include "files/replace_files.h"

// The save and open sequences of a whole session: board values, packing, folders, files,
// decoding and the form's display of what was opened.
namespace pellam::component {

// Reads the product-type byte of a file into the image and tells whether to open the file:
// 1 go on, -1 stop. A file of another kind is opened only when the person says so.
std::int16_t CheckFileType(Session& session, const std::string& path);

enum class MissingFolder { Refuse, OfferToCreate };

// The folder of a job path when it exists or was created on request; empty otherwise. The
// levels it creates are added to `created`.
std::string FolderCheck(Session& session, const std::string& jobPath, MissingFolder missing,
                        files::CreatedFolders* created = nullptr);

// Packs the board setup and the settings, checks the job's folder (offering to create it),
// and saves the files; `noFolder` is the message when there is no folder to save into.
// Returns the .zpd path written, or an empty string.
std::string SaveJobSequence(Session& session, const std::string& jobPath, const std::string& noFolder);

// The files a save to `jobPath` writes, packed as a save packs them, the report left out and
// nothing written: what a recovery copy keeps of the job.
std::vector<files::JobFile> RecoveryFiles(Session& session, const std::string& jobPath);

// Packs the job into the session's image as a save does, and writes no file: the image a save
// would write.
void PackJobImage(Session& session);

// The room and group labels kept beside a job image, when it has a file of them; a damaged line
// is named and passed over.
void ReadJobLabels(Session& session, const std::string& zpdPath);

// Clears, reads and decodes an image file; a file that cannot be read is refused with a
// message and changes nothing.
bool OpenJobSequence(Session& session, const std::string& path);

// Opens an image already read, as OpenJobSequence opens a file of those bytes (the first
// 32,767 count; a shorter image reads as one ending in zeros). For the job tools.
void OpenImageBytes(Session& session, std::span<const std::uint8_t> bytes);

// Decodes the session's image into the board page, the tables and the pages of the mode.
void DecodeImage(Session& session);

}  // namespace pellam::component
