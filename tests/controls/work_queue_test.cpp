#include "controls/work_queue.h"

#include <QTest>
#include <QTimer>

using controls::WorkQueue;

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

  /// Makes the wish served by the first yield after so many letters of the log.
  void at(int letters, std::function<void()> served) {
    wishAt = letters;
    wish = std::move(served);
  }

  WorkQueue queue;
  QString log;
  int depth = 0;
  bool nested = false;
  int wishAt = 0;
  std::function<void()> wish;
};

using Act = void (*)(Bench& bench);
void choose(Bench& bench) {
  bench.queue.Choose();
}
void draw(Bench& bench) {
  bench.queue.Draw();
}
void drawThenChoose(Bench& bench) {
  draw(bench), choose(bench);
}
void chooseThenDraw(Bench& bench) {
  choose(bench), draw(bench);
}
void command(Bench& bench) {
  bench.queue.RunOutside([&bench] { bench.log += bench.queue.Busy() ? u'!' : u'x'; });
}
void leave(Bench& bench) {
  bench.queue.RunOutside([&bench] { bench.log += bench.queue.Busy() ? u'!' : u'x'; }, true);
}
void leaveForGood(Bench& bench) {
  leave(bench);
  bench.queue.RunOutside([&bench] { bench.queue.Forget(); });
}
void commandThatDraws(Bench& bench) {
  bench.queue.RunOutside([&bench] {
    bench.log += u'x';
    draw(bench), command(bench);
    bench.log += u'X';
  });
}

}  // namespace

Q_DECLARE_METATYPE(Act)

class WorkQueueTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void wishesDuringWork_data() {
    QTest::addColumn<Act>("begun");
    QTest::addColumn<int>("at");
    QTest::addColumn<Act>("wish");
    QTest::addColumn<QString>("log");
    const auto row = [](const char* name, Act begun, int at, Act wish, const char* log) {
      QTest::newRow(name) << begun << at << wish << QString::fromLatin1(log);
    };
    row("undisturbed", choose, 99, draw, "c...Cd...D");
    row("draw in a draw begins anew", draw, 2, draw, "d.d...D");
    row("draw in a choice is the one that follows", choose, 2, draw, "c...Cd...D");
    row("choice in a choice", choose, 2, choose, "c.c...Cd...D");
    row("choice in a draw", draw, 2, choose, "d.c...Cd...D");
    row("choice in the draw of a choice", choose, 6, choose, "c...Cdc...Cd...D");
    row("choice outranks a draw before it", draw, 2, drawThenChoose, "d.c...Cd...D");
    row("choice outranks a draw behind it", draw, 2, chooseThenDraw, "d.c...Cd...D");
    row("command waits", draw, 2, command, "d...Dx");
    row("command waits for choice and draw", choose, 2, command, "c...Cd...Dx");
    row("leaving gives up and takes up again", draw, 2, leave, "d.xd...D");
    row("leaving a choice", choose, 2, leave, "c.xc...Cd...D");
    row("leaving the draw of a choice", choose, 6, leave, "c...Cdxd...D");
    row("leaving for good", choose, 2, leaveForGood, "c.x");
    row("draw and command inside a command", draw, 2, commandThatDraws, "d...Dxd...DXx");
  }
  void wishesDuringWork() {
    QFETCH(Act, begun);
    QFETCH(int, at);
    QFETCH(Act, wish);
    Bench bench;
    bench.at(at, [&bench, wish] { wish(bench); });
    begun(bench);
    QCoreApplication::processEvents();
    QTEST(bench.log, "log");
    QVERIFY(!bench.nested);
    QVERIFY(!bench.queue.Busy());
  }
};

QTEST_MAIN(WorkQueueTest)
#include "work_queue_test.moc"
