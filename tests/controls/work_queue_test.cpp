#include "controls/work_queue.h"

#include <QTest>
#include <QTimer>

#include "controls/frame_pacer.h"
#include "support/row_name.h"

using controls::WorkQueue;
using namespace Qt::StringLiterals;

namespace {

/// A choice and a drawing that log what they do: "c" and "d" begin, "." is a yield survived, "C" and "D" an end.
struct Bench {
  static constexpr int Yields = 3;

  Bench() {
    queue.SetWorks([this] { run(u'c'); }, [this] { run(u'd'); });
  }

  void run(QChar name) {
    if (++depth > 1) nested = true;
    struct Leave {
      int& depth;
      ~Leave() { --depth; }
    } leave{depth};
    log += name;
    for (int i = 0; i < Yields; ++i) {
      if (wish && log.size() >= wishAt) QTimer::singleShot(0, &queue, std::exchange(wish, nullptr));
      queue.Yield();
      log += u'.';
    }
    log += name.toUpper();
  }

  /// The wishes of these letters, as they come: a choice, a draw, a command, the ways to leave.
  void wishFor(QStringView letters) {
    const auto command = [this] { log += queue.Busy() ? u'!' : u'x'; };
    for (const QChar letter : letters) {
      if (letter == u'c') queue.Choose();
      if (letter == u'd') queue.Draw();
      if (letter == u'x') queue.RunOutside(command);
      if (letter == u'l' || letter == u'f') queue.RunOutside(command, true);
      if (letter == u'f') queue.RunOutside([this] { queue.Forget(); });
      if (letter == u'n') queue.RunOutside([this] { log += u'x', wishFor(u"dx"), log += u'X'; });
    }
  }

  WorkQueue queue;
  QString log;
  int depth = 0;
  bool nested = false;
  int wishAt = 0;  ///< the wish is served by the first yield after so many letters of the log
  std::function<void()> wish;
};

}  // namespace

class WorkQueueTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void wishesDuringWork() {
    const struct {
      const char* name;
      QString begun;
      int at;
      QString wishes, log;
    } rows[] = {
        {"undisturbed", u"c"_s, 0, {}, u"c...Cd...D"_s},
        {"draw in a draw begins anew", u"d"_s, 2, u"d"_s, u"d.d...D"_s},
        {"draw in a choice is the one that follows", u"c"_s, 2, u"d"_s, u"c...Cd...D"_s},
        {"choice in a choice", u"c"_s, 2, u"c"_s, u"c.c...Cd...D"_s},
        {"choice in a draw", u"d"_s, 2, u"c"_s, u"d.c...Cd...D"_s},
        {"choice in the draw of a choice", u"c"_s, 6, u"c"_s, u"c...Cdc...Cd...D"_s},
        {"choice outranks a draw before it", u"d"_s, 2, u"dc"_s, u"d.c...Cd...D"_s},
        {"choice outranks a draw behind it", u"d"_s, 2, u"cd"_s, u"d.c...Cd...D"_s},
        {"command waits", u"d"_s, 2, u"x"_s, u"d...Dx"_s},
        {"command waits for choice and draw", u"c"_s, 2, u"x"_s, u"c...Cd...Dx"_s},
        {"leaving gives up and takes up again", u"d"_s, 2, u"l"_s, u"d.xd...D"_s},
        {"leaving a choice", u"c"_s, 2, u"l"_s, u"c.xc...Cd...D"_s},
        {"leaving the draw of a choice", u"c"_s, 6, u"l"_s, u"c...Cdxd...D"_s},
        {"leaving for good", u"c"_s, 2, u"f"_s, u"c.x"_s},
        {"draw and command inside a command", u"d"_s, 2, u"n"_s, u"d...Dxd...DXx"_s},
    };
    for (const auto& row : rows) {
      const support::RowName name(row.name);
      Bench bench;
      bench.wishAt = row.at;
      bench.wish = [&] { bench.wishFor(row.wishes); };
      bench.wishFor(row.begun);
      QCoreApplication::processEvents();
      QCOMPARE(bench.log, row.log);
      QVERIFY(!bench.nested);
      QVERIFY(!bench.queue.Busy());
    }
  }

  void aBurstShowsItsFirstStepAtOnceAndItsLastInTheNextFrame() {
    int step = 0;
    QList<int> shown;
    controls::FramePacer pacer([&] { shown << step; });
    while (++step <= 100) pacer.Request();
    QCOMPARE(shown.first(), 1);
    QTRY_VERIFY(shown.last() > 100);
    QTest::qWait(50);
    const auto frames = shown.size();
    QVERIFY(frames < 100);
    pacer.Request();
    QCOMPARE(shown.size(), frames + 1);
  }
};

QTEST_MAIN(WorkQueueTest)
#include "work_queue_test.moc"
