#include <QTest>

#include "support/results.h"
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
using namespace Qt::StringLiterals;

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
  void setHand(SurfaceName /*surface*/, bool isHand) override {
    if (std::exchange(hand, isHand) != isHand) note(isHand ? "hand" : "arrow");
  }
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
  bool hand = false;
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

  /// What is told of steps like "move 5 5, press, leave"; "popup 5 5" is a move over the popup.
  QString run(const QString& steps) {
    SurfaceName surface = SurfaceName::Main;
    MouseArguments place;
    const QMap<QString, std::function<void()>> known{
        {QStringLiteral("press"), [&] { control.picDraw_MouseDown(surface, place); }},
        {QStringLiteral("release"), [&] { control.picDraw_MouseUp(surface, place); }},
        {QStringLiteral("click"), [&] { control.picDraw_Click(surface); }},
        {QStringLiteral("double click"), [&] { control.picDraw_DblClick(surface); }},
        {QStringLiteral("leave"), [&] { control.zSubclass_Proc(675); }},
        {QStringLiteral("lose focus"), [&] { control.zSubclass_Proc(8); }},
        {QStringLiteral("tick"), [&] { control.zSubclass_Proc(275); }},
        {QStringLiteral("right"), [&] { control.stepByKey(1); }},
    };
    for (const QString& step : steps.split(QStringLiteral(", "))) {
      if (known.contains(step)) {
        known[step]();
        continue;
      }
      const QStringList words = step.split(u' ');
      const QPoint to(words.at(1).toInt(), words.at(2).toInt());
      place = {0, 0, static_cast<float>(to.x()), static_cast<float>(to.y())};
      surface = words[0] == u"popup" ? SurfaceName::Chevron : SurfaceName::Main;
      surface == SurfaceName::Main ? control.picMain_MouseMove(place) : control.picChevron_MouseMove(place);
      control.zSubclass_Proc(512, surface, to);
    }
    return record.words.join(u' ');
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

/// Of every button its corner, behind an h when it is hidden; the height, and the size of the popup. Given are the
/// buttons, BorderStyle, ButtonsPerRow and the width.
QString placesOf(const QStringList& given) {
  Bar bar(given[0]);
  bar.model.setValue(&Properties::BorderStyle, given.at(1).toShort());
  bar.model.setValue(&Properties::ButtonsPerRow, given.at(2).toInt());
  bar.model.setValue(&Properties::ShowChevron, true);
  toolbar::Layout layout;
  toolbar::layOutButtons(bar.model, given.at(3).toInt(), toolbar::Overflow::Hides, layout);
  const auto pair = [](int x, int y) { return QStringLiteral("%1,%2 ").arg(x).arg(y); };
  QString text;
  for (int i = 1; i <= bar.model.Button_Count(); ++i) {
    const toolbar::ButtonPlace& place = bar.model.placeOf(i);
    text += QLatin1StringView(place.InChevron ? "h" : "") + pair(place.PosX, place.PosY);
  }
  if (!layout.HiddenButtons.empty()) text += u"popup "_s + pair(layout.popup.width(), layout.popup.height());
  return text + u"height "_s + QString::number(toolbar::laidOutHeight(bar.model));
}

}  // namespace

class ControlTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void eventsInOrder() {
    support::compareRows(u"events.txt"_s, [](const QString& steps) {
      Strip strip(149);
      strip.control.buttons().SetButtonValue(1, toolbar::ToolTipTextProperty, u"first"_s);
      strip.control.buttons().SetButtonValue(1, toolbar::ToolTipIconProperty, 2);
      strip.control.buttons().setValue(&Properties::TooTipStyle, 2);
      strip.record.words.clear();
      return strip.run(steps);
    });
  }

  void popupHangsBelowTheControl() {
    Strip strip(149);
    strip.run(u"move 145 5, press"_s);
    QCOMPARE(strip.record.popup, QRect(249 - 68, 233, 68, 39));
    strip.run(u"popup 5 5"_s);
    QCOMPARE(strip.record.lastButton, static_cast<qint16>(999));
    // While the pointer is back on the strip, the open popup takes the size of its new layout.
    strip.run(u"move 40 5"_s);
    strip.control.buttons().setValue(&Properties::ButtonsPerRow_Chev, 1);
    QCOMPARE(strip.record.popup, QRect(249 - 68, 233, 36, 71));
    strip.run(u"popup 5 5"_s);
    // A layout moves the surface that is drawn on, and that one only.
    strip.control.UserControl_Resize();
    QCOMPARE(strip.record.popup, QRect(0, 0, 149, 32));
  }

  /// Each letter is ten wide.
  void captionWrap() {
    support::compareRows(u"captions.txt"_s, [](const QString& row) {
      const auto tens = [](const QString& text) { return static_cast<int>(text.size()) * 10; };
      const qsizetype bar = row.indexOf(u'|');
      const QString caption = row.first(bar).replace(u"\\n"_s, u"\r\n"_s);
      return toolbar::WrapCaption(caption, row.sliced(bar + 1).toInt(), tens).join(u'|');
    });
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
    support::compareRows(u"places.txt"_s, [](const QString& row) { return placesOf(row.split(u' ')); });
  }

  void hits() {
    support::compareRows(u"hits.txt"_s, [](const QString& row) {
      const QStringList given = row.split(u' ');
      Bar bar(given[0]);
      bar.model.setValue(&Properties::BorderStyle, given.at(1).toShort());
      const bool inPopup = given.size() > 4;
      return QString::number(toolbar::HitTest(bar.model, given.at(2).toInt(), given.at(3).toInt(), inPopup));
    });
  }
};

QTEST_MAIN(ControlTest)
#include "toolbar_control_test.moc"
