#pragma once

#include <array>

#include <QByteArray>
#include <QString>

namespace themefiles {

struct NamedColor {
  QString Name;
  QString Value;  ///< colour string, red first: "150 150 150"
};

/// One screen of the game: what the user sees, and the head of its sections' names.
struct ScreenRow {
  QString Name;
  QString Stem;
};

/// The files of a theme. While a theme is open the three files are the working copies, ending in ".tmp".
struct ThemePaths {
  QString ExeDirectory;        ///< game folder, with a trailing separator
  QString LanguagesDirectory;  ///< ExeDirectory + "\Languages"; the doubled separator stays
  QString ThemeFile;
  QString SkinDirectory;  ///< where skin files and textures lie, without a trailing separator
  QString SkinFile;
  QString LanguageFile;
};

/// Which tags of a screen's run are listed: comma lists, set only during one ReadTags.
struct TagFilter {
  QString SkipTags;
  QString SkipTagParts;
  QString OnlyTags;
  QString OnlyTagParts;
};

/// Values of the selected section as far as the highlighting cursor needs them, as they stand in the file.
struct CursorRecord {
  QString X, Y, W, H, Text;
  qint16 Size = 0;
  quint8 Font = 0;
};

/// What the program holds beside the files and its windows; lives for the whole run.
struct ModuleState {
  ThemePaths paths;
  bool ThemeOpened = false;  ///< the working copies exist and Paths name them
  bool Changed = false;      ///< a value has been committed since the last Save
  /// Digests of theme, skin and language file as they were at Open or the last Save.
  std::array<QByteArray, 3> fileDigests;
  /// The working copies of the three as this program wrote them last: by them it sees that another one has, too.
  std::array<QByteArray, 3> ownCopies;
  /// The same as Open or Save last copied them: by them the user sees what differs, and gets it back.
  std::array<QByteArray, 3> savedCopies;

  quint32 BackgroundColor = 0xFFFFFF;  ///< red in the low byte

  std::array<NamedColor, 100> ThemeColors;
  std::array<NamedColor, 18> PlayerColors;
  std::array<NamedColor, 27> BaseColors;
  std::array<ScreenRow, 32> ScreenTable;
  TagFilter Filter;

  CursorRecord CursorRect;
  bool EditorShown = false;  ///< an editor frame of the tool window is open

  qint16 ProgressStep = 0;        ///< percent added for each object drawn
  quint8 SelectedButton = 0;      ///< number from 1 of the button drawn as selected
  quint8 ButtonCount = 0;         ///< visible buttons counted so far
  bool ButtonListFilled = false;  ///< the button list belongs to the present screen
};

}  // namespace themefiles
