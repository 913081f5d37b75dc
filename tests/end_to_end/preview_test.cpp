#include "support/real_input.h"

using namespace support;

/// A drag of the mouse over the window, in three steps.
static void drag(QWidget& widget, const QPoint& from, const QPoint& by) {
  QWindow* const window = widget.window()->windowHandle();
  const QPoint place = widget.mapTo(widget.window(), from);
  QTest::mousePress(window, Qt::LeftButton, {}, place);
  for (int step = 1; step <= 3; ++step) QTest::mouseMove(window, place + by * step / 3);
  QTest::mouseRelease(window, Qt::LeftButton, {}, place + by);
}

/// What is moved on the preview, by the real mouse and real keys.
class PreviewTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  /// Moves an object of the sample by the mouse and then by keys, and saves.
  void movedByHand() {
    const GameFolder sample;
    sample.copySample();
    Program program(sample);
    QVERIFY(QTest::qWaitForWindowExposed(&program.form));
    open(program, "Stagelight", "Neon", Qt::Key_Home);
    const QString file = u"Themes/Stagelight.ini"_s;
    QByteArray expected = sample.get(file);
    const auto at = expected.indexOf("[LoadingStaticRecord]");
    const auto expect = [&](const char* was, const char* is) {
      expected.replace(expected.indexOf(was, at), QByteArrayView(was).size(), is);
    };
    pickNamed(program.tools().objects(), "LoadingStaticRecord");
    QWidget& preview = *program.form.Workspace;
    // The window manager may bring the tool window to the front in the middle of a drag, which gives that up.
    const QByteArray before = sample.get(file + u".tmp"_s);
    for (int times = 0; times < 3 && sample.get(file + u".tmp"_s) == before; ++times) {
      bringToFront(program.form);
      QTRY_COMPARE(QApplication::activeWindow(), &program.form);
      drag(preview, {400, 200}, {40, 25});
    }
    expect("X=310", "X=351");  // a guide takes it a pixel further
    expect("Y=110", "Y=135");
    QVERIFY2(sample.get(file + u".tmp"_s) == expected, qPrintable(program.status()));
    for (int press = 0; press < 5; ++press) key(preview, Qt::Key_Right);
    for (int press = 0; press < 2; ++press) key(preview, Qt::Key_Down);
    expect("X=351", "X=356");
    expect("Y=135", "Y=137");
    QTRY_COMPARE(sample.get(file + u".tmp"_s), expected);
    QVERIFY(sample.get(file) != expected);
    // The menu comes up behind the keys, and what the user presses meanwhile is served in the drawing of these.
    bringToFront(program.form);
    QTRY_COMPARE(QApplication::activeWindow(), &program.form);
    clickAt(preview, {400, 200});
    realKeys({u"Right"_s, u"shift+F10"_s, u"Escape"_s});
    expect("X=356", "X=357");
    QTRY_COMPARE(sample.get(file + u".tmp"_s), expected);
    QTRY_VERIFY(QApplication::activePopupWidget() != nullptr);
    realKeys({u"Escape"_s});
    QTRY_VERIFY(QApplication::activePopupWidget() == nullptr);
    toolBar(program, 2);
    QCOMPARE(sample.get(file), expected);
  }
};

QTEST_MAIN(PreviewTest)
#include "preview_test.moc"
