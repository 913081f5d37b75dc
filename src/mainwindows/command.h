#pragma once

#include <span>

#include <QStringView>

namespace mainwindows {

class Form1;
class Loupe;
class PreviewHand;
class ScreenRefresh;
class ThemeReview;

/// What the main window can be told to do.
enum class Command {
  Open,
  Save,
  Close,
  BackgroundColor,
  AnotherFolder,
  Refresh,
  OtherWindow,
  Find,
  Loupe,
  LargerLoupe,
  Changes,
  Faults,
  NextFault,
  SideBySide,
  Guides,
  AlignLeftEdges,
  AlignCentresAcross,
  AlignRightEdges,
  AlignUpperEdges,
  AlignCentresDown,
  AlignLowerEdges,
  SpaceAcross,
  SpaceDown,
  SameWidths,
  SameHeights
};

/// When a command runs.
enum class CommandTime {
  Waits,   ///< for the end of a drawing
  AtOnce,  ///< in the middle of a drawing, too
  Beside,  ///< the same, and what is in the hand stays there
};

/// What a command works on.
struct CommandTargets {
  Form1& form;
  ScreenRefresh& refresh;
  mainwindows::Loupe& loupe;
  ThemeReview& review;
  PreviewHand& hand;
};

/// All that the program knows of a command.
struct CommandRow {
  Command command;
  void (*run)(const CommandTargets& targets);
  CommandTime time = CommandTime::Waits;
  bool needsTheme = false;    ///< does nothing without an open theme
  QStringView keys = u"";     ///< empty for none
  QStringView menu = u"";     ///< its entry in the preview's menu; empty for none
  int button = 0;             ///< its number on the toolbar, from 1; 0 for none
  QStringView icon = u"";     ///< the button's, by the name of the asset
  QStringView toolTip = u"";  ///< the button's
};

using CommandRows = std::span<const CommandRow>;

}  // namespace mainwindows
