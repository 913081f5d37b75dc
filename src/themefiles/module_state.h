#pragma once

#include <array>

#include <QByteArray>
#include <QString>

namespace themefiles {

struct NamedColor {
  QString Name;
  QString Value;  ///< red, green and blue: "150 150 150"
};

/// A screen of the game: the name that the user sees, and the start of its sections' names.
struct ScreenRow {
  QString Name;
  QString Stem;
};

/// The files of a theme. While a theme is open, the three files are its working copies (".tmp").
struct ThemePaths {
  QString ExeDirectory;        ///< the game folder, with a separator at its end
  QString LanguagesDirectory;  ///< ExeDirectory + "\Languages"; the doubled separator stays
  QString ThemeFile;
  QString SkinDirectory;  ///< the folder of skin files and textures, without a separator at its end
  QString SkinFile;
  QString LanguageFile;
};

/// Which tags of a screen are listed. The fields are lists separated by commas. Set only during ReadTags.
struct TagFilter {
  QString SkipTags;
  QString SkipTagParts;
  QString OnlyTags;
  QString OnlyTagParts;
};

/// The values of the selected section that its mark needs, as they are in the file.
struct CursorRecord {
  QString X, Y, W, H, Text;
  qint16 Size = 0;
  quint8 Font = 0;
};

/// The program's state outside its files and windows. There is one while the program runs.
struct ModuleState {
  ThemePaths paths;
  bool ThemeOpened = false;  ///< the working copies exist, and `paths` names them
  bool Changed = false;      ///< a value has been committed since the last Save
  /// Digests of the theme, skin and language file at Open or the last Save. They show changes by other programs.
  std::array<QByteArray, 3> fileDigests;
  /// The working copies as this program last wrote them. They show changes by other programs.
  std::array<QByteArray, 3> ownCopies;
  /// The working copies at Open or the last Save. They show what the user has changed, and bring it back.
  std::array<QByteArray, 3> savedCopies;

  quint32 BackgroundColor = 0xFFFFFF;  ///< red in the low byte

  std::array<NamedColor, 100> ThemeColors;
  std::array<NamedColor, 18> PlayerColors;
  std::array<NamedColor, 27> BaseColors;
  std::array<ScreenRow, 32> ScreenTable;
  TagFilter Filter;

  CursorRecord CursorRect;
  bool EditorShown = false;  ///< an editor frame of the tool window is open

  qint16 ProgressStep = 0;        ///< per cent for each object drawn
  quint8 SelectedButton = 0;      ///< the button drawn as selected, counted from 1
  quint8 ButtonCount = 0;         ///< visible buttons so far
  bool ButtonListFilled = false;  ///< the button list is that of the current screen
};

}  // namespace themefiles
