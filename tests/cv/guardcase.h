#ifndef KES_TESTS_CV_GUARDCASE_H
#define KES_TESTS_CV_GUARDCASE_H

// Rows of images whose layout lies about their memory, shared by the tests of every vision function.

#include <kes/core/image/image.h>
#include <kes/core/roi.h>

#include <QtTest>

#include <algorithm>
#include <cstdint>
#include <vector>

Q_DECLARE_METATYPE(kes::core::image::ImageInfo)
Q_DECLARE_METATYPE(kes::core::Roi)

namespace kes::test {

/// Adds the guard columns and the rows every vision function refuses, each breaking one thing
/// about \a valid, a tightly stored layout that the function accepts. Callers add their own rows.
inline void addGuardRows(const kes::core::image::ImageInfo& valid)
{
    QTest::addColumn<kes::core::image::ImageInfo>("info");
    QTest::addColumn<int>("step");
    QTest::addColumn<bool>("hasPixels");
    QTest::addColumn<kes::core::Roi>("roi");
    const int row = valid.width * valid.numChannels * valid.bytesPerChannel;
    auto zeroWidth = valid, negativeHeight = valid;
    zeroWidth.width = 0;
    negativeHeight.height = -valid.height;
    QTest::newRow("zero width") << zeroWidth << row << true << kes::core::Roi();
    QTest::newRow("negative height") << negativeHeight << row << true << kes::core::Roi();
    QTest::newRow("stride shorter than a row") << valid << row - 1 << true << kes::core::Roi();
    QTest::newRow("stride of zero") << valid << 0 << true << kes::core::Roi();
    QTest::newRow("no pixels") << valid << row << false << kes::core::Roi();
    QTest::newRow("region outside the image") << valid << row << true << kes::core::Roi(valid.width, 0, 2, 2);
}

/// The image of the current guard row, over exactly the bytes its layout claims, so that a read
/// past them shows up under the sanitizers.
struct GuardCase
{
    GuardCase()
    {
        QFETCH(kes::core::image::ImageInfo, info);
        QFETCH(int, step);
        QFETCH(bool, hasPixels);
        QFETCH(kes::core::Roi, roi);
        memory.assign(std::max<std::size_t>(std::size_t(step) * std::size_t(std::max(info.height, 1)), 1), 7);
        image = kes::core::image::Image(info, hasPixels ? memory.data() : nullptr, std::size_t(step));
        if (!roi.isEmpty())
            kes::core::image::setRoi(image, roi);
    }

    std::vector<std::uint8_t> memory;
    kes::core::image::Image image;
};

} // namespace kes::test

#endif
