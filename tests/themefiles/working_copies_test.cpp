#include "themefiles/working_copies.h"

#include <latch>
#include <map>
#include <thread>

#include <QDir>
#include <QTest>

#include "platform/failure.h"
#include "platform/file_identity.h"
#include "platform/files.h"
#include "support/access.h"
#include "support/panel.h"
#include "support/results.h"
#include "themefiles/ini_access.h"

using namespace themefiles;
using namespace support;

namespace {

const QByteArray Bytes("\0\x80\xFF\x1A\r\n\n\r", 8);
const QString Theme = u"t.ini"_s;
const QString Skin = u"s.ini"_s;
const QString Language = u"l.ini"_s;
const QString Copy = u".tmp"_s;

/// A game with one theme, and what the copies work on.
struct Game {
  Game() {
    folder.put(Theme, Bytes);
    folder.put(Skin, "[Skin]\n");
    folder.put(Language, "");
    chosen.ThemeFile = folder.path(Theme);
    chosen.SkinFile = folder.path(Skin);
    chosen.LanguageFile = folder.path(Language);
  }
  bool open() {
    return platform::guarded(panel, QString(), [&] { MakeWorkingCopies(state, chosen, panel); });
  }
  bool save() {
    return platform::guarded(panel, QString(), [&] { saveWorkingCopies(state, panel); });
  }

  /// A step that a row tells.
  void take(const QString& step) {
    const QString name = step.section(u' ', 1, 1);
    const QStringList fields = name.split(u'=');
    const auto theme = &ThemePaths::ThemeFile;
    const std::map<QString, std::function<void()>> acts{
        {u"puts"_s, [&] { puts(name, bytesOf(step.section(u' ', 2).toLatin1(), "\r\n")); }},
        {u"holds"_s, [&] { other.emplace(folder.path(name), platform::AtLink::Replace); }},
        {u"drops"_s, [&] { QFile::remove(folder.native(name)); }},
        {u"protects"_s, [&] { folder.protect(name); }},
        {u"open"_s, [&] { MakeWorkingCopies(state, chosen, panel); }},
        {u"edit"_s, [&] { putInCopy(state, theme, u"S"_s, fields[0], fields[1], panel); }},
        {u"erase"_s, [&] { putInCopy(state, theme, u"S"_s, name, {}, panel); }},
        {u"values"_s,
         [&] {
           putValuesInCopy(state, theme, {{u"S"_s, u"a"_s, name}, {u"T"_s, u"b"_s, name + u'b'}}, panel);
         }},
        {u"line"_s,
         [&] {
           putLinesInCopy(state, theme, {{u"S"_s, fields[0], name.toLatin1()}}, panel);
         }},
        {u"restore"_s, [&] { restoreCopy(state, theme, panel); }},
        {u"present"_s, [&] { panel.ShowStatus(rowOf(presentText(state, theme))); }},
        {u"forget"_s, [&] { forget(); }},
        {u"save"_s, [&] { saveWorkingCopies(state, panel); }},
    };
    if (step.startsWith(u"e")) state.Changed = true;
    platform::guarded(panel, step, acts.at(step.section(u' ', 0, 0)));
  }

  /// Forgets the theme, and tells what is left of it.
  void forget() {
    state.ThemeColors[0].Name = state.ScreenTable[0].Name = u"x"_s;
    forgetTheme(state);
    const auto& texts = state.fileDigests[0] + state.ownCopies[0] + state.savedCopies[0];
    const QString names = state.paths.SkinFile + state.ThemeColors[0].Name + state.ScreenTable[0].Name;
    panel.ShowStatus((state.ThemeOpened ? u"open"_s : u"closed"_s) + names + rowOf(texts));
  }

  /// The clock of files is coarse: the file's time is another one behind it.
  void puts(const QString& name, const QByteArray& bytes) const {
    const auto time = QFileInfo(folder.native(name)).lastModified();
    do folder.put(name, bytes);
    while (QFileInfo(folder.native(name)).lastModified() == time);
  }

  Folder folder;
  std::optional<platform::FileTurn> other;  ///< of another program
  ThemePaths chosen;
  ModuleState state;
  Panel panel;
};

}  // namespace

#ifdef Q_OS_UNIX
/// What is written needn't outlive the machine's power.
extern "C" int fsync(int) {
  return 0;
}
#endif

class WorkingCopiesTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  /// A session's steps, and what others do to its files: the reports, and what the folder holds at the end.
  void steps() {
    compareRows(u"copies.txt"_s, [](const QString& row) {
      Game game;
      game.folder.put(Theme, "[S]\r\nk=v\r\n");
      for (const QString& step : row.split(u", "_s)) game.take(step);
      QStringList told{game.state.Changed ? u"changed"_s : u"not changed"_s};
      game.other.reset();
      const QString folder = game.folder.path(u"."_s).chopped(1);
      for (QString report : game.panel.texts) told += report.remove(folder).replace(qt_error_string(2), u"missing"_s);
      for (const QString& name : QDir(game.folder.native({})).entryList(QDir::Files | QDir::Hidden)) {
        told += name + u": "_s + rowOf(game.folder.get(name));
      }
      return told.join(u" / "_s);
    });
  }

  /// Several programs on one theme, all at once: each edits the theme, stores a setting, and saves. Locks of files tell
  /// threads apart as they do programs.
  void noEditOfSeveralProgramsVanishes() {
    constexpr int Programs = 3;
    constexpr int Edits = 12;
    Game game;
    game.folder.put(Theme, "[S]\r\n");
    const QString config = game.folder.path(u"config.ini"_s);
    QVERIFY(game.open());
    std::latch gate(Programs);
    std::array<Panel, Programs> panels;
    std::array<bool, Programs> done{};
    const auto edit = [&](int program) {
      ModuleState state = game.state;
      Panel& panel = panels.at(program);
      bool& works = done.at(program) = true;
      gate.arrive_and_wait();
      for (int edit = 0; edit < Edits && works; ++edit) {
        const QString key = u"p%1e%2"_s.arg(program).arg(edit);
        works = platform::guarded(panel, QString(), [&] {
          putInCopy(state, &ThemePaths::ThemeFile, u"S"_s, key, key, panel);
          putINIChecked(u"S"_s, key, key, config);
          if (edit % 4 == program) saveWorkingCopies(state, panel);
        });
      }
    };
    {
      std::vector<std::jthread> programs;
      for (int program = 0; program < Programs; ++program) programs.emplace_back(edit, program);
    }
    for (int program = 0; program < Programs; ++program) {
      QVERIFY2(done.at(program), qPrintable(panels.at(program).texts.join(u"; "_s)));
    }
    QVERIFY(game.save());
    for (const QString& name : {Theme, Theme + Copy, u"config.ini"_s}) {
      const QByteArray text = game.folder.get(name);
      QCOMPARE(text.count("=p"), Programs * Edits);
    }
  }

  void nobodyElseReadsACopy() {
    Game game;
    leaveToOwner(game.folder.native(Theme));
    const QString access = accessTo(game.folder.native(Theme));
    const auto isKept = [&](const QString& name) { return accessTo(game.folder.native(name)) == access; };
    leaveToOwner(game.folder.native(Skin));
    game.folder.protect(Skin);  // a working copy can be written all the same
    QVERIFY(game.open() && isKept(Theme + Copy));
#ifdef Q_OS_UNIX
    QVERIFY(isKept(Skin + Copy));  // elsewhere the protection isn't part of the list
#endif
    const auto edit = [&](const QString& value) {
      putInCopy(game.state, &ThemePaths::ThemeFile, u"S"_s, u"k"_s, value, game.panel);
    };
    game.folder.put(Theme + Copy, "by another hand");
    edit(u"1"_s);
    QVERIFY(isKept(Theme + u".tmp.old"_s) && isKept(Theme + Copy));
    QVERIFY(QFile::remove(game.folder.native(Theme + Copy)));
    edit(u"2"_s);
    QVERIFY(isKept(Theme + Copy));
    game.folder.protect(Skin, false);
    game.folder.put(Theme, "by another hand");
    QVERIFY(game.save() && isKept(Theme + u".bak"_s) && isKept(Theme));
    QVERIFY(QFile::remove(game.folder.native(Theme)));
    QVERIFY(game.save() && isKept(Theme));
    // What all may read stays so when the copy is made anew.
    QVERIFY(QFile::remove(game.folder.native(Language + Copy)) && game.save());
    QCOMPARE(accessTo(game.folder.native(Language + Copy)), accessTo(game.folder.native(Language)));
  }

#ifdef Q_OS_UNIX
  void linksAtTheNamesOfCopies() {
    Game game;
    game.folder.put(u"mine"_s, "mine");
    game.folder.put(Skin + Copy, "lost edits");
    for (const QString& name : {Theme + Copy, Skin + u".tmp.old"_s, Language + Copy}) {
      QFile::link(name.startsWith(Language) ? u"nothing"_s : u"mine"_s, game.folder.native(name));
    }
    QVERIFY(game.open());
    QCOMPARE(game.folder.get(u"mine"_s), QByteArray("mine"));
    QVERIFY(!game.folder.has(u"nothing"_s) && !game.folder.has(Theme + u".tmp.old"_s));
    QCOMPARE(game.folder.get(Theme + Copy), Bytes);
    QCOMPARE(game.folder.get(Skin + u".tmp.old"_s), QByteArray("lost edits"));
  }
#endif
};

QTEST_MAIN(WorkingCopiesTest)
#include "working_copies_test.moc"
