#include "support/real_input.h"

using namespace Qt::StringLiterals;
using namespace support;

namespace {

const QByteArray Theme =
    "[Colors]\nOn=250 0 0\nOff=0 0 250\n[Loading]\n"
    "[LoadingButtonA]\nTex=Ink\nX=100\nY=100\nW=100\nH=40\nSelectH=60\nColor=On\nDColor=Off\nType=Font Black\n"
    "INT=1\nDINT=1\n"
    "[LoadingButtonB]\nTex=Ink\nX=100\nY=200\nW=100\nH=40\nSelectH=60\nColor=On\nDColor=Off\nType=Font Black\n"
    "INT=1\nDINT=1\n"
    "[LoadingStaticLost]\nTex=Nothing\nX=1\nY=1\nW=9\nH=9\nColor=On\n"
    "[LoadingStaticUnder]\nTex=Ink\nX=110\nY=110\nW=20\nH=20\nColor=Off\n";

}  // namespace

class PreviewTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void init() {
    game.write(u"Themes/Alpha.ini"_s, Theme);
    game.write(u"Skins/Alpha/One.ini"_s, "[Textures]\nInk=ink.png\n");
    QImage ink(4, 4, QImage::Format_RGB32);
    ink.fill(Qt::black);
    QVERIFY(ink.save(game.native(u"Skins/Alpha/ink.png"_s)));
    program = std::make_unique<Program>(game);
    QVERIFY(QTest::qWaitForWindowExposed(&program->form));
    program->open();
    QVERIFY(QTest::qWaitForWindowExposed(program->form.ToolWindow));
    program->tools().move(program->form.geometry().bottomRight() + QPoint(40, -300));
    settle();
  }
  void cleanup() { program.reset(); }

  void selectedButton() {
    QCOMPARE(pixel(150, 150), qRgb(250, 0, 0));
    QCOMPARE(pixel(150, 220), qRgb(0, 0, 250));
    pickEntry(*program->form.Combo2, 1);
    settle();
    QCOMPARE(program->state.SelectedButton, quint8(2));
    QCOMPARE(pixel(150, 120), qRgb(0, 0, 250));
    QCOMPARE(pixel(150, 150), qRgb(255, 255, 255));
    QCOMPARE(pixel(150, 250), qRgb(250, 0, 0));
    QCOMPARE(program->form.Combo2->ListCount(), 2);
  }

  void markOnThePickedObject() {
    pickNamed(*program->tools().List1, "LoadingButtonB");
    QCOMPARE(program->form.Workspace->Mark(), QRectF(100, 200, 100, 40));
    QTRY_COMPARE(screenPixel(100, 200), qRgb(0xC0, 0, 0));
    QTRY_COMPARE(screenPixel(199, 239), qRgb(0xFF, 0x80, 0x80));
    QCOMPARE(pixel(100, 200), qRgb(0, 0, 250));
  }

  void objectUnderTheMouse() {
    clickAt(*program->form.Workspace, {115, 115});
    QCOMPARE(program->tools().List1->Text(), u"LoadingButtonA"_s);
    clickAt(*program->form.Workspace, {115, 115});
    QCOMPARE(program->tools().List1->Text(), u"LoadingStaticUnder"_s);
    QCOMPARE(program->value(u"W"_s), u"20"_s);
    clickAt(*program->form.Workspace, {115, 115});
    QCOMPARE(program->tools().List1->Text(), u"LoadingButtonA"_s);
    clickAt(*program->form.Workspace, {600, 400});
    QCOMPARE(program->tools().List1->Text(), u"LoadingButtonA"_s);
  }

  void reasonOnTheRow() {
    const auto rows = program->tools().List1->findItems(u"LoadingStatic"_s, Qt::MatchStartsWith);
    QVERIFY(rows[0]->toolTip().contains(u"texture 'Nothing' has no entry in the skin"_s));
    QCOMPARE(rows[1]->toolTip(), QString());
  }

 private:
  QRgb pixel(int x, int y) const { return program->form.Workspace->Surface().image().pixel(x, y); }
  QRgb screenPixel(int x, int y) const {
    const QPoint place = program->form.Workspace->mapToGlobal(QPoint(x, y));
    return program->form.screen()->grabWindow(0, place.x(), place.y(), 1, 1).toImage().pixel(0, 0) | 0xFF000000;
  }

  GameFolder game;
  std::unique_ptr<Program> program;
};

QTEST_MAIN(PreviewTest)
#include "preview_test.moc"
