#include "mainwindows/config_file.h"

#include <QTemporaryDir>
#include <QTest>

#include "platform/failure.h"
#include "platform/paths.h"

using namespace Qt::StringLiterals;
using mainwindows::ConfigFile;

class ConfigFileTest : public QObject {
  Q_OBJECT

 private:
  struct Folder {
    QTemporaryDir dir;
    QString file = dir.filePath(u"config.ini"_s);
    QString path = platform::ProgramPath(dir.path());

    QByteArray bytes() const {
      QFile opened(file);
      return opened.open(QIODevice::ReadOnly) ? opened.readAll() : QByteArray("none");
    }
    void write(const QByteArray& bytes) const {
      QFile opened(file);
      QVERIFY(opened.open(QIODevice::WriteOnly) && opened.write(bytes) == bytes.size());
    }
  };

 private Q_SLOTS:
  void madeOnceAndKept() {
    const Folder first;
    const Folder second;
    const ConfigFile made({first.path, second.path});
    QCOMPARE(first.bytes(), QByteArray("[Setup]\r\nEXEDirectory=\r\n"));
    QCOMPARE(made.GameFolder(), QString());
    made.SetGameFolder(u"C:\\Games\\"_s);
    QCOMPARE(first.bytes(), QByteArray("[Setup]\r\nEXEDirectory=C:\\Games\\\r\n"));

    const QByteArray foreign = "; mine\n[setup]\nexedirectory = \"D:\\x\\\"\nOther=1";
    first.write(foreign);
    const ConfigFile kept({first.path, second.path});
    QCOMPARE(first.bytes(), foreign);
    QCOMPARE(kept.GameFolder(), u"D:\\x\\"_s);
    QCOMPARE(second.bytes(), QByteArray("none"));
  }

  void theNextFolderTakesIt_data() {
    QTest::addColumn<QString>("first");
    QTest::newRow("a folder that isn't there") << u"\\nowhere\\at all"_s;
    QTest::newRow("a file") << u"\\dev\\null"_s;
    QTest::newRow("a system folder") << u"\\usr\\local"_s;
    QTest::newRow("a folder of system programs, otherwise written") << u"\\usr\\\\local\\bin"_s;
  }
  void theNextFolderTakesIt() {
    QFETCH(QString, first);
    const Folder second;
    const ConfigFile config({first, second.path});
    QCOMPARE(config.Path(), second.path + u"\\config.ini"_s);
    QVERIFY(config.Problem().isEmpty());
    const ConfigFile none({u"\\nowhere\\at all"_s});
    QVERIFY(none.Path().isEmpty());
    QVERIFY(!none.Problem().isEmpty());
    QVERIFY_THROWS_EXCEPTION(platform::Failure, none.SetGameFolder(u"C:\\Games\\"_s));
    QCOMPARE(none.GameFolder(), QString());
  }

  void folderOutsideTheCodePage_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("stored");
    QTest::newRow("in the code page") << u"M\u00fcller"_s << QByteArray("M\xfcller");
    QTest::newRow("beyond it") << u"\u6b4c \u00fc"_s << QByteArray("\xe6\xad\x8c \xc3\xbc");
  }
  void folderOutsideTheCodePage() {
    QFETCH(QString, name);
    QFETCH(QByteArray, stored);
    const Folder place;
    QVERIFY(QDir(place.dir.path()).mkdir(name));
    QFile game(place.dir.filePath(name + u"/Vocora.exe"_s));
    QVERIFY(game.open(QIODevice::WriteOnly));
    const QString folder = place.path + u'\\' + name + u'\\';
    ConfigFile({place.path}).SetGameFolder(folder);
    QVERIFY2(place.bytes().contains('\\' + stored + "\\\r\n"), place.bytes().constData());
    QCOMPARE(ConfigFile({place.path}).GameFolder(), folder);
  }
};

QTEST_GUILESS_MAIN(ConfigFileTest)
#include "config_file_test.moc"
