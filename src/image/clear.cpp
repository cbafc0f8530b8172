#include "image/clear.h"

namespace pellam::image {

void ClearEEpromImage(EepromImage& image, job::Job& job) {
  ClearRoomTables(job);
  ClearImageOnly(image);
}

void ClearRoomTables(job::Job& job) {
  job::RoomLinkTable& links = job.roomLink;
  links.LinkFirstRoom = 0;
  links.LinkSecondRoom = 0;
  links.LinkInputGroupC = 0;
  for (std::size_t i = 1; i <= 15; ++i) links.records[i] = {0, 0, 0, job::kNotListed};
  for (std::size_t c = 1; c <= 2046; ++c) job.roomCombine.records[c] = {0, 0, 0, 65535};
}

void ClearImageOnly(EepromImage& image) { image.fill(map::kClearFirst, map::kClearLast, 0); }

}  // namespace pellam::image
