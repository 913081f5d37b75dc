#pragma once

#include <optional>

#include <QByteArray>
#include <QByteArrayView>
#include <QFile>
#include <QString>
#include <QStringList>

#include "platform/at_link.h"

/// System calls on files and folders by their native paths. They return errors and throw nothing; each platform has its
/// own sources. Only regular files are read and written. Opening a pipe or a device never blocks.
namespace platform {

struct FileError {
  QString description;   ///< the system's own text
  bool missing = false;  ///< there is nothing at the path; after any other error there may be something
};

/// What is at a path.
struct Look {
  bool stands = false;     ///< there is something
  bool isFile = false;     ///< a regular file
  qint64 lastWritten = 0;  ///< in nanoseconds since 1970
};

/// Looks up what is at the path. With Replace that is the link itself. Nothing there is no error.
std::optional<FileError> lookAt(const QString& native, AtLink atLink, Look& found);

/// Appends the names in a folder without "." and "..", in any order.
std::optional<FileError> listNames(const QString& native, QStringList& names);

/// Reads the whole file. With Replace a link counts as missing.
std::optional<FileError> readBytes(const QString& native, AtLink atLink, QByteArray& bytes);

/// Opens the file for reading piece by piece.
std::optional<FileError> openBytes(const QString& native, QFile& file);

/// Replaces or creates the file: writes and flushes a temporary file, then renames it. On an error the old file is
/// untouched and the temporary one is removed. Fails if the old file may not be written.
std::optional<FileError> replaceBytes(const QString& native, QByteArrayView bytes, AtLink atLink);

}  // namespace platform
