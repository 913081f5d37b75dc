#pragma once

#include <QFont>
#include <QString>

namespace progressbar {

/// What a progress bar shows, and how. Colours are 32-bit values with red in the low byte.
struct Properties {
  int Value = 0;
  int max = 0;
  int min = 0;
  int RoundedValue = 0;  ///< diameter of the corners in pixels
  bool Enabled = false;
  int Theme = 0;          ///< 1 to 9 a fixed palette, 10 the two custom colours
  int TextStyle = 0;      ///< 1 the value, 2 percent, 3 Text
  int Orientations = 0;   ///< 1 horizontal, 2 vertical
  int TextAlignment = 0;  ///< 1 to 9, column by column from the top left
  QString Text;
  quint32 TextEffectColor = 0;
  int TextEffect = 0;  ///< 1 to 5
  quint32 TextForeColor = 0;
  QFont TextFont;
  quint32 PBSCustomeColor1 = 0;  ///< bar of Theme 10
  quint32 PBSCustomeColor2 = 0;  ///< track of Theme 10
};

}  // namespace progressbar
