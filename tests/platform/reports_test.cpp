#include <new>
#include <stdexcept>

#include <QTest>

#include "platform/failure.h"
#include "platform/property_bag.h"
#include "platform/status_line.h"
#include "platform/text_lines.h"

using namespace platform;

namespace {

class Panel : public StatusLine {
 public:
  void ShowStatus(const QString& text) override { texts += text; }
  QStringList texts;
};

}  // namespace

class ReportsTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void guardReportsFailures() {
    Panel panel;
    const QString step = QStringLiteral("Error while reading Theme");
    QVERIFY(Guarded(panel, step, [] {}));
    QVERIFY(panel.texts.isEmpty());
    QVERIFY(!Guarded(panel, step, [] { throw Failure(QStringLiteral("no file")); }));
    QCOMPARE(panel.texts, QStringList{QStringLiteral("Error while reading Theme [no file]")});
    QVERIFY(!Guarded(panel, step, [] { throw std::bad_alloc(); }));
    QCOMPARE(panel.texts.size(), 2);
    QVERIFY(!GuardedSilently([] { throw Failure(QString()); }));
  }

  void otherExceptionsPass() {
    Panel panel;
    QVERIFY_THROWS_EXCEPTION(std::logic_error, Guarded(panel, QString(), [] { throw std::logic_error(""); }));
    QVERIFY(panel.texts.isEmpty());
  }

  void bagLeavesOutDefaults() {
    PropertyBag bag;
    bag.WriteProperty(QStringLiteral("Max"), 50, 100);
    QCOMPARE(bag.ReadProperty(QStringLiteral("max"), 100).toInt(), 50);
    bag.WriteProperty(QStringLiteral("MAX"), 100, 100);
    QVERIFY(!bag.contains(QStringLiteral("Max")));
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
