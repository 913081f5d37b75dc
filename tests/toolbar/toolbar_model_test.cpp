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

using Operation = void (*)(Model& model);

}  // namespace

class ModelTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  // From "abcd" with the second button current.
  void operations_data() {
    QTest::addColumn<Operation>("operation");
    QTest::addColumn<QString>("letters");  // empty: the range error, and all as before
    QTest::addColumn<int>("current");
    QTest::addColumn<QString>("told");
    const auto row = [](const char* name, Operation run, const char* letters, int current, const char* told) {
      QTest::newRow(name) << run << QString::fromLatin1(letters) << current << QString::fromLatin1(told);
    };
    row(
        "more", [](Model& m) { m.SetButton_Count(6); }, "abcdBB", 6, "Button_Count L");
    row(
        "fewer", [](Model& m) { m.SetButton_Count(1); }, "a", 1, "Button_Count L");
    row(
        "same count", [](Model& m) { m.SetButton_Count(4); }, "abcd", 2, "");
    row(
        "count 0", [](Model& m) { m.SetButton_Count(0); }, "abcd", 2, "");
    row(
        "other index", [](Model& m) { m.SetButton_Index(4); }, "abcd", 4, "Button_Index R");
    row(
        "same index", [](Model& m) { m.SetButton_Index(2); }, "abcd", 2, "");
    row(
        "index 0", [](Model& m) { m.SetButton_Index(0); }, "", 2, "");
    row(
        "remove", [](Model& m) { m.RemoveButton(1); }, "bcd", 2, "L");
    row(
        "remove behind", [](Model& m) { m.RemoveButton(5); }, "", 2, "");
    row(
        "insert up", [](Model& m) { m.InsertButtonTo(1, 3); }, "bcad", 2, "L");
    row(
        "insert down", [](Model& m) { m.InsertButtonTo(4, 1); }, "dabc", 2, "L");
    row(
        "insert in place", [](Model& m) { m.InsertButtonTo(3, 3); }, "abcd", 2, "L");
    row(
        "insert behind", [](Model& m) { m.InsertButtonTo(1, 5); }, "", 2, "");
    row(
        "swap", [](Model& m) { m.MoveButtonTo(4, 1); }, "dbca", 2, "L");
    row(
        "swap outside", [](Model& m) { m.MoveButtonTo(0, 0); }, "", 2, "");
    row(
        "command remove", [](Model& m) { m.SetButtonRemove(1); }, "acd", 2, "L L");
    row(
        "command remove, not 1", [](Model& m) { m.SetButtonRemove(2); }, "abcd", 2, "");
    row(
        "command move", [](Model& m) { m.SetButtonMoveTo(4); }, "adcb", 4, "L R");
    row(
        "command insert", [](Model& m) { m.SetButtonInsertTo(4); }, "acdb", 4, "L R");
    row(
        "command outside", [](Model& m) { m.SetButtonInsertTo(9); }, "", 2, "");
    row(
        "value by number", [](Model& m) { m.SetButtonValue(3, 1, 7); }, "ab7d", 2, "R");
    row(
        "no such value", [](Model& m) { m.SetButtonValue(3, 9, 7); }, "abcd", 2, "R");
    row(
        "field", [](Model& m) { m.SetCurrentValue(toolbar::CaptionProperty, QStringLiteral("x")); }, "axcd", 2,
        "ButtonCaption R");
    row(
        "look", [](Model& m) { m.Set(&Properties::ButtonsMode, 2); }, "abcd", 2, "ButtonsMode L");
    row(
        "background", [](Model& m) { m.Set(&Properties::BackColor, 5U); }, "abcd", 2, "BackColor B");
  }
  void operations() {
    QFETCH(Operation, operation);
    QFETCH(QString, letters);
    Bar bar(QStringLiteral("abcd"));
    bar.model.PointAt(2);
    QString failure;
    try {
      operation(bar.model);
    } catch (const toolbar::RangeError& error) {
      failure = QString::number(toolbar::RangeError::Number) + error.description();
    }
    QCOMPARE(failure, letters.isEmpty() ? QStringLiteral("33Index out or range!!") : QString());
    QCOMPARE(bar.letters(), letters.isEmpty() ? QStringLiteral("abcd") : letters);
    QTEST(bar.model.Button_Index(), "current");
    QTEST(bar.told.words.join(u' '), "told");
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

  void nothingIsCurrentBelowOne() {
    Bar bar(QStringLiteral("ab"));
    bar.model.PointAt(-1);
    bar.model.SetCurrentValue(toolbar::EnabledProperty, false);
    QVERIFY(bar.told.words.isEmpty() && bar.model.Button(1).Enabled);
    QCOMPARE(bar.model.CurrentValue(toolbar::EnabledProperty), QVariant(false));
    QCOMPARE(bar.model.CurrentValue(toolbar::CaptionProperty), QVariant(QString()));
  }

  void indexOutsideIsTheCallersError() {
    Bar bar(QStringLiteral("ab"));
    for (const int index : {0, -1, 3}) {
      QVERIFY_THROWS_EXCEPTION(std::out_of_range, bar.model.SetButtonValue(index, 2, true));
      QVERIFY_THROWS_EXCEPTION(std::out_of_range, bar.model.GetButtonValue(index, 2));
    }
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

  void layout_data() {
    QTest::addColumn<QString>("letters");
    QTest::addColumn<int>("border");
    QTest::addColumn<int>("perRow");
    QTest::addColumn<int>("width");
    QTest::addColumn<QString>("places");  // of the buttons; h: hidden
    QTest::addColumn<int>("height");
    QTest::addColumn<QSize>("popup");
    const auto row = [](const char* name, const char* letters, int border, int perRow, int width, const char* places,
                        int height, QSize popup = {}) {
      QTest::newRow(name) << QString::fromLatin1(letters) << border << perRow << width << QString::fromLatin1(places)
                          << height << popup;
    };
    row("one row", "abc", 0, 10, 800, "0,0 32,0 64,0", 32);
    row("framed", "abc", 1, 10, 800, "2,5 34,5 66,5", 39);
    row("separator in rows", "aSbcd", 0, 3, 800, "0,0 32,0 42,0 0,32 32,32", 64);
    row("rows of a framed bar", "abc", 2, 2, 800, "2,5 34,5 2,37", 71);
    row("just enough room", "ab", 0, 10, 76, "0,0 32,0", 32);
    row("one pixel short", "ab", 0, 10, 75, "0,0 h2,5", 32, {36, 39});
    row("separators never hide", "aSb", 0, 10, 44, "0,0 32,0 h2,5", 32, {36, 39});
    row("second row begins anew", "abcd", 0, 2, 44, "0,0 h2,5 0,32 h34,5", 64, {68, 39});
    row("four hidden", "abcde", 0, 10, 44, "0,0 h2,5 h34,5 h66,5 h2,37", 32, {100, 71});
    row("row of nothing", "ab", 0, 0, 800, "0,0 0,0", -1);
  }
  void layout() {
    QFETCH(QString, letters);
    QFETCH(int, border);
    QFETCH(int, perRow);
    QFETCH(int, width);
    Bar bar(letters);
    bar.model.Set(&Properties::BorderStyle, qint16(border));
    bar.model.Set(&Properties::ButtonsPerRow, perRow);
    bar.model.Set(&Properties::ShowChevron, true);
    toolbar::Layout layout;
    int height = -1;
    try {
      height = toolbar::LaidOutHeight(bar.model);
      toolbar::LayOut(bar.model, width, true, layout);
    } catch (const std::domain_error&) {
    }
    QStringList places;
    for (int i = 1; i <= bar.model.Button_Count(); ++i) {
      const ToolbarButton& button = bar.model.Button(i);
      places +=
          QLatin1StringView(button.InChevron ? "h" : "") + QStringLiteral("%1,%2").arg(button.PosX).arg(button.PosY);
    }
    QTEST(places.join(u' '), "places");
    QTEST(height, "height");
    QTEST(layout.Popup, "popup");
  }

  void hits_data() {
    QTest::addColumn<QString>("letters");
    QTest::addColumn<int>("border");
    QTest::addColumn<QPoint>("place");
    QTest::addColumn<bool>("inPopup");
    QTest::addColumn<int>("hit");
    const auto row = [](const char* name, const char* letters, int border, QPoint place, int hit,
                        bool inPopup = false) {
      QTest::newRow(name) << QString::fromLatin1(letters) << border << place << inPopup << hit;
    };
    row("first pixel inside", "abcd", 0, {1, 1}, 1);
    row("on the left edge", "abcd", 0, {0, 5}, -1);
    row("on the upper edge", "abcd", 0, {5, 0}, -1);
    row("between two", "abcd", 0, {32, 5}, -1);
    row("before the edge", "abcd", 0, {31, 31}, 1);
    row("second row", "abcd", 0, {1, 33}, 4);
    row("behind the last", "abcd", 0, {40, 40}, -1);
    row("separator is narrow", "aSb", 0, {43, 5}, 3);
    row("framed rows begin at 0", "abcd", 1, {1, 6}, 1);
    row("framed, above", "abcd", 1, {10, 5}, -1);
    row("popup counts from the corner", "abcd", 1, {1, 1}, 1, true);
    row("popup has no separators", "aSb", 0, {65, 5}, 3, true);
  }
  void hits() {
    QFETCH(QString, letters);
    QFETCH(int, border);
    QFETCH(QPoint, place);
    QFETCH(bool, inPopup);
    Bar bar(letters);
    bar.model.Set(&Properties::BorderStyle, qint16(border));
    QTEST(toolbar::HitTest(bar.model, place.x(), place.y(), inPopup), "hit");
  }
};

QTEST_MAIN(ModelTest)
#include "toolbar_model_test.moc"
