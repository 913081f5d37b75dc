#include <QAccessible>
#include <QApplication>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>

#include "platform/property_bag_bytes.h"
#include "toolbar/main_window_tool_bar.h"
#include "toolbar/mc_toolbar.h"

using toolbar::McToolBar;
using toolbar::Properties;

namespace {

/// A form with four buttons, the third one disabled; in 80 pixels all but the first two hide.
struct Form {
  explicit Form(int width = 800) {
    bar.UserControl_ReadProperties({});
    bar.Buttons().Set(&Properties::ButtonsPerRow, 10);
    bar.Buttons().Set(&Properties::ShowChevron, true);
    bar.SetButton_Count(4);
    bar.SetButtonValue(3, toolbar::EnabledProperty, false);
    bar.Buttons().PointAt(-1);
    bar.move(0, 0);
    bar.resize(width, 32);
    form.resize(900, 200);
    form.show();
    form.activateWindow();
  }
  QWidget form;
  McToolBar bar{toolbar::AmbientOf(nullptr), &form};
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
  void pressAndRelease() {
    const auto clicked = [](QPoint press, QPoint release, Qt::MouseButton button = Qt::LeftButton) {
      Form form;
      QTest::mousePress(&form.bar, button, {}, press);
      QTest::mouseRelease(&form.bar, button, {}, release);
      return numbers(form.clicks);
    };
    QCOMPARE(clicked({31, 31}, {31, 31}), QStringLiteral("1"));
    QCOMPARE(clicked({32, 5}, {32, 5}), QString());    // on the edge
    QCOMPARE(clicked({70, 5}, {70, 5}), QString());    // disabled
    QCOMPARE(clicked({129, 5}, {129, 5}), QString());  // behind the last
    QCOMPARE(clicked({5, 5}, {40, 5}), QStringLiteral("2"));
    QCOMPARE(clicked({5, 5}, {5, 40}), QString());
    QCOMPARE(clicked({5, 5}, {5, 5}, Qt::RightButton), QString());
  }

  void doubleClickIsOneClick() {
    Form form;
    const QSignalSpy doubles(&form.bar, &McToolBar::DblClick);
    QTest::mouseClick(&form.bar, Qt::LeftButton, {}, {5, 5});
    QTest::mouseDClick(&form.bar, Qt::LeftButton, {}, {5, 5});
    QCOMPARE(numbers(form.clicks) + u' ' + numbers(doubles), QStringLiteral("1 1"));
  }

  void leavingWhileHeldComesOnce() {
    Form form;
    QTest::mousePress(&form.bar, Qt::LeftButton, {}, {5, 5});
    for (const int x : {-5, -6}) {
      QMouseEvent move(QEvent::MouseMove, QPointF(x, 5), form.bar.mapToGlobal(QPointF(x, 5)), Qt::NoButton,
                       Qt::LeftButton, {});
      QApplication::sendEvent(&form.bar, &move);
    }
    QTest::mouseRelease(&form.bar, Qt::LeftButton, {}, {-6, 5});
    QCOMPARE(form.leaves.size(), 1);
    QCOMPARE(form.bar.Buttons().Button_Index(), -1);
    QVERIFY(form.clicks.isEmpty());
  }

