#include <atomic>
#include <cstdio>
#include <thread>
#include <utility>

#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QTest>

#include "drawing/pictures.h"
#include "platform/failure.h"
#include "platform/file_identity.h"
#include "platform/files.h"
#include "platform/links_windows.h"
#include "support/access.h"
#include "support/panel.h"
#include "support/row_name.h"

using namespace platform;
using namespace Qt::StringLiterals;

namespace {

/// The file open as a neighbour has it.
class Held {
 public:
  Held(const QString& native, DWORD shared, DWORD access = GENERIC_READ)
      : handle_(::CreateFileW(support::widePath(native).c_str(), access, shared, nullptr, OPEN_EXISTING, 0, nullptr)) {}
  ~Held() { release(); }
  Q_DISABLE_COPY_MOVE(Held)
  bool works() const { return handle_ != INVALID_HANDLE_VALUE; }
  HANDLE handle() const { return handle_; }
  void release() {
    if (works()) ::CloseHandle(std::exchange(handle_, INVALID_HANDLE_VALUE));
  }

 private:
  HANDLE handle_;
};

constexpr DWORD ShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

/// What a file system keeps of a symbolic link: both forms of its target, the shown one first.
QByteArray keptLink(const QString& target, const QString& shown, bool relative) {
  const auto bytesOf = [](const QString& text) {
    return QByteArray(reinterpret_cast<const char*>(text.utf16()), text.size() * 2);
  };
  const auto shortNumber = [](qsizetype number) { return QByteArray{1, char(number)} + char(number >> 8); };
  const QByteArray names = bytesOf(shown) + bytesOf(target);
  return QByteArray::fromHex("0c0000a0") + shortNumber(12 + names.size()) + shortNumber(0) +
         shortNumber(shown.size() * 2) + shortNumber(target.size() * 2) + shortNumber(0) +
         shortNumber(shown.size() * 2) + shortNumber(relative ? 1 : 0) + shortNumber(0) + names;
}

/// The other program: has its turn at the file until it is killed.
int holdTurn(const QString& path) {
  const FileTurn turn(path);
  std::puts("ready");
  std::fflush(stdout);
  ::Sleep(60'000);
  return 0;
}

}  // namespace

/// What the tests of files have on Unix alone, as it is on Windows.
class FilesWindowsTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void init() { folder_ = std::make_unique<support::Folder>(); }

  void whatIsNoFile() {
    folder_->put(u"a.png"_s, "file");
    QDir(folder_->native({})).mkdir(u"sub.ini"_s);
    for (const QString& name : {u"aux.png"_s, u"NUL"_s, u"Com1 .txt"_s, u"lpt\u00b9"_s, u"CONOUT$"_s, u"a.png:b"_s,
                                u"a.png::$DATA"_s, u"sub.ini"_s}) {
      const support::RowName row(name.toUtf8());
      QVERIFY(!fileExists(at(name)) && drawing::LoadPicture(at(name)).isNull());
      QVERIFY_THROWS_EXCEPTION(Failure, readFile(at(name)));
      QVERIFY_THROWS_EXCEPTION(Failure, readIfThere(at(name)));
      QVERIFY_THROWS_EXCEPTION(Failure, writeFile(at(name), "new"));
    }
    for (const QString& path : {u"\\\\.\\pipe\\nobody"_s, u"\\\\.\\C:"_s, u"NUL"_s}) QVERIFY(!fileExists(path));
    QVERIFY(!readIfThere(at(u"no*file?"_s)) && !readIfThere(at(u"a.png\\b"_s)));
    QCOMPARE(entries(), (QStringList{u"a.png"_s, u"sub.ini"_s}));
    QCOMPARE(listFiles(at({}), u".ini"_s), QStringList());
  }

