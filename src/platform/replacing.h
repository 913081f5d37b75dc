#pragma once

#include <optional>

#include <QByteArrayView>
#include <QString>

#include "platform/file_bytes.h"

namespace platform {

/// Who may read a new file, before it has the rights of another one.
enum class Readers {
  All,    ///< as many as of any new file of the user's
  Owner,  ///< the user alone
};

/// A program's turn at a file, from before it reads the file until it has replaced it: no other program that keeps to
/// turns replaces the file in between. What holds the turn is the locked temporary file beside the target, which a
/// replacement writes. A killed program loses its turn and leaves at most that one file, which the next turn removes.
class Turn {
 public:
  /// Waits up to a second for the turn, then opens the file. With Replace a link counts as missing, and a replacement
  /// takes its place. `readers` are those of a file that isn't there.
  static FileResult<Turn> take(const QString& native, AtLink atLink, Readers readers);
  Turn(Turn&&) noexcept = default;
  Turn& operator=(Turn&&) = delete;
  /// Gives the turn back. The temporary file goes, unless it has replaced the target.
  ~Turn();

  /// The file, as it was opened in this turn; null if there was none.
  const OpenFile* present() const { return present_ ? &*present_ : nullptr; }

  /// Replaces or creates the file, once: writes and flushes the temporary file, then renames it. On an error the old
  /// file is untouched. Fails if the user may not write the file, or if the owner's write bit is off (even for the
  /// superuser).
  ///
  /// A replaced file keeps its mode, owner, group, access list and extended attributes as far as the system permits.
  /// With `like` the new file is a copy of that one and gets its owner, group and access list instead: nobody can read
  /// it who can't read `like`, but its owner can write it.
  FileResult<> replace(QByteArrayView bytes, const OpenFile* like);

 private:
  Turn(QString target, QString temporary, FileHandle lock)
      : target_(std::move(target)), temporary_(std::move(temporary)), lock_(std::move(lock)) {}

  QString target_;     ///< native, links followed
  QString temporary_;  ///< native
  FileHandle lock_;    ///< the temporary file; closed once it has no use for the turn any more
  std::optional<OpenFile> present_;
};

}  // namespace platform
