#include <QAccessible>
#include <QSignalSpy>
#include <QTest>

#include "platform/property_bag_bytes.h"
#include "progressbar/main_window_bar.h"
#include "progressbar/progress_bar.h"
#include "progressbar/stored_form.h"

using platform::PropertyBag;
using progressbar::ProgressBar;

namespace {

const QString KeysInOrder = QStringLiteral(
    "Max Min Value RoundedValue Enabled Theme TextStyle Orientations Text TextEffectColor TextEffect TextAlignment "
    "TextFont TextForeColor PBSCustomeColor2 PBSCustomeColor1");

QString told(const QSignalSpy& spy) {
  QStringList keys;
  for (const QList<QVariant>& call : spy) keys += call.first().toString();
  return keys.join(u' ');
}

PropertyBag bagOf(const std::vector<std::pair<const char*, QVariant>>& values) {
  PropertyBag bag;
  for (const auto& [key, value] : values) bag.WriteProperty(QString::fromLatin1(key), value, {});
  return bag;
}

/// The stored keys in their order.
QString keysOf(const ProgressBar& bar) {
  PropertyBag bag;
  progressbar::WriteProperties(bar, bag);
  QStringList keys;
  for (const PropertyBag::Record& record : bag.Records()) keys += record.key;
  return keys.join(u' ');
}

}  // namespace

class PropertiesTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  // min, max and Value before and after a write, and what was told.
  void rangeRules() {
    const auto after = [](int min, int max, int value, void (ProgressBar::*write)(int), int written) {
      ProgressBar bar;
      bar.SetMax(max);
      bar.SetMin(min);
      bar.SetValue(value);
      const QSignalSpy spy(&bar, &ProgressBar::PropertyChanged);
      (bar.*write)(written);
      return QStringLiteral("%1 %2 %3 ").arg(bar.min()).arg(bar.max()).arg(bar.Value()) + told(spy);
    };
    QCOMPARE(after(0, 100, 50, &ProgressBar::SetValue, 150), QStringLiteral("0 100 100 Value"));
    QCOMPARE(after(0, 100, 50, &ProgressBar::SetValue, -5), QStringLiteral("0 100 0 Value"));
    QCOMPARE(after(0, 100, 50, &ProgressBar::SetValue, 50), QStringLiteral("0 100 50 Value"));
    QCOMPARE(after(0, 100, 1, &ProgressBar::SetMax, 0), QStringLiteral("0 1 1 Max"));
    QCOMPARE(after(20, 100, 20, &ProgressBar::SetMax, 10), QStringLiteral("20 21 20 Max"));
    QCOMPARE(after(0, 100, 50, &ProgressBar::SetMax, 40), QStringLiteral("0 40 40 Value Max"));
    QCOMPARE(after(0, 100, 50, &ProgressBar::SetMin, 200), QStringLiteral("99 100 99 Value Min"));
    QCOMPARE(after(0, 100, 50, &ProgressBar::SetMin, -3), QStringLiteral("0 100 50 Min"));
    QCOMPARE(after(0, 100, 50, &ProgressBar::SetMin, 60), QStringLiteral("60 100 60 Value Min"));
  }

  void lookAndFontOfTheControl() {
    ProgressBar bar;
    QFont font;
    font.setPixelSize(19);
    font.setItalic(true);
    bar.SetTextFont(font);
    bar.SetEnabled(false);
    QVERIFY(bar.font().pixelSize() == 19 && bar.font().italic());
    QVERIFY(bar.isEnabled());
  }

  void emptyBagGivesTheStoredDefaults() {
    QWidget form;
    QFont font = form.font();
    font.setPixelSize(17);
    form.setFont(font);
    ProgressBar bar(&form);
    bar.setObjectName(QStringLiteral("ProgressBar1"));
    bar.SetValue(3);
    const QSignalSpy spy(&bar, &ProgressBar::PropertyChanged);
    progressbar::ReadProperties(bar, PropertyBag());
    QCOMPARE(told(spy), KeysInOrder);
    QCOMPARE(bar.Value(), 50);
    QCOMPARE(bar.TextEffectColor(), 0xC8C8C8U);
    QCOMPARE(bar.Text(), QStringLiteral("ProgressBar1"));
    QCOMPARE(bar.TextFont().pixelSize(), 17);
    QCOMPARE(keysOf(bar), QStringLiteral("_extentx _extenty Text"));
    bar.InitProperties();
    QCOMPARE(keysOf(bar), QStringLiteral("_extentx _extenty TextStyle Text TextEffectColor TextEffect"));
  }

  void rangeStandsBeforeTheValue() {
    ProgressBar bar;
    progressbar::ReadProperties(bar, bagOf({{"value", 700}, {"MIN", 300}, {"max", 900}}));
    QCOMPARE((QList<int>{bar.min(), bar.max(), bar.Value()}), (QList<int>{300, 900, 700}));
  }

  void failingKeyIsPassedOver() {
    const std::pair<const char*, QVariant> rows[] = {{"Theme", QStringLiteral("blue")},
                                                     {"Max", 3000000000U},
                                                     {"TextFont", 8},
                                                     {"Enabled", QStringLiteral("perhaps")}};
    for (const auto& row : rows) {
      ProgressBar bar;
      const QSignalSpy spy(&bar, &ProgressBar::PropertyChanged);
      progressbar::ReadProperties(bar, bagOf({row}));
      QStringList others = KeysInOrder.split(u' ');
      others.removeOne(QString::fromLatin1(row.first));
      QCOMPARE(told(spy), others.join(u' '));
    }
  }

  void assistiveProgramsReadTheValue() {
    ProgressBar bar;
    bar.SetMax(200);
    bar.SetValue(30);
    QAccessibleInterface* const seen = QAccessible::queryAccessibleInterface(&bar);
    QCOMPARE(seen->role(), QAccessible::ProgressBar);
    QCOMPARE(seen->valueInterface()->currentValue().toInt(), 30);
    QCOMPARE(seen->valueInterface()->maximumValue().toInt(), 200);
  }

  // Colours come as negative numbers when they are the system's.
  void bytesGoRound() {
    const QByteArray own = platform::StoredBytes(bagOf(
        {{"_extentx", 265}, {"_extenty", 529}, {"Text", QStringLiteral("bar")}, {"PBSCustomeColor2", -2147483633}}));
    const struct {
      QByteArray stored;
      QSize size;
      quint32 track;
    } rows[] = {{progressbar::MainWindowBar(), QSize(801, 20), 0xC0C0C0U}, {own, QSize(10, 20), 0x8000000FU}};
    for (const auto& [stored, size, track] : rows) {
      ProgressBar bar;
      QVERIFY(progressbar::ReadProperties(bar, stored));
      QCOMPARE(progressbar::WriteProperties(bar).toHex(' '), stored.toHex(' '));
      QCOMPARE(bar.size(), size);
      QCOMPARE(bar.PBSCustomeColor2(), track);
      QVERIFY(!progressbar::ReadProperties(bar, stored.chopped(1)));
      QCOMPARE(bar.RoundedValue(), 5);
    }
  }
};

QTEST_MAIN(PropertiesTest)
#include "properties_test.moc"
