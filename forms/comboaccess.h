// What assistive programs are told of a drop-down list.
#pragma once

namespace forms {

class ComboBox;

// From here on they get a drop-down list's accessible name with the selected entry behind it as its name: the
// one text that a Unix desktop hands on to them, and whose change they hear. By itself the toolkit tells the
// entry alone. Called once, with the application there.
void TellAssistantsOfCombos();

// Another entry is selected, or none.
void TellOfEntry(ComboBox &combo);

} // namespace forms
