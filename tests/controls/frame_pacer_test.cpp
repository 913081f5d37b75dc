#include "controls/frame_pacer.h"

#include <QTest>

class FramePacerTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void aBurstShowsItsFirstStepAtOnceAndItsLastInTheNextFrame() {
    int step = 0;
    QList<int> shown;
    controls::FramePacer pacer([&] { shown << step; });
    while (++step <= 100) pacer.Request();
    QCOMPARE(shown.first(), 1);
    QTRY_VERIFY(shown.last() > 100);
    QTest::qWait(50);
    const auto frames = shown.size();
    QVERIFY(frames < 100);
    pacer.Request();
    QCOMPARE(shown.size(), frames + 1);
  }
};

QTEST_GUILESS_MAIN(FramePacerTest)
#include "frame_pacer_test.moc"
