#include "support/row_name.h"
#include "support/stage.h"

using namespace support;

namespace {

constexpr QRgb Red = qRgb(255, 0, 0);
const char* const Regular = "Eurostar Regular Extended";

/// What a text should look like: words, face, points, anchor less the fifth of a height, colour.
struct Look {
  const char* words;
  const char* face = Regular;
  float points = 14;
  double x = 100, y = 50;
  QRgb color = qRgb(0, 0, 0);
  double widths = 0;  ///< how many widths of the words it stands further left
};

QImage pictureOf(const Look& look) {
  drawing::Surface surface;
  surface.wipe(Qt::white);
  surface.SetFontName(QString::fromLatin1(look.face));
  surface.SetFontSize(look.points);
  surface.ForeColor = QColor(look.color);
  const QString words = QString::fromLatin1(look.words);
  surface.CurrentX = float(look.x - look.widths * surface.TextWidth(words));
  surface.CurrentY = float(look.y + surface.TextHeight(words) / 5);
  surface.Print(words);
  return surface.image();
}

/// A text of these keys, in front of X=100, Y=50 and Size=10; no picture unless it takes one step.
QImage drawn(const QByteArray& keys) {
  Stage stage;
  stage.folder.put(u"language.ini"_s, "[Text]\nknown=Hello\nMainText=Own name\n");
  stage.setTheme("[MainText]|" + keys + "|X=100|Y=50|Size=10|[Colors]|Own=200 100 50|");
  stage.draw();
  return stage.steps() == 1 && stage.host.refreshes == 0 ? stage.surface.image() : QImage();
}

/// What the mark is told for an object with these X, Y, W and H, and behind that the report.
QByteArray marked(const char* tag, const QStringList& fields, qint16 size = 20, quint8 font = 2) {
  Stage stage;
  stage.setTheme("[MainButton]|X=100|Y=200|");
  stage.tags.Clear();
  stage.tags.AddItem(QString::fromLatin1(tag));
  stage.tags.SetListIndex(0);
  stage.state.CursorRect = {fields[0], fields[1], fields[2], fields[3], u"Words"_s, size, font};
  Mark mark;
  renderer::DrawCursor(stage.state, stage.tags, stage.surface, mark, stage.panel);
  return mark.calls + stage.panel.texts.join(u' ').section(u'[', 0, 0).toLatin1();
}

}  // namespace

class ObjectsTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void statics() {
    const QRect place(10, 20, 5, 6);
    compare("TYPE=Colorized2|", place, Red);
    compare("type=colorized|", place, qRgb(0, 151, 255));
    compare("TYPE=Font Black|", place, qRgb(255, 175, 247));  // ORs
    compare("TYPE=FONT BLACK|Tex=Black|Color=colorLIGHT|", place, qRgb(135, 211, 251));
    compare("Tex=Half|", place, qRgb(127, 127, 127));
    compare("X=9.5|Y=20.5|W=4.5|H=6.5|", QRect(10, 20, 4, 6), Red);  // a half goes to the even
    compare("X=-3|Y=-2|", QRect(0, 0, 2, 4), Red);
    compare("H=-1.4|", QRect(10, 20, 8, 4), Red);
    for (const char* keys : {"X=-1|", "Y=-1|"}) compare(keys, QRect(0, 0, 8, 4), Red);
    for (const char* keys : {"W=-1|", "H=-1|"}) compare(keys, QRect(10, 20, 8, 4), Red);
    for (const char* keys : {"W=|", "W=-2|", "Color=|", "TYPE=FONT BLACK|Tex=Black|Color=Bright|", "Tex=Torn|"}) {
      compare(keys, {}, 0);
    }
    for (const char* keys : {"X=32767.5|", "Y=32767.5|", "W=32767.5|", "H=32767.5|", "Tex=NoFile|", "Tex=Read|"}) {
      compare(keys, {}, 0, 0);
    }
  }

  void backgrounds() {
    const QRgb plain = qRgb(1, 2, 3);
    for (const auto& [theme, color, steps] : {std::tuple("[MainBackground]|Tex=Red|", Red, 1),
                                              {"[MainBackground]|Tex=Faint|", plain, 1},
                                              {"[OtherBackground]|Tex=Red|", plain, 0},
                                              {"[MainBackground]|Tex=NoFile|", plain, 0}}) {
      Stage stage;
      stage.state.BackgroundColor = 0x00030201;
      stage.surface.wipe(Qt::green);
      stage.setTheme(theme);
      stage.draw();
      QVERIFY2(inkOf(stage.surface.image(), color).isNull() && stage.steps() == steps, theme);
    }
  }

  void texts() {
    QCOMPARE(drawn("Text=Unknown|"), pictureOf({"Unknown"}));
    QCOMPARE(drawn("Text=|"), pictureOf({"MainText"}));
    QCOMPARE(drawn(""), pictureOf({"Own name"}));
    QCOMPARE(drawn("Text=Known|Font=0.5|Size=0|"), pictureOf({"Hello", "MS Sans Serif", 8.25}));
    QCOMPARE(drawn("Text=Known|Size=12.25|"), pictureOf({"Hello", Regular, 17.15F}));
    QCOMPARE(drawn("Text=Known|Align=1|X=400|"), pictureOf({"Hello", Regular, 14, 400, 50, 0, 0.5}));
    QCOMPARE(drawn("Text=Known|Align=2|X=400|"), pictureOf({"Hello", Regular, 14, 400, 50, 0, 1}));
    QCOMPARE(drawn("Text=Known|X=20.75|Y=-3.25|"), pictureOf({"Hello", Regular, 14, 20.75, -3.25}));
    QCOMPARE(drawn("Text=Known|Color=Own|ColR=1|"), pictureOf({.words = "Hello", .color = qRgb(200, 100, 50)}));
    QCOMPARE(drawn("Text=Known|ColR=9999|ColG=0.5|ColB=-1|"),
             pictureOf({.words = "Hello", .color = qRgb(255, 128, 0)}));
    QCOMPARE(drawn("Text=Known|Size=-5|"), pictureOf({""}));
    // A font that changes nothing keeps what was left.
    Stage stage;
    stage.setTheme("[MainText1]|Text=A|Font=1|Size=20|X=-900|[MainText2]|Text=B|Font=2|Size=5|X=100|Y=50|");
    stage.draw();
    QCOMPARE(stage.surface.image(), pictureOf({"B", "Eurostar Black", 40}));
  }

  void markOverAFrame() {
    QCOMPARE(marked("MainButton1", {u"10"_s, u" 20.5"_s, u"30"_s, u"x"_s}), "L10 T20.5 W30 H0 blinks shown ");
    QCOMPARE(marked("MainStatic", {u"1"_s, u"2"_s, u"-3"_s, u"4"_s}), "L1 T2 Error while drawing highlighting cursor ");
    QCOMPARE(marked("MainStatic", {u"1"_s, u"2"_s, {}, u"4"_s}), "still hidden ");
    QCOMPARE(marked("MainText", {{}, u"2"_s, {}, {}}), "still hidden ");
  }

  void markOverAText() {
    const auto height = [](const char* face, float points) {
      drawing::Surface measuring;
      measuring.SetFontName(QString::fromLatin1(face));
      measuring.SetFontSize(points);
      return "H" + QByteArray::number(measuring.TextHeight({}) * 1.5) + ' ';
    };
    const QByteArray line = "W0 " + height("MS Sans Serif", 20);
    QCOMPARE(marked("MainText1", {u"1"_s, u"2"_s, {}, {}}), line + "L1 T2 blinks shown ");
    QCOMPARE(marked("mainBUTTONtext1", {u"10"_s, u"5"_s, {}, {}}), line + "L110 T205 blinks shown ");
    QVERIFY(marked("MainText", {u"1"_s, u"1"_s, {}, {}}, 20, 0).contains(height("Courier New", 20)));
    QVERIFY(marked("MainText", {u"1"_s, u"1"_s, {}, {}}, -9, 1).contains(height("Arial Black", 8.25F)));
  }

 private:
  /// Draws a static with the keys in front of plain ones; the first of two equal keys counts.
  static void compare(const QByteArray& keys, const QRect& ink, QRgb color, int steps = 1) {
    const RowName name(keys);
    Stage stage;
    stage.setTheme("[mainSongVideoIcon]|" + keys + "Tex=Red|Color=P1Dark|X=10|Y=20|W=5|H=6|[Colors]|Bright=300 0 0|");
    stage.draw();
    QCOMPARE(inkOf(stage.surface.image()), ink);
    if (!ink.isEmpty()) QCOMPARE(stage.surface.image().pixel(ink.bottomRight()), color);
    QCOMPARE(stage.steps(), steps);
    QCOMPARE(stage.host.refreshes, steps);
    // Besides the screen's background exactly the static that didn't show is accounted.
    QCOMPARE(stage.account.missing.size(), std::size_t(ink.isEmpty() ? 2 : 1));
    const QString head = QString::fromLatin1("Error while drawing Static! [mainSongVideoIcon: " + keys.left(9));
    QCOMPARE(stage.panel.texts.filter(head).size(), keys.contains("32767.5") ? 1 : 0);
  }
};

QTEST_MAIN(ObjectsTest)
#include "objects_test.moc"
