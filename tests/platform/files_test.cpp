#include "platform/files.h"

#include <new>
#include <stdexcept>

#include <QDir>
#include <QTest>

#include "platform/failure.h"
#include "support/panel.h"
#include "support/results.h"

using namespace platform;
using namespace Qt::StringLiterals;

class FilesTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void init() { folder_ = std::make_unique<support::Folder>(); }

  void readsWhatWasWritten() {
    for (const QByteArray& bytes : {QByteArray(5'000'000, 'x'), QByteArray("a\0\r\nb", 5), QByteArray()}) {
      writeFile(at(u"a.ini"_s), bytes);
      QCOMPARE(readFile(at(u"A.INI"_s)), bytes);
      QCOMPARE(entries(), QStringList{u"a.ini"_s});
    }
  }

  void refusedWrites() {
    folder_->put(u"protected.ini"_s, "old");
    folder_->protect(u"protected.ini"_s);
    QDir(folder_->native({})).mkdir(u"sub"_s);
    const QStringList before = entries();
    for (const QString& target : {u"protected.ini"_s, u"none\\a.ini"_s, u"sub"_s}) {
      QVERIFY_THROWS_EXCEPTION(Failure, writeFile(at(target), "new"));
      QCOMPARE(folder_->get(u"protected.ini"_s), QByteArray("old"));
      QCOMPARE(entries(), before);
    }
  }

  void foldersAndTheirFiles() {
    QDir(folder_->native({})).mkdir(u"sub.ini"_s);
    QVERIFY(!folderHoldsFiles(at({})));
    for (const QString& name : {u"B.INI"_s, u"_.ini"_s, u"a.Ini"_s, u".a.ini"_s, u"c.ini.tmp"_s}) {
      folder_->put(name, {});
    }
    QVERIFY(folderHoldsFiles(at({})));
    QVERIFY(!folderHoldsFiles(at({}).chopped(1)));
    QCOMPARE(listFiles(at({}), u".ini"_s), (QStringList{u"a.Ini"_s, u"B.INI"_s, u"_.ini"_s}));
  }

  void guardReportsFailures() {
    support::Panel panel;
    const auto runGuarded = [&panel](auto step) { return guarded(panel, u"Error while reading Theme"_s, step); };
    // An exception that tells a fault of the program passes.
    QVERIFY_THROWS_EXCEPTION(std::logic_error, runGuarded([] { throw std::logic_error(""); }));
    QVERIFY(runGuarded([] {}) && panel.texts.isEmpty());
    QVERIFY(!runGuarded([this] { readFile(at(u"Missing.ini"_s)); }));
    QVERIFY(panel.texts.first().startsWith(u"Error while reading Theme [Missing.ini: "_s));
    QVERIFY(!runGuarded([] { throw std::bad_alloc(); }));
  }

  /// What is told to the status line, "{" and "}" being operations: what it shows, one behind the other.
  void reports() {
    support::compareRows(u"reports.txt"_s, [](const QString& row) {
      support::Panel panel;
      std::vector<std::unique_ptr<ReportScope>> scopes;
      for (const QString& step : row.split(u", "_s)) {
        const QString text = step.section(u' ', 1);
        if (step == u'{') scopes.push_back(std::make_unique<ReportScope>(panel));
        if (step == u'}') scopes.pop_back();
        if (step == u"anew") panel.startAnew();
        if (step.startsWith(u"show")) panel.ShowStatus(text);
        if (step.startsWith(u"done")) panel.showDone(text);
        if (step.startsWith(u"note")) panel.note(text);
        if (step.startsWith(u"withdraw")) panel.withdraw(text);
        if (step.startsWith(u"success")) scopes.back()->success(text);
        if (step.startsWith(u"fail")) guarded(panel, text, [] { throw Failure(u"why"_s); });
      }
      return panel.texts.join(u" | "_s);
    });
  }

 private:
  QString at(const QString& name) const { return folder_->path(u"."_s).chopped(1) + name; }
  QStringList entries() const {
    return QDir(folder_->native({})).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
  }

  std::unique_ptr<support::Folder> folder_;
};

QTEST_APPLESS_MAIN(FilesTest)
#include "files_test.moc"
