#include <QApplication>
#include <QScrollArea>
#include <QScrollBar>

#include "support/hand.h"
#include "support/picture_results.h"
#include "support/row_name.h"

using namespace support;

const QPoint Inside(50, 60);  // of LoadingStaticA

/// Moving and sizing of objects by hand.
class PreviewHandTest : public HandTest {
  Q_OBJECT

 private Q_SLOTS:
  /// A drag leaves what an Update of the same numbers leaves.
  void dragIsAnUpdate() {
    const struct {
      QString tag;
      QPoint from, by;
      QString lines;
      Qt::KeyboardModifiers keys;
    } rows[] = {
        {u"LoadingStaticA"_s, Inside, {40, 25}, u"X=80 Y=75"_s, {}},
        {u"LoadingStaticA"_s, Inside, {9, 25}, u"Y=75"_s, Qt::ControlModifier},
        {u"LoadingStaticA"_s, {41, 51}, {-6, 7}, u"X=34 Y=57 W=106 H=53"_s, {}},
        {u"LoadingStaticA"_s, {138, 80}, {12, 30}, u"W=112"_s, {}},
        {u"LoadingButtonGo"_s, {340, 230}, {-300, 0}, u"X=0"_s, {}},  // the selected one
        {u"LoadingButtonGo"_s, {378, 258}, {5, 7}, u"W=85 SelectH=67"_s, {}},
        {u"LoadingButtonLast"_s, {340, 338}, {0, 9}, u"H=49"_s, {}},
        {u"LoadingTextFree"_s, {400, 108}, {10, -4}, u"X=410 Y=96"_s, {}},
        {u"LoadingButtonGoText1"_s, {320, 245}, {5, -3}, u"X=15 Y=2"_s, {}},
    };
    for (const auto& row : rows) {
      const RowName name((row.tag + u' ' + row.lines).toLatin1());
      const auto anew = [&] {
        program = nullptr;
        init();
        program->tag(row.tag);
      };
      anew();
      const QByteArray file = game->get(ThemeCopy);
      drag(row.from, row.by, row.keys);
      const QStringList lines = newLines(file);
      QCOMPARE(lines.join(u' '), row.lines);
      const QString told = QStringList(lines).replaceInStrings(u"="_s, u" = "_s).join(u", "_s);
      QCOMPARE(program->status(), row.tag + u": "_s + told);
      const QVariantMap dragged = snapshot(*program, *game);
      anew();
      for (const QString& line : lines) program->change(line.section(u'=', 0, 0), line.section(u'=', 1));
      program->tools().values().selectRow(-1);
      QStringList differing = differences(dragged, snapshot(*program, *game));
      differing.removeAll(u"height"_s);  // an editor is open
      differing.removeAll(u"editor"_s);
      QCOMPARE(differing, QStringList());
    }
  }

  /// What gives a drag up leaves all as it was, or at least the files.
  void givenUp() {
    const struct {
      const char* name;
      void (*ending)(Program& p);
      bool filesOnly = false;
    } rows[] = {
        {"Esc", [](Program& p) { QTest::keyClick(p.form.Workspace, Qt::Key_Escape); }},
        {"second button",
         [](Program& p) {
           QTest::mouseClick(p.form.windowHandle(), Qt::RightButton, {}, p.form.Workspace->mapTo(&p.form, Inside));
           QVERIFY(QApplication::activePopupWidget() == nullptr);
         }},
        {"lost grab", [](Program& p) { moveMouse(*p.form.Workspace, Inside, Qt::NoButton); }},
        {"another program", [](Program&) { Q_EMIT qApp->applicationStateChanged(Qt::ApplicationInactive); }},
        {"Alt+Tab",
         [](Program& p) {
           p.tools().activateWindow();
           QTRY_COMPARE(QApplication::activeWindow(), &p.tools());
         }},
        {"dialog", [](Program& p) { p.openDialog([](mainwindows::Form3& dialog) { dialog.reject(); }); }},
        {"drawing", [](Program& p) { p.form.queue().draw(); }},
        {"another screen", [](Program& p) { p.screen(u"Main Screen"_s); }, true},
        {"Close", [](Program& p) { p.click(3); }, true},
        {"end", [](Program& p) { p.form.close(); }, true},
    };
    const QPoint by(30, 20);
    for (const auto& [name, ending, filesOnly] : rows) {
      const RowName rowName(name);
      program = nullptr;
      init();
      program->tag(u"LoadingStaticA"_s);
      program->form.activateWindow();
      QTRY_COMPARE(QApplication::activeWindow(), &program->form);
      const QVariantMap before = snapshot(*program, *game);
      drag(Inside, {3, 3});
      QCOMPARE(differences(before, snapshot(*program, *game)), QStringList());
      hold(Inside, by);
      QTRY_VERIFY(program->picture() != before[u"picture"_s].value<QImage>());
      compareSettled(u"held.png"_s, preview());
      ending(*program);
      drop(Inside + by);
      const QStringList differing = differences(before, snapshot(*program, *game));
      QVERIFY2(filesOnly ? !differing.contains(u"files"_s) : differing.isEmpty(), qPrintable(differing.join(u' ')));
    }
  }