  void popupLivesWithItsForm() {
    const struct {
      const char* name;
      void (*end)(Form& form, QLineEdit& other);
    } rows[] = {
        {"moved", [](Form& form, QLineEdit&) { form.form.move(form.form.pos() + QPoint(10, 10)); }},
        {"resized", [](Form& form, QLineEdit&) { form.form.resize(700, 200); }},
        {"focus lost", [](Form&, QLineEdit& other) { other.setFocus(); }},
        {"hidden", [](Form& form, QLineEdit&) { form.bar.hide(); }},
    };
    for (const auto& row : rows) {
      Form form(80);
      QLineEdit other(&form.form);
      other.show();
      QVERIFY(QTest::qWaitForWindowActive(&form.form));
      QTest::mousePress(&form.bar, Qt::LeftButton, {}, {75, 5});
      QWidget& popup = *form.bar.PopupWindow();
      QVERIFY(popup.isVisible());
      QCOMPARE(popup.geometry().topLeft(), form.bar.mapToGlobal(QPoint(80 - 68, 33)));
      QTest::mouseClick(&popup, Qt::LeftButton, {}, {5, 5});
      QTest::mouseClick(&popup, Qt::LeftButton, {}, {40, 5});
      QCOMPARE(numbers(form.clicks), QStringLiteral("4"));
      QVERIFY(popup.isVisible());
      row.end(form, other);
      QVERIFY2(QTest::qWaitFor([&popup] { return !popup.isVisible(); }), row.name);
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
    QCOMPARE(bar->childCount(), 5);
    QCOMPARE(bar->role(), QAccessible::ToolBar);
    QAccessibleInterface* const button = bar->child(1);
    QCOMPARE(bar->focusChild(), button);
    QCOMPARE(button->text(QAccessible::Name), QStringLiteral("Save"));
    QVERIFY(bar->child(2)->state().disabled && bar->child(3)->state().invisible && !button->state().disabled);
    QCOMPARE(bar->childAt(button->rect().x() + 3, button->rect().y() + 3), button);
    QTest::keyClick(&form.bar, Qt::Key_Return);
    button->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QTest::keyClick(&form.bar, Qt::Key_End);
    QTest::keyClick(&form.bar, Qt::Key_Space);
    QVERIFY(form.bar.PopupWindow()->isVisible() && !bar->child(3)->state().invisible);
    QTest::keyClick(&form.bar, Qt::Key_Space);
    QTest::keyClick(&form.bar, Qt::Key_Escape);
    QVERIFY(!form.bar.PopupWindow()->isVisible());
    QCOMPARE(form.bar.Buttons().Button_Index(), 0);
    QTest::keyClick(&form.bar, Qt::Key_Right);
    QCOMPARE(numbers(form.hovers) + u' ' + numbers(form.clicks), QStringLiteral("1241 224"));
    form.bar.clearFocus();
    QCOMPARE(form.bar.Buttons().Button_Index(), -1);
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
    QVERIFY(!tip()->grab().isNull());
    QTest::mouseMove(&form.bar, {6, 5});
    QTRY_VERIFY(!tip());
  }

  void mainWindowBarGoesRound() {
    const QByteArray stored = toolbar::MainWindowToolBar();
    McToolBar designed({false, QFont()});
    QVERIFY(designed.UserControl_ReadProperties(stored));
    QCOMPARE(designed.UserControl_WriteProperties(), stored);
    QCOMPARE(designed.size(), QSize(800, 32));
    McToolBar running({true, QFont()});
    QVERIFY(running.UserControl_ReadProperties(stored));
    QString enabled;
    for (int i = 1; i <= 4; ++i) {
      enabled += running.GetButtonValue(i, toolbar::EnabledProperty).toBool() ? u'+' : u'-';
      const auto icon = running.GetButtonValue(i, toolbar::IconProperty).value<toolbar::PictureReference>();
      QVERIFY(icon && icon->File.size() == 1406);
    }
    QCOMPARE(enabled, QStringLiteral("+---"));
    const QImage shown = running.grab().toImage();
    QCOMPARE(shown.pixelColor(700, 0), QColor(255, 255, 255));
    QCOMPARE(shown.pixelColor(700, 31), QColor(128, 128, 128));
  }

  void damagedBagLeavesTheDefaults() {
    const std::pair<const char*, QVariant> rows[] = {{"Button_Count", 0},
                                                     {"Button_Count", 100000},
                                                     {"ButtonsWidth", QStringLiteral("wide")},
                                                     {"ButtonIcon1", 5},
                                                     {"BorderStyle", 70000}};
    for (const auto& [key, value] : rows) {
      platform::PropertyBag bag;
      bag.WriteProperty(QStringLiteral("ButtonsMode"), 5, {});
      bag.WriteProperty(QString::fromLatin1(key), value, {});
      McToolBar bar(toolbar::AmbientOf(nullptr));
      QVERIFY2(!bar.UserControl_ReadProperties(platform::StoredBytes(bag)), key);
      QVERIFY2(bar.Buttons().Values().ButtonsMode == 3 && bar.Button_Count() == 1, key);
    }
  }
};

QTEST_MAIN(WidgetTest)
#include "toolbar_widget_test.moc"
