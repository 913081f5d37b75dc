#include <cmath>

#include <QTest>

#include "support/stage.h"

using namespace support;

namespace {

constexpr QRgb Red = qRgb(255, 0, 0);

}  // namespace

class StaticObjectsTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void statics_data() {
    QTest::addColumn<QByteArray>("keys");
    QTest::addColumn<QRect>("ink");
    QTest::addColumn<QRgb>("color");  // of the ink's corner
    QTest::addColumn<int>("steps");
    const auto row = [](const char* name, const char* keys, QRect ink, QRgb color, int steps = 1) {
      QTest::newRow(name) << QByteArray(keys) << ink << color << steps;
    };
    const QRect place(10, 20, 5, 6);
    const QRect natural(10, 20, 8, 4);
    const char* const rectangle = "Tex=Red|Color=P1Dark|X=10|Y=20|W=5|H=6|";
    const auto other = [&](const char* name, const QByteArray& keys, QRect ink, QRgb color = Red, int steps = 1) {
      row(name, (keys + rectangle).constData(), ink, color, steps);  // the first of two equal keys counts
    };
    other("scaled", "", place);
    other("unknown type", "TYPE=Colorized2|", place);
    other("colorized", "type=colorized|", place, qRgb(0, 151, 255));
    other("font black", "TYPE=Font Black|Tex=Black|", place, qRgb(71, 175, 247));
    other("font black ORs", "TYPE=Font Black|", place, qRgb(255, 175, 247));
    other("colour of the scheme", "TYPE=FONT BLACK|Tex=Black|Color=colorLIGHT|", place, qRgb(135, 211, 251));
    other("colour beyond its range", "TYPE=FONT BLACK|Tex=Black|Color=Bright|", {});
    other("alpha", "Tex=Half|", place, qRgb(127, 127, 127));
    other("a half goes to the even", "X=9.5|Y=20.5|W=4.5|H=6.5|", QRect(10, 20, 4, 6));
    other("over the corner", "X=-3|Y=-2|", QRect(0, 0, 2, 4));
    other("W -1", "W=-1|", natural);
    other("H -1", "H=-1.4|", natural);
    other("X -1", "X=-1|", QRect(0, 0, 8, 4));
    other("Y -1", "Y=-1|", QRect(0, 0, 8, 4));
    for (const char* key : {"X", "Y", "W", "H"}) other(key, QByteArray(key) + "=32767.5|", {}, Red, 0);
    other("no width", "W=|", {});
    other("negative width", "W=-2|", {});
    other("no colour", "Color=|", {});
    other("unknown colour", "Color=p1dark|TYPE=Plain|", {});
    other("no picture", "Tex=Torn|", {});
    other("no file", "Tex=NoFile|", {}, Red, 0);
    other("no entry", "Tex=Read|", {}, Red, 0);
    row("no size", "Tex=Red|Color=P1Dark|X=10|Y=20|", {}, Red);
  }

  void statics() {
    QFETCH(QByteArray, keys);
    QFETCH(QRect, ink);
    QFETCH(QRgb, color);
    QFETCH(int, steps);
    Stage stage;
    stage.setTheme("[mainSongVideoIcon]|" + keys + "|[Colors]|Own=1 2 3|Bright=300 0 0|");
    stage.draw();
    QCOMPARE(inkOf(stage.surface.image()), ink);
    if (!ink.isEmpty()) {
      QCOMPARE(stage.pixel(ink.left(), ink.top()), color);
      QCOMPARE(stage.pixel(ink.right(), ink.bottom()), color);
    }
    QCOMPARE(stage.steps(), steps);
    QCOMPARE(stage.host.refreshes, steps);
    QCOMPARE(stage.account.Objects.empty(), ink.isEmpty());
    // Besides the screen's background exactly the static that didn't show is accounted.
    QCOMPARE(stage.account.Missing.size(), std::size_t(ink.isEmpty() ? 2 : 1));
    const bool tooLarge = keys.contains("=32767.5");
    QCOMPARE(stage.panel.texts.size(), tooLarge ? 1 : 0);
    const QString head = QString::fromLatin1("Error while drawing Static! [mainSongVideoIcon: " + keys.left(9));
    QVERIFY(!tooLarge || stage.panel.texts[0].startsWith(head));
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

  void backgrounds_data() {
    QTest::addColumn<QString>("screen");
    QTest::addColumn<QByteArray>("theme");
    QTest::addColumn<QRgb>("color");
    const QString main = QStringLiteral("Main Screen");
    const QRgb plain = qRgb(1, 2, 3);
    QTest::newRow("picture") << main << QByteArray("[MainBackground]|Tex=Red|") << Red;
    QTest::newRow("alpha over the colour") << main << QByteArray("[MainBackground]|Tex=Faint|") << plain;
    QTest::newRow("no section") << main << QByteArray("[OtherBackground]|Tex=Red|") << plain;
    QTest::newRow("no file") << main << QByteArray("[MainBackground]|Tex=NoFile|") << plain;
    QTest::newRow("no picture") << main << QByteArray("[MainBackground]|Tex=Torn|") << plain;
    QTest::newRow("name of no screen") << QStringLiteral("Other") << QByteArray("[OtherBackground]|Tex=Red|") << Red;
    QTest::newRow("case of a screen's name")
        << QStringLiteral("main screen") << QByteArray("[MainBackground]|Tex=Red|") << plain;
  }

  void backgrounds() {
    QFETCH(QString, screen);
    QFETCH(QByteArray, theme);
    QFETCH(QRgb, color);
    Stage stage;
    stage.state.BackgroundColor = 0x00030201;
    stage.host.screen = screen;
    stage.surface.Wipe(Qt::green);
    stage.setTheme(theme);
    stage.draw();
    QVERIFY(inkOf(stage.surface.image(), color).isNull());
    QCOMPARE(stage.steps(), color == Red || theme.contains("Faint") ? 1 : 0);
    QVERIFY(!stage.host.barVisible);
  }
};

QTEST_MAIN(StaticObjectsTest)
#include "static_objects_test.moc"
