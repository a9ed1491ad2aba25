#ifndef KES_CORE_VARIANT_VARIANT_H
#define KES_CORE_VARIANT_VARIANT_H

#include <kes/core/kes_core_export.h>

#include <string>
#include <variant>

namespace kes::core::variant {

/// One value of a few plain types, for settings and for showing numbers as text.
///
/// A float becomes a double through its shortest decimal text that reads back as the same float,
/// so Variant(0.1f).toDouble() is exactly 0.1 rather than 0.100000001490116. That is why GUI code
/// passes a float through a Variant before showing it with many decimals: the user sees the value
/// that was typed or configured, not the binary approximation widened to double. toString() of a
/// float or double gives that same shortest text ("0.1", "1e+20", "inf", "nan").
///
/// Text converts to a number in the "C" locale (a "." as decimal point, whatever the user's
/// locale): the whole text, apart from white space around it, must be one number, otherwise, and
/// when it is out of the range of a double, toDouble() gives 0.0.
class KES_CORE_EXPORT Variant
{
public:
    enum class Type { Null, Bool, Int, Float, Double, String };

    Variant() = default;
    Variant(bool value) : m_value(value) {}
    Variant(int value) : m_value(value) {}
    Variant(float value) : m_value(value) {}
    Variant(double value) : m_value(value) {}
    Variant(std::string value) : m_value(std::move(value)) {}
    /// A null pointer gives an empty string.
    Variant(const char* value) : m_value(std::string(value ? value : "")) {}

    Type type() const { return Type(m_value.index()); }
    bool isNull() const { return type() == Type::Null; }

    /// 0.0 for a null variant, 1.0 or 0.0 for a bool.
    double toDouble() const;
    /// Empty for a null variant, "true" or "false" for a bool.
    std::string toString() const;

private:
    // The alternatives' order matches Type.
    std::variant<std::monostate, bool, int, float, double, std::string> m_value;
};

} // namespace kes::core::variant

#endif
