#include <algorithm>
#include <ctime>
#include <sys/stat.h>

#include <QFile>

#include "platform/failure.h"
#include "platform/file_identity.h"
#include "platform/paths.h"

namespace platform {

namespace {

qint64 nanosecondsOf(const timespec& time) {
  constexpr qint64 Second = 1'000'000'000;
  return static_cast<qint64>(time.tv_sec) * Second + time.tv_nsec;
}

bool look(const QString& native, struct stat& status) {
  return ::stat(QFile::encodeName(native).constData(), &status) == 0;
}

}  // namespace

std::optional<FileIdentity> identityOf(const QString& path) {
  struct stat status;
  const QString plain = plainPath(path);
  if (!look(plain, status) && !look(findPath(plain), status)) return std::nullopt;
  if (!S_ISREG(status.st_mode)) return std::nullopt;
#ifdef __APPLE__
  const timespec modified = status.st_mtimespec;
  const timespec changed = status.st_ctimespec;
#else
  const timespec modified = status.st_mtim;
  const timespec changed = status.st_ctim;
#endif
  return FileIdentity{static_cast<quint64>(status.st_dev), static_cast<quint64>(status.st_ino),
                      static_cast<qint64>(status.st_size), nanosecondsOf(modified), nanosecondsOf(changed)};
}

std::optional<FileIdentity> roughIdentityOf(const QString& path) {
  try {
    return identityOf(path);
  } catch (const Failure&) {
    return std::nullopt;
  }
}

bool isSettled(const FileIdentity& file) {
  constexpr qint64 ClockGrain = 2'000'000'000;
  timespec now{};
  return ::clock_gettime(CLOCK_REALTIME, &now) == 0 &&
         std::max(file.modified, file.changed) <= nanosecondsOf(now) - ClockGrain;
}

}  // namespace platform
