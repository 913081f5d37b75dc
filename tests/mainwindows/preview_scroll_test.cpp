#include "mainwindows/preview_scroll.h"

#include <QScrollArea>
#include <QScrollBar>

#include "support/results.h"

using namespace Qt::StringLiterals;

/// A preview of 800 x 600 that only 300 x 200 of are seen.
class PreviewScrollTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void scrolls() {
    QScrollArea area;
    area.resize(302, 202);  // with its frame
    area.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    QWidget& preview = *new QWidget;
    preview.resize(800, 600);
    area.setWidget(&preview);
    area.show();
    QStringList scrolled;
    mainwindows::PreviewScroll scroll(area, [&](const QPoint& by) { scrolled += u"%1,%2"_s.arg(by.x()).arg(by.y()); });
    auto& steps = *area.findChild<QTimer*>(u"ScrollSteps"_s);
    support::compareRows(u"preview_scroll.txt"_s, [&](const QString& row) {
      const QStringList words = row.split(u' ');
      const auto number = [&](qsizetype word) { return words.value(word).toInt(); };
      area.horizontalScrollBar()->setValue(number(1));
      area.verticalScrollBar()->setValue(number(2));
      scrolled.clear();
      steps.stop();
      if (words[0] == u"show") scroll.show({number(3), number(4), number(5), number(6)});
      if (words[0] == u"drag") scroll.dragAt({number(3), number(4)});
      for (int times = 0; times < number(5) && steps.isActive(); ++times) {
        QTimerEvent step(steps.timerId());
        QCoreApplication::sendEvent(&steps, &step);
      }
      const QString told = scrolled.join(u' ') + (steps.isActive() ? u", goes on"_s : u""_s);
      return u"%1,%2 %3"_s.arg(-preview.x()).arg(-preview.y()).arg(told).trimmed();
    });
  }
};

QTEST_MAIN(PreviewScrollTest)
#include "preview_scroll_test.moc"
