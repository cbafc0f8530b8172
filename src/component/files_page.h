#pragma once

#include <string>

namespace pellam::component {

class Session;

// The job files frame of the board page: save under a typed job path, list a folder's
// images, open the one chosen.
class FilesPage {
 public:
  explicit FilesPage(Session& session);

  void Save();
  void ListFiles();
  void OpenChosen();
  // The full path of the image chosen in the list, empty when none is.
  std::string chosenImage() const;

 private:
  Session& s_;
  // The folder whose images the list shows: the typed folder may have changed since.
  std::string listedFolder_;
};

}  // namespace pellam::component
