#include <QTest>

#include "support/windows.h"

using controls::Cause;
using platform::BoxAnswer;
using support::GameFolder;
using support::Program;

/// The user's wishes; `tag` is the object to pick, and when empty takes the last one that is listed. A wish that has no
/// meaning at the moment leaves Dropped there, and must come to nothing.
using Wishes = void (*)(Program& program, QString& tag);

namespace {

const QString Dropped = QStringLiteral("dropped");

constexpr const char* Theme = R"([Colors]
Red=200 40 40
[Loading]
[LoadingButtonA]
Tex=Plate
X=300
Y=200
W=80
H=40
Color=ColorDark
DColor=Red
Type=Colorized
Texts=1
SelectH=60
[LoadingButtonAText1]
X=10
Y=5
Font=1
Size=9
[LoadingButtonB]
Tex=Plate
X=500
Y=200
W=80
H=40
Color=ColorDark
DColor=Red
Type=Colorized
[LoadingStaticB]
Tex=Plate
X=40
Y=50
W=100
H=60
Color=Red
[LoadingTextC]
X=400
Y=100
Font=0
Size=12
[LoadingTextD]
X=400
Y=150
Font=2
Size=18
[Main]
[MainStaticA]
Tex=Plate
X=10
Y=20
W=30
H=40
Color=ColorLight
[MainTextB]
X=200
Y=300
Font=1
Size=30
)";

void pick(Program& program, QString& tag) {
  controls::ListBox& list = *program.tools().List1;
  if (tag.isEmpty()) tag = list.List(list.ListCount() - 1);
  {
    const QSignalBlocker quiet(list);
    program.tag(tag);
  }
  Q_EMIT list.Click(Cause::User);
}

void choose(controls::ComboBox& list, int index) {
  if (list.isHidden() || list.ListCount() <= index) return;
  list.setCurrentIndex(index);
  Q_EMIT list.Click(Cause::User);
}

void update(Program& program, const char* text) {
  program.tools().Text1->SetText(QLatin1StringView(text));
  program.tools().Command1->click();
}

/// What must not depend on the moment of a wish. Of a theme that is gone only that it is.
QVariantMap outcome(Program& program, const GameFolder& game) {
  const mainwindows::Form1& form = program.form;
  const themefiles::ModuleState& state = program.state;
  QVariantMap all;
  const auto note = [&](const char* name, const QVariant& value) { all[QLatin1StringView(name)] = value; };
  note("opened", state.ThemeOpened);
  note("changed", state.Changed);
  note("shown", form.isVisible());
  note("busy", form.Queue.Busy() || form.ProgressBar1->isVisible());
  note("windows", form.findChildren<toolwindow::Form2*>().size());
  for (const auto& [name, bytes] : game.files().asKeyValueRange()) all[name] = bytes;
  if (!form.isVisible()) return all;
  note("scheme shown", form.Combo1->isVisible());
  note("buttons shown", form.Combo2->isVisible());
  note("mark shown", form.Workspace->MarkVisible());
  note("blinking", form.Workspace->Blinking());
  for (int button = 1; button <= 4; ++button) all[QString::number(button)] = program.enabled(button);
  note("picture", form.Workspace->Surface().image());
  if (!state.ThemeOpened || form.ToolWindow == nullptr) return all;
  QStringList lists;
  const toolwindow::Form2& tools = program.tools();
  for (int i = 0; i < tools.List1->ListCount(); ++i) lists += tools.List1->List(i);
  lists += QString::number(tools.List1->ListIndex());
  for (int i = 0; i < tools.ListView1->RowCount(); ++i) {
    lists += tools.ListView1->RowText(i) + u'=' + tools.ListView1->SubItem(i);
  }
  lists += QString::number(tools.ListView1->SelectedRow());
  for (int i = 0; i < form.Combo2->ListCount(); ++i) lists += form.Combo2->List(i);
  lists += QString::number(form.Combo2->ListIndex());
  note("lists", lists);
  note("mark", form.Workspace->Mark());
  note("flags", QVariantList{state.EditorShown, state.ButtonListFilled, state.SelectedButton, state.ButtonCount,
                             state.Filter.OnlyTags + state.Filter.SkipTags, state.ProgressStep});
  note("screen", tools.Combo1->Text());
  note("height", tools.height());
  note("pen", form.Workspace->Surface().FontName() + QString::number(form.Workspace->Surface().FontSize()));
  return all;
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
    game.write(QStringLiteral("Themes/Alpha.ini"), Theme);
    Program program(game);
    program.open();
    program.tag(QStringLiteral("LoadingStaticB"));
    program.row(QStringLiteral("X"));
    update(program, "77");
    if (saved) program.click(2);
    program.row(QStringLiteral("Y"));
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
    choice ? program.screen(QStringLiteral("Loading Screen")) : program.form.Queue.Draw();
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
    add("another screen", [](Program& p, QString&) { p.screen(QStringLiteral("Main Screen")); });
    add("another screen and back", [](Program& p, QString&) {
      p.screen(QStringLiteral("Main Screen"));
      p.screen(QStringLiteral("Loading Screen"));
    });
    add("another tag", pick);
    add("Update", [](Program& p, QString&) { update(p, "88"); });
    add("another tag, Update", [](Program& p, QString& tag) {
      if (tag == Dropped || p.tools().List1->ListIndex() < 0) {
        tag = Dropped;  // the list is still filling
        return;
      }
      pick(p, tag);
      if (p.value(QStringLiteral("X")) == u"no row") return;
      p.row(QStringLiteral("X"));
      update(p, "99");
    });
    add("Update, another screen", [](Program& p, QString&) {
      update(p, "88");
      p.screen(QStringLiteral("Main Screen"));
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
          QFAIL(qPrintable(QStringLiteral("%1 at yield %2, choice %3").arg(name).arg(k).arg(choice)));
        }
      }
      QVERIFY(k > (choice ? 15 : 10));
    }
  }
};

QTEST_MAIN(ReEntryTest)
#include "re_entry_test.moc"
