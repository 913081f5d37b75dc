#include <chrono>
#include <cstdio>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

#include "platform/file_bytes.h"
#include "platform/unix_errors.h"

namespace platform {

namespace {

/// Added to a file's name, it names the temporary file. The name is always the same, so that killed programs leave at
/// most one such file behind, and the next write removes it.
constexpr char TemporaryEnding[] = ".unfinished";

int writeAll(int file, QByteArrayView bytes) {
  while (!bytes.isEmpty()) {
    const ssize_t put = ::write(file, bytes.data(), bytes.size());
    if (put < 0 && errno == EINTR) continue;
    if (put < 0) return errno;
    bytes = bytes.sliced(put);
  }
  return 0;
}

/// It is no error if the file system has no flush.
int flush(int file) {
  const int error = errorNumber(::fsync(file));
  return error == EINVAL || error == ENOTSUP ? 0 : error;
}

/// Replaces the path of a symbolic link by its final target, whether that exists or not.
int followLinks(QByteArray& path) {
  constexpr int LongestChain = 40;
  for (int i = 0; i < LongestChain; ++i) {
    QByteArray behind(4096, Qt::Uninitialized);
    const ssize_t length = ::readlink(path.constData(), behind.data(), behind.size());
    // EINVAL: no link. ENOENT: nothing there.
    if (length < 0) return errno == EINVAL || errno == ENOENT ? 0 : errno;
    behind.truncate(length);
    path = behind.startsWith('/') ? behind : path.left(path.lastIndexOf('/') + 1) + behind;
  }
  return ELOOP;
}

/// The owner's write bit has to be set even for the superuser.
std::optional<FileError> checkWritable(const QByteArray& name, const struct stat& status) {
  if (S_ISDIR(status.st_mode)) return errorOf(EISDIR);
  if (!S_ISREG(status.st_mode)) return noRegularFile();
  if ((status.st_mode & S_IWUSR) == 0) return FileError{QStringLiteral("The file is write-protected")};
  return errorOf(errorNumber(::faccessat(AT_FDCWD, name.constData(), W_OK, AT_EACCESS)));
}

/// Copies owner and group where the system permits, then the mode: a change of the owner clears some of its bits.
int keepOwnerAndMode(int file, const struct stat& old) {
  const auto refused = [](int error) { return error == EPERM || error == EINVAL || error == ENOTSUP; };
  struct stat fresh;
  int error = errorNumber(::fstat(file, &fresh));
  if (error != 0) return error;
  if (fresh.st_uid != old.st_uid) error = errorNumber(::fchown(file, old.st_uid, old.st_gid));
  if (refused(error) || (fresh.st_uid == old.st_uid && fresh.st_gid != old.st_gid)) {
    error = errorNumber(::fchown(file, static_cast<uid_t>(-1), old.st_gid));
  }
  if (error != 0 && !refused(error)) return error;
  return errorNumber(::fchmod(file, old.st_mode & 07777));
}

bool lacksLocks(int error) {
  return error == ENOLCK || error == EBADF || error == EINVAL || error == ENOTSUP || error == ENOSYS;
}

/// Locks an open temporary file. The lock shows that a running program is writing it. EAGAIN if another program has the
/// lock, or if the name no longer leads to this file.
int lock(int file, const QByteArray& name) {
  struct stat here;
  struct stat there;
  const int error = errorNumber(::flock(file, LOCK_EX | LOCK_NB));
  if (error != 0) return error == EWOULDBLOCK ? EAGAIN : error;
  if (::fstat(file, &here) != 0) return errno;
  if (::lstat(name.constData(), &there) != 0) return errno == ENOENT ? EAGAIN : errno;
  return here.st_dev == there.st_dev && here.st_ino == there.st_ino ? 0 : EAGAIN;
}

/// Removes a temporary file that a killed program left, or a link at its name. EAGAIN if it makes sense to try the name
/// again. On a file system without locks the file stays, since another program may be writing it.
int clearAway(const QByteArray& name) {
  const int file = ::open(name.constData(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
  int error = file < 0 ? errno : lock(file, name);
  if (error == 0 || error == ELOOP) error = errorNumber(::unlink(name.constData()));
  if (file >= 0) ::close(file);
  if (error == 0 || error == ENOENT) return EAGAIN;
  return lacksLocks(error) ? EEXIST : error;
}

/// Creates a file of that name and locks it.
int make(const QByteArray& name, int& file) {
  file = ::open(name.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
  if (file < 0) return errno == EEXIST ? clearAway(name) : errno;
  const int error = lock(file, name);
  if (error == 0 || lacksLocks(error)) return 0;
  if (error != EAGAIN) ::unlink(name.constData());
  ::close(file);
  return error;
}

/// The same, but waits up to a second while another program is writing the file.
int makeInTurn(const QByteArray& name, int& file) {
  constexpr int Tries = 200;
  constexpr std::chrono::milliseconds Pause{5};
  for (int i = 0; i < Tries; ++i) {
    if (i > 1) std::this_thread::sleep_for(Pause);
    const int error = make(name, file);
    if (error != EAGAIN) return error;
  }
  return EAGAIN;
}

}  // namespace

std::optional<FileError> replaceBytes(const QString& native, QByteArrayView bytes, AtLink atLink) {
  QByteArray target = QFile::encodeName(native);
  if (const int error = atLink == AtLink::Follow ? followLinks(target) : 0) return errorOf(error);
  struct stat old;
  const int looking = errorNumber(::lstat(target.constData(), &old));
  if (looking != 0 && looking != ENOENT) return errorOf(looking);
  const bool replacesLink = looking == 0 && S_ISLNK(old.st_mode) && atLink == AtLink::Replace;
  const bool replaces = looking == 0 && !replacesLink;
  if (replaces) {
    if (auto error = checkWritable(target, old)) return error;
  }

  const QByteArray name = target + TemporaryEnding;
  int file = -1;
  if (const int error = makeInTurn(name, file)) {
    if (error == EAGAIN) return FileError{QStringLiteral("Another program is writing this file")};
    struct stat left;
    if (::lstat(name.constData(), &left) != 0) return errorOf(error);
    return FileError{QStringLiteral("%1 is left from an earlier write and can't be removed: %2")
                         .arg(QFile::decodeName(name), errorOf(error)->description)};
  }
  int error = replaces ? keepOwnerAndMode(file, old) : 0;
  if (error == 0) error = writeAll(file, bytes);
  if (error == 0) error = flush(file);
  // The file is renamed while it is open, so that it stays locked. Closing can't fail to write: all is flushed.
  if (error == 0) error = errorNumber(::rename(name.constData(), target.constData()));
  if (error != 0) ::unlink(name.constData());
  ::close(file);
  return errorOf(error);
}

}  // namespace platform
