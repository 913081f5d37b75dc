#include "controls/text_box.h"

#include <memory>

#include <QApplication>
#include <QContextMenuEvent>
#include <QInputMethodEvent>
#include <QMenu>
#include <QMimeData>
#include <QSignalSpy>
#include <QTest>
#include <QToolTip>

#include "support/keys.h"
#include "support/results.h"

using controls::TextBox;
using namespace Qt::StringLiterals;

namespace {

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

struct Window : QWidget {
  Window() {
    box.setGeometry(0, 0, 200, 19);
    show();
    activateWindow();
    if (!QTest::qWaitForWindowActive(this)) qFatal("no active window");
    box.setFocus();
  }

  /// A key, or a word and what belongs to it: "text 12", "select 0 2", "Ctrl+V".
  void step(const QString& step) {
    const QString what = step.section(u' ', 0, 0), with = step.section(u' ', 1);
    const QMap<QString, void (*)(TextBox&, const QString&)> ways{
        {u"type"_s, type}, {u"paste"_s, paste}, {u"drop"_s, drop}, {u"commit"_s, commit}};
    if (ways.contains(what)) return ways[what](box, with);
    if (what == u"text") return box.SetText(with);
    if (what == u"caret") return box.setCursorPosition(with.toInt());
    if (what == u"select") return box.setSelection(with.section(u' ', 0, 0).toInt(), with.section(u' ', 1).toInt());
    if (what == u"letters") return box.setKeyFilter(with);
    if (what == u"clipboard") return QGuiApplication::clipboard()->setText(with);
    if (what == u"locked") return box.setReadOnly(true);
    if (what == u"leave") return box.clearFocus();
    if (what == u"click") {
      QGuiApplication::clipboard()->setText(with, QClipboard::Selection);
      return QTest::mouseClick(&box, Qt::LeftButton, {}, {195, 9});
    }
    if (what == u"menu") return menu(with);
    support::pressKey(box, step);
  }
  /// Tells the entries of the menu, those in brackets that can't be taken, and takes one.
  void menu(const QString& taken) {
    QContextMenuEvent event(QContextMenuEvent::Mouse, {5, 5}, box.mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(&box, &event);
    auto& menu = *qobject_cast<QMenu*>(QApplication::activePopupWidget());
    for (QAction* entry : menu.actions()) {
      const QString name = entry->isSeparator() ? u"-"_s : entry->text();
      told += entry->isEnabled() || entry->isSeparator() ? name : u'(' + name + u')';
      if (name == taken) entry->trigger();
    }
    menu.close();
  }
  QString stand() const {
    QString text = box.Text();
    const int from = box.selectionStart();
    if (from >= 0) text.insert(box.selectionEnd(), u']').insert(from, u'[');
    if (from < 0) text.insert(box.cursorPosition(), u'|');
    return (QStringList{text, u"%1 changes"_s.arg(changes.size())} + told).join(u' ');
  }

  TextBox box{this};
  QSignalSpy changes{&box, &TextBox::Change};
  QStringList told;
};

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

  /// What a box becomes of a user's steps, with "|" for the caret and "[" "]" round what is selected.
  void steps() {
    support::compareRows(u"steps.txt"_s, [](const QString& row) {
      Window window;
      QObject::connect(&window.box, &TextBox::enter, [&] { window.told += u"enter"_s; });
      const QString given =
          QString(row).replace(u"\\r"_s, u"\r"_s).replace(u"\\n"_s, u"\n"_s).replace(u"\\p"_s, QChar(0x2029));
      for (const QString& step : given.split(u", "_s)) window.step(step);
      return window.stand();
    });
  }

  void theMenuGoesWithItsBox() {
    auto window = std::make_unique<Window>();
    QContextMenuEvent event(QContextMenuEvent::Mouse, {5, 5}, window->box.mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(&window->box, &event);
    QVERIFY(QApplication::activePopupWidget() != nullptr);
    window.reset();
    QVERIFY(QApplication::activePopupWidget() == nullptr);
  }
};

QTEST_MAIN(TextBoxTest)
#include "text_box_test.moc"
