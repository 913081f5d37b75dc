#include "controls/text_box.h"

#include <QDialog>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include "controls/look.h"
#include "support/row_name.h"

using controls::TextBox;
using namespace Qt::StringLiterals;

namespace {

const QString Digits = u"0123456789"_s;

/// A dialog with the box and a default button.
struct Window : QDialog {
  Window() {
    controls::ApplyLook(*qApp);
    box.setGeometry(0, 0, 200, 19);
    button.setGeometry(0, 30, 80, 25);
    button.setDefault(true);
    show();
    activateWindow();
    if (!QTest::qWaitForWindowActive(this)) qFatal("no active window");
    box.setFocus();
  }

  TextBox box{this};
  QPushButton button{this};
  QSignalSpy changes{&box, &TextBox::Change};
};

using Way = std::function<void(TextBox& box, const QString& text)>;

void type(TextBox& box, const QString& text) {
  QTest::keyClicks(&box, text);
}

Way pasteBy(Qt::Key key, Qt::KeyboardModifier modifier) {
  return [=](TextBox& box, const QString& text) {
    QGuiApplication::clipboard()->setText(text);
    QTest::keyClick(&box, key, modifier);
  };
}

void pasteByMenu(TextBox& box, const QString& text) {
  QGuiApplication::clipboard()->setText(text);
  QTimer::singleShot(200, [] {
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    if (menu != nullptr) QTest::keyClick(menu, Qt::Key_P);
    if (menu != nullptr && menu->isVisible()) menu->close();
  });
  QContextMenuEvent event(QContextMenuEvent::Mouse, {5, 5}, box.mapToGlobal(QPoint(5, 5)));
  QApplication::sendEvent(&box, &event);
}

void pasteSelection(TextBox& box, const QString& text) {
  QGuiApplication::clipboard()->setText(text, QClipboard::Selection);
  QTest::mouseClick(&box, Qt::MiddleButton, {}, {195, 9});
}

void drop(TextBox& box, const QString& text) {
  QMimeData data;
  data.setText(text);
  QDragEnterEvent enter({195, 9}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&box, &enter);
  if (!enter.isAccepted()) return;
  QDropEvent event({195, 9}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&box, &event);
}

void commit(TextBox& box, const QString& text) {
  QInputMethodEvent event;
  event.setCommitString(text);
  QApplication::sendEvent(&box, &event);
}

}  // namespace

class TextBoxTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void filterHoldsForEveryWayIn() {
    const struct {
      const char* name;
      Way way;
    } rows[] = {
        {"typed", type},
        {"pasted", pasteBy(Qt::Key_V, Qt::ControlModifier)},
        {"Shift+Insert", pasteBy(Qt::Key_Insert, Qt::ShiftModifier)},
        {"menu", pasteByMenu},
        {"middle button", pasteSelection},
        {"dropped", drop},
        {"input method", commit},
    };
    for (const auto& row : rows) {
      const support::RowName name(row.name);
      const auto entered = [&](const QString& filter, const QString& text) {
        Window window;
        window.box.SetKeyFilter(filter);
        window.box.SetText(u"7"_s);
        window.box.end(false);
        row.way(window.box, text);
        return window.box.Text();
      };
      QCOMPARE(entered(Digits, u"-1,2.5 x7"_s), u"71257"_s);
      QCOMPARE(entered(Digits, u"-x"_s), u"7"_s);
      if (&row != rows) QCOMPARE(entered(QString(), u"a\r\nb\nc\rd"_s), u"7a b c d"_s);
    }
  }

  void commandsPassTheFilter() {
    Window window;
    window.box.SetKeyFilter(Digits);
    window.box.SetText(u"-12"_s);
    QTest::keyClick(&window.box, Qt::Key_A, Qt::ControlModifier);
    pasteBy(Qt::Key_V, Qt::ControlModifier)(window.box, u"nothing to take"_s);
    QTest::keyClick(&window.box, Qt::Key_X, Qt::ControlModifier);
    QCOMPARE(window.box.Text(), QString());
    QCOMPARE(QGuiApplication::clipboard()->text(), u"-12"_s);
    QTest::keyClick(&window.box, Qt::Key_Z, Qt::ControlModifier);
    QTest::keyClick(&window.box, Qt::Key_End);
    QTest::keyClick(&window.box, Qt::Key_Backspace);
    QCOMPARE(window.box.Text(), u"-1"_s);
  }

  void writtenTextKeepsThePlaceOfTyping() {
    Window window;
    const auto caretAfter = [&](const QString& before, int caret, const QString& written) {
      window.box.SetText(before);
      window.box.setCursorPosition(caret);
      window.box.SetText(written);
      return window.box.cursorPosition();
    };
    QCOMPARE(caretAfter(u"123"_s, 1, u"123"_s), 1);
    QCOMPARE(window.changes.size(), 1);
    QCOMPARE(caretAfter(u"0123"_s, 2, u"123"_s), 1);  // a zero dropped at the head
    QCOMPARE(caretAfter(u"1234"_s, 1, u"0"_s), 0);    // shorter than what was behind
    QCOMPARE(window.changes.size(), 5);
  }

  void changeSeesTheNewState() {
    Window window;
    QString seen;
    connect(&window.box, &TextBox::Change, this, [&] {
      seen += window.box.Text() + u' ';
      if (window.box.Text() == u"012") window.box.SetText(u"12"_s);
    });
    QTest::keyClicks(&window.box, u"12"_s);
    window.box.home(false);
    QTest::keyClicks(&window.box, u"0"_s);
    QCOMPARE(seen, u"1 12 012 12 "_s);
    QCOMPARE(window.box.cursorPosition(), 0);
  }

  void enterGoesToOneReceiver() {
    Window window;
    const QSignalSpy enters(&window.box, &TextBox::Enter);
    const QSignalSpy defaults(&window.button, &QPushButton::clicked);
    QTest::keyClick(&window.box, Qt::Key_Return);
    QTest::keyClick(&window.box, Qt::Key_Enter, Qt::KeypadModifier);
    QCOMPARE(enters.size(), 2);
    QCOMPARE(defaults.size(), 0);
  }
};

QTEST_MAIN(TextBoxTest)
#include "text_box_test.moc"
