#include "controls/text_box.h"

#include <memory>

#include <QApplication>
#include <QContextMenuEvent>
#include <QInputMethodEvent>
#include <QMimeData>
#include <QSignalSpy>
#include <QTest>
#include <QToolTip>

using controls::TextBox;
using namespace Qt::StringLiterals;

namespace {

const QString Digits = u"0123456789"_s;

struct Window : QWidget {
  Window() {
    box.setGeometry(0, 0, 200, 19);
    show();
    activateWindow();
    if (!QTest::qWaitForWindowActive(this)) qFatal("no active window");
    box.setFocus();
  }
  TextBox box{this};
  QSignalSpy changes{&box, &TextBox::Change};
};

void type(TextBox& box, const QString& text) {
  QTest::keyClicks(&box, text);
}

void paste(TextBox& box, const QString& text) {
  QGuiApplication::clipboard()->setText(text);
  QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);
}

/// By the middle button, where a system has that; else as paste.
void pasteSelection(TextBox& box, const QString& text) {
  if (!QGuiApplication::clipboard()->supportsSelection()) return paste(box, text);
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
  /// The toolkit would cut a longer text without a word.
  void takesNoMoreThanItShowsWhole() {
    for (const auto& way : {type, paste, pasteSelection, drop, commit}) {
      Window window;
      window.box.SetText(QString(31'999, u'1'));
      way(window.box, u"22"_s);
      QCOMPARE(window.box.Text(), QString(31'999, u'1') + QString(way == type ? 1 : 0, u'2'));
      if (way == paste) QVERIFY(QToolTip::text().startsWith(u"Not pasted"_s));
      window.box.selectAll();
      if (way == paste) way(window.box, QString(32'000, u'3'));
      if (way == paste) QCOMPARE(window.box.Text(), QString(32'000, u'3'));
    }
  }

  void filterHoldsForEveryWayIn() {
    for (const auto& way : {type, paste, pasteSelection, drop, commit}) {
      const auto entered = [&](const QString& filter, const QString& text) {
        Window window;
        window.box.setKeyFilter(filter);
        window.box.SetText(u"7"_s);
        window.box.end(false);
        way(window.box, text);
        return window.box.Text();
      };
      QCOMPARE(entered(Digits, u"-1,2.5 x7"_s), u"71257"_s);
      if (way != type) QCOMPARE(entered(QString(), u"a\r\nb\nc\rd"_s), u"7a b c d"_s);
    }
  }

  void commandsPassTheFilter() {
    Window window;
    window.box.setKeyFilter(Digits);
    window.box.SetText(u"-12"_s);
    QTest::keyClick(&window.box, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&window.box, Qt::Key_X, Qt::ControlModifier);
    QTest::keyClick(&window.box, Qt::Key_7);
    QTest::keyClick(&window.box, Qt::Key_Backspace);
    QCOMPARE(window.box.Text(), QString());
    QCOMPARE(QGuiApplication::clipboard()->text(), u"-12"_s);
  }

  void theMenuGoesWithItsBox() {
    auto window = std::make_unique<Window>();
    QContextMenuEvent event(QContextMenuEvent::Mouse, {5, 5}, window->box.mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(&window->box, &event);
    QVERIFY(QApplication::activePopupWidget() != nullptr);
    window.reset();
    QVERIFY(QApplication::activePopupWidget() == nullptr);
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
    QCOMPARE(window.changes.size(), 3);
    window.box.clearFocus();
    QCOMPARE(caretAfter(u"123"_s, 3, u"4567"_s), 0);  // the beginning is in sight
  }
};

QTEST_MAIN(TextBoxTest)
#include "text_box_test.moc"
