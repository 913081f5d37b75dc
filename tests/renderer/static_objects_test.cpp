#include <cmath>

#include <QTest>

#include "support/row_name.h"
#include "support/stage.h"

using namespace support;
using namespace Qt::StringLiterals;

namespace {

constexpr QRgb Red = qRgb(255, 0, 0);

}  // namespace

class StaticObjectsTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void statics() {
    const QRect place(10, 20, 5, 6);
    const QRect natural(10, 20, 8, 4);
    for (const char* keys : {"", "TYPE=Colorized2|"}) compare(keys, place, Red);
    compare("type=colorized|", place, qRgb(0, 151, 255));
    compare("TYPE=Font Black|Tex=Black|", place, qRgb(71, 175, 247));
    compare("TYPE=Font Black|", place, qRgb(255, 175, 247));  // ORs
    compare("TYPE=FONT BLACK|Tex=Black|Color=colorLIGHT|", place, qRgb(135, 211, 251));
    compare("Tex=Half|", place, qRgb(127, 127, 127));
    compare("X=9.5|Y=20.5|W=4.5|H=6.5|", QRect(10, 20, 4, 6), Red);  // a half goes to the even
    compare("X=-3|Y=-2|", QRect(0, 0, 2, 4), Red);
    for (const char* keys : {"W=-1|", "H=-1.4|"}) compare(keys, natural, Red);
    for (const char* keys : {"X=-1|", "Y=-1|"}) compare(keys, QRect(QPoint(0, 0), natural.size()), Red);
    for (const char* keys : {"W=|", "W=|H=|", "W=-2|", "Color=|", "Color=p1dark|TYPE=Plain|",
                             "TYPE=FONT BLACK|Tex=Black|Color=Bright|", "Tex=Torn|"}) {
      compare(keys, {}, 0);
    }
    for (const char* keys : {"X=32767.5|", "Y=32767.5|", "W=32767.5|", "H=32767.5|", "Tex=NoFile|", "Tex=Read|"}) {
      compare(keys, {}, 0, 0);
    }
  }

  void faintPixelsKeepTheirColour() {
    Stage stage;
    QImage faint(3, 1, QImage::Format_ARGB32);
    for (int x = 0; x < 3; ++x) faint.setPixel(x, 0, qRgba(0, 0, 0, x + 1));
    stage.addTexture("Fading", faint);
    stage.state.BackgroundColor = 0;
    stage.setTheme("[MainStatic]|Tex=Fading|X=5|Y=5|W=-1|H=-1|TYPE=Font Black|Color=Own|[Colors]|Own=200 100 255|");
    stage.draw();
    for (int alpha = 1; alpha <= 3; ++alpha) {
      const QRgb shown = stage.pixel(4 + alpha, 5);
      QVERIFY(std::abs(qRed(shown) - 200 * alpha / 255.0) <= 1);
      QVERIFY(std::abs(qGreen(shown) - 100 * alpha / 255.0) <= 1);
      QCOMPARE(qBlue(shown), alpha);
    }
  }

  void backgrounds() {
    const QRgb plain = qRgb(1, 2, 3);
    compareBackground("[MainBackground]|Tex=Red|", Red, 1);
    compareBackground("[MainBackground]|Tex=Faint|", plain, 1);
    for (const char* without :
         {"[OtherBackground]|Tex=Red|", "[MainBackground]|Tex=NoFile|", "[MainBackground]|Tex=Torn|"}) {
      compareBackground(without, plain, 0);
    }
    // The names of screens are told apart by their case; a name of none is the stem.
    compareBackground("[OtherBackground]|Tex=Red|", Red, 1, u"Other"_s);
    compareBackground("[MainBackground]|Tex=Red|", plain, 0, u"main screen"_s);
  }

 private:
  static void compareBackground(const char* theme, QRgb color, int steps, const QString& screen = u"Main Screen"_s) {
    const RowName name(theme);
    Stage stage;
    stage.state.BackgroundColor = 0x00030201;
    stage.host.screen = screen;
    stage.surface.Wipe(Qt::green);
    stage.setTheme(theme);
    stage.draw();
    QVERIFY(inkOf(stage.surface.image(), color).isNull());
    QCOMPARE(stage.steps(), steps);
    QVERIFY(!stage.host.barVisible);
  }

  /// Draws a static with the keys in front of plain ones; the first of two equal keys counts.
  static void compare(const QByteArray& keys, const QRect& ink, QRgb corners, int steps = 1) {
    const RowName name(keys);
    Stage stage;
    stage.setTheme("[mainSongVideoIcon]|" + keys +
                   "Tex=Red|Color=P1Dark|X=10|Y=20|W=5|H=6|[Colors]|Own=1 2 3|Bright=300 0 0|");
    stage.draw();
    QCOMPARE(inkOf(stage.surface.image()), ink);
    for (const QPoint& corner : {ink.topLeft(), ink.bottomRight()}) {
      if (!ink.isEmpty()) QCOMPARE(stage.pixel(corner.x(), corner.y()), corners);
    }
    QCOMPARE(stage.steps(), steps);
    QCOMPARE(stage.host.refreshes, steps);
    QCOMPARE(stage.account.Objects.empty(), ink.isEmpty());
    // Besides the screen's background exactly the static that didn't show is accounted.
    QCOMPARE(stage.account.Missing.size(), std::size_t(ink.isEmpty() ? 2 : 1));
    const bool tooLarge = keys.contains("32767.5");
    QCOMPARE(stage.panel.texts.size(), tooLarge ? 1 : 0);
    const QString head = QString::fromLatin1("Error while drawing Static! [mainSongVideoIcon: " + keys.left(9));
    QVERIFY(!tooLarge || stage.panel.texts[0].startsWith(head));
  }
};

QTEST_MAIN(StaticObjectsTest)
#include "static_objects_test.moc"
