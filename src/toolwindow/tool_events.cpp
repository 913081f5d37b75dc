#include "toolwindow/tool_events.h"

#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QPointer>
#include <QPushButton>
#include <QShortcut>

#include "controls/combo_box.h"
#include "controls/list_box.h"
#include "controls/list_view.h"
#include "controls/number_bar.h"
#include "controls/swatch_button.h"
#include "controls/text_box.h"
#include "controls/work_queue.h"
#include "platform/failure.h"
#include "toolwindow/colour_editor.h"
#include "toolwindow/key_editors.h"
#include "toolwindow/number_editor.h"
#include "toolwindow/object_selection.h"
#include "toolwindow/saved_marking.h"
#include "toolwindow/saved_marks.h"
#include "toolwindow/tool_window.h"
#include "toolwindow/value_commit.h"
#include "toolwindow/value_grid.h"

namespace toolwindow {
namespace {

using controls::Cause;
using controls::ComboBox;
using controls::TextBox;

/// Connects a button to an operation that opens a dialog or changes colours and keys. The operation waits until no work
/// is running. It is dropped if by then the window is closed or the list `shown`, whose entry it works on, shows
/// another one.
template <typename Operation>
void onClick(Form2& form, QPushButton* button, Operation operation, const ComboBox* shown = nullptr) {
  QObject::connect(button, &QPushButton::clicked, &form, [&form, operation, shown] {
    form.services.settleHand();
    const QString entry = shown == nullptr ? QString() : shown->Text();
    form.services.queue.runOutside([open = QPointer<Form2>(&form), operation, shown, entry] {
      if (!open || !open->isVisible() || (shown != nullptr && shown->Text() != entry)) return;
      platform::guardedSilently([&] { operation(*open); });
    });
  });
}

void connectSelection(Form2& form) {
  QObject::connect(form.Combo1, &ComboBox::Click, &form, [&form] { form.services.queue.choose(); });
  QObject::connect(form.List1, &controls::ListBox::Click, &form, [&form](Cause cause) { List1_Click(form, cause); });
  QObject::connect(form.ListView1, &controls::ListView::ItemClick, &form,
                   [&form](int row) { ListView1_ItemClick(form, row); });
}

void connectMarks(Form2& form) {
  // The toolkit sends this event for the menu key only.
  auto* keys = new QShortcut(QKeySequence(Qt::ShiftModifier | Qt::Key_F10), &form);
  QObject::connect(keys, &QShortcut::activated, &form, [&form] {
    QWidget* focus = form.focusWidget();
    if (focus == nullptr) return;
    const QPoint place = focus->rect().center();
    QContextMenuEvent asked(QContextMenuEvent::Keyboard, place, focus->mapToGlobal(place));
    QCoreApplication::sendEvent(focus, &asked);
  });
  QObject::connect(form.ListView1, &controls::ListView::menuAsked, &form,
                   [&form](int row, const QPoint& place) { showRowMenu(form, row, place); });
  QObject::connect(form.List1, &controls::ListBox::menuAsked, &form,
                   [&form](int row, const QPoint& place) { showObjectMenu(form, row, place); });
  QObject::connect(form.Command2, &controls::SwatchButton::menuAsked, &form,
                   [&form](const QPoint& place) { showColorMenu(form, place); });
}

void connectCommit(Form2& form) {
  const auto update = [&form] { Command1_Click(form); };
  QObject::connect(form.Command1, &QPushButton::clicked, &form, update);
  QObject::connect(&form, &Form2::enterPressed, &form, update);
  for (TextBox* box : {form.Text1, form.Text4, form.Text2}) QObject::connect(box, &TextBox::enter, &form, update);
}

void connectNumbers(Form2& form) {
  form.Text1->setKeyFilter(QStringLiteral("0123456789"));
  form.Text4->setKeyFilter(QStringLiteral("0123456789."));
  QObject::connect(form.Text1, &TextBox::Change, &form, [&form] { Text1_Change(form); });
  connectCounting(form);
  QObject::connect(form.VScroll1, &controls::NumberBar::Change, &form, [&form] { VScroll1_Change(form); });
}

void connectColors(Form2& form) {
  QObject::connect(form.Combo4, &ComboBox::Click, &form, [&form](Cause cause) { Combo4_Click(form, cause); });
  QObject::connect(form.Combo3, &ComboBox::Click, &form, [&form] { Combo3_Click(form); });
  onClick(form, form.Command2, Command2_Click, form.Combo3);
  onClick(form, form.Command3, Command3_Click);
  onClick(form, form.Command5, Command5_Click, form.Combo3);
}

void connectKeys(Form2& form) {
  QObject::connect(form.Combo5, &ComboBox::Click, &form, [&form] { KeyList_Click(form, KeyEditor::Text); });
  QObject::connect(form.Combo6, &ComboBox::Click, &form, [&form] { KeyList_Click(form, KeyEditor::Texture); });
  onClick(form, form.Command6, [](Form2& f) { AddKey_Click(f, KeyEditor::Text); });
  onClick(
      form, form.Command7, [](Form2& f) { RemoveKey_Click(f, KeyEditor::Text); }, form.Combo5);
  onClick(form, form.Command8, [](Form2& f) { AddKey_Click(f, KeyEditor::Texture); });
  onClick(
      form, form.Command9, [](Form2& f) { RemoveKey_Click(f, KeyEditor::Texture); }, form.Combo6);
  onClick(form, form.Command4, Command4_Click, form.Combo6);
}

class ConnectedForm2 final : public Form2 {
 public:
  ConnectedForm2(const ToolServices& services, QWidget* owner) : Form2(services, owner) {
    connectSelection(*this);
    connectMarks(*this);
    connectCommit(*this);
    connectNumbers(*this);
    connectColors(*this);
    connectKeys(*this);
  }

 private:
  SavedMarking marking_{*this};
};

}  // namespace

Form2* makeForm2(const ToolServices& services, QWidget* owner) {
  return new ConnectedForm2(services, owner);
}

}  // namespace toolwindow
