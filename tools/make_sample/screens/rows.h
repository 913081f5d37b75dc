#pragma once

#include <string>
#include <vector>

namespace sample {

/// The rectangle of an object in theme units.
struct Place {
  int x = 0, y = 0, w = 0, h = 0;
};

// Names of objects are given without the screen's stem. `more` holds further lines of the section, parted by "|".

struct StaticRow {
  std::string name;
  std::string tex;
  Place at;
  std::string color;
  std::string type = "Transparent";
  std::string more = {};
};

struct TextRow {
  std::string name;
  int x = 0, y = 0;
  int font = 0;
  int size = 10;
  int align = 0;
  std::string color;  // empty where `more` gives the channels
  std::string key;    // of the words in the language files
  std::string more = {};
};

/// How a button is coloured in its two states.
struct ButtonLook {
  std::string type;
  std::string color, intensity;
  std::string deselectedColor, deselectedIntensity;
};

struct ButtonRow {
  std::string name;
  std::string tex;
  Place at;
  ButtonLook look;
  std::vector<TextRow> texts = {};  // their names are their numbers
  std::string more = {};
};

/// A section that only the game itself shows.
struct OtherRow {
  std::string name;
  std::string lines;
};

enum class Side { None, Left, Middle, Right };

/// The bar at the top with title and sign, and the line of help at the bottom.
struct Chrome {
  Side side = Side::None;
  std::string title = {};
  std::string help = {};
  std::string glyph = {};
  std::string tint = "ColorDark";
};

struct Screen {
  std::string stem;
  Chrome chrome = {};
  std::vector<StaticRow> statics = {};
  std::vector<TextRow> texts = {};
  std::vector<ButtonRow> buttons = {};
  std::vector<OtherRow> others = {};
  std::string more = {};            // of the screen's own section
  std::string backgroundMore = {};  // of its background
  std::string staticsMore = {};     // of each of its statics
};

inline const ButtonLook HueLook = {"Colorized", "Accent", "1", "ColorDark", "0.7"};
inline const ButtonLook InkLook = {"Font Black", "Accent", "1", "White", "0.6"};
inline const ButtonLook FrameLook = {"Colorized", "Accent", "1", "ColorLight", "0.7"};

/// The head with the number behind it, such as "Team2".
std::string numbered(const std::string& head, int number);

/// The `Y` that puts a line of text in the middle of a box of the given height.
constexpr int middleOf(int height, int font, int size) {
  const double line = size * (font == 1 ? 2.0 : 1.4) * 96 / 72 * 1.17;
  return static_cast<int>(height / 2.0 - 0.7 * line);
}

/// The one caption of a button, in its middle.
inline TextRow caption(const Place& button, const std::string& key, int font = 0, int size = 11) {
  return {"1", button.w / 2, middleOf(button.h, font, size), font, size, 1, "White", key};
}

}  // namespace sample
