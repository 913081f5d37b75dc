#include "mainwindows/arranging.h"

#include "support/group.h"

using namespace support;

/// How several objects are brought to the first one, or to equal gaps.
class ArrangingTest : public GroupTest {
  Q_OBJECT

 private Q_SLOTS:
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
      QVERIFY(program->status() == told && game->get(ThemeCopy) == file);
    }
    program->tag(u"LoadingTextFree"_s);
    program->change(u"X"_s, u"900"_s);
    program->form.session().toggleMember(u"LoadingStaticA"_s);
    mainwindows::arrange(program->form, Arrangement::Widths);
    QCOMPARE(program->status(), u"LoadingTextFree stays as it is [it isn't drawn]"_s);
    // Odd sizes, one whose left edge comes before that of one that lies further left, and a text beside its own button.
    for (const auto& [arrangement, names, lines] :
         {std::tuple{Arrangement::RightEdges, u"StaticA StaticB ButtonWide"_s, u"X=50 X=19"_s},
          {Arrangement::GapsAcross, u"StaticA StaticB ButtonWide ButtonWideText1"_s, u"X=12"_s},
          {Arrangement::GapsDown, u"ButtonGo ButtonGoText1 StaticA ButtonWide"_s, u"Y=275"_s},
          {Arrangement::LeftEdges, u"ButtonGoText1 ButtonGo StaticA"_s, u"X=310"_s},
          {Arrangement::LeftEdges, u"ButtonGo ButtonGoText1"_s, u"X=0"_s}}) {
      openCrowded();
      const QStringList group = names.split(u' ');
      program->tag(u"Loading"_s + group.front());
      for (const QString& name : group.mid(1)) program->form.session().toggleMember(u"Loading"_s + name);
      const QByteArray before = game->get(ThemeCopy);
      mainwindows::arrange(program->form, arrangement);
      QCOMPARE(newLines(before).join(u' '), lines);
    }
  }
};

QTEST_MAIN(ArrangingTest)
#include "arranging_test.moc"
