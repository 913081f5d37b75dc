#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <QDir>
#include <QTest>

#include "drawing/pictures.h"
#include "platform/code_page.h"
#include "platform/failure.h"
#include "platform/file_names.h"
#include "platform/files.h"
#include "support/panel.h"
#include "support/results.h"

using namespace platform;

namespace {

constexpr char AccessList[] = "system.posix_acl_access";
/// The owner and user 1234 read and write, nobody else.
constexpr char ForSomeone[] =
    "\2\0\0\0\1\0\6\0\xFF\xFF\xFF\xFF\2\0\6\0\xD2\4\0\0\4\0\0\0\xFF\xFF\xFF\xFF"
    "\x10\0\6\0\xFF\xFF\xFF\xFF\x20\0\0\0\xFF\xFF\xFF\xFF";

/// Runs between the making of a temporary file and its lock, once.
std::function<void()> beforeLock;
/// The errors of a file system that has no locks, or can't flush; 0 for none.
int lockError = 0, flushError = 0;

}  // namespace
using namespace Qt::StringLiterals;

/// The system's, behind what another program does at the worst moment.
extern "C" int flock(int file, int operation) noexcept {
  if (const auto act = std::exchange(beforeLock, {})) act();
  errno = lockError;
  return lockError == 0 ? static_cast<int>(::syscall(SYS_flock, file, operation)) : -1;
}
extern "C" int fsync(int file) {
  errno = flushError;
  return flushError == 0 ? static_cast<int>(::syscall(SYS_fsync, file)) : -1;
}

