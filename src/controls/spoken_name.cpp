#include "controls/spoken_name.h"

#include <QComboBox>

namespace controls {

void setSpokenName(QWidget& control, const QString& name) {
  control.setAccessibleName(name);
  // On Linux a drop-down list is called by its chosen entry, whatever its name is.
  if (qobject_cast<QComboBox*>(&control) != nullptr) control.setAccessibleDescription(name);
}

}  // namespace controls
