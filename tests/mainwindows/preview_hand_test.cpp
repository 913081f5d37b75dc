#include <QApplication>

#include "mainwindows/hand_geometry.h"
#include "support/row_name.h"
#include "support/snapshot.h"

using namespace support;
using mainwindows::Grip;
using mainwindows::HeldNumbers;

namespace {

using Ending = std::function<void(Program& program)>;

const QPoint Inside(50, 60);  // of LoadingStaticA

}  // namespace

/// Moving and sizing of objects by hand.
class PreviewHandTest : public ProgramTest {
  Q_OBJECT

 private:
  mainwindows::Workspace& preview() const { return *program->form.Workspace; }

  /// Presses at a place and moves the mouse on, by pixels; the button stays down.
  void hold(const QPoint& from, const QPoint& by, Qt::KeyboardModifiers keys = {}) const {
    QTest::mousePress(&preview(), Qt::LeftButton, keys, from);
    moveMouse(preview(), from + by / 2, Qt::LeftButton, keys);
    moveMouse(preview(), from + by, Qt::LeftButton, keys);
    QTest::qWait(40);
  }
  void drop(const QPoint& place, Qt::KeyboardModifiers keys = {}) const {
    QTest::mouseRelease(&preview(), Qt::LeftButton, keys, place);
    settle();
  }
  void drag(const QPoint& from, const QPoint& by, Qt::KeyboardModifiers keys = {}) const {
    hold(from, by, keys);
    drop(from + by, keys);
  }
  /// Lines of the working copy that aren't those of `before`.
  QStringList newLines(const QByteArray& before) const {
    QStringList lines = QString::fromLatin1(game->get(ThemeCopy)).split(u"\r\n"_s);
    const QStringList old = QString::fromLatin1(before).split(u"\r\n"_s);
    for (qsizetype line = lines.size() - 1; line >= 0; --line) {
      if (line < old.size() && lines[line] == old[line]) lines.removeAt(line);
    }
    return lines;
  }

 private Q_SLOTS:
  void grips_data() {
    QTest::addColumn<QPoint>("pixel");
    QTest::addColumn<QString>("changed");
    QTest::newRow("left") << QPoint(11, 50) << u"X=15 W=95"_s;
    QTest::newRow("right") << QPoint(109, 50) << u"W=105"_s;
    QTest::newRow("top") << QPoint(60, 21) << u"Y=27 H=73"_s;
    QTest::newRow("bottom") << QPoint(60, 99) << u"H=87"_s;
    QTest::newRow("upper left") << QPoint(10, 20) << u"X=15 Y=27 W=95 H=73"_s;
    QTest::newRow("upper right") << QPoint(109, 20) << u"Y=27 W=105 H=73"_s;
    QTest::newRow("lower left") << QPoint(10, 99) << u"X=15 W=95 H=87"_s;
    QTest::newRow("lower right") << QPoint(109, 99) << u"W=105 H=87"_s;
    QTest::newRow("middle") << QPoint(60, 50) << u"X=15 Y=27"_s;
  }
  void grips() {
    QFETCH(QPoint, pixel);
    const Grip grip = mainwindows::gripAt({10, 20, 100, 80}, pixel);
    const HeldNumbers start{10, 20, 100, 80, u"H"_s};
    QStringList changed;
    for (const auto& [key, value] : mainwindows::changedValues(start, mainwindows::moved(start, grip, {5, 7}))) {
      changed += key + u'=' + value;
    }
    QTEST(changed.join(u' '), "changed");
  }

  void limits() {
    const HeldNumbers start{-20, 9990, 10, 10, u"H"_s};
    const HeldNumbers right = mainwindows::moved(start, {}, {5, 0});
    QVERIFY(right.X == 0 && right.Y == 9990);
    QCOMPARE(mainwindows::moved(start, {}, {0, 50}).X, -20);
    QCOMPARE(mainwindows::moved(start, {}, {0, 50}).Y, 10000);
    QCOMPARE(mainwindows::moved(start, {1, 1}, {-50, 0}).W, 1);
  }

