#pragma once

#include <variant>

#include <QFont>
#include <QString>
#include <QStringView>

namespace progressbar {

/// The properties of a progress bar. Colours have red in the low byte.
struct Properties {
  int Value = 0;
  int max = 0;
  int min = 0;
  int RoundedValue = 0;  ///< diameter of the corners in pixels
  bool Enabled = false;
  int Theme = 0;          ///< 1 to 9 a fixed palette, 10 the two custom colours
  int TextStyle = 0;      ///< 1 the value, 2 percent, 3 Text
  int Orientations = 0;   ///< 1 horizontal, 2 vertical
  int TextAlignment = 0;  ///< 1 to 9: top left, middle left, bottom left, top centre and so on
  QString Text;
  quint32 TextEffectColor = 0;
  int TextEffect = 0;  ///< 1 to 5
  quint32 TextForeColor = 0;
  QFont TextFont;
  quint32 PBSCustomeColor1 = 0;  ///< the filled part in Theme 10
  quint32 PBSCustomeColor2 = 0;  ///< the track in Theme 10
};

/// A property of any type.
using Property = std::variant<int Properties::*, bool Properties::*, quint32 Properties::*, QString Properties::*,
                              QFont Properties::*>;

struct PropertyRow {
  QStringView key;  ///< for storing, and for PropertyChanged
  Property property;
};

/// All properties in the order of reading and storing. Value comes after its range.
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
