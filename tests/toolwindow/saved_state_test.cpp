#include <QAccessible>
#include <QMenu>

#include "support/windows.h"
#include "toolwindow/changes.h"
#include "toolwindow/list_window.h"

using namespace support;
using toolwindow::Form2;

/// What differs from the saved state, and how it comes back.
class SavedStateTest : public ProgramTest {
  Q_OBJECT

 private:
  /// The objects and the rows that are marked, these with what was saved: "LoadingStaticA|X saved: 40".
  QString marked() const {
    settle();
    QStringList all;
    const Form2& tools = program->tools();
    for (int row = 0; row < tools.objects().count(); ++row) {
      if (tools.objects().item(row)->font().bold()) all += tools.objects().List(row);
    }
    for (int row = 0; row < tools.values().rowCount(); ++row) {
      const QTreeWidgetItem& item = *tools.values().topLevelItem(row);
      if (item.font(1).bold()) all += item.text(0) + u' ' + item.toolTip(0);
    }
    return all.join(u'|');
  }
  /// Asks a widget for its menu; gives its entries, those in brackets that can't be taken, and takes the first one.
  static QString menuOf(
      QWidget& widget, bool keyboard, const QPoint& place = {4, 4}, const std::function<void()>& meanwhile = [] {}) {
    QContextMenuEvent asked(keyboard ? QContextMenuEvent::Keyboard : QContextMenuEvent::Mouse, place,
                            widget.mapToGlobal(place));
    QApplication::sendEvent(&widget, &asked);
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    if (menu == nullptr) return {};
    QStringList entries;
    for (const QAction* action : menu->actions()) {
      entries += action->isEnabled() ? action->text() : u'(' + action->text() + u')';
    }
    meanwhile();
    if (menu->activeAction() == menu->actions().constFirst()) QTest::keyClick(menu, Qt::Key_Return);
    menu->close();
    settle();
    return entries.join(u'|');
  }
  QString menuOfRow(
      const QString& key, const std::function<void()>& meanwhile = [] {}) const {
    controls::ListView& grid = program->tools().values();
    const auto found = grid.findItems(key, Qt::MatchExactly);
    if (found.isEmpty()) qFatal("no row %s", qPrintable(key));
    return menuOf(*grid.viewport(), false, grid.visualItemRect(found.first()).center(), meanwhile);
  }

 private Q_SLOTS:
  /// What bold and grey letters and tips show is told to a screen reader, too, and in the menus.
  void tells() {
    const Form2& tools = program->tools();
    game->put(ThemeCopy, game->get(ThemeCopy)
                             .replace("ColR=0.5", "ColR=0.7\r\nNew=1\r\ncolr=0.8")
                             .replace("Size=18", "Size=18\r\n#Size=9"));
    program->edit(u"H"_s, u"0"_s);
    program->tag(u"LoadingStaticA"_s);
    QCOMPARE(marked(), u"LoadingStaticA|H saved: 60|ColR saved: 0.5|New saved: nothing"_s);
    QCOMPARE(menuOfRow(u"ColR"_s), u"(saved: 0.5)"_s);
    QCOMPARE(menuOfRow(u"colr"_s), QString());  // one that doesn't count
    QCOMPARE(menuOfRow(u"New"_s), u"(saved: nothing)"_s);
    const QString told = u"differs from the saved state|W x H: '100 x 0' leaves no area"_s;
    const auto description = [](QWidget* list, int cell) {
      return QAccessible::queryAccessibleInterface(list)->child(cell)->text(QAccessible::Description);
    };
    QCOMPARE(description(&tools.objects(), tools.objects().ListIndex()), QString(told).replace(u'|', u'\n'));
    QCOMPARE(description(&tools.objects(), 0), QString());
    const int header = 2;
    QCOMPARE(description(&tools.values(), header + 2 * 4), u"saved: 60"_s);
    QCOMPARE(description(&tools.values(), header + 2 * 3), QString());
    QCOMPARE(menuOf(*tools.objects().viewport(), true),
             u"Put the saved object back: 2 values|Put the whole saved screen back: 2 values|("_s +
                 QString(told).replace(u"|"_s, u")|("_s) + u')');
    QCOMPARE(marked(), u"LoadingStaticA|New saved: nothing"_s);
    QCOMPARE(program->value(u"H"_s), u"60"_s);
    QVERIFY2(program->status().startsWith(u"Put back: 2 values"_s), qPrintable(program->status()));
    QCOMPARE(menuOf(*tools.objects().viewport(), false), QString());  // of another object
  }

