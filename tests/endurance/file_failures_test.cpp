#include <QMenu>

#include "endurance/system_calls.h"
#include "support/snapshot.h"

using namespace support;
using platform::BoxAnswer;
using system_calls::Fault;
using system_calls::Kind;

/// An operation that reads and writes files. `act` lets the calls be counted, and faulty, from `armed` on.
struct Operation {
  const char* failure;  ///< how the report of its failure begins
  std::function<void(Program& program, const GameFolder& game)> prepare;
  std::function<void(Program& program, const std::function<void()>& armed)> act;
};

namespace {

const QString StaysAsItIs = u"stays as it is ["_s;  // said of an object whose section can't be read
const char* const copying = "Error while saving temporary files [";

#ifdef Q_OS_WIN
constexpr int MostRows = 1;  // each takes minutes under Wine
#else
constexpr int MostRows = 1000;
#endif

using Files = QMap<QString, QByteArray>;

/// What a user has of the program, and what lies on the disk.
struct Standing {
  Files files;
  QVariantMap shown;
};

/// Opens the theme and the editor of an object's key, all of its boxes filled.
auto editor(const char* tag, const char* key) {
  return [=](Program& program, const GameFolder&) {
    program.open();
    program.tag(QLatin1StringView(tag));
    program.row(QLatin1StringView(key));
    Editors(program.tools()).Text1->SetText(u"77"_s);
    Editors(program.tools()).Text2->SetText(u"Off we go"_s);
  };
}

/// A click on a button of the tool window, and answers for all that it may ask.
auto press(const char* button) {
  return [=](Program& program, const std::function<void()>& armed) {
    program.dialogs.inputs = {u"Fresh"_s};
    program.dialogs.colors = {QColor(1, 2, 3)};
    program.dialogs.boxes = {BoxAnswer::Yes};
    armed();
    program.tools().findChild<QPushButton*>(QLatin1StringView(button))->click();
  };
}

void edited(Program& program, const GameFolder& game) {
  editor("LoadingStaticA", "X")(program, game);
  Editors(program.tools()).Command1->click();
  program.dialogs.boxes = {BoxAnswer::Yes, BoxAnswer::Yes};
}

void save(Program& program, const std::function<void()>& armed) {
  armed();
  program.click(2);
}

void open(Program& program, const std::function<void()>& armed) {
  armed();
  program.openDialog([&](mainwindows::Form3& dialog) {
    dialog.openButton().click();
    system_calls::disarm();
    if (dialog.isVisible()) dialog.reject();
  });
  settle();
}

/// Two numbers of each object in the hand, by the arrow keys.
void moveByHand(Program& program, const std::function<void()>& armed) {
  for (const auto arrow : {Qt::Key_Right, Qt::Key_Down}) QTest::keyClick(program.form.Workspace, arrow);
  armed();
  program.form.session().settle();
}

void putSavedValueBack(Program& program, const std::function<void()>& armed) {
  toolwindow::Form2& tools = program.tools();
  Q_EMIT tools.values().menuAsked(tools.values().selectedRow(), {});
  auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  if (menu == nullptr) return;  // nothing differs any more
  menu->close();
  armed();
  menu->actions().constFirst()->trigger();
  QCoreApplication::sendPostedEvents(&tools, QEvent::MetaCall);
}

Standing standing(const Program& program, const GameFolder& game) {
  QVariantMap shown = snapshot(program, game);
  const QVariant files = shown.take(u"files"_s);
  return {files.value<Files>(), shown};
}

/// The name of a file that differs from both of its states, or is one too many or missing; empty when all is well.
/// Temporary files are let pass on demand.
QString torn(const Files& now, const Files& before, const Files& after, bool temporaries) {
  for (const auto& [name, bytes] : now.asKeyValueRange()) {
    const bool known = before.contains(name) || after.contains(name);
    if (!known && temporaries && after.contains(name.section(u'.', 0, -2))) continue;
    if (before.value(name, "no file") != bytes && after.value(name, "no file") != bytes) return name;
  }
  for (const auto& [name, bytes] : before.asKeyValueRange()) {
    if (!now.contains(name)) return name;
    // What the operation keeps under another name is kept at any moment.
    if (after.values().contains(bytes) && !now.values().contains(bytes)) return u"the bytes of "_s + name;
  }
  return {};
}

[[maybe_unused]] void putBack(const GameFolder& game, const Files& files) {
  for (const QString& name : game.files().keys()) {
    if (!files.contains(name)) QFile::remove(game.native(name));
  }
  for (const auto& [name, bytes] : files.asKeyValueRange()) game.put(name, bytes);
}

}  // namespace