  /// A drag leaves what an Update of the same numbers leaves.
  void dragIsAnUpdate_data() {
    QTest::addColumn<QString>("tag");
    QTest::addColumn<QPoint>("from");
    QTest::addColumn<QPoint>("by");
    QTest::addColumn<QString>("lines");
    QTest::addColumn<Qt::KeyboardModifiers>("keys");
    const auto add = [](const char* name, const char* tag, QPoint from, QPoint by, const char* lines,
                        Qt::KeyboardModifiers keys = {}) {
      QTest::newRow(name) << QString::fromLatin1(tag) << from << by << QString::fromLatin1(lines) << keys;
    };
    add("picture", "LoadingStaticA", Inside, {40, 25}, "X=80 Y=75");
    add("picture, one direction", "LoadingStaticA", Inside, {9, 25}, "Y=75", Qt::ControlModifier);
    add("picture, upper left", "LoadingStaticA", {41, 51}, {-6, 7}, "X=34 Y=57 W=106 H=53");
    add("picture, right", "LoadingStaticA", {138, 80}, {12, 30}, "W=112");
    add("selected button", "LoadingButtonGo", {340, 230}, {-310, 0}, "X=0");
    add("selected button's corner", "LoadingButtonGo", {378, 258}, {5, 7}, "W=85 SelectH=67");
    add("other button's edge", "LoadingButtonLast", {340, 338}, {0, 9}, "H=49");
    add("text", "LoadingTextFree", {400, 108}, {10, -4}, "X=410 Y=96");
    add("text of a button", "LoadingButtonGoText1", {320, 245}, {5, -3}, "X=15 Y=2");
  }
  void dragIsAnUpdate() {
    QFETCH(QString, tag);
    QFETCH(QPoint, from);
    QFETCH(QPoint, by);
    QFETCH(Qt::KeyboardModifiers, keys);
    program->tag(tag);
    const QByteArray file = game->get(ThemeCopy);
    drag(from, by, keys);
    const QStringList lines = newLines(file);
    QTEST(lines.join(u' '), "lines");
    QCOMPARE(program->status(), tag + u": "_s + QStringList(lines).replaceInStrings(u"="_s, u" = "_s).join(u", "_s));
    const QVariantMap dragged = snapshot(*program, *game);

    program = nullptr;
    init();
    program->tag(tag);
    for (const QString& line : lines) program->change(line.section(u'=', 0, 0), line.section(u'=', 1));
    program->tools().ListView1->selectRow(-1);
    QStringList differing = differences(dragged, snapshot(*program, *game));
    differing.removeAll(u"height"_s);  // an editor is open
    differing.removeAll(u"flags"_s);
    QCOMPARE(differing, QStringList());
  }

  void pickingGoesThroughWhatIsSelected() {
    themefiles::PutINI(u"LoadingStaticA"_s, u"W"_s, u"800"_s, program->state.paths.ThemeFile);
    themefiles::PutINI(u"LoadingStaticA"_s, u"H"_s, u"600"_s, program->state.paths.ThemeFile);
    program->form.queue().draw();
    program->tag(u"LoadingStaticA"_s);
    QTest::mouseClick(&preview(), Qt::LeftButton, {}, {340, 320});
    QCOMPARE(program->tools().List1->Text(), u"LoadingButtonLast"_s);
    QVERIFY(program->tools().focusWidget() == program->tools().List1);
  }

  /// What gives a drag up leaves all as it was, or at least the files.
  void givenUp_data() {
    QTest::addColumn<Ending>("ending");
    QTest::addColumn<bool>("filesOnly");
    const auto add = [](const char* name, const Ending& ending, bool filesOnly = false) {
      QTest::newRow(name) << ending << filesOnly;
    };
    add("Esc", [](Program& p) { QTest::keyClick(p.form.Workspace, Qt::Key_Escape); });
    add("second button", [](Program& p) {
      QTest::mouseClick(p.form.windowHandle(), Qt::RightButton, {}, p.form.Workspace->mapTo(&p.form, Inside));
      QVERIFY(QApplication::activePopupWidget() == nullptr);
    });
    add("lost grab", [](Program& p) { moveMouse(*p.form.Workspace, Inside, Qt::NoButton); });
    add("another program", [](Program&) { Q_EMIT qApp->applicationStateChanged(Qt::ApplicationInactive); });
    add("Alt+Tab", [](Program& p) {
      p.tools().activateWindow();
      QTRY_COMPARE(QApplication::activeWindow(), &p.tools());
    });
    add("dialog", [](Program& p) { p.openDialog([](mainwindows::Form3& dialog) { dialog.reject(); }); });
    add("drawing", [](Program& p) { p.form.queue().draw(); });
    add(
        "another screen", [](Program& p) { p.screen(u"Main Screen"_s); }, true);
    add(
        "Close", [](Program& p) { p.click(3); }, true);
    add(
        "end", [](Program& p) { p.form.close(); }, true);
  }
  void givenUp() {
    QFETCH(Ending, ending);
    QFETCH(bool, filesOnly);
    program->tag(u"LoadingStaticA"_s);
    program->form.activateWindow();
    QTRY_COMPARE(QApplication::activeWindow(), &program->form);
    const QPoint by(30, 20);
    const QVariantMap before = snapshot(*program, *game);
    drag(Inside, {3, 3});
    QCOMPARE(differences(before, snapshot(*program, *game)), QStringList());
    hold(Inside, by);
    QVERIFY(program->picture() != before[u"picture"_s].value<QImage>());
    ending(*program);
    drop(Inside + by);
    const QStringList differing = differences(before, snapshot(*program, *game));
    QVERIFY2(filesOnly ? !differing.contains(u"files"_s) : differing.isEmpty(), qPrintable(differing.join(u' ')));
  }

