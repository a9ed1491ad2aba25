#ifndef KES_TESTS_CV_GUARDCASE_H
#define KES_TESTS_CV_GUARDCASE_H

// Rows of images whose layout lies about their memory, shared by the tests of every vision function.

#include <kes/core/image/image.h>
#include <kes/core/roi.h>

#include <QtTest>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

Q_DECLARE_METATYPE(kes::core::image::ImageInfo)
Q_DECLARE_METATYPE(kes::core::Roi)

namespace kes::test {

inline void addGuardColumns()
{
    QTest::addColumn<kes::core::image::ImageInfo>("info");
    QTest::addColumn<int>("step");
    QTest::addColumn<bool>("hasPixels");
    QTest::addColumn<kes::core::Roi>("roi");
}

/// The image of the current guard row, over exactly the bytes its layout claims, so that a read
/// past them shows up under the sanitizers.
class GuardCase
{
public:
    GuardCase()
    {
        QFETCH(kes::core::image::ImageInfo, info);
        QFETCH(int, step);
        QFETCH(bool, hasPixels);
        QFETCH(kes::core::Roi, roi);
        const std::size_t claimed = std::size_t(step) * std::size_t(std::max(info.height, 1));
        m_memory.assign(std::max<std::size_t>(claimed, 1), 7);
        m_image = kes::core::image::Image(info, hasPixels ? m_memory.data() : nullptr, std::size_t(step));
        if (!roi.isEmpty())
            kes::core::image::setRoi(m_image, roi);
    }

    const kes::core::image::Image& image() const { return m_image; }

private:
    std::vector<std::uint8_t> m_memory;
    kes::core::image::Image m_image;
};

} // namespace kes::test

#endif
