#include "toolwindow/colour_frame.h"

#include <QPushButton>

#include "controls/combo_box.h"
#include "controls/swatch_button.h"
#include "drawing/system_colours.h"
#include "editing/reports.h"
#include "editing/session.h"
#include "platform/dialogs.h"
#include "themefiles/colour_tables.h"
#include "toolwindow/idle_operation.h"
#include "toolwindow/saved_menus.h"

namespace toolwindow {
namespace {

using editing::ColorGroup;

// The entries of Combo4, in the order of ColorGroup.
constexpr QStringView Groups[] = {u"Theme", u"Program", u"Player"};

QColor shownColor(const QString& color) {
  return drawing::colorOf(static_cast<quint32>(themefiles::ColorToRGB(color)));
}

}  // namespace

ColorFrame::ColorFrame(const ToolServices& services, PlacedControls& placed, QWidget* parent)
    : ValueFrame(services, parent),
      Combo4(new controls::ComboBox(this)),
      Command3(iconButton(QStringLiteral("plus"), QStringLiteral("Add a new Color"))),
      Command5(iconButton(QStringLiteral("minus"), QStringLiteral("Remove Color"))),
      Combo3(new controls::ComboBox(this)),
      Command2(new controls::SwatchButton(this)) {
  placed.add(*this, &ToolLayout::Color, "Color");
  placed.add(*Combo4, &ToolLayout::Combo4, "Combo4", "Group of colors");
  placed.add(*Command3, &ToolLayout::Command3, "Command3", "Add a new Color");
  placed.add(*Command5, &ToolLayout::Command5, "Command5", "Remove Color");
  placed.add(*Combo3, &ToolLayout::Combo3, "Combo3", "Color");
  placed.add(*Command2, &ToolLayout::Command2, "Command2", "Change Color");
  Command2->setToolTip(QStringLiteral("Change Color"));
  for (const QStringView group : Groups) Combo4->AddItem(group.toString());
  Combo3->setSwatches([this](const QString& name) { return previewColor(name); });
  for (controls::ComboBox* list : {Combo4, Combo3}) watch(*list);
  connect(Combo4, &controls::ComboBox::Click, this, &ColorFrame::Combo4_Click);
  connect(Combo3, &controls::ComboBox::Click, this, &ColorFrame::Combo3_Click);
  connect(&services.session, &editing::Session::colorsChanged, this, &ColorFrame::updateColors);
  connect(&services.session, &editing::Session::ended, this, [this] { this->services.session.disconnect(this); });
  connect(Command2, &controls::SwatchButton::menuAsked, this, &ColorFrame::showMenu);
  onClick(
      Command2, [this] { Command2_Click(); }, Combo3);
  onClick(Command3, [this] { Command3_Click(); });
  onClick(
      Command5, [this] { Command5_Click(); }, Combo3);
}

/// A colour as the preview shows it.
QColor ColorFrame::previewColor(const QString& name) const {
  return shownColor(themefiles::ResolveColor(services.session.state(), name, services.schemeName()));
}

std::optional<ColorGroup> ColorFrame::shownGroup() const {
  if (Combo4->ListIndex() < 0) return std::nullopt;
  return static_cast<ColorGroup>(Combo4->ListIndex());
}

void ColorFrame::listNames(ColorGroup group) {
  Combo3->Clear();
  for (const QString& name : editing::colorNames(services.session.state(), group)) Combo3->AddItem(name);
}

/// Shows the colour that the row names: its group, the names of the group, the swatch. A name in no table is shown as
/// nothing.
void ColorFrame::load(const themefiles::GroupRow& /*group*/, const QString& value) {
  Combo3->Clear();
  Command2->SetBackColor(shownColor(editing::newColor()));
  const auto group = editing::colorGroupOf(services.session.state(), value);
  if (!group) return;
  Command3->setEnabled(true);
  Command5->setEnabled(true);
  listNames(*group);
  Combo4->SetListIndex(static_cast<int>(*group));
  Combo3->selectText(value);
}

/// The names, once there are any.
QWidget* ColorFrame::entrance() const {
  return Combo3->ListCount() > 0 ? Combo3 : Combo4;
}

editing::Proposal ColorFrame::proposal() const {
  if (Combo3->Text().isEmpty()) return {};
  return {Combo3->Text(), {}};
}

/// The theme's colours or those of the scheme have changed: squares and swatch show them.
void ColorFrame::updateColors() {
  Combo3->updateSwatches();
  if (shownGroup() == ColorGroup::Program && Combo3->ListIndex() >= 0) Combo3_Click();
}

/// The user has chosen a group of names.
void ColorFrame::Combo4_Click(controls::Cause cause) {
  const auto group = shownGroup();
  if (cause != controls::Cause::User || !group) return;
  for (QPushButton* button : std::initializer_list<QPushButton*>{Command3, Command2, Command5}) {
    button->setEnabled(*group == ColorGroup::Theme);
  }
  listNames(*group);
  if (Combo3->ListCount() > 0) Combo3->SetListIndex(0);
}

/// A name has been selected: paints the swatch.
void ColorFrame::Combo3_Click() {
  const auto group = shownGroup();
  if (!group) return;
  const auto color = editing::colorValue(services.session.state(), *group, Combo3->Text(), services.schemeName());
  if (color) Command2->SetBackColor(shownColor(*color));
}

/// Changes the selected colour by the colour dialog. Of one that isn't the theme's only the swatch changes.
void ColorFrame::Command2_Click() {
  if (Combo3->ListIndex() < 0) return;
  const auto color = services.dialogs.chooseColor(window(), Command2->BackColor());
  if (!color) return;
  const QString name = Combo3->Text();
  const QString text = QStringLiteral("%1 %2 %3").arg(color->red()).arg(color->green()).arg(color->blue());
  const bool ofTheme = editing::colorValue(services.session.state(), ColorGroup::Theme, name, {}).has_value();
  if (!ofTheme || editing::changeColor(services.session, name, text)) Command2->SetBackColor(*color);
}

void ColorFrame::Command3_Click() {
  const QString name =
      services.dialogs.inputBox(window(), QStringLiteral("Name of the New Color:"), QStringLiteral("New Color"));
  if (name.isEmpty()) return;
  if (Combo3->entryLike(name) >= 0) return showErrorBox(QStringLiteral("Color already exist!"));
  if (!acceptNewName(name)) return;
  const auto added = editing::addColor(services.session, name);
  if (!added) return;
  Combo3->AddItem(*added);
  Combo3->SetListIndex(Combo3->entryLike(name));
}

void ColorFrame::Command5_Click() {
  const QString name = Combo3->Text();
  if (name.isEmpty()) return;
  const QString question = QStringLiteral("Really delete this Color?");
  if (!confirmsRemoval(question, name, QStringLiteral("Delete Color"))) return;
  const auto removed = editing::removeColor(services.session, name);
  if (!removed) return;
  const int entry = Combo3->findText(*removed);
  Combo3->RemoveItem(entry >= 0 ? entry : Combo3->ListIndex());
  Combo3->SetListIndex(-1);
  Command2->SetBackColor(drawing::colorOf(drawing::ButtonFaceColor));
}

/// The theme's colour that Command2 shows, as it was saved; none when it isn't the theme's or doesn't differ.
std::optional<editing::SavedValue> ColorFrame::savedColor() const {
  if (shownGroup() != ColorGroup::Theme || Combo3->Text().isEmpty()) return std::nullopt;
  return editing::savedColor(services.session.state(), Combo3->Text());
}

void ColorFrame::showMenu(const QPoint& place) {
  platform::guarded(services.session.status(), editing::ReadStep.toString(), [&] {
    const auto saved = savedColor();
    if (!saved || saved->lines.empty()) return;
    const QString name = Combo3->Text();
    const auto putBackLater = [this, name] {
      whenIdle(
          *this, services.queue, [this, name] { return Combo3->Text() == name; }, [this] { putBack(); });
    };
    showEntries(*window(), place, {putBackEntry(*saved, putBackLater)});
  });
}

void ColorFrame::putBack() {
  platform::guarded(services.session.status(), editing::WriteStep.toString(), [&] {
    const auto now = savedColor();  // a Save that ran while the menu was open has changed it
    const QString name = Combo3->Text();
    if (!now || now->lines.empty() || !editing::putSavedColorBack(services.session, name, *now)) return;
    if (editing::colorValue(services.session.state(), ColorGroup::Theme, name, {})) return Combo3_Click();
    listNames(ColorGroup::Theme);  // the saved one's name is in another case
    Combo3->SetListIndex(Combo3->entryLike(name));
  });
}

}  // namespace toolwindow
