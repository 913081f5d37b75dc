#pragma once

#include <vector>

#include <QSet>
#include <QString>

#include "renderer/prepared_pictures.h"
#include "themecheck/checked_theme.h"
#include "themecheck/drawn_screens.h"
#include "themecheck/findings.h"
#include "themecheck/steps.h"

namespace themecheck {

/// Finds what is wrong or unused in a theme with all its skins and languages, as its files stand. It uses the editor's
/// own readers and renderer, and writes nothing. The work is cut into steps, so that a caller can do other things in
/// between: a file, a texture, or a screen with one skin or in one language.
class ThemeCheck {
 public:
  /// `pictureBytes` is how much the prepared pictures may take.
  explicit ThemeCheck(ThemeFiles files, qsizetype pictureBytes = renderer::PreparedPictures::MostBytes);
  Q_DISABLE_COPY_MOVE(ThemeCheck)

  bool isDone() const { return steps_.isDone(); }
  /// What the next step is about: "Main Screen, Neon". Empty when it is done.
  QString next() const { return steps_.next(); }
  /// Does the next step.
  void step() { steps_.step(); }

  /// What was found so far, sorted by file and line. What has to do with several files is told at the end.
  std::vector<Finding> findings() const;
  /// The keys of all words that the theme uses, in upper case. None if it can't be read.
  QSet<QString> usedWords() const;
  bool isRead() const { return theme_.file.has_value(); }

 private:
  void readTheme();
  std::optional<IniFile> read(const CheckedFile& file);
  void checkFiles();
  void addScreens();

  CheckedTheme theme_;
  DrawingTools tools_;
  Findings findings_;
  Steps steps_;
};

}  // namespace themecheck
