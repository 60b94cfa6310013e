// The colours of the toolkit's controls: those of the artwork.
#pragma once

#include <QPalette>

namespace forms {

// What the roles mean here: Midlight, Button and Mid are a raised face from its top to its bottom, Light its
// lit edge; Shadow is the ground of what is sunk, and the line around what is raised; Dark is a frame, Link a
// frame that has the focus; BrightText the dots of the focus.
QPalette controlColours();
QPalette popupColours(); // of menus, of lists that drop down, and of tips
QPalette markColours(); // of check boxes and option buttons: Base and Text are the box and its mark

QColor inkColour(); // of letters on paper
QColor faultColour(); // of those that name what isn't there

// Of the focus on this ground, as far from it as can be.
QColor dotsOn(const QColor &ground);

// Makes them the program's, so that nothing of the desktop's theme shows through.
void setColours();

} // namespace forms
