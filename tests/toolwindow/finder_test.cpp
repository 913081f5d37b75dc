#include <QSignalSpy>

#include "support/real_input.h"
#include "toolwindow/list_window.h"

using namespace support;
using toolwindow::Form2;
using toolwindow::ListWindow;

/// The way from words to the screen, the object and the row that have them.
class FinderTest : public ProgramTest {
  Q_OBJECT

 private:
  /// Opens the finder by its keys and types.
  ListWindow& find(const char* text) const {
    key(program->tools(), Qt::Key_F, Qt::ControlModifier);
    auto* finder = program->tools().findChild<ListWindow*>();
    if (finder == nullptr || !QTest::qWaitForWindowActive(finder)) qFatal("no finder");
    letters(*finder, text);
    return *finder;
  }
  /// Screen, object and row that are chosen: "Main Screen/MainStaticA/X".
  QString place() const {
    const Form2& tools = program->tools();
    const QString row = tools.values().rowText(tools.values().selectedRow());
    return QStringList{tools.screens().Text(), tools.objects().Text(), row}.join(u'/');
  }

 private Q_SLOTS:
  void tellsWhatIsGone() {
    for (const auto& [section, told] :
         {std::pair{"[MainStaticA]\r\nY=1\r\nY=2\r\n", u"X of MainStaticA"_s}, {"[Main]\r\n", u"MainStaticA"_s}}) {
      program->screen(u"Loading Screen"_s);
      ListWindow& finder = find("mainstatica x=10");
      const QByteArray before = game->get(ThemeCopy);
      game->put(ThemeCopy, section);
      key(finder, Qt::Key_Return);
      QVERIFY2(program->status().startsWith(u"Error while finding [%1 is gone]"_s.arg(told)),
               qPrintable(program->status()));
      game->put(ThemeCopy, before);
    }
  }

  /// A key that is held down, as it was when the window came up, does nothing there.
  void heldEnter() {
    Form2& tools = program->tools();
    const auto hold = [](QWidget& control) {
      QKeyEvent again(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, u"\r"_s, true);
      QApplication::sendEvent(&control, &again);
    };
    program->tag(u"LoadingStaticA"_s);
    program->row(u"X"_s);
    tools.values().setFocus();
    hold(tools.values());
    QVERIFY(tools.values().hasFocus());
    const Editors editors(tools);
    editors.Text1->SetText(u"9"_s);
    editors.Command1->setFocus();
    hold(*editors.Command1);
    QCOMPARE(program->value(u"X"_s), u"40"_s);
    ListWindow& finder = find("mainstatica x=10");
    hold(finder);
    hold(*finder.Line);
    QVERIFY(finder.isVisible());
  }

  void comesAndGoes() {
    Form2& tools = program->tools();
    tools.values().setFocus();
    ListWindow& finder = find("hello");
    QCOMPARE(finder.windowTitle(), u"Find: 2"_s);
    key(finder, Qt::Key_Escape);
    QVERIFY(!finder.isVisible() && QTest::qWaitForWindowActive(&tools) && tools.values().hasFocus());
    QByteArray many = "[Main]|";
    for (int i = 0; i < 400; ++i) many += "[MainObject" + QByteArray::number(i) + "]|";
    game->put(ThemeCopy, linesOf(many));
    find("mainobject");  // in place of the words that are there
    QCOMPARE(finder.windowTitle(), u"Find: the first 300 of 400"_s);
    QCOMPARE(finder.List->ListCount(), 300);
    const QPointer<ListWindow> open = &finder;
    program->click(3);
    settle();
    QVERIFY(open == nullptr || !open->isVisible());
    key(program->form, Qt::Key_F, Qt::ControlModifier);
    QVERIFY(program->form.findChild<ListWindow*>() == nullptr);
  }
};

QTEST_MAIN(FinderTest)
#include "finder_test.moc"
