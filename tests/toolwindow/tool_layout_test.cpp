#include "toolwindow/tool_layout.h"

#include <QTest>

using namespace Qt::StringLiterals;
using controls::TwipsRect;
using toolwindow::ToolLayout;

namespace {

#define CONTROL(name) \
  { QStringLiteral(#name), &ToolLayout::name }

const QHash<QString, TwipsRect ToolLayout::*> Controls{
    CONTROL(Combo1),   CONTROL(List1),  CONTROL(ListView1), CONTROL(Frame1),   CONTROL(Command1),
    CONTROL(Numbers),  CONTROL(Combo2), CONTROL(Combo3),    CONTROL(Command2), CONTROL(FloatNumbers),
    CONTROL(Texture),  CONTROL(Combo6), CONTROL(Command8),  CONTROL(Command9), CONTROL(Text3),
    CONTROL(Command4), CONTROL(Texts),  CONTROL(Combo5),    CONTROL(Command6), CONTROL(Command7),
    CONTROL(Text2)};
const QHash<QString, double TwipsRect::*> Sides{{u"left"_s, &TwipsRect::Left},
                                                {u"top"_s, &TwipsRect::Top},
                                                {u"width"_s, &TwipsRect::Width},
                                                {u"height"_s, &TwipsRect::Height}};

/// Compares sides of controls in twips: "List1 top 360, List1 height 2385".
void compare(const ToolLayout& layout, const QString& sides) {
  QStringList actual;
  for (const QString& expected : sides.split(u", "_s)) {
    const QStringList words = expected.split(u' ');
    const TwipsRect& place = layout.*Controls[words[0]];
    actual += words[0] + u' ' + words[1] + u' ' + QString::number(place.*Sides[words[1]]);
  }
  QCOMPARE(actual.join(u", "_s), sides);
}

}  // namespace

class ToolLayoutTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void loadOpenAndClose() {
    ToolLayout layout = toolwindow::loadedLayout();
    QCOMPARE(layout.Width, 5895.0);
    QCOMPARE(layout.Height, 3105.0);
    const QString lists =
        u"List1 top 360, List1 height 2385, List1 width 2837.5, ListView1 left 2867.5, ListView1 width 2907.5, "
        "ListView1 height 2385, Combo1 width 5785, Frame1 top 2775, Frame1 width 4795, Command1 top 2865"_s;
    compare(layout, lists);
    compare(layout, u"Frame1 height 735, Command1 left 4920, Texts top 240, FloatNumbers top 240"_s);
    layOutOpening(layout, layout.Selection);
    QCOMPARE(layout.Height, 3835.0);
    compare(layout, lists);
    compare(layout, u"Frame1 height 700, Command1 left 4895, Numbers width 4625, Combo6 width 3425"_s);
    layOutOpening(layout, layout.Texts);
    QCOMPARE(layout.Height, 4235.0);
    compare(layout, lists);
    compare(layout, u"Frame1 height 1100"_s);
    layOutClosing(layout);
    QCOMPARE(layout.Height, 3105.0);
    compare(layout, lists);
  }

  void dragged() {
    const struct {
      double width, height;
      bool editor;
      const char* sides;
    } rows[] = {
        {7000, 5000, false,
         "Combo1 width 6890, List1 width 3390, List1 height 4280, ListView1 left 3420, ListView1 width 3460, "
         "ListView1 height 4280, Frame1 top 4670, Frame1 width 5900, Command1 top 4760"},
        {5000, 3835, true,
         "Combo1 width 5785, Frame1 top 2745, List1 height 2385, Frame1 width 3900, List1 width 2390, "
         "ListView1 left 2420, ListView1 width 2460, Command1 left 4000, Numbers width 3730, Combo2 width 3430, "
         "Text2 width 3370, Command7 left 3160, Command6 left 2755, Combo5 width 2530, Combo3 width 1070, "
         "Command2 left 3180, Text3 width 2830, Command4 left 3160, Command9 left 3160, Command8 left 2755, "
         "Combo6 width 2530"},
        {5000, 1400, true, "Frame1 top 310, List1 height 2385, Frame1 width 4795, List1 width 2837.5"},
        {3900, 3835, true, "Texts width 2630, Combo5 width 1430, Combo3 width 1965, Texture width 4625"}};
    for (const auto& [width, height, editor, sides] : rows) {
      ToolLayout layout = toolwindow::loadedLayout();
      if (editor) layOutOpening(layout, layout.Color);
      layOut(layout, width, height, editor, false);
      compare(layout, QLatin1StringView(sides));
    }
  }
};

QTEST_MAIN(ToolLayoutTest)
#include "tool_layout_test.moc"
