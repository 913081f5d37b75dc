#include "themefiles/working_copies.h"

#include <latch>
#include <thread>

#include <QTest>

#include "platform/failure.h"
#include "platform/file_identity.h"
#include "platform/files.h"
#include "support/access.h"
#include "support/panel.h"
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

  Folder folder;
  ThemePaths chosen;
  ModuleState state;
  Panel panel;
};

}  // namespace

class WorkingCopiesTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void copiesByteForByteThereAndBack() {
    Game game;
    QVERIFY(game.open());
    QVERIFY(game.state.ThemeOpened && game.state.paths.SkinFile == game.chosen.SkinFile + Copy);
    QCOMPARE(game.folder.get(Theme + Copy), Bytes);
    game.folder.put(Theme + Copy, "edited" + Bytes);
    game.state.Changed = true;
    QVERIFY(game.save());
    QCOMPARE(game.folder.get(Theme), "edited" + Bytes);
    QVERIFY(!game.state.Changed && game.state.ThemeOpened);
    game.folder.put(Theme + Copy, "edited once more");
    QVERIFY(game.save());
    // Another hand wrote both: what the game had before stays, were it only half a text that took its place.
    QCOMPARE(game.folder.get(Theme + u".tmp.old"_s), Bytes);
    QCOMPARE(game.folder.get(Theme + u".tmp.old.2"_s), "edited" + Bytes);
    QVERIFY(game.panel.texts.size() == 2 && game.panel.texts[1].contains(u"another program"));
    QVERIFY(!game.folder.has(Theme + u".bak"_s));
  }

  /// What stands there already is written again: a copy that takes no edit doesn't hide behind it.
  void unchangedIsWrittenAgain() {
    Game game;
    game.folder.put(Theme, "[S]\nk=v\n");
    QVERIFY(game.open());
    const auto edit = [&] { putInCopy(game.state, &ThemePaths::ThemeFile, u"S"_s, u"k"_s, u"v"_s, game.panel); };
    const auto before = platform::identityOf(game.state.paths.ThemeFile);
    edit();
    QVERIFY(platform::identityOf(game.state.paths.ThemeFile) != before);
    QCOMPARE(game.folder.get(Theme + Copy), "[S]\nk=v\n");
    game.folder.protect(Theme + Copy);
    QVERIFY_THROWS_EXCEPTION(platform::Failure, edit());
  }

  /// A copy that is gone, or that another program has just emptied, is made of what stood there.
  void missingAndEmptied() {
    Game game;
    game.folder.put(Theme, "[S]\nk=v\n");
    QVERIFY(game.open());
    for (const bool emptied : {true, false}) {
      if (emptied) game.folder.put(Theme + Copy, {});
      if (!emptied) QFile::remove(game.folder.native(Theme + Copy));
      putInCopy(game.state, &ThemePaths::ThemeFile, u"S"_s, u"l"_s, u"w"_s, game.panel);
      QCOMPARE(game.folder.get(Theme + Copy), "[S]\nk=v\nl=w\n");
      QVERIFY(
          game.panel.texts.last().endsWith(emptied ? u"was empty and is made anew"_s : u"was gone and is made anew"_s));
    }
    QVERIFY(!game.folder.has(Theme + u".tmp.old"_s));
    QVERIFY(QFile::remove(game.folder.native(Theme + Copy)) && game.save());
    QCOMPARE(game.folder.get(Theme + Copy), game.folder.get(Theme));
    game.folder.put(Theme + Copy, {});
    restoreCopy(game.state, &ThemePaths::ThemeFile, game.panel);
    QCOMPARE(game.folder.get(Theme + Copy), game.folder.get(Theme));
  }

  void keepsWhatOthersWrote() {
    Game game;
    game.folder.put(Theme + Copy, Bytes);
    game.folder.put(Skin + Copy, "lost edits");
    game.folder.put(Skin + u".tmp.old"_s, "still older");
    QVERIFY(game.open());
    QCOMPARE(game.folder.get(Skin + u".tmp.old"_s), QByteArray("still older"));
    QCOMPARE(game.folder.get(Skin + u".tmp.old.2"_s), QByteArray("lost edits"));
    QCOMPARE(game.folder.get(Skin + Copy), QByteArray("[Skin]\n"));
    QVERIFY(!game.folder.has(Theme + u".tmp.old"_s));
    QVERIFY(game.panel.texts.size() == 1 && game.panel.texts[0].contains(Skin + u".tmp.old.2"_s));

    game.folder.put(Skin, "by another hand");
    game.folder.put(Language, "the same");
    game.folder.put(Language + Copy, "the same");
    QVERIFY(game.save());
    QCOMPARE(game.folder.get(Skin + u".bak"_s), QByteArray("by another hand"));
    QCOMPARE(game.folder.get(Skin), QByteArray("[Skin]\n"));
    QVERIFY(!game.folder.has(Theme + u".bak"_s) && !game.folder.has(Language + u".bak"_s));
    QVERIFY(game.panel.texts.size() == 2 && game.panel.texts[1].contains(Skin + u".bak"_s));
  }

  void ninePlacesForWhatIsKept() {
    Game game;
    const QString old = Theme + u".tmp.old"_s;
#ifdef Q_OS_UNIX
    QFile::link(Theme, game.folder.native(old + u".3"_s));  // a name of the program's own: no text
#endif
    QByteArray told;
    for (const char* text : {"1", "2", "3", "2", "4", "5", "6", "7", "8", "9", "9", "10", "1"}) {
      // The clock of files is coarse.
      const auto time = QFileInfo(game.folder.native(Theme + Copy)).lastModified();
      do game.folder.put(Theme + Copy, text);
      while (QFileInfo(game.folder.native(Theme + Copy)).lastModified() == time);
      QVERIFY(game.open());
      if (game.panel.texts.last().contains(u"oldest"_s)) told += QByteArray(text) + ' ';
    }
    QCOMPARE(told, QByteArray("10 1 "));
    QByteArray kept = game.folder.get(old);
    for (int number = 2; number <= 9; ++number) kept += game.folder.get(old + u".%1"_s.arg(number));
    QCOMPARE(kept, QByteArray("1013456789"));
    QVERIFY(!game.folder.has(old + u".10"_s));
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
  }

  void anotherProgramsTurn() {
    Game game;
    QVERIFY(game.open());
    game.folder.put(Theme + Copy, "by another hand");
    const platform::FileTurn other(game.state.paths.ThemeFile, platform::AtLink::Replace);
    const auto edit = [&] { putInCopy(game.state, &ThemePaths::ThemeFile, u"S"_s, u"k"_s, u"v"_s, game.panel); };
    const QString why = platform::failureIn(edit).value_or(QString());
    QVERIFY2(why.endsWith(u"Another program is writing this file"), qPrintable(why));
    QVERIFY(game.folder.get(Theme + Copy) == "by another hand" && !game.folder.has(Theme + u".tmp.old"_s));
    QVERIFY(game.state.ownCopies[0] == Bytes && game.panel.texts.isEmpty());
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

  void saveFailsMidway() {
    Game game;
    QVERIFY(game.open());
    for (const QString& name : {Theme, Skin, Language}) game.folder.put(name + Copy, "edited");
    game.state.Changed = true;
    game.folder.protect(Skin);
    QVERIFY(!game.save());
    QCOMPARE(game.folder.get(Theme), QByteArray("edited"));
    QCOMPARE(game.folder.get(Skin), QByteArray("[Skin]\n"));
    QCOMPARE(game.folder.get(Language), QByteArray());
    QVERIFY(game.state.Changed && game.state.ThemeOpened);
  }
};

QTEST_MAIN(WorkingCopiesTest)
#include "working_copies_test.moc"
