#include "support/row_name.h"
#include "support/windows.h"

using namespace support;
using toolwindow::Form2;

/// Texts as long as the editors take, and numbers by keys and wheel.
class EditorsTest : public ProgramTest {
  Q_OBJECT

 private Q_SLOTS:
  void longTexts() {
    Form2& tools = program->tools();
    for (const int letters : {32000, 32001}) {
      const bool fits = letters == 32000;
      const QByteArray words(letters, 'w');
      game->put(LanguageCopy, "[Text]\r\nHELLO=" + words + "\r\n");
      for (const char* key : {"Z", "TEXT"}) {  // the value itself is long, or what it refers to
        program->tag(u"LoadingStaticA"_s);
        program->form.ShowStatus(QString());
        program->soleRow(QString::fromLatin1(key), *key == 'Z' ? QString(letters, u'1') : u"HELLO"_s);
        QCOMPARE(named<QWidget>(tools, "Frame1")->isHidden(), *key == 'Z' && !fits);
        const QString report = u"Error while reading Value [%1 is too long to be edited here]"_s;
        QCOMPARE(program->status(), fits ? QString() : report.arg(*key == 'Z' ? u"Z"_s : u"HELLO"_s));
        const QByteArray theme = game->get(ThemeCopy);
        Editors(tools).Command1->click();
        if (*key == 'Z') {
          QCOMPARE(game->get(ThemeCopy) == theme, !fits);
          continue;
        }
        QVERIFY(game->get(LanguageCopy).contains(words));
        QCOMPARE(program->state.Changed, fits);
        program->state.Changed = false;
      }
    }
  }

  void numbersByKeysAndWheel() {
    Form2& tools = program->tools();
    program->soleRow(u"X"_s, u"9999"_s);
    Editors(tools).Text1->selectAll();
    QTest::keyClicks(Editors(tools).Text1, u"1a-2.3"_s);
    QCOMPARE(Editors(tools).Text1->Text(), u"123"_s);
    QCOMPARE(Editors(tools).VScroll1->Value(), 123);
    Editors(tools).Text1->SetText(u"1"_s);
    for (const auto& [key, number] :
         {std::pair{Qt::Key_Down, "0"}, {Qt::Key_PageDown, "0"}, {Qt::Key_PageUp, "1"}, {Qt::Key_Up, "2"}}) {
      QTest::keyClick(Editors(tools).Text1, key);
      QCOMPARE(Editors(tools).Text1->Text(), QLatin1StringView(number));
    }
    for (QWidget* part :
         std::initializer_list<QWidget*>{Editors(tools).Text1, Editors(tools).VScroll1, Editors(tools).Command1}) {
      part->setFocus();
      for (QWidget* under : std::initializer_list<QWidget*>{Editors(tools).Text1, Editors(tools).VScroll1})
        turnWheel(*under, 60);
    }
    QCOMPARE(Editors(tools).Text1->Text(), u"4"_s);
    program->soleRow(u"Z"_s, QString());
    QTest::keyClicks(Editors(tools).Text4, u"-1.2,.3e"_s);
    QCOMPARE(Editors(tools).Text4->Text(), u"1.2.3"_s);
  }

