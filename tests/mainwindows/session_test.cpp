#include <QPainter>

#include "support/windows.h"

using namespace support;
using mainwindows::Form1;
using mainwindows::Form3;
using platform::BoxAnswer;

namespace {

const QColor DarkRed(0xC0, 0, 0);
const QColor LightRed(0xFF, 0x80, 0x80);

QColor shownAt(const Program& program, const QPoint& place) {
  return program.form.Workspace->grab({place, QSize(1, 1)}).toImage().pixelColor(0, 0);
}

/// The program with no theme: the start picture on a colour.
void checkWithoutTheme(const Program& program, const QColor& back) {
  const Form1& form = program.form;
  QCOMPARE(program.buttons(), u"+---"_s);
  QVERIFY(named<QLabel>(form, "Label1")->isVisible() && named<QLabel>(form, "Label2")->isVisible());
  QVERIFY(form.schemes().isHidden() && form.buttons().isHidden() && form.ProgressBar1->isHidden());
  QVERIFY(form.toolWindow() == nullptr && form.findChildren<toolwindow::Form2*>().isEmpty());
  QVERIFY(!form.Workspace->markVisible() && !form.Workspace->blinking());
  QVERIFY(!program.state.ThemeOpened && !program.state.Changed && program.state.paths.ThemeFile.isEmpty());
  QImage expected(800, 600, QImage::Format_RGB32);
  expected.fill(back);
  QPainter(&expected).drawImage(0, 0, QImage(u":/assets/start.jpg"_s));
  QCOMPARE(program.picture().convertToFormat(QImage::Format_RGB32), expected);
}

}  // namespace

class SessionTest : public ProgramTest {
  Q_OBJECT

 private:
  QColor pixel(int x, int y) const { return program->picture().pixelColor(x, y); }

 private Q_SLOTS:
  void startAndAfterClose() {
    const Program fresh(*game);
    QCOMPARE(fresh.form.windowTitle(), QStringLiteral("Cantorama Theme Edit v." CANTORAMA_VERSION));
    QCOMPARE(named<QLabel>(fresh.form, "Label1")->text(), QStringLiteral("v." CANTORAMA_VERSION));
    checkWithoutTheme(fresh, QColor(0x80, 0x80, 0x80));
    program->click(3);
    settle();
    QVERIFY(program->dialogs.asked.isEmpty());
    checkWithoutTheme(*program, QColor(212, 208, 200));
    QVERIFY(game->has(ThemeCopy));
  }

  void closeWithChanges() {
    program->edit();
    const QImage picture = program->picture();
    program->click(3);
    QCOMPARE(program->dialogs.asked, QStringList{u"Save: Something changed. Close without saving?"_s});
    QVERIFY(program->state.ThemeOpened && program->enabled(2) && program->picture() == picture);
    program->dialogs.boxes = {BoxAnswer::Yes};
    program->click(3);
    QVERIFY(!program->state.ThemeOpened);
    QVERIFY(game->get(ThemeCopy).contains("X=77") && !game->get(ThemeFile).contains("X=77"));
    program->open();
    program->tag(u"LoadingStaticA"_s);
    QCOMPARE(program->value(u"X"_s), u"40"_s);
  }

  /// One report at a time: what has succeeded, or what failed first and what else is to be known behind it.
  void reports() {
    const auto anOldOne = [&] { program->form.ShowStatus(u"Error"_s); };
    QCOMPARE(program->status(), u"Alpha, One, English"_s);
    anOldOne();
    program->edit();
    QCOMPARE(program->status(), u"LoadingStaticA: X = 77"_s);
    // Another program's change, and a place that can't be drawn.
    const QString noted = u"; %1 was changed by another program"_s;
    const QString copy = game->path() + u"Themes\\Alpha.ini.tmp"_s;
    game->put(ThemeCopy, game->get(ThemeCopy) + "; other");
    program->edit(u"Y"_s, u"99999"_s);
    QVERIFY2(program->status().startsWith(u"LoadingStaticA: Y = 99999; Error while draw"),
             qPrintable(program->status()));
    QVERIFY2(program->status().contains(noted.arg(copy)), qPrintable(program->status()));
    // The same before a write that fails.
    program->edit(u"Y"_s, u"50"_s);
    QCOMPARE(program->status(), u"LoadingStaticA: Y = 50"_s);
    game->put(ThemeCopy, game->get(ThemeCopy) + "; other");
    program->tag(u"LoadingTextFree"_s);
    program->row(u"Text"_s);
    Editors(program->tools()).Text2->SetText(u"Hi"_s);
    game->protect(LanguageCopy);
    Editors(program->tools()).Command1->click();
    QVERIFY2(program->status().startsWith(u"Error while writing tempfile ["), qPrintable(program->status()));
    QVERIFY2(program->status().contains(noted.arg(copy)), qPrintable(program->status()));
    program->click(2);
    QVERIFY(program->status() == u"Saved" && !program->state.Changed);
    anOldOne();
    program->click(3);
    QCOMPARE(program->status(), u"Closed"_s);
    // More colours than there is room for, and an older working copy.
    game->put(ThemeFile, game->get(ThemeFile).replace("[Colors]\r\n", linesOf(manyColors(120))));
    program->open();
    QVERIFY2(program->status().startsWith(u"Error while"), qPrintable(program->status()));
    QVERIFY2(program->status().contains(copy + u" held other changes"_s), qPrintable(program->status()));
  }

