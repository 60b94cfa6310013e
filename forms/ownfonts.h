// Fonts that lie beside the program, for a machine that may have none.
#pragma once

#include <QStringList>

namespace forms {

// Adds the fonts "fonts/*.ttf" of the program directory to those of the machine; yields their families,
// without repeats. What is no font is passed over.
QStringList addOwnFonts();

} // namespace forms
