#include <QAccessible>
#include <QApplication>
#include <QLineEdit>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>

#include "controls/look.h"
#include "mainwindows/commands.h"
#include "mainwindows/main_window_tool_bar.h"
#include "propertybag/stored_bytes.h"
#include "support/mouse.h"
#include "support/picture_results.h"
#include "toolbar/mc_toolbar.h"
#include "toolbar/tip_window.h"

using toolbar::McToolBar;
using toolbar::Properties;

namespace {

/// A form with four buttons, the third one disabled; in 80 pixels all but the first two hide.
struct Form {
  explicit Form(int width = 800) {
    bar.UserControl_ReadProperties({});
    bar.buttons().setValue(&Properties::ButtonsPerRow, 10);
    bar.buttons().setValue(&Properties::ShowChevron, true);
    bar.SetButton_Count(4);
    bar.SetButtonValue(3, toolbar::EnabledProperty, false);
    bar.buttons().pointAt(-1);
    bar.move(0, 0);
    bar.resize(width, 32);
    form.resize(900, 200);
    form.show();
    form.activateWindow();
  }
  QWidget form;
  McToolBar bar{toolbar::ambientOf(nullptr), &form};
  QSignalSpy clicks{&bar, &McToolBar::Click};
  QSignalSpy hovers{&bar, &McToolBar::Hover};
  QSignalSpy leaves{&bar, &McToolBar::MouseLeave};
};

QString numbers(const QSignalSpy& spy) {
  QString text;
  for (const QList<QVariant>& call : spy) text += call.first().toString();
  return text;
}

}  // namespace

class WidgetTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void initTestCase() { controls::applyLook(*qApp); }

  void valuesOfAButtonByNumber() {
    McToolBar bar(toolbar::ambientOf(nullptr), nullptr);
    bar.UserControl_ReadProperties({});
    const QImage icon(6, 2, QImage::Format_RGB32);
    const QVariant values[] = {1, QStringLiteral("Go"), false, icon.width(), 2, true, QStringLiteral("tip"), 3};
    for (int number = 0; number < 8; ++number) {
      bar.SetButtonValue(1, number, number == toolbar::IconProperty ? icon : values[number]);
      const QVariant value = bar.GetButtonValue(1, number);
      const auto picture = value.value<toolbar::PictureReference>();
      QCOMPARE(picture ? picture->Width() : value, values[number]);
    }
    QVERIFY(!bar.GetButtonValue(1, 8).isValid());
  }

  void doubleClickIsOneClickAndLeavingComesOnce() {
    Form form;
    const QSignalSpy doubles(&form.bar, &McToolBar::DblClick);
    QTest::mouseClick(&form.bar, Qt::LeftButton, {}, {5, 5});
    QTest::mouseDClick(&form.bar, Qt::LeftButton, {}, {5, 5});
    QCOMPARE(numbers(form.clicks) + u' ' + numbers(doubles), QStringLiteral("1 1"));
    // Leaving while the mouse is held.
    QTest::mousePress(&form.bar, Qt::LeftButton, {}, {5, 5});
    for (const int x : {-5, -6}) support::moveMouse(form.bar, {x, 5});
    QTest::mouseRelease(&form.bar, Qt::LeftButton, {}, {-6, 5});
    QCOMPARE(form.leaves.size(), 1);
    QCOMPARE(form.bar.buttons().Button_Index(), -1);
    QCOMPARE(form.clicks.size(), 1);
  }

  void popupLivesWithItsForm() {
    for (const bool moved : {true, false}) {  // or the focus is lost
      Form form(80);
      QLineEdit other(&form.form);
      other.show();
      QVERIFY(QTest::qWaitForWindowActive(&form.form));
      QTest::mousePress(&form.bar, Qt::LeftButton, {}, {75, 5});
      QWidget& popup = *form.bar.popupWindow();
      QVERIFY(popup.isVisible());
      QCOMPARE(popup.geometry().topLeft(), form.bar.mapToGlobal(QPoint(80 - 68, 33)));
      support::moveMouse(popup, {40, 5}, {});
      support::comparePicture(QStringLiteral("popup.png"), popup.grab().toImage());
      support::comparePicture(QStringLiteral("below the popup.png"), form.bar.grab().toImage());
      QTest::mouseClick(&popup, Qt::LeftButton, {}, {5, 5});
      QTest::mouseClick(&popup, Qt::LeftButton, {}, {40, 5});
      QCOMPARE(numbers(form.clicks), QStringLiteral("4"));
      QVERIFY(popup.isVisible());
      if (moved) {
        form.form.move(form.form.pos() + QPoint(10, 10));
      } else {
        other.setFocus();
      }
      QVERIFY2(QTest::qWaitFor([&popup] { return !popup.isVisible(); }), moved ? "moved" : "focus lost");
    }
  }

  void keyboardAndScreenReader() {
    Form form(80);
    QVERIFY(QTest::qWaitForWindowActive(&form.form));
    form.bar.SetButtonValue(2, toolbar::CaptionProperty, QString());
    form.bar.SetButtonValue(2, toolbar::ToolTipTextProperty, QStringLiteral("Save"));
    form.bar.clearFocus();
    form.bar.setFocus(Qt::TabFocusReason);
    QTest::keyClick(&form.bar, Qt::Key_Right);
    QAccessibleInterface* const bar = QAccessible::queryAccessibleInterface(&form.bar);
    QAccessibleInterface* const button = bar->child(1);
    QCOMPARE(bar->focusChild(), button);
    QCOMPARE(button->text(QAccessible::Name), QStringLiteral("Save"));
    QVERIFY(bar->child(2)->state().disabled && bar->child(3)->state().invisible && !button->state().disabled);
    QTest::keyClick(&form.bar, Qt::Key_Return);
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, {}, true);
    QApplication::sendEvent(&form.bar, &held);
    button->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QTest::keyClick(&form.bar, Qt::Key_End);
    QTest::keyClick(&form.bar, Qt::Key_Space);
    QVERIFY(form.bar.popupWindow()->geometry().contains(bar->child(3)->rect()) && !bar->child(3)->state().invisible);
    QCOMPARE(bar->childAt(button->rect().x(), button->rect().y()), button);
    QTest::keyClick(&form.bar, Qt::Key_Space);
    QTest::keyClick(&form.bar, Qt::Key_Escape);
    QVERIFY(!form.bar.popupWindow()->isVisible());
    for (const auto key : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Right}) QTest::keyClick(&form.bar, key);
    QCOMPARE(numbers(form.hovers) + u' ' + numbers(form.clicks), QStringLiteral("12421 224"));
    form.bar.clearFocus();
    QCOMPARE(form.bar.buttons().Button_Index(), -1);
  }

  void mainWindowBarGoesRound() {
    const QByteArray stored = mainwindows::mainWindowToolBar(mainwindows::commandRows());
    McToolBar bar({false, QFont()});
    QVERIFY(bar.UserControl_ReadProperties(stored));
    QCOMPARE(bar.UserControl_WriteProperties(), stored);
  }

  void tipsAreWindowsOfTheirOwn() {
    Form form;
    form.bar.SetButtonValue(1, toolbar::ToolTipTextProperty, QStringLiteral("<b>first</b>"));
    const auto tip = [] {
      for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && window->accessibleName() == QStringLiteral("<b>first</b>")) return window;
      }
      return static_cast<QWidget*>(nullptr);
    };
    QVERIFY(QTest::qWaitForWindowActive(&form.form));
    QTest::mouseMove(&form.bar, {5, 5});
    QTRY_VERIFY(tip());
    QCOMPARE(tip()->grab().toImage().pixelColor(0, 0).alpha(), 0);  // a balloon needs no mask to have its shape
    QTest::mouseMove(&form.bar, {6, 5});
    QTRY_VERIFY(!tip());
    QTRY_VERIFY(tip());
    form.form.hide();
    QVERIFY(!tip());
  }

  void looksOfTips_data() {
    QTest::addColumn<QString>("title");
    QTest::addColumn<int>("icon");
    QTest::addColumn<bool>("balloon");
    QTest::addColumn<QPoint>("pointer");
    QTest::addRow("balloon") << QStringLiteral("A title") << 1 << true << QPoint(100, 100);
    QTest::addRow("balloon above") << QString() << 0 << true << QPoint(780, 795);
    QTest::addRow("rectangle") << QStringLiteral("Another & title") << 3 << false << QPoint(5, 100);
    QTest::addRow("rectangle above") << QStringLiteral("A title") << 0 << false << QPoint(100, 795);
    QTest::addRow("wide title")
        << QStringLiteral("A title that is wider than any line of the text below it, which is wrapped at the width")
        << 1 << false << QPoint(100, 100);
  }

  void looksOfTips() {
    QFETCH(QString, title);
    QFETCH(int, icon);
    QFETCH(bool, balloon);
    QFETCH(QPoint, pointer);
    QWidget form;
    const QString text = QStringLiteral(
        "<b>words</b> in one line, or in two where there are more of them than fit into the width of a tip");
    toolbar::TipWindow tip({text, title, icon, balloon, 0xE6FDFD, 0x800000}, &form);
    tip.showAt(pointer);
    support::comparePicture(QString::fromLatin1(QTest::currentDataTag()) + QStringLiteral(".png"),
                            tip.grab().toImage());
    const QPoint corner = tip.pos() - pointer;
    QCOMPARE(corner.y() < 0, pointer.y() > 700);
    QVERIFY(tip.screen()->availableGeometry().contains(tip.geometry()));
  }

  void damagedBagLeavesTheDefaults() {
    const std::pair<const char*, QVariant> rows[] = {{"Button_Count", 0},
                                                     {"Button_Count", 100000},
                                                     {"ButtonsWidth", QStringLiteral("wide")},
                                                     {"ButtonIcon1", 5},
                                                     {"BorderStyle", 70000}};
    for (const auto& [key, value] : rows) {
      propertybag::PropertyBag bag;
      bag.WriteProperty(QStringLiteral("ButtonsMode"), 5, {});
      bag.WriteProperty(QString::fromLatin1(key), value, {});
      McToolBar bar(toolbar::ambientOf(nullptr));
      QVERIFY2(!bar.UserControl_ReadProperties(propertybag::storedBytes(bag)), key);
      QVERIFY2(bar.buttons().values().ButtonsMode == 3 && bar.Button_Count() == 1, key);
    }
  }
};

QTEST_MAIN(WidgetTest)
#include "toolbar_widget_test.moc"
