#include "support/re_entry.h"

#include <QTest>

using namespace support;
using platform::BoxAnswer;

/// The user's wishes; `tag` is the object to pick, and when empty takes the last one that is listed. A wish that has no
/// meaning at the moment leaves Dropped there, and must come to nothing.
using Wishes = void (*)(Program& program, QString& tag);

namespace {

const QString Dropped = u"dropped"_s;

void pick(Program& program, QString& tag) {
  controls::ListBox& list = *program.tools().List1;
  if (tag.isEmpty()) tag = list.List(list.ListCount() - 1);
  {
    const QSignalBlocker quiet(list);
    program.tag(tag);
  }
  Q_EMIT list.Click(controls::Cause::User);
}

void pickAndUpdate(Program& program, QString& tag) {
  if (tag == Dropped || program.tools().List1->ListIndex() < 0) {
    tag = Dropped;  // the list is still filling
    return;
  }
  pick(program, tag);
  if (program.value(u"X"_s) != u"no row") program.change(u"X"_s, u"99"_s);
}

void anotherButton(Program& program, QString& tag) {
  if (tag == Dropped) return;
  if (!program.state.ButtonListFilled) tag = Dropped;  // the list is that of the screen before
  choose(*program.form.Combo2, 1);
}

struct Run {
  QVariantMap outcome;
  QString tag;
  bool reached;
};

/// Draws the screen, or chooses it anew, and has the wishes come at the k-th yield of that, or behind it (k = 0).
Run run(Wishes wishes, bool saved, bool choice, int k, const QString& tag) {
  const GameFolder game;
  Program program(game);
  program.open();
  program.edit();
  if (saved) program.click(2);
  program.row(u"Y"_s);
  program.dialogs.boxes = {BoxAnswer::Yes};
  Run result{{}, tag, k == 0};
  QObject life;
  int yields = 0;
  QObject::connect(&program.form.Queue, &controls::WorkQueue::Yielding, &life, [&] {
    if (++yields != k) return;
    result.reached = true;
    QMetaObject::invokeMethod(
        &life, [&] { wishes(program, result.tag); }, Qt::QueuedConnection);
  });
  choice ? program.screen(u"Loading Screen"_s) : program.form.Queue.Draw();
  if (k == 0) wishes(program, result.tag);
  settle();
  result.outcome = outcome(program, game);
  return result;
}

}  // namespace

class ReEntryTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void wishes_data() {
    QTest::addColumn<Wishes>("wishes");
    QTest::addColumn<bool>("saved");
    const auto add = [](const char* name, Wishes wishes, bool saved = false) {
      QTest::newRow(name) << wishes << saved;
    };
    const Wishes close = [](Program& p, QString&) { p.click(3); };
    add("another screen", [](Program& p, QString&) { p.screen(u"Main Screen"_s); });
    add("another screen and back", [](Program& p, QString&) {
      p.screen(u"Main Screen"_s);
      p.screen(u"Loading Screen"_s);
    });
    add("another tag", pick);
    add("Update", [](Program& p, QString&) { p.update(u"88"_s); });
    add("another tag, Update", pickAndUpdate);
    add("Update, another screen", [](Program& p, QString&) {
      p.update(u"88"_s);
      p.screen(u"Main Screen"_s);
    });
    add("Save", [](Program& p, QString&) { p.click(2); });
    add("another button", anotherButton);
    add("another scheme", [](Program& p, QString&) { choose(*p.form.Combo1, 3); });
    add("a background colour", [](Program& p, QString&) {
      p.dialogs.colors = {QColor(1, 2, 3)};
      p.click(4);
    });
    add("Close with changes", close);
    add("Close", close, true);
    add("Close, No", [](Program& p, QString&) {
      p.dialogs.boxes = {BoxAnswer::No};
      p.click(3);
    });
    add("the window's end", [](Program& p, QString&) { p.form.close(); });
  }
  /// At whatever yield wishes come, they leave what they leave behind the work.
  void wishes() {
    QFETCH(Wishes, wishes);
    QFETCH(bool, saved);
    for (const bool choice : {false, true}) {
      QMap<QString, QVariantMap> behind;
      int k = 1;
      for (;; ++k) {
        const Run between = run(wishes, saved, choice, k, {});
        if (!between.reached) break;
        if (!behind.contains(between.tag)) behind[between.tag] = run(wishes, saved, choice, 0, between.tag).outcome;
        const QVariantMap& expected = behind[between.tag];
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