  void startsFromItself() {
    const auto draw = [this](const char* key, const char* value) {
      put(key, value);
      program->form.queue().draw();
      program->tag(u"LoadingStaticA"_s);
      return game->get(ThemeCopy);
    };
    const QByteArray left = draw("X", "-20");
    const QImage before = program->picture();
    hold(Inside, {3, 0});
    QCOMPARE(program->picture(), before);
    moveMouse(preview(), Inside + QPoint(4, 0));
    drop(Inside + QPoint(4, 0));
    QCOMPARE(newLines(left), QStringList{u"X=-16"_s});
    const QByteArray fraction = draw("Y", "50.5");
    drag(Inside, {0, 6});
    QCOMPARE(newLines(fraction), QStringList{u"Y=56"_s});
    hold(Inside, {700, 530});
    QTRY_VERIFY(!preview().accessibleDescription().isEmpty());
    compareSettled(u"held in the corner.png"_s, preview());
  }

  void scrolls() {
    QScrollArea& area = *program->form.previewArea;
    area.resize(300, 200);
    program->tag(u"LoadingStaticA"_s);
    // A drag at the edge goes on while the mouse rests, by as much as is scrolled. A click scrolls nothing.
    QScrollBar& bar = *area.horizontalScrollBar();
    preview().setFocus();
    settle();
    area.verticalScrollBar()->setValue(0);
    hold(Inside, {area.viewport()->width() - 5 - Inside.x(), 0});
    QTest::keyClick(&preview(), Qt::Key_Escape);
    QVERIFY(!area.findChild<QTimer*>(u"ScrollSteps"_s)->isActive());
    drop(Inside);
    bar.setValue(bar.maximum() - 60);
    hold(Inside, {bar.value() + area.viewport()->width() - 5 - Inside.x(), 0});
    QTRY_COMPARE(bar.value(), bar.maximum());
    QTRY_COMPARE(preview().accessibleDescription(), u"X 785, Y 50"_s);
    drop({795, 60});
    QCOMPARE(program->value(u"X"_s), u"785"_s);
    const QPoint before = preview().pos();
    QTest::mouseClick(&preview(), Qt::LeftButton, {}, {-before.x() + 280, 60});
    QCOMPARE(preview().pos(), before);
    program->tag(u"LoadingButtonGo"_s);
    QVERIFY(preview().pos() != before);
    // The menu that the keys bring up stands on what is seen.
    program->form.activateWindow();
    QTRY_VERIFY(program->form.isActiveWindow());
    QTest::keyClick(&preview(), Qt::Key_F10, Qt::ShiftModifier);
    QVERIFY(preview().visibleRegion().contains(preview().mapFromGlobal(QApplication::activePopupWidget()->pos())));
  }

  void sectionRemovedMeanwhile() {
    program->tag(u"LoadingStaticA"_s);
    const QImage before = program->picture();
    hold(Inside, {30, 20});
    QTRY_COMPARE(preview().accessibleDescription(), u"X 70, Y 70"_s);  // the label's words
    const QByteArray without = game->get(ThemeCopy).replace("[LoadingStaticA]", "[Elsewhere]");
    game->put(ThemeCopy, without);
    drop(Inside + QPoint(30, 20));
    QCOMPARE(game->get(ThemeCopy), without);
    QCOMPARE(program->status(), u"LoadingStaticA stays as it is [its section is gone]"_s);
    QVERIFY(!program->state.Changed && program->picture() == before && preview().accessibleDescription().isEmpty());
  }

