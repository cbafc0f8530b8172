#include "files/durable_file.h"

#ifdef _WIN32
#include <windows.h>
#else
#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#endif

namespace pellam::files {

#ifdef _WIN32

bool writeDurably(const std::filesystem::path& path, std::string_view bytes) {
  HANDLE file = CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) return false;
  bool fine = true;
  while (fine && !bytes.empty()) {
    DWORD written = 0;
    const DWORD chunk = bytes.size() > 1u << 20 ? 1u << 20 : static_cast<DWORD>(bytes.size());
    fine = WriteFile(file, bytes.data(), chunk, &written, nullptr) && written > 0;
    bytes.remove_prefix(written);
  }
  fine = fine && FlushFileBuffers(file);
  return CloseHandle(file) && fine;
}

// NTFS journals its folder entries; a rename is made durable by the flush of its file.
void syncFolder(const std::filesystem::path&) {}

#else

bool writeDurably(const std::filesystem::path& path, std::string_view bytes) {
  const int fd = ::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
  if (fd < 0) return false;
  bool fine = true;
  while (fine && !bytes.empty()) {
    const ssize_t written = ::write(fd, bytes.data(), bytes.size());
    if (written < 0 && errno == EINTR) continue;
    fine = written > 0;
    if (fine) bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  fine = fine && ::fsync(fd) == 0;
  return ::close(fd) == 0 && fine;
}

void syncFolder(const std::filesystem::path& folder) {
  const int fd = ::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (fd < 0) return;
  ::fsync(fd);
  ::close(fd);
}

#endif

}  // namespace pellam::files
