#pragma once

#include "controls/cause.h"
#include "editing/theme_colours.h"
#include "toolwindow/value_frame.h"

namespace controls {
class SwatchButton;
}

namespace toolwindow {

/// The frame Color: chooses a colour by its name, and edits the theme's own colours. Changing, adding and removing one
/// write into the working copy at once.
class ColorFrame : public ValueFrame {
  Q_OBJECT

 public:
  ColorFrame(const ToolServices& services, PlacedControls& placed, QWidget* parent);

  editing::Proposal proposal() const override;

 protected:
  void load(const themefiles::GroupRow& group, const QString& value) override;
  QWidget* entrance() const override;

 private:
  void updateColors();
  std::optional<editing::SavedValue> savedColor() const;
  void showMenu(const QPoint& place);
  void putBack();
  void listNames(editing::ColorGroup group);
  std::optional<editing::ColorGroup> shownGroup() const;
  QColor previewColor(const QString& name) const;
  void Combo4_Click(controls::Cause cause);
  void Combo3_Click();
  void Command2_Click();
  void Command3_Click();
  void Command5_Click();

  controls::ComboBox* const Combo4;        ///< the groups of colours
  QPushButton* const Command3;             ///< adds a colour
  QPushButton* const Command5;             ///< removes the colour
  controls::ComboBox* const Combo3;        ///< the names of the group's colours
  controls::SwatchButton* const Command2;  ///< shows the colour, and changes it
};

}  // namespace toolwindow