  /// The report of a mark that can't be placed stands behind what was done, and goes with the next choice.
  void withoutMark() {
    program->click(3);
    game->put(ThemeFile, game->get(ThemeFile).replace("W=100", "W=-1"));
    program->open();
    for (int i = 0; i < 2; ++i) {
      program->tag(u"LoadingStaticA"_s);
      QCOMPARE(program->status(), u"Error while drawing highlighting cursor [W is -1]"_s);
      program->tag(u"LoadingTextFree"_s);
      QCOMPARE(program->status(), QString());
    }
    program->edit(u"X"_s, u"688"_s);
    QCOMPARE(program->status(), u"LoadingStaticA: X = 688; no mark: W is -1"_s);
    program->tag(u"LoadingTextFree"_s);
    QCOMPARE(program->status(), u"LoadingStaticA: X = 688"_s);
  }

  void screenWithoutObjectsAndBackgroundColour() {
    program->tag(u"LoadingStaticA"_s);
    program->screen(u"Top5 Screen"_s);
    const Form1& form = program->form;
    QCOMPARE(program->tools().objects().ListCount(), 0);
    QCOMPARE(program->state.ProgressStep, qint16(0));
    QVERIFY(form.ProgressBar1->isHidden() && form.buttons().isHidden());
    QCOMPARE(pixel(60, 70), QColor(Qt::white));
    QVERIFY2(form.Workspace->markVisible(), "it stays until an object is chosen");
    QCOMPARE(program->value(u"X"_s), u"40"_s);
    program->dialogs.colors = {QColor(10, 20, 30)};
    program->click(4);
    program->click(4);  // Cancel
    QCOMPARE(program->dialogs.asked, QStringList({u"colour: #ffffff"_s, u"colour: #0a141e"_s}));
    QCOMPARE(pixel(60, 70), QColor(10, 20, 30));
    program->click(3);
    program->open();
    QCOMPARE(program->state.BackgroundColor, quint32(0x1E140A));
  }

  void choicesOfTheMainWindow() {
    Form1& form = program->form;
    const auto isRed = [this](int x, int y) { return pixel(x, y).red() > pixel(x, y).blue(); };
    QVERIFY(isRed(340, 220) && isRed(340, 320));  // the selected one by Color, the other by DColor
    form.buttons().setFocus();
    QTest::keyClick(&form.buttons(), Qt::Key_Down);
    QCOMPARE(program->state.SelectedButton, quint8(2));
    QVERIFY(!isRed(340, 220) && !isRed(340, 320));
    QVERIFY2(pixel(310, 250) == pixel(310, 270), "the first button isn't the higher one any more");
    program->edit();
    QCOMPARE(form.buttons().Text(), u"Select Button 2"_s);
    program->screen(u"Main Screen"_s);
    QVERIFY(form.buttons().isHidden() && form.buttons().ListCount() == 0 && program->state.SelectedButton == 1);
    program->state.ProgressStep = 77;
    form.schemes().SetListIndex(3);
    QVERIFY2(program->state.ProgressStep == 77, "drawn without the user");
    form.schemes().setFocus();
    QTest::keyClick(&form.schemes(), Qt::Key_Down);
    QVERIFY(program->state.ProgressStep != 77);
  }

  void theMark() {
    const mainwindows::Workspace& preview = *program->form.Workspace;
    program->tag(u"LoadingStaticA"_s);
    const QImage picture = program->picture();
    program->state.ProgressStep = 77;
    for (const QColor& phase : {DarkRed, LightRed, DarkRed}) QTRY_COMPARE(shownAt(*program, {40, 50}), phase);
    for (const QPoint& edge : {QPoint(139, 50), {40, 109}, {139, 109}, {90, 50}, {139, 80}}) {
      QCOMPARE(shownAt(*program, edge), DarkRed);
    }
    for (const QPoint& beside : {QPoint(39, 50), {140, 50}, {41, 51}, {40, 110}, {90, 80}}) {
      QCOMPARE(shownAt(*program, beside), picture.pixelColor(beside));
    }
    program->tag(u"LoadingTextFree"_s);
    QVERIFY(preview.mark().width() == 0 && preview.mark().height() > 5);
    const QColor line = shownAt(*program, {400, 103});
    QVERIFY(line == DarkRed || line == LightRed);
    for (const int x : {399, 401}) QCOMPARE(shownAt(*program, {x, 103}), picture.pixelColor(x, 103));
    program->tag(u"LoadingButtonGoText1"_s);
    QCOMPARE(preview.mark().topLeft(), QPointF(310, 205));
    program->tag(u"LoadingBackground"_s);
    QVERIFY(!preview.markVisible() && !preview.blinking());
    QCOMPARE(program->picture(), picture);
    QVERIFY2(program->state.ProgressStep == 77, "drawn anew");
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
    QTimer::singleShot(5000, &program->form, [] { QCoreApplication::exit(1); });
    QCOMPARE(QApplication::exec(), 0);
    QVERIFY(program->form.isHidden() && program->form.toolWindow() == nullptr);
    QCOMPARE(program->dialogs.asked.size(), 1);
    QCOMPARE(game->files(), files);
  }
};

QTEST_MAIN(SessionTest)
#include "session_test.moc"
