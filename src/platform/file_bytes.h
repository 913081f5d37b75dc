#pragma once

#include <optional>

#include <QByteArray>
#include <QByteArrayView>
#include <QFile>
#include <QString>
#include <QStringList>

#include "platform/at_link.h"

/// Files and folders by their native paths, without exceptions. One source file a kind of platform holds each part.
/// Only regular files are read and written; anything else is opened so that nothing waits for it, if at all.
namespace platform {

struct FileError {
  QString description;   ///< the platform's
  bool missing = false;  ///< nothing stands at the path; any other error leaves open whether something does
};

/// What stands at a path.
struct Look {
  bool stands = false;
  bool isFile = false;     ///< a regular one
  qint64 lastWritten = 0;  ///< in nanoseconds
};

/// Looks what stands at the path, with Replace at a link itself. Nothing there is no error.
std::optional<FileError> lookAt(const QString& native, AtLink atLink, Look& found);

/// The names in a folder without "." and "..", in any order.
std::optional<FileError> listNames(const QString& native, QStringList& names);

/// Reads the file whole; an error, or none. With Replace a link counts as missing.
std::optional<FileError> readBytes(const QString& native, AtLink atLink, QByteArray& bytes);

/// Opens the file for who reads it piece by piece.
std::optional<FileError> openBytes(const QString& native, QFile& file);

/// Puts the bytes in place of the file or makes it, by a flushed temporary file that is renamed over it. An error
/// leaves the old file whole and no temporary one. Fails where the old file may not be written.
std::optional<FileError> replaceBytes(const QString& native, QByteArrayView bytes, AtLink atLink);

}  // namespace platform
