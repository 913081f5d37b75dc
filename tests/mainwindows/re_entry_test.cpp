#include "support/re_entry.h"

#include <QTest>

using namespace Qt::StringLiterals;
using controls::Cause;
using platform::BoxAnswer;
using support::choose;
using support::GameFolder;
using support::outcome;
using support::Program;

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
  Q_EMIT list.Click(Cause::User);
}

void update(Program& program, const char* text) {
  program.tools().Text1->SetText(QLatin1StringView(text));
  program.tools().Command1->click();
}

}  // namespace

class ReEntryTest : public QObject {
  Q_OBJECT

 private:
  struct Run {
    QVariantMap outcome;
    QString tag;
    bool reached = false;
  };

  /// Draws the screen, or chooses it anew, and has the wishes come at the k-th yield of that, or behind it (k = 0).
  Run run(Wishes wishes, bool saved, bool choice, int k, const QString& tag) {
    const GameFolder game;
    Program program(game);
    program.open();
    program.tag(u"LoadingStaticA"_s);
    program.row(u"X"_s);
    update(program, "77");
    if (saved) program.click(2);
    program.row(u"Y"_s);
    program.dialogs.boxes = {BoxAnswer::Yes};
    Run result{{}, tag, k == 0};
    QObject life;
    int yields = 0;
    connect(&program.form.Queue, &controls::WorkQueue::Yielding, &life, [&] {
      if (++yields != k) return;
      result.reached = true;
      QMetaObject::invokeMethod(
          &life, [&] { wishes(program, result.tag); }, Qt::QueuedConnection);
    });
    choice ? program.screen(u"Loading Screen"_s) : program.form.Queue.Draw();
    if (k == 0) wishes(program, result.tag);
    support::settle();
    result.outcome = outcome(program, game);
    return result;
  }

 private Q_SLOTS:
  void wishes_data() {
    QTest::addColumn<Wishes>("wishes");
    QTest::addColumn<bool>("saved");
    const auto add = [](const char* name, Wishes wishes, bool saved = false) {
      QTest::newRow(name) << wishes << saved;
    };
    add("another screen", [](Program& p, QString&) { p.screen(u"Main Screen"_s); });
    add("another screen and back", [](Program& p, QString&) {
      p.screen(u"Main Screen"_s);
      p.screen(u"Loading Screen"_s);
    });
    add("another tag", pick);
    add("Update", [](Program& p, QString&) { update(p, "88"); });
    add("another tag, Update", [](Program& p, QString& tag) {
      if (tag == Dropped || p.tools().List1->ListIndex() < 0) {
        tag = Dropped;  // the list is still filling
        return;
      }
      pick(p, tag);
      if (p.value(u"X"_s) == u"no row") return;
      p.row(u"X"_s);
      update(p, "99");
    });
    add("Update, another screen", [](Program& p, QString&) {
      update(p, "88");
      p.screen(u"Main Screen"_s);
    });
    add("Save", [](Program& p, QString&) { p.click(2); });
    add("another button", [](Program& p, QString& tag) {
      if (tag == Dropped) return;
      if (!p.state.ButtonListFilled) tag = Dropped;  // the list is that of the screen before
      choose(*p.form.Combo2, 1);
    });
    add("another scheme", [](Program& p, QString&) { choose(*p.form.Combo1, 3); });
    add("a background colour", [](Program& p, QString&) {
      p.dialogs.colors = {QColor(1, 2, 3)};
      p.click(4);
    });
    add("Close with changes", [](Program& p, QString&) { p.click(3); });
    add(
        "Close", [](Program& p, QString&) { p.click(3); }, true);
    add("Close, No", [](Program& p, QString&) {
      p.dialogs.boxes = {BoxAnswer::No};
      p.click(3);
    });
    add("the window's end", [](Program& p, QString&) { p.form.close(); });
  }
  void wishes() {
    QFETCH(Wishes, wishes);
    QFETCH(bool, saved);
    for (const bool choice : {false, true}) {
      QMap<QString, QVariantMap> oneAfterAnother;
      int k = 1;
      for (;; ++k) {
        const Run between = run(wishes, saved, choice, k, {});
        if (!between.reached) break;
        if (!oneAfterAnother.contains(between.tag)) {
          oneAfterAnother[between.tag] = run(wishes, saved, choice, 0, between.tag).outcome;
        }
        const QVariantMap& expected = oneAfterAnother[between.tag];
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
