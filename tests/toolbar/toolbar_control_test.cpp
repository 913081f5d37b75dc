#include "drawing/icons.h"
#include "support/pictures.h"
#include "support/results.h"
#include "toolbar/captions.h"
#include "toolbar/layout.h"
#include "toolbar/model.h"

using toolbar::Model;
using toolbar::Properties;
using toolbar::ToolbarButton;
using namespace Qt::StringLiterals;

namespace {

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

/// The properties, as far as they are numbers.
QStringList numbersOf(const Properties& values) {
  QStringList all;
  for (const toolbar::PropertyRow& row : toolbar::propertyRows()) {
    const auto tell = [&](auto member) {
      if constexpr (std::is_arithmetic_v<std::remove_cvref_t<decltype(values.*member)>>)
        all += row.name.toString() + u'=' + QString::number(values.*member);
    };
    std::visit(tell, row.property);
  }
  return all;
}

/// Calls a method of the model, or sets a property, by its name, with numbers or a text.
void change(Model& model, const QString& what, const QString& with) {
  const QMap<QString, void (Model::*)(int)> methods{
      {u"Button_Count"_s, &Model::SetButton_Count}, {u"Button_Index"_s, &Model::SetButton_Index},
      {u"RemoveButton"_s, &Model::RemoveButton},    {u"ButtonRemove"_s, &Model::SetButtonRemove},
      {u"ButtonMoveTo"_s, &Model::SetButtonMoveTo}, {u"ButtonInsertTo"_s, &Model::SetButtonInsertTo}};
  const QMap<QString, void (Model::*)(int, int)> moves{{u"InsertButtonTo"_s, &Model::InsertButtonTo},
                                                       {u"MoveButtonTo"_s, &Model::MoveButtonTo}};
  if (methods.contains(what)) (model.*methods[what])(with.toInt());
  if (what == u"value")
    model.SetButtonValue(model.Button_Index(), with.section(u' ', 0, 0).toInt(), with.section(u' ', 1));
  if (moves.contains(what)) (model.*moves[what])(with.section(u' ', 0, 0).toInt(), with.section(u' ', 1).toInt());
  for (const toolbar::PropertyRow& row : toolbar::propertyRows()) {
    const auto write = [&]<typename T>(T Properties::*member) { model.setValue(member, QVariant(with).value<T>()); };
    if (what == row.name) std::visit(write, row.property);
  }
  for (const toolbar::ButtonField& field : toolbar::buttonFields())
    if (what == field.property) model.setCurrentValue(field.id, with);
}

/// What a model tells of changes, and how it stands behind them. Given are its buttons, the current one, and the
/// changes.
QString changed(const QString& given) {
  Bar bar(given.section(u' ', 0, 0));
  Model& model = bar.model;
  if (given.section(u' ', 1, 1) != u"new") model.pointAt(given.section(u' ', 1, 1).toInt());
  const QStringList before = numbersOf(model.values());
  try {
    for (const QString& step : given.section(u' ', 2).split(u", "_s))
      change(model, step.section(u' ', 0, 0), step.section(u' ', 1));
  } catch (const toolbar::RangeError& failure) {
    bar.told.words += QString::number(toolbar::RangeError::Number) + failure.description();
  }
  QStringList after = numbersOf(model.values());
  after.removeIf([&](const QString& value) { return before.contains(value); });
  QStringList stand{bar.letters(), QString::number(model.Button_Index())};
  for (const toolbar::ButtonField& field : toolbar::buttonFields()) stand += model.currentValue(field.id).toString();
  if (const auto tip = model.toolTip())
    stand += u"tip %1/%2/%3/%4"_s.arg(tip->Text, tip->title).arg(tip->Icon).arg(tip->isBalloon);
  return (stand + bar.told.words + after).join(u' ').trimmed();
}

/// Of every button its corner, behind an h when it is hidden; the height, and the size of the popup. Given are the
/// buttons, BorderStyle, ButtonsPerRow and the width.
QString placesOf(const QStringList& given) {
  Bar bar(given[0]);
  bar.model.setValue(&Properties::BorderStyle, given.at(1).toShort());
  bar.model.setValue(&Properties::ButtonsPerRow, given.at(2).toInt());
  bar.model.setValue(&Properties::ShowChevron, true);
  bar.model.setValue(&Properties::ButtonsPerRow_Chev, given.value(4, u"3"_s).toInt());
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
  /// Each letter is ten wide.
  void captionWrap() {
    support::compareRows(u"captions.txt"_s, [](const QString& row) {
      const auto tens = [](const QString& text) { return static_cast<int>(text.size()) * 10; };
      const qsizetype bar = row.indexOf(u'|');
      const QString caption = row.first(bar).replace(u"\\n"_s, u"\r\n"_s);
      return toolbar::WrapCaption(caption, row.sliced(bar + 1).toInt(), tens).join(u'|');
    });
  }

  void operations() { support::compareRows(u"operations.txt"_s, changed); }

  void layout() {
    support::compareRows(u"places.txt"_s, [](const QString& row) { return placesOf(row.split(u' ')); });
  }

  // A picture made from pixels, an icon with a clear one: its file, and what is read from that.
  void storedPictures() {
    support::compareRows(u"pictures.txt"_s, [](const QString& row) {
      const QStringList given = row.split(u' ');
      QImage image(given.at(1).toInt(), given.at(2).toInt(), QImage::Format_ARGB32);
      image.fill(qRgb(10, 20, 30));
      if (given[0] == u"icon") image.setPixel(0, 0, 0);
      const toolbar::PictureReference picture = toolbar::pictureOfImage(image);
      const QByteArray file = given[0] == u"opaque" ? *drawing::writeIcon(image)
                              : given[0] == u"png"  ? support::encoded(image, "png")
                                                    : toolbar::fileOf(*picture);
      const toolbar::PictureReference again = toolbar::pictureOfFile(file);
      return u"%1, %2 as %3"_s.arg(support::rowOf(file.first(3))).arg(picture->Type).arg(again->Type) +
             QLatin1StringView(toolbar::fileOf(*again) == file ? "" : " written anew") +
             QLatin1StringView(again->pixels == picture->pixels && again->mask == picture->mask ? "" : " another");
    });
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
