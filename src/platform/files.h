#pragma once

#include <optional>

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QStringList>

#include "platform/replacing.h"

/// Whole files by the program's paths (see paths.h). Only regular files count: a folder, a pipe or a device is no file
/// and never blocks. A failure is thrown as Failure, with the system's description.
namespace platform {

/// The file, open for reading.
OpenFile openFile(const QString& path);

/// The file, open for reading, or none if there is nothing at the path; with Replace also if there is a link. None
/// means for certain that there is no file.
std::optional<OpenFile> openIfThere(const QString& path, AtLink atLink = AtLink::Follow);

/// All bytes of an open file. The path is for the failure.
QByteArray bytesOf(const OpenFile& file, const QString& path);

/// All bytes of the file that openFile or openIfThere would open.
QByteArray readFile(const QString& path);
std::optional<QByteArray> readIfThere(const QString& path, AtLink atLink = AtLink::Follow);

/// The turn at a file for what depends on its text: from reading to replacing it. No other program of this kind changes
/// the file in between, so that of two edits at the same moment none is lost. A working copy's turn is taken before
/// that of its game file, and both before that of a file that is kept beside.
class FileTurn {
 public:
  /// Waits up to a second for the turn, then reads the file. Fails if the folder doesn't exist or can't be written.
  explicit FileTurn(const QString& path, AtLink atLink = AtLink::Follow);

  /// What stands in the file; none if there is nothing at the path, with Replace also if there is a link.
  const std::optional<QByteArray>& text() const { return text_; }
  /// The same as a file; null for none.
  const OpenFile* present() const { return turn_.present(); }

  /// Replaces or creates the file, once (see Turn::replace). At any instant either the old file or the new one is there
  /// as a whole. Fails if the user may not write the file, or if the owner's write bit is off (even for the superuser).
  /// With Replace a new file that isn't like another one is its user's alone.
  void replace(QByteArrayView bytes, const OpenFile* like = nullptr);

 private:
  QString path_;
  Turn turn_;
  std::optional<QByteArray> text_;
};

/// Replaces or creates the file, whatever stands in it.
void writeFile(const QString& path, QByteArrayView bytes, AtLink atLink = AtLink::Follow);

/// Creates the file unless it is there. What another program puts in it at the same moment stays.
void makeFile(const QString& path, QByteArrayView bytes);

/// Whether there is a file at the path.
bool fileExists(const QString& path);

/// Whether the folder holds a file that isn't hidden. The path must end in a separator. False if the folder can't be
/// listed.
bool folderHoldsFiles(const QString& folder);

/// The names of the files in `folder` that end in `ending` in any case (".ini"), without hidden ones, sorted by
/// nameLess and then by their bytes. Empty for a missing folder.
QStringList listFiles(const QString& folder, const QString& ending);

}  // namespace platform
