#include <QDir>

#include "support/diary.h"

using namespace support;

/// Days of work, most of them drawn by lot: the lines "> ..." of a diary are what the user does, the others what came
/// of it.
class DaysTest : public DiaryTest {
  Q_OBJECT

 private Q_SLOTS:
  void day_data() {
    QTest::addColumn<bool>("odd");
    for (const QString& name : QDir(resultFile({})).entryList({u"*.txt"_s})) {
      QTest::newRow(qPrintable(name.chopped(4))) << name.startsWith(u"drawn"_s);
    }
  }
  void day() {
    QFETCH(bool, odd);  // the theme
    if (odd) {
      QFile theme(resultFile(u"theme.ini"_s));
      QVERIFY(theme.open(QIODevice::ReadOnly));
      game->put(ThemeFile, theme.readAll().replace('\n', "\r\n"));
      game->addPicture("other.png", QColor(90, 200, 90), {20, 5});
    }
    QFile kept(resultFile(QLatin1StringView(QTest::currentDataTag()) + u".txt"_s));
    QVERIFY(kept.open(QIODevice::ReadOnly));
    Diary& d = openedAt(false);
    for (QByteArray line = kept.readLine(); !line.isEmpty(); line = kept.readLine()) {
      if (line.startsWith("> ")) d.run(QString::fromUtf8(line.trimmed().sliced(2)));
    }
  }
};

QTEST_MAIN(DaysTest)
#include "days_test.moc"
