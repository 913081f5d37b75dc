#include "renderer/texture_pipeline.h"

#include <algorithm>
#include <cmath>

#include "renderer/recolouring.h"
#include "support/row_name.h"
#include "support/stage.h"

using namespace support;
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
  if (h > 360 || h < 0) h += h < 0 ? 360 : -360;
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
struct FailingGraphics : drawing::Graphics {
  int startup() override { return fails(u"Startup"_s) || Graphics::startup() != 0; }
  int createFrom(drawing::Surface& to) override { return fails(u"CreateFrom"_s) || Graphics::createFrom(to) != 0; }
  int deleteObject() override { return fails(u"Delete"_s) || Graphics::deleteObject() != 0; }
  void shutdown() override {
    steps += u"Shutdown"_s;
    Graphics::shutdown();
  }
  bool fails(const QString& step) { return (steps += step).last() == failing; }
  QString failing;
  QStringList steps;
};

}  // namespace

class TexturePipelineTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  /// Each pair of largest and smallest channel, the channels in turn the largest.
  void colorizedAsTheFormulasTell() {
    const QImage before = pictureOf(256 * 3, 256, [](int x, int min) {
      const int max = x % 256;
      const int middle = (max + min) / 2;
      if (x < 256) return qRgba(max, min, middle, 255);
      return x < 512 ? qRgba(min, middle, max, 255 - min) : qRgba(middle, max, min, 1);
    });
    for (const char* color : {"255 0 0", "0 255 0", "0 0 255", "71 175 247", "230 230 95", "1 0 2", "128 128 128",
                              "300 -20 1000.5", "3 9 18", "255 127.5 0", "100000 50000.1 0", "0 255 255", "220 9 99"}) {
      const RowName name(color);
      const QByteArrayList fields = QByteArray(color).split(' ');
      const double hue = shadeOf(fields[0].toDouble(), fields[1].toDouble(), fields[2].toDouble()).h;
      QImage picture = before.copy();
      colorize(picture, {fields[0].toFloat(), fields[1].toFloat(), fields[2].toFloat()});
      const auto expected = [&](int x, int y) { return colorizedPlainly(before.pixel(x, y), hue); };
      QCOMPARE(picture, pictureOf(picture.width(), picture.height(), expected));
    }
  }

  void failingSessions() {
    for (const auto& [failing, steps, message, draws] : {
             std::tuple(QString(), u"Startup CreateFrom Delete Shutdown"_s, QString(), true),
             {u"Startup"_s, u"Startup Shutdown"_s, u": GDI+ could not be initialized"_s, false},
             {u"CreateFrom"_s, u"Startup CreateFrom Shutdown"_s, u": Graphics object could not be created"_s, false},
             {u"Delete"_s, u"Startup CreateFrom Delete Shutdown"_s, u": Graphics object could not be deleted"_s, true},
         }) {
      const RowName name(failing.toLatin1());
      Stage stage;
      stage.surface.wipe(Qt::white);
      FailingGraphics graphics;
      graphics.failing = failing;
      RenderContext context{stage.state, stage.tags,    stage.surface, stage.host,
                            stage.panel, stage.dialogs, graphics,      stage.account};
      DrawTexture(context, {{stage.folder.path(u"Red.png"_s), {}}, {}, {3, 4, -1, 0}, u"0 0 0"_s});
      QCOMPARE(graphics.steps.join(u' '), steps);
      QCOMPARE(stage.dialogs.asked.join(u' '), message);
      QCOMPARE(inkOf(stage.surface.image()), draws ? QRect(3, 4, 8, 4) : QRect());
    }
  }
};

QTEST_MAIN(TexturePipelineTest)
#include "texture_pipeline_test.moc"
