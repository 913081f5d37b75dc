#include "toolwindow/selection_frame.h"

#include "controls/combo_box.h"
#include "platform/failure.h"
#include "platform/numbers.h"

namespace toolwindow {

SelectionFrame::SelectionFrame(const ToolServices& services, PlacedControls& placed, QWidget* parent)
    : ValueFrame(services, parent), Combo2(new controls::ComboBox(this)) {
  placed.add(*this, &ToolLayout::Selection, "Selection");
  placed.add(*Combo2, &ToolLayout::Combo2, "Combo2", "Value");
  watch(*Combo2);
}

void SelectionFrame::load(const themefiles::GroupRow& group, const QString& value) {
  Combo2->Clear();
  for (const QStringView entry : group.entries) Combo2->AddItem(entry.toString());
  if (group.group != themefiles::KeyGroup::Type) {
    selectNumbered(value);
  } else {
    Combo2->selectText(value);  // a value outside the list selects nothing
  }
}

QWidget* SelectionFrame::entrance() const {
  return Combo2;
}

/// Selects the entry whose number is the value.
void SelectionFrame::selectNumbered(const QString& value) {
  const auto index = platform::roundToInt16(platform::numberOf(value));
  if (!index) throw platform::Failure(QStringLiteral("%1 is outside the list").arg(value));
  Combo2->SetListIndex(*index);
}

/// An entry's value is the text before its "=".
editing::Proposal SelectionFrame::proposal() const {
  if (Combo2->ListIndex() < 0) return {};
  return {platform::trimBlanks(Combo2->Text().section(u'=', 0, 0)), {}};
}

}  // namespace toolwindow
