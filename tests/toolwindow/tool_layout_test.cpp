#include "toolwindow/tool_layout.h"

#include <QTest>

using namespace Qt::StringLiterals;
using controls::TwipsRect;
using toolwindow::ToolLayout;

namespace {

struct Size {
  double width;
  double height;
  bool editor = false;
};

/// One side of one control in twips.
struct Side {
  const char* name;
  TwipsRect ToolLayout::*control;
  double TwipsRect::*side;
  double twips;
};

#define SIDE(control, side, twips)                                    \
  Side {                                                              \
#control "." #side, &ToolLayout::control, &TwipsRect::side, twips \
  }

void compare(const ToolLayout& layout, const std::vector<Side>& sides) {
  for (const auto& [name, control, side, twips] : sides) {
    const double actual = layout.*control.*side;
    QVERIFY2(actual == twips, qPrintable(u"%1 is %2"_s.arg(QLatin1StringView(name)).arg(actual)));
  }
}

const std::vector<Side> ListsAtLoad{
    SIDE(List1, Top, 360),         SIDE(List1, Height, 2385),      SIDE(List1, Width, 2837.5),
    SIDE(ListView1, Left, 2867.5), SIDE(ListView1, Width, 2907.5), SIDE(ListView1, Height, 2385),
};

}  // namespace

class ToolLayoutTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void loadOpenAndClose() {
    ToolLayout layout = toolwindow::LoadedLayout();
    QCOMPARE(layout.Width, 5895.0);
    QCOMPARE(layout.Height, 3105.0);
    compare(layout, ListsAtLoad);
    compare(layout,
            {SIDE(Combo1, Width, 5785), SIDE(Frame1, Top, 2775), SIDE(Frame1, Width, 4795), SIDE(Frame1, Height, 735),
             SIDE(Command1, Left, 4920), SIDE(Command1, Top, 2865), SIDE(Selection, Top, 240), SIDE(Texts, Top, 240),
             SIDE(Color, Top, 240), SIDE(Texture, Top, 240), SIDE(FloatNumbers, Top, 240)});

    LayOutOpening(layout, layout.Selection);
    QCOMPARE(layout.Height, 3835.0);
    compare(layout, ListsAtLoad);
    compare(layout, {SIDE(Combo1, Width, 5785),  SIDE(Frame1, Top, 2775),      SIDE(Frame1, Height, 700),
                     SIDE(Frame1, Width, 4795),  SIDE(Command1, Top, 2865),    SIDE(Command1, Left, 4895),
                     SIDE(Numbers, Width, 4625), SIDE(Selection, Width, 4625), SIDE(Combo2, Width, 4325),
                     SIDE(Texts, Width, 4625),   SIDE(Text2, Width, 4265),     SIDE(Command7, Left, 4055),
                     SIDE(Command6, Left, 3650), SIDE(Combo5, Width, 3425),    SIDE(Color, Width, 4625),
                     SIDE(Combo3, Width, 1965),  SIDE(Command2, Left, 4075),   SIDE(Texture, Width, 4625),
                     SIDE(Text3, Width, 3725),   SIDE(Command4, Left, 4055),   SIDE(Command9, Left, 4055),
                     SIDE(Command8, Left, 3650), SIDE(Combo6, Width, 3425)});

    LayOutOpening(layout, layout.Texts);
    QCOMPARE(layout.Height, 4235.0);
    compare(layout, ListsAtLoad);
    compare(layout, {SIDE(Frame1, Top, 2775), SIDE(Frame1, Height, 1100)});

    LayOutClosing(layout);
    QCOMPARE(layout.Height, 3105.0);
    compare(layout, ListsAtLoad);
    compare(layout, {SIDE(Frame1, Top, 2775), SIDE(Frame1, Height, 1100)});
  }

  void dragged_data() {
    QTest::addColumn<Size>("size");
    QTest::addColumn<std::vector<Side>>("sides");
    QTest::newRow("wider and higher") << Size{7000, 5000}
                                      << std::vector<Side>{SIDE(Combo1, Width, 6890),    SIDE(List1, Width, 3390),
                                                           SIDE(List1, Height, 4280),    SIDE(ListView1, Left, 3420),
                                                           SIDE(ListView1, Width, 3460), SIDE(ListView1, Height, 4280),
                                                           SIDE(Frame1, Top, 4670),      SIDE(Frame1, Width, 5900),
                                                           SIDE(Command1, Top, 4760)};
    QTest::newRow("too low for the lists")
        << Size{4000, 700}
        << std::vector<Side>{SIDE(Combo1, Width, 3890),     SIDE(List1, Width, 1890),       SIDE(List1, Height, 2385),
                             SIDE(ListView1, Left, 2867.5), SIDE(ListView1, Width, 2907.5), SIDE(Frame1, Width, 4795)};
    QTest::newRow("editor, higher") << Size{5895, 5000, true}
                                    << std::vector<Side>{SIDE(Frame1, Top, 3910),   SIDE(Frame1, Height, 700),
                                                         SIDE(List1, Height, 3550), SIDE(ListView1, Height, 3550),
                                                         SIDE(Command1, Top, 4000), SIDE(Numbers, Width, 4625)};
    QTest::newRow("editor, narrower") << Size{5000, 3835, true}
                                      << std::vector<Side>{SIDE(Combo1, Width, 5785),    SIDE(Frame1, Top, 2745),
                                                           SIDE(List1, Height, 2385),    SIDE(Frame1, Width, 3900),
                                                           SIDE(List1, Width, 2390),     SIDE(ListView1, Left, 2420),
                                                           SIDE(ListView1, Width, 2460), SIDE(Command1, Left, 4000),
                                                           SIDE(Combo2, Width, 3430),    SIDE(Text2, Width, 3370),
                                                           SIDE(Command7, Left, 3160),   SIDE(Command6, Left, 2755),
                                                           SIDE(Combo5, Width, 2530),    SIDE(Combo3, Width, 1070),
                                                           SIDE(Command2, Left, 3180),   SIDE(Text3, Width, 2830),
                                                           SIDE(Command8, Left, 2755),   SIDE(Combo6, Width, 2530)};
    QTest::newRow("editor, too low") << Size{5000, 1400, true}
                                     << std::vector<Side>{SIDE(Frame1, Top, 310),        SIDE(List1, Height, 2385),
                                                          SIDE(Frame1, Width, 4795),     SIDE(List1, Width, 2837.5),
                                                          SIDE(ListView1, Left, 2867.5), SIDE(Command1, Top, 2865)};
    QTest::newRow("editor, too narrow for the colours")
        << Size{3900, 3835, true}
        << std::vector<Side>{SIDE(Texts, Width, 2630),  SIDE(Combo5, Width, 1430),  SIDE(Color, Width, 2630),
                             SIDE(Combo3, Width, 1965), SIDE(Command2, Left, 4075), SIDE(Texture, Width, 4625)};
  }
  void dragged() {
    QFETCH(Size, size);
    QFETCH(std::vector<Side>, sides);
    ToolLayout layout = toolwindow::LoadedLayout();
    if (size.editor) LayOutOpening(layout, layout.Color);
    LayOut(layout, size.width, size.height, size.editor, false);
    compare(layout, sides);
  }
};

QTEST_MAIN(ToolLayoutTest)
#include "tool_layout_test.moc"
