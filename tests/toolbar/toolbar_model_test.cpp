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

QString named(const char* row, const QString& outcome) {
  return QString::fromLatin1(row) + QStringLiteral(": ") + outcome;
}

/// Of every button its corner, behind an h when it is hidden; the height, and the size of the popup.
QString placesOf(Bar& bar, int width) {
  toolbar::Layout layout;
  int height = -1;
  try {
    height = toolbar::LaidOutHeight(bar.model);
    toolbar::LayOut(bar.model, width, true, layout);
  } catch (const std::domain_error&) {
  }
  QString text;
  for (int i = 1; i <= bar.model.Button_Count(); ++i) {
    const ToolbarButton& button = bar.model.Button(i);
    text += QStringLiteral("%1%2,%3 ")
                .arg(button.InChevron ? QStringLiteral("h") : QString())
                .arg(button.PosX)
                .arg(button.PosY);
  }
  text += QStringLiteral("height %1").arg(height);
  if (layout.HiddenButtons.empty()) return text;
  return text + QStringLiteral(" popup %1,%2").arg(layout.Popup.width()).arg(layout.Popup.height());
}

}  // namespace

class ModelTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  // From "abcd" with the second button current: letters, current button, what was told. After the range error all is
  // as before.
  void operations() {
    const struct {
      const char* name;
      void (*run)(Model& model);
      const char* outcome;
    } rows[] = {
        {"more", [](Model& m) { m.SetButton_Count(6); }, "abcdBB 6 Button_Count L"},
        {"fewer", [](Model& m) { m.SetButton_Count(1); }, "a 1 Button_Count L"},
        {"same count", [](Model& m) { m.SetButton_Count(4); }, "abcd 2"},
        {"count 0", [](Model& m) { m.SetButton_Count(0); }, "abcd 2"},
        {"other index", [](Model& m) { m.SetButton_Index(4); }, "abcd 4 Button_Index R"},
        {"same index", [](Model& m) { m.SetButton_Index(2); }, "abcd 2"},
        {"index 0", [](Model& m) { m.SetButton_Index(0); }, "33 Index out or range!!"},
        {"remove", [](Model& m) { m.RemoveButton(1); }, "bcd 2 L"},
        {"remove behind", [](Model& m) { m.RemoveButton(5); }, "33 Index out or range!!"},
        {"insert up", [](Model& m) { m.InsertButtonTo(1, 3); }, "bcad 2 L"},
        {"insert down", [](Model& m) { m.InsertButtonTo(4, 1); }, "dabc 2 L"},
        {"insert in place", [](Model& m) { m.InsertButtonTo(3, 3); }, "abcd 2 L"},
        {"insert behind", [](Model& m) { m.InsertButtonTo(1, 5); }, "33 Index out or range!!"},
        {"swap", [](Model& m) { m.MoveButtonTo(4, 1); }, "dbca 2 L"},
        {"swap outside", [](Model& m) { m.MoveButtonTo(0, 0); }, "33 Index out or range!!"},
        {"command remove", [](Model& m) { m.SetButtonRemove(1); }, "acd 2 L L"},
        {"command remove, not 1", [](Model& m) { m.SetButtonRemove(2); }, "abcd 2"},
        {"command move", [](Model& m) { m.SetButtonMoveTo(4); }, "adcb 4 L R"},
        {"command insert", [](Model& m) { m.SetButtonInsertTo(4); }, "acdb 4 L R"},
        {"command outside", [](Model& m) { m.SetButtonInsertTo(9); }, "33 Index out or range!!"},
        {"value by number", [](Model& m) { m.SetButtonValue(3, 1, 7); }, "ab7d 2 R"},
        {"no such value", [](Model& m) { m.SetButtonValue(3, 9, 7); }, "abcd 2 R"},
        {"field", [](Model& m) { m.SetCurrentValue(toolbar::CaptionProperty, QLatin1String("x")); },
         "axcd 2 ButtonCaption R"},
        {"tip", [](Model& m) { m.SetCurrentValue(toolbar::ToolTipTextProperty, QLatin1String("x")); },
         "abcd 2 ButtonToolTip -"},
        {"look", [](Model& m) { m.Set(&Properties::ButtonsMode, 2); }, "abcd 2 ButtonsMode L"},
        {"background", [](Model& m) { m.Set(&Properties::BackColor, 5U); }, "abcd 2 BackColor B"},
        {"chevron", [](Model& m) { m.Set(&Properties::ShowChevron, true); }, "abcd 2 ShowChevron -"},
    };
    for (const auto& row : rows) {
      Bar bar(QStringLiteral("abcd"));
      bar.model.PointAt(2);
      QString outcome;
      try {
        row.run(bar.model);
        outcome = bar.letters() + u' ' + QString::number(bar.model.Button_Index());
        if (!bar.told.words.isEmpty()) outcome += u' ' + bar.told.words.join(u' ');
      } catch (const toolbar::RangeError& error) {
        outcome = QString::number(toolbar::RangeError::Number) + u' ' + error.description();
        QVERIFY(bar.letters() == QStringLiteral("abcd") && bar.model.Button_Index() == 2 && bar.told.words.isEmpty());
      }
      QCOMPARE(named(row.name, outcome), named(row.name, QString::fromLatin1(row.outcome)));
    }
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
    const struct {
      const char* name;
      const char* letters;
      qint16 border;
      int perRow;
      int width;
      const char* places;
    } rows[] = {
        {"one row", "abc", 0, 10, 800, "0,0 32,0 64,0 height 32"},
        {"framed", "abc", 1, 10, 800, "2,5 34,5 66,5 height 39"},
        {"separator in rows", "aSbcd", 0, 3, 800, "0,0 32,0 42,0 0,32 32,32 height 64"},
        {"rows of a framed bar", "abc", 2, 2, 800, "2,5 34,5 2,37 height 71"},
        {"just enough room", "ab", 0, 10, 76, "0,0 32,0 height 32"},
        {"one pixel short", "ab", 0, 10, 75, "0,0 h2,5 height 32 popup 36,39"},
        {"separators never hide", "aSb", 0, 10, 44, "0,0 32,0 h2,5 height 32 popup 36,39"},
        {"second row begins anew", "abcd", 0, 2, 44, "0,0 h2,5 0,32 h34,5 height 64 popup 68,39"},
        {"four hidden", "abcde", 0, 10, 44, "0,0 h2,5 h34,5 h66,5 h2,37 height 32 popup 100,71"},
        {"row of nothing", "ab", 0, 0, 800, "0,0 0,0 height -1"},
    };
    for (const auto& row : rows) {
      Bar bar(QString::fromLatin1(row.letters));
      bar.model.Set(&Properties::BorderStyle, row.border);
      bar.model.Set(&Properties::ButtonsPerRow, row.perRow);
      bar.model.Set(&Properties::ShowChevron, true);
      QCOMPARE(named(row.name, placesOf(bar, row.width)), named(row.name, QString::fromLatin1(row.places)));
    }
  }

  // Places, each with the item that is hit there.
  void hits() {
    const struct {
      const char* letters;
      qint16 border;
      bool inPopup;
      std::vector<std::pair<QPoint, int>> places;
    } rows[] = {
        // the first and the last pixel inside, edges, the second row, behind the last
        {"abcd",
         0,
         false,
         {{{1, 1}, 1}, {{31, 31}, 1}, {{0, 5}, -1}, {{5, 0}, -1}, {{32, 5}, -1}, {{1, 33}, 4}, {{40, 40}, -1}}},
        {"aSb", 0, false, {{{43, 5}, 3}}},                 // a separator is narrow
        {"abcd", 1, false, {{{1, 6}, 1}, {{10, 5}, -1}}},  // framed rows begin at 0, below the frame
        {"abcd", 1, true, {{{1, 1}, 1}}},                  // a popup counts from its corner
        {"aSb", 0, true, {{{65, 5}, 3}}},                  // and has no separators
    };
    for (const auto& row : rows) {
      Bar bar(QString::fromLatin1(row.letters));
      bar.model.Set(&Properties::BorderStyle, row.border);
      for (const auto& [place, hit] : row.places) {
        QCOMPARE(toolbar::HitTest(bar.model, place.x(), place.y(), row.inPopup), hit);
      }
    }
  }
};

QTEST_MAIN(ModelTest)
#include "toolbar_model_test.moc"
