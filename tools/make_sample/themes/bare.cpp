#include "themes/themes.h"

namespace sample {

namespace {

constexpr const char* Theme =
    "[Theme]\n"
    "Name=Without Skin\n"
    "Creator=Nobody in particular\n"
    "\n"
    "[Colors]\n"
    "Ink=20 20 20\n"
    "\n"
    "[Main]\n"
    "Texts=1\n"
    "\n"
    "[MainTextTitle]\n"
    "X=400\n"
    "Y=250\n"
    "Font=1\n"
    "Size=14\n"
    "Align=1\n"
    "Color=Ink\n"
    "Text=MAIN\n";

}  // namespace

void writeBare(const Output& output) {
  output.writeLines("Themes/Without Skin.ini", Theme);
}

}  // namespace sample
