#include <QPainter>
#include <QTest>
#include <QTimer>

#include "support/windows.h"

using namespace Qt::StringLiterals;
using platform::BoxAnswer;
using support::Program;

namespace {

const QColor DarkRed(0xC0, 0, 0);
const QColor LightRed(0xFF, 0x80, 0x80);

void edit(Program& program) {
  program.tag(u"LoadingStaticA"_s);
  program.row(u"X"_s);
  program.tools().Text1->SetText(u"77"_s);
  program.tools().Command1->click();
}

QColor shownAt(Program& program, int x, int y) {
  return program.form.Workspace->grab(QRect(x, y, 1, 1)).toImage().pixelColor(0, 0);
}

}  // namespace

class SessionTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void init() {
    game = std::make_unique<support::GameFolder>();
    program = std::make_unique<Program>(*game);
  }
  void cleanup() {
    program.reset();
    game.reset();
  }

  void startAndAfterClose() {
    const auto check = [&](const QColor& back) {
      const mainwindows::Form1& form = program->form;
      QVERIFY(program->enabled(1) && !program->enabled(2) && !program->enabled(3) && !program->enabled(4));
      QVERIFY(form.Label1->isVisible() && form.Label2->isVisible());
      QVERIFY(form.Combo1->isHidden() && form.Combo2->isHidden() && form.ProgressBar1->isHidden());
      QVERIFY(form.ToolWindow == nullptr && form.findChildren<toolwindow::Form2*>().isEmpty());
      QVERIFY(!form.Workspace->MarkVisible() && !form.Workspace->Blinking());
      QVERIFY(!program->state.ThemeOpened && !program->state.Changed && program->state.Paths.ThemeFile.isEmpty());
      QImage expected(800, 600, QImage::Format_RGB32);
      expected.fill(back);
      QPainter(&expected).drawImage(0, 0, QImage(u":/assets/start.jpg"_s));
      QCOMPARE(form.Workspace->Surface().image().convertToFormat(QImage::Format_RGB32), expected);
    };
    QCOMPARE(program->form.windowTitle(), u"Cantorama Theme Edit v.0.3a"_s);
    QCOMPARE(program->form.StatusBar->Panel(2), u"x: 1  y: 1"_s);
    QCOMPARE(program->form.Label1->text(), u"v.0.3a"_s);
    QCOMPARE(program->form.Client->size(), QSize(800, 650));
    check(QColor(0x80, 0x80, 0x80));
    program->open();
    QVERIFY(program->form.ToolWindow != nullptr);
    program->click(3);
    support::settle();
    QVERIFY(program->dialogs.asked.isEmpty());
    check(QColor(212, 208, 200));
    QVERIFY(game->has(support::ThemeCopy));
  }

  void closeWithChanges() {
    program->open();
    edit(*program);
    const QImage picture = program->form.Workspace->Surface().image();
    program->click(3);
    QCOMPARE(program->dialogs.asked, QStringList{u"Save: Something changed. Close without saving?"_s});
    QVERIFY(program->state.ThemeOpened && program->state.Changed && program->enabled(2));
    QCOMPARE(program->form.Workspace->Surface().image(), picture);
    program->dialogs.boxes = {BoxAnswer::Yes};
    program->click(3);
    QVERIFY(!program->state.ThemeOpened);
    QVERIFY(game->read(support::ThemeCopy).contains("X=77"));
    QVERIFY(!game->read(u"Themes/Alpha.ini"_s).contains("X=77"));
    program->open();
    program->tag(u"LoadingStaticA"_s);
    QCOMPARE(program->value(u"X"_s), u"40"_s);
  }

  void save_data() {
    QTest::addColumn<QString>("readOnly");
    QTest::addColumn<bool>("themeSaved");
    QTest::newRow("all written") << QString() << true;
    QTest::newRow("the theme can't be written") << u"Themes/Alpha.ini"_s << false;
    QTest::newRow("the language can't be written") << u"Languages/English.ini"_s << true;
  }
  void save() {
    QFETCH(QString, readOnly);
    QFETCH(bool, themeSaved);
    program->open();
    edit(*program);
    if (!readOnly.isEmpty()) game->setWritable(readOnly, false);
    program->click(2);
    const bool failed = !readOnly.isEmpty();
    QCOMPARE(program->status().startsWith(u"Error while saving files ["), failed);
    QCOMPARE(game->read(u"Themes/Alpha.ini"_s).contains("X=77"), themeSaved);
    QVERIFY(program->state.ThemeOpened && game->has(support::ThemeCopy));
    QCOMPARE(program->state.Changed, failed);
    QCOMPARE(program->enabled(2), failed);
    if (failed) {
      game->setWritable(readOnly, true);
      program->click(2);
      QVERIFY(!program->state.Changed && !program->enabled(2));
    }
    program->click(3);
    QVERIFY(program->dialogs.asked.isEmpty());
  }

  void screenWithoutObjectsAndBackgroundColour() {
    program->open();
    program->tag(u"LoadingStaticA"_s);
    program->screen(u"Top5 Screen"_s);
    const mainwindows::Form1& form = program->form;
    const auto middle = [&] { return form.Workspace->Surface().image().pixelColor(60, 70); };
    QCOMPARE(program->tools().List1->ListCount(), 0);
    QCOMPARE(program->state.ProgressStep, qint16(0));
    QVERIFY(form.ProgressBar1->isHidden() && form.Combo2->isHidden());
    QCOMPARE(middle(), QColor(Qt::white));
    QVERIFY2(form.Workspace->MarkVisible(), "it stays until an object is chosen");
    QCOMPARE(program->value(u"X"_s), u"40"_s);
    program->dialogs.colors = {QColor(10, 20, 30)};
    program->click(4);
    QCOMPARE(program->dialogs.asked.last(), u"colour: #ffffff"_s);
    QCOMPARE(middle(), QColor(10, 20, 30));
    program->click(4);  // Cancel
    QCOMPARE(program->state.BackgroundColor, quint32(0x1E140A));
    QCOMPARE(middle(), QColor(10, 20, 30));
    program->click(3);
    program->open();
    QCOMPARE(program->state.BackgroundColor, quint32(0x1E140A));
  }

  void choicesOfTheMainWindow() {
    program->open();
    mainwindows::Form1& form = program->form;
    const auto pixel = [&](int x, int y) { return form.Workspace->Surface().image().pixelColor(x, y); };
    QCOMPARE(form.Combo2->ListCount(), 2);
    QVERIFY(pixel(310, 250) != pixel(310, 270));  // the selected button is higher: 60
    form.Combo2->setFocus();
    QTest::keyClick(form.Combo2, Qt::Key_Down);
    QCOMPARE(program->state.SelectedButton, quint8(2));
    QCOMPARE(pixel(310, 250), pixel(310, 270));
    edit(*program);
    QCOMPARE(form.Combo2->Text(), u"Select Button 2"_s);
    program->screen(u"Main Screen"_s);
    QVERIFY(form.Combo2->isHidden());
    QVERIFY(form.Combo2->ListCount() == 0 && program->state.SelectedButton == 1);
    program->state.ProgressStep = 77;
    form.Combo1->SetListIndex(3);
    QCOMPARE(program->state.ProgressStep, qint16(77));
    form.Combo1->setFocus();
    QTest::keyClick(form.Combo1, Qt::Key_Down);
    QVERIFY(program->state.ProgressStep != 77);
  }

  void theMark() {
    program->open();
    mainwindows::Workspace& preview = *program->form.Workspace;
    program->tag(u"LoadingStaticA"_s);
    const QImage picture = preview.Surface().image();
    const QList<QPoint> edge{{40, 50}, {139, 50}, {40, 109}, {139, 109}, {90, 50}, {139, 80}};
    const QList<QPoint> outside{{39, 50}, {140, 50}, {41, 51}, {40, 110}, {90, 80}};
    program->state.ProgressStep = 77;
    QTRY_COMPARE(shownAt(*program, 40, 50), DarkRed);
    for (const QPoint& place : edge) QCOMPARE(shownAt(*program, place.x(), place.y()), DarkRed);
    for (const QPoint& place : outside) QCOMPARE(shownAt(*program, place.x(), place.y()), picture.pixelColor(place));
    QTRY_COMPARE(shownAt(*program, 40, 50), LightRed);
    QTRY_COMPARE(shownAt(*program, 40, 50), DarkRed);
    program->tag(u"LoadingTextFree"_s);
    QCOMPARE(preview.Mark().width(), 0.0);
    QVERIFY(preview.Mark().height() > 5);
    const QColor line = shownAt(*program, 400, 103);
    QVERIFY(line == DarkRed || line == LightRed);
    for (const int beside : {399, 401}) QCOMPARE(shownAt(*program, beside, 103), picture.pixelColor(beside, 103));
    program->tag(u"LoadingButtonGoText1"_s);
    QCOMPARE(preview.Mark().topLeft(), QPointF(310, 205));
    program->tag(u"LoadingBackground"_s);
    QVERIFY(!preview.MarkVisible() && !preview.Blinking());
    QCOMPARE(preview.Surface().image(), picture);
    QCOMPARE(program->state.ProgressStep, qint16(77));
  }

  void theMarkBlinksWhileARenderRuns() {
    program->open();
    program->tag(u"LoadingStaticA"_s);
    mainwindows::Workspace& preview = *program->form.Workspace;
    QSet<QRgb> seen;
    QObject life;
    connect(&program->form.Queue, &controls::WorkQueue::Yielding, &life, [&] {
      QTest::qSleep(30);
      seen += shownAt(*program, 40, 50).rgb();
    });
    for (int i = 0; i < 3; ++i) program->form.Queue.Draw();
    QVERIFY(preview.Blinking());
    QVERIFY(seen.contains(DarkRed.rgb()) && seen.contains(LightRed.rgb()));
  }

  void mousePlace() {
    program->open();
    program->tag(u"LoadingStaticA"_s);
    const std::pair<QPointF, const char*> places[] = {
        {{0, 0}, "x: 1  y: 1"}, {{40, 50}, "x: 41  y: 51"}, {{799.6, 599.4}, "x: 800  y: 600"}};
    for (const auto& [place, text] : places) {  // the second lies on the mark
      QMouseEvent move(QEvent::MouseMove, place, place, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
      QApplication::sendEvent(program->form.Workspace, &move);
      QCOMPARE(program->form.StatusBar->Panel(2), QLatin1StringView(text));
    }
  }

  void theWindowsEnd_data() {
    QTest::addColumn<bool>("open");
    QTest::addColumn<bool>("underADialog");
    QTest::newRow("no theme") << false << false;
    QTest::newRow("with changes") << true << false;
    QTest::newRow("under the Open dialog") << false << true;
  }
  void theWindowsEnd() {
    QFETCH(bool, open);
    QFETCH(bool, underADialog);
    if (open) {
      program->open();
      edit(*program);
    }
    const auto files = game->files();
    QTimer::singleShot(0, this, [&] {
      if (!underADialog) {
        program->form.close();
        return;
      }
      program->openDialog([&](mainwindows::Form3& dialog) {
        program->form.close();
        QVERIFY(!dialog.isVisible());
      });
    });
    QTimer tooLong;
    tooLong.callOnTimeout([] { QCoreApplication::exit(1); });
    tooLong.start(5000);
    QCOMPARE(QApplication::exec(), 0);
    QVERIFY(program->form.isHidden() && program->form.ToolWindow == nullptr);
    QVERIFY(program->dialogs.asked.isEmpty());
    QCOMPARE(game->files(), files);
  }

 private:
  std::unique_ptr<support::GameFolder> game;
  std::unique_ptr<Program> program;
};

QTEST_MAIN(SessionTest)
#include "session_test.moc"
