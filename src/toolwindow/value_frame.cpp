#include "toolwindow/value_frame.h"

#include <QPushButton>

#include "controls/assets.h"
#include "controls/combo_box.h"
#include "editing/immediate_edits.h"
#include "editing/session.h"
#include "platform/dialogs.h"
#include "platform/status_line.h"
#include "toolwindow/idle_operation.h"

namespace toolwindow {

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
        [operation] { platform::guardedSilently(operation); });
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
