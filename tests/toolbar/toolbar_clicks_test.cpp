#include <stdexcept>

#include <QHelpEvent>
#include <QSignalSpy>
#include <QTest>
#include <QToolTip>

#include "toolbar/button_values.h"
#include "toolbar/mc_toolbar.h"

using toolbar::McToolBar;

namespace {

/// Four buttons, the third one disabled.
struct Strip : McToolBar {
  Strip() {
    SetButton_Count(4);
    SetButtonValue(3, toolbar::EnabledProperty, false);
    resize(800, 32);
    show();
  }
  QSignalSpy clicks{this, &McToolBar::Click};
};

}  // namespace

class ToolbarClicksTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void pressAndRelease_data() {
    QTest::addColumn<QPoint>("press");
    QTest::addColumn<QPoint>("release");
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::addColumn<int>("clicked");  // 0: none
    QTest::newRow("last pixel") << QPoint(31, 31) << QPoint(31, 31) << Qt::LeftButton << 1;
    QTest::newRow("second") << QPoint(32, 5) << QPoint(63, 20) << Qt::LeftButton << 2;
    QTest::newRow("disabled") << QPoint(70, 5) << QPoint(70, 5) << Qt::LeftButton << 0;
    QTest::newRow("behind the last") << QPoint(128, 5) << QPoint(128, 5) << Qt::LeftButton << 0;
    QTest::newRow("released on another") << QPoint(5, 5) << QPoint(40, 5) << Qt::LeftButton << 0;
    QTest::newRow("right button") << QPoint(5, 5) << QPoint(5, 5) << Qt::RightButton << 0;
  }
  void pressAndRelease() {
    QFETCH(QPoint, press);
    QFETCH(QPoint, release);
    QFETCH(Qt::MouseButton, button);
    Strip strip;
    QTest::mousePress(&strip, button, {}, press);
    QTest::mouseRelease(&strip, button, {}, release);
    QTEST(strip.clicks.isEmpty() ? 0 : strip.clicks.first().first().toInt(), "clicked");
    QVERIFY(strip.clicks.size() <= 1);
  }

  void doubleClickIsOneClick() {
    Strip strip;
    QTest::mouseClick(&strip, Qt::LeftButton, {}, {5, 5});
    QTest::mouseDClick(&strip, Qt::LeftButton, {}, {5, 5});
    QTest::mouseRelease(&strip, Qt::LeftButton, {}, {5, 5});
    QCOMPARE(strip.clicks.size(), 1);
  }

  void disabledWhileHeldClicksNot() {
    Strip strip;
    QTest::mousePress(&strip, Qt::LeftButton, {}, {5, 5});
    strip.SetButtonValue(1, toolbar::EnabledProperty, false);
    QTest::mouseRelease(&strip, Qt::LeftButton, {}, {5, 5});
    QCOMPARE(strip.clicks.size(), 0);
  }

  void valuesAreConverted() {
    Strip strip;
    strip.SetButtonValue(4, toolbar::EnabledProperty, 0);
    QCOMPARE(strip.GetButtonValue(4, toolbar::EnabledProperty), QVariant(false));
    strip.SetButtonValue(4, toolbar::CaptionProperty, 7);
    QCOMPARE(strip.GetButtonValue(4, toolbar::CaptionProperty), QVariant(QStringLiteral("7")));
    strip.SetButtonValue(4, 8, 1);
    QCOMPARE(strip.GetButtonValue(4, 8), QVariant());
  }

  void indexOutsideIsTheCallersError() {
    Strip strip;
    for (const int index : {0, -1, 5}) {
      QVERIFY_THROWS_EXCEPTION(std::out_of_range, strip.SetButtonValue(index, 2, true));
      QVERIFY_THROWS_EXCEPTION(std::out_of_range, strip.GetButtonValue(index, 2));
    }
    strip.SetButton_Count(0);
    QCOMPARE(strip.Button_Count(), 4);
  }

  void disabledIconIsGrey() {
    Strip strip;
    QImage icon(16, 16, QImage::Format_ARGB32);
    icon.fill(QColor(200, 0, 0));
    strip.SetButtonValue(2, toolbar::IconProperty, icon);
    strip.SetButtonValue(3, toolbar::IconProperty, QIcon(QPixmap::fromImage(icon)));
    const QImage shown = strip.grab().toImage();
    QCOMPARE(shown.pixelColor(48, 16), QColor(200, 0, 0));
    QVERIFY(shown.pixelColor(80, 16).saturation() < 10 && shown.pixelColor(80, 16) != shown.pixelColor(112, 16));
  }

  void tipIsPlainText() {
    Strip strip;
    strip.SetButtonValue(2, toolbar::ToolTipTextProperty, QStringLiteral("<b>Save</b>"));
    QHelpEvent event(QEvent::ToolTip, {40, 5}, strip.mapToGlobal(QPoint(40, 5)));
    QApplication::sendEvent(&strip, &event);
    QVERIFY(QToolTip::text().contains(QStringLiteral("&lt;b&gt;Save&lt;/b&gt;")));
  }
};

QTEST_MAIN(ToolbarClicksTest)
#include "toolbar_clicks_test.moc"
