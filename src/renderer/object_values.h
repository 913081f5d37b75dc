#pragma once

#include <optional>

#include <QString>

#include "renderer/render_context.h"

/// How the passes read an object's keys, and how they tell that one is left out.
namespace renderer {

/// The value of a key of the theme, at most 255 letters, empty without one.
QString ThemeValue(const RenderContext& context, const QString& section, const QString& key);

/// The number of such a value, 0 without one.
double ThemeNumber(const RenderContext& context, const QString& section, const QString& key);

void LeaveOut(RenderContext& context, const QString& section, Reason why, const QString& key, const QString& value);

/// The number rounded to 16 bits. One that doesn't fit is accounted and reported as `step` + [section, key, value].
std::optional<qint16> ThemeInt16(RenderContext& context, const QString& section, const QString& key,
                                 const QString& step);

/// X, Y, W and H of an object.
struct Box {
  qint16 X = 0;
  qint16 Y = 0;
  qint16 W = 0;
  qint16 H = 0;
};

/// None when one of the four doesn't fit 16 bits; the first such is reported.
std::optional<Box> ThemeBox(RenderContext& context, const QString& section, const QString& step);

/// The path of the picture behind a section's Tex, by way of the skin's entry; empty, and accounted, when the skin has
/// no entry or no file stands there.
QString TexturePath(RenderContext& context, const QString& section);

}  // namespace renderer
