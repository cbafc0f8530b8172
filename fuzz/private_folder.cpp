#include "private_folder.h"

#include <stdlib.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <system_error>

namespace pellam::fuzz {

namespace fs = std::filesystem;

namespace {
fs::path makeFolder() {
  std::string name = (fs::temp_directory_path() / "pellam-fuzz-XXXXXX").string();
  if (mkdtemp(name.data()) == nullptr) {
    std::perror("mkdtemp");
    std::abort();
  }
  return name;
}
}  // namespace

const fs::path& privateFolder() {
  // Never destroyed, so that it still names the folder when the exit handler removes it.
  static const fs::path* const folder = [] {
    const auto* made = new fs::path(makeFolder());
    std::atexit([] {
      std::error_code ec;
      fs::remove_all(privateFolder(), ec);
    });
    return made;
  }();
  return *folder;
}

void emptyPrivateFolder() {
  std::error_code ec;
  for (const auto& entry : fs::directory_iterator(privateFolder(), ec)) fs::remove_all(entry.path(), ec);
}

}  // namespace pellam::fuzz
