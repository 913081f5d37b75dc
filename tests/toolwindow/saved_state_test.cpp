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
  void writeWords(const QString& text) {
    program->row(u"Text"_s);
    Editors(program->tools()).Text2->SetText(text);
    Editors(program->tools()).Command1->click();
  }

 private Q_SLOTS:
  void marks() {
    QCOMPARE(marked(), QString());
    program->edit();
    QCOMPARE(marked(), u"LoadingStaticA|X saved: 40"_s);
    program->tag(u"LoadingTextFree"_s);
    writeWords(u"Hi"_s);
    QCOMPARE(marked(), u"LoadingStaticA|LoadingTextFree|Text saved: HELLO = Hello there"_s);
    program->screen(u"Main Screen"_s);  // its text says the same words
    QCOMPARE(marked(), u"MainTextFree"_s);
    program->screen(u"Loading Screen"_s);
    program->edit(u"X"_s, u"40"_s);
    QCOMPARE(marked(), u"LoadingTextFree"_s);
    program->click(2);
    QCOMPARE(marked(), QString());
  }

  void putBack() {
    program->click(3);
    game->put(ThemeFile, game->get(ThemeFile).replace("X=40", "X= 40 "));
    game->put(LanguageFile, game->get(LanguageFile).replace("GO=", "GO = ") + "LAST= end\t");
    program->open();
    const QByteArray words = game->get(LanguageFile);
    program->edit();
    QCOMPARE(menuOfRow(u"Y"_s) + menuOfRow(u"ColR"_s), QString());
    program->state.Changed = false;
    QCOMPARE(menuOfRow(u"X"_s), u"Put the saved value back: 40"_s);
    QVERIFY(game->get(ThemeCopy).contains("X= 40 \r\n") && program->state.Changed && program->enabled(2));
    QCOMPARE(program->value(u"X"_s) + Editors(program->tools()).Text1->Text(), u"4040"_s);
    QCOMPARE(program->form.Workspace->mark().x(), 40.0);
    QCOMPARE(program->status(), u"LoadingStaticA: X = 40"_s);
    QCOMPARE(marked(), QString());
    // A reference with its words; the line of these is gone.
    program->tag(u"LoadingTextLater"_s);
    program->row(u"Text"_s);
    program->dialogs.boxes = {platform::BoxAnswer::Yes};
    Editors(program->tools()).Command7->click();
    Editors(program->tools()).Combo5->SetText(u"HELLO"_s);
    Editors(program->tools()).Command1->click();
    QCOMPARE(marked().section(u'|', -1), u"Text saved: GO = Go"_s);
    program->tools().activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&program->tools()));
    QTest::keyClick(&program->tools().values(), Qt::Key_F10, Qt::ShiftModifier);
    QVERIFY(QApplication::activePopupWidget() != nullptr);
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Return);
    QCOMPARE(marked(), QString());
    QCOMPARE(game->get(ThemeCopy), game->get(ThemeFile));
    QCOMPARE(game->get(LanguageCopy), QByteArray(words).replace("GO = Go\r\n", "") + "\r\nGO = Go\r\n");
  }

  /// A commit, and a put-back, name what they have changed.
  void toldByName() {
    program->tag(u"LoadingTextFree"_s);
    writeWords(u"Hi"_s);
    QCOMPARE(program->status(), u"LoadingTextFree: words 'HELLO' = Hi"_s);
    QVERIFY(!menuOfRow(u"Text"_s).isEmpty());
    QCOMPARE(program->status(), u"LoadingTextFree: words 'HELLO' = Hello there"_s);
    Editors(program->tools()).Command1->click();
    QCOMPARE(program->status(), u"LoadingTextFree: Text = HELLO"_s);
    Editors(program->tools()).Combo5->SetText(u"GO"_s);
    Editors(program->tools()).Command1->click();
    QCOMPARE(program->status(), u"LoadingTextFree: Text = GO"_s);
    Editors(program->tools()).Combo5->SetText(u"HELLO"_s);
    Editors(program->tools()).Text2->SetText(u"Ho"_s);
    Editors(program->tools()).Command1->click();
    QCOMPARE(program->status(), u"LoadingTextFree: Text = HELLO, words 'HELLO' = Ho"_s);
    program->tag(u"LoadingStaticA"_s);
    program->row(u"Tex"_s);
    Editors(program->tools()).Text3->SetText(u"other.png"_s);
    Editors(program->tools()).Command1->click();
    QCOMPARE(program->status(), u"LoadingStaticA: texture 'Plate' = other.png"_s);
  }

  void putColourBack() {
    const Form2& tools = program->tools();
    const auto before = game->files();
    program->soleRow(u"COLOR"_s, u"Red"_s);
    QCOMPARE(menuOf(*Editors(tools).Command2, true), QString());
    program->dialogs.colors = {QColor(1, 2, 3)};
    Editors(tools).Command2->click();
    program->form.ShowStatus(QString());
    QCOMPARE(menuOf(*Editors(tools).Command2, true), u"Put the saved value back: 200 40 40"_s);
    QCOMPARE(game->files(), before);
    QCOMPARE(Editors(tools).Command2->BackColor(), QColor(200, 40, 40));
    QCOMPARE(Editors(tools).Combo3->itemIcon(0).pixmap(11, 11).toImage().pixelColor(5, 5), QColor(200, 40, 40));
    QVERIFY(program->colors().contains(u"Red=200 40 40"_s) && !program->state.Changed);
    QVERIFY(program->status().startsWith(u"Kept in the working copy"));
  }

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

  void squaresAndGreyRows() {
    const Form2& tools = program->tools();
    for (const auto& [scheme, name, color] : {std::tuple{u"Blue"_s, u"Red"_s, u"#c82828"_s},
                                              {u"Blue"_s, u"ColorDark"_s, u"#47aff7"_s},
                                              {u"Brown"_s, u"ColorDark"_s, u"#c07f1f"_s}}) {
      program->form.schemes().SetText(u"Red"_s);
      program->soleRow(u"COLOR"_s, name);
      program->form.schemes().SetText(scheme);
      QCOMPARE(Editors(tools).Command2->BackColor().name(), color);
      const QIcon square = Editors(tools).Combo3->itemIcon(Editors(tools).Combo3->findText(name));
      QCOMPARE(square.pixmap(11, 11).toImage().pixelColor(5, 5).name(), color);
    }
    const QListWidgetItem* row = tools.objects().findItems(u"LoadingStaticA"_s, Qt::MatchExactly).value(0);
    for (const char* height : {"60", "0", "60"}) {
      program->edit(u"H"_s, QLatin1StringView(height));
      QCOMPARE(row->data(Qt::ForegroundRole).isValid(), *height == '0');
    }
  }

  /// The last column takes what a wider window gives, and gives it back.
  void columns() {
    Form2& tools = program->tools();
    const int told = tools.values().columnWidth(1);
    const int width = tools.values().width();
    for (const int more : {0, 150, -20, 0}) {
      tools.resize(385 + more, tools.height());
      settle();
      QCOMPARE(tools.values().columnWidth(1), told + std::max(0, tools.values().width() - width));
      QCOMPARE(tools.values().columnWidth(0), 63);
    }
  }
};

QTEST_MAIN(SavedStateTest)
#include "saved_state_test.moc"
