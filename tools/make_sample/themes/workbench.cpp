#include "drawing/canvas.h"
#include "drawing/gif.h"
#include "pictures/background_styles.h"
#include "pictures/glyphs.h"
#include "pictures/texture_styles.h"
#include "themes/themes.h"
#include "themes/workbench_theme.h"

namespace sample {

namespace {

constexpr const char* WorkbenchSkins = "Skins/Workbench/";

constexpr Palette Grey = {rgb(0xb8bcc4), rgb(0xd4d6da), rgb(0xa4a8b0), rgb(0xffffff), rgb(0x70747c)};
constexpr Look Plain = {rgb(0xe4e6ea, 0.9), rgb(0x50545c), rgb(0x7088b0), rgb(0x405880),
                        rgb(0x203040),      rgb(0x303840), rgb(0xd0d8e0), 0.3};

QImage styled(int width, int height, TextureStyle style) {
  Canvas canvas(width, height);
  style(canvas, Plain);
  return canvas.image();
}

/// A ground that lets through what lies below it, more so to the right.
QImage glass() {
  Canvas canvas(300, 225, 800, 600);
  canvas.shade([&](double x, double y) { return Color{0.4, 0.6 + 0.3 * y / 600, 0.8, 1 - x / 800}; });
  return canvas.image();
}

/// A disc of sixteen steps on a transparent ground.
IndexedPicture dot() {
  constexpr int Size = 48;
  IndexedPicture picture{Size, Size, {qRgb(255, 0, 255)}, {}, 0};
  for (int step = 0; step < 16; ++step) picture.colors.push_back(qRgb(40 + step * 8, 90 + step * 10, 200 + step * 3));
  for (int y = 0; y < Size; ++y) {
    for (int x = 0; x < Size; ++x) {
      const int across = 2 * x - Size + 1;
      const int down = 2 * y - Size + 1;
      const int away = (across * across + down * down) * 16 / (Size * Size);
      picture.dots.push_back(static_cast<unsigned char>(away < 16 ? 16 - away : 0));
    }
  }
  return picture;
}

QImage onWhite(const QImage& image) {
  QImage ground(image.size(), QImage::Format_ARGB32);
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      const int level = 255 - qAlpha(image.pixel(x, y));
      ground.setPixel(x, y, qRgb(level, level, level));
    }
  }
  return ground;
}

}  // namespace

void writeWorkbench(const Output& output) {
  output.writeLines("Themes/Workbench.ini", std::string(WorkbenchPictures) + WorkbenchWords + WorkbenchScreens);
  output.writeLines(WorkbenchSkins + std::string("Grey.ini"), WorkbenchGreySkin);
  output.write(WorkbenchSkins + std::string("Spare.ini"), WorkbenchSpareSkin);

  const auto file = [](const char* name) { return WorkbenchSkins + std::string(name); };
  Canvas bench(320, 240, 800, 600);
  paintTiles(bench, Grey, 50);
  output.writePicture(file("bench.jpg"), bench.image(), 80);
  output.writePicture(file("glass.png"), glass());
  output.writePicture(file("plate.png"), styled(240, 120, paintPanel));
  output.writePicture(file("key.png"), styled(160, 50, paintButton));
  output.writePicture(file("leftover.png"), styled(40, 20, paintButton));
  output.writePicture(file("sign.bmp"), onWhite(drawGlyph(glyphs().front(), 50, rgb(0))));
  output.write(file("dot.gif"), encodeGif(dot()));
  const QByteArray whole = encodePicture(styled(160, 160, paintRecord), "png");
  output.write(file("cut.png"), whole.left(whole.size() / 2));
  output.write(file("no_image.png"), "This is a line of text, whatever its name says.\r\n");
}

}  // namespace sample
