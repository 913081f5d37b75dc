#include <map>

#include "drawing/fonts.h"
#include "drawing/raster_text.h"
#include "support/pictures.h"
#include "support/row_name.h"
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
    {'n', 0xB40010}, {'L', 0x9F9F9F}, {'K', 0x202020}, {'o', 0x3C3C3C}, {'p', 0x353535}, {'q', 0x424242},
    {'r', 0xB40A0A}, {'t', 0x46B4B4}, {'u', 0x354646}, {'v', 0x003535},
};
constexpr quint32 Back = 0x404040;
constexpr quint32 Face = 0x0000C8;
constexpr quint32 Ramp = 0xA00000;

/// The pixels as rows of letters of the palette.
QByteArrayList lettersOf(const drawing::Raster& raster) {
  QHash<QRgb, char> letters;
  for (const auto& [letter, color] : Palette) letters[color | ~RGB_MASK] = letter;
  return support::lettersOf(raster.image(), letters);
}

QByteArrayList rowsOf(const QByteArray& text) {
  return text.trimmed().split('\n');
}

QImage pictureOf(const QByteArray& text) {
  const QByteArrayList rows = rowsOf(text);
  return support::pictureOf(static_cast<int>(rows[0].size()), static_cast<int>(rows.size()), [&](int x, int y) {
    const char letter = rows[y][x];
    return letter == '.' ? 0U : Palette.at(letter) | 0xFF000000U;
  });
}

/// A surface of 24 x 16 pixels with two rows of two buttons: as they are and hovered, pressed and disabled.
struct Sheet : toolbar::ModelView {
  Sheet() {
    values.BackColor = Back;
    values.ButtonsBackColor = Face;
    values.ButtonsGradientCol = Ramp;
    values.ButtonsGradient = 3;
    values.HoverColor = 0x00B400;
    values.ButtonsMode = 4;
    values.ButtonsPerRow = 2;
    values.ButtonsWidth = 12;
    values.ButtonsHeight = 8;
    for (ToolbarButton& button : buttons) {
      button.Caption.clear();
      button.Icon = toolbar::pictureOfImage(pictureOf("R.R\n.B.\nR.R"));
    }
    buttons[2].Pressed = true;
    buttons[3].Enabled = false;
  }

  void paint() {
    model.take(values, buttons);
    model.pointAt(index);
    toolbar::Layout layout;
    toolbar::layOutButtons(model, size.width(), toolbar::Overflow::Hides, layout);
    surface.resize(size);
    bool backgroundDrawn = false;
    toolbar::paint(surface, {model, layout.HiddenButtons, size, isMain, false, true}, backgroundDrawn);
  }
  QByteArrayList letters() const { return lettersOf(surface.raster()); }

  void PropertyChanged(QStringView /*name*/) override {}
  void react(toolbar::Effect /*effect*/) override {}

  toolbar::Model model{*this, QFont()};
  Properties values;
  std::vector<ToolbarButton> buttons{4};
  toolbar::ButtonSurface surface;
  QSize size{24, 16};
  int index = 2;
  bool isMain = true;
};

/// A popup; a sunken frame with a separator; a disabled bar with a border of its own; icons above, below, left and
/// right of where captions go, and no faces.
void change(Sheet& sheet, int kind) {
  if (kind == 0) {
    sheet.values.ShowChevron = true;
    sheet.isMain = false;
  } else if (kind == 1) {
    sheet.values.BorderStyle = 2;
    sheet.values.ButtonsPerRow = 4;
    sheet.values.ButtonsSeperatorWidth = 5;
    sheet.index = -1;
    sheet.buttons[1].ButtonType = 1;
    sheet.buttons.resize(2);
  } else if (kind == 2) {
    sheet.values.Enabled = false;
    sheet.values.RectBorderColorAutoBlend = false;
    sheet.values.RectBorderColor = Ramp;
  } else {
    sheet.values.ButtonsMode = 7;
    sheet.buttons[3].Enabled = true;
    for (int i = 0; i < 4; ++i) sheet.buttons[i].IconAlignment = i;
  }
}

}  // namespace

class PaintingTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  // Side by side: modes 0 to 3; modes 4 to 6 and a popup with its raised frame; a sunken frame with a separator, a
  // disabled bar with a border of its own, the alignments. Without a frame the buttons of the first row and of the
  // first column get no ramp in modes 0 to 3.
  void rasters() {
    const QByteArrayList rasters[] = {rowsOf(R"(
............llllllllllld llllllllllldllllllllllld ###########f###########f fffffffffff#fffffffffff#
............l..........d l..........dl..........d #llllllllldf#llllllllldf fllllllllld#fllllllllld#
....R.R.....l...R.R....d l...R.R....dl...R.R....d #l..R.R...df#l..R.R...df fl..R.R...d#fl..R.R...d#
.....B......l....B.....d l....B.....dl....B.....d #l...B....df#l...B....df fl...B....d#fl...B....d#
....R.R.....l...R.R....d l...R.R....dl...R.R....d #l..R.R...df#l..R.R...df fl..R.R...d#fl..R.R...d#
............l..........d l..........dl..........d #l........df#l........df fl........d#fl........d#
............l..........d l..........dl..........d #ddddddddddf#ddddddddddf fdddddddddd#fdddddddddd#
............dddddddddddd dddddddddddddddddddddddd ffffffffffffffffffffffff ########################
dddddddddddl............ dddddddddddlllllllllllld ###########f###########f ###########ffffffffffff#
d..........l............ d..........llggggggggggd #dddddddddlf#llllllllldf #dddddddddlffllllllllld#
d..........l....0.0..... d..........ll2220202222d #d........lf#lgg0g0ggggf #d........lfflgg0g0gggg#
d..........l.....1...... d..........ll3333133333d #d........lf#l555155555f #d........lffl555155555#
d.....R.R..l....0.0..... d.....R.R..ll4440404444d #d....R.R.lf#l660606666f #d....R.R.lffl660606666#
d......B...l............ d......B...llffffffffffd #d.....B..lf#lffffffffff #d.....B..lfflfffffffff#
d.....R.R..l............ d.....R.R..ll..........d #lllllRlRllf#ddddddddddf #lllllRlRllffdddddddddd#
llllllllllll............ lllllllllllldddddddddddd ffffffffffffffffffffffff ffffffffffff############
)"),
                                      rowsOf(R"(
........................ ..ddddddd.....ddddddd... ..ddddddd.....ddddddd... LLLLLLLLLLLLLLLLLLLLLLLK
.............DDRDRDDDD.. .dfffffffd...dhRhRhhhd.. .dfffffffd...dhhhhhhhd.. L......................K
....R.R......DHHBHHHHD.. dfggRgRggfd.dhhhBhhhhhd. dgggRgRgggd.dhhhRhRhhhd. L......................K
.....B.......DHRHRHsHD.. df333B333fd.dhhR3R3shhd. d3333B3333d.dggggBggggd. L......................K
....R.R......DHHHHsHHD.. dfffRfRfffd.dhhhhhshhhd. dfffRfRfffd.dhhhRhRhhhd. L......................K
.............DDDDsDsDD.. .dfffffffd...dhhhshshd.. .dfffffffd...dhhhhhhhd.. L......................K
........................ ..ddddddd.....ddddddd... ..ddddddd.....ddddddd... L..DDRDRDDDD...........K
........................ ........................ ........................ L..DHHBHHHHD......0.0..K
........................ ..ddddddd.....ddddddd... ..ddddddd.....ddddddd... L..DHRHRHsHD.......1...K
.DDDDDDDDD.............. .dfffffffd...dfffffffd.. .dfffffffd...dfffffffd.. L..DHHHHsHHD......0.0..K
.DhhRhRhhD......0.0..... dfffRfRfffd.dfgg0g0ggfd. dfffffffffd.dggg0g0gggd. L..DDDDsDsDD...........K
.DhhhBhhhD.......1...... dffffBffffd.df3331333fd. dffffRfRffd.d333313333d. L......................K
.DhhRhRhhD......0.0..... dfffRfRfffd.dfff0f0fffd. dfffffBfffd.dfff0f0fffd. L......................K
.DDDDDDDDD.............. .dfffffffd...dfffffffd.. .dfffRfRfd...dfffffffd.. L......................K
........................ ..ddddddd.....ddddddd... ..ddddddd.....ddddddd... L......................K
........................ ........................ ........................ KKKKKKKKKKKKKKKKKKKKKKKK
)"),
                                      rowsOf(R"(
KKKKKKKKKKKKKKKKKKKKKKKL ........................ ................R.R.....
K......................L .............ggggggggg.. .................B......
K......................L ....0.0......gHH0H0HHg.. ................R.R.....
K......................L .....1.......gHHH1HHHg.. ........................
K......................L ....0.0......gHH0H0HHg.. ........................
K......................L .............ggggggggg.. ....R.R.................
K......................L ........................ .....B..................
K.....R.R.......KL.....L ........................ ....R.R.................
K......B........KL.....L ........................ ........................
K.....R.R..............L .ggggggggg.............. ........................
K......................L .ghh0h0hhg......0.0..... .....R.R........R.R.....
K......................L .ghhh1hhhg.......1...... ......B..........B......
K......................L .ghh0h0hhg......0.0..... .....R.R........R.R.....
K......................L .ggggggggg.............. ........................
K......................L ........................ ........................
LLLLLLLLLLLLLLLLLLLLLLLL ........................ ........................
)")};
    for (int place = 0; place < 11; ++place) {
      Sheet sheet;
      sheet.values.ButtonsMode = place < 7 ? place : 4;
      if (place >= 7) change(sheet, place - 7);
      sheet.paint();
      QByteArrayList expected;
      for (const QByteArray& line : rasters[place / 4]) expected += line.mid(place % 4 * 25, 24);
      const support::RowName name(QByteArray::number(place));
      QCOMPARE(sheet.letters(), expected);
    }
  }

  // Kinds 0 to 7 side by side.
  void gradients() {
    const QByteArrayList expected = rowsOf(R"(
....... g75368f g5f9ag. ggggggg ggggggg gbcei3j i3jkmnf #######
....... g75368f g5f9ag. 2222222 fffffff bcei3jk ei3jkmn #######
....... g75368f g5f9ag. 3333333 fffffff cei3jkm cei3jkm #######
....... g75368f g5f9ag. 4444444 9999999 ei3jkmn bcei3jk #######
....... g75368f g5f9ag. fffffff aaaaaaa i3jkmnf gbcei3j #######
)");
    for (int kind = 0; kind <= 7; ++kind) {
      drawing::Raster raster(QSize(7, 5), Back);
      toolbar::FillGradient(raster, raster.rect(), Face, Ramp, kind);
      QByteArrayList rows;
      for (const QByteArray& row : expected) rows += row.mid(kind * 8, 7);
      QCOMPARE(lettersOf(raster), rows);
    }
  }

  // The walk takes three bytes at a time, over the bytes that fill up a row too.
  void greyWalk() {
    const auto grey = [](const char* picture) {
      const auto bitmap = toolbar::pictureOfImage(pictureOf(picture));
      drawing::Raster raster(QSize(bitmap->Width(), bitmap->Height()), Back);
      if (!toolbar::PaintGrayScale(raster, *bitmap, 0, 0)) return QByteArray();
      return lettersOf(raster).join('\n');
    };
    QCOMPARE(grey("RB"), "01");      // two fill bytes
    QCOMPARE(grey("RBhg"), "01og");  // whole triples: the last stays
    QCOMPARE(grey("R.B"), "0.1");    // clear under its mask
    // A triple of fill bytes a row; a single one, which shifts the upper row.
    QCOMPARE(grey("RBh\nghR"), "01o\npo0");
    QCOMPARE(grey("RBhgf\nfghBR"), "rtuvf\nqpo10");
  }

  // On a button of 80 x 60 with an icon of 3 x 3, in lines of 17.
  void captions() {
    const QFont font = drawing::controlFont(QStringLiteral("Liberation Sans"), 16);
    const struct {
      int alignment;
      const char* caption;
      bool enabled;
      std::vector<std::pair<const char*, QRect>> lines;
    } rows[] = {
        {1, "Hi", true, {{"Hi", {0, 24, 80, 60}}}},
        {2, "Hi", true, {{"Hi ", {13, 22, 67, 60}}}},
        {3, "Hi", false, {{" Hi", {0, 22, 67, 60}}}},
        {4, "wide caption", true, {{"wide", {0, 13, 80, 60}}, {"caption", {0, 30, 80, 60}}}},
    };
    for (const auto& row : rows) {
      Sheet sheet;
      sheet.size = QSize(92, 60);
      sheet.values.Font = font;
      sheet.values.ForeColor = 0x0000C8;
      sheet.values.ButtonsMode = 7;
      sheet.values.ButtonsWidth = 80;
      sheet.values.ButtonsHeight = 60;
      sheet.buttons.resize(1);
      sheet.buttons[0].IconAlignment = row.alignment;
      sheet.buttons[0].Enabled = row.enabled;
      sheet.paint();
      drawing::Raster expected = sheet.surface.raster();
      const QRgb color = row.enabled ? qRgb(200, 0, 0) : qRgb(128, 128, 128);
      for (const auto& [line, area] : row.lines) {
        drawing::drawText(expected, font, QString::fromLatin1(line), area, color);
      }
      sheet.buttons[0].Caption = QString::fromLatin1(row.caption);
      sheet.paint();
      QVERIFY2(sheet.surface.raster().image() == expected.image(), qPrintable(QString::number(row.alignment)));
    }
  }

  void backgroundIsTiled() {
    Sheet sheet;
    sheet.buttons.resize(1);
    sheet.buttons[0].Icon = nullptr;
    sheet.values.Background = toolbar::pictureOfImage(pictureOf("Rg\nBf"));
    sheet.paint();
    QCOMPARE(sheet.letters().mid(14), (QByteArrayList{QByteArray("Rg").repeated(12), QByteArray("Bf").repeated(12)}));
  }
};

QTEST_MAIN(PaintingTest)
#include "toolbar_painting_test.moc"
