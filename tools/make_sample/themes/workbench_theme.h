#pragma once

namespace sample {

// Texts of the theme Workbench, written as they stand: each holds faults on purpose.

extern const char* const kWorkbenchPictures;  // head, colours, Loading, and the statics of Main
extern const char* const kWorkbenchWords;     // texts and buttons of Main
extern const char* const kWorkbenchScreens;   // the other screens

extern const char* const kWorkbenchGreySkin;
extern const char* const kWorkbenchSpareSkin;

}  // namespace sample
