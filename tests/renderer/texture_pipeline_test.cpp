#include "renderer/texture_pipeline.h"

#include <QCryptographicHash>

#include "renderer/recolouring.h"
#include "support/results.h"
#include "support/stage.h"

using namespace support;
using namespace renderer;

namespace {

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
  /// Each pair of largest and smallest channel, the channels in turn the largest: the sum of the pixels for each
  /// colour.
  void colorized() {
    const QImage before = pictureOf(256 * 3, 256, [](int x, int min) {
      const int max = x % 256;
      const int middle = (max + min) / 2;
      if (x < 256) return qRgba(max, min, middle, 255);
      return x < 512 ? qRgba(min, middle, max, 255 - min) : qRgba(middle, max, min, 1);
    });
    compareRows(u"colorized.txt"_s, [&](const QString& color) {
      const QStringList fields = color.split(u' ');
      QImage picture = before.copy();
      colorize(picture, {fields[0].toFloat(), fields[1].toFloat(), fields[2].toFloat()});
      const QByteArrayView pixels(picture.constBits(), picture.sizeInBytes());
      return QString::fromLatin1(QCryptographicHash::hash(pixels, QCryptographicHash::Sha1).toHex());
    });
  }

  /// A reason's number, the key and the value: its text, and that without the key.
  void reasons() {
    compareRows(u"reasons.txt"_s, [](const QString& row) {
      const QStringList parts = row.split(u'/');
      const LeftOut entry{{}, Reason(parts[0].toInt()), parts[1], parts[2]};
      return reasonText(entry) + u" / "_s + reasonWithoutKey(entry);
    });
  }

  /// The step that fails: the steps that are taken, what is told, and where the texture is drawn.
  void failingSessions() {
    compareRows(u"sessions.txt"_s, [](const QString& failing) {
      Stage stage;
      stage.surface.wipe(Qt::white);
      FailingGraphics graphics;
      graphics.failing = failing;
      RenderContext context = stage.context(graphics);
      DrawTexture(context, {{stage.folder.path(u"Red.png"_s), {}}, {}, {3, 4, -1, 0}, u"0 0 0"_s});
      const bool draws = inkOf(stage.surface.image()) == QRect(3, 4, 8, 4);
      return (graphics.steps + stage.dialogs.asked).join(u' ') + (draws ? u" draws"_s : u""_s);
    });
  }
};

QTEST_MAIN(TexturePipelineTest)
#include "texture_pipeline_test.moc"
