#include "renderer/texture_pipeline.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include <QTest>

#include "renderer/recolouring.h"
#include "support/row_name.h"
#include "support/stage.h"

using namespace support;
using namespace Qt::StringLiterals;
using namespace renderer;

namespace {

// The formulas of hue, lightness and saturation, pixel by pixel.

struct Shade {
  double h = 0, l = 0, s = 0;
};

Shade shadeOf(double r, double g, double b) {
  const double max = std::max({r, g, b});
  const double min = std::min({r, g, b});
  const double delta = max - min;
  Shade shade{0, (max + min) / 2, 0};
  if (std::abs(delta) < 0.00001) return shade;
  shade.s = shade.l <= 0.5 ? delta / (max + min) : delta / (2 - max - min);
  const double rc = (max - r) / delta, gc = (max - g) / delta, bc = (max - b) / delta;
  shade.h = (r == max ? bc - gc : g == max ? 2 + rc - bc : 4 + gc - rc) * 60;
  if (shade.h < 0) shade.h += 360;
  return shade;
}

double channel(double m1, double m2, double h) {
  if (h > 360) {
    h -= 360;
  } else if (h < 0) {
    h += 360;
  }
  return h < 60 ? m1 + (m2 - m1) * h / 60 : h < 180 ? m2 : h < 240 ? m1 + (m2 - m1) * (240 - h) / 60 : m1;
}

int byteOf(double value) {
  return static_cast<int>(std::nearbyint(static_cast<float>(std::max(value, 0.0) * 255.0)));
}

QRgb colorizedPlainly(QRgb pixel, double hue) {
  const Shade shade = shadeOf(qRed(pixel) / 255.0, qGreen(pixel) / 255.0, qBlue(pixel) / 255.0);
  const double l = shade.l, s = shade.s;
  if (s == 0) return qRgba(byteOf(l), byteOf(l), byteOf(l), qAlpha(pixel));
  const double m2 = l <= 0.5 ? l * (1 + s) : l + s - l * s;
  const double m1 = 2 * l - m2;
  return qRgba(byteOf(channel(m1, m2, hue + 120)), byteOf(channel(m1, m2, hue)), byteOf(channel(m1, m2, hue - 120)),
               qAlpha(pixel));
}

/// A session of which one step fails.
class FailingGraphics : public platform::Graphics {
 public:
  explicit FailingGraphics(QString step) : failing_(std::move(step)) {}
  int Startup() override { return fails(u"Startup"_s) ? 1 : Graphics::Startup(); }
  int CreateFrom(platform::Surface& surface) override {
    return fails(u"CreateFrom"_s) ? 1 : Graphics::CreateFrom(surface);
  }
  int Delete() override { return fails(u"Delete"_s) ? 1 : Graphics::Delete(); }
  void Shutdown() override {
    steps += u"Shutdown"_s;
    Graphics::Shutdown();
  }
  QStringList steps;

 private:
  bool fails(const QString& step) { return (steps += step).last() == failing_; }
  QString failing_;
};

/// The pixel as "Font Black" under 200 100 50 makes it; none when the intensity is beyond its range.
std::optional<QRgb> fontPixel(QRgb pixel, float intensity) {
  QImage picture = plainPicture(2, 2, qRgb(255, 255, 255));
  picture.setPixel(1, 1, pixel);
  const bool done = RecolourFont(picture, {200, 100, 50}, intensity);
  if (picture.pixel(0, 0) != qRgb(255, 255, 255) || (!done && picture.pixel(1, 1) != pixel)) qFatal("spoilt");
  return done ? std::optional(picture.pixel(1, 1)) : std::nullopt;
}

}  // namespace

class TexturePipelineTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void colorizedAsTheFormulasTell() {
    for (const char* color : {"255 0 0", "0 255 0", "0 0 255", "71 175 247", "230 230 95", "1 0 2", "128 128 128",
                              "300 -20 1000.5", "250 3 4", "0 0 0", "100000 50000.1 0", "255 127.5 0", "3 9 18",
                              "0 255 255", "255 255 0", "255 0 255", "220 9 99"}) {
      const RowName name(color);
      compareWithTheFormulas(QString::fromLatin1(color));
    }
  }

  void fontPixels() {
    const QRgb white = qRgba(255, 255, 255, 9);
    const QRgb black = qRgba(0, 0, 0, 255);
    QCOMPARE(fontPixel(black, -1), qRgb(200, 100, 50));
    QCOMPARE(fontPixel(white, -1), white);
    QCOMPARE(fontPixel(white, 9), white);
    QCOMPARE(fontPixel(qRgba(128, 128, 128, 3), -1), qRgba(200, 228, 178, 3));
    QCOMPARE(fontPixel(black, 0.25F), qRgb(50, 25, 12));
    QCOMPARE(fontPixel(black, -0.002F), black);
    QVERIFY(!fontPixel(black, 1.28F) && !fontPixel(black, -0.5F));
  }

  void failingSessions() {
    compareSession({}, u"Startup CreateFrom Delete Shutdown"_s, {}, true);
    compareSession(u"Startup"_s, u"Startup Shutdown"_s, u"GDI+ could not be initialized"_s, false);
    compareSession(u"CreateFrom"_s, u"Startup CreateFrom Shutdown"_s, u"Graphics object could not be created"_s, false);
    compareSession(u"Delete"_s, u"Startup CreateFrom Delete Shutdown"_s, u"Graphics object could not be deleted"_s,
                   true);
  }

 private:
  static void compareSession(const QString& failing, const QString& steps, const QString& message, bool draws) {
    const RowName name(failing.toLatin1());
    Stage stage;
    stage.surface.Wipe(Qt::white);
    FailingGraphics graphics(failing);
    const auto drawn = [&](const QString& file) {
      graphics.steps.clear();
      return DrawTexture(stage.surface, file, QString(), 3, 4, -1, 0, u"0 0 0"_s, NoIntensity, graphics, stage.boxes)
                 .outcome == TextureOutcome::Drawn;
    };
    QVERIFY(!drawn(QString()));
    QVERIFY(graphics.steps.isEmpty() && stage.boxes.texts.isEmpty());
    QCOMPARE(drawn(stage.folder.path(u"Red.png"_s)), draws);
    QCOMPARE(graphics.steps.join(u' '), steps);
    QCOMPARE(stage.boxes.texts.join(u' '), message);
    QCOMPARE(inkOf(stage.surface.image()), draws ? QRect(3, 4, 8, 4) : QRect());
    QVERIFY(!drawn(stage.folder.path(u"Torn.png"_s)));
    QCOMPARE(graphics.steps.join(u' '), steps);
  }

  static void compareWithTheFormulas(const QString& color) {
    const QStringList fields = color.split(u' ');
    const ColorNumbers numbers{fields[0].toFloat(), fields[1].toFloat(), fields[2].toFloat()};
    const double hue = shadeOf(double(numbers.R), double(numbers.G), double(numbers.B)).h;
    // Each pair of largest and smallest channel, the channels in turn the largest.
    QImage picture(256 * 3, 256, QImage::Format_ARGB32);
    for (int max = 0; max < 256; ++max) {
      for (int min = 0; min < 256; ++min) {
        const int middle = (max + min) / 2;
        picture.setPixel(max, min, qRgba(max, min, middle, 255));
        picture.setPixel(max + 256, min, qRgba(min, middle, max, 255 - min));
        picture.setPixel(max + 512, min, qRgba(middle, max, min, 1));
      }
    }
    const QImage before = picture.copy();
    Colorize(picture, numbers);
    for (int y = 0; y < picture.height(); ++y) {
      for (int x = 0; x < picture.width(); ++x) {
        if (picture.pixel(x, y) != colorizedPlainly(before.pixel(x, y), hue)) QFAIL(qPrintable(QString::number(x)));
      }
    }
  }
};

QTEST_MAIN(TexturePipelineTest)
#include "texture_pipeline_test.moc"
