#include "pictures/textures.h"

#include <cmath>

#include "drawing/gif.h"
#include "pictures/glyphs.h"

namespace sample {

namespace {

constexpr int GlyphSize = 64;
constexpr int PhotoQuality = 92;
constexpr const char* EqualizerFile = "equalizer.gif";

struct Texture {
  const char* key;
  const char* file;
  int width, height;
  TextureStyle style;
};

constexpr Texture Textures[] = {
    {"TitleBar", "title.png", 400, 72, paintTitleBar},
    {"FootBar", "foot.png", 200, 44, paintFootBar},
    {"Panel", "panel.png", 320, 240, paintPanel},
    {"PanelWide", "panel_wide.png", 480, 120, paintPanel},
    {"PanelTall", "panel_tall.png", 240, 400, paintPanel},
    {"Button", "button.png", 320, 64, paintButton},
    {"ButtonBig", "button_big.png", 360, 100, paintButton},
    {"ButtonSmall", "button_small.png", 190, 46, paintButton},
    {"Select", "select.png", 300, 44, paintSelect},
    {"Field", "field.png", 420, 48, paintField},
    {"Row", "row.png", 400, 40, paintRow},
    {"RowBright", "row_bright.png", 400, 40, paintBrightRow},
    {"Lane", "lane.png", 760, 110, paintLane},
    {"Pill", "pill.png", 96, 24, paintPill},
    {"Track", "track.png", 300, 24, paintTrack},
    {"Level", "level.bmp", 96, 24, paintLevel},
    {"Cap", "cap.png", 12, 24, paintCap},
    {"Record", "record.png", 160, 160, paintRecord},
    {"Corner", "corner.png", 150, 150, paintCorner},
    {"Cover", "cover.bmp", 128, 128, paintCover},
    {"Photo", "photo.jpg", 512, 512, paintPhoto},
};

unsigned char towards(int from, int to, int step, int steps) {
  return static_cast<unsigned char>(from + (to - from) * step / steps);
}

/// Columns of blocks on a transparent ground, in a ramp of the look's button colours.
IndexedPicture equalizer(const Look& look) {
  constexpr int Columns = 20, Blocks = 10, BlockWidth = 16, BlockHeight = 12;
  const auto byte = [](double channel) { return static_cast<int>(std::lround(channel * 255)); };
  IndexedPicture picture{Columns * BlockWidth, Blocks * BlockHeight, {qRgb(0, 0, 0)}, {}, 0};
  for (int block = 1; block <= Blocks; ++block) {
    picture.colors.push_back(qRgb(towards(byte(look.buttonEdge.r), byte(look.buttonBottom.r), block, Blocks),
                                  towards(byte(look.buttonEdge.g), byte(look.buttonBottom.g), block, Blocks),
                                  towards(byte(look.buttonEdge.b), byte(look.buttonBottom.b), block, Blocks)));
  }
  constexpr int Heights[Columns] = {3, 5, 8, 6, 9, 10, 7, 4, 6, 8, 9, 5, 3, 4, 7, 9, 8, 6, 4, 2};
  for (int y = 0; y < picture.height; ++y) {
    for (int x = 0; x < picture.width; ++x) {
      const int block = y / BlockHeight;
      const bool gap = x % BlockWidth >= 13 || y % BlockHeight >= 9;
      const bool lit = !gap && Blocks - block <= Heights[x / BlockWidth];
      picture.dots.push_back(static_cast<unsigned char>(lit ? block + 1 : 0));
    }
  }
  return picture;
}

}  // namespace

const Look DuskLook = {rgb(0x1e1438, 0.8), rgb(0xe8c8f0, 0.5), rgb(0x6848b8), rgb(0x40247c),
                       rgb(0xb898f0),      rgb(0x2a1650),      rgb(0xe07a70), 0.55};
const Look NeonLook = {rgb(0x080a1e, 0.84), rgb(0x50e0ff, 0.8), rgb(0x1c4a98), rgb(0x0c2050),
                       rgb(0x48c0ff),       rgb(0x0a0c38),      rgb(0x28a8e0), 0.2};

std::vector<TextureKey> textureKeys() {
  std::vector<TextureKey> keys;
  for (const Texture& texture : Textures) keys.push_back({texture.key, texture.file});
  keys.push_back({"Equalizer", EqualizerFile});
  return keys;
}

void writeTextures(const Output& output, const std::string& folder, const std::string& prefix, const Look& look) {
  for (const Texture& texture : Textures) {
    Canvas canvas(texture.width, texture.height);
    texture.style(canvas, look);
    output.writePicture(folder + prefix + texture.file, canvas.image(),
                        texture.style == paintPhoto ? PhotoQuality : -1);
  }
  output.write(folder + prefix + EqualizerFile, encodeGif(equalizer(look)));
}

void writeGlyphs(const Output& output, const std::string& folder) {
  for (const Glyph& glyph : glyphs()) output.writePicture(folder + glyph.file, drawGlyph(glyph, GlyphSize, rgb(0)));
}

}  // namespace sample
