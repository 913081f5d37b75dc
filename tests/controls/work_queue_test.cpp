#include "controls/work_queue.h"

#include <QScopeGuard>
#include <QTest>
#include <QTimer>

#include "controls/frame_pacer.h"

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
    const auto leave = qScopeGuard([this] { --depth; });
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

/// What comes of a work begun and the wishes at a moment of it.
QString logOf(const QString& begun, int at = 0, const QString& wishes = {}) {
  Bench bench;
  bench.wishAt = at;
  bench.wish = [&] { bench.wishFor(wishes); };
  bench.wishFor(begun);
  QCoreApplication::processEvents();
  return bench.log + (bench.nested ? u" nested"_s : QString()) + (bench.queue.Busy() ? u" busy"_s : QString());
}

}  // namespace

class WorkQueueTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void wishesDuringWork() {
    QCOMPARE(logOf(u"c"_s), u"c...Cd...D"_s);
    QCOMPARE(logOf(u"d"_s, 2, u"d"_s), u"d.d...D"_s);
    QCOMPARE(logOf(u"c"_s, 2, u"d"_s), u"c...Cd...D"_s);  // the draw is the one that follows
    QCOMPARE(logOf(u"c"_s, 2, u"c"_s), u"c.c...Cd...D"_s);
    QCOMPARE(logOf(u"d"_s, 2, u"c"_s), u"d.c...Cd...D"_s);
    QCOMPARE(logOf(u"c"_s, 6, u"c"_s), u"c...Cdc...Cd...D"_s);
    // A choice outranks a draw before and behind it.
    QCOMPARE(logOf(u"d"_s, 2, u"dc"_s), u"d.c...Cd...D"_s);
    QCOMPARE(logOf(u"d"_s, 2, u"cd"_s), u"d.c...Cd...D"_s);
    // A command waits for the work; to leave gives it up, and takes it up again unless it is forgotten.
    QCOMPARE(logOf(u"d"_s, 2, u"x"_s), u"d...Dx"_s);
    QCOMPARE(logOf(u"c"_s, 2, u"x"_s), u"c...Cd...Dx"_s);
    QCOMPARE(logOf(u"d"_s, 2, u"l"_s), u"d.xd...D"_s);
    QCOMPARE(logOf(u"c"_s, 2, u"l"_s), u"c.xc...Cd...D"_s);
    QCOMPARE(logOf(u"c"_s, 6, u"l"_s), u"c...Cdxd...D"_s);
    QCOMPARE(logOf(u"c"_s, 2, u"f"_s), u"c.x"_s);
    QCOMPARE(logOf(u"d"_s, 2, u"n"_s), u"d...Dxd...DXx"_s);
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
    // Work that never rests is shown all the same.
    for (const QDeadlineTimer end(5000); shown.size() < frames + 4 && !end.hasExpired();) {
      pacer.Request();
      QCoreApplication::processEvents();
    }
    QCOMPARE(shown.size(), frames + 4);
  }
};

QTEST_MAIN(WorkQueueTest)
#include "work_queue_test.moc"