  void pointerTellsWhatAPressDoes() {
    program->tag(u"LoadingStaticA"_s);
    const std::pair<QPoint, Qt::CursorShape> rows[] = {
        {Inside, Qt::SizeAllCursor},   {{41, 51}, Qt::SizeFDiagCursor}, {{138, 51}, Qt::SizeBDiagCursor},
        {{41, 80}, Qt::SizeHorCursor}, {{90, 108}, Qt::SizeVerCursor},  {{600, 500}, Qt::ArrowCursor}};
    for (const auto& [place, shape] : rows) {
      moveMouse(preview(), place, Qt::NoButton);
      QCOMPARE(preview().cursor().shape(), shape);
    }
    program->tag(u"LoadingBackground"_s);  // has no mark
    moveMouse(preview(), Inside, Qt::NoButton);
    QCOMPARE(preview().cursor().shape(), Qt::ArrowCursor);
  }

  void keysAreOneEdit() {
    program->tag(u"LoadingStaticA"_s);
    program->row(u"X"_s);
    const int x = program->value(u"X"_s).toInt();
    const int y = program->value(u"Y"_s).toInt();
    preview().setFocus();
    const QByteArray file = game->get(ThemeCopy);
    // While a key is held nothing is committed, however long that lasts.
    for (int press = 0; press < 5; ++press) QTest::keyPress(&preview(), Qt::Key_Right);
    for (int press = 0; press < 2; ++press) QTest::keyClick(&preview(), Qt::Key_Down);
    QCOMPARE(game->get(ThemeCopy), file);
    QTest::keyRelease(&preview(), Qt::Key_Right);
    QTRY_COMPARE(program->value(u"Y"_s), QString::number(y + 2));
    QCOMPARE(program->value(u"X"_s), QString::number(x + 5));
    QCOMPARE(Editors(program->tools()).Text1->Text(), QString::number(x + 5));  // the open editor
    // A Save while a key is held saves the last place; Esc drops what isn't committed.
    QTest::keyPress(&preview(), Qt::Key_Right, Qt::ShiftModifier);
    QTRY_VERIFY(!preview().accessibleDescription().isEmpty());
    const QImage moved = program->picture();
    program->form.queue().draw();
    QTRY_COMPARE(program->picture(), moved);  // what isn't committed stays on show
    program->click(2);
    QVERIFY(game->get(u"Themes/Alpha.ini"_s).contains("X=" + QByteArray::number(x + 15)));
    QTest::keyRelease(&preview(), Qt::Key_Right, Qt::ShiftModifier);
    const QVariantMap saved = snapshot(*program, *game);
    QTest::keyClick(&preview(), Qt::Key_Left);
    QTest::keyClick(&preview(), Qt::Key_Escape);
    program->form.session().settle();  // commits what waits
    QCOMPARE(differences(saved, snapshot(*program, *game)), QStringList());
    // A press takes over from the keys, and nothing is left of them that ends its drag.
    QTest::keyClick(&preview(), Qt::Key_Down);
    hold(Inside + QPoint(15, 2), {30, 20});
    QTRY_VERIFY(!program->form.findChild<QTimer*>(u"KeysAtRest"_s)->isActive());
    drop(Inside + QPoint(45, 22));
    QCOMPARE(program->value(u"X"_s), QString::number(x + 45));
    QCOMPARE(program->value(u"Y"_s), QString::number(y + 23));
  }

  void refusals() {
    put("H", "-1");
    const QByteArray file = game->get(ThemeCopy);
    for (const auto& [object, why] :
         {std::pair(u"LoadingStaticA"_s, u"a texture drawn at its own size can't be sized"_s),
          {u"LoadingTextFree"_s, u"a text can't be sized"_s}}) {
      program->tag(object);
      QTest::keyClick(&preview(), Qt::Key_Right, Qt::ControlModifier);
      QCOMPARE(program->status(), u"%1 stays as it is [%2]"_s.arg(object, why));
    }
    program->form.session().settle();
    QCOMPARE(game->get(ThemeCopy), file);
  }
};

QTEST_MAIN(PreviewHandTest)
#include "preview_hand_test.moc"
