#include <algorithm>
#include <random>

#include "mainwindows/arranging.h"
#include "mainwindows/selected_object.h"
#include "support/group.h"
#include "support/picture_results.h"
#include "support/row_name.h"
#include "themefiles/working_copies.h"

using namespace support;

const QPoint Inside(50, 60);  // of LoadingStaticA

/// Several objects in the hand, and the guides that a drag meets.
class GroupHandTest : public GroupTest {
  Q_OBJECT

 private Q_SLOTS:
  /// Several objects are moved as one, and what can't be moved stays and says why.
  void several() {
    group();
    const QStringList members = program->form.session().members();
    QCOMPARE(members.join(u' '), u"LoadingButtonLast LoadingButtonGo LoadingButtonGoText1"_s);
    const QByteArray file = game->get(ThemeCopy);
    hold({340, 320}, {10, 0});
    drop({340, 320});  // where it was
    QVERIFY(game->get(ThemeCopy) == file && !program->state.Changed);
    game->protect(ThemeCopy);
    hold({340, 320}, {40, 25});
    QTRY_COMPARE(preview().accessibleDescription(), u"X 80, Y 75 and 2 more"_s);
    compareSettled(u"several in the hand.png"_s, preview());
    drop({380, 345});
    QVERIFY2(program->status().startsWith(u"Error while writing tempfile ["), qPrintable(program->status()));
    compareSettled(u"several.png"_s, preview());
    game->protect(ThemeCopy, false);
    drag({340, 320}, {40, 25});
    compareSettled(u"several moved.png"_s, preview());
    QCOMPARE(newLines(file).join(u' '), u"X=340 Y=225 X=340 Y=325 X=80 Y=75"_s);
    QCOMPARE(program->status(),
             u"LoadingStaticA: X = 80, Y = 75; LoadingButtonLast: X = 340, Y = 325; "
             "LoadingButtonGo: X = 340, Y = 225"_s);
    QTest::keyClick(&preview(), Qt::Key_Left, Qt::ShiftModifier);
    QTest::keyClick(&preview(), Qt::Key_Right, Qt::AltModifier);      // a desktop's key
    QTest::keyClick(&preview(), Qt::Key_Right, Qt::ControlModifier);  // sizes the chosen one
    program->form.session().settle();
    QCOMPARE(newLines(file).join(u' '), u"X=330 Y=225 X=330 Y=325 X=70 Y=75 W=101"_s);
    put("Y", "-1");
    themefiles::PutINI(u"LoadingButtonGo"_s, u"X"_s, u"-1"_s, program->state.paths.ThemeFile);
    const QByteArray before = game->get(ThemeCopy);
    hold({370, 345}, {-10, 0});
    QTRY_COMPARE(preview().accessibleDescription(), u"X 320, Y 325 and 1 more"_s);
    QTest::keyClick(&preview(), Qt::Key_Escape);
    drop({360, 345});
    QVERIFY(game->get(ThemeCopy) == before);
    drag({370, 345}, {-10, 0});
    QCOMPARE(newLines(before).join(u' '), u"X=0 X=320"_s);  // the text, whose button stays
    QVERIFY(program->status().contains(u"StaticA stays as it is [Y is -1]; LoadingButtonGo stays as it is [X is -1]"));
    QCOMPARE(program->form.session().members(), members);
    mainwindows::arrange(program->form, mainwindows::Arrangement::UpperEdges);
    QCOMPARE(newLines(before).size(), 4);  // both have come up
    QTest::mouseClick(&preview(), Qt::LeftButton, {}, {700, 500});
    QCOMPARE(program->form.session().members(), QStringList());
    // By the keys of the list: Ctrl leads the focus on, Space joins.
    controls::ListBox& list = program->tools().objects();
    const QString chosen = list.Text();
    QTest::keyClick(&list, Qt::Key_Up, Qt::ControlModifier);
    for (int times = 1; times <= 3; ++times) {
      QTest::keyClick(&list, Qt::Key_Space);
      QCOMPARE(list.Text(), chosen);
      QCOMPARE(list.told(list.ListIndex() - 1).contains(u"together with "_s + chosen), times % 2 == 1);
    }
    QVERIFY2(program->status().startsWith(u"together: "_s + chosen), qPrintable(program->status()));
    QTest::keyClick(&list, Qt::Key_Escape);
    QCOMPARE(program->form.session().members(), QStringList());
    QVERIFY2(!program->status().contains(u"together"), qPrintable(program->status()));
  }

