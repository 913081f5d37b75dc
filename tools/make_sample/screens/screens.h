#pragma once

#include <vector>

#include "screens/rows.h"

namespace sample {

// The screens of Stagelight, one entry for each stem.

Screen loadingScreen();
Screen mainScreen();
Screen levelScreen();
Screen nameScreen();
Screen top5Screen();
Screen statMainScreen();
Screen statDetailScreen();

Screen songScreen();
Screen songMenuScreen();
Screen songJumptoScreen();
Screen singScreen();
Screen scoreScreen();

Screen optionsScreen();
std::vector<Screen> optionPages();

std::vector<Screen> partyScreens();

Screen checkPopupScreen();
Screen errorPopupScreen();

}  // namespace sample
