#include <QApplication>

#include "mainwindows/hand_geometry.h"
#include "support/row_name.h"
#include "support/snapshot.h"

using namespace support;
using mainwindows::Grip;
using mainwindows::HeldNumbers;

namespace {

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
    send(from + by / 2, keys);
    send(from + by, keys);
    QTest::qWait(40);
  }
  void send(const QPoint& place, Qt::KeyboardModifiers keys) const {
    QMouseEvent move(QEvent::MouseMove, place, preview().mapToGlobal(place), Qt::NoButton, Qt::LeftButton, keys);
    QApplication::sendEvent(&preview(), &move);
  }
  void drop(const QPoint& place) const {
    QTest::mouseRelease(&preview(), Qt::LeftButton, {}, place);
    settle();
  }
  void drag(const QPoint& from, const QPoint& by, Qt::KeyboardModifiers keys = {}) const {
    hold(from, by, keys);
    drop(from + by);
  }
  /// X, Y, W and H of the object that is shown.
  QString numbers() const {
    return QStringList{program->value(u"X"_s), program->value(u"Y"_s), program->value(u"W"_s), program->value(u"H"_s)}
        .join(u' ');
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

  void dragWritesWhatTypingWrites() {
    program->tag(u"LoadingStaticA"_s);
    const QStringList before = numbers().split(u' ');
    const QByteArray file = game->get(ThemeCopy);
    drag(Inside, {40, 25});
    const QString x = QString::number(before[0].toInt() + 40);
    const QString y = QString::number(before[1].toInt() + 25);
    QCOMPARE(newLines(file), (QStringList{u"X="_s + x, u"Y="_s + y}));
    QCOMPARE(program->status(), u"LoadingStaticA: X = %1, Y = %2"_s.arg(x, y));
    const QVariantMap dragged = snapshot(*program, *game);

    program = nullptr;
    game = std::make_unique<GameFolder>();
    program = std::make_unique<Program>(*game);
    program->open();
    program->tag(u"LoadingStaticA"_s);
    program->change(u"X"_s, x);
    program->change(u"Y"_s, y);
    program->tools().ListView1->selectRow(-1);
    QStringList differing = differences(dragged, snapshot(*program, *game));
    differing.removeAll(u"height"_s);  // an editor is open
    differing.removeAll(u"flags"_s);
    QCOMPARE(differing, QStringList());
  }

  void eachKindOfObject() {
    const struct {
      const char* tag;
      QPoint from;
      QPoint by;
      QStringList lines;
    } rows[] = {
        {"LoadingButtonGo", {378, 258}, {5, 7}, {u"W=85"_s, u"SelectH=67"_s}},  // drawn selected
        {"LoadingButtonGo", {340, 230}, {-300, 0}, {u"X=0"_s}},
        {"LoadingTextFree", {400, 108}, {10, -4}, {u"X=410"_s, u"Y=96"_s}},
        {"LoadingButtonLast", {378, 338}, {0, 9}, {u"H=49"_s}},
    };
    for (const auto& row : rows) {
      program->tag(QLatin1StringView(row.tag));
      const QByteArray file = game->get(ThemeCopy);
      drag(row.from, row.by);
      QCOMPARE(newLines(file), row.lines);
    }
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

  void nothingIsWritten() {
    program->tag(u"LoadingStaticA"_s);
    const QVariantMap before = snapshot(*program, *game);
    drag(Inside, {3, 3});
    const QPoint by(30, 20);
    hold(Inside, by);
    QVERIFY(program->picture() != before[u"picture"_s].value<QImage>());
    QTest::keyClick(&preview(), Qt::Key_Escape);
    drop(Inside + by);
    hold(Inside, by);
    QTest::mousePress(&preview(), Qt::RightButton, {}, Inside + by);
    QTest::mouseRelease(&preview(), Qt::RightButton, {}, Inside + by);
    drop(Inside + by);
    hold(Inside, by);
    Q_EMIT qApp->applicationStateChanged(Qt::ApplicationInactive);
    drop(Inside + by);
    QCOMPARE(differences(before, snapshot(*program, *game)), QStringList());
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
