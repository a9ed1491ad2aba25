#ifndef KES_CORE_COLOR_H
#define KES_CORE_COLOR_H

#include <cstdint>

namespace kes::core {

/// One colour as a 32-bit ARGB value laid out like Qt's QRgb (alpha in the top byte, then red,
/// green, blue), so that it crosses to Qt without any reordering.
class Color
{
public:
    static const Color red;

    constexpr Color() = default;
    constexpr explicit Color(std::uint32_t argb) : m_argb(argb) {}

    static constexpr Color fromRgb(int r, int g, int b, int a = 255)
    {
        return Color((std::uint32_t(a & 0xff) << 24) | (std::uint32_t(r & 0xff) << 16)
                     | (std::uint32_t(g & 0xff) << 8) | std::uint32_t(b & 0xff));
    }

    constexpr std::uint32_t argb() const { return m_argb; }
    constexpr int a() const { return int(m_argb >> 24); }
    constexpr int r() const { return int((m_argb >> 16) & 0xff); }
    constexpr int g() const { return int((m_argb >> 8) & 0xff); }
    constexpr int b() const { return int(m_argb & 0xff); }

    friend constexpr bool operator==(Color lhs, Color rhs) { return lhs.m_argb == rhs.m_argb; }
    friend constexpr bool operator!=(Color lhs, Color rhs) { return lhs.m_argb != rhs.m_argb; }

private:
    std::uint32_t m_argb = 0xff000000u; // opaque black, as a default-constructed QColor would draw
};

inline constexpr Color Color::red{0xffff0000u};

} // namespace kes::core

#endif
