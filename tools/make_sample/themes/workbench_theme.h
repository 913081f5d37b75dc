#pragma once

namespace sample {

// Texts of the theme Workbench, written as they stand: each holds faults on purpose.

extern const char* const WorkbenchPictures;  // head, colours, Loading, and the statics of Main
extern const char* const WorkbenchWords;     // texts and buttons of Main
extern const char* const WorkbenchScreens;   // the other screens

extern const char* const WorkbenchGreySkin;
extern const char* const WorkbenchSpareSkin;

}  // namespace sample
