#pragma once

#include <optional>

#include <QString>
#include <QtGlobal>

namespace platform {

/// What tells a file, as it is now, from any other and from itself before a change. Times are nanoseconds since 1970.
struct FileIdentity {
  quint64 device = 0;
  quint64 number = 0;
  qint64 size = 0;
  qint64 modified = 0;
  qint64 changed = 0;  ///< of the bytes, the name or the rights
  friend bool operator==(const FileIdentity&, const FileIdentity&) = default;
};

/// The identity of the file at the program's path, links followed. None without a file there, and on a platform that
/// can't tell all of it.
std::optional<FileIdentity> identityOf(const QString& path);

/// Whether the last change lies far enough back, seen from now, for every further one to show in the times. It doesn't
/// after a change less than two seconds ago, which a coarse clock may give the time of the next one, or in the future.
bool isSettled(const FileIdentity& file);

}  // namespace platform
