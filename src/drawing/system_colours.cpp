#include "drawing/system_colours.h"

#include <array>

namespace drawing {

namespace {

constexpr std::array<QRgb, 25> Palette = {
    qRgb(212, 208, 200),  // scroll bar
    qRgb(58, 110, 165),   // desktop
    qRgb(10, 36, 106),    // active caption
    qRgb(128, 128, 128),  // inactive caption
    qRgb(212, 208, 200),  // menu
    qRgb(255, 255, 255),  // window
    qRgb(0, 0, 0),        // window frame
    qRgb(0, 0, 0),        // menu text
    qRgb(0, 0, 0),        // window text
    qRgb(255, 255, 255),  // caption text
    qRgb(212, 208, 200),  // active border
    qRgb(212, 208, 200),  // inactive border
    qRgb(128, 128, 128),  // workspace
    qRgb(10, 36, 106),    // highlight
    qRgb(255, 255, 255),  // highlight text
    qRgb(212, 208, 200),  // button face
    qRgb(128, 128, 128),  // button shadow
    qRgb(128, 128, 128),  // grey text
    qRgb(0, 0, 0),        // button text
    qRgb(212, 208, 200),  // inactive caption text
    qRgb(255, 255, 255),  // button highlight
    qRgb(64, 64, 64),     // dark shadow
    qRgb(212, 208, 200),  // light 3D
    qRgb(0, 0, 0),        // tip text
    qRgb(255, 255, 225),  // tip
};

}  // namespace

QColor systemColor(SystemColor color) {
  return QColor(Palette.at(static_cast<std::size_t>(color)));
}

QColor colorOf(quint32 value) {
  if (value & SystemColorBit) {
    const std::size_t index = value & 0xFF;
    return index < Palette.size() ? QColor(Palette.at(index)) : QColor(0, 0, 0);
  }
  const auto channel = [value](int shift) { return static_cast<int>(value >> shift & 0xFF); };
  return QColor(channel(0), channel(8), channel(16));
}

quint32 colorValue(const QColor& color) {
  return color.red() | color.green() << 8 | color.blue() << 16;
}

}  // namespace drawing
