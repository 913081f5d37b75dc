#include <sys/stat.h>

#include "platform/file_identity.h"
#include "platform/file_names.h"
#include "platform/unix_errors.h"

namespace platform {

namespace {

qint64 nanosecondsOf(const timespec& time) {
  constexpr qint64 Second = 1'000'000'000;
  return static_cast<qint64>(time.tv_sec) * Second + time.tv_nsec;
}

}  // namespace

FileResult<std::optional<FileIdentity>> identityAt(const QString& native) {
  struct stat status;
  const auto looked = called(::stat(encodedName(native).constData(), &status));
  if (!looked && looked.error().number != ELOOP) return looked.error();
  if (!looked || !S_ISREG(status.st_mode)) return std::optional<FileIdentity>();
#ifdef Q_OS_DARWIN
  const timespec modified = status.st_mtimespec;
  const timespec changed = status.st_ctimespec;
#else
  const timespec modified = status.st_mtim;
  const timespec changed = status.st_ctim;
#endif
  return std::optional(FileIdentity{static_cast<quint64>(status.st_dev), static_cast<quint64>(status.st_ino),
                                    static_cast<qint64>(status.st_size), nanosecondsOf(modified),
                                    nanosecondsOf(changed)});
}

}  // namespace platform
