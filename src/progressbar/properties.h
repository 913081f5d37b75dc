#pragma once

#include <variant>

#include <QFont>
#include <QString>
#include <QStringView>

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

/// One property of any of the types in use.
using Property = std::variant<int Properties::*, bool Properties::*, quint32 Properties::*, QString Properties::*,
                              QFont Properties::*>;

struct PropertyRow {
  QStringView key;  ///< under which it is stored, and told by PropertyChanged
  Property property;
};

/// All of them, in the order in which they are read and stored: Value after its range.
inline constexpr PropertyRow PropertyRows[] = {
    {u"Max", &Properties::max},
    {u"Min", &Properties::min},
    {u"Value", &Properties::Value},
    {u"RoundedValue", &Properties::RoundedValue},
    {u"Enabled", &Properties::Enabled},
    {u"Theme", &Properties::Theme},
    {u"TextStyle", &Properties::TextStyle},
    {u"Orientations", &Properties::Orientations},
    {u"Text", &Properties::Text},
    {u"TextEffectColor", &Properties::TextEffectColor},
    {u"TextEffect", &Properties::TextEffect},
    {u"TextAlignment", &Properties::TextAlignment},
    {u"TextFont", &Properties::TextFont},
    {u"TextForeColor", &Properties::TextForeColor},
    {u"PBSCustomeColor2", &Properties::PBSCustomeColor2},
    {u"PBSCustomeColor1", &Properties::PBSCustomeColor1},
};

}  // namespace progressbar
