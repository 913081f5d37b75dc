#pragma once

#include <QString>
#include <QStringList>

namespace mainwindows {

/// The program's own settings: config.ini with the one key EXEDirectory in the section Setup. It lies in the program's
/// folder where it is there or can be made there, else in the user's own configuration folder.
class ConfigFile {
 public:
  /// Looks for the file in the folders, first to last, and makes it in the first that takes it: the two lines
  /// "[Setup]" and "EXEDirectory=". A folder is made only for that. Folders of a system's programs, and that of an
  /// installed program, are passed over unless the file is there already.
  explicit ConfigFile(const QStringList& folders);

  /// Path of the file; empty when no folder took it.
  const QString& path() const { return path_; }
  /// Why the file can't be made; empty if it is there.
  const QString& problem() const { return problem_; }

  /// The game folder of this run, else the stored one; empty until one was stored.
  QString gameFolder() const;
  /// Stores the game folder. One whose letters the code page lacks is stored as its UTF-8 bytes.
  /// Throws platform::Failure when it can't be stored.
  void setGameFolder(const QString& folder);
  /// Sets a game folder that isn't stored and holds until another one is chosen.
  void setFolderOfThisRun(const QString& folder) { folderOfThisRun_ = folder; }

 private:
  QString path_;
  QString problem_;
  QString folderOfThisRun_;
};

/// The program's folder, then the user's configuration folder.
QStringList configFolders();

}  // namespace mainwindows
