#include "progressbar/accessible_progress_bar.h"

#include <QAccessibleWidget>
#include <QWidget>

namespace progressbar {
namespace {

class AccessibleProgressBar : public QAccessibleWidget, public QAccessibleValueInterface {
 public:
  AccessibleProgressBar(QWidget& bar, AccessibleBarSource& source)
      : QAccessibleWidget(&bar, QAccessible::ProgressBar), source_(source) {}

  void* interface_cast(QAccessible::InterfaceType type) override {
    return type == QAccessible::ValueInterface ? static_cast<QAccessibleValueInterface*>(this)
                                               : QAccessibleWidget::interface_cast(type);
  }
  QVariant currentValue() const override { return source_.state().Value; }
  void setCurrentValue(const QVariant& /*value*/) override {}
  QVariant minimumValue() const override { return source_.state().min; }
  QVariant maximumValue() const override { return source_.state().max; }
  QVariant minimumStepSize() const override { return 1; }

 private:
  AccessibleBarSource& source_;
};

QAccessibleInterface* makeInterface(const QString& /*className*/, QObject* object) {
  auto* const source = dynamic_cast<AccessibleBarSource*>(object);
  auto* const bar = qobject_cast<QWidget*>(object);
  return source == nullptr || bar == nullptr ? nullptr : new AccessibleProgressBar(*bar, *source);
}

}  // namespace

void installAccessibility() {
  QAccessible::installFactory(makeInterface);
}

}  // namespace progressbar
