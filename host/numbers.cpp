#include "host/numbers.h"

#include <QLocale>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <string>

using namespace Qt::StringLiterals;

namespace host {

namespace {

// The shortest decimal digits that stand for the value, in place notation; rounding goes by them, so
// that 1.005 is a half although the bits lie below it.
std::string decimalDigits(double value)
{
    std::array<char, std::numeric_limits<double>::max_exponent10 + 64> buffer;
    const auto end =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::fixed).ptr;
    return std::string(buffer.data(), end);
}

// Adds one to the number that the digits write; a point is passed over.
void addOne(std::string &digits)
{
    for (auto digit = digits.rbegin(); digit != digits.rend(); ++digit) {
        if (*digit == '.')
            continue;
        if (*digit != '9') {
            ++*digit;
            return;
        }
        *digit = '0';
    }
    digits.insert(digits.begin(), '1');
}

// The digits of a value without sign, with exactly this many places behind the point, half rounded up.
std::string rounded(std::string digits, std::size_t places)
{
    std::size_t point = digits.find('.');
    if (point == std::string::npos) {
        point = digits.size();
        digits += '.';
    }
    const std::size_t wanted = point + 1 + places;
    digits.resize(std::max(digits.size(), wanted + 1), '0');
    const bool up = digits[wanted] >= '5';
    digits.resize(wanted);
    if (up)
        addOne(digits);
    return digits;
}

} // namespace

NumberSigns systemNumberSigns()
{
    const QLocale locale = QLocale::system();
    const QString group = locale.groupSeparator();
    return { locale.decimalPoint(), group.isEmpty() ? u","_s : group };
}

QString formatGrouped(double value, const NumberSigns &signs)
{
    std::string digits = rounded(decimalDigits(std::abs(value)), 0);
    digits.pop_back();
    if (digits == "0")
        return {};
    QString text = QString::fromStdString(digits);
    for (qsizetype place = text.size() - 3; place > 0; place -= 3)
        text.insert(place, signs.group);
    return value < 0 ? u'-' + text : text;
}

QString formatTwoDecimals(double value, const NumberSigns &signs)
{
    std::string digits = rounded(decimalDigits(std::abs(value)), 2);
    const bool zero = digits == "0.00";
    if (digits.back() == '0')
        digits.pop_back();
    const QString text = QString::fromStdString(digits).replace(u'.', signs.decimal);
    return value < 0 && !zero ? u'-' + text : text;
}

} // namespace host
