#include "files/working_folder.h"

#include <cstdio>
#include <cstdlib>
#include <random>
#include <system_error>

#include "files/ftp_transport.h"
#include "files/job_paths.h"

namespace pellam::files {

namespace fs = std::filesystem;

namespace {

// Taken as it stands, not checked first, so that a folder that cannot be used is named by the
// failure to make the working folder in it.
fs::path temporaryFolder() {
#ifdef _WIN32
  std::error_code ec;
  fs::path folder = fs::temp_directory_path(ec);
  if (ec) throw CannotWriteFile("the temporary folder");
  return folder;
#else
  const char* folder = std::getenv("TMPDIR");
  return folder && *folder ? fs::path(folder) : fs::path("/tmp");
#endif
}

}  // namespace

WorkingFolder::WorkingFolder() {
  const fs::path base = temporaryFolder();
  std::random_device seed;
  std::mt19937_64 random(seed());
  for (int attempt = 0; attempt < 16; ++attempt) {
    char name[40];
    std::snprintf(name, sizeof name, "pellam-upload-%016llx", static_cast<unsigned long long>(random()));
    const fs::path candidate = base / name;
    std::error_code ec;
    // Only a folder this call made is ours; one that is already there is left alone.
    if (fs::create_directory(candidate, ec)) {
      path_ = candidate;
      fs::permissions(path_, fs::perms::owner_all, fs::perm_options::replace, ec);
      return;
    }
    if (ec && ec != std::errc::file_exists) throw CannotWriteFile(utf8Text(candidate));
  }
  throw CannotWriteFile(utf8Text(base / "pellam-upload-*"));
}

WorkingFolder::~WorkingFolder() {
  std::error_code ec;
  fs::remove_all(path_, ec);
}

}  // namespace pellam::files