  /// Random hands leave what typing the same numbers leaves; what can't be typed, below 0, is written into the file.
  void randomHands() {
    std::mt19937 chance(1);
    const auto oneOf = [&](int least, int most) { return least + static_cast<int>(chance() % (most - least + 1U)); };
    int below = 0;
    int along = 0;
    for (int hand = 0; hand < 10; ++hand) {
      openCrowded();
      const RowName rowName(QByteArray::number(hand));
      QStringList names = entries(program->tools().objects());
      names.removeIf([](const QString& name) { return name == u"Loading" || name == u"LoadingBackground"; });
      std::shuffle(names.begin(), names.end(), chance);
      names.resize(oneOf(3, 8));
      const QPoint by(oneOf(5, 60) * (oneOf(0, 1) * 2 - 1), oneOf(5, 60) * (oneOf(0, 1) * 2 - 1));
      std::vector<themefiles::KeyValue> numbers;
      for (const QString& name : names) {
        const bool goesAlong = name.contains(u"Text") && names.contains(name.section(u"Text"_s, 0, 0));
        along += goesAlong ? 1 : 0;
        for (const auto& [key, way] : {std::pair{u"X"_s, by.x()}, {u"Y"_s, by.y()}}) {
          if (goesAlong) continue;
          int number = themefiles::GetINI(name, key, {}, program->state.paths.ThemeFile).toInt() + way;
          if (number == -1 && !name.contains(u"Text")) number += way < 0 ? -1 : 1;  // else its own place
          numbers.push_back({name, key, QString::number(number)});
        }
      }
      const auto take = [&] {
        program->tag(names.front());
        for (const QString& name : names.mid(1)) program->form.session().toggleMember(name);
      };
      take();
      drag(mainwindows::drawnPlace(program->form, names.front())->center(), by);
      const QVariantMap moved = snapshot(*program, *game);
      openCrowded();
      std::stable_partition(numbers.begin(), numbers.end(), [](const auto& number) { return number.value[0] != u'-'; });
      for (const auto& [name, key, value] : numbers) {
        program->tag(name);
        if (value[0] != u'-') {
          program->change(key, value);
        } else {
          themefiles::PutINI(name, key, value, program->state.paths.ThemeFile);
          ++below;
        }
      }
      program->form.queue().draw();
      program->tag(u"LoadingBackground"_s);
      take();
      const QString differing = differences(moved, snapshot(*program, *game)).join(u' ');
      QVERIFY2(differing.isEmpty() || differing == u"editor height", qPrintable(differing));  // one is open
    }
    QVERIFY2(below >= 5 && along >= 3, qPrintable(u"%1 %2"_s.arg(below).arg(along)));
  }

  /// While a drawing runs, a press with Shift joins what is drawn by then, and a key moves the texts of a button once.
  void duringADrawing() {
    program->tag(u"LoadingStaticA"_s);
    const QByteArray file = game->get(ThemeCopy);
    editing::Session& session = program->form.session();
    bool isPressed = false;
    connect(&program->form.queue(), &controls::WorkQueue::yielding, this, [&] {
      if (session.members().isEmpty()) {
        QTest::keyClick(&preview(), Qt::Key_Right, Qt::ControlModifier);  // the height that it has isn't known yet
        return QTest::mouseClick(&preview(), Qt::LeftButton, Qt::ShiftModifier, {340, 320});
      }
      const bool isWhole = session.members().size() == 3;
      if (isWhole && !std::exchange(isPressed, true)) QTest::keyClick(&preview(), Qt::Key_Right);
    });
    program->form.queue().draw();
    QCOMPARE(session.members().join(u' '), u"LoadingButtonLast"_s);
    for (const QString& name : {u"LoadingButtonGo"_s, u"LoadingButtonGoText1"_s}) session.toggleMember(name);
    program->form.queue().draw();
    session.settle();
    program->form.queue().disconnect(this);
    QCOMPARE(newLines(file).join(u' '), u"X=301 X=301 X=41"_s);
  }

