#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include "platform/at_link.h"
#include "platform/file_handle.h"
#include "platform/file_result.h"

/// System calls on files and folders by their native paths. They throw nothing; each platform has its own sources. Only
/// regular files are opened. Opening a pipe or a device never blocks.
namespace platform {

/// What is at a path.
struct Look {
  bool exists = false;  ///< there is something
  bool isFile = false;  ///< a regular file
};

/// Looks up what is at the path. With Replace that is the link itself. Nothing there is no error.
FileResult<Look> lookAt(const QString& native, AtLink atLink);

/// The names in a folder without "." and "..", on Windows without hidden ones too, in any order.
FileResult<QStringList> listNames(const QString& native);

/// A regular file that is open for reading. All that it tells comes from this one opening.
class OpenFile {
 public:
  /// With Replace a link counts as missing.
  static FileResult<OpenFile> open(const QString& native, AtLink atLink);

  /// In bytes, and in nanoseconds since 1970, when the file was opened.
  qint64 size() const { return size_; }
  qint64 lastWritten() const { return lastWritten_; }

  /// The whole file.
  FileResult<QByteArray> bytes() const;
  /// Its first bytes, at most so many.
  FileResult<QByteArray> head(qsizetype most) const;

  const FileHandle& handle() const { return handle_; }

 private:
  OpenFile(FileHandle handle, qint64 size, qint64 lastWritten)
      : handle_(std::move(handle)), size_(size), lastWritten_(lastWritten) {}

  /// One read: gives how many bytes it got, 0 behind the end.
  FileResult<qsizetype> readAt(qsizetype place, char* to, qsizetype most) const;

  FileHandle handle_;
  qint64 size_;
  qint64 lastWritten_;
};

}  // namespace platform
