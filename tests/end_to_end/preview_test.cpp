#include "support/real_input.h"

using namespace Qt::StringLiterals;
using namespace support;

namespace {

const QByteArray Theme = linesOf(
    "[Colors]|On=250 0 0|Off=0 0 250|[Loading]|"
    "[LoadingButtonA]|Tex=Ink|X=100|Y=100|W=100|H=40|SelectH=60|Color=On|DColor=Off|Type=Font Black|INT=1|DINT=1|"
    "[LoadingButtonB]|Tex=Ink|X=100|Y=200|W=100|H=40|SelectH=60|Color=On|DColor=Off|Type=Font Black|INT=1|DINT=1|"
    "[LoadingStaticLost]|Tex=Nothing|X=1|Y=1|W=9|H=9|Color=On|"
    "[LoadingStaticUnder]|Tex=Ink|X=110|Y=110|W=20|H=20|Color=Off|");

}  // namespace

class PreviewTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void init() {
    game.put(u"Themes/Alpha.ini"_s, Theme);
    game.put(u"Skins/Alpha/One.ini"_s, "[Textures]\nInk=ink.png\n");
    game.addPicture("ink.png", Qt::black);
    program = std::make_unique<Program>(game);
    openOnScreen(*program);
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
    const std::pair<QPoint, const char*> clicks[] = {{{115, 115}, "LoadingButtonA"},
                                                     {{115, 115}, "LoadingStaticUnder"},
                                                     {{115, 115}, "LoadingButtonA"},
                                                     {{600, 400}, "LoadingButtonA"}};
    for (const auto& [place, object] : clicks) {
      clickAt(*program->form.Workspace, place);
      QCOMPARE(program->tools().List1->Text(), QLatin1StringView(object));
      QCOMPARE(program->value(u"W"_s), program->tools().List1->Text().endsWith(u"Under") ? u"20"_s : u"100"_s);
    }
  }

  void reasonOnTheRow() {
    const auto rows = program->tools().List1->findItems(u"LoadingStatic"_s, Qt::MatchStartsWith);
    QVERIFY(rows[0]->toolTip().contains(u"texture 'Nothing' has no entry in the skin"_s));
    QCOMPARE(rows[1]->toolTip(), QString());
  }

 private:
  QRgb pixel(int x, int y) const { return program->picture().pixel(x, y); }
  QRgb screenPixel(int x, int y) const {
    const QPoint place = program->form.Workspace->mapToGlobal(QPoint(x, y));
    return program->form.screen()->grabWindow(0, place.x(), place.y(), 1, 1).toImage().pixel(0, 0) | 0xFF000000;
  }

  GameFolder game;
  std::unique_ptr<Program> program;
};

QTEST_MAIN(PreviewTest)
#include "preview_test.moc"
