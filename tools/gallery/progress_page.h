#pragma once

#include <memory>

#include <QWidget>

namespace gallery {

/// The progress bar in every theme, direction, effect, alignment and style, enabled and disabled.
std::unique_ptr<QWidget> makeProgressPage();

}  // namespace gallery
