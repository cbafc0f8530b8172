#include "files/log_append.h"

#include "files/ftp_transport.h"
#include "files/job_paths.h"

#ifdef _WIN32
#include <windows.h>
#else
#include <fcntl.h>
#include <unistd.h>
#endif

namespace pellam::files {

#ifdef _WIN32

void AppendInOneWrite(const std::filesystem::path& path, const std::string& text) {
  // Append-only access makes Windows place each write at the end, as O_APPEND does.
  HANDLE file = CreateFileW(path.wstring().c_str(), FILE_APPEND_DATA, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                            OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) throw CannotWriteFile(utf8Text(path));
  DWORD written = 0;
  const bool fine = WriteFile(file, text.data(), static_cast<DWORD>(text.size()), &written, nullptr) &&
                    written == text.size();
  CloseHandle(file);
  if (!fine) throw CannotWriteFile(utf8Text(path));
}

#else

void AppendInOneWrite(const std::filesystem::path& path, const std::string& text) {
  const int fd = ::open(path.c_str(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0666);
  if (fd < 0) throw CannotWriteFile(utf8Text(path));
  const ssize_t written = ::write(fd, text.data(), text.size());
  const bool closed = ::close(fd) == 0;
  if (written != static_cast<ssize_t>(text.size()) || !closed) throw CannotWriteFile(utf8Text(path));
}

#endif

}  // namespace pellam::files
