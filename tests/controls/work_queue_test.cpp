#include "controls/work_queue.h"

#include <QTest>
#include <QThread>
#include <QTimer>

#include "controls/frame_pacer.h"
#include "controls/idle_steps.h"
#include "support/results.h"

using controls::WorkQueue;
using namespace Qt::StringLiterals;

namespace {

/// A choice and a drawing that log what they do: "c" and "d" begin, "." is a yield survived, "C" and "D" an end.
struct Bench {
  Bench() {
    queue.setOperations({[this] { run(u'c'); }, [this] { run(u'd'); }});
  }

  void run(QChar name) {
    log += name;
    for (int i = 0; i < 3; ++i) {
      if (wish && log.size() >= wishAt) QTimer::singleShot(0, &queue, std::exchange(wish, nullptr));
      queue.yield();
      log += u'.';
    }
    log += name.toUpper();
  }

  /// The wishes of these letters, as they come: a choice, a draw, a command, the ways to leave.
  void wishFor(QStringView letters) {
    const auto command = [this] { log += queue.busy() ? u'!' : u'x'; };
    for (const QChar letter : letters) {
      if (letter == u'c') queue.choose();
      if (letter == u'd') queue.draw();
      if (letter == u'b') queue.runBehind([this] { log += u'b'; });
      if (letter == u'x') queue.runOutside(command);
      if (letter == u'l' || letter == u'f') queue.runOutside(command, controls::RunningWork::GivesWay);
      if (letter == u'f') queue.runOutside([this] { queue.forget(); });
      if (letter == u'n') {
        queue.runOutside([this] {
          log += u'x';
          wishFor(u"dx");
          log += u'X';
        });
      }
    }
  }

  WorkQueue queue;
  QString log;
  int wishAt = 0;  ///< the wish is served by the first yield after so many letters of the log
  std::function<void()> wish;
};

/// What comes of a work begun, the wishes at a moment of it, and those behind all.
QString logOf(const QString& begun, int at, const QString& wishes, const QString& late) {
  Bench bench;
  bench.wishAt = at;
  bench.wish = [&] { bench.wishFor(wishes); };
  bench.wishFor(begun);
  QCoreApplication::processEvents();
  bench.wishFor(late);
  return bench.log + (bench.queue.busy() ? u" busy"_s : QString());
}

}  // namespace

class WorkQueueTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void wishesDuringWork() {
    support::compareRows(u"wishes.txt"_s, [](const QString& row) {
      const QStringList given = row.split(u' ');
      return logOf(given[0], given.at(1).toInt(), given.at(2), given.value(3));
    });
  }

  /// Steps in idle time wait for the work that runs, and serve events after each hundredth of a second.
  void idleSteps() {
    Bench bench;
    int left = 40;
    controls::IdleSteps steps(bench.queue, [&] {
      bench.log += u's';
      QThread::msleep(1);
      return --left > 0;
    });
    QTimer events;
    events.callOnTimeout([&] { bench.log += u' '; });
    events.start(0);
    steps.begin();
    bench.queue.draw();
    QVERIFY2(!bench.log.contains(u's'), qPrintable(bench.log));
    QTRY_COMPARE(left, 0);
    for (const QString& part : bench.log.split(u' ')) QVERIFY2(part.size() < 15, qPrintable(part));
  }

  void aBurstShowsItsLastStepInTheNextFrame() {
    int step = 0;
    QList<int> shown;
    controls::FramePacer pacer([&] { shown << step; });
    while (++step < 100) pacer.request();
    QTRY_COMPARE(shown, QList<int>{100});
    // Work that never rests is shown all the same.
    for (const QDeadlineTimer end(5000); shown.size() < 40 && !end.hasExpired(); ++step) {
      pacer.request();
      QCoreApplication::processEvents();
    }
    QCOMPARE(shown.size(), 40);
    QVERIFY(step > 104);
  }
};

QTEST_MAIN(WorkQueueTest)
#include "work_queue_test.moc"
