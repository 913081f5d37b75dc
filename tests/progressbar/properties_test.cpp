#include <QSignalSpy>
#include <QTest>

#include "progressbar/progress_bar.h"

using progressbar::ProgressBar;
using Write = void (ProgressBar::*)(int);
Q_DECLARE_METATYPE(Write)

namespace {

QString told(const QSignalSpy& spy) {
  QStringList keys;
  for (const QList<QVariant>& call : spy) keys += call.first().toString();
  return keys.join(u' ');
}

}  // namespace

class PropertiesTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void rangeRules_data() {
    QTest::addColumn<int>("min");
    QTest::addColumn<int>("max");
    QTest::addColumn<int>("value");
    QTest::addColumn<Write>("write");
    QTest::addColumn<int>("written");
    QTest::addColumn<QList<int>>("after");  // min, max, Value
    QTest::addColumn<QString>("keys");
    const auto row = [](const char* name, int min, int max, int value, Write write, int written, QList<int> after,
                        const char* keys) {
      QTest::newRow(name) << min << max << value << write << written << after << QString::fromLatin1(keys);
    };
    row("value above", 0, 100, 50, &ProgressBar::SetValue, 150, {0, 100, 100}, "Value");
    row("value below", 0, 100, 50, &ProgressBar::SetValue, -5, {0, 100, 0}, "Value");
    row("the same value", 0, 100, 50, &ProgressBar::SetValue, 50, {0, 100, 50}, "Value");
    row("max below one", 0, 100, 1, &ProgressBar::SetMax, 0, {0, 1, 1}, "Max");
    row("max at min", 20, 100, 20, &ProgressBar::SetMax, 10, {20, 21, 20}, "Max");
    row("max pulls the value first", 0, 100, 50, &ProgressBar::SetMax, 40, {0, 40, 40}, "Value Max");
    row("min above max", 0, 100, 50, &ProgressBar::SetMin, 200, {99, 100, 99}, "Value Min");
    row("negative min", 0, 100, 50, &ProgressBar::SetMin, -3, {0, 100, 50}, "Min");
    row("min pulls the value", 0, 100, 50, &ProgressBar::SetMin, 60, {60, 100, 60}, "Value Min");
  }
  void rangeRules() {
    QFETCH(int, min);
    QFETCH(int, max);
    QFETCH(int, value);
    QFETCH(Write, write);
    QFETCH(int, written);
    ProgressBar bar;
    bar.SetMax(max);
    bar.SetMin(min);
    bar.SetValue(value);
    const QSignalSpy spy(&bar, &ProgressBar::PropertyChanged);
    (bar.*write)(written);
    QTEST((QList<int>{bar.min(), bar.max(), bar.Value()}), "after");
    QTEST(told(spy), "keys");
  }

  void lookAndFontOfTheControl() {
    ProgressBar bar;
    QFont font;
    font.setPixelSize(19);
    bar.SetTextFont(font);
    bar.SetEnabled(false);
    QCOMPARE(bar.font().pixelSize(), 19);
    QVERIFY(bar.isEnabled());
  }
};

QTEST_MAIN(PropertiesTest)
#include "properties_test.moc"
