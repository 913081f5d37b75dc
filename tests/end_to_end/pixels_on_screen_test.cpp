#include <QScreen>

#include "platform/files.h"
#include "support/real_input.h"

using namespace support;

/// The pixels of the preview, in the window and on the screen, are those of the pictures that are kept of a theme that
/// has everything.
class PixelsOnScreenTest : public QObject {
  Q_OBJECT

 private:
  const GameFolder game;

 private Q_SLOTS:
  void initTestCase() {
    const QDir everything(QStringLiteral(EVERYTHING));
    const auto bytes = [&](const QString& name) {
      return platform::readFile(platform::programPath(everything.filePath(name)));
    };
    for (const QString& picture : everything.entryList({u"*.png"_s, u"*.gif"_s, u"*.bmp"_s, u"*.jpg"_s})) {
      game.put(u"Skins/Alpha/"_s + picture, bytes(picture));
    }
    game.put(ThemeFile, linesOf(bytes(u"theme.txt"_s)));
    game.put(SkinFile, bytes(u"skin.ini"_s));
    game.put(LanguageFile, bytes(u"english.ini"_s));
  }

  void screens() {
    Program program(game);
    program.state.BackgroundColor = 0xC0D8F0;
    QCursor::setPos(0, 0);  // no tool tip over the preview
    openOnScreen(program);
    const double scale = program.form.devicePixelRatioF();
    for (const auto& [name, scheme, file] :
         {std::tuple{u"Main Screen"_s, u"Green"_s, "02.png"}, {u"Options Advanced Screen"_s, u"Black"_s, "18.png"}}) {
      program.form.schemes().SetText(scheme);
      program.screen(name);
      const QImage surface = program.picture().convertToFormat(QImage::Format_RGB32);
      const QImage kept(QStringLiteral(EVERYTHING "/results/") + QLatin1StringView(file));
      QCOMPARE(surface, kept.convertToFormat(QImage::Format_RGB32));
      const auto screen = [&] {
        const QPoint preview = program.form.Workspace->mapTo(&program.form, QPoint(0, 0));
        const WId window = program.form.winId();
        QImage grabbed = program.form.screen()->grabWindow(window, preview.x(), preview.y(), 800, 600).toImage();
        grabbed.setDevicePixelRatio(1);
        return grabbed.convertToFormat(QImage::Format_RGB32);
      };
      // Nothing is left of the marks of one object after the other.
      for (int row = 0; row < 6; ++row) {
        program.form.session().pickObject(row);
        settle();
      }
      program.form.Workspace->SetVisible(false);
      // At a whole scale each pixel of the surface is a square of the screen's; at others no screen can show it so.
      if (scale == std::floor(scale)) QTRY_COMPARE(screen(), surface.scaled(surface.size() * scale));
    }
  }
};

QTEST_MAIN(PixelsOnScreenTest)
#include "pixels_on_screen_test.moc"
