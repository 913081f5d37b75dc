#include "screens/theme_writer.h"

#include <algorithm>

namespace sample {

namespace {

struct ChromePlaces {
  Side side;
  int glyphX, titleX, align;
};

constexpr ChromePlaces Places[] = {
    {Side::Left, 18, 78, 0},
    {Side::Middle, 18, 400, 1},
    {Side::Right, 734, 720, 2},
};

std::string header(const std::string& name) {
  return "[" + name + "]\n";
}

std::string line(const std::string& key, const std::string& value) {
  return key + "=" + value + "\n";
}

std::string line(const std::string& key, int value) {
  return line(key, std::to_string(value));
}

std::string moreLines(std::string lines) {
  if (lines.empty()) return {};
  std::replace(lines.begin(), lines.end(), '|', '\n');
  return lines + "\n";
}

std::string placeLines(const Place& at) {
  return line("X", at.x) + line("Y", at.y) + line("W", at.w) + line("H", at.h);
}

std::string staticText(const Screen& screen, const StaticRow& row) {
  return header(screen.stem + row.name) + line("Tex", row.tex) + placeLines(row.at) + line("Color", row.color) +
         line("Type", row.type) + moreLines(row.more) + moreLines(screen.staticsMore) + "\n";
}

std::string textText(const std::string& section, const TextRow& row) {
  return header(section) + line("X", row.x) + line("Y", row.y) + line("Font", row.font) + line("Size", row.size) +
         line("Align", row.align) + (row.color.empty() ? std::string() : line("Color", row.color)) +
         line("Text", row.key) + moreLines(row.more) + "\n";
}

std::string buttonText(const std::string& stem, const ButtonRow& row) {
  const std::string section = stem + row.name;
  int lastChild = 0;
  for (const TextRow& text : row.texts) lastChild = std::max(lastChild, std::stoi(text.name));
  std::string lines = header(section) + line("Tex", row.tex) + placeLines(row.at) + line("Color", row.look.color) +
                      line("INT", row.look.intensity) + line("DColor", row.look.deselectedColor) +
                      line("DINT", row.look.deselectedIntensity) + line("Type", row.look.type) +
                      line("Texts", lastChild) + moreLines(row.more) + "\n";
  for (const TextRow& text : row.texts) lines += textText(section + "Text" + text.name, text);
  return lines;
}

Screen withChrome(Screen screen) {
  const Chrome& chrome = screen.chrome;
  for (const ChromePlaces& places : Places) {
    if (places.side != chrome.side) continue;
    const std::vector<StaticRow> statics = {
        {"StaticBar", "TitleBar", {0, 0, 800, 72}, chrome.tint, "Colorized", "Z=0.1"},
        {"StaticFoot", "FootBar", {0, 556, 800, 44}, "White", "Transparent", "Z=0.1"},
        {"StaticIcon", chrome.glyph, {places.glyphX, 8, 48, 48}, "Gold", "Font Black", "Z=0.2"},
    };
    const std::vector<TextRow> texts = {
        {"TextHelp", 20, 565, 0, 8, 0, "Muted", chrome.help},
        {"TextTitle", places.titleX, middleOf(64, 1, 13), 1, 13, places.align, "Title", chrome.title},
    };
    screen.statics.insert(screen.statics.begin(), statics.begin(), statics.end());
    screen.texts.insert(screen.texts.begin(), texts.begin(), texts.end());
  }
  return screen;
}

}  // namespace

std::string numbered(const std::string& head, int number) {
  return head + std::to_string(number);
}

std::string screenText(const Screen& screen) {
  const Screen whole = withChrome(screen);
  std::string text = header(whole.stem) + line("Statics", static_cast<int>(whole.statics.size())) +
                     line("Texts", static_cast<int>(whole.texts.size())) + moreLines(whole.more) + "\n" +
                     header(whole.stem + "Background") + line("Tex", whole.stem + "BG") +
                     moreLines(whole.backgroundMore) + "\n";
  for (const StaticRow& row : whole.statics) text += staticText(whole, row);
  for (const TextRow& row : whole.texts) text += textText(whole.stem + row.name, row);
  for (const ButtonRow& row : whole.buttons) text += buttonText(whole.stem, row);
  for (const OtherRow& row : whole.others) text += header(whole.stem + row.name) + moreLines(row.lines) + "\n";
  return text;
}

}  // namespace sample
