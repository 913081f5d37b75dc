#include "platform/paths.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace platform;

class PathsTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void init() {
    folder_ = std::make_unique<QTemporaryDir>();
    for (const char* path :
         {"Themes/Blue.INI", "Themes/skins/a.png", "Twins/CASE.ini", "Twins/Case.ini", "Twins/case.txt"}) {
      const QString file = folder_->filePath(QString::fromLatin1(path));
      QDir().mkpath(QFileInfo(file).path());
      QVERIFY(QFile(file).open(QIODevice::WriteOnly));
    }
  }

  void mapping_data() {
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("native");
    const auto row = [](const char* path, const char* native) {
      QTest::newRow(path) << QString::fromLatin1(path) << QString::fromLatin1(native);
    };
    row("\\Themes\\Blue.INI", "/Themes/Blue.INI");
    row("\\\\Themes\\/\\skins\\\\", "/Themes/skins/");
    row("\\themes\\blue.ini", "/Themes/Blue.INI");
    row("\\THEMES\\SKINS\\A.PNG", "/Themes/skins/a.png");
    row("\\themes\\New.ini", "/Themes/New.ini");
    row("\\Nowhere\\Themes\\blue.ini", "/Nowhere/Themes/blue.ini");
    row("\\Themes\\..\\themes\\blue.ini", "/Themes/../Themes/Blue.INI");
    // The exact name first, else the first in byte order.
    row("\\twins\\Case.ini", "/Twins/Case.ini");
    row("\\twins\\cAsE.ini", "/Twins/CASE.ini");
    row("\\twins\\CASE.TXT", "/Twins/case.txt");
  }

  void mapping() {
    QFETCH(QString, path);
    QFETCH(QString, native);
    QCOMPARE(NativePath(ProgramPath(folder_->path()) + path), folder_->path() + native);
  }

  void relativePath() {
    const QString before = QDir::currentPath();
    QDir::setCurrent(folder_->path());
    QCOMPARE(NativePath(QStringLiteral("themes\\BLUE.ini")), QStringLiteral("Themes/Blue.INI"));
    QDir::setCurrent(before);
  }

  void sameFolder() {
    const QString root = folder_->path() + u'\\';
    QVERIFY(QFile::link(folder_->filePath(QStringLiteral("Themes")), folder_->filePath(QStringLiteral("link"))));
    QVERIFY(SameFolder(root + QStringLiteral("Themes"), root + QStringLiteral("THEMES\\\\")));
    QVERIFY(SameFolder(root + QStringLiteral("link"), root + QStringLiteral("Twins\\..\\Themes")));
    QVERIFY(!SameFolder(root + QStringLiteral("Themes"), root + QStringLiteral("Twins")));
    QVERIFY(!SameFolder(root + QStringLiteral("none"), root + QStringLiteral("none")));
    QVERIFY(!SameFolder(root + QStringLiteral("Themes\\Blue.INI"), root + QStringLiteral("Themes\\Blue.INI")));
  }

 private:
  std::unique_ptr<QTemporaryDir> folder_;
};

QTEST_APPLESS_MAIN(PathsTest)
#include "paths_test.moc"
