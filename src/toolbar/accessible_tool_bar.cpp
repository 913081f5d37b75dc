#include "toolbar/accessible_tool_bar.h"

#include <algorithm>
#include <vector>

#include <QAccessible>
#include <QAccessibleWidget>
#include <QPointer>

namespace toolbar {

namespace {

bool hasChevron(const Control& control) {
  return !control.HiddenButtons().empty();
}

/// A button of the toolbar, or its chevron.
class AccessibleButton : public QAccessibleInterface, public QAccessibleActionInterface {
 public:
  AccessibleButton(QWidget& bar, AccessibleToolBarSource& source, int place)
      : bar_(&bar), source_(source), place_(place) {}

  bool isValid() const override { return bar_ && (button() || isChevron()); }
  QObject* object() const override { return nullptr; }
  QWindow* window() const override { return bar_ ? bar_->window()->windowHandle() : nullptr; }
  QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }
  QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(bar_); }
  QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }

  QString text(QAccessible::Text kind) const override {
    const ToolbarButton* const of = button();
    if (of == nullptr) return kind == QAccessible::Name ? QObject::tr("More buttons") : QString();
    const bool isNamed = !of->Caption.isEmpty();
    if (kind == QAccessible::Name) return isNamed ? of->Caption : of->ToolTipText;
    return kind == QAccessible::Description && isNamed ? of->ToolTipText : QString();
  }
  void setText(QAccessible::Text /*kind*/, const QString& /*text*/) override {}

  QRect rect() const override {
    if (!isValid()) return {};
    const Properties& values = model().values();
    const ToolbarButton* const of = button();
    if (of == nullptr) {
      const QRect zone(bar_->width() - ChevronZone, bar_->height() - values.ButtonsHeight, ChevronWidth,
                       values.ButtonsHeight);
      return {bar_->mapToGlobal(zone.topLeft()), zone.size()};
    }
    const ButtonPlace& place = model().placeOf(number());
    const QWidget* const surface = place.InChevron ? source_.popupWindow() : bar_.data();
    if (surface == nullptr) return {};
    const int width = of->ButtonType == 0 ? values.ButtonsWidth : values.ButtonsSeperatorWidth;
    return {surface->mapToGlobal(QPoint(place.PosX, place.PosY)), QSize(width, values.ButtonsHeight)};
  }
  QAccessible::Role role() const override {
    const ToolbarButton* const of = button();
    if (of == nullptr) return QAccessible::ButtonMenu;
    return of->ButtonType == 0 ? QAccessible::Button : QAccessible::Separator;
  }
  QAccessible::State state() const override {
    QAccessible::State state;
    const ToolbarButton* const of = button();
    state.invalid = !isValid();
    state.disabled = of != nullptr && !of->Enabled;
    state.pressed = of != nullptr && of->Pressed;
    const QWidget* const popup = source_.popupWindow();
    state.invisible = of != nullptr && model().placeOf(number()).InChevron && (popup == nullptr || !popup->isVisible());
    state.focusable = canBePressed();
    state.focused = bar_ && bar_->hasFocus() && model().Button_Index() == number();
    return state;
  }

  void* interface_cast(QAccessible::InterfaceType type) override {
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
  }
  QStringList actionNames() const override {
    return isValid() && canBePressed() ? QStringList{pressAction()} : QStringList();
  }
  void doAction(const QString& name) override {
    if (name == pressAction() && isValid() && canBePressed()) source_.press(number());
  }
  QStringList keyBindingsForAction(const QString& /*name*/) const override { return {}; }

 private:
  const Model& model() const { return source_.inner().buttons(); }
  bool isChevron() const { return place_ == model().Button_Count() && hasChevron(source_.inner()); }
  const ToolbarButton* button() const {
    return bar_ && place_ < model().Button_Count() ? &model().Button(place_ + 1) : nullptr;
  }
  /// The chevron can, and what is no separator.
  bool canBePressed() const {
    const ToolbarButton* const of = button();
    return of == nullptr || (of->Enabled && of->ButtonType == 0);
  }
  int number() const { return isChevron() ? 0 : place_ + 1; }

  QPointer<QWidget> bar_;
  AccessibleToolBarSource& source_;
  int place_;
};

class AccessibleBar : public QAccessibleWidget {
 public:
  AccessibleBar(QWidget& bar, AccessibleToolBarSource& source)
      : QAccessibleWidget(&bar, QAccessible::ToolBar), bar_(bar), source_(source) {}
  ~AccessibleBar() override {
    for (const QAccessible::Id id : ids_) QAccessible::deleteAccessibleInterface(id);
  }

  int childCount() const override {
    return source_.inner().buttons().Button_Count() + (hasChevron(source_.inner()) ? 1 : 0);
  }
  QAccessibleInterface* child(int index) const override {
    if (index < 0 || index >= childCount()) return nullptr;
    for (auto place = static_cast<int>(ids_.size()); place <= index; ++place) {
      ids_.push_back(QAccessible::registerAccessibleInterface(new AccessibleButton(bar_, source_, place)));
    }
    return QAccessible::accessibleInterface(ids_[index]);
  }
  int indexOfChild(const QAccessibleInterface* child) const override {
    const QAccessible::Id id = QAccessible::uniqueId(const_cast<QAccessibleInterface*>(child));
    const auto found = std::find(ids_.begin(), ids_.end(), id);
    return found == ids_.end() ? -1 : static_cast<int>(found - ids_.begin());
  }
  QAccessibleInterface* focusChild() const override {
    return bar_.hasFocus() ? child(accessibleChildOf(source_.inner())) : nullptr;
  }
  QAccessibleInterface* childAt(int x, int y) const override {
    for (int i = 0; i < childCount(); ++i) {
      QAccessibleInterface* const button = child(i);
      if (!button->state().invisible && button->rect().contains(x, y)) return button;
    }
    return nullptr;
  }

 private:
  QWidget& bar_;
  AccessibleToolBarSource& source_;
  mutable std::vector<QAccessible::Id> ids_;
};

QAccessibleInterface* makeInterface(const QString& /*className*/, QObject* object) {
  auto* const source = dynamic_cast<AccessibleToolBarSource*>(object);
  auto* const bar = qobject_cast<QWidget*>(object);
  return source == nullptr || bar == nullptr ? nullptr : new AccessibleBar(*bar, *source);
}

}  // namespace

void installAccessibility() {
  QAccessible::installFactory(makeInterface);
}

int accessibleChildOf(const Control& control) {
  const int index = control.buttons().Button_Index();
  if (index == 0) return hasChevron(control) ? control.buttons().Button_Count() : -1;
  return index < 0 ? -1 : index - 1;
}

}  // namespace toolbar