  void startsFromItself() {
    const auto draw = [this](const char* key, const char* value) {
      themefiles::PutINI(u"LoadingStaticA"_s, QLatin1StringView(key), QLatin1StringView(value),
                         program->state.paths.ThemeFile);
      program->form.queue().draw();
      program->tag(u"LoadingStaticA"_s);
      return game->get(ThemeCopy);
    };
    const QByteArray left = draw("X", "-20");
    const QImage before = program->picture();
    hold(Inside, {3, 0});
    QCOMPARE(program->picture(), before);
    moveMouse(preview(), Inside + QPoint(5, 0));
    drop(Inside + QPoint(5, 0));
    QCOMPARE(newLines(left), QStringList{u"X=0"_s});
    const QByteArray fraction = draw("Y", "50.5");
    drag(Inside, {0, 6});
    QCOMPARE(newLines(fraction), QStringList{u"Y=56"_s});
  }

  void sectionRemovedMeanwhile() {
    program->tag(u"LoadingStaticA"_s);
    hold(Inside, {30, 20});
    const QByteArray without = game->get(ThemeCopy).replace("[LoadingStaticA]", "[Elsewhere]");
    game->put(ThemeCopy, without);
    drop(Inside + QPoint(30, 20));
    QCOMPARE(game->get(ThemeCopy), without);
    QCOMPARE(program->status(), u"LoadingStaticA stays as it is [its section is gone]"_s);
    QVERIFY(!program->state.Changed);
  }

  void keysAreOneEdit() {
    program->tag(u"LoadingStaticA"_s);
    program->row(u"X"_s);
    const int x = program->value(u"X"_s).toInt();
    const int y = program->value(u"Y"_s).toInt();
    preview().setFocus();
    const QByteArray file = game->get(ThemeCopy);
    for (int press = 0; press < 5; ++press) QTest::keyClick(&preview(), Qt::Key_Right);
    for (int press = 0; press < 2; ++press) QTest::keyClick(&preview(), Qt::Key_Down);
    QCOMPARE(game->get(ThemeCopy), file);
    QTRY_COMPARE(program->value(u"Y"_s), QString::number(y + 2));
    QCOMPARE(program->value(u"X"_s), QString::number(x + 5));
    QCOMPARE(program->tools().Text1->Text(), QString::number(x + 5));  // the open editor
    // A Save while a key is held saves the last place; Esc drops what isn't committed.
    QTest::keyPress(&preview(), Qt::Key_Right, Qt::ShiftModifier);
    program->click(2);
    QVERIFY(game->get(u"Themes/Alpha.ini"_s).contains("X=" + QByteArray::number(x + 15)));
    QTest::keyRelease(&preview(), Qt::Key_Right, Qt::ShiftModifier);
    const QVariantMap saved = snapshot(*program, *game);
    QTest::keyClick(&preview(), Qt::Key_Left);
    QTest::keyClick(&preview(), Qt::Key_Escape);
    QTest::qWait(400);
    QCOMPARE(differences(saved, snapshot(*program, *game)), QStringList());
  }

  void refusals() {
    const std::pair<const char*, const char*> rows[] = {{"X", ""}, {"X", "wide"}, {"Y", "-1"}, {"X", "99999999999"}};
    for (const auto& [key, value] : rows) {
      program->tag(u"LoadingStaticA"_s);
      themefiles::PutINI(u"LoadingStaticA"_s, QLatin1StringView(key), QLatin1StringView(value),
                         program->state.paths.ThemeFile);
      const QByteArray file = game->get(ThemeCopy);
      preview().setFocus();
      QTest::keyClick(&preview(), Qt::Key_Right);
      QTest::qWait(400);
      QVERIFY2(program->status().startsWith(u"LoadingStaticA stays as it is ["_s), qPrintable(program->status()));
      QCOMPARE(game->get(ThemeCopy), file);
      themefiles::PutINI(u"LoadingStaticA"_s, QLatin1StringView(key), u"40"_s, program->state.paths.ThemeFile);
    }
  }
};

QTEST_MAIN(PreviewHandTest)
#include "preview_hand_test.moc"
