#include "support/real_input.h"

using namespace support;
using toolwindow::Form2;

const QByteArray Theme = linesOf(
    "[Colors]|Ink=10 20 30|On=250 0 0|Off=0 0 250|[Loading]|"
    "[LoadingButtonA]|Tex=Plate|X=100|Y=100|W=100|H=40|SelectH=60|Color=On|DColor=Off|Type=Font Black|INT=1|DINT=1|"
    "[LoadingButtonB]|Tex=Plate|X=100|Y=200|W=100|H=40|SelectH=60|Color=On|DColor=Off|Type=Font Black|INT=1|DINT=1|"
    "[LoadingStaticA]|Tex=Plate|X=300|Y=100|W=40|H=40|Color=Ink|Type=Font Black|"
    "[LoadingStaticLost]|Tex=Nothing|X=1|Y=1|W=9|H=9|Color=On|"
    "[LoadingStaticUnder]|Tex=Plate|X=110|Y=110|W=20|H=20|Color=Off|"
    "[LoadingTextA]|X=300|Y=300|Font=0|Size=20|Color=Ink|Text=HELLO|");

/// A drag of the mouse over the window, in three steps.
static void drag(QWidget& widget, const QPoint& from, const QPoint& by) {
  QWindow* const window = widget.window()->windowHandle();
  const QPoint place = widget.mapTo(widget.window(), from);
  QTest::mousePress(window, Qt::LeftButton, {}, place);
  for (int step = 1; step <= 3; ++step) QTest::mouseMove(window, place + by * step / 3);
  QTest::mouseRelease(window, Qt::LeftButton, {}, place + by);
}

/// What is picked and moved on the preview, by real clicks and keys.
class PreviewTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void initTestCase() {
    game.put(ThemeFile, Theme);
    game.put(SkinFile, "[Textures]\r\nPlate=ink.png\r\n");
    game.addPicture("ink.png", Qt::black);
    program = std::make_unique<Program>(game);
    openOnScreen(*program);
  }
  void cleanupTestCase() { program.reset(); }

  void objectUnderTheMouse() {
    const std::pair<QPoint, const char*> clicks[] = {{{115, 115}, "LoadingButtonA"},
                                                     {{115, 115}, "LoadingStaticUnder"},
                                                     {{115, 115}, "LoadingButtonA"},
                                                     {{600, 400}, "LoadingButtonA"}};
    pickNamed(tools().objects(), "LoadingButtonB");
    for (const auto& [place, object] : clicks) {
      pickNamed(tools().values(), "X");
      press(*Editors(tools()).Text1);
      clickAt(*program->form.Workspace, place);
      QVERIFY(tools().focusWidget() ==
              (place.x() == 600 ? static_cast<QWidget*>(Editors(tools()).Text1) : &tools().objects()));
      QCOMPARE(tools().objects().Text(), QLatin1StringView(object));
      QCOMPARE(program->value(u"W"_s), tools().objects().Text().endsWith(u"Under") ? u"20"_s : u"100"_s);
    }
    // Another screen, or the same one anew, begins at the top again.
    for (int i = 0; i < 2; ++i) {
      clickAt(*program->form.Workspace, {115, 115});
      QCOMPARE(tools().objects().Text(), u"LoadingButtonA"_s);
      program->screen(u"Loading Screen"_s);
    }
    const QString reason = u"texture 'Nothing' has no entry in the skin"_s;
    for (const auto* row : tools().objects().findItems(u"Loading"_s, Qt::MatchStartsWith)) {
      QCOMPARE(row->toolTip().contains(reason), row->text().endsWith(u"Lost"));
    }
  }

  /// Moves an object of the sample by the mouse and then by keys, and saves.
  void movedByHand() {
    program.reset();
    const GameFolder sample;
    sample.copySample();
    program = std::make_unique<Program>(sample);
    QVERIFY(QTest::qWaitForWindowExposed(&program->form));
    open(*program, "Stagelight", "Neon", Qt::Key_Home);
    const QString file = u"Themes/Stagelight.ini"_s;
    QByteArray expected = sample.get(file);
    const auto at = expected.indexOf("[LoadingStaticRecord]");
    const auto expect = [&](const char* was, const char* is) {
      expected.replace(expected.indexOf(was, at), QByteArrayView(was).size(), is);
    };
    pickNamed(tools().objects(), "LoadingStaticRecord");
    QWidget& preview = *program->form.Workspace;
    bringToFront(program->form);
    QTRY_COMPARE(QApplication::activeWindow(), &program->form);
    drag(preview, {400, 200}, {40, 25});
    expect("X=310", "X=350");
    expect("Y=110", "Y=135");
    QCOMPARE(sample.get(file + u".tmp"_s), expected);
    for (int press = 0; press < 5; ++press) key(preview, Qt::Key_Right);
    for (int press = 0; press < 2; ++press) key(preview, Qt::Key_Down);
    expect("X=350", "X=355");
    expect("Y=135", "Y=137");
    QTRY_COMPARE(sample.get(file + u".tmp"_s), expected);
    QVERIFY(sample.get(file) != expected);
    // The menu comes up behind the keys, and what the user presses meanwhile is served in the drawing of these.
    clickAt(preview, {400, 200});
    realKeys({u"Right"_s, u"shift+F10"_s, u"Escape"_s});
    expect("X=355", "X=356");
    QTRY_COMPARE(sample.get(file + u".tmp"_s), expected);
    QTRY_VERIFY(QApplication::activePopupWidget() != nullptr);
    realKeys({u"Escape"_s});
    QTRY_VERIFY(QApplication::activePopupWidget() == nullptr);
    toolBar(*program, 2);
    QCOMPARE(sample.get(file), expected);
  }

 private:
  Form2& tools() const { return program->tools(); }

  GameFolder game;
  std::unique_ptr<Program> program;
};

QTEST_MAIN(PreviewTest)
#include "preview_test.moc"