  void longAndForeignNames() {
    const QString name = u"\u0416\u20ac\u4e2d\U0001F3A4.ini"_s;
    QString deep = u"."_s;
    for (int level = 0; level < 4; ++level) deep += u'\\' + QString(100, QChar(u'a' + level));
    QVERIFY(QDir().mkpath(QDir::fromNativeSeparators(at(deep))));
    for (const QString& path : {at(name), at(deep) + u'\\' + name, u"\\\\?\\"_s + QDir::toNativeSeparators(at(name))}) {
      writeFile(path, "long");
      QVERIFY(fileExists(path) && readFile(path) == "long" && identityOf(path));
    }
    QCOMPARE(listFiles(at(deep) + u'\\', u".INI"_s), QStringList{name});
    QVERIFY_THROWS_EXCEPTION(Failure, writeFile(at(QString(300, u'x')), "longer"));
  }

  void aNeighbourHoldsTheFile() {
    folder_->put(u"a.ini"_s, "old");
    const QString native = folder_->native(u"a.ini"_s);
    for (const DWORD shared : {DWORD(0), DWORD(FILE_SHARE_READ)}) {
      Held held(native, shared);
      QVERIFY(held.works());
      QElapsedTimer watch;
      watch.start();
      if (shared == 0) {
        QVERIFY_THROWS_EXCEPTION(Failure, readFile(at(u"a.ini"_s)));  // and never waits
        QVERIFY(fileExists(at(u"a.ini"_s)) && watch.elapsed() < 900);
      }
      QVERIFY_THROWS_EXCEPTION(Failure, writeFile(at(u"a.ini"_s), "new"));
      QVERIFY(watch.elapsed() > 900);
      QCOMPARE(entries(), QStringList{u"a.ini"_s});
      std::jthread neighbour([&] {
        ::Sleep(200);
        held.release();
      });
      const QByteArray text = "new" + QByteArray::number(shared);
      writeFile(at(u"a.ini"_s), text);
      neighbour.join();
      QCOMPARE(folder_->get(u"a.ini"_s), text);
    }
    const Held held(native, ShareAll, GENERIC_READ | GENERIC_WRITE);
    QCOMPARE(readFile(at(u"a.ini"_s)), QByteArray("new1"));
  }

  /// Who reads now and then keeps nobody from writing, and gets whole texts.
  void readersBesideAWriter() {
    folder_->put(u"a.ini"_s, "old");
    std::atomic<int> readings = 0, torn = 0;
    const std::jthread reader([&](const std::stop_token& over) {
      for (; !over.stop_requested(); ++readings) {
        try {
          const QByteArray text = readFile(at(u"a.ini"_s));
          if (text != "old" && text != "new") ++torn;
        } catch (const Failure&) {
          ++torn;
        }
        ::Sleep(1);
      }
    });
    for (int turn = 0; turn < 50 || (readings < 50 && turn < 5000); ++turn) {
      writeFile(at(u"a.ini"_s), turn % 2 ? "old" : "new");
    }
    QVERIFY(readings >= 50);
    QCOMPARE(int(torn), 0);
  }

