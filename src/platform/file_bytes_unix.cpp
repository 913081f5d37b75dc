#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>

#include "platform/file_bytes.h"

namespace platform {

namespace {

std::optional<FileError> errorOf(int number) {
  if (number == 0) return std::nullopt;
  return FileError{qt_error_string(number), number == ENOENT || number == ENOTDIR};
}

/// 0, or the error number that a call which gave -1 left behind.
int numberOf(int result) {
  return result < 0 ? errno : 0;
}

/// A regular file takes one read: a byte more than its size is asked for, so that a short answer tells the end.
int readToEnd(int file, QByteArray& bytes) {
  constexpr qsizetype LeastRoom = 4096;
  struct stat status;
  if (::fstat(file, &status) != 0) return errno;
  const bool regular = S_ISREG(status.st_mode);
  qsizetype filled = 0;
  bytes = QByteArray(regular ? qsizetype(status.st_size) + 1 : LeastRoom, Qt::Uninitialized);
  for (;;) {
    const ssize_t got = ::read(file, bytes.data() + filled, std::size_t(bytes.size() - filled));
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) return errno;
    filled += got;
    if (got == 0 || (regular && filled == status.st_size)) break;
    if (filled == bytes.size()) bytes.resize(filled * 2);
  }
  bytes.truncate(filled);
  return 0;
}

int writeAll(int file, QByteArrayView bytes) {
  while (!bytes.isEmpty()) {
    const ssize_t put = ::write(file, bytes.data(), std::size_t(bytes.size()));
    if (put < 0 && errno == EINTR) continue;
    if (put < 0) return errno;
    bytes = bytes.sliced(put);
  }
  return 0;
}

/// A flush that the file system doesn't offer is none that failed.
int flush(int file) {
  const int error = numberOf(::fsync(file));
  return error == EINVAL || error == ENOTSUP ? 0 : error;
}

/// The file behind a chain of symbolic links, whether it stands there or not.
QString behindLinks(const QString& native) {
  constexpr int LongestChain = 40;
  QFileInfo info(native);
  for (int i = 0; i < LongestChain && info.isSymbolicLink(); ++i) info.setFile(info.symLinkTarget());
  return info.filePath();
}

struct TemporaryFile {
  int file = -1;
  QByteArray name;
};

/// A new file beside the target; -1 with the error number in errno.
TemporaryFile makeBeside(const QByteArray& target) {
  constexpr int Tries = 100;
  TemporaryFile made;
  for (int i = 0; i < Tries; ++i) {
    made.name = target + '.' + QByteArray::number(QRandomGenerator::global()->generate(), 36);
    made.file = ::open(made.name.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (made.file >= 0 || errno != EEXIST) break;
  }
  return made;
}

}  // namespace

std::optional<FileError> ReadBytes(const QString& native, QByteArray& bytes) {
  const int file = ::open(QFile::encodeName(native).constData(), O_RDONLY | O_CLOEXEC);
  if (file < 0) return errorOf(errno);
  const int error = readToEnd(file, bytes);
  ::close(file);
  return errorOf(error);
}

std::optional<FileError> ReplaceBytes(const QString& native, QByteArrayView bytes) {
  const QByteArray target = QFile::encodeName(behindLinks(native));
  struct stat old;
  const bool replaces = ::stat(target.constData(), &old) == 0;
  if (!replaces && errno != ENOENT) return errorOf(errno);
  if (replaces && !S_ISREG(old.st_mode)) return errorOf(S_ISDIR(old.st_mode) ? EISDIR : EINVAL);

  const TemporaryFile fresh = makeBeside(target);
  if (fresh.file < 0) return errorOf(errno);
  int error = replaces ? numberOf(::fchmod(fresh.file, old.st_mode & 07777)) : 0;
  if (error == 0) error = writeAll(fresh.file, bytes);
  if (error == 0) error = flush(fresh.file);
  const int closing = numberOf(::close(fresh.file));
  if (error == 0 && closing != EINTR) error = closing;
  if (error == 0) error = numberOf(::rename(fresh.name.constData(), target.constData()));
  if (error != 0) ::unlink(fresh.name.constData());
  return errorOf(error);
}

}  // namespace platform
