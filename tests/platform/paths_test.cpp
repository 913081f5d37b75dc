#include "platform/paths.h"

#include <QDir>
#include <QScopeGuard>
#include <QTest>

#include "support/folder.h"

using namespace platform;
using namespace Qt::StringLiterals;

class PathsTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void initTestCase() {
    for (const QString& sub : {u"Themes/skins"_s, u"Twins"_s}) QDir().mkpath(folder_.native(sub));
    for (const QString& file : {u"Themes/Blue.INI"_s, u"Themes/skins/a.png"_s, u"Twins/CASE.ini"_s, u"Twins/Case.ini"_s,
                                u"Twins/case.txt"_s}) {
      folder_.put(file, {});
    }
  }

  void mapping() {
    // A path, and what it is on the disk; of twins the exact name is found first, else the first in byte order.
    for (const char* row :
         {"\\Themes\\Blue.INI /Themes/Blue.INI", "\\\\Themes\\/\\skins\\\\ /Themes/skins/",
          "\\themes\\blue.ini /Themes/Blue.INI", "\\THEMES\\SKINS\\A.PNG /Themes/skins/a.png",
          "\\themes\\New.ini /Themes/New.ini", "\\Nowhere\\Themes\\blue.ini /Nowhere/Themes/blue.ini",
          "\\Themes\\..\\themes\\blue.ini /Themes/../Themes/Blue.INI", "\\twins\\Case.ini /Twins/Case.ini",
          "\\twins\\cAsE.ini /Twins/CASE.ini", "\\twins\\CASE.TXT /Twins/case.txt"}) {
      const QStringList paths = QString::fromLatin1(row).split(u' ');
      QCOMPARE(NativePath(ProgramPath(root_) + paths[0]), root_ + paths[1]);
    }
    const auto back = qScopeGuard([before = QDir::currentPath()] { QDir::setCurrent(before); });
    QDir::setCurrent(root_);
    QCOMPARE(NativePath(u"themes\\BLUE.ini"_s), u"Themes/Blue.INI"_s);
  }

  void sameFolder() {
    QFile::link(folder_.native(u"Themes"_s), folder_.native(u"link"_s));
    const auto same = [this](const QString& one, const QString& other) {
      return SameFolder(root_ + u'\\' + one, root_ + u'\\' + other);
    };
    QVERIFY(same(u"Themes"_s, u"THEMES\\\\"_s));
    QVERIFY(same(u"link"_s, u"Twins\\..\\Themes"_s));
    QVERIFY(!same(u"Themes"_s, u"Twins"_s));
    QVERIFY(!same(u"none"_s, u"none"_s));
    QVERIFY(!same(u"Themes\\Blue.INI"_s, u"Themes\\Blue.INI"_s));
  }

 private:
  support::Folder folder_;
  QString root_ = folder_.native(u"."_s).chopped(2);
};

QTEST_APPLESS_MAIN(PathsTest)
#include "paths_test.moc"
