#include "toolwindow/value_frame.h"

#include <QPushButton>

#include "controls/assets.h"
#include "controls/combo_box.h"
#include "controls/text_box.h"
#include "editing/immediate_edits.h"
#include "editing/session.h"
#include "platform/dialogs.h"
#include "platform/status_line.h"
#include "toolwindow/idle_operation.h"

namespace toolwindow {

void ValueFrame::open(const themefiles::GroupRow& group, const QString& key, const QString& value) {
  frame_ = group.frame;
  key_ = key;
  touched_ = false;
  load(group, value);
  value_ = value;
  contentShown();
}

void ValueFrame::enter(const QString& typed) {
  QWidget* const control = entrance();
  control->setFocus();
  auto* const box = qobject_cast<controls::TextBox*>(control);
  if (box == nullptr) return;
  box->selectAll();
  if (typed.isEmpty()) return;
  box->insert(typed);
  touch();
}

QString ValueFrame::pendingChanges() const {
  return touched_ ? editing::changeText(frame_, key_, {value_, content_}, proposal()) : QString();
}

void ValueFrame::forgetChanges() {
  const editing::Proposal taken = proposal();
  value_ = taken.value.value_or(value_);
  content_ = taken.content;
  touched_ = false;
}

void ValueFrame::watch(controls::TextBox& box) {
  connect(&box, &QLineEdit::textEdited, this, &ValueFrame::touch);
  connect(&box, &controls::TextBox::enter, this, &ValueFrame::enterPressed);
}

void ValueFrame::watch(controls::ComboBox& list) {
  connect(&list, &controls::ComboBox::Click, this, [this](controls::Cause cause) {
    if (cause == controls::Cause::User) touch();
  });
}

QPushButton* ValueFrame::iconButton(const QString& icon, const QString& toolTip) {
  auto* button = new QPushButton(this);
  button->setIcon(controls::assetIcon(icon));
  button->setToolTip(toolTip);
  return button;
}

void ValueFrame::onClick(QPushButton* button, const std::function<void()>& operation, const controls::ComboBox* shown) {
  connect(button, &QPushButton::clicked, this, [this, operation, shown] {
    services.session.settle();
    const QString entry = shown == nullptr ? QString() : shown->Text();
    whenIdle(
        *this, services.queue, [shown, entry] { return shown == nullptr || shown->Text() == entry; },
        [this, operation] {
          const editing::Proposal before = proposal();
          platform::guardedSilently(operation);
          // What waited may find another row open, whose editor is another frame.
          if (!isHidden() && proposal() != before) touch();
        });
  });
}

void ValueFrame::showErrorBox(const QString& text) {
  services.dialogs.messageBox(window(), text, QStringLiteral("Error"), platform::BoxKind::Error);
}

bool ValueFrame::acceptNewName(const QString& name) {
  if (editing::isUsableName(name)) return true;
  showErrorBox(QStringLiteral("This name can't be used!"));
  return false;
}

bool ValueFrame::confirmsRemoval(const QString& question, const QString& name, const QString& title) {
  const auto answer = services.dialogs.messageBox(window(), question + QStringLiteral("\n\n") + name, title,
                                                  platform::BoxKind::YesNoDefaultNo);
  return answer == platform::BoxAnswer::Yes;
}

}  // namespace toolwindow
