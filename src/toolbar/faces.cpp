#include "toolbar/faces.h"

#include "drawing/ramps.h"
#include "toolbar/checked_numbers.h"
#include "toolbar/colours.h"

namespace toolbar {

namespace {

using drawing::Raster;

constexpr QRgb Black = 0xFF000000;
constexpr int CornerDiameter = 6;

struct EdgeColors {
  QRgb topLeft;
  QRgb bottomRight;
};

/// Draws the four edges of a box. Its last column is x + w, its last row y + h.
void drawEdges(Raster& raster, int x, int y, int w, int h, const EdgeColors& colors) {
  raster.Line(x, y, x + w, y, colors.topLeft);
  raster.Line(x, y, x, y + h, colors.topLeft);
  raster.Line(x + w, y, x + w, y + h + 1, colors.bottomRight);
  raster.Line(x, y + h, x + w + 1, y + h, colors.bottomRight);
}

void drawMode4Box(Raster& raster, const Properties& values, const QRect& box, bool pressed) {
  const quint32 color = values.HoverColor;
  const QRgb outline = values.RectBorderColorAutoBlend ? BlendColors(color, 0) : TranslateColor(values.RectBorderColor);
  const QRgb fill = pressed ? TranslateColor(color) : BlendColors(color, 0xFFFFFF);
  const int w = box.width() - 1;
  const int h = box.height() - 1;
  raster.Rectangle(box.x(), box.y(), box.x() + w, box.y() + h, outline, fill);
}

/// Draws the rounded box of modes 5 and 6. Returns the width of the rim around its gradient.
int drawRoundBox(Raster& raster, const Properties& values, const QRect& box, bool risen) {
  raster.RoundRect(box.x(), box.y(), box.x() + box.width(), box.y() + box.height(), CornerDiameter,
                   BlendColors(values.ButtonsBackColor, 0),
                   TranslateColor(risen ? values.HoverColor : values.ButtonsBackColor));
  return risen ? 3 : 2;
}

void drawMode5Box(Raster& raster, const Properties& values, const QRect& box, bool hover, bool pressed) {
  const int inset = drawRoundBox(raster, values, box, hover && !pressed);
  FillGradient(raster, QRect(box.x() + inset, box.y() + inset, box.width() - 2 * inset, box.height() - 2 * inset),
               values.ButtonsBackColor, pressed ? values.ButtonsBackColor : values.ButtonsGradientCol,
               values.ButtonsGradient);
}

void drawMode6Box(Raster& raster, const Properties& values, const QRect& box, bool hover, bool pressed) {
  if (pressed) {
    drawMode5Box(raster, values, box, hover, pressed);
    return;
  }
  const int inset = drawRoundBox(raster, values, box, hover);
  FillGradient(raster, QRect(box.x() + 1, box.y() + inset, box.width() - 2, box.height() - 2 * inset),
               hover ? values.ButtonsGradientCol : values.ButtonsBackColor, values.ButtonsGradientCol,
               values.ButtonsGradient);
}

}  // namespace

void Draw3DBox(Raster& raster, const Properties& values, quint32 color, const QRect& box, bool pressed, int style) {
  const int x = box.x();
  const int y = box.y();
  const int w = box.width() - 1;
  const int h = box.height() - 1;
  EdgeColors edges{BlendColors(color, 0xFFFFFF), BlendColors(color, 0)};
  if (pressed) std::swap(edges.topLeft, edges.bottomRight);
  if (style == 0) {
    drawEdges(raster, x, y, w, h, edges);
  } else {
    EdgeColors outer{TranslateColor(color), Black};
    if (style == 1 || pressed) std::swap(outer.topLeft, outer.bottomRight);
    drawEdges(raster, x, y, w, h, outer);
    drawEdges(raster, x + 1, y + 1, w - 2, h - 2, edges);
  }
  const int rim = style == 0 ? 1 : 2;
  if (x == 0 || y == 0) return;
  FillGradient(raster, QRect(x + rim, y + rim, w - rim, h - rim - 1), values.ButtonsBackColor,
               values.ButtonsGradientCol, values.ButtonsGradient);
}

Face drawFace(Raster& raster, const Properties& values, const QRect& button, bool hover, bool pressed) {
  const QRect smaller = button.adjusted(0, 0, -1, -1);
  switch (values.ButtonsMode) {
    case 0:
      if (hover || pressed) Draw3DBox(raster, values, values.ButtonsBackColor, button, pressed, 0);
      return {pressed ? 1 : 0};
    case 1:
    case 2:
    case 3:
      Draw3DBox(raster, values, values.ButtonsBackColor, button, pressed, values.ButtonsMode - 1);
      return {pressed ? 1 : 0};
    case 4:
      if (hover || pressed) drawMode4Box(raster, values, button.adjusted(1, 1, -1, -1), pressed);
      return {0, hover && !pressed, 1};
    case 5:
      drawMode5Box(raster, values, smaller, hover, pressed);
      return {0, hover && !pressed, 1};
    case 6:
      drawMode6Box(raster, values, smaller, hover, pressed);
      return {pressed ? 1 : 0, false, 1};
    default:
      return {};
  }
}

void FillGradient(Raster& raster, const QRect& box, quint32 first, quint32 second, int kind) {
  if (kind == 0) return;
  const int x = box.x();
  const int y = box.y();
  const int w = box.width();
  const int h = box.height();
  if (first == second) {
    raster.Rectangle(x, y, x + w, y + h, TranslateColor(first), TranslateColor(first));
    return;
  }
  const QRgb start = TranslateColor(second);
  const QRgb end = TranslateColor(first);
  if (kind == 2) {
    const int half = nearestInt(w / 2.0);
    drawing::PaintRamp(raster, x, y, half, h, start, end, 1);
    drawing::PaintRamp(raster, nearestInt(x + w / 2.0 - 1), y, half, h, end, start, 1);
  } else if (kind == 4) {
    drawing::PaintRamp(raster, x, y, w, nearestInt(h / 2.0), start, end, 3);
    drawing::PaintRamp(raster, x, nearestInt(y + h / 2.0 - 1), w, nearestInt(h / 2.0 + 1), end, start, 3);
  } else {
    drawing::PaintRamp(raster, x, y, w, h, start, end, kind);
  }
}

}  // namespace toolbar
