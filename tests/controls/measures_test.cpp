#include <QTest>

#include "controls/look.h"
#include "controls/twips.h"

using namespace Qt::StringLiterals;

class MeasuresTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void edgesAreRounded() {
    const auto place = [](double left, double width) {
      const QRect pixels = controls::ToPixels({left, 0, width, 15});
      return std::pair(pixels.left(), pixels.width());
    };
    QCOMPARE(place(120, 855), std::pair(8, 57));
    QCOMPARE(place(10, 310), std::pair(1, 20));  // the width by the edges, not by itself
    QCOMPARE(place(7.5, 15), std::pair(1, 1));
    QCOMPARE(place(30, -45), std::pair(2, -3));
  }

  void toolTipsAreNeverRichText() {
    const QString shell = u"<span style=\"white-space:pre-wrap\">%1</span>"_s;
    QCOMPARE(controls::PlainToolTip(u"a < b & c"_s), u"a < b & c"_s);
    QCOMPARE(controls::PlainToolTip(u"<img src=\"x\">"_s), shell.arg(u"&lt;img src=&quot;x&quot;&gt;"_s));
    QCOMPARE(controls::PlainToolTip(QString(100, u'<')), shell.arg(u"&lt;"_s.repeated(100)));
  }
};

QTEST_MAIN(MeasuresTest)
#include "measures_test.moc"
