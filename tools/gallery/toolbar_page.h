#pragma once

#include <memory>

#include <QWidget>

namespace gallery {

/// The toolbar in every look, gradient and alignment, enabled and disabled, with a chevron and in a designer.
std::unique_ptr<QWidget> makeToolBarPage();

}  // namespace gallery
