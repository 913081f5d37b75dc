#include "mainwindows/config_file.h"

#include <QTemporaryDir>
#include <QTest>

#include "platform/failure.h"
#include "platform/paths.h"

using mainwindows::ConfigFile;

class ConfigFileTest : public QObject {
  Q_OBJECT

 private:
  struct Folder {
    QTemporaryDir dir;
    QString file = dir.filePath(QStringLiteral("config.ini"));
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
    made.SetGameFolder(QStringLiteral("C:\\Games\\"));
    QCOMPARE(first.bytes(), QByteArray("[Setup]\r\nEXEDirectory=C:\\Games\\\r\n"));

    const QByteArray foreign = "; mine\n[setup]\nexedirectory = \"D:\\x\\\"\nOther=1";
    first.write(foreign);
    const ConfigFile kept({first.path, second.path});
    QCOMPARE(first.bytes(), foreign);
    QCOMPARE(kept.GameFolder(), QStringLiteral("D:\\x\\"));
    QCOMPARE(second.bytes(), QByteArray("none"));
  }

  void theNextFolderTakesIt_data() {
    QTest::addColumn<QString>("first");
    QTest::newRow("a folder that isn't there") << QStringLiteral("\\nowhere\\at all");
    QTest::newRow("a file") << QStringLiteral("\\dev\\null");
    QTest::newRow("a system folder") << QStringLiteral("\\usr\\local");
    QTest::newRow("a folder of system programs, otherwise written") << QStringLiteral("\\usr\\\\local\\bin");
  }
  void theNextFolderTakesIt() {
    QFETCH(QString, first);
    const Folder second;
    const ConfigFile config({first, second.path});
    QCOMPARE(config.Path(), second.path + QStringLiteral("\\config.ini"));
    QVERIFY(config.Problem().isEmpty());
    const ConfigFile none({QStringLiteral("\\nowhere\\at all")});
    QVERIFY(none.Path().isEmpty());
    QVERIFY(!none.Problem().isEmpty());
    QVERIFY_EXCEPTION_THROWN(none.SetGameFolder(QStringLiteral("C:\\Games\\")), platform::Failure);
    QCOMPARE(none.GameFolder(), QString());
  }

  void folderOutsideTheCodePage_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("stored");
    QTest::newRow("in the code page") << QStringLiteral("M\u00fcller") << QByteArray("M\xfcller");
    QTest::newRow("beyond it") << QStringLiteral("\u6b4c \u00fc") << QByteArray("\xe6\xad\x8c \xc3\xbc");
  }
  void folderOutsideTheCodePage() {
    QFETCH(QString, name);
    QFETCH(QByteArray, stored);
    const Folder place;
    QVERIFY(QDir(place.dir.path()).mkdir(name));
    QFile game(place.dir.filePath(name + QStringLiteral("/Vocora.exe")));
    QVERIFY(game.open(QIODevice::WriteOnly));
    const QString folder = place.path + u'\\' + name + u'\\';
    ConfigFile({place.path}).SetGameFolder(folder);
    QVERIFY2(place.bytes().contains('\\' + stored + "\\\r\n"), place.bytes().constData());
    QCOMPARE(ConfigFile({place.path}).GameFolder(), folder);
  }
};

QTEST_GUILESS_MAIN(ConfigFileTest)
#include "config_file_test.moc"
