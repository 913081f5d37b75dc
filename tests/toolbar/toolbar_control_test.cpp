#include <cstring>

#include <QTest>

#include "toolbar/captions.h"
#include "toolbar/control.h"
#include "toolbar/layout.h"
#include "toolbar/tool_bar_events.h"

using toolbar::Control;
using toolbar::Model;
using toolbar::MouseArguments;
using toolbar::Properties;
using toolbar::SurfaceName;
using toolbar::ToolbarButton;
using toolbar::ToolBarEvents;

namespace {

/// Writes down what a control tells its client and asks of its windows.
struct Record : toolbar::Windows {
  Record() {
    QObject::connect(&events, &ToolBarEvents::PropertyChanged, [this](const QString& name) { words += name; });
    QObject::connect(&events, &ToolBarEvents::MouseEnter, [this] { note("Enter"); });
    QObject::connect(&events, &ToolBarEvents::MouseLeave, [this] { note("Leave"); });
    noteNumber(&ToolBarEvents::Hover, "Hover");
    noteNumber(&ToolBarEvents::Click, "Click");
    noteNumber(&ToolBarEvents::DblClick, "DblClick");
    noteNumber(&ToolBarEvents::MouseUp, "Up");
    noteNumber(&ToolBarEvents::MouseDown, "Down");
    noteNumber(&ToolBarEvents::MouseMove, "Move");
    QObject::connect(&events, &ToolBarEvents::MouseMove, [this](int, qint16 button) { lastButton = button; });
  }
  void note(const char* word) { words += QString::fromLatin1(word); }
  void noteNumber(auto signal, const char* word) {
    QObject::connect(&events, signal,
                     [this, word](int number) { words += QString::fromLatin1(word) + QString::number(number); });
  }

  void SetHeight(int /*pixels*/) override {}
  void present(SurfaceName /*surface*/) override {}
  QRect controlOnScreen() const override { return {100, 200, width, 32}; }
  void CreateChevronWindow() override {}
  void movePopup(const QRect& onScreen) override { popup = onScreen; }
  void resizePopup(const QSize& size) override { popup.setSize(size); }
  void setPopupVisible(bool visible) override {
    if (visible != popupVisible) note(visible ? "open" : "close");
    popupVisible = visible;
  }
  bool isPopupVisible() const override { return popupVisible; }
  void setHand(SurfaceName /*surface*/, bool /*isHand*/) override {}
  void SetTimer() override {}
  void KillTimer() override {}
  void StartLeaveTracking(SurfaceName /*surface*/) override {}
  void ShowToolTip(const toolbar::ToolTip& tip) override {
    words += QStringLiteral("tip|%1|%2|%3|%4").arg(tip.title, tip.Text).arg(tip.Icon).arg(tip.isBalloon);
  }
  void DestroyToolTip() override {}

  ToolBarEvents events;
  QStringList words;
  QRect popup;
  int width = 0;
  qint16 lastButton = 0;
  bool popupVisible = false;
};

/// Six buttons of 32 pixels in one row, the second disabled, the third a separator. In 149 pixels the last two hide.
struct Strip {
  explicit Strip(int width = 800) {
    record.width = width;
    control.UserControl_ReadProperties({});
    control.resize(QSize(width, 32));
    Model& model = control.buttons();
    model.setValue(&Properties::ButtonsPerRow, 10);
    model.setValue(&Properties::ShowChevron, true);
    model.SetButton_Count(6);
    model.SetButtonValue(2, toolbar::EnabledProperty, false);
    model.SetButtonValue(3, toolbar::ButtonTypeProperty, 1);
    model.pointAt(-1);
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
    const auto surface = std::strchr("pDUC", kind) ? SurfaceName::Chevron : SurfaceName::Main;
    const int x = numbers.first().toInt();
    const int y = numbers.last().toInt();
    const MouseArguments place{0, 0, static_cast<float>(x), static_cast<float>(y)};
    if (kind == 'm') control.picMain_MouseMove(place);
    if (kind == 'p') control.picChevron_MouseMove(place);
    if (kind == 'm' || kind == 'p') control.zSubclass_Proc(512, surface, {x, y});
    if (kind == 'd' || kind == 'D') control.picDraw_MouseDown(surface, place);
    if (kind == 'u' || kind == 'U') control.picDraw_MouseUp(surface, place);
    if (kind == 'c' || kind == 'C') control.picDraw_Click(surface);
    if (kind == '2') control.picDraw_DblClick(surface);
    if (kind == 'l') control.zSubclass_Proc(675);
    if (kind == 'f') control.zSubclass_Proc(8);
    if (kind == 't') control.zSubclass_Proc(275);
  }

