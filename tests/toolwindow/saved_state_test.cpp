#include <QAccessible>
#include <QMenu>

#include "support/windows.h"

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
    game->put(ThemeCopy, game->get(ThemeCopy).replace("ColR=0.5", "ColR=0.7\r\nNew=1\r\nColR=0.8"));
    program->edit(u"H"_s, u"0"_s);
    program->tag(u"LoadingStaticA"_s);
    QCOMPARE(marked(), u"LoadingStaticA|H saved: 60|ColR saved: 0.5|New saved: nothing"_s);
    QCOMPARE(menuOfRow(u"ColR"_s), u"(saved: 0.5)"_s);
    QCOMPARE(menuOfRow(u"New"_s), u"(saved: nothing)"_s);
    const QString told = u"differs from the saved state|W x H: '100 x 0' leaves no area"_s;
    QCOMPARE(menuOf(*tools.objects().viewport(), true), u'(' + QString(told).replace(u"|"_s, u")|("_s) + u')');
    QCOMPARE(menuOf(*tools.objects().viewport(), false), QString());  // of another object
    const auto description = [](QWidget* list, int cell) {
      return QAccessible::queryAccessibleInterface(list)->child(cell)->text(QAccessible::Description);
    };
    QCOMPARE(description(&tools.objects(), tools.objects().ListIndex()), QString(told).replace(u'|', u'\n'));
    QCOMPARE(description(&tools.objects(), 0), QString());
    const int header = 2;
    QCOMPARE(description(&tools.values(), header + 2 * 4), u"saved: 60"_s);
    QCOMPARE(description(&tools.values(), header + 2 * 3), QString());
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
