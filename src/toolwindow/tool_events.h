#pragma once

class QWidget;

namespace toolwindow {

class Form2;
struct ToolServices;

/// The tool window with its events; it isn't shown yet. It belongs to its owner.
Form2* makeForm2(const ToolServices& services, QWidget* owner);

}  // namespace toolwindow
