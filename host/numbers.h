// Numbers as the user's locale writes them, rounded half away from zero.
#pragma once

#include <QString>

namespace host {

struct NumberSigns {
    QString decimal;
    QString group;
};

// The separators of the system's locale; a locale without a group separator gives a comma.
NumberSigns systemNumberSigns();

// Pattern "##,##": whole numbers in groups of three, nothing at all for a value that rounds to 0.
QString formatGrouped(double value, const NumberSigns &signs = systemNumberSigns());

// Pattern "#0.0#": at least one digit before the decimal sign, one or two behind it.
QString formatTwoDecimals(double value, const NumberSigns &signs = systemNumberSigns());

} // namespace host
