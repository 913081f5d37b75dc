#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/file_bytes.h"
#include "platform/file_names.h"
#include "platform/unix_errors.h"

namespace platform {

namespace {

qint64 lastWrite(const struct stat& status) {
#ifdef Q_OS_DARWIN
  const timespec& time = status.st_mtimespec;
#else
  const timespec& time = status.st_mtim;
#endif
  return static_cast<qint64>(time.tv_sec) * 1'000'000'000 + time.tv_nsec;
}

struct CloseFolder {
  void operator()(DIR* folder) const { ::closedir(folder); }
};

}  // namespace

void FileHandle::close(qintptr value) {
  ::close(static_cast<int>(value));
}

FileResult<Look> lookAt(const QString& native, AtLink atLink) {
  const QByteArray name = encodedName(native);
  struct stat status;
  const auto looked =
      called(atLink == AtLink::Follow ? ::stat(name.constData(), &status) : ::lstat(name.constData(), &status));
  if (looked) return Look{true, S_ISREG(status.st_mode)};
  // ELOOP stands for a loop of links.
  if (looked.isMissing() || looked.error().number == ELOOP) return Look();
  return looked.error();
}

FileResult<QStringList> listNames(const QString& native) {
  QStringList names;
  const std::unique_ptr<DIR, CloseFolder> folder(::opendir(encodedName(native).constData()));
  if (!folder) return systemError();
  errno = 0;
  while (const dirent* const entry = ::readdir(folder.get())) {
    const QString name = decodedName(entry->d_name);
    if (name != u"." && name != u"..") names += name;
    errno = 0;
  }
  if (errno != 0) return systemError();
  return names;
}

FileResult<OpenFile> OpenFile::open(const QString& native, AtLink atLink) {
  const int following = atLink == AtLink::Follow ? 0 : O_NOFOLLOW;
  FileHandle handle(::open(encodedName(native).constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC | following));
  // ELOOP stands for a link that isn't followed, ENXIO for a socket.
  if (!handle.isOpen() && errno == ELOOP && following != 0) return systemError(ENOENT);
  if (!handle.isOpen() && errno == ENXIO) return noRegularFile();
  if (!handle.isOpen()) return systemError();
  struct stat status;
  if (const auto looked = called(::fstat(static_cast<int>(handle.value()), &status)); !looked) return looked.error();
  if (S_ISDIR(status.st_mode)) return systemError(EISDIR);
  if (!S_ISREG(status.st_mode)) return noRegularFile();
  return OpenFile(std::move(handle), status.st_size, lastWrite(status));
}

FileResult<qsizetype> OpenFile::readAt(qsizetype place, char* to, qsizetype most) const {
  for (;;) {
    const ssize_t got = ::pread(static_cast<int>(handle_.value()), to, static_cast<size_t>(most), place);
    if (got >= 0) return got;
    if (errno != EINTR) return systemError();
  }
}

}  // namespace platform
