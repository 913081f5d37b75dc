#include <QTest>

#include "toolbar/layout.h"
#include "toolbar/model.h"

using toolbar::Effect;
using toolbar::Model;
using toolbar::Properties;
using toolbar::ToolbarButton;

namespace {

/// Writes down what a model tells.
struct Told : toolbar::ModelView {
  void PropertyChanged(QStringView name) override { words += name.toString(); }
  void React(Effect effect) override {
    constexpr const char* Names[] = {"-", "R", "B", "L"};
    words += QString::fromLatin1(Names[int(effect)]);
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
    model.Take(Properties(), buttons);
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
  bar.model.Set(&Properties::BorderStyle, border);
  bar.model.Set(&Properties::ButtonsPerRow, perRow);
  bar.model.Set(&Properties::ShowChevron, true);
  toolbar::Layout layout;
  int height = -1;
  try {
    height = toolbar::LaidOutHeight(bar.model);
    toolbar::LayOut(bar.model, width, true, layout);
  } catch (const std::domain_error&) {
  }
  const auto pair = [](int x, int y) { return QByteArray::number(x) + ',' + QByteArray::number(y) + ' '; };
  QByteArray text;
  for (int i = 1; i <= bar.model.Button_Count(); ++i) {
    const ToolbarButton& button = bar.model.Button(i);
    text += (button.InChevron ? "h" : "") + pair(button.PosX, button.PosY);
  }
  if (!layout.HiddenButtons.empty()) text += "popup " + pair(layout.Popup.width(), layout.Popup.height());
  return text + "height " + QByteArray::number(height);
}

}  // namespace

class ModelTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  // From "abcd" with the second button current: letters, current button, what was told. After the range error all is
  // as before.
  void operations() {
    const auto after = [](void (*run)(Model & model)) {
      Bar bar(QStringLiteral("abcd"));
      bar.model.PointAt(2);
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
    QCOMPARE(after([](Model& m) { m.SetButton_Count(4); }), QByteArray("abcd 2"));
    QCOMPARE(after([](Model& m) { m.SetButton_Count(0); }), QByteArray("abcd 2"));
    QCOMPARE(after([](Model& m) { m.SetButton_Index(4); }), QByteArray("abcd 4 Button_Index R"));
    QCOMPARE(after([](Model& m) { m.SetButton_Index(2); }), QByteArray("abcd 2"));
    QCOMPARE(after([](Model& m) { m.SetButton_Index(0); }), refused);
    QCOMPARE(after([](Model& m) { m.RemoveButton(1); }), QByteArray("bcd 2 L"));
    QCOMPARE(after([](Model& m) { m.RemoveButton(5); }), refused);
    QCOMPARE(after([](Model& m) { m.InsertButtonTo(1, 3); }), QByteArray("bcad 2 L"));
    QCOMPARE(after([](Model& m) { m.InsertButtonTo(4, 1); }), QByteArray("dabc 2 L"));
    QCOMPARE(after([](Model& m) { m.InsertButtonTo(3, 3); }), QByteArray("abcd 2 L"));
    QCOMPARE(after([](Model& m) { m.InsertButtonTo(1, 5); }), refused);
    QCOMPARE(after([](Model& m) { m.MoveButtonTo(4, 1); }), QByteArray("dbca 2 L"));
    QCOMPARE(after([](Model& m) { m.MoveButtonTo(0, 0); }), refused);
    QCOMPARE(after([](Model& m) { m.SetButtonRemove(1); }), QByteArray("acd 2 L L"));
    QCOMPARE(after([](Model& m) { m.SetButtonRemove(2); }), QByteArray("abcd 2"));
    QCOMPARE(after([](Model& m) { m.SetButtonMoveTo(4); }), QByteArray("adcb 4 L R"));
    QCOMPARE(after([](Model& m) { m.SetButtonInsertTo(4); }), QByteArray("acdb 4 L R"));
    QCOMPARE(after([](Model& m) { m.SetButtonInsertTo(9); }), refused);
    QCOMPARE(after([](Model& m) { m.SetButtonValue(3, 1, 7); }), QByteArray("ab7d 2 R"));
    QCOMPARE(after([](Model& m) { m.SetButtonValue(3, 9, 7); }), QByteArray("abcd 2 R"));
    QCOMPARE(after([](Model& m) { m.SetCurrentValue(toolbar::CaptionProperty, QLatin1String("x")); }),
             QByteArray("axcd 2 ButtonCaption R"));
    QCOMPARE(after([](Model& m) { m.SetCurrentValue(toolbar::ToolTipTextProperty, QLatin1String("x")); }),
             QByteArray("abcd 2 ButtonToolTip -"));
    QCOMPARE(after([](Model& m) { m.Set(&Properties::ButtonsMode, 2); }), QByteArray("abcd 2 ButtonsMode L"));
    QCOMPARE(after([](Model& m) { m.Set(&Properties::BackColor, 5U); }), QByteArray("abcd 2 BackColor B"));
    QCOMPARE(after([](Model& m) { m.Set(&Properties::ShowChevron, true); }), QByteArray("abcd 2 ShowChevron -"));
  }

  void lastButtonStays() {
    Bar bar(QStringLiteral("ab"));
    bar.model.PointAt(2);
    bar.model.SetButtonRemove(1);
    QCOMPARE(bar.model.Button_Index(), 1);
    // A blank place stays behind the last button, and a new button isn't blank.
    QCOMPARE(bar.model.GetButtonValue(2, toolbar::EnabledProperty), QVariant(false));
    bar.told.words.clear();
    bar.model.RemoveButton(1);
    QVERIFY(bar.told.words.isEmpty());
    QCOMPARE(bar.letters(), QStringLiteral("a"));
    bar.model.SetButton_Count(2);
    QCOMPARE(bar.model.GetButtonValue(2, toolbar::ToolTipIconProperty), QVariant(1));
    QCOMPARE(bar.model.GetButtonValue(2, toolbar::EnabledProperty), QVariant(true));
  }

  void indexOutside() {
    Bar bar(QStringLiteral("ab"));
    for (const int index : {0, -1, 3}) {
      QVERIFY_THROWS_EXCEPTION(std::out_of_range, bar.model.SetButtonValue(index, 2, true));
      QVERIFY_THROWS_EXCEPTION(std::out_of_range, bar.model.GetButtonValue(index, 2));
    }
    bar.model.PointAt(-1);
    bar.model.SetCurrentValue(toolbar::EnabledProperty, false);
    QVERIFY(bar.told.words.isEmpty() && bar.model.Button(1).Enabled);
    QCOMPARE(bar.model.CurrentValue(toolbar::EnabledProperty), QVariant(false));
    QCOMPARE(bar.model.CurrentValue(toolbar::CaptionProperty), QVariant(QString()));
  }

  void looksOverwriteProperties() {
    Bar bar(QStringLiteral("a"));
    bar.model.Set(&Properties::BackColor, 1U);
    bar.model.Set(&Properties::BackGradient, 4);
    bar.model.Set(&Properties::ButtonsMode, 7);
    QCOMPARE(bar.model.Values().BackGradient, 4);
    bar.model.Set(&Properties::ButtonsMode, 6);
    bar.model.Set(&Properties::ButtonsMode, 4);
    const Properties& values = bar.model.Values();
    QCOMPARE((QList<quint32>{values.BackColor, values.HoverColor, values.ButtonsBackColor, values.ButtonsGradientCol}),
             (QList<quint32>{0x8000000F, 0xFF8080, 0x80000004, 0x8000000F}));
    QCOMPARE((QList<int>{values.BackGradient, values.BorderStyle, values.ButtonsGradient}), (QList<int>{0, 0, 0}));
  }

  void layout() {
    QCOMPARE(placesOf("abc", 0, 10, 800), QByteArray("0,0 32,0 64,0 height 32"));              // one row
    QCOMPARE(placesOf("abc", 1, 10, 800), QByteArray("2,5 34,5 66,5 height 39"));              // framed
    QCOMPARE(placesOf("aSbcd", 0, 3, 800), QByteArray("0,0 32,0 42,0 0,32 32,32 height 64"));  // separator in rows
    QCOMPARE(placesOf("abc", 2, 2, 800), QByteArray("2,5 34,5 2,37 height 71"));               // rows of a framed bar
    QCOMPARE(placesOf("ab", 0, 10, 76), QByteArray("0,0 32,0 height 32"));                     // just enough room
    QCOMPARE(placesOf("ab", 0, 10, 75), QByteArray("0,0 h2,5 popup 36,39 height 32"));         // one pixel short
    QCOMPARE(placesOf("aSb", 0, 10, 44), QByteArray("0,0 32,0 h2,5 popup 36,39 height 32"));   // separators never hide
    QCOMPARE(placesOf("abcd", 0, 2, 44),
             QByteArray("0,0 h2,5 0,32 h34,5 popup 68,39 height 64"));  // second row begins anew
    QCOMPARE(placesOf("abcde", 0, 10, 44),
             QByteArray("0,0 h2,5 h34,5 h66,5 h2,37 popup 100,71 height 32"));  // four hidden
    QCOMPARE(placesOf("ab", 0, 0, 800), QByteArray("0,0 0,0 height -1"));       // row of nothing
  }

  void hits() {
    const auto hit = [](const char* letters, qint16 border, int x, int y, bool inPopup = false) {
      Bar bar(QString::fromLatin1(letters));
      bar.model.Set(&Properties::BorderStyle, border);
      return toolbar::HitTest(bar.model, x, y, inPopup);
    };
    QCOMPARE(hit("abcd", 0, 1, 1), 1);
    QCOMPARE(hit("abcd", 0, 31, 31), 1);
    QCOMPARE(hit("abcd", 0, 0, 5), -1);  // edges
    QCOMPARE(hit("abcd", 0, 5, 0), -1);
    QCOMPARE(hit("abcd", 0, 32, 5), -1);
    QCOMPARE(hit("abcd", 0, 1, 33), 4);  // the second row
    QCOMPARE(hit("abcd", 0, 40, 40), -1);
    QCOMPARE(hit("aSb", 0, 43, 5), 3);  // a separator is narrow
    QCOMPARE(hit("abcd", 1, 1, 6), 1);  // framed rows begin at 0, below the frame
    QCOMPARE(hit("abcd", 1, 10, 5), -1);
    QCOMPARE(hit("abcd", 1, 1, 1, true), 1);  // a popup counts from its corner, and has no separators
    QCOMPARE(hit("aSb", 0, 65, 5, true), 3);
  }
};

QTEST_MAIN(ModelTest)
#include "toolbar_model_test.moc"
