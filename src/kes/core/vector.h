#ifndef KES_CORE_VECTOR_H
#define KES_CORE_VECTOR_H

#include <kes/core/detail/sharedarray.h>

#include <istream>
#include <locale>
#include <ostream>
#include <sstream>
#include <string>

namespace kes::core {

/// A contiguous array shared between copies until one of them is written to; a copy taken before
/// a write never changes. See detail::SharedArray for the operations.
template <typename T>
class Vector : public detail::SharedArray<T, Vector<T>>
{
public:
    using detail::SharedArray<T, Vector<T>>::SharedArray;
};

using IntVector = Vector<int>;

/// Writes "(" then the values separated by single blanks then ")", e.g. "(0 360 0 100)".
template <typename T>
std::ostream& operator<<(std::ostream& os, const Vector<T>& values)
{
    os << '(';
    for (std::size_t i = 0; i < values.size(); ++i) {
        if (i != 0)
            os << ' ';
        os << values[i];
    }
    return os << ')';
}

/// Reads the text form back. \a values is cleared first. Text that does not start with "(" fails
/// the stream and reads nothing. After that each value is read with the stream's own operator>>
/// until a ")" or until the stream is no longer good; a value that could not be read is appended
/// as 0 before reading stops. This is the established reading of files written in this form,
/// with its quirks: "(1 2 x 4)" gives 1 2 0, "(1 2 3" gives 1 2 3, and "(1 2 3 " gives 1 2 3 0
/// because the character read that hits the end of the input is taken for "not a )".
template <typename T>
std::istream& operator>>(std::istream& is, Vector<T>& values)
{
    values.clear();
    char c = 0;
    if (!(is >> c) || c != '(') {
        is.setstate(std::ios_base::failbit);
        return is;
    }
    // Terminates: every pass either consumes a value or leaves the stream no longer good.
    for (;;) {
        if ((is >> c) && c == ')')
            break;
        is.putback(c);
        T value{};
        is >> value;
        values.append(value);
        if (!is.good())
            break;
    }
    return is;
}

/// The text form, written in the "C" locale whatever the global one.
template <typename T>
std::string toString(const Vector<T>& values)
{
    std::ostringstream os;
    os.imbue(std::locale::classic());
    os << values;
    return os.str();
}

/// Reads the text form in the "C" locale, as operator>> does; \a ok tells whether the read
/// succeeded. Anything after the closing ")" is ignored.
template <typename T = int>
Vector<T> fromString(const std::string& text, bool* ok = nullptr)
{
    std::istringstream is(text);
    is.imbue(std::locale::classic());
    Vector<T> values;
    is >> values;
    if (ok)
        *ok = !is.fail();
    return values;
}

} // namespace kes::core

#endif
