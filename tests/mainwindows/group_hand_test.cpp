#include "mainwindows/arranging.h"
#include "support/hand.h"

using namespace support;

const QPoint Inside(50, 60);  // of LoadingStaticA

/// Several objects in the hand, their arranging, and the guides that a drag meets.
class GroupHandTest : public HandTest {
  Q_OBJECT

 private:
  /// LoadingStaticA, and with it the two buttons and a text of one.
  void group() const {
    program->tag(u"LoadingStaticA"_s);
    for (const QPoint& place : {QPoint(340, 320), QPoint(370, 250), QPoint(340, 230)}) {
      QTest::mouseClick(&preview(), Qt::LeftButton, Qt::ShiftModifier, place);
    }
  }

 private Q_SLOTS:
  /// Several objects are moved as one, and what can't be moved stays and says why.
  void several() {
    group();
    const QStringList members = program->form.session().members();
    QCOMPARE(members.join(u' '), u"LoadingButtonLast LoadingButtonGo LoadingButtonGoText1"_s);
    const QByteArray file = game->get(ThemeCopy);
    drag({340, 320}, {40, 25});
    QCOMPARE(newLines(file).join(u' '), u"X=340 Y=225 X=340 Y=325 X=80 Y=75"_s);
    QCOMPARE(program->status(),
             u"LoadingStaticA: X = 80, Y = 75; LoadingButtonLast: X = 340, Y = 325; "
             "LoadingButtonGo: X = 340, Y = 225"_s);
    QTest::keyClick(&preview(), Qt::Key_Left, Qt::ShiftModifier);
    program->form.session().settle();
    QCOMPARE(newLines(file).join(u' '), u"X=330 Y=225 X=330 Y=325 X=70 Y=75"_s);
    put("Y", "-1");
    const QByteArray before = game->get(ThemeCopy);
    hold({370, 345}, {-10, 0});
    QTRY_COMPARE(preview().accessibleDescription(), u"X 320, Y 325 and 1 more"_s);
    QTest::keyClick(&preview(), Qt::Key_Escape);
    drop({360, 345});
    QCOMPARE(game->get(ThemeCopy), before);
    hold({370, 345}, {-10, 0});
    const QByteArray without = game->get(ThemeCopy).replace("[LoadingButtonGo]", "[Elsewhere]");
    game->put(ThemeCopy, without);
    drop({360, 345});
    QCOMPARE(newLines(without).join(u' '), u"X=320"_s);
    QVERIFY(program->status().contains(u"LoadingStaticA stays as it is [Y is -1]"));
    QVERIFY(program->status().contains(u"LoadingButtonGo stays as it is [its section is gone]"));
    QCOMPARE(program->form.session().members(), members);
    QTest::keyClick(&preview(), Qt::Key_Escape);
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
    QTest::keyClick(&list, Qt::Key_Escape);
    QCOMPARE(program->form.session().members(), QStringList());
  }

  void arrangements() {
    using mainwindows::Arrangement;
    const std::pair<Arrangement, QString> rows[] = {
        {Arrangement::LeftEdges, u"X=40 X=40"_s},   {Arrangement::CentresAcross, u"X=50 X=50"_s},
        {Arrangement::RightEdges, u"X=60 X=60"_s},  {Arrangement::UpperEdges, u"Y=50 Y=50"_s},
        {Arrangement::CentresDown, u"Y=50 Y=60"_s}, {Arrangement::LowerEdges, u"Y=50 Y=70"_s},
        {Arrangement::GapsAcross, u"X=180"_s},      {Arrangement::GapsDown, u"Y=175"_s},
        {Arrangement::Widths, u"W=100 W=100"_s},    {Arrangement::Heights, u"H=60"_s}};
    for (const auto& [arrangement, lines] : rows) {
      program = nullptr;
      init();
      group();
      program->form.session().toggleMember(u"LoadingButtonGoText1"_s);
      const QByteArray file = game->get(ThemeCopy);
      mainwindows::arrange(program->form, arrangement);
      QCOMPARE(newLines(file).join(u' '), lines);
    }
    program->form.session().endGroup();
    program->form.session().toggleMember(u"LoadingTextFree"_s);
    const QByteArray file = game->get(ThemeCopy);
    for (const auto& [arrangement, told] :
         {std::pair{Arrangement::Widths, u"LoadingTextFree stays as it is [a text can't be sized]"_s},
          {Arrangement::GapsDown, u"All stays as it is [equal gaps need three objects]"_s}}) {
      mainwindows::arrange(program->form, arrangement);
      QCOMPARE(program->status(), told);
    }
    QCOMPARE(game->get(ThemeCopy), file);
  }

  void guides() {
    program->tag(u"LoadingStaticA"_s);
    const QByteArray file = game->get(ThemeCopy);
    QTest::mousePress(&preview(), Qt::LeftButton, {}, Inside);
    moveMouse(preview(), Inside + QPoint(158, 5), Qt::LeftButton, Qt::ControlModifier);
    QTRY_COMPARE(preview().accessibleDescription(), u"X 200, Y 50, at LoadingButtonGo"_s);
    QTest::mouseRelease(&preview(), Qt::LeftButton, Qt::ControlModifier, Inside + QPoint(158, 5));
    QCOMPARE(newLines(file).join(u' '), u"X=200"_s);
  }
};

QTEST_MAIN(GroupHandTest)
#include "group_hand_test.moc"