  Record record;
  Control control{record, record.events, {}};
};

/// Writes down what a model tells.
struct Told : toolbar::ModelView {
  void PropertyChanged(QStringView name) override { words += name.toString(); }
  void react(toolbar::Effect effect) override {
    constexpr const char* Names[] = {"-", "R", "B", "L"};
    words += QString::fromLatin1(Names[static_cast<int>(effect)]);
  }
  QStringList words;
};

/// A model with buttons named by letters; a capital is a separator.
struct Bar {
  explicit Bar(const QString& letters) {
    std::vector<ToolbarButton> buttons;
    for (const QChar letter : letters) {
      ToolbarButton& button = buttons.emplace_back();
      button.Caption = letter;
      button.ButtonType = letter.isUpper() ? 1 : 0;
    }
    model.take(Properties(), buttons);
  }
  QString letters() const {
    QString text;
    for (int i = 1; i <= model.Button_Count(); ++i) text += model.Button(i).Caption;
    return text;
  }
  Told told;
  Model model{told, QFont()};
};

/// Of every button its corner, behind an h when it is hidden; the height, and the size of the popup.
QByteArray placesOf(const char* letters, qint16 border, int perRow, int width) {
  Bar bar(QString::fromLatin1(letters));
  bar.model.setValue(&Properties::BorderStyle, border);
  bar.model.setValue(&Properties::ButtonsPerRow, perRow);
  bar.model.setValue(&Properties::ShowChevron, true);
  toolbar::Layout layout;
  toolbar::layOutButtons(bar.model, width, toolbar::Overflow::Hides, layout);
  const auto pair = [](int x, int y) { return QByteArray::number(x) + ',' + QByteArray::number(y) + ' '; };
  QByteArray text;
  for (int i = 1; i <= bar.model.Button_Count(); ++i) {
    const toolbar::ButtonPlace& place = bar.model.placeOf(i);
    text += (place.InChevron ? "h" : "") + pair(place.PosX, place.PosY);
  }
  if (!layout.HiddenButtons.empty()) text += "popup " + pair(layout.popup.width(), layout.popup.height());
  return text + "height " + QByteArray::number(toolbar::laidOutHeight(bar.model));
}

}  // namespace

class ControlTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void eventsInOrder() {
    const auto told = [](const char* steps) {
      Strip strip(149);
      strip.control.buttons().SetButtonValue(1, toolbar::ToolTipTextProperty, QStringLiteral("first"));
      strip.control.buttons().SetButtonValue(1, toolbar::ToolTipIconProperty, 2);
      strip.control.buttons().setValue(&Properties::TooTipStyle, 2);
      strip.record.words.clear();
      return strip.run(QString::fromLatin1(steps)).toLatin1();
    };
    QCOMPARE(told("m5,5 t t t t m5,5 t"),
             QByteArray("Hover1 Move1 Enter Move1 tip|B|first|2|1"));  // the same place twice
    QCOMPARE(told("m5,5 d u c 2 u"), QByteArray("Hover1 Move1 Enter Down1 Up1 Click1 DblClick1 Up1"));  // double click
    QCOMPARE(told("m40,5 d u c"), QByteArray("Enter"));                                                 // disabled
    QCOMPARE(told("m5,5 m80,5"), QByteArray("Hover1 Move1 Enter Hover4 Move4"));               // straight to another
    QCOMPARE(told("m5,5 d l u c"), QByteArray("Hover1 Move1 Enter Down1 Leave"));              // leave in a press
    QCOMPARE(told("m5,5 l m6,5"), QByteArray("Hover1 Move1 Enter Leave Hover1 Move1 Enter"));  // enter again
    QCOMPARE(told("m145,5 d u p5,5"), QByteArray("Enter open Hover5 Move5"));  // release on the strip isn't seen
    QCOMPARE(told("m145,5 d p40,10 D U C"), QByteArray("Enter open Hover6 Move6 Down6 Up6 Click6"));  // popup
    QCOMPARE(told("m145,5 d m5,5"), QByteArray("Enter open close Hover1 Move1"));  // shown button closes the popup
    QCOMPARE(told("m145,5 d f"), QByteArray("Enter open close"));                  // focus closes the popup
    QCOMPARE(told("m5,5 t t t t t t"), QByteArray("Hover1 Move1 Enter tip|B|first|2|1"));  // tip after five ticks
  }

  void popupHangsBelowTheControl() {
    Strip strip(149);
    strip.run(QStringLiteral("m145,5 d"));
    QCOMPARE(strip.record.popup, QRect(249 - 68, 233, 68, 39));
    strip.run(QStringLiteral("p5,5"));
    QCOMPARE(strip.record.lastButton, static_cast<qint16>(999));
    // While the pointer is back on the strip, the open popup takes the size of its new layout.
    strip.run(QStringLiteral("m40,5"));
    strip.control.buttons().setValue(&Properties::ButtonsPerRow_Chev, 1);
    QCOMPARE(strip.record.popup, QRect(249 - 68, 233, 36, 71));
    strip.run(QStringLiteral("p5,5"));
    // A layout moves the surface that is drawn on, and that one only.
    strip.control.UserControl_Resize();
    QCOMPARE(strip.record.popup, QRect(0, 0, 149, 32));
  }

  // Each letter is ten wide.
  void captionWrap() {
    const auto lines = [](const char* caption, int width) {
      const auto tens = [](const QString& text) { return static_cast<int>(text.size()) * 10; };
      return toolbar::WrapCaption(QString::fromLatin1(caption), width, tens).join(u'|').toLatin1();
    };
    QCOMPARE(lines("ab\r\ncd", 60), QByteArray("abcd"));                // line ends go
    QCOMPARE(lines("open file now", 80), QByteArray("open|file|now"));  // at a blank
    QCOMPARE(lines("part12 x", 50), QByteArray("part|12 x"));           // before a digit
    QCOMPARE(lines("abcdefg", 40), QByteArray("abc|defg"));             // inside a word
    QCOMPARE(lines("abcd ef -g", 60), QByteArray("abcd|ef -g"));        // blank before the joined piece
  }

  // From "abcd" with the second button current: letters, current button, what was told. After the range error all is
  // as before.
  void operations() {
    const auto after = [](void (*run)(Model & model)) {
      Bar bar(QStringLiteral("abcd"));
      bar.model.pointAt(2);
      QString error;
      try {
        run(bar.model);
      } catch (const toolbar::RangeError& failure) {
        error = QString::number(toolbar::RangeError::Number) + failure.description();
      }
      const QStringList state{bar.letters(), QString::number(bar.model.Button_Index())};
      return (state + bar.told.words).join(u' ').append(error).toLatin1();
    };
    const QByteArray refused("abcd 233Index out or range!!");
    QCOMPARE(after([](Model& m) { m.SetButton_Count(6); }), QByteArray("abcdBB 6 Button_Count L"));
    QCOMPARE(after([](Model& m) { m.SetButton_Count(1); }), QByteArray("a 1 Button_Count L"));
    QCOMPARE(after([](Model& m) { m.SetButton_Index(4); }), QByteArray("abcd 4 Button_Index R"));
    QCOMPARE(after([](Model& m) { m.SetButton_Index(0); }), refused);
    QCOMPARE(after([](Model& m) { m.RemoveButton(1); }), QByteArray("bcd 2 L"));
    QCOMPARE(after([](Model& m) { m.RemoveButton(5); }), refused);
    QCOMPARE(after([](Model& m) { m.InsertButtonTo(1, 3); }), QByteArray("bcad 2 L"));
    QCOMPARE(after([](Model& m) { m.InsertButtonTo(1, 5); }), refused);
    QCOMPARE(after([](Model& m) { m.MoveButtonTo(4, 1); }), QByteArray("dbca 2 L"));
    QCOMPARE(after([](Model& m) { m.MoveButtonTo(0, 1); }), refused);
    QCOMPARE(after([](Model& m) { m.SetButtonInsertTo(4); }), QByteArray("acdb 4 L R"));
    QCOMPARE(after([](Model& m) { m.SetButtonMoveTo(4); }), QByteArray("adcb 4 L R"));
    QCOMPARE(after([](Model& m) { m.SetButtonRemove(1); }), QByteArray("acd 2 L L"));
    QCOMPARE(after([](Model& m) { m.setCurrentValue(toolbar::CaptionProperty, QLatin1String("x")); }),
             QByteArray("axcd 2 ButtonCaption R"));
    QCOMPARE(after([](Model& m) { m.setValue(&Properties::ButtonsMode, 2); }), QByteArray("abcd 2 ButtonsMode L"));
    QCOMPARE(after([](Model& m) { m.setValue(&Properties::BackColor, 5U); }), QByteArray("abcd 2 BackColor B"));
    QCOMPARE((QList<int>{Model::ButtonRemove(), Model::ButtonMoveTo(), Model::ButtonInsertTo()}),
             (QList<int>{-1, -1, -1}));
    const auto blank = [](Model& m) {
      m.pointAt(0);  // no button
      m.setCurrentValue(toolbar::CaptionProperty, m.currentValue(toolbar::EnabledProperty));
      m.pointAt(3);
      m.setCurrentValue(toolbar::CaptionProperty, m.currentValue(toolbar::CaptionProperty).toString().toUpper());
    };
    QCOMPARE(after(blank), QByteArray("abCd 3 ButtonCaption R"));
  }

  void looksOverwriteProperties() {
    Bar bar(QStringLiteral("a"));
    bar.model.setValue(&Properties::BackColor, 1U);
    bar.model.setValue(&Properties::BackGradient, 4);
    bar.model.setValue(&Properties::ButtonsMode, 6);
    bar.model.setValue(&Properties::ButtonsMode, 4);
    const Properties& values = bar.model.values();
    QCOMPARE((QList<quint32>{values.BackColor, values.HoverColor, values.ButtonsBackColor, values.ButtonsGradientCol}),
             (QList<quint32>{0x8000000F, 0xFF8080, 0x80000004, 0x8000000F}));
    QCOMPARE(values.BackGradient, 0);
  }

  void layout() {
    QCOMPARE(placesOf("abc", 1, 10, 800), QByteArray("2,5 34,5 66,5 height 39"));              // framed
    QCOMPARE(placesOf("aSbcd", 0, 3, 800), QByteArray("0,0 32,0 42,0 0,32 32,32 height 64"));  // separator in rows
    QCOMPARE(placesOf("ab", 0, 10, 75), QByteArray("0,0 h2,5 popup 36,39 height 32"));         // one pixel short
    QCOMPARE(placesOf("aSb", 0, 10, 44), QByteArray("0,0 32,0 h2,5 popup 36,39 height 32"));   // separators never hide
    QCOMPARE(placesOf("abcde", 0, 10, 44),
             QByteArray("0,0 h2,5 h34,5 h66,5 h2,37 popup 100,71 height 32"));  // four hidden
  }

  void hits() {
    const auto hit = [](const char* letters, qint16 border, int x, int y, bool inPopup = false) {
      Bar bar(QString::fromLatin1(letters));
      bar.model.setValue(&Properties::BorderStyle, border);
      return toolbar::HitTest(bar.model, x, y, inPopup);
    };
    QCOMPARE(hit("abcd", 0, 32, 5), -1);
    QCOMPARE(hit("abcd", 0, 1, 33), 4);       // the second row
    QCOMPARE(hit("aSb", 0, 43, 5), 3);        // a separator is narrow
    QCOMPARE(hit("abcd", 1, 1, 6), 1);        // framed rows begin at 0, below the frame
    QCOMPARE(hit("abcd", 1, 1, 1, true), 1);  // a popup counts from its corner, and has no separators
  }
};

QTEST_MAIN(ControlTest)
#include "toolbar_control_test.moc"
