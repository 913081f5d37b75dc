#include <chrono>
#include <cstdio>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

#include "platform/file_access_unix.h"
#include "platform/file_names.h"
#include "platform/replacing.h"
#include "platform/unix_errors.h"

namespace platform {

namespace {

/// Added to a file's name, it names the temporary file. The name is always the same, so that killed programs leave at
/// most one such file behind, and the next turn removes it.
constexpr char TemporaryEnding[] = ".unfinished";

constexpr mode_t ForAll = 0666;  // less what the user's mask takes
constexpr mode_t ForOwner = 0600;

FileResult<> writeAll(const FileHandle& file, QByteArrayView bytes) {
  while (!bytes.isEmpty()) {
    const ssize_t put = ::write(static_cast<int>(file.value()), bytes.data(), static_cast<size_t>(bytes.size()));
    if (put < 0 && errno == EINTR) continue;
    if (put < 0) return systemError();
    bytes = bytes.sliced(put);
  }
  return Done();
}

/// It is no error if the file system has no flush.
FileResult<> flush(const FileHandle& file) {
  const auto flushed = called(::fsync(static_cast<int>(file.value())));
  const bool hasNone = !flushed && (flushed.error().number == EINVAL || flushed.error().number == ENOTSUP);
  return hasNone ? Done() : flushed;
}

/// The final target of a symbolic link, whether that exists or not; else the path itself.
FileResult<QByteArray> followLinks(QByteArray path) {
  constexpr int LongestChain = 40;
  for (int i = 0; i < LongestChain; ++i) {
    QByteArray behind(4096, Qt::Uninitialized);
    const ssize_t length = ::readlink(path.constData(), behind.data(), static_cast<size_t>(behind.size()));
    // EINVAL: no link. ENOENT: nothing there.
    if (length < 0 && (errno == EINVAL || errno == ENOENT)) return path;
    if (length < 0) return systemError();
    behind.truncate(length);
    path = behind.startsWith('/') ? behind : path.left(path.lastIndexOf('/') + 1) + behind;
  }
  return systemError(ELOOP);
}

bool lacksLocks(int error) {
  return error == ENOLCK || error == EBADF || error == EINVAL || error == ENOTSUP || error == ENOSYS;
}

/// Locks an open temporary file. The lock shows that a running program has its turn. EAGAIN if another program has the
/// lock, or if the name no longer leads to this file.
FileResult<> lock(const FileHandle& file, const QByteArray& name) {
  struct stat here;
  struct stat there;
  const auto locked = called(::flock(static_cast<int>(file.value()), LOCK_EX | LOCK_NB));
  if (!locked) return locked.error().number == EWOULDBLOCK ? systemError(EAGAIN) : locked.error();
  if (::fstat(static_cast<int>(file.value()), &here) != 0) return systemError();
  if (::lstat(name.constData(), &there) != 0) return systemError(errno == ENOENT ? EAGAIN : errno);
  if (here.st_dev != there.st_dev || here.st_ino != there.st_ino) return systemError(EAGAIN);
  return Done();
}

/// Removes a temporary file that a killed program left, or a link at its name. Gives EAGAIN if it makes sense to try
/// the name again. On a file system without locks the file stays, since another program may be writing it.
FileError clearAway(const QByteArray& name) {
  constexpr int Flags = O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
  FileHandle file(::open(name.constData(), O_RDWR | Flags));  // some file systems lock only what can be written
  if (!file.isOpen()) file = FileHandle(::open(name.constData(), O_RDONLY | Flags));
  auto cleared = file.isOpen() ? lock(file, name) : systemError();
  if (cleared || cleared.error().number == ELOOP) cleared = called(::unlink(name.constData()));
  if (cleared || cleared.error().number == ENOENT) return systemError(EAGAIN);
  // Another user's may be in use, too.
  if (cleared.error().number == EACCES) return {cleared.error().description, false, EEXIST};
  return lacksLocks(cleared.error().number) ? systemError(EEXIST) : cleared.error();
}

/// Creates a file of that name and locks it.
FileResult<FileHandle> make(const QByteArray& name, mode_t mode) {
  FileHandle file(::open(name.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode));
  if (!file.isOpen()) return errno == EEXIST ? clearAway(name) : systemError();
  const auto locked = lock(file, name);
  if (locked || lacksLocks(locked.error().number)) return file;
  if (locked.error().number != EAGAIN) ::unlink(name.constData());
  return locked.error();
}

/// The same, but waits up to a second while another program has its turn.
FileResult<FileHandle> makeInTurn(const QByteArray& name, mode_t mode) {
  using Clock = std::chrono::steady_clock;
  constexpr std::chrono::milliseconds Pause{5};
  const auto end = Clock::now() + std::chrono::seconds(1);
  for (bool first = true;; first = false) {
    auto made = make(name, mode);
    const bool taken = !made && (made.error().number == EAGAIN || made.error().number == EEXIST);
    if (!taken || Clock::now() > end) return made;
    if (!first) std::this_thread::sleep_for(Pause);
  }
}

/// What a failed makeInTurn tells.
FileError withoutTurn(const QByteArray& name, const FileError& error) {
  if (error.number == EAGAIN) return {QStringLiteral("Another program is writing this file")};
  struct stat left;
  if (::lstat(name.constData(), &left) != 0) return error;
  return {QStringLiteral("%1 is left from an earlier write and can't be removed: %2")
              .arg(decodedName(name), error.description)};
}

}  // namespace

FileResult<Turn> Turn::take(const QString& native, AtLink atLink, Readers readers) {
  const auto target = atLink == AtLink::Follow ? followLinks(encodedName(native)) : encodedName(native);
  if (!target) return target.error();
  // What replaces a file is nobody else's until it has the rights of that.
  struct stat old;
  const auto looked = called(::lstat(target->constData(), &old));
  if (!looked && !looked.isMissing()) return looked.error();
  const QByteArray temporary = *target + TemporaryEnding;
  const bool replaces = looked && !S_ISLNK(old.st_mode);
  auto file = makeInTurn(temporary, replaces || readers == Readers::Owner ? ForOwner : ForAll);
  if (!file) return withoutTurn(temporary, file.error());
  Turn turn(decodedName(*target), decodedName(temporary), std::move(*file));
  auto present = OpenFile::open(turn.target_, AtLink::Replace);
  if (!present && !present.isMissing()) return present.error();
  if (present) turn.present_ = std::move(*present);
  return turn;
}

Turn::~Turn() {
  if (lock_.isOpen() && !temporary_.isEmpty()) ::unlink(encodedName(temporary_).constData());
}

FileResult<> Turn::replace(QByteArrayView bytes, const OpenFile* like) {
  FileResult<> done = present_ ? checkWritable(encodedName(target_), *present_) : Done();
  if (done && like) done = copyAccess(lock_, *like);
  if (done && !like && present_) done = keepAttributes(lock_, *present_);
  if (done) done = writeAll(lock_, bytes);
  if (done) done = flush(lock_);
  // The file is renamed while it is open, so that it stays locked. Closing can't fail to write: all is flushed.
  if (done) done = called(::rename(encodedName(temporary_).constData(), encodedName(target_).constData()));
  if (!done) return done;
  temporary_.clear();
  // There are servers that let nobody read a locked file, this program included.
  lock_ = FileHandle();
  return done;
}

}  // namespace platform
