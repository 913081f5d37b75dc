#include <new>
#include <stdexcept>

#include <QTest>

#include "platform/failure.h"
#include "platform/text_lines.h"
#include "support/theme_doubles.h"

using namespace platform;
using namespace Qt::StringLiterals;

class ReportsTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void guardReportsFailures() {
    support::Panel panel;
    const QString step = u"Error while reading Theme"_s;
    QVERIFY(Guarded(panel, step, [] {}));
    // An exception that tells a fault of the program passes.
    QVERIFY_THROWS_EXCEPTION(std::logic_error, Guarded(panel, step, [] { throw std::logic_error(""); }));
    QVERIFY(panel.texts.isEmpty());
    QVERIFY(!Guarded(panel, step, [] { throw Failure(u"no file"_s); }));
    QCOMPARE(panel.texts, QStringList{u"Error while reading Theme [no file]"_s});
    QVERIFY(!Guarded(panel, step, [] { throw std::bad_alloc(); }));
    QCOMPARE(panel.texts.size(), 2);
    QVERIFY(!GuardedSilently([] { throw Failure(QString()); }));
  }

  void linesOfAFile() {
    TextLines walk("a\r\nb \n\r\r\n\nc");
    QByteArrayList lines;
    while (const auto line = walk.next()) lines += line->toByteArray();
    QCOMPARE(lines, (QByteArrayList{"a", "b ", "", "", "", "c"}));
    QVERIFY(!TextLines("").next());
  }
};

QTEST_APPLESS_MAIN(ReportsTest)
#include "reports_test.moc"
