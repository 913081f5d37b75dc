#include "pictures/glyphs.h"

namespace sample {

namespace {

using Part = Glyph::Part;

Part bar(double x1, double y1, double x2, double y2, double radius) {
  return {line({x1, y1}, {x2, y2}, radius)};
}
Part dot(double x, double y, double radius) {
  return {disc({x, y}, radius)};
}
Part box(double x, double y, double w, double h, double radius) {
  return {roundBox(QRectF(x, y, w, h), radius)};
}
Part without(const Part& part) {
  return {part.shape, true};
}

}  // namespace

const std::vector<Glyph>& glyphs() {
  static const std::vector<Glyph> all = {
      {"GlyphNote",
       "glyph_note.png",
       {dot(19, 49, 9), dot(43, 43, 9), bar(26, 48, 26, 14, 2.5), bar(50, 42, 50, 8, 2.5), bar(26, 15, 50, 9, 4.5)}},
      {"GlyphMic",
       "glyph_mic.png",
       {bar(32, 16, 32, 29, 10), bar(15, 28, 18, 39, 2.5), bar(18, 39, 27, 46, 2.5), bar(27, 46, 37, 46, 2.5),
        bar(37, 46, 46, 39, 2.5), bar(46, 39, 49, 28, 2.5), bar(32, 46, 32, 57, 2.5), bar(20, 58, 44, 58, 2.5)}},
      {"GlyphGear",
       "glyph_gear.png",
       {dot(32, 32, 19), bar(32, 8, 32, 56, 5), bar(8, 32, 56, 32, 5), bar(15, 15, 49, 49, 5), bar(49, 15, 15, 49, 5),
        without(dot(32, 32, 9))}},
      {"GlyphStar", "glyph_star.png", {{star({32, 34}, 28)}}},
      {"GlyphCrown",
       "glyph_crown.png",
       {{area({{10, 46}, {6, 20}, {20, 32}, {32, 12}, {44, 32}, {58, 20}, {54, 46}}, 2)}, box(9, 50, 46, 7, 2)}},
      {"GlyphChart", "glyph_chart.png", {box(8, 34, 12, 22, 2), box(26, 20, 12, 36, 2), box(44, 8, 12, 48, 2)}},
      {"GlyphPeople",
       "glyph_people.png",
       {dot(18, 24, 8), dot(46, 24, 8), box(6, 36, 24, 20, 9), box(34, 36, 24, 20, 9), without(dot(32, 22, 13)),
        dot(32, 20, 10), without(box(16, 33, 32, 30, 12)), box(19, 36, 26, 22, 10)}},
      {"GlyphQuestion",
       "glyph_question.png",
       {dot(32, 32, 27), without(bar(23, 24, 27, 18, 3)), without(bar(27, 18, 37, 18, 3)),
        without(bar(37, 18, 41, 25, 3)), without(bar(41, 25, 32, 33, 3)), without(bar(32, 33, 32, 38, 3)),
        without(dot(32, 47, 3.5))}},
      {"GlyphWarning",
       "glyph_warning.png",
       {{area({{32, 10}, {57, 53}, {7, 53}}, 4)}, without(bar(32, 24, 32, 38, 3.5)), without(dot(32, 47, 3.5))}},
      {"GlyphLens", "glyph_lens.png", {dot(26, 26, 19), without(dot(26, 26, 12)), bar(41, 41, 54, 54, 5)}},
      {"GlyphSpeaker",
       "glyph_speaker.png",
       {{area({{8, 25}, {18, 25}, {32, 12}, {32, 52}, {18, 39}, {8, 39}}, 2)},
        bar(40, 24, 43, 32, 2.5),
        bar(43, 32, 40, 40, 2.5),
        bar(48, 16, 54, 32, 2.5),
        bar(54, 32, 48, 48, 2.5)}},
      {"GlyphScreen",
       "glyph_screen.png",
       {box(6, 10, 52, 36, 5), without(box(12, 16, 40, 24, 2)), box(28, 44, 8, 10, 0), box(18, 52, 28, 5, 2)}},
      {"GlyphPalette",
       "glyph_palette.png",
       {dot(32, 32, 26), without(dot(46, 48, 11)), without(dot(20, 24, 4.5)), without(dot(34, 17, 4.5)),
        without(dot(47, 26, 4.5)), without(dot(18, 40, 4.5))}},
      {"GlyphList",
       "glyph_list.png",
       {dot(12, 16, 4.5), dot(12, 32, 4.5), dot(12, 48, 4.5), bar(24, 16, 54, 16, 4), bar(24, 32, 54, 32, 4),
        bar(24, 48, 54, 48, 4)}},
      {"GlyphCup",
       "glyph_cup.png",
       {{outline(roundBox(QRectF(8, 12, 48, 20), 9), 4)},
        {area({{18, 8}, {46, 8}, {44, 28}, {36, 38}, {28, 38}, {20, 28}}, 2)},
        box(29, 38, 6, 12, 0),
        box(18, 49, 28, 8, 2)}},
      {"GlyphPlay", "glyph_play.png", {{area({{18, 12}, {50, 32}, {18, 52}}, 4)}}},
      {"GlyphFilm",
       "glyph_film.png",
       {box(6, 12, 52, 40, 5), without(box(18, 17, 28, 30, 2)), without(box(9, 17, 5, 6, 1)),
        without(box(9, 29, 5, 6, 1)), without(box(9, 41, 5, 6, 1)), without(box(50, 17, 5, 6, 1)),
        without(box(50, 29, 5, 6, 1)), without(box(50, 41, 5, 6, 1))}},
      {"GlyphTools",
       "glyph_tools.png",
       {bar(14, 50, 40, 24, 5), dot(44, 20, 13), without(bar(46, 18, 58, 6, 6)), without(dot(14, 50, 2))}},
  };
  return all;
}

QImage drawGlyph(const Glyph& glyph, int size, const Color& color) {
  Canvas canvas(size, size, 64, 64);
  for (const Part& part : glyph.parts) {
    if (part.cut) {
      canvas.cut(part.shape);
    } else {
      canvas.fill(part.shape, color);
    }
  }
  return canvas.image();
}

}  // namespace sample
