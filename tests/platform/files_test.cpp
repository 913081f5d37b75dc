#include "platform/files.h"

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include "platform/failure.h"

using namespace platform;

namespace {

/// While it lives, no file can grow beyond the limit: a write past it fails as on a full disk.
class SmallDisk {
 public:
  explicit SmallDisk(rlim_t limit) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit small{limit, before_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &small);
  }
  ~SmallDisk() {
    setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, handler_);
  }
  Q_DISABLE_COPY_MOVE(SmallDisk)

 private:
  void (*handler_)(int);
  rlimit before_;
};

mode_t modeOf(const QString& path) {
  struct stat status {};
  stat(QFile::encodeName(path).constData(), &status);
  return status.st_mode & 07777;
}

}  // namespace

class FilesTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void init() { folder_ = std::make_unique<QTemporaryDir>(); }

  void readsWhatWasWritten_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("with NUL") << QByteArray("a\0\r\nb", 5);
    QTest::newRow("large") << QByteArray(5'000'000, 'x');
  }

  void readsWhatWasWritten() {
    QFETCH(QByteArray, bytes);
    WriteFile(at("a.ini"), QByteArray(100, 'o'));
    WriteFile(at("a.ini"), bytes);
    QCOMPARE(ReadFile(at("A.INI")), bytes);
    QCOMPARE(entries(), QStringList{QStringLiteral("a.ini")});
  }

  void readsFilesWithoutSize() {
    // Some files tell no size before they are read.
    QVERIFY(ReadFile(QStringLiteral("\\proc\\self\\maps")).size() > 4096);
  }

  void keepsModeAndLink() {
    WriteFile(at("real.ini"), "old");
    QVERIFY(chmod(QFile::encodeName(native("real.ini")).constData(), 0660) == 0);
    QVERIFY(QFile::link(QStringLiteral("real.ini"), native("link.ini")));
    WriteFile(at("link.ini"), "new");
    QVERIFY(QFileInfo(native("link.ini")).isSymbolicLink());
    QCOMPARE(ReadFile(at("real.ini")), QByteArray("new"));
    QCOMPARE(modeOf(native("real.ini")), mode_t(0660));
  }

  void copyIsWritable() {
    WriteFile(at("game.ini"), "text");
    QVERIFY(chmod(QFile::encodeName(native("game.ini")).constData(), 0444) == 0);
    CopyFile(at("game.ini"), at("game.ini.tmp"));
    QCOMPARE(ReadFile(at("game.ini.tmp")), QByteArray("text"));
    QVERIFY(modeOf(native("game.ini.tmp")) & S_IWUSR);
  }

  void refusedWrites_data() {
    QTest::addColumn<QString>("target");
    QTest::newRow("write-protected") << QStringLiteral("protected.ini");
    QTest::newRow("through a link") << QStringLiteral("link.ini");
    QTest::newRow("missing folder") << QStringLiteral("none\\a.ini");
    QTest::newRow("a folder") << QStringLiteral("sub");
    QTest::newRow("below a file") << QStringLiteral("protected.ini\\a.ini");
  }

  void refusedWrites() {
    QFETCH(QString, target);
    WriteFile(at("protected.ini"), "old");
    QVERIFY(chmod(QFile::encodeName(native("protected.ini")).constData(), 0444) == 0);
    QVERIFY(QFile::link(QStringLiteral("protected.ini"), native("link.ini")));
    QDir(folder_->path()).mkdir(QStringLiteral("sub"));
    const QStringList before = entries();
    QVERIFY_THROWS_EXCEPTION(Failure, WriteFile(folder_->path() + u'\\' + target, "new"));
    QCOMPARE(ReadFile(at("protected.ini")), QByteArray("old"));
    QCOMPARE(entries(), before);
  }

  void fullDiskKeepsTheOldFile() {
    WriteFile(at("a.ini"), "old");
    {
      const SmallDisk disk(10'000);
      QVERIFY_THROWS_EXCEPTION(Failure, WriteFile(at("a.ini"), QByteArray(20'000, 'x')));
      QVERIFY_THROWS_EXCEPTION(Failure, WriteFile(at("b.ini"), QByteArray(20'000, 'x')));
    }
    QCOMPARE(ReadFile(at("a.ini")), QByteArray("old"));
    QCOMPARE(entries(), QStringList{QStringLiteral("a.ini")});
  }

  void failureNamesTheFile() {
    try {
      ReadFile(at("Missing.ini"));
      QFAIL("a missing file was read");
    } catch (const Failure& failure) {
      QVERIFY(failure.description().startsWith(QStringLiteral("Missing.ini: ")));
    }
    QVERIFY_THROWS_EXCEPTION(Failure, ReadFile(folder_->path()));
    QVERIFY(!FileExists(at("Missing.ini")));
  }

  void foldersAndTheirFiles() {
    QVERIFY(!FolderHoldsFiles(at("")));
    QDir(folder_->path()).mkdir(QStringLiteral("sub.ini"));
    QVERIFY(!FolderHoldsFiles(at("")));
    for (const char* name : {"b.ini", "B.INI", "_.ini", "a.Ini", "c.ini.tmp", "ini"}) {
      QVERIFY(QFile(native(name)).open(QIODevice::WriteOnly));
    }
    QVERIFY(FolderHoldsFiles(at("")));
    QVERIFY(!FolderHoldsFiles(folder_->path()));
    QVERIFY(!FolderHoldsFiles(at("none\\")));
    QVERIFY(FileExists(at("C.INI.TMP")));
    QVERIFY(!FileExists(at("sub.ini")));
    const QStringList names = {QStringLiteral("a.Ini"), QStringLiteral("B.INI"), QStringLiteral("b.ini"),
                               QStringLiteral("_.ini")};
    QCOMPARE(ListFiles(at(""), QStringLiteral(".ini")), names);
    QCOMPARE(ListFiles(at("none"), QStringLiteral(".ini")), QStringList());
  }

 private:
  QString at(const char* name) const { return folder_->path() + u'\\' + QString::fromLatin1(name); }
  QString native(const char* name) const { return folder_->filePath(QString::fromLatin1(name)); }
  QStringList entries() const {
    return QDir(folder_->path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
  }

  std::unique_ptr<QTemporaryDir> folder_;
};

QTEST_APPLESS_MAIN(FilesTest)
#include "files_test.moc"
