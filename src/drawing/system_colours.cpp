#include "drawing/system_colours.h"

#include <array>

#include "platform/row_order.h"

namespace drawing {

namespace {

struct PaletteRow {
  SystemColor color;
  QRgb rgb;
};

constexpr auto Palette = std::to_array<PaletteRow>({
    {SystemColor::ScrollBar, qRgb(212, 208, 200)},
    {SystemColor::Desktop, qRgb(58, 110, 165)},
    {SystemColor::ActiveCaption, qRgb(10, 36, 106)},
    {SystemColor::InactiveCaption, qRgb(128, 128, 128)},
    {SystemColor::Menu, qRgb(212, 208, 200)},
    {SystemColor::Window, qRgb(255, 255, 255)},
    {SystemColor::WindowFrame, qRgb(0, 0, 0)},
    {SystemColor::MenuText, qRgb(0, 0, 0)},
    {SystemColor::WindowText, qRgb(0, 0, 0)},
    {SystemColor::CaptionText, qRgb(255, 255, 255)},
    {SystemColor::ActiveBorder, qRgb(212, 208, 200)},
    {SystemColor::InactiveBorder, qRgb(212, 208, 200)},
    {SystemColor::Workspace, qRgb(128, 128, 128)},
    {SystemColor::Highlight, qRgb(10, 36, 106)},
    {SystemColor::HighlightText, qRgb(255, 255, 255)},
    {SystemColor::ButtonFace, qRgb(212, 208, 200)},
    {SystemColor::ButtonShadow, qRgb(128, 128, 128)},
    {SystemColor::GreyText, qRgb(128, 128, 128)},
    {SystemColor::ButtonText, qRgb(0, 0, 0)},
    {SystemColor::InactiveCaptionText, qRgb(212, 208, 200)},
    {SystemColor::ButtonHighlight, qRgb(255, 255, 255)},
    {SystemColor::DarkShadow, qRgb(64, 64, 64)},
    {SystemColor::Light, qRgb(212, 208, 200)},
    {SystemColor::TipText, qRgb(0, 0, 0)},
    {SystemColor::Tip, qRgb(255, 255, 225)},
});
static_assert(platform::inOrder(Palette, &PaletteRow::color, SystemColor::Tip));

}  // namespace

QColor systemColor(SystemColor color) {
  return QColor(Palette.at(static_cast<std::size_t>(color)).rgb);
}

QColor colorOf(quint32 value) {
  if (value & SystemColorBit) {
    const std::size_t index = value & 0xFF;
    return index < Palette.size() ? QColor(Palette.at(index).rgb) : QColor(0, 0, 0);
  }
  const auto channel = [value](int shift) { return static_cast<int>(value >> shift & 0xFF); };
  return QColor(channel(0), channel(8), channel(16));
}

quint32 colorValue(const QColor& color) {
  return color.red() | color.green() << 8 | color.blue() << 16;
}

}  // namespace drawing
