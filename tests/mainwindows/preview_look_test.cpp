#include <QApplication>

#include "support/hand.h"
#include "support/picture_results.h"

using namespace support;

/// What is told of the preview at rest: what a click takes, what lies outside, and the loupe.
class PreviewLookTest : public HandTest {
  Q_OBJECT

 private Q_SLOTS:
  /// At rest the pointer names what a click would take; what goes on then takes the name away.
  void pointerAtRestNames() {
    put("W", "400");
    put("H", "300");
    program->form.queue().draw();
    const std::tuple<QPoint, bool, QString> rows[] = {{{370, 250}, false, u"LoadingButtonGo, 1 more below"_s},
                                                      {{370, 250}, true, u"LoadingStaticA"_s},
                                                      {{410, 110}, false, u"LoadingTextFree, 1 more below"_s},
                                                      {{700, 500}, false, QString()}};
    for (const auto& [place, clicked, name] : rows) {
      if (clicked) QTest::mouseClick(&preview(), Qt::LeftButton, {}, place);
      moveMouse(preview(), place + QPoint(1, 0), Qt::NoButton);
      QCOMPARE(preview().accessibleDescription(), QString());
      QTest::qWait(600);
      QCOMPARE(preview().accessibleDescription(), name);
    }
    moveMouse(preview(), {340, 320}, Qt::NoButton);
    QTRY_COMPARE(preview().accessibleDescription(), u"LoadingButtonLast, 1 more below"_s);
    program->form.queue().draw();
    QCOMPARE(preview().accessibleDescription(), QString());
    moveMouse(preview(), {341, 320}, Qt::NoButton);
    QTRY_VERIFY(!preview().accessibleDescription().isEmpty());
    takeMouseAway(preview());
    QCOMPARE(preview().accessibleDescription(), QString());
    QTRY_VERIFY(program->isPainted());
    // The start picture has nothing to size.
    program->tag(u"LoadingTextLater"_s);
    program->tag(u"LoadingStaticA"_s);
    moveMouse(preview(), {42, 52}, Qt::NoButton);
    QVERIFY(preview().cursor().shape() != Qt::ArrowCursor);
    program->click(3);
    QCOMPARE(preview().cursor().shape(), Qt::ArrowCursor);
  }

  /// An object out of sight says where it is, and comes back by the keys.
  void outOfSight() {
    put("X", "-105");
    program->form.queue().draw();
    program->tag(u"LoadingStaticA"_s);
    QCOMPARE(program->status(), u"LoadingStaticA lies outside the picture, at X = -105, Y = 50"_s);
    program->tag(u"LoadingButtonGo"_s);
    QCOMPARE(program->status(), QString());
    program->tag(u"LoadingStaticA"_s);
    QTest::keyClick(&preview(), Qt::Key_Right, Qt::ShiftModifier);
    program->form.session().settle();
    QCOMPARE(program->value(u"X"_s), u"-95"_s);
    program->tag(u"LoadingButtonGo"_s);
    program->tag(u"LoadingStaticA"_s);
    QVERIFY2(!program->status().contains(u"outside"), qPrintable(program->status()));
  }

  void loupe() {
    QWidget& form = program->form;
    QTest::keyClick(&form, Qt::Key_F7);
    auto& loupe = *named<QWidget>(form, "Loupe");
    QVERIFY(loupe.isVisible() && QApplication::activeWindow() != &loupe);
    moveMouse(preview(), {41, 51}, Qt::NoButton);
    QCOMPARE(loupe.accessibleDescription(), u"X 41, Y 51   50 78 139   4 x"_s);
    compareSettled(u"loupe.png"_s, loupe);
    for (int press = 0; press < 2; ++press) QTest::keyClick(&form, Qt::Key_F7, Qt::ShiftModifier);
    moveMouse(preview(), {799, 0}, Qt::NoButton);
    compareSettled(u"loupe at the corner.png"_s, loupe);
    program->tag(u"LoadingStaticA"_s);
    QTest::keyPress(&preview(), Qt::Key_Right);
    QTRY_VERIFY(loupe.accessibleDescription().startsWith(u"X 41, Y 50 "));
    QTest::keyRelease(&preview(), Qt::Key_Right);
    QTest::keyClick(&form, Qt::Key_F7);
    QVERIFY(!loupe.isVisible());
    // Opened away from the pointer it shows the mark, and what is drawn there anew.
    QTest::keyClick(&form, Qt::Key_F7, Qt::ShiftModifier);
    QVERIFY2(loupe.accessibleDescription().startsWith(u"X 41, Y 50 "), qPrintable(loupe.accessibleDescription()));
    const QString before = loupe.accessibleDescription();
    program->form.session().settle();
    put("X", "300");
    program->form.queue().draw();
    QVERIFY(loupe.accessibleDescription() != before);
    hold({310, 60}, {30, 20});
    for (const auto keys : {Qt::ShiftModifier, Qt::NoModifier}) QTest::keyClick(&form, Qt::Key_F7, keys);
    drop({340, 80});
    QVERIFY(program->status().startsWith(u"LoadingStaticA: X = 330, Y = 70"));
  }
};

QTEST_MAIN(PreviewLookTest)
#include "preview_look_test.moc"
