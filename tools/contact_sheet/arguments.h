#pragma once

#include <optional>

#include <QString>
#include <QStringList>

namespace contactsheet {

/// What the command line asks for.
struct Arguments {
  QString gameFolder;
  QString theme;     ///< names of the files, without ".ini"
  QString skin;      ///< one of the theme's skins
  QString language;  ///< one of the game's languages
  QString outputFolder;
  QString scheme;                  ///< colour scheme; empty for the first
  std::optional<quint8> selected;  ///< number from 1 of the button to draw as selected
  QString answer;                  ///< usage or version, when that is all that is wanted
};

/// Throws platform::Failure for a command line that isn't one of this tool. The first of `words` is the program.
Arguments parseArguments(const QStringList& words);

}  // namespace contactsheet
