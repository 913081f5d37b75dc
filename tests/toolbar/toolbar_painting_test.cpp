#include <map>

#include <QTest>

#include "toolbar/faces.h"
#include "toolbar/icon_painting.h"
#include "toolbar/layout.h"
#include "toolbar/repaint.h"

using toolbar::Properties;
using toolbar::ToolbarButton;

namespace {

const std::map<char, QRgb> Palette = {
    {'.', 0x404040}, {'R', 0xFA0A14}, {'B', 0x1E28FA}, {'#', 0x000000}, {'s', 0x808080}, {'f', 0xC80000},
    {'h', 0x00B400}, {'l', 0xE37F7F}, {'d', 0x640000}, {'H', 0x7FD97F}, {'D', 0x005A00}, {'g', 0x0000A0},
    {'0', 0x5D5D5D}, {'1', 0x6A6A6A}, {'2', 0x320078}, {'3', 0x640050}, {'4', 0x960028}, {'5', 0x42006B},
    {'6', 0x850036}, {'7', 0x210086}, {'8', 0xA6001B}, {'9', 0x860035}, {'a', 0x43006A}, {'b', 0x140090},
    {'c', 0x280080}, {'e', 0x3C0070}, {'i', 0x500060}, {'j', 0x780040}, {'k', 0x8C0030}, {'m', 0xA00020},
    {'n', 0xB40010}, {'L', 0x9F9F9F}, {'K', 0x202020},
};
constexpr quint32 Back = 0x404040;
constexpr quint32 Face = 0x0000C8;
constexpr quint32 Ramp = 0xA00000;

/// The pixels as rows of letters of the palette.
QStringList lettersOf(const platform::Raster& raster) {
  QStringList rows;
  for (int y = 0; y < raster.Height(); ++y) {
    QString row;
    for (int x = 0; x < raster.Width(); ++x) {
      const QRgb pixel = raster.image().pixel(x, y);
      const auto found = std::find_if(Palette.begin(), Palette.end(),
                                      [pixel](const auto& entry) { return (pixel & RGB_MASK) == entry.second; });
      row += found == Palette.end() ? u'@' : QChar::fromLatin1(found->first);
    }
    rows += row;
  }
  return rows;
}

QStringList rowsOf(const QString& text) {
  return text.split(u'\n', Qt::SkipEmptyParts);
}

QImage pictureOf(const QString& text) {
  const QStringList rows = rowsOf(text);
  QImage picture(int(rows.first().size()), int(rows.size()), QImage::Format_ARGB32);
  picture.fill(0);
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      const char letter = rows[y][x].toLatin1();
      if (letter != '.') picture.setPixel(x, y, Palette.at(letter) | 0xFF000000U);
    }
  }
  return picture;
}

struct Quiet : toolbar::ModelView {
  void PropertyChanged(QStringView /*name*/) override {}
  void React(toolbar::Effect /*effect*/) override {}
};

/// A surface of 24 x 16 pixels with two rows of two buttons: as they are and hovered, pressed and disabled.
struct Sheet {
  Sheet() {
    values.BackColor = Back;
    values.ButtonsBackColor = Face;
    values.ButtonsGradientCol = Ramp;
    values.ButtonsGradient = 3;
    values.HoverColor = 0x00B400;
    values.ButtonsPerRow = 2;
    values.ButtonsWidth = 12;
    values.ButtonsHeight = 8;
    for (ToolbarButton& button : buttons) {
      button.Caption.clear();
      button.Icon = toolbar::PictureOfImage(pictureOf(QStringLiteral("R.R\n.B.\nR.R")));
    }
    buttons[2].Pressed = true;
    buttons[3].Enabled = false;
  }

  bool paint(bool isMain = true, bool held = false) {
    model.Take(values, buttons);
    model.PointAt(index);
    layout = {};
    toolbar::LayOut(model, width, true, layout);
    surface.Resize(QSize(width, 16));
    bool backgroundDrawn = false;
    return toolbar::Paint(surface, {model, layout.HiddenButtons, QSize(width, 16), isMain, held, userMode},
                          backgroundDrawn);
  }
  QStringList letters() const { return lettersOf(surface.Image()); }

  Quiet quiet;
  toolbar::Model model{quiet, QFont()};
  Properties values;
  std::vector<ToolbarButton> buttons{4};
  toolbar::Layout layout;
  toolbar::Surface surface;
  int index = 2;
  int width = 24;
  bool userMode = true;
};

}  // namespace

class PaintingTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  // Without a frame the buttons of the first row and of the first column get no ramp in modes 0 to 3.
  void modes_data() {
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("expected");
    QTest::newRow("mode 0") << 0 << QStringLiteral(R"(
............llllllllllld
............l..........d
....R.R.....l...R.R....d
.....B......l....B.....d
....R.R.....l...R.R....d
............l..........d
............l..........d
............dddddddddddd
dddddddddddl............
d..........l............
d..........l....0.0.....
d..........l.....1......
d.....R.R..l....0.0.....
d......B...l............
d.....R.R..l............
llllllllllll............
)");
    QTest::newRow("mode 1") << 1 << QStringLiteral(R"(
llllllllllldllllllllllld
l..........dl..........d
l...R.R....dl...R.R....d
l....B.....dl....B.....d
l...R.R....dl...R.R....d
l..........dl..........d
l..........dl..........d
dddddddddddddddddddddddd
dddddddddddlllllllllllld
d..........llggggggggggd
d..........ll2220202222d
d..........ll3333133333d
d.....R.R..ll4440404444d
d......B...llffffffffffd
d.....R.R..ll..........d
lllllllllllldddddddddddd
)");
    QTest::newRow("mode 2") << 2 << QStringLiteral(R"(
###########f###########f
#llllllllldf#llllllllldf
#l..R.R...df#l..R.R...df
#l...B....df#l...B....df
#l..R.R...df#l..R.R...df
#l........df#l........df
#ddddddddddf#ddddddddddf
ffffffffffffffffffffffff
###########f###########f
#dddddddddlf#llllllllldf
#d........lf#lgg0g0ggggf
#d........lf#l555155555f
#d....R.R.lf#l660606666f
#d.....B..lf#lffffffffff
#lllllRlRllf#ddddddddddf
ffffffffffffffffffffffff
)");
    QTest::newRow("mode 3") << 3 << QStringLiteral(R"(
fffffffffff#fffffffffff#
fllllllllld#fllllllllld#
fl..R.R...d#fl..R.R...d#
fl...B....d#fl...B....d#
fl..R.R...d#fl..R.R...d#
fl........d#fl........d#
fdddddddddd#fdddddddddd#
########################
###########ffffffffffff#
#dddddddddlffllllllllld#
#d........lfflgg0g0gggg#
#d........lffl555155555#
#d....R.R.lffl660606666#
#d.....B..lfflfffffffff#
#lllllRlRllffdddddddddd#
ffffffffffff############
)");
    QTest::newRow("mode 4") << 4 << QStringLiteral(R"(
........................
.............DDRDRDDDD..
....R.R......DHHBHHHHD..
.....B.......DHRHRHsHD..
....R.R......DHHHHsHHD..
.............DDDDsDsDD..
........................
........................
........................
.DDDDDDDDD..............
.DhhRhRhhD......0.0.....
.DhhhBhhhD.......1......
.DhhRhRhhD......0.0.....
.DDDDDDDDD..............
........................
........................
)");
    QTest::newRow("mode 5") << 5 << QStringLiteral(R"(
..ddddddd.....ddddddd...
.dfffffffd...dhRhRhhhd..
dfggRgRggfd.dhhhBhhhhhd.
df333B333fd.dhhR3R3shhd.
dfffRfRfffd.dhhhhhshhhd.
.dfffffffd...dhhhshshd..
..ddddddd.....ddddddd...
........................
..ddddddd.....ddddddd...
.dfffffffd...dfffffffd..
dfffRfRfffd.dfgg0g0ggfd.
dffffBffffd.df3331333fd.
dfffRfRfffd.dfff0f0fffd.
.dfffffffd...dfffffffd..
..ddddddd.....ddddddd...
........................
)");
    QTest::newRow("mode 6") << 6 << QStringLiteral(R"(
..ddddddd.....ddddddd...
.dfffffffd...dhhhhhhhd..
dgggRgRgggd.dhhhRhRhhhd.
d3333B3333d.dggggBggggd.
dfffRfRfffd.dhhhRhRhhhd.
.dfffffffd...dhhhhhhhd..
..ddddddd.....ddddddd...
........................
..ddddddd.....ddddddd...
.dfffffffd...dfffffffd..
dfffffffffd.dggg0g0gggd.
dffffRfRffd.d333313333d.
dfffffBfffd.dfff0f0fffd.
.dfffRfRfd...dfffffffd..
..ddddddd.....ddddddd...
........................
)");
  }
  void modes() {
    QFETCH(int, mode);
    QFETCH(QString, expected);
    Sheet sheet;
    sheet.values.ButtonsMode = mode;
    sheet.paint();
    QCOMPARE(sheet.letters(), rowsOf(expected));
  }

  void gradients_data() {
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("expected");
    QTest::newRow("kind 0") << 0 << QStringLiteral(".......\n.......\n.......\n.......\n.......");
    QTest::newRow("kind 1") << 1 << QStringLiteral("g75368f\ng75368f\ng75368f\ng75368f\ng75368f");
    QTest::newRow("kind 2") << 2 << QStringLiteral("g5f9ag.\ng5f9ag.\ng5f9ag.\ng5f9ag.\ng5f9ag.");
    QTest::newRow("kind 3") << 3 << QStringLiteral("ggggggg\n2222222\n3333333\n4444444\nfffffff");
    QTest::newRow("kind 4") << 4 << QStringLiteral("ggggggg\nfffffff\nfffffff\n9999999\naaaaaaa");
    QTest::newRow("kind 5") << 5 << QStringLiteral("gbcei3j\nbcei3jk\ncei3jkm\nei3jkmn\ni3jkmnf");
    QTest::newRow("kind 6") << 6 << QStringLiteral("i3jkmnf\nei3jkmn\ncei3jkm\nbcei3jk\ngbcei3j");
    QTest::newRow("kind 7") << 7 << QStringLiteral("#######\n#######\n#######\n#######\n#######");
  }
  void gradients() {
    QFETCH(int, kind);
    QFETCH(QString, expected);
    platform::Raster raster(QSize(7, 5), Back);
    toolbar::FillGradient(raster, raster.rect(), Face, Ramp, kind);
    QCOMPARE(lettersOf(raster), rowsOf(expected));
  }

  void singlePixelRampIsTheMean() {
    platform::Raster raster(QSize(1, 2), Back);
    toolbar::FillGradient(raster, raster.rect(), Face, Ramp, 1);
    QCOMPARE(lettersOf(raster), rowsOf(QStringLiteral("3\n3")));
    // Equal colours make a box, whatever the kind.
    toolbar::FillGradient(raster, raster.rect(), Face, Face, 7);
    QCOMPARE(lettersOf(raster), rowsOf(QStringLiteral("f\nf")));
  }

  // The buttons behind the chevron, on the popup with its raised frame.
  void popup() {
    Sheet sheet;
    sheet.values.ButtonsMode = 4;
    sheet.values.ShowChevron = true;
    sheet.paint(false);
    QCOMPARE(sheet.letters(), rowsOf(QStringLiteral(R"(
LLLLLLLLLLLLLLLLLLLLLLLK
L......................K
L......................K
L......................K
L......................K
L......................K
L..DDRDRDDDD...........K
L..DHHBHHHHD......0.0..K
L..DHRHRHsHD.......1...K
L..DHHHHsHHD......0.0..K
L..DDDDsDsDD...........K
L......................K
L......................K
L......................K
L......................K
KKKKKKKKKKKKKKKKKKKKKKKK
)")));
  }

  void sunkenFrameAndSeparator() {
    Sheet sheet;
    sheet.values.ButtonsMode = 4;
    sheet.values.BorderStyle = 2;
    sheet.values.ButtonsPerRow = 4;
    sheet.values.ButtonsSeperatorWidth = 5;
    sheet.index = -1;
    sheet.buttons[1].ButtonType = 1;
    sheet.buttons.resize(2);
    sheet.paint();
    QCOMPARE(sheet.letters(), rowsOf(QStringLiteral(R"(
KKKKKKKKKKKKKKKKKKKKKKKL
K......................L
K......................L
K......................L
K......................L
K......................L
K......................L
K.....R.R.......KL.....L
K......B........KL.....L
K.....R.R..............L
K......................L
K......................L
K......................L
K......................L
K......................L
LLLLLLLLLLLLLLLLLLLLLLLL
)")));
  }

  void chevronTellsThatItIsPressed() {
    Sheet sheet;
    sheet.values.ButtonsMode = 1;
    sheet.values.ShowChevron = true;
    sheet.index = 0;
    QVERIFY(!sheet.paint(true, false));
    QCOMPARE(sheet.letters()[12].mid(21), QStringLiteral("d.."));
    QVERIFY(sheet.paint(true, true));
    sheet.width = 40;
    QVERIFY(!sheet.paint(true, true));
  }

  void designMark() {
    Sheet sheet;
    sheet.values.ButtonsMode = 0;
    sheet.values.ForeColor = 0x00B400;
    sheet.userMode = false;
    sheet.paint();
    QCOMPARE(sheet.letters()[1].mid(12), QStringLiteral("lhhhhhhhhh.d"));
    QCOMPARE(sheet.letters()[2].mid(12), QStringLiteral("lhfffffffh.d"));
    sheet.values.ButtonsMode = 1;
    sheet.paint();
    QVERIFY(!sheet.letters()[1].mid(12).startsWith(QStringLiteral("lhh")));
  }

  // The walk takes three bytes at a time, over the bytes that fill up a row too.
  void greyWalk_data() {
    QTest::addColumn<QString>("picture");
    QTest::addColumn<QList<QRgb>>("expected");
    QTest::newRow("two fill bytes") << QStringLiteral("RB") << QList<QRgb>{0x5D5D5D, 0x6A6A6A};
    QTest::newRow("whole triples: the last stays")
        << QStringLiteral("RBhg") << QList<QRgb>{0x5D5D5D, 0x6A6A6A, 0x3C3C3C, 0x0000A0};
    QTest::newRow("a triple of fill bytes a row")
        << QStringLiteral("RBh\nghR") << QList<QRgb>{0x5D5D5D, 0x6A6A6A, 0x3C3C3C, 0x353535, 0x3C3C3C, 0x5D5D5D};
    QTest::newRow("a fill byte shifts the upper row")
        << QStringLiteral("RBhgf\nfghBR") << QList<QRgb>{0xB40A0A, 0x46B4B4, 0x354646, 0x003535, 0xC80000,
                                                         0x424242, 0x353535, 0x3C3C3C, 0x6A6A6A, 0x5D5D5D};
  }
  void greyWalk() {
    QFETCH(QString, picture);
    QFETCH(QList<QRgb>, expected);
    const auto bitmap = toolbar::PictureOfImage(pictureOf(picture));
    platform::Raster raster(QSize(bitmap->Width(), bitmap->Height()), Back);
    QVERIFY(toolbar::PaintGrayScale(raster, *bitmap, 0, 0));
    QList<QRgb> shown;
    for (int y = 0; y < raster.Height(); ++y) {
      for (int x = 0; x < raster.Width(); ++x) shown += raster.image().pixel(x, y) & RGB_MASK;
    }
    QCOMPARE(shown, expected);
    QVERIFY(!toolbar::PaintGrayScale(raster, toolbar::Picture(), 0, 0));
  }

  void backgroundIsTiledWithBitmapsOnly() {
    Sheet sheet;
    sheet.values.ButtonsMode = 4;
    sheet.buttons.resize(1);
    sheet.buttons[0].Icon = nullptr;
    sheet.values.Background = toolbar::PictureOfImage(pictureOf(QStringLiteral("Rg\nBf")));
    sheet.paint();
    QCOMPARE(sheet.letters()[14] + sheet.letters()[15],
             QStringLiteral("Rg").repeated(12) + QStringLiteral("Bf").repeated(12));
    sheet.values.Background = toolbar::PictureOfImage(pictureOf(QStringLiteral("R.")));
    sheet.paint();
    QCOMPARE(sheet.letters()[15], QString(24, u'.'));
    sheet.values.BackGradient = 1;
    sheet.paint();
    QVERIFY(sheet.letters()[15] != QString(24, u'.'));
  }

  // What can't be drawn ends its own button only.
  void failureIsSwallowed() {
    Sheet sheet;
    sheet.values.ButtonsMode = 4;
    sheet.buttons[1].ButtonType = 1;
    sheet.values.ButtonsSeperatorWidth = 1 << 30;
    sheet.index = 1;
    sheet.paint();
    QCOMPARE(sheet.letters()[1].left(12), QStringLiteral(".DDRDRDDDD.."));
  }
};

QTEST_MAIN(PaintingTest)
#include "toolbar_painting_test.moc"
