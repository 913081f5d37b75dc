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

using controls::TextBox;

namespace {

const QString Digits = QStringLiteral("0123456789");

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

using Way = void (*)(TextBox& box, const QString& text);

void type(TextBox& box, const QString& text) {
  QTest::keyClicks(&box, text);
}

void paste(TextBox& box, const QString& text) {
  QGuiApplication::clipboard()->setText(text);
  QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);
}

void pasteByInsert(TextBox& box, const QString& text) {
  QGuiApplication::clipboard()->setText(text);
  QTest::keyClick(&box, Qt::Key_Insert, Qt::ShiftModifier);
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

constexpr struct {
  const char* name;
  Way way;
} Ways[] = {{"typed", type},
            {"pasted", paste},
            {"Shift+Insert", pasteByInsert},
            {"menu", pasteByMenu},
            {"middle button", pasteSelection},
            {"dropped", drop},
            {"input method", commit}};

}  // namespace

Q_DECLARE_METATYPE(Way)

class TextBoxTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void filterHoldsForEveryWayIn_data() {
    QTest::addColumn<Way>("way");
    QTest::addColumn<QString>("letters");
    QTest::addColumn<QString>("entered");
    QTest::addColumn<QString>("text");
    for (const auto& [name, way] : Ways) {
      QTest::addRow("%s digits", name) << way << Digits << QStringLiteral("-1,2.5 x7") << QStringLiteral("71257");
      QTest::addRow("%s nothing left", name) << way << Digits << QStringLiteral("-x") << QStringLiteral("7");
      if (way == type) continue;
      QTest::addRow("%s lines", name) << way << QString() << QStringLiteral("a\r\nb\nc\rd")
                                      << QStringLiteral("7a b c d");
    }
  }
  void filterHoldsForEveryWayIn() {
    QFETCH(Way, way);
    QFETCH(QString, letters);
    QFETCH(QString, entered);
    Window window;
    window.box.SetKeyFilter(letters);
    window.box.SetText(QStringLiteral("7"));
    window.box.end(false);
    way(window.box, entered);
    QTEST(window.box.Text(), "text");
  }

  void commandsPassTheFilter() {
    Window window;
    window.box.SetKeyFilter(Digits);
    window.box.SetText(QStringLiteral("-12"));
    QTest::keyClick(&window.box, Qt::Key_A, Qt::ControlModifier);
    paste(window.box, QStringLiteral("nothing to take"));
    QTest::keyClick(&window.box, Qt::Key_X, Qt::ControlModifier);
    QCOMPARE(window.box.Text(), QString());
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("-12"));
    QTest::keyClick(&window.box, Qt::Key_Z, Qt::ControlModifier);
    QTest::keyClick(&window.box, Qt::Key_End);
    QTest::keyClick(&window.box, Qt::Key_Backspace);
    QCOMPARE(window.box.Text(), QStringLiteral("-1"));
  }

  void writtenTextKeepsThePlaceOfTyping_data() {
    QTest::addColumn<QString>("before");
    QTest::addColumn<int>("caret");
    QTest::addColumn<QString>("written");
    QTest::addColumn<int>("after");
    QTest::newRow("the same") << QStringLiteral("123") << 1 << QStringLiteral("123") << 1;
    QTest::newRow("zero dropped at the head") << QStringLiteral("0123") << 2 << QStringLiteral("123") << 1;
    QTest::newRow("shorter than what was behind") << QStringLiteral("1234") << 1 << QStringLiteral("0") << 0;
  }
  void writtenTextKeepsThePlaceOfTyping() {
    QFETCH(QString, before);
    QFETCH(int, caret);
    QFETCH(QString, written);
    Window window;
    window.box.SetText(before);
    window.box.setCursorPosition(caret);
    window.box.SetText(written);
    QTEST(window.box.cursorPosition(), "after");
    QCOMPARE(window.changes.size(), before == written ? 1 : 2);
  }

  void changeSeesTheNewState() {
    Window window;
    QString seen;
    connect(&window.box, &TextBox::Change, this, [&] {
      seen += window.box.Text() + u' ';
      if (window.box.Text() == u"012") window.box.SetText(QStringLiteral("12"));
    });
    QTest::keyClicks(&window.box, QStringLiteral("12"));
    window.box.home(false);
    QTest::keyClicks(&window.box, QStringLiteral("0"));
    QCOMPARE(seen, QStringLiteral("1 12 012 12 "));
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
