#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/file_bytes.h"
#include "platform/unix_errors.h"

namespace platform {

namespace {

qint64 lastWritten(const struct stat& status) {
#ifdef Q_OS_DARWIN
  const timespec& time = status.st_mtimespec;
#else
  const timespec& time = status.st_mtim;
#endif
  return static_cast<qint64>(time.tv_sec) * 1'000'000'000 + time.tv_nsec;
}

/// The descriptor of an open regular file, and its size.
struct RegularFile {
  int file = -1;
  qsizetype size = 0;
};

/// Opens a regular file. Never blocks on a pipe or a device.
std::optional<FileError> openRegular(const QString& native, AtLink atLink, RegularFile& open) {
  const int following = atLink == AtLink::Follow ? 0 : O_NOFOLLOW;
  const int file =
      ::open(QFile::encodeName(native).constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC | following);
  // ELOOP stands for a link that isn't followed, ENXIO for a socket.
  if (file < 0 && errno == ELOOP && following != 0) return errorOf(ENOENT);
  if (file < 0 && errno == ENXIO) return noRegularFile();
  if (file < 0) return errorOf(errno);
  struct stat status;
  std::optional<FileError> error;
  if (::fstat(file, &status) != 0) {
    error = errorOf(errno);
  } else if (S_ISDIR(status.st_mode)) {
    error = errorOf(EISDIR);
  } else if (!S_ISREG(status.st_mode)) {
    error = noRegularFile();
  }
  if (error) {
    ::close(file);
  } else {
    open = {file, static_cast<qsizetype>(status.st_size)};
  }
  return error;
}

/// Usually takes one read: it asks for one byte more than the size, so a short answer means the end.
int readToEnd(const RegularFile& open, QByteArray& bytes) {
  qsizetype filled = 0;
  bytes = QByteArray(open.size + 1, Qt::Uninitialized);
  for (;;) {
    const ssize_t got = ::read(open.file, bytes.data() + filled, bytes.size() - filled);
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) return errno;
    filled += got;
    if (got == 0 || filled == open.size) break;
    if (filled == bytes.size()) bytes.resize(filled * 2);
  }
  bytes.truncate(filled);
  return 0;
}

}  // namespace

std::optional<FileError> lookAt(const QString& native, AtLink atLink, Look& found) {
  const QByteArray name = QFile::encodeName(native);
  struct stat status;
  const int result = atLink == AtLink::Follow ? ::stat(name.constData(), &status) : ::lstat(name.constData(), &status);
  found = {};
  if (result < 0 && errno == ELOOP) return std::nullopt;  // a loop of links
  const auto error = errorOf(errorNumber(result));
  if (error) return error->missing ? std::nullopt : error;
  found = {true, S_ISREG(status.st_mode), lastWritten(status)};
  return std::nullopt;
}

std::optional<FileError> listNames(const QString& native, QStringList& names) {
  DIR* const folder = ::opendir(QFile::encodeName(native).constData());
  if (!folder) return errorOf(errno);
  errno = 0;
  while (const dirent* const entry = ::readdir(folder)) {
    const QString name = QFile::decodeName(entry->d_name);
    if (name != u"." && name != u"..") names += name;
    errno = 0;
  }
  const int error = errno;
  ::closedir(folder);
  return errorOf(error);
}

std::optional<FileError> readBytes(const QString& native, AtLink atLink, QByteArray& bytes) {
  RegularFile open;
  if (auto error = openRegular(native, atLink, open)) return error;
  const int error = readToEnd(open, bytes);
  ::close(open.file);
  return errorOf(error);
}

std::optional<FileError> openBytes(const QString& native, QFile& file) {
  RegularFile open;
  if (auto error = openRegular(native, AtLink::Follow, open)) return error;
  if (file.open(open.file, QIODevice::ReadOnly | QIODevice::Unbuffered, QFileDevice::AutoCloseHandle)) {
    return std::nullopt;
  }
  ::close(open.file);
  return FileError{file.errorString()};
}

}  // namespace platform
