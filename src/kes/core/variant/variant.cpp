#include <kes/core/variant/variant.h>

#include <charconv>
#include <string_view>
#include <system_error>

namespace kes::core::variant {

namespace {

// Large enough for the shortest round-trip form of any double, e.g. "-2.2250738585072014e-308".
constexpr std::size_t kNumberText = 32;

template <typename Number>
std::string shortestText(Number value)
{
    char buffer[kNumberText];
    const std::to_chars_result result = std::to_chars(buffer, buffer + sizeof buffer, value);
    return std::string(buffer, result.ptr);
}

double parseDouble(std::string_view text)
{
    constexpr std::string_view space = " \t\n\v\f\r";
    const std::size_t first = text.find_first_not_of(space);
    if (first == std::string_view::npos)
        return 0.0;
    text = text.substr(first, text.find_last_not_of(space) - first + 1);
    // from_chars takes no "+", but people and other programs write one.
    if (text.size() > 1 && text.front() == '+' && text[1] != '-' && text[1] != '+')
        text.remove_prefix(1);
    double value = 0.0;
    const std::from_chars_result result = std::from_chars(text.data(), text.data() + text.size(), value);
    if (result.ec != std::errc() || result.ptr != text.data() + text.size())
        return 0.0;
    return value;
}

} // namespace

double Variant::toDouble() const
{
    switch (type()) {
    case Type::Null:
        return 0.0;
    case Type::Bool:
        return std::get<bool>(m_value) ? 1.0 : 0.0;
    case Type::Int:
        return std::get<int>(m_value);
    case Type::Float: {
        const float value = std::get<float>(m_value);
        const std::string text = shortestText(value);
        double widened = 0.0;
        const std::from_chars_result result = std::from_chars(text.data(), text.data() + text.size(), widened);
        return result.ec == std::errc() ? widened : double(value);
    }
    case Type::Double:
        return std::get<double>(m_value);
    case Type::String:
        return parseDouble(std::get<std::string>(m_value));
    }
    return 0.0;
}

std::string Variant::toString() const
{
    switch (type()) {
    case Type::Null:
        return std::string();
    case Type::Bool:
        return std::get<bool>(m_value) ? "true" : "false";
    case Type::Int:
        return std::to_string(std::get<int>(m_value));
    case Type::Float:
        return shortestText(std::get<float>(m_value));
    case Type::Double:
        return shortestText(std::get<double>(m_value));
    case Type::String:
        return std::get<std::string>(m_value);
    }
    return std::string();
}

} // namespace kes::core::variant
