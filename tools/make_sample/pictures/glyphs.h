#pragma once

#include <vector>

#include "drawing/canvas.h"

namespace sample {

/// A sign on a ground of 64 x 64 units, made of figures that are put on or cut out in turn.
struct Glyph {
  struct Part {
    Shape shape;
    bool cut = false;
  };
  const char* key;   // its texture key
  const char* file;  // the file that both skins share
  std::vector<Part> parts;
};

const std::vector<Glyph>& glyphs();

/// The sign in one colour on a transparent ground.
QImage drawGlyph(const Glyph& glyph, int size, const Color& color);

}  // namespace sample
