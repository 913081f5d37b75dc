#include "support/windows.h"

using namespace support;
using mainwindows::Form3;
using platform::BoxAnswer;

namespace {

const QColor DarkRed(0xC0, 0, 0);
const QColor LightRed(0xFF, 0x80, 0x80);

}  // namespace

class SessionTest : public ProgramTest {
  Q_OBJECT

 private Q_SLOTS:
  void theMark() {
    const mainwindows::Workspace& preview = *program->form.Workspace;
    program->tag(u"LoadingStaticA"_s);
    const QImage picture = program->picture();
    program->state.ProgressStep = 77;
    for (const QColor& phase : {DarkRed, LightRed, DarkRed}) QTRY_COMPARE(program->shownAt({40, 50}), phase);
    program->tag(u"LoadingTextFree"_s);
    QVERIFY(preview.mark().width() == 0 && preview.mark().height() > 5);
    const QColor line = program->shownAt({400, 103});
    QVERIFY(line == DarkRed || line == LightRed);
    for (const int x : {399, 401}) QCOMPARE(program->shownAt({x, 103}), picture.pixelColor(x, 103));
    program->tag(u"LoadingButtonGoText1"_s);
    QCOMPARE(preview.mark().topLeft(), QPointF(310, 205));
    program->tag(u"LoadingBackground"_s);
    QVERIFY(!preview.markVisible() && !preview.blinking());
    QCOMPARE(program->picture(), picture);
    QVERIFY2(program->state.ProgressStep == 77, "drawn anew");
  }

  void toolWindowStaysWithItsTheme() {
    program->tools().close();
    QVERIFY(program->tools().isVisible());
  }

  void timeOfAReport() {
    const auto now = [] { return QTime::currentTime().toString(u"[HH:mm:ss] "_s) + u"what happened"_s; };
    const QString before = now();
    program->form.ShowStatus(u"what happened"_s);
    const QString told = program->form.StatusBar->panel(1);
    QVERIFY2(told == before || told == now(), qPrintable(told));
    mainwindows::Editor homeless({program->state, program->dialogs, program->graphics, {}});
    QVERIFY(homeless.form.StatusBar->panel(1).contains(u"The game folder can't be kept in config.ini"));
  }

  void mousePlace() {
    program->tag(u"LoadingStaticA"_s);
    const std::pair<QPointF, const char*> places[] = {{{40, 50}, "x: 41  y: 51"}, {{799.6, 599.4}, "x: 800  y: 600"}};
    for (const auto& [place, text] : places) {  // the first lies on the mark
      QMouseEvent move(QEvent::MouseMove, place, place, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
      QApplication::sendEvent(program->form.Workspace, &move);
      QCOMPARE(program->form.StatusBar->panel(2), QLatin1StringView(text));
    }
  }

  /// From the top down, and from the top again on a screen that is chosen anew.
  void picking() {
    game->put(ThemeCopy, game->get(ThemeCopy).replace("W=100\r\nH=60", "W=700\r\nH=500"));
    program->form.queue().draw();
    for (const char* object : {"LoadingButtonLast", "LoadingStaticA", "LoadingButtonLast", "", "LoadingButtonLast"}) {
      if (*object == 0) {
        program->screen(u"Loading Screen"_s);
        continue;
      }
      QTest::mouseClick(program->form.Workspace, Qt::LeftButton, {}, {340, 320});
      QCOMPARE(program->tools().objects().Text(), QLatin1StringView(object));
    }
    const auto pick = [&] {
      QTest::mouseClick(program->form.Workspace, Qt::LeftButton, {}, {345, 320});
      return program->tools().objects().Text();
    };
    QCOMPARE(pick(), u"LoadingButtonLast"_s);  // another place
    // The same place, where something else has come.
    game->put(ThemeCopy, game->get(ThemeCopy).replace("X=300\r\nY=200", "X=300\r\nY=290"));
    program->form.queue().draw();
    QVERIFY(pick().startsWith(u"LoadingButton"));
  }

  void theWindowsEndUnderTheOpenDialog() {
    program->edit();
    program->dialogs.boxes = {BoxAnswer::Yes};  // to Open, which asks about the changes
    const auto files = game->files();
    QTimer::singleShot(0, this, [&] {
      program->openDialog([&](Form3& dialog) {
        program->form.close();
        QVERIFY(!dialog.isVisible());
      });
    });
    QTimer::singleShot(60'000, &program->form, [] { QCoreApplication::exit(1); });
    QCOMPARE(QApplication::exec(), 0);
    QVERIFY(program->form.isHidden() && program->form.toolWindow() == nullptr);
    QCOMPARE(program->dialogs.asked.size(), 1);
    QCOMPARE(game->files(), files);
  }
};

QTEST_MAIN(SessionTest)
#include "session_test.moc"
