#pragma once

#include "image/eeprom_image.h"
#include "job/job.h"

namespace pellam::image {

// The clear before a job is opened: the room link editor's working values, the room tables'
// middle rows and image bytes 1..33998. Rows 0, 16, 17 of the room links, rows 0 and
// 2047..2049 of the room combine, byte 0 and bytes 33999..34001 are kept, as they always were.
void ClearEEpromImage(EepromImage& image, job::Job& job);

// The clear at the start of every save: the image bytes only.
void ClearImageOnly(EepromImage& image);

// The table half of ClearEEpromImage, for an open that reads the file into the image first
// and then zeroes only what the file did not fill: the same image, half the writing.
void ClearRoomTables(job::Job& job);

}  // namespace pellam::image
