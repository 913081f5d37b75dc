#include <QMenu>

#include "support/windows.h"

using namespace support;

/// What comes up while arrow keys on the preview aren't committed yet.
class PreviewMenusTest : public ProgramTest {
  Q_OBJECT

 private:
  static void ask(QWidget& widget, QContextMenuEvent::Reason reason) {
    const QPoint place = widget.rect().center();
    QContextMenuEvent asked(reason, place, widget.mapToGlobal(place));
    QApplication::sendEvent(&widget, &asked);
  }

 private Q_SLOTS:
  void menusBehindKeys_data() {
    using Ask = std::function<void(Program & p)>;
    QTest::addColumn<Ask>("menu");
    QTest::newRow("preview, keys") << Ask(
        [](Program& p) { QTest::keyClick(p.form.Workspace, Qt::Key_F10, Qt::ShiftModifier); });
    QTest::newRow("preview, mouse") << Ask([](Program& p) { ask(*p.form.Workspace, QContextMenuEvent::Mouse); });
    QTest::newRow("row") << Ask([](Program& p) { ask(*p.tools().values().viewport(), QContextMenuEvent::Keyboard); });
    QTest::newRow("text box") << Ask([](Program& p) { ask(*Editors(p.tools()).Text1, QContextMenuEvent::Mouse); });
  }
  /// The keys are committed first, and the drawing of that serves an Esc. Neither takes the menu away under itself.
  void menusBehindKeys() {
    QFETCH(std::function<void(Program & p)>, menu);
    program->edit();
    controls::WorkQueue& queue = program->form.queue();
    connect(&queue, &controls::WorkQueue::yielding, &queue, [] {
      if (QWidget* up = QApplication::activePopupWidget()) QTest::keyClick(up, Qt::Key_Escape);
    });
    program->form.activateWindow();
    program->form.Workspace->setFocus();
    QTest::keyClick(program->form.Workspace, Qt::Key_Right);
    QVERIFY(game->get(ThemeCopy).contains("X=77\r\n"));
    menu(*program);
    QVERIFY(game->get(ThemeCopy).contains("X=78\r\n"));
    QWidget* const up = QApplication::activePopupWidget();
    QVERIFY(qobject_cast<QMenu*>(up) != nullptr);
    QTest::keyClick(up, Qt::Key_Escape);
    settle();
    QVERIFY(program->form.findChildren<QMenu*>().isEmpty());
  }

  /// A theme that is closed by then has no menu any more.
  void closedMeanwhile() {
    program->tag(u"LoadingStaticA"_s);
    program->row(u"X"_s);
    program->dialogs.boxes = {platform::BoxAnswer::Yes};
    program->form.Workspace->setFocus();
    QTest::keyClick(program->form.Workspace, Qt::Key_Right);
    connect(
        &program->form.queue(), &controls::WorkQueue::yielding, this, [this] { program->click(3); },
        Qt::SingleShotConnection);
    ask(*Editors(program->tools()).Text1, QContextMenuEvent::Mouse);
    QVERIFY(QApplication::activePopupWidget() == nullptr);
    settle();
    QVERIFY(!program->state.ThemeOpened);
  }
};

QTEST_MAIN(PreviewMenusTest)
#include "preview_menus_test.moc"
