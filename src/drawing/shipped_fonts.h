#pragma once

namespace drawing {

/// Makes known the fonts in the folder `fonts` beside the program, if there is one. Only the first call does.
void addShippedFonts();

}  // namespace drawing
