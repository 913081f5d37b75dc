#include <QTest>

#include "toolbar/captions.h"
#include "toolbar/control.h"

using toolbar::Control;
using toolbar::MouseArguments;
using toolbar::Properties;
using toolbar::SurfaceName;

namespace {

/// Writes down what a control tells its client and asks of its windows.
struct Record : toolbar::Events, toolbar::Windows {
  void note(const char* word) { words += QString::fromLatin1(word); }
  void note(const char* word, int number) { words += QString::fromLatin1(word) + QString::number(number); }

  void PropertyChanged(const QString& name) override { words += name; }
  void MouseEnter() override { note("Enter"); }
  void MouseLeave() override { note("Leave"); }
  void Hover(int index) override { note("Hover", index); }
  void Click(int index) override { note("Click", index); }
  void DblClick(int index) override { note("DblClick", index); }
  void MouseUp(int index, qint16&, qint16&, float&, float&) override { note("Up", index); }
  void MouseDown(int index, qint16&, qint16&, float&, float&) override { note("Down", index); }
  void MouseMove(int index, qint16& button, qint16&, float&, float&) override {
    note("Move", index);
    lastButton = button;
  }

  void SetHeight(int pixels) override { height = pixels; }
  void Present(SurfaceName /*surface*/) override {}
  QRect ControlOnScreen() const override { return {100, 200, width, height}; }
  void CreateChevronWindow() override {}
  void MovePopup(const QRect& onScreen) override { popup = onScreen; }
  void SetPopupVisible(bool visible) override {
    if (visible != popupVisible) note(visible ? "open" : "close");
    popupVisible = visible;
  }
  bool IsPopupVisible() const override { return popupVisible; }
  void SetHand(SurfaceName /*surface*/, bool isHand) override { hand = isHand; }
  void SetTimer() override { timer = true; }
  void KillTimer() override { timer = false; }
  void StartLeaveTracking(SurfaceName /*surface*/) override {}
  void ShowToolTip(const toolbar::ToolTip& shown) override {
    note("tip");
    tip = shown;
  }
  void DestroyToolTip() override { tip.reset(); }

  QStringList words;
  std::optional<toolbar::ToolTip> tip;
  QRect popup;
  int width = 0;
  int height = 0;
  qint16 lastButton = 0;
  bool popupVisible = false;
  bool hand = false;
  bool timer = false;
};

/// Six buttons of 32 pixels in one row, the second disabled, the third a separator. In 149 pixels the last two hide.
struct Strip {
  explicit Strip(int width = 800) {
    record.width = width;
    control.UserControl_ReadProperties({});
    control.Resize(QSize(width, 32));
    toolbar::Model& model = control.Buttons();
    model.Set(&Properties::ButtonsPerRow, 10);
    model.Set(&Properties::ShowChevron, true);
    model.SetButton_Count(6);
    model.SetButtonValue(2, toolbar::EnabledProperty, false);
    model.SetButtonValue(3, toolbar::ButtonTypeProperty, 1);
    model.PointAt(-1);
    control.UserControl_Resize();
    record.words.clear();
  }

  /// Words: mX,Y a move over the strip, pX,Y one over the popup; d, u, c, 2 press, release, click and double click on
  /// the strip, D, U, C on the popup; l, f leave and loss of focus; t a message of the timer.
  QString run(const QString& steps) {
    for (const QString& step : steps.split(u' ', Qt::SkipEmptyParts)) take(step[0].toLatin1(), step.mid(1).split(u','));
    return record.words.join(u' ');
  }
  void take(char kind, const QStringList& numbers) {
    constexpr auto Main = SurfaceName::Main;
    constexpr auto Chevron = SurfaceName::Chevron;
    const int x = numbers.first().toInt();
    const int y = numbers.last().toInt();
    const MouseArguments place{0, 0, float(x), float(y)};
    if (kind == 'm') control.picMain_MouseMove(place);
    if (kind == 'p') control.picChevron_MouseMove(place);
    const auto surface = kind == 'p' ? Chevron : Main;
    if (kind == 'm' || kind == 'p') control.zSubclass_Proc(512, surface, quint32(x) | quint32(y) << 16);
    if (kind == 'd') control.picDraw_MouseDown(Main, place);
    if (kind == 'u') control.picDraw_MouseUp(Main, place);
    if (kind == 'c') control.picDraw_Click(Main);
    if (kind == '2') control.picDraw_DblClick(Main);
    if (kind == 'D') control.picDraw_MouseDown(Chevron, place);
    if (kind == 'U') control.picDraw_MouseUp(Chevron, place);
    if (kind == 'C') control.picDraw_Click(Chevron);
    if (kind == 'l') control.zSubclass_Proc(675);
    if (kind == 'f') control.zSubclass_Proc(8);
    if (kind == 't') control.zSubclass_Proc(275);
  }

  Record record;
  Control control{record, record, {}};
};

}  // namespace

class InputTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void eventsInOrder() {
    const auto told = [](const char* steps) {
      Strip strip(149);
      strip.control.Buttons().SetButtonValue(1, toolbar::ToolTipTextProperty, QStringLiteral("first"));
      return strip.run(QString::fromLatin1(steps)).toLatin1();
    };
    QCOMPARE(told("m5,5 m6,5"), QByteArray("Hover1 Move1 Enter Move1"));                // hover before enter
    QCOMPARE(told("m5,5 t t t t m5,5 t"), QByteArray("Hover1 Move1 Enter Move1 tip"));  // the same place twice
    QCOMPARE(told("m5,5 d u c"), QByteArray("Hover1 Move1 Enter Down1 Up1 Click1"));    // click
    QCOMPARE(told("m5,5 d u c 2 u"), QByteArray("Hover1 Move1 Enter Down1 Up1 Click1 DblClick1 Up1"));  // double click
    QCOMPARE(told("m40,5 d u c"), QByteArray("Enter"));                                                 // disabled
    QCOMPARE(told("m70,5 d u c"), QByteArray("Enter"));                                                 // separator
    QCOMPARE(told("m5,5 m80,5"), QByteArray("Hover1 Move1 Enter Hover4 Move4"));               // straight to another
    QCOMPARE(told("m5,5 d l u c"), QByteArray("Hover1 Move1 Enter Down1 Leave"));              // leave in a press
    QCOMPARE(told("m5,5 l m6,5"), QByteArray("Hover1 Move1 Enter Leave Hover1 Move1 Enter"));  // enter again
    QCOMPARE(told("m145,5 d"), QByteArray("Enter open"));                                      // chevron
    QCOMPARE(told("m145,5 d u p5,5"), QByteArray("Enter open Hover5 Move5"));  // release on the strip isn't seen
    QCOMPARE(told("m145,5 d m146,5 d"), QByteArray("Enter open"));             // press on the chevron opens anew
    QCOMPARE(told("m145,5 d p40,10 D U C"), QByteArray("Enter open Hover6 Move6 Down6 Up6 Click6"));  // popup
    QCOMPARE(told("m145,5 d p40,10 p70,10"), QByteArray("Enter open Hover6 Move6 Move6"));  // popup, behind the last
    QCOMPARE(told("m145,5 d m5,5"), QByteArray("Enter open close Hover1 Move1"));  // shown button closes the popup
    QCOMPARE(told("m145,5 d f"), QByteArray("Enter open close"));                  // focus closes the popup
    QCOMPARE(told("m5,5 t t t t t t"), QByteArray("Hover1 Move1 Enter tip"));      // tip after five ticks
    QCOMPARE(told("m5,5 t t t t m6,5 t t t t"), QByteArray("Hover1 Move1 Enter Move1"));  // a move begins anew
    QCOMPARE(told("m5,5 l t t t t t"), QByteArray("Hover1 Move1 Enter Leave"));           // no tip outside
    QCOMPARE(told("m145,5 t t t t t"), QByteArray("Enter"));                              // no tip on the chevron
    QCOMPARE(told("m80,5 t t t t t"), QByteArray("Hover4 Move4 Enter"));                  // nor without a text
  }

  void popupHangsBelowTheControl() {
    Strip strip(149);
    strip.run(QStringLiteral("m145,5 d"));
    QCOMPARE(strip.record.popup, QRect(249 - 68, 233, 68, 39));
    strip.run(QStringLiteral("p5,5"));
    QCOMPARE(strip.record.lastButton, qint16(999));
    QVERIFY(strip.control.PicDraw() == SurfaceName::Chevron);
    // A layout moves the surface that is drawn on, and that one only.
    strip.control.UserControl_Resize();
    QCOMPARE(strip.record.popup, QRect(0, 0, 149, 32));
  }

  // A row of nothing ends the layout, but not what follows it.
  void failedLayoutIsShownAllTheSame() {
    Strip strip;
    strip.control.Buttons().Set(&Properties::ButtonsMode, 4);
    strip.control.Buttons().Set(&Properties::ButtonsPerRow, 0);
    strip.control.Buttons().Set(&Properties::BackColor, 0x112233U);
    strip.control.Resize(QSize(60, 20));
    const QImage& shown = strip.control.SurfaceOf(SurfaceName::Main).Image().image();
    QCOMPARE(shown.size(), QSize(60, 20));
    QCOMPARE(shown.pixel(1, 18), qRgb(0x33, 0x22, 0x11));
  }

  void disabledControlTakesInput() {
    Strip strip;
    strip.control.Buttons().Set(&Properties::Enabled, false);
    strip.record.words.clear();
    QCOMPARE(strip.run(QStringLiteral("m5,5 d u c")), QStringLiteral("Hover1 Move1 Enter Down1 Up1 Click1"));
  }

  void chevronGoesWithTheNextLayout() {
    Strip strip(149);
    strip.control.Buttons().Set(&Properties::ShowChevron, false);
    QCOMPARE(strip.control.HiddenButtons(), (std::vector<int>{5, 6}));
    strip.control.UserControl_Resize();
    QVERIFY(strip.control.HiddenButtons().empty());
  }

  // One note for two surfaces says whether the background is drawn.
  void backgroundOfTheOtherSurfaceStays() {
    Strip strip(149);
    strip.control.Buttons().Set(&Properties::ButtonsMode, 4);
    strip.run(QStringLiteral("m145,5 d"));
    strip.control.Buttons().Set(&Properties::BackColor, 0x112233U);
    strip.run(QStringLiteral("m144,5 l"));
    const auto& popup = strip.control.SurfaceOf(SurfaceName::Chevron).Image().image();
    const auto& main = strip.control.SurfaceOf(SurfaceName::Main).Image().image();
    QCOMPARE(popup.pixel(40, 2), qRgb(0x33, 0x22, 0x11));
    QCOMPARE(main.pixel(69, 30), qRgb(212, 208, 200));
  }

  void handOnlyOverWhatCanBeClicked() {
    Strip strip(149);
    for (const auto& [steps, hand] :
         {std::pair(u"m5,5", true), {u"m145,5", true}, {u"m40,5", false}, {u"m145,5", false}}) {
      strip.run(QString::fromUtf16(steps));
      QCOMPARE(strip.record.hand, hand);
    }
  }

  void buttonsEndAtTheRowsWidth() {
    Strip strip;
    strip.control.Buttons().Set(&Properties::ButtonsPerRow, 6);
    strip.control.Buttons().Set(&Properties::ButtonsSeperatorWidth, 100);
    strip.record.words.clear();
    QCOMPARE(strip.run(QStringLiteral("m191,5 m193,5")), QStringLiteral("Hover4 Move4 Enter"));
    strip.control.Buttons().Set(&Properties::ButtonsWidth, 0);
    strip.control.Buttons().PointAt(1);
    strip.record.words.clear();
    QCOMPARE(strip.run(QStringLiteral("m20,5")), QStringLiteral("Move1"));
  }

  void tip() {
    Strip strip;
    toolbar::Model& model = strip.control.Buttons();
    model.SetButtonValue(1, toolbar::ToolTipTextProperty, QStringLiteral("first"));
    model.Set(&Properties::TooTipStyle, 1);
    const auto shown = [&](const char* move) {
      strip.run(QString::fromLatin1(move) + QStringLiteral(" t t t t t"));
      const auto& tip = strip.record.tip;
      return tip ? QStringLiteral("%1|%2|%3|%4").arg(tip->Title, tip->Text).arg(tip->Icon).arg(tip->IsBalloon)
                 : QString();
    };
    QCOMPARE(shown("m5,5"), QStringLiteral("B|first|0|0"));
    QVERIFY(!strip.record.timer);
    model.SetButtonValue(1, toolbar::ToolTipIconProperty, 2);
    model.Set(&Properties::TooTipStyle, 2);
    QCOMPARE(shown("m6,5"), QStringLiteral("B|first|2|1"));
    model.SetButtonValue(1, toolbar::CaptionProperty, QString());
    QCOMPARE(shown("m7,5"), QStringLiteral("|first|0|1"));
    strip.run(QStringLiteral("m8,5"));
    QVERIFY(!strip.record.tip);
  }

  void designerIsNotHooked() {
    Record record;
    Control control(record, record, {false, QFont()});
    control.UserControl_ReadProperties({});
    QCOMPARE(control.Buttons().Button_Index(), 1);
    control.Buttons().Set(&Properties::ShowChevron, true);
    control.Buttons().SetButton_Count(4);
    control.Resize(QSize(60, 32));
    QVERIFY(control.HiddenButtons().empty());
    record.words.clear();
    control.zSubclass_Proc(512, SurfaceName::Main, 5);
    control.zSubclass_Proc(675);
    QVERIFY(record.words.isEmpty() && !record.timer);
  }

  // Each letter is ten wide.
  void captionWrap() {
    const auto lines = [](const char* caption, int width) {
      const auto tens = [](const QString& text) { return int(text.size()) * 10; };
      return toolbar::WrapCaption(QString::fromLatin1(caption), width, tens).join(u'|').toLatin1();
    };
    QCOMPARE(lines("", 50), QByteArray(""));                            // empty
    QCOMPARE(lines(" a b ", 60), QByteArray(" a b "));                  // fits with its blanks
    QCOMPARE(lines("ab\r\ncd", 60), QByteArray("abcd"));                // line ends go
    QCOMPARE(lines("open file now", 80), QByteArray("open|file|now"));  // at a blank
    QCOMPARE(lines("part12 x", 50), QByteArray("part|12 x"));           // before a digit
    QCOMPARE(lines("abcdefg", 40), QByteArray("abc|defg"));             // inside a word
    QCOMPARE(lines("abcd", 40), QByteArray("abcd"));                    // only the last crosses
    QCOMPARE(lines("a bc", 40), QByteArray("a|bc"));                    // only the last crosses, with a break
    QCOMPARE(lines("abcd ef -g", 60), QByteArray("abcd|ef -g"));        // blank before the joined piece
    QCOMPARE(lines("ab", 5), QByteArray("|ab"));                        // narrower than a letter
  }
};

QTEST_MAIN(InputTest)
#include "toolbar_input_test.moc"