  void theTurnOfAnotherProgram() {
    folder_->put(u"a.ini"_s, "old");
    QProcess other;
    other.start(QCoreApplication::applicationFilePath(), {u"--hold"_s, at(u"a.ini"_s)});
    QVERIFY(other.waitForReadyRead(20'000));
    try {
      writeFile(at(u"a.ini"_s), "new");
      QFAIL("it was written");
    } catch (const Failure& failure) {
      QVERIFY2(failure.description().contains(u"Another program is writing"), failure.what());
    }
    QCOMPARE(readFile(at(u"a.ini"_s)), QByteArray("old"));
    other.kill();
    QVERIFY(other.waitForFinished() && folder_->has(u"a.ini.unfinished"_s));
    writeFile(at(u"a.ini"_s), "new");
    QCOMPARE(readFile(at(u"a.ini"_s)), QByteArray("new"));
    QCOMPARE(entries(), QStringList{u"a.ini"_s});
  }

  void keepsAttributes() {
    folder_->put(u"a.ini"_s, "old");
    const QString native = folder_->native(u"a.ini"_s);
    support::leaveToOwner(native);
    const QString list = support::accessTo(native);
    const FILETIME born{0x8000'0000, 0x01d0'0000};
    {
      const Held file(native, ShareAll, FILE_WRITE_ATTRIBUTES);
      QVERIFY(file.works() && ::SetFileTime(file.handle(), &born, nullptr, nullptr));
    }
    bool bornStays;  // Wine keeps no time of creation
    {
      FILETIME set;
      const Held file(native, ShareAll);
      QVERIFY(::GetFileTime(file.handle(), &set, nullptr, nullptr));
      bornStays = ::CompareFileTime(&set, &born) == 0;
    }
    writeFile(at(u"a.ini"_s), "new");
    QCOMPARE(support::accessTo(native), list);
    FILETIME now;
    {
      const Held file(native, ShareAll);
      QVERIFY(::GetFileTime(file.handle(), &now, nullptr, nullptr));
    }
    if (bornStays) QCOMPARE(::CompareFileTime(&now, &born), 0);
    // A copy is for nobody else.
    {
      const platform::OpenFile model = openFile(at(u"a.ini"_s));
      FileTurn(at(u"b.tmp"_s), AtLink::Replace).replace("copy", &model);
    }
    QCOMPARE(support::accessTo(folder_->native(u"b.tmp"_s)), list);

    QVERIFY(::SetFileAttributesW(support::widePath(native).c_str(), FILE_ATTRIBUTE_READONLY));
    QVERIFY_THROWS_EXCEPTION(Failure, writeFile(at(u"a.ini"_s), "newer"));
    QCOMPARE(folder_->get(u"a.ini"_s), QByteArray("new"));
    QVERIFY(::SetFileAttributesW(support::widePath(native).c_str(), FILE_ATTRIBUTE_NORMAL));
    QCOMPARE(entries(), (QStringList{u"a.ini"_s, u"b.tmp"_s}));
  }

  void identities() {
    folder_->put(u"a.ini"_s, "old");
    const auto before = identityOf(at(u"A.INI"_s));
    QVERIFY(before && before->size == 3 && before->number != 0 && before->changed != 0);
    QVERIFY(before == identityOf(at(u"a.ini"_s)) && !isSettled(*before));
    FILETIME written;
    {
      const Held file(folder_->native(u"a.ini"_s), ShareAll, GENERIC_READ);
      QVERIFY(::GetFileTime(file.handle(), nullptr, nullptr, &written));
    }
    QTest::qSleep(20);
    folder_->put(u"a.ini"_s, "new");
    {
      const Held file(folder_->native(u"a.ini"_s), ShareAll, FILE_WRITE_ATTRIBUTES);
      QVERIFY(::SetFileTime(file.handle(), nullptr, nullptr, &written));
    }
    const auto after = identityOf(at(u"a.ini"_s));
    QVERIFY(after && after->modified == before->modified && *after != *before);
    QVERIFY(!identityOf(at(u"none"_s)) && !identityOf(at(u"NUL"_s)) && !identityOf(folder_->path(u"."_s)));
  }

  void targetsOfLinks() {
    const QString link = u"C:/games/Themes/a.ini"_s;
    QCOMPARE(linkTarget(link, keptLink(u"..\\b.ini"_s, u"b"_s, true)), u"C:/games/Themes/..\\b.ini"_s);
    QCOMPARE(linkTarget(link, keptLink(u"\\??\\D:\\b.ini"_s, u"D:\\b.ini"_s, false)), u"\\\\?\\D:\\b.ini"_s);
    for (qsizetype size = 0; size < keptLink(u"b"_s, u"b"_s, true).size(); ++size) {
      QCOMPARE(linkTarget(link, keptLink(u"b"_s, u"b"_s, true).first(size)), QString());
    }
    QByteArray otherTag = keptLink(u"b"_s, u"b"_s, true);
    otherTag[0] = '\3';
    QCOMPARE(linkTarget(link, otherTag), QString());
  }

 private:
  QString at(const QString& name) const { return folder_->path(u"."_s).chopped(1) + name; }
  QStringList entries() const {
    return QDir(folder_->native({})).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
  }

  std::unique_ptr<support::Folder> folder_;
};

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  if (argc == 3 && QByteArrayView(argv[1]) == "--hold") return holdTurn(QString::fromLocal8Bit(argv[2]));
  FilesWindowsTest test;
  return QTest::qExec(&test, argc, argv);
}

#include "files_windows_test.moc"
