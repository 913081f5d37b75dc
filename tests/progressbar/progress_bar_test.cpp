#include "progressbar/progress_bar.h"

#include <QAccessible>
#include <QTest>

#include "mainwindows/main_window_progress_bar.h"
#include "progressbar/gradients.h"
#include "progressbar/stored_form.h"
#include "propertybag/stored_bytes.h"

using namespace progressbar;
using propertybag::PropertyBag;

namespace {

PropertyBag bagOf(const std::vector<std::pair<const char*, QVariant>>& values) {
  PropertyBag bag;
  for (const auto& [key, value] : values) bag.WriteProperty(QString::fromLatin1(key), value, {});
  return bag;
}

}  // namespace

class ProgressBarTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void greyLevels() {
    QCOMPARE(greyOf(0xFFFFFFU), 0xFFFFFFU);  // above the brightest
    QCOMPARE(greyOf(0x4ACC3EU), 0x727272U);  // lower channels count in the higher ones
  }

  // min, max and Value before and after a write, and what was told.
  void rangeRules() {
    const auto after = [](int min, int max, int value, void (ProgressBar::*write)(int), int written) {
      ProgressBar bar;
      bar.SetMax(max);
      bar.SetMin(min);
      bar.SetValue(value);
      QString told;
      connect(&bar, &ProgressBar::PropertyChanged, [&told](const QString& key) { told += u' ' + key; });
      (bar.*write)(written);
      return QStringLiteral("%1 %2 %3").arg(bar.min()).arg(bar.max()).arg(bar.Value()) + told;
    };
    QCOMPARE(after(0, 100, 50, &ProgressBar::SetValue, 150), QStringLiteral("0 100 100 Value"));
    QCOMPARE(after(0, 100, 1, &ProgressBar::SetMax, 0), QStringLiteral("0 1 1 Max"));
    QCOMPARE(after(20, 100, 20, &ProgressBar::SetMax, 10), QStringLiteral("20 21 20 Max"));
    QCOMPARE(after(0, 100, 50, &ProgressBar::SetMax, 40), QStringLiteral("0 40 40 Value Max"));
    QCOMPARE(after(0, 100, 50, &ProgressBar::SetMin, 200), QStringLiteral("99 100 99 Value Min"));
    QCOMPARE(after(5, 100, 50, &ProgressBar::SetMin, -5), QStringLiteral("0 100 50 Min"));
  }

  // What is shown only for a moment isn't seen at all.
  void shownWithTheNextFrame() {
    ProgressBar bar;
    bar.show();
    QVERIFY(!bar.updatesEnabled());
    QTRY_VERIFY(bar.updatesEnabled());
  }

  // From the corners on; no step reaches the far ones.
  void fourColours() {
    drawing::Raster sheet(QSize(8, 8));
    DrawGradientFourColour(sheet, 2, 3, 4, 4, 0, 0x0000F0, 0x00F000, 0xF0F000);
    QCOMPARE(sheet.pixelRow(3)[2], qRgb(0, 0, 0));
    QCOMPARE(sheet.pixelRow(4)[4], qRgb(90, 60, 30));
    QCOMPARE(sheet.pixelRow(7)[4], qRgb(0, 0, 0));
  }

  void bags() {
    ProgressBar bar;
    bar.setObjectName(QStringLiteral("ProgressBar1"));
    bar.SetValue(3);
    readProperties(bar, PropertyBag());  // gives the stored defaults
    QCOMPARE(bar.Value(), 50);
    QCOMPARE(bar.state().TextEffectColor, 0xC8C8C8U);
    QCOMPARE(bar.state().Text, QStringLiteral("ProgressBar1"));
    // The value is read behind its range, and a key that fails is passed over.
    readProperties(bar, bagOf({{"value", 700}, {"MIN", 300}, {"Theme", QStringLiteral("blue")}, {"max", 900}}));
    QCOMPARE((QList<int>{bar.min(), bar.max(), bar.Value()}), (QList<int>{300, 900, 700}));
    const QAccessibleValueInterface& seen = *QAccessible::queryAccessibleInterface(&bar)->valueInterface();
    QCOMPARE((QVariantList{seen.minimumValue(), seen.maximumValue(), seen.currentValue()}),
             (QVariantList{300, 900, 700}));
    readProperties(bar, bagOf({{"Max", 3000000000U}, {"value", 7}}));
    QCOMPARE(bar.Value(), 7);
  }

  // Colours come as negative numbers when they are the system's.
  void bytesGoRound() {
    const QByteArray own = propertybag::storedBytes(bagOf(
        {{"_extentx", 265}, {"_extenty", 529}, {"Text", QStringLiteral("bar")}, {"PBSCustomeColor2", -2147483633}}));
    const struct {
      QByteArray stored;
      QSize size;
      quint32 track;
    } rows[] = {{mainwindows::mainWindowBar(), QSize(801, 20), 0xC0C0C0U}, {own, QSize(10, 20), 0x8000000FU}};
    for (const auto& [stored, size, track] : rows) {
      ProgressBar bar;
      QVERIFY(readProperties(bar, stored));
      QCOMPARE(writeProperties(bar).toHex(' '), stored.toHex(' '));
      QCOMPARE(bar.size(), size);
      QCOMPARE(bar.state().PBSCustomeColor2, track);
      QVERIFY(!readProperties(bar, stored.chopped(1)));
      QCOMPARE(bar.state().RoundedValue, 5);
    }
  }
};

QTEST_MAIN(ProgressBarTest)
#include "progress_bar_test.moc"