  /// What another program does to the working copy while several objects are in the hand.
  void meanwhile() {
    const struct {
      const char *before, *after;
      QString lines, told;
    } rows[] = {{"X=400", "X=410", u"X=310 X=310 X=50"_s, u"was changed by another program"_s},
                {"X=40\r", "X=45\r", u"X=310 X=310 X=50"_s, u"was changed by another program"_s},
                {"[LoadingButtonLast]", "[Elsewhere]", u"X=310 X=50"_s,
                 u"LoadingButtonLast stays as it is [its section is gone]"_s},
                {nullptr, "", u"X=310 X=310 X=50"_s, u"was empty and is made anew"_s},
                {nullptr, nullptr, u"X=310 X=310 X=50"_s, u"was gone and is made anew"_s}};
    for (const auto& [before, after, lines, told] : rows) {
      const RowName rowName(before);
      program = nullptr;
      init();
      group();
      program->edit(u"W"_s, u"110"_s);
      const QByteArray own = game->get(ThemeCopy);
      group();
      hold({340, 320}, {10, 0});
      QTRY_COMPARE(preview().accessibleDescription(), u"X 50, Y 50 and 2 more"_s);
      const QByteArray meddled = before == nullptr ? own : QByteArray(own).replace(before, after);
      game->put(ThemeCopy, meddled);
      if (before == nullptr && after != nullptr) game->put(ThemeCopy, {});
      if (before == nullptr && after == nullptr) QFile::remove(game->native(ThemeCopy));
      drop({350, 320});
      QCOMPARE(newLines(meddled).join(u' '), lines);
      QVERIFY2(program->status().contains(told), qPrintable(program->status()));
      QCOMPARE(game->files().value(ThemeCopy + u".old"_s), before == nullptr ? QByteArray() : own);
    }
  }

  void guides() {
    // Outside the picture nothing is met, and beside a straight way neither.
    const QByteArray beside = game->get(ThemeCopy).replace("X=400\r\nY=100", "X=400\r\nY=94");
    game->put(ThemeCopy, QByteArray(beside).replace("X=400\r\nY=150", "X=299\r\nY=700"));
    program->form.queue().draw();
    program->tag(u"LoadingStaticA"_s);
    const QByteArray file = game->get(ThemeCopy);
    QTest::mousePress(&preview(), Qt::LeftButton, {}, Inside);
    moveMouse(preview(), Inside + QPoint(158, 5), Qt::LeftButton, Qt::ControlModifier);
    QTRY_COMPARE(preview().accessibleDescription(), u"X 200, Y 50, at LoadingButtonGo"_s);
    QTest::keyPress(&preview(), Qt::Key_Shift, Qt::ControlModifier);
    QTRY_COMPARE(preview().accessibleDescription(), u"X 198, Y 50"_s);
    QTest::keyRelease(&preview(), Qt::Key_Shift, Qt::ControlModifier);  // both
    QTRY_COMPARE(preview().accessibleDescription(), u"X 200, Y 52, at LoadingButtonGo and LoadingTextFree"_s);
    compareSettled(u"at two guides.png"_s, preview());
    QTest::mouseRelease(&preview(), Qt::LeftButton, Qt::ControlModifier, Inside + QPoint(158, 5));
    QCOMPARE(newLines(file).join(u' '), u"X=200"_s);
    // Several meet them as one.
    program->form.session().toggleMember(u"LoadingButtonLast"_s);
    QTest::mousePress(&preview(), Qt::LeftButton, {}, Inside + QPoint(160, 0));
    moveMouse(preview(), Inside - QPoint(38, 0), Qt::LeftButton, Qt::ControlModifier);
    QTRY_COMPARE(preview().accessibleDescription(), u"X 0, Y 50 and 1 more, at the picture"_s);
    QTest::keyClick(&preview(), Qt::Key_Escape);
    program->form.session().endGroup();
    // A text of a button, by the name that it has in the list.
    const auto text = mainwindows::drawnPlace(program->form, u"LoadingButtonGoText1"_s);
    QVERIFY(text);
    const QRect mark = preview().markRect();
    const QPoint by(text->left() - mark.left() + 1, 0);
    QTest::mousePress(&preview(), Qt::LeftButton, {}, mark.center());
    moveMouse(preview(), mark.center() + by, Qt::LeftButton, Qt::ControlModifier);
    QTRY_VERIFY2(preview().accessibleDescription().endsWith(u", at LoadingButtonGoText1"),
                 qPrintable(preview().accessibleDescription()));
    QTest::keyClick(&preview(), Qt::Key_Escape);
  }
};

QTEST_MAIN(GroupHandTest)
#include "group_hand_test.moc"
