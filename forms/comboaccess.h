// What assistive programs are told of a drop-down list.
#pragma once

namespace forms {

// From here on they get a drop-down list's accessible name as its name, and the selected entry as its value.
// By itself the toolkit tells the entry for both on a Unix desktop. Called once, with the application there.
void TellAssistantsOfCombos();

} // namespace forms
