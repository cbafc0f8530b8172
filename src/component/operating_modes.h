#pragma once

#include <string>
#include <vector>

#include "files/save_job.h"
#include "job/job.h"
#include "ui/user_form.h"

namespace pellam::component {

class Session;

// What each operating mode of the board brings, in one place: its editor page and the pages
// that go with it, the files a save writes (packing the mode's tables as it goes), the image
// regions an open decodes and the tables `pellam show` lists.
struct OperatingMode {
  int number;
  ui::Page ui::UserForm1::*page;
  ui::Page ui::UserForm1::*alsoShows;  // or nullptr
  // The room-combine report is written first, shown in the viewer and read back on open.
  bool keepsReport;
  // The suffixes of the text files `save` writes, in its order (the .zpd comes last).
  std::vector<std::string> fileSuffixes;
  // The tables the mode keeps, by their names in an exported job.
  std::vector<std::string> tables;
  void (*save)(Session& session, files::JobFiles& files);
  void (*decode)(Session& session);
  void (*list)(std::string& out, const job::Job& job);
};

// The mode 1..5, or nullptr for any other value (an image may hold anything).
const OperatingMode* operatingMode(int number);

// Every mode's editor page and the pages that go with one.
const std::vector<ui::Page ui::UserForm1::*>& modePages();

}  // namespace pellam::component
