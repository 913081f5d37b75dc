#pragma once

#include <memory>

namespace mainwindows {

class Form1;
struct MainServices;

/// The main window with its commands and events; it isn't shown yet.
std::unique_ptr<Form1> makeForm1(const MainServices& services);

}  // namespace mainwindows