class FileFailuresTest : public QObject {
  Q_OBJECT

 private:
  /// A program with the operation prepared.
  struct Stage {
    explicit Stage(const Operation& operation) : program(game) {
      operation.prepare(program, game);
      program.form.ShowStatus(QString());
      before = standing(program, game);
    }
    /// Gives the calls behind the moment at which `armed` was called.
    std::vector<Kind> run(const Operation& operation, const std::function<void()>& armed) {
      // What a render reads behind a write is no part of it.
      const auto life = QObject::connect(&program.form.queue(), &controls::WorkQueue::yielding, &system_calls::disarm);
      operation.act(program, armed);
      QObject::disconnect(life);
      return system_calls::disarm();
    }
    std::vector<Kind> run(const Operation& operation, Fault fault, int number) {
      return run(operation, [=] { system_calls::arm(fault, number); });
    }
    GameFolder game;
    Program program;
    Standing before;
  };

  int failures = 0;
  int kills = 0;

 private Q_SLOTS:
  void everyCall_data() {
    QTest::addColumn<Operation>("operation");
    int rows = 0;
    const auto add = [&](const char* name, const char* failure, auto prepare, auto act) {
      if (++rows <= MostRows) QTest::newRow(name) << Operation{failure, prepare, act};
    };
    const char* const writing = "Error while writing tempfile [";
    add("number", writing, editor("LoadingStaticA", "X"), press("Command1"));
    add("text", writing, editor("LoadingTextFree", "Text"), press("Command1"));
    add("move by hand", writing, editor("LoadingStaticA", "X"), moveByHand);
    const auto grouped = [](Program& program, const GameFolder& game) {
      editor("LoadingStaticA", "X")(program, game);
      for (const QString& name : {u"LoadingButtonGo"_s, u"LoadingButtonGoText1"_s, u"LoadingTextFree"_s}) {
        program.form.session().toggleMember(name);
      }
    };
    add("move several by hand", writing, grouped, moveByHand);
    add("put back", writing, edited, putSavedValueBack);
    add("add a colour", "Error while adding colors [", editor("LoadingStaticA", "Color"), press("Command3"));
    add("change a colour", writing, editor("LoadingStaticA", "Color"), press("Command2"));
    add("remove a colour", writing, editor("LoadingStaticA", "Color"), press("Command5"));
    add("add a key", writing, editor("LoadingStaticA", "Tex"), press("Command8"));
    add("remove a key", writing, editor("LoadingStaticA", "Tex"), press("Command9"));
    const auto meddled = [](Program& program, const GameFolder& game) {
      edited(program, game);
      game.put(ThemeFile, "[By]\r\nanother=hand\r\n");
    };
    add("save", "Error while saving files [", meddled, save);
    const auto crashed = [](Program&, const GameFolder& game) {
      for (const QString& copy : {ThemeCopy, LanguageCopy}) game.put(copy, "[Left]\r\nby=a crash");
    };
    add("open", copying, crashed, open);
    add("open again", copying, edited, open);
  }
  void everyCall() {
    QFETCH(Operation, operation);
    Stage whole(operation);
    const std::vector<Kind> kinds = whole.run(operation, Fault::None, 0);
    const int calls = static_cast<int>(kinds.size());
    const Standing after = standing(whole.program, whole.game);
    QVERIFY(after.files != whole.before.files);
    for (const Kind kind : {Kind::Look, Kind::Open, Kind::Make, Kind::Read, Kind::Write, Kind::Flush, Kind::Rename}) {
      QVERIFY2(std::count(kinds.begin(), kinds.end(), kind) > 0, "these calls aren't led here any more");
    }
    QVERIFY2(!whole.program.status().startsWith(u"Error"), qPrintable(whole.program.status()));

    for (const Fault fault : {Fault::Error, Fault::Full, Fault::Short}) {
      int reported = 0;
      for (int number = 1; number <= calls; ++number) {
        const Kind kind = kinds.at(static_cast<size_t>(number) - 1);
        if (!system_calls::concerns(fault, kind)) continue;
        const bool leaves = kind == Kind::Remove;  // a temporary file, which the next turn removes
        ++failures;
        const QByteArray where = QByteArray::number(number) + " of " + QByteArray::number(calls) + ", fault " +
                                 QByteArray::number(static_cast<int>(fault));
        Stage stage(operation);
        stage.run(operation, fault, number);
        Standing now = standing(stage.program, stage.game);
        const QString damage = torn(now.files, stage.before.files, after.files, leaves);
        QVERIFY2(damage.isEmpty(), where + ' ' + qPrintable(damage));
        const QString status = stage.program.status();
        const bool failed = status.startsWith(QLatin1StringView(operation.failure)) || status.contains(StaysAsItIs);
        // Open may find nothing to open: no folder, theme, skin or language can be seen.
        const bool untouched = operation.failure == copying && now.files == stage.before.files;
        if (failed || untouched) {
          if (failed) ++reported;
          const QStringList changed = differences(now.shown, stage.before.shown);
          QVERIFY2(changed.isEmpty(), where + qPrintable(changed.join(u' ')));
          // A move counts from where a failed one has left the object.
          const bool done = QByteArrayView(QTest::currentDataTag()).startsWith("move ") && now.files == after.files;
          if (!done) stage.run(operation, Fault::None, 0);
          now = standing(stage.program, stage.game);
        }
        if (failed && QTest::currentDataTag() == QByteArrayView("open again")) continue;
        const QString other = torn(now.files, after.files, after.files, leaves);
        QVERIFY2(other.isEmpty(), where + qPrintable(other));
      }
      QVERIFY2(fault == Fault::Short ? reported == 0 : reported >= 3, QByteArray::number(reported));
    }

    int number = 0;
    QString found;
#ifdef Q_OS_UNIX
    Stage stage(operation);
    stage.run(operation, [&] {
      // A child has none of the threads that help to paint large areas.
      for (QWidget* window : QApplication::topLevelWidgets()) window->setUpdatesEnabled(false);
      while (found.isEmpty() && system_calls::armInChild(++number)) {
        found = torn(stage.game.files(), stage.before.files, after.files, true);
        putBack(stage.game, stage.before.files);
      }
    });
#else
    while (found.isEmpty() && ++number <= calls) {
      Stage stage(operation);
      stage.run(operation, Fault::Kill, number);
      found = torn(stage.game.files(), stage.before.files, after.files, true);
    }
#endif
    QVERIFY2(found.isEmpty(), qPrintable(found + QString::number(number)));
    QCOMPARE(number, calls + 1);
    kills += calls;
    QByteArray passed;
    for (size_t kind = 0; kind < std::size(system_calls::KindNames); ++kind) {
      const auto count = std::count(kinds.begin(), kinds.end(), static_cast<Kind>(kind));
      passed += ", " + QByteArray::number(count) + ' ' + system_calls::KindNames[kind];
    }
    qInfo("%s: %d points%s", QTest::currentDataTag(), calls, passed.constData());
  }
  void cleanupTestCase() {
    qInfo("%d failure points, %d kill points", failures, kills);
  }
};

QTEST_MAIN(FileFailuresTest)
#include "file_failures_test.moc"
