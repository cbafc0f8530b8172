#pragma once

#include <functional>
#include <string>

#include "image/eeprom_image.h"
#include "job/job.h"
#include "ui/dialogs.h"

namespace pellam::files {

// The job path cut before its first "." (anywhere in the path, a folder's dot too).
std::string jobPrefix(const std::string& jobPath);
// Whether the text after the first "." is exactly "txt".
bool hasTxtExtension(const std::string& jobPath);

// With any other setting the second bank's text (inputs 17..32) is written too.
inline constexpr int kFirstBankOnly = 2;

// Writes the text files of the operating mode, packing each mode table into the image as its
// file is made, then the 32,767-byte image file. Files are replaced whole: all are written
// beside their targets first and renamed over them only when every one was written. Returns
// the .zpd path, or an empty string when nothing was saved (a message said why).
// A room-combine job (mode 3) writes its report first; `makeReport` builds it once the path
// has passed its checks.
std::string SaveJob(const std::string& jobPath, int inputBank, const job::Job& job, image::EepromImage& image,
                    ui::Dialogs& dialogs, const std::function<std::string()>& makeReport);

// The report a room-combine save writes beside its job.
std::string reportPath(const std::string& jobPath);

}  // namespace pellam::files
