#include "mainwindows/config_file.h"

#include <QDir>
#include <QTest>

#include "platform/failure.h"
#include "support/panel.h"
#include "support/row_name.h"

using namespace Qt::StringLiterals;
using mainwindows::ConfigFile;
using support::Folder;

const QString File = u"config.ini"_s;

// No place for a folder, a file, a system folder, and one of system programs, otherwise written.
#ifdef Q_OS_WIN
const QString Programs = qEnvironmentVariable("ProgramFiles");
const QStringList Unfit{u"NUL\\at all"_s, u"NUL"_s, qEnvironmentVariable("windir"),
                        Programs.toUpper().replace(u'\\', u"\\\\"_s) + u"\\Game\\bin"_s};
#else
const QStringList Unfit{u"\\dev\\null\\at all"_s, u"\\dev\\null"_s, u"\\usr\\local"_s, u"\\usr\\\\local\\bin"_s,
                        u"\\opt\\game"_s,         u"\\bin"_s,       u"\\sbin"_s,       u"\\Applications\\Game"_s};
#endif

class ConfigFileTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void madeOnceAndKept() {
    const Folder first;
    const QStringList folders{first.path({}), first.path(u"second"_s)};
    ConfigFile made(folders);
    QCOMPARE(first.get(File), "[Setup]\r\nEXEDirectory=\r\n");
    QCOMPARE(made.gameFolder(), QString());
    made.setGameFolder(u"C:\\Games\\"_s);
    QCOMPARE(first.get(File), "[Setup]\r\nEXEDirectory=C:\\Games\\\r\n");

    const QByteArray foreign = "; mine\n[setup]\nexedirectory = \"D:\\\xfc\\\"\nOther=1";
    first.put(File, foreign);
    QCOMPARE(ConfigFile(folders).gameFolder(), u"D:\\\u00fc\\"_s);
    QCOMPARE(first.get(File), foreign);
    QVERIFY(!first.has(u"second"_s));
  }

  void theNextFolderTakesIt() {
    const Folder next;
    for (const QString& folder : Unfit) {
      const support::RowName row(folder.toUtf8());
      ConfigFile config({folder, next.path(u"new"_s)});
      QVERIFY(config.path() == next.path(u"new\\config.ini"_s) && config.problem().isEmpty());
      ConfigFile none({folder});
      QVERIFY(none.path().isEmpty() && none.gameFolder().isEmpty());
      none.setFolderOfThisRun(u"C:\\Named\\"_s);
      QVERIFY_THROWS_EXCEPTION(platform::Failure, none.setGameFolder(u"C:\\Games\\"_s));
      QCOMPARE(none.gameFolder(), u"C:\\Games\\"_s);  // for this run, though it can't be stored
    }
    QVERIFY(!ConfigFile({Unfit.first()}).problem().isEmpty());
  }

  void installedPrograms() {
    const Folder place;
    for (const QString& sub : {u"bin"_s, u"share/cantorama-theme-edit"_s}) QDir(place.native({})).mkpath(sub);
    const QStringList folders{place.path(u"bin"_s), place.path(u"own\\users"_s)};
    QCOMPARE(ConfigFile(folders).path(), folders[1] + u"\\config.ini"_s);
    QVERIFY(!place.has(u"bin/config.ini"_s));
    place.put(u"bin/config.ini"_s, {});
    QCOMPARE(ConfigFile(folders).path(), folders[0] + u"\\config.ini"_s);
  }

  void longFoldersAndThoseOutsideTheCodePage() {
    for (const auto& [name, stored] : {std::pair{u"M\u00fcller"_s, "M\xfcller"},
                                       {u"\u6b4c \u00fc"_s, "\xe6\xad\x8c \xc3\xbc"},
                                       {QString(200, u'a') + u'/' + QString(99, u'b'), "bbb"}}) {
      const Folder place;
      QVERIFY(QDir(place.native({})).mkpath(name));
      place.put(name + u"/Vocora.exe"_s, "program");
      const QString folder = place.path(QString(name).replace(u'/', u'\\')) + u'\\';
      ConfigFile({place.path({})}).setGameFolder(folder);
      QVERIFY2(place.get(File).contains(QByteArray(stored) + "\\\r\n"), place.get(File).constData());
      QCOMPARE(ConfigFile({place.path({})}).gameFolder(), folder);
    }
  }
};

QTEST_GUILESS_MAIN(ConfigFileTest)
#include "config_file_test.moc"