/// What files have on Unix alone; files_windows_test has what they have on Windows.
class FilesUnixTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void init() { folder_ = std::make_unique<support::Folder>(); }

  void keepsModeAndLink() {
    folder_->put(u"real.ini"_s, "old");
    const QString real = folder_->native(u"real.ini"_s);
    QFile::setPermissions(real, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::WriteGroup);
    const auto mode = QFile::permissions(real);
    QFile::link(u"real.ini"_s, folder_->native(u"link.ini"_s));
    writeFile(at(u"link.ini"_s), "new");
    QVERIFY(QFileInfo(folder_->native(u"link.ini"_s)).isSymbolicLink());
    QCOMPARE(folder_->get(u"real.ini"_s), QByteArray("new"));
    QCOMPARE(QFile::permissions(real), mode);
  }

  void keepsOwnerAndGroup() {
    if (::geteuid() != 0) QSKIP("only the superuser can try");
    folder_->put(u"a.ini"_s, "old");
    const QByteArray name = folder_->native(u"a.ini"_s).toUtf8();
    const QByteArray place = folder_->native(u"."_s).toUtf8();
    constexpr uid_t Someone = 1234;
    constexpr gid_t Shared = 4321;
    struct stat status;
    // Whoever writes, and what owner the file has behind it.
    for (const auto& [writer, owner, mode, after] :
         {std::tuple{static_cast<uid_t>(0), Someone, 0640, Someone}, {Someone + 1, Someone, 0664, Someone + 1}}) {
      QVERIFY(::chown(name, owner, Shared) == 0 && ::chmod(name, mode_t(mode)) == 0);
      QVERIFY(::chown(place, writer, Shared) == 0 && ::setegid(Shared) == 0 && ::seteuid(writer) == 0);
      writeFile(at(u"a.ini"_s), "new");
      QVERIFY(::seteuid(0) == 0 && ::setegid(0) == 0 && ::stat(name, &status) == 0);
      QCOMPARE(std::tuple(status.st_uid, status.st_gid, static_cast<int>(status.st_mode & 07777)),
               std::tuple(after, Shared, mode));
    }
    // A folder of one's own is no right to another one's file.
    for (const mode_t mode : {0644, 0600}) {
      QVERIFY(::chown(name, 0, 0) == 0 && ::chmod(name, mode) == 0 && ::seteuid(Someone + 1) == 0);
      QVERIFY_THROWS_EXCEPTION(Failure, writeFile(at(u"a.ini"_s), "stolen"));
      QVERIFY(::seteuid(0) == 0 && folder_->get(u"a.ini"_s) == "new");
      QCOMPARE(entries(), QStringList{u"a.ini"_s});
    }
  }

  /// The modes of a file that somebody else owns, with a list of who may read it or without, and of a copy of it.
  void copiesAreForNobodyElse() {
    if (::geteuid() != 0) QSKIP("only the superuser can try");
    const QByteArray name = folder_->native(u"a.ini"_s).toUtf8();
    const QByteArray copy = name + ".tmp";
    const QByteArray folder = folder_->native(u"."_s).toUtf8();
    constexpr uid_t Someone = 1234;
    // The superuser's copy has owner, group and list as well; Someone isn't in the group and drops what it permits.
    for (const auto& [mode, list, supers, someones] : {std::tuple{0600, false, 0600, 0},
                                                       {0444, false, 0644, 0644},
                                                       {0604, false, 0604, 0600},
                                                       {0664, false, 0664, 0644},
                                                       {0640, true, 0660, 0600}}) {
      folder_->put(u"a.ini"_s, "text");
      QVERIFY(::chown(name, 1, 1) == 0 && ::chmod(name, mode_t(mode)) == 0 && ::chmod(folder, 0777) == 0);
      if (list && ::setxattr(name, AccessList, ForSomeone, sizeof(ForSomeone) - 1, 0) != 0) QSKIP("no lists here");
      for (const auto& [user, expected] : {std::pair{uid_t(0), supers}, {Someone, someones}}) {
        if (expected == 0) continue;
        ::unlink(copy);
        QVERIFY(::setegid(user) == 0 && ::seteuid(user) == 0);
        const OpenFile model = openFile(at(u"a.ini"_s));
        FileTurn(at(u"a.ini.tmp"_s), AtLink::Replace).replace("copy", &model);
        if (list) writeFile(at(u"a.ini"_s), "text");
        struct stat status;
        QVERIFY(::seteuid(0) == 0 && ::setegid(0) == 0 && ::stat(copy, &status) == 0);
        QCOMPARE(std::pair(int(status.st_mode & 07777), status.st_uid), std::pair(expected, user == 0 ? 1 : user));
        char there[sizeof(ForSomeone)];
        for (const QByteArray& file : {copy, name}) {
          QCOMPARE(::getxattr(file, AccessList, there, sizeof(there)) > 0, list && user == 0);
        }
      }
    }
    FileTurn(at(u"b.ini.tmp"_s), AtLink::Replace).replace("of nothing");
    QCOMPARE(QFile::permissions(folder_->native(u"b.ini.tmp"_s)) & 0x77, QFile::Permissions());
  }

  void keepsListAndAttributes() {
    folder_->put(u"a.ini"_s, "old");
    const QByteArray name = folder_->native(u"a.ini"_s).toUtf8();
    char there[sizeof(ForSomeone)] = {};
    const bool lists = ::setxattr(name, AccessList, ForSomeone, sizeof(ForSomeone) - 1, 0) == 0;
    const bool notes = ::setxattr(name, "user.note", "mine", 4, 0) == 0;
    if (!lists || !notes) QSKIP("no such attributes here");
    writeFile(at(u"a.ini"_s), "new");
    QCOMPARE(::getxattr(name, "user.note", there, sizeof(there)), 4);
    QCOMPARE(::getxattr(name, AccessList, there, sizeof(there)), qsizetype(sizeof(ForSomeone) - 1));
    QVERIFY(std::equal(std::begin(there), std::end(there), ForSomeone) && folder_->get(u"a.ini"_s) == "new");
  }

  void onlyRegularFilesAreFiles() {
    QVERIFY(::mkfifo(folder_->native(u"pipe"_s).toUtf8(), 0666) == 0);
    QDir(folder_->native({})).mkdir(u"sub"_s);
    QFile::link(u"loop"_s, folder_->native(u"loop"_s));
    for (const char* target : {"pipe", "/dev/zero", "sub", "loop", "nothing"}) {
      const QString name = QFileInfo(QLatin1StringView(target)).fileName() + u".ini"_s;
      QFile::link(QLatin1StringView(target), folder_->native(name));
      QVERIFY2(!fileExists(at(name)) && drawing::LoadPicture(at(name)).isNull(), target);
      QVERIFY_THROWS_EXCEPTION(Failure, readFile(at(name)));
      if (target == QByteArrayView("nothing")) continue;
      QVERIFY_THROWS_EXCEPTION(Failure, readIfThere(at(name)));
      QVERIFY_THROWS_EXCEPTION(Failure, writeFile(at(name), "new"));
      QVERIFY(!readIfThere(at(name), AtLink::Replace));
    }
    QCOMPARE(listFiles(at({}), u".ini"_s), QStringList());
    QVERIFY(!folderHoldsFiles(at({})));
  }

  void ownNamesFollowNoLink() {
    folder_->put(u"mine"_s, "mine");
    for (const QString& target : {u"mine"_s, u"nothing"_s}) {
      for (const QString& name : {u"a.tmp"_s, u"a.tmp.unfinished"_s}) {
        QFile::remove(folder_->native(name));
        QFile::link(target, folder_->native(name));
      }
      QVERIFY(!readIfThere(at(u"a.tmp"_s), AtLink::Replace));
      FileTurn(at(u"a.tmp"_s), AtLink::Replace).replace("new");
      QVERIFY(!QFileInfo(folder_->native(u"a.tmp"_s)).isSymbolicLink() && folder_->get(u"a.tmp"_s) == "new");
      QCOMPARE(folder_->get(u"mine"_s), QByteArray("mine"));
      QCOMPARE(entries(), (QStringList{u"a.tmp"_s, u"mine"_s}));
    }
    // A file of its own, for whoever may read a new one.
    QFile::link(u"mine"_s, folder_->native(u"link"_s));
    for (const char* name : {"link", "new"}) writeFile(at(QLatin1StringView(name)), "new", AtLink::Replace);
    QCOMPARE(QFile::permissions(folder_->native(u"link"_s)), QFile::permissions(folder_->native(u"new"_s)));
  }

  /// Another program has taken the new temporary file for one that was left over, and has put its own there.
  void clearedAwayBeforeTheLock() {
    beforeLock = [this] {
      QFile::remove(folder_->native(u"a.ini.unfinished"_s));
      folder_->put(u"a.ini.unfinished"_s, "the other program's");
    };
    writeFile(at(u"a.ini"_s), "text");
    QVERIFY(folder_->get(u"a.ini"_s) == "text" && !beforeLock);
    // It makes the same file, and stores something in it.
    beforeLock = [this] { folder_->put(u"b.ini"_s, "the other program's"); };
    makeFile(at(u"b.ini"_s), "first");
    QVERIFY(folder_->get(u"b.ini"_s) == "the other program's" && !beforeLock);
  }

  void leftOverTemporaryFiles() {
    folder_->put(u"a.ini"_s, "old");
    folder_->put(u"a.ini.unfinished"_s, "of another program");
    const int other = ::open(folder_->native(u"a.ini.unfinished"_s).toUtf8(), O_RDONLY);
    QVERIFY(::flock(other, LOCK_EX) == 0);  // it is alive
    QVERIFY_THROWS_EXCEPTION(Failure, writeFile(at(u"a.ini"_s), "new"));
    QCOMPARE(folder_->get(u"a.ini.unfinished"_s), QByteArray("of another program"));
    ::close(other);
    writeFile(at(u"a.ini"_s), "new");
    QCOMPARE(entries(), QStringList{u"a.ini"_s});
  }

  /// What isn't on the disk replaces nothing, unless the file system knows no flush. Without locks whatever lies at the
  /// temporary file's name may be another program's.
  void withoutFlushOrLocks() {
    for (const int none : {EINVAL, ENOTSUP}) {
      lockError = flushError = none;
      writeFile(at(u"a.ini"_s), QByteArray::number(none));
      QCOMPARE(folder_->get(u"a.ini"_s), QByteArray::number(none));
    }
    flushError = EIO;
    QVERIFY_THROWS_EXCEPTION(Failure, writeFile(at(u"a.ini"_s), "lost"));
    QVERIFY(folder_->get(u"a.ini"_s) != "lost" && entries().size() == 1);
    flushError = 0;
    folder_->put(u"a.ini.unfinished"_s, "of another program");
    QVERIFY_THROWS_EXCEPTION(Failure, writeFile(at(u"a.ini"_s), "new"));
    QCOMPARE(folder_->get(u"a.ini.unfinished"_s), QByteArray("of another program"));
    beforeLock = [this] { QFile::remove(folder_->native(u"a.ini.unfinished"_s)); };  // its turn is over
    writeFile(at(u"a.ini"_s), "new");
    lockError = 0;
  }

  void refusedBehindALink() {
    folder_->put(u"protected.ini"_s, "old");
    folder_->protect(u"protected.ini"_s);
    QFile::link(u"protected.ini"_s, folder_->native(u"link.ini"_s));
    QVERIFY_THROWS_EXCEPTION(Failure, writeFile(at(u"link.ini"_s), "new"));
    QCOMPARE(folder_->get(u"protected.ini"_s), QByteArray("old"));
    QCOMPARE(entries(), (QStringList{u"link.ini"_s, u"protected.ini"_s}));
  }

  void namesInAFolder() {
    for (const QString& name : {u"b.ini"_s, u"B.INI"_s, u"_.ini"_s, u"a.Ini"_s}) folder_->put(name, {});
    QCOMPARE(listFiles(at({}), u".ini"_s), (QStringList{u"a.Ini"_s, u"B.INI"_s, u"b.ini"_s, u"_.ini"_s}));
    // A name that isn't UTF-8.
    const QByteArray old = folder_->native(u"caf"_s).toUtf8() + "\xE9.ini";
    QVERIFY(::rename(folder_->native(u"a.Ini"_s).toUtf8(), old) == 0);
    const QString listed = listFiles(at({}), u".ini"_s).value(2);
    writeFile(at(upperCase(listed)), "new");
    QCOMPARE(listFiles(at({}), u".ini"_s), (QStringList{u"B.INI"_s, u"b.ini"_s, listed, u"_.ini"_s}));
    QVERIFY(readFile(at(listed)) == "new" && ::unlink(old) == 0);
  }

  void encodedNames() {
    support::compareRows(u"names.txt"_s, [](const QString& bytes) {
      const QString name = decodedName(QByteArray::fromHex(bytes.toLatin1()));
      QString told;
      for (const QChar letter : name) told += QString::number(letter.unicode(), 16) + u' ';
      return told + QString::fromLatin1(encodedName(name).toHex());
    });
  }

  void nativePaths() {
    for (const QString& sub : {u"Themes/skins"_s, u"Twins"_s}) QDir().mkpath(folder_->native(sub));
    for (const QString& file :
         {u"Themes/Blue.INI"_s, u"Themes/skins/a.png"_s, u"Twins/CASE.ini"_s, u"Twins/Case.ini"_s}) {
      folder_->put(file, {});
    }
    const QString root = folder_->native(u"."_s).chopped(2);
    support::compareRows(u"paths.txt"_s, [&](const QString& path) {
      return nativePath(programPath(root) + path).replace(root, u"..."_s);
    });
    QFile::link(folder_->native(u"Themes"_s), folder_->native(u"link"_s));
    QVERIFY(sameFolder(root + u"\\Themes"_s, root + u"\\THEMES\\\\"_s));
    QVERIFY(sameFolder(root + u"\\link"_s, root + u"\\Twins\\..\\Themes"_s));
    QVERIFY(!sameFolder(root + u"\\Themes"_s, root + u"\\Twins"_s));
    QVERIFY(!sameFolder(root + u"\\None"_s, root + u"\\Nowhere"_s));
  }

 private:
  QString at(const QString& name) const { return folder_->path(u"."_s).chopped(1) + name; }
  QStringList entries() const {
    return QDir(folder_->native({})).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
  }

  std::unique_ptr<support::Folder> folder_;
};

QTEST_APPLESS_MAIN(FilesUnixTest)
#include "files_unix_test.moc"
