#include <QTest>

#include "controls/look.h"
#include "controls/twips.h"

class MeasuresTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void edgesAreRounded_data() {
    QTest::addColumn<double>("left");
    QTest::addColumn<double>("width");
    QTest::addColumn<int>("pixelLeft");
    QTest::addColumn<int>("pixelWidth");
    QTest::newRow("whole pixels") << 120.0 << 855.0 << 8 << 57;
    QTest::newRow("width by the edges, not by itself") << 10.0 << 310.0 << 1 << 20;
    QTest::newRow("half a pixel") << 7.5 << 15.0 << 1 << 1;
    QTest::newRow("negative size") << 30.0 << -45.0 << 2 << -3;
  }
  void edgesAreRounded() {
    QFETCH(double, left);
    QFETCH(double, width);
    const QRect place = controls::ToPixels({left, 0, width, 15});
    QTEST(place.left(), "pixelLeft");
    QTEST(place.width(), "pixelWidth");
  }

  void toolTipsAreNeverRichText_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("tip");
    const QString shell = QStringLiteral("<span style=\"white-space:pre-wrap\">%1</span>");
    QTest::newRow("plain") << QStringLiteral("a < b & c") << QStringLiteral("a < b & c");
    QTest::newRow("tags") << QStringLiteral("<img src=\"x\">")
                          << shell.arg(QStringLiteral("&lt;img src=&quot;x&quot;&gt;"));
    QTest::newRow("long") << QString(100, u'<') << shell.arg(QStringLiteral("&lt;").repeated(100));
  }
  void toolTipsAreNeverRichText() {
    QFETCH(QString, text);
    QTEST(controls::PlainToolTip(text), "tip");
  }
};

QTEST_MAIN(MeasuresTest)
#include "measures_test.moc"
