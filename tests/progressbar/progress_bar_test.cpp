#include "progressbar/progress_bar.h"

#include <QAccessible>
#include <QPainter>
#include <QTest>

#include "controls/look.h"
#include "mainwindows/main_window_progress_bar.h"
#include "progressbar/gradients.h"
#include "progressbar/stored_form.h"
#include "support/bags.h"
#include "support/picture_results.h"

using namespace progressbar;
using propertybag::PropertyBag;
using support::bagOf;
using namespace Qt::StringLiterals;

class ProgressBarTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void initTestCase() { controls::applyLook(*qApp); }

  void greyLevels() {
    support::compareRows(u"greys.txt"_s, [](const QString& color) {
      return u"%1"_s.arg(greyOf(color.toUInt(nullptr, 16)), 6, 16, QChar(u'0'));
    });
  }

  // min, max and Value before and after a write, and what was told.
  void rangeRules() {
    support::compareRows(u"ranges.txt"_s, [](const QString& row) {
      const QStringList given = row.split(u' ');
      const QMap<QString, void (ProgressBar::*)(int)> writes{{u"SetValue"_s, &ProgressBar::SetValue},
                                                             {u"SetMax"_s, &ProgressBar::SetMax},
                                                             {u"SetMin"_s, &ProgressBar::SetMin}};
      ProgressBar bar;
      bar.SetMax(given.at(1).toInt());
      bar.SetMin(given.at(0).toInt());
      bar.SetValue(given.at(2).toInt());
      QString told;
      connect(&bar, &ProgressBar::PropertyChanged, [&told](const QString& key) { told += u' ' + key; });
      (bar.*writes[given.at(3)])(given.at(4).toInt());
      return u"%1 %2 %3"_s.arg(bar.min()).arg(bar.max()).arg(bar.Value()) + told;
    });
  }

  // What is shown only for a moment isn't seen at all.
  void shownWithTheNextFrame() {
    ProgressBar bar;
    bar.show();
    QVERIFY(!bar.updatesEnabled());
    QTRY_VERIFY(bar.updatesEnabled());
  }

  // The place, the colours of the corners in the file's order, and the pixels from corner to corner of the sheet.
  void fourColours() {
    support::compareRows(u"corners.txt"_s, [](const QString& row) {
      QList<int> n;
      for (const QString& number : row.split(u' ')) n += number.toInt(nullptr, n.size() < 4 ? 10 : 16);
      drawing::Raster sheet(QSize(8, 8));
      DrawGradientFourColour(sheet, n.at(0), n.at(1), n.at(2), n.at(3), n.at(4), n.at(5), n.at(6), n.at(7));
      QStringList pixels;
      for (int i = 0; i < 8; ++i) pixels += QColor(sheet.pixelRow(i)[i]).name().sliced(1);
      return pixels.join(u' ');
    });
  }

  // What a bag becomes when it is written again, what a screen reader sees, and how such a bar looks.
  void storedAndShown() {
    constexpr int Columns = 8;
    QImage sheet(Columns * 102, 12 * 32, QImage::Format_RGB32);
    sheet.fill(Qt::white);
    QPainter painter(&sheet);
    int cell = 0;
    support::compareRows(u"stored.txt"_s, [&](const QString& row) {
      ProgressBar bar;
      bar.resize(100, 30);
      bar.setObjectName(u"name"_s);
      readProperties(bar, bagOf(row));
      painter.drawPixmap(cell % Columns * 102, cell / Columns * 32, bar.grab({0, 0, 100, 30}));
      ++cell;
      PropertyBag written;
      writeProperties(bar, written);
      const QAccessibleValueInterface& seen = *QAccessible::queryAccessibleInterface(&bar)->valueInterface();
      const QVariant range[] = {seen.minimumValue(), seen.currentValue(), seen.maximumValue()};
      return support::toldOf(written) +
             u": %1 %2 %3"_s.arg(range[0].toInt()).arg(range[1].toInt()).arg(range[2].toInt());
    });
    support::comparePicture(u"stored.png"_s, sheet);
  }

  void mainWindowBarGoesRound() {
    const QByteArray stored = mainwindows::mainWindowBar();
    ProgressBar bar;
    QVERIFY(readProperties(bar, stored));
    QCOMPARE(writeProperties(bar).toHex(' '), stored.toHex(' '));
    QVERIFY(!readProperties(bar, stored.chopped(1)));
    QCOMPARE(bar.state().RoundedValue, 5);
  }
};

QTEST_MAIN(ProgressBarTest)
#include "progress_bar_test.moc"