  /// Keys and a double click lead from the grid into the editor, and Enter back; only what was changed is written.
  void typedInTheGrid() {
    const auto key = [](Qt::Key key) { return [key](QWidget& grid) { QTest::keyClick(&grid, key); }; };
    const auto typed = [](char letter) { return [letter](QWidget& grid) { QTest::keyClick(&grid, letter); }; };
    const auto twice = [](QWidget& grid) {
      const auto& view = static_cast<controls::ListView&>(grid);
      const QPoint place = view.visualRect(view.currentIndex()).center();
      QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, place);
    };
    const struct {
      const char *row, *value;
      std::function<void(QWidget& grid)> way;
      const char *focus, *shown, *selected;
      bool writes;
    } rows[] = {{"Y", "-42", key(Qt::Key_Return), "Text1", "0", "0", false},
                {"Y", "-42", typed('0'), "Text1", "0", "", true},
                {"X", "40", key(Qt::Key_F2), "Text1", "40", "40", false},
                {"X", "40", twice, "Text1", "40", "40", false},
                {"X", "40", typed('7'), "Text1", "7", "", true},
                {"X", "40", typed('-'), "ListView1", "", "", false},
                {"Z", "0.25", typed('3'), "Text4", "3", "", true},
                {"Type", "Plain", typed('3'), "ListView1", "", "", false},
                {"Type", "Plain", key(Qt::Key_Enter), "Combo2", "", "", false},
                {"Color", "Red", key(Qt::Key_Return), "Combo3", "", "", false},
                {"Tex", "Plate", key(Qt::Key_Return), "Combo6", "", "", false},
                {"Text", "HELLO", key(Qt::Key_Return), "Text2", "Hello there", "Hello there", false},
                {"ColR", "0.5", key(Qt::Key_Return), "ListView1", "", "", false}};
    program->tag(u"LoadingStaticA"_s);
    Form2& tools = program->tools();
    for (const auto& [row, value, way, focus, shown, selected, writes] : rows) {
      const RowName name(row);
      program->soleRow(QLatin1StringView(row), QLatin1StringView(value));
      tools.values().setFocus();
      way(tools.values());
      QWidget& inside = *tools.focusWidget();
      QCOMPARE(inside.objectName(), QLatin1StringView(focus));
      if (const auto* box = qobject_cast<QLineEdit*>(&inside)) {
        QCOMPARE(box->text(), QLatin1StringView(shown));
        QCOMPARE(box->selectedText(), QLatin1StringView(selected));
      }
      const QByteArray before = game->get(ThemeCopy);
      if (&inside != &tools.values()) QTest::keyClick(&inside, Qt::Key_Return);
      QCOMPARE(game->get(ThemeCopy) != before, writes);
      QVERIFY(tools.values().hasFocus());
      QCOMPARE(tools.values().subItem(0), writes ? QLatin1StringView(shown) : QLatin1StringView(value));
    }
  }

  /// What the user has changed and not taken over is told, whatever drops it.
  void droppedChanges() {
    const std::pair<const char*, std::function<void()>> rows[] = {
        {"row", [this] { program->row(u"Y"_s); }},
        {"object", [this] { program->tag(u"LoadingTextFree"_s); }},
        {"screen", [this] { program->screen(u"Main Screen"_s); }},
        {"drag",
         [this] {
           QTest::keyClick(program->form.Workspace, Qt::Key_Right);
           program->form.session().settle();
         }},
        {"Close", [this] { program->click(3); }}};
    for (const auto& [name, drop] : rows) {
      const RowName rowName(name);
      program = nullptr;
      init();
      program->edit(u"Y"_s);
      program->row(u"X"_s);
      QTest::keyClicks(Editors(program->tools()).Text1, u"5"_s);
      const QString lost = u"not taken over: X = 540"_s;
      program->click(2);
      QVERIFY2(program->status().endsWith(lost), qPrintable(program->status()));  // Save is without it
      program->form.ShowStatus(QString());
      drop();
      QVERIFY2(program->status().endsWith(lost), qPrintable(program->status()));
      if (program->form.toolWindow() != nullptr) QCOMPARE(program->tools().pendingChanges(), QString());
    }
    program = nullptr;
    init();
    program->tag(u"LoadingTextFree"_s);
    program->row(u"Text"_s);
    Editors editors(program->tools());
    QTest::keyClicks(editors.Text2, u"O "_s);
    QCOMPARE(program->tools().pendingChanges(), u"not taken over: words 'HELLO' = O Hello there"_s);
    editors.Command1->click();
    QCOMPARE(program->tools().pendingChanges(), QString());
    QTest::keyClick(editors.Combo5, Qt::Key_Down);
    QCOMPARE(program->tools().pendingChanges(), u"not taken over: Text = GO"_s);
  }
};

QTEST_MAIN(EditorsTest)
#include "editors_test.moc"
