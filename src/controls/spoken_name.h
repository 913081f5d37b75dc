#pragma once

#include <QString>

class QWidget;

namespace controls {

/// What a screen reader calls the control.
void setSpokenName(QWidget& control, const QString& name);

}  // namespace controls
