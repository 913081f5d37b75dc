#pragma once

#include <optional>

#include <QString>
#include <QtGlobal>

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

/// The identity of the file at the program's path, links followed. None if there is no file, or on a platform that
/// doesn't know all of these values.
std::optional<FileIdentity> identityOf(const QString& path);

/// As much of that as the platform knows: enough to notice that a file was written. None also if the file can't be
/// looked at.
std::optional<FileIdentity> roughIdentityOf(const QString& path);

/// Whether any further change is certain to change the times. False for two seconds after a change, since a coarse
/// clock may give the next change the same time, and for a change in the future.
bool isSettled(const FileIdentity& file);

}  // namespace platform
