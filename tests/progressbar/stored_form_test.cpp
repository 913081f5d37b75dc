#include "progressbar/stored_form.h"

#include <QSignalSpy>
#include <QTest>

#include "platform/property_bag_bytes.h"
#include "progressbar/main_window_bar.h"
#include "progressbar/progress_bar.h"

using platform::PropertyBag;
using progressbar::ProgressBar;

namespace {

const QStringList KeysInOrder =
    QStringLiteral(
        "Max Min Value RoundedValue Enabled Theme TextStyle Orientations Text TextEffectColor TextEffect "
        "TextAlignment TextFont TextForeColor PBSCustomeColor2 PBSCustomeColor1")
        .split(u' ');

QStringList storedKeys(const PropertyBag& bag) {
  QStringList keys;
  for (const QString& key : KeysInOrder) {
    if (bag.contains(key)) keys += key;
  }
  return keys;
}

QStringList told(const QSignalSpy& spy) {
  QStringList keys;
  for (const QList<QVariant>& call : spy) keys += call.first().toString();
  return keys;
}

}  // namespace

class StoredFormTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
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
    PropertyBag bag;
    progressbar::WriteProperties(bar, bag);
    QCOMPARE(storedKeys(bag), QStringList(QStringLiteral("Text")));
    bar.InitProperties();
    progressbar::WriteProperties(bar, bag);
    QCOMPARE(storedKeys(bag).join(u' '), QStringLiteral("TextStyle Text TextEffectColor TextEffect"));
  }

  void rangeStandsBeforeTheValue() {
    PropertyBag bag;
    bag.WriteProperty(QStringLiteral("value"), 700, {});
    bag.WriteProperty(QStringLiteral("MIN"), 300, {});
    bag.WriteProperty(QStringLiteral("max"), 900, {});
    ProgressBar bar;
    progressbar::ReadProperties(bar, bag);
    QCOMPARE((QList<int>{bar.min(), bar.max(), bar.Value()}), (QList<int>{300, 900, 700}));
  }

  void failingKeyIsPassedOver_data() {
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("value");
    QTest::newRow("word as a number") << QStringLiteral("Theme") << QVariant(QStringLiteral("blue"));
    QTest::newRow("beyond 32 bits") << QStringLiteral("Max") << QVariant(Q_INT64_C(5000000000));
    QTest::newRow("number as a font") << QStringLiteral("TextFont") << QVariant(8);
    QTest::newRow("word as a boolean") << QStringLiteral("Enabled") << QVariant(QStringLiteral("perhaps"));
  }
  void failingKeyIsPassedOver() {
    QFETCH(QString, key);
    QFETCH(QVariant, value);
    PropertyBag bag;
    bag.WriteProperty(key, value, {});
    ProgressBar bar;
    const QSignalSpy spy(&bar, &ProgressBar::PropertyChanged);
    progressbar::ReadProperties(bar, bag);
    QStringList others = KeysInOrder;
    others.removeOne(key);
    QCOMPARE(told(spy), others);
  }

  // Colours come as negative numbers when they are the system's.
  void bytesGoRound_data() {
    QTest::addColumn<QByteArray>("stored");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<quint32>("track");
    QTest::newRow("main window") << progressbar::MainWindowBar() << QSize(801, 20) << 0xC0C0C0U;
    PropertyBag bag;
    bag.WriteProperty(QStringLiteral("_extentx"), 265, {});
    bag.WriteProperty(QStringLiteral("_extenty"), 529, {});
    bag.WriteProperty(QStringLiteral("Text"), QStringLiteral("bar"), {});
    bag.WriteProperty(QStringLiteral("PBSCustomeColor2"), -2147483633, {});
    QTest::newRow("system colour") << platform::StoredBytes(bag) << QSize(10, 20) << 0x8000000FU;
  }
  void bytesGoRound() {
    QFETCH(QByteArray, stored);
    ProgressBar bar;
    QVERIFY(progressbar::ReadProperties(bar, stored));
    QCOMPARE(progressbar::WriteProperties(bar).toHex(' '), stored.toHex(' '));
    QTEST(bar.size(), "size");
    QTEST(bar.PBSCustomeColor2(), "track");
    QVERIFY(!progressbar::ReadProperties(bar, stored.chopped(1)));
    QCOMPARE(bar.RoundedValue(), 5);
  }
};

QTEST_MAIN(StoredFormTest)
#include "stored_form_test.moc"
