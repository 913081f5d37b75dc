#pragma once

#include "editing/reference_keys.h"
#include "toolwindow/value_frame.h"

namespace controls {
class TextBox;
}

namespace toolwindow {

/// The frames Texts and Texture: a list of the keys that a reference can name, and a text box with what the selected
/// key stands for. Adding and removing a key write into the working copy at once.
class ReferenceFrame : public ValueFrame {
  Q_OBJECT

 public:
  ReferenceFrame(editing::ReferenceKind kind, const ToolServices& services, PlacedControls& placed, QWidget* parent);

  editing::Proposal proposal() const override;

 protected:
  void load(const themefiles::GroupRow& group, const QString& value) override;
  QWidget* entrance() const override;

 private:
  void keyChosen();
  void addKey();
  void removeKey();
  void Command4_Click();

  const editing::ReferenceKind kind_;
  controls::ComboBox* const list_;  ///< Combo5 or Combo6
  QPushButton* const add_;          ///< Command6 or Command8
  QPushButton* const remove_;       ///< Command7 or Command9
  controls::TextBox* const box_;    ///< Text2 or Text3
  QPushButton* const Command4;      ///< chooses the image; null in Texts
};

}  // namespace toolwindow
