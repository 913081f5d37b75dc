#include "support/re_entry.h"

#include <QTest>

using namespace support;
using platform::BoxAnswer;

/// A user's wish. One that has no meaning at the moment clears `allowed`, and nothing may come of it.
using Wish = void (*)(Program& program, bool& allowed);

namespace {

void pick(Program& program, bool& allowed) {
  controls::ListBox& list = *program.tools().List1;
  const QString tag = u"LoadingTextFree"_s;
  allowed = !list.findItems(tag, Qt::MatchExactly).isEmpty();  // else the list is still filling
  if (!allowed) return;
  {
    const QSignalBlocker quiet(list);
    program.tag(tag);
  }
  Q_EMIT list.Click(controls::Cause::User);
}

void pickAndUpdate(Program& program, bool& allowed) {
  allowed = program.tools().List1->ListIndex() >= 0;
  if (allowed) pick(program, allowed);
  if (allowed) program.change(u"X"_s, u"99"_s);
}

void anotherButton(Program& program, bool& allowed) {
  allowed = program.state.ButtonListFilled;  // else the list is that of the screen before
  choose(*program.form.Combo2, 1);
}

struct Run {
  QVariantMap outcome;
  bool allowed = true;
  bool reached = false;
};

/// Draws the screen, or chooses it anew, and has the wish come at the k-th yield of that, or behind it (k = 0).
Run run(Wish wish, bool saved, bool choice, int k) {
  const GameFolder game;
  Program program(game);
  program.open();
  program.edit();
  if (saved) program.click(2);
  program.row(u"Y"_s);
  program.dialogs.boxes = {BoxAnswer::Yes};
  Run result;
  QObject life;
  int yields = 0;
  const auto make = [&] { wish(program, result.allowed); };
  QObject::connect(&program.form.Queue, &controls::WorkQueue::Yielding, &life, [&] {
    if (++yields != k) return;
    result.reached = true;
    QMetaObject::invokeMethod(&life, make, Qt::QueuedConnection);
  });
  choice ? program.screen(u"Loading Screen"_s) : program.form.Queue.Draw();
  if (k == 0) make();
  settle();
  result.outcome = outcome(program, game);
  return result;
}

}  // namespace

class ReEntryTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void wishes_data() {
    QTest::addColumn<Wish>("wish");
    QTest::addColumn<bool>("saved");
    const auto add = [](const char* name, Wish wish, bool saved = false) { QTest::newRow(name) << wish << saved; };
    const Wish close = [](Program& p, bool&) { p.click(3); };
    add("another screen", [](Program& p, bool&) { p.screen(u"Main Screen"_s); });
    add("another screen and back", [](Program& p, bool&) {
      p.screen(u"Main Screen"_s);
      p.screen(u"Loading Screen"_s);
    });
    add("another tag", pick);
    add("Update", [](Program& p, bool&) { p.update(u"88"_s); });
    add("another tag, Update", pickAndUpdate);
    add("Update, another screen", [](Program& p, bool&) {
      p.update(u"88"_s);
      p.screen(u"Main Screen"_s);
    });
    add("Save", [](Program& p, bool&) { p.click(2); });
    add("another button", anotherButton);
    add("another scheme", [](Program& p, bool&) { choose(*p.form.Combo1, 3); });
    add("a background colour", [](Program& p, bool&) {
      p.dialogs.colors = {QColor(1, 2, 3)};
      p.click(4);
    });
    add("Close with changes", close);
    add("Close", close, true);
    add("Close, No", [](Program& p, bool&) {
      p.dialogs.boxes = {BoxAnswer::No};
      p.click(3);
    });
    add("the window's end", [](Program& p, bool&) { p.form.close(); });
  }
  /// At whatever yield a wish comes, it leaves what it leaves behind the work.
  void wishes() {
    QFETCH(Wish, wish);
    QFETCH(bool, saved);
    const Wish none = [](Program&, bool&) {};
    for (const bool choice : {false, true}) {
      const QVariantMap behind = run(wish, saved, choice, 0).outcome;
      const QVariantMap untouched = run(none, saved, choice, 0).outcome;
      int k = 1;
      for (;; ++k) {
        const Run between = run(wish, saved, choice, k);
        if (!between.reached) break;
        const QVariantMap& expected = between.allowed ? behind : untouched;
        QCOMPARE(between.outcome.keys(), expected.keys());
        for (const auto& [name, value] : between.outcome.asKeyValueRange()) {
          if (value == expected[name]) continue;
          qWarning() << value << "instead of" << expected[name];
          QFAIL(qPrintable(u"%1 at yield %2, choice %3"_s.arg(name).arg(k).arg(choice)));
        }
      }
      QVERIFY(k > (choice ? 15 : 10));
    }
  }
};

QTEST_MAIN(ReEntryTest)
#include "re_entry_test.moc"
