#pragma once

#include <optional>

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

/// The bytes of one file by its native path, whole. One source file a kind of platform holds them.
namespace platform {

struct FileError {
  QString description;   ///< the platform's
  bool missing = false;  ///< nothing stands at the path
};

/// Reads the file; an error, or none.
std::optional<FileError> ReadBytes(const QString& native, QByteArray& bytes);

/// Puts the bytes in place of the file or makes it, by a flushed temporary file that is renamed over it. An error
/// leaves the old file whole and no temporary one.
std::optional<FileError> ReplaceBytes(const QString& native, QByteArrayView bytes);

}  // namespace platform
