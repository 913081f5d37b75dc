#pragma once

#include <optional>

#include <QString>
#include <QtGlobal>

#include "platform/file_result.h"

namespace platform {

/// Identifies a state of a file: differs between two files, and between a file before and after a change. Times are
/// nanoseconds since 1970.
struct FileIdentity {
  quint64 device = 0;
  quint64 number = 0;
  qint64 size = 0;
  qint64 modified = 0;
  qint64 changed = 0;  ///< when contents, name or permissions changed
  friend bool operator==(const FileIdentity&, const FileIdentity&) = default;
};

/// The identity of the file at the native path, links followed; none if what is there is no regular file. Each platform
/// has its own source.
FileResult<std::optional<FileIdentity>> identityAt(const QString& native);

/// The identity of the file at the program's path, links followed; none if there is no file. Throws Failure if it can't
/// be looked at.
std::optional<FileIdentity> identityOf(const QString& path);

/// The same, but none also if the file can't be looked at.
std::optional<FileIdentity> identityIfSeen(const QString& path);

/// Whether any further change is certain to change the times. False for two seconds after a change, since a coarse
/// clock may give the next change the same time, and for a change in the future.
bool isSettled(const FileIdentity& file);

}  // namespace platform
