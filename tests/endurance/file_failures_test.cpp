#include <QTest>

#include "endurance/system_calls.h"
#include "support/windows.h"

using namespace Qt::StringLiterals;
using platform::BoxAnswer;
using support::GameFolder;
using support::Program;
using system_calls::Fault;

/// An operation that reads and writes files. `act` lets the calls be counted, and faulty, from `armed` on.
struct Operation {
  const char* failure;  ///< how the report of its failure begins
  void (*prepare)(Program& program, const GameFolder& game);
  void (*act)(Program& program, const std::function<void()>& armed);
};

namespace {

/// What a user has of the program, and what lies on the disk.
struct Standing {
  QMap<QString, QByteArray> files;
  QVariantMap shown;
};

void editNumber(Program& program, const char* text) {
  program.tag(u"LoadingStaticA"_s);
  program.row(u"X"_s);
  program.tools().Text1->SetText(QLatin1StringView(text));
}

void update(Program& program, const std::function<void()>& armed) {
  armed();
  program.tools().Command1->click();
}

void save(Program& program, const std::function<void()>& armed) {
  armed();
  program.click(2);
}

void open(Program& program, const std::function<void()>& armed) {
  program.openDialog([&](mainwindows::Form3& dialog) {
    armed();
    dialog.Command1->click();
    system_calls::disarm();
    if (dialog.isVisible()) dialog.reject();
  });
  support::settle();
}

QStringList entries(const controls::ComboBox& list) {
  QStringList all{list.Text()};
  for (int i = 0; i < list.ListCount(); ++i) all += list.List(i);
  return all;
}

Standing standing(Program& program, const GameFolder& game) {
  Standing now{game.files(), {}};
  const themefiles::ModuleState& state = program.state;
  now.shown[u"flags"_s] = QVariantList{state.ThemeOpened, state.Changed, program.enabled(2), state.Paths.ThemeFile};
  QStringList rows;
  for (const themefiles::NamedColor& color : state.ThemeColors) rows += color.Name + u'=' + color.Value;
  now.shown[u"colours"_s] = rows;
  if (program.form.ToolWindow == nullptr) return now;
  toolwindow::Form2& tools = program.tools();
  now.shown[u"lists"_s] = entries(*tools.Combo3) + entries(*tools.Combo5) + entries(*tools.Combo6);
  rows.clear();
  for (int i = 0; i < tools.ListView1->RowCount(); ++i) rows += tools.ListView1->SubItem(i);
  now.shown[u"rows"_s] = rows;
  return now;
}

/// The name of a file that differs from both of its states, or is one too many or missing; empty when all is well.
/// Temporary files are let pass on demand.
QString torn(const QMap<QString, QByteArray>& now, const Standing& before, const Standing& after, bool temporaries) {
  for (const auto& [name, bytes] : now.asKeyValueRange()) {
    const bool known = before.files.contains(name) || after.files.contains(name);
    if (!known && temporaries && after.files.contains(name.section(u'.', 0, -2))) continue;
    if (!known || (before.files.value(name) != bytes && after.files.value(name) != bytes)) return name;
  }
  for (const auto& [name, bytes] : before.files.asKeyValueRange()) {
    if (!now.contains(name)) return name;
    // What the operation keeps under another name is kept at any moment.
    if (after.files.values().contains(bytes) && !now.values().contains(bytes)) return u"the bytes of "_s + name;
  }
  return {};
}

void putBack(const GameFolder& game, const QMap<QString, QByteArray>& files) {
  for (const QString& name : game.files().keys()) {
    if (!files.contains(name)) QFile::remove(game.native(name));
  }
  for (const auto& [name, bytes] : files.asKeyValueRange()) game.write(name, bytes);
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
    /// Gives the number of calls behind the moment at which `armed` was called.
    int run(const Operation& operation, const std::function<void()>& armed) {
      // What a render reads behind a write is no part of it.
      const auto life = QObject::connect(&program.form.Queue, &controls::WorkQueue::Yielding, &system_calls::disarm);
      operation.act(program, armed);
      QObject::disconnect(life);
      return system_calls::disarm();
    }
    int run(const Operation& operation, Fault fault, int number) {
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
    const char* const writing = "Error while writing tempfile [";
    QTest::newRow("number") << Operation{writing, [](Program& p, const GameFolder&) { p.open(), editNumber(p, "77"); },
                                         update};
    QTest::newRow("text") << Operation{writing,
                                       [](Program& p, const GameFolder&) {
                                         p.open();
                                         p.tag(u"LoadingTextFree"_s);
                                         p.row(u"Text"_s);
                                         p.tools().Combo5->SetText(u"GO"_s);
                                         p.tools().Text2->SetText(u"Off we go"_s);
                                       },
                                       update};
    const auto colours = [](Program& p, const GameFolder&) {
      p.open();
      p.tag(u"LoadingStaticA"_s);
      p.row(u"Color"_s);
    };
    QTest::newRow("add a colour") << Operation{"Error while adding colors [", colours,
                                               [](Program& p, const std::function<void()>& armed) {
                                                 p.dialogs.inputs = {u"Fresh"_s};
                                                 armed();
                                                 p.tools().Command3->click();
                                               }};
    QTest::newRow("change a colour") << Operation{writing, colours, [](Program& p, const std::function<void()>& armed) {
                                                    p.dialogs.colors = {QColor(1, 2, 3)};
                                                    armed();
                                                    p.tools().Command2->click();
                                                  }};
    QTest::newRow("remove a colour") << Operation{writing, colours, [](Program& p, const std::function<void()>& armed) {
                                                    p.dialogs.boxes = {BoxAnswer::Yes};
                                                    armed();
                                                    p.tools().Command5->click();
                                                  }};
    const auto textures = [](Program& p, const GameFolder&) {
      p.open();
      p.tag(u"LoadingStaticA"_s);
      p.row(u"Tex"_s);
    };
    QTest::newRow("add a key") << Operation{writing, textures, [](Program& p, const std::function<void()>& armed) {
                                              p.dialogs.inputs = {u"Fresh"_s};
                                              armed();
                                              p.tools().Command8->click();
                                            }};
    QTest::newRow("remove a key") << Operation{writing, textures, [](Program& p, const std::function<void()>& armed) {
                                                 p.dialogs.boxes = {BoxAnswer::Yes};
                                                 armed();
                                                 p.tools().Command9->click();
                                               }};
    QTest::newRow("save") << Operation{"Error while saving files [",
                                       [](Program& p, const GameFolder& game) {
                                         p.open();
                                         editNumber(p, "77");
                                         p.tools().Command1->click();
                                         game.write(u"Themes/Alpha.ini"_s, "[By]\r\nanother=hand\r\n");
                                       },
                                       save};
    QTest::newRow("open") << Operation{"Error while saving temporary files [",
                                       [](Program&, const GameFolder& game) {
                                         for (const QString& copy : {support::ThemeCopy, support::LanguageCopy}) {
                                           game.write(copy, "[Left]\r\nby=a crash\r\n");
                                         }
                                       },
                                       open};
    QTest::newRow("open again") << Operation{"Error while saving temporary files [",
                                             [](Program& p, const GameFolder&) {
                                               p.open();
                                               editNumber(p, "77");
                                               p.tools().Command1->click();
                                               p.dialogs.boxes = {BoxAnswer::Yes, BoxAnswer::Yes};
                                             },
                                             open};
  }
  void everyCall() {
    QFETCH(Operation, operation);
    Stage whole(operation);
    const int calls = whole.run(operation, Fault::None, 0);
    const Standing after = standing(whole.program, whole.game);
    QVERIFY(calls >= 10 && after.files != whole.before.files);
    QVERIFY2(!whole.program.status().startsWith(u"Error"), qPrintable(whole.program.status()));

    for (const Fault fault : {Fault::Error, Fault::Full, Fault::Short}) {
      int reported = 0;
      for (int number = 1; number <= calls; ++number, ++failures) {
        const QByteArray where = QByteArray::number(number) + " of " + QByteArray::number(calls) + ", fault " +
                                 QByteArray::number(static_cast<int>(fault));
        Stage stage(operation);
        stage.run(operation, fault, number);
        Standing now = standing(stage.program, stage.game);
        QVERIFY2(torn(now.files, stage.before, after, false).isEmpty(), where);
        const bool failed = stage.program.status().startsWith(QLatin1StringView(operation.failure));
        if (failed) {
          ++reported;
          for (const char* part : {"flags", "colours", "lists", "rows"}) {
            QVERIFY2(now.shown[QLatin1StringView(part)] == stage.before.shown[QLatin1StringView(part)], where + part);
          }
          stage.run(operation, Fault::None, 0);
          now = standing(stage.program, stage.game);
        }
        if (failed && QTest::currentDataTag() == QByteArrayView("open again")) continue;
        for (const auto& [name, bytes] : after.files.asKeyValueRange()) {
          QVERIFY2(now.files.value(name) == bytes, where + qPrintable(name));
        }
      }
      QVERIFY2(fault == Fault::Short ? reported == 0 : reported >= 3, QByteArray::number(reported));
    }

    Stage stage(operation);
    int number = 0;
    QString found;
    stage.run(operation, [&] {
      while (found.isEmpty() && system_calls::armInChild(++number)) {
        found = torn(stage.game.files(), stage.before, after, true);
        putBack(stage.game, stage.before.files);
      }
    });
    QVERIFY2(found.isEmpty(), qPrintable(found + QString::number(number)));
    QCOMPARE(number, calls + 1);
    kills += calls;
  }
  void cleanupTestCase() { qInfo("%d failure points, %d kill points", failures, kills); }
};

QTEST_MAIN(FileFailuresTest)
#include "file_failures_test.moc"