  /// From the list of all that differs: there, and back as it was saved.
  void listOfChanges() {
    Form2& tools = program->tools();
    program->edit();
    program->tag(u"LoadingTextFree"_s);
    program->row(u"Text"_s);
    Editors(tools).Text2->SetText(u"Hi"_s);
    Editors(tools).Command1->click();
    program->screen(u"Main Screen"_s);
    program->tag(u"MainStaticA"_s);
    program->row(u"Color"_s);
    program->dialogs.colors = {QColor(1, 2, 3)};
    Editors(tools).Command2->click();
    toolwindow::showChanges(tools);
    auto& list = *tools.findChild<toolwindow::ListWindow*>();
    const QStringList all{u"Loading Screen, LoadingStaticA: X = 77 (saved: 40)"_s,
                          u"colour 'Blue' = 1 2 3 (saved: 30 60 200)"_s, u"words 'HELLO' = Hi (saved: Hello there)"_s};
    QTRY_COMPARE(entries(*list.List), all);
    QCOMPARE(list.windowTitle(), u"Differs from the saved state: 3"_s);
    list.Line->SetText(u"color blue"_s);
    QCOMPARE(entries(*list.List), all.mid(1, 1));
    list.Line->clear();
    QTest::keyClicks(list.Line, u"x=77 loading"_s);
    QCOMPARE(entries(*list.List), all.first(1));
    QCOMPARE(list.windowTitle(), u"Differs from the saved state: 1 of 3"_s);
    QTest::keyClick(list.Line, Qt::Key_Return);
    QVERIFY(!list.isVisible());
    QCOMPARE(tools.screens().Text() + tools.objects().Text(), u"Loading ScreenLoadingStaticA"_s);
    QCOMPARE(tools.values().rowText(tools.values().selectedRow()), u"X"_s);
    // Words lead to the object that shows them; its open editor follows what comes back.
    toolwindow::showChanges(tools);
    list.Line->SetText(u"words"_s);
    QTest::keyClick(list.Line, Qt::Key_Return);
    QCOMPARE(tools.objects().Text() + Editors(tools).Text2->Text(), u"LoadingTextFreeHi"_s);
    toolwindow::showChanges(tools);
    list.Line->SetText({});
    QTRY_COMPARE(list.List->ListCount(), 3);
    QTest::keyClick(list.Line, Qt::Key_Down, Qt::ShiftModifier);
    list.open();
    QTRY_COMPARE(list.action()->text(), u"Put back 2 values"_s);
    QTest::keyClick(list.List, Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(list.action()->text(), u"Put back 3 values"_s);
    list.action()->setFocus();
    QTest::keyClick(list.action(), Qt::Key_Return);
    QTRY_COMPARE(list.List->ListCount(), 0);
    QVERIFY(!list.action()->isEnabled());
    QCOMPARE(program->status(), u"Put back: 3 values"_s);
    QCOMPARE(Editors(tools).Text2->Text(), u"Hello there"_s);
    for (const QString& file : {ThemeFile, LanguageFile}) QCOMPARE(game->get(file + u".tmp"_s), game->get(file));
    program->edit();
    program->click(2);
    QCOMPARE(program->status(), u"Saved, 1 value"_s);
  }

  /// A saved value that can't come back is no silent matter.
  void putBackFails() {
    const auto block = [this] {
      QFile::remove(game->native(ThemeCopy));
      QDir().mkdir(game->native(ThemeCopy));
    };
    const auto unblock = [this] { QDir().rmdir(game->native(ThemeCopy)); };
    program->edit();
    QCOMPARE(menuOfRow(u"X"_s, block), u"Put the saved value back: 40"_s);
    QVERIFY2(program->status().startsWith(u"Error while writing tempfile ["_s), qPrintable(program->status()));
    QCOMPARE(menuOfRow(u"X"_s), QString());
    QVERIFY2(program->status().startsWith(u"Error while reading Value ["_s), qPrintable(program->status()));
    unblock();
    // A copy that is gone is made anew, as for any edit.
    QCOMPARE(menuOfRow(u"X"_s), u"Put the saved value back: 40"_s);
    QVERIFY2(program->status().contains(u"was gone and is made anew"_s), qPrintable(program->status()));
    QCOMPARE(game->get(ThemeCopy), game->get(ThemeFile));
    // The same for a colour.
    program->soleRow(u"COLOR"_s, u"Red"_s);
    program->dialogs.colors = {QColor(1, 2, 3)};
    Editors(program->tools()).Command2->click();
    QCOMPARE(menuOf(*Editors(program->tools()).Command2, true, {}, block), u"Put the saved value back: 200 40 40"_s);
    QVERIFY2(program->status().startsWith(u"Error while writing tempfile ["_s), qPrintable(program->status()));
  }
};

QTEST_MAIN(SavedStateTest)
#include "saved_state_test.moc"
