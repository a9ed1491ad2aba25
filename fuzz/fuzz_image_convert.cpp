// Images whose layout, stride, region and pixels come from the input, through the conversions to
// Qt and the vision functions. The pixels lie in a buffer exactly as long as the layout says, so
// that AddressSanitizer reports any read or write beyond what the image claims.
#include "fuzzapp.h"

#include <kes/core/image/image.h>
#include <kes/core/roi.h>
#include <kes/cv/convert.h>
#include <kes/cv/minmax.h>
#include <kes/cv/pixels.h>
#include <kes/qt/convert.h>

#include <QImage>

#include <fuzzer/FuzzedDataProvider.h>

#include <algorithm>
#include <vector>

using kes::core::image::Format;
using kes::core::image::Image;
using kes::core::image::ImageInfo;

namespace {

// The bytes a layout needs: every row but the last at its full stride, the last one only as far
// as its pixels reach.
std::size_t bufferSize(const ImageInfo& info, std::size_t step)
{
    if (info.width <= 0 || info.height <= 0 || info.numChannels <= 0 || info.bytesPerChannel <= 0)
        return 0;
    const std::size_t row = std::size_t(info.width) * std::size_t(info.numChannels)
                            * std::size_t(info.bytesPerChannel);
    return step * std::size_t(info.height - 1) + row;
}

void checkImage(const Image& image, const ImageInfo& info)
{
    for (const bool colorConversion : {false, true}) {
        const QImage converted = kes::qt::convert(image, colorConversion);
        kes::fuzz::require(converted.isNull() || converted.width() == info.width,
                           "a converted image has the region's width");
    }
    for (const Format target : {kes::core::image::Bgr, kes::core::image::Hsv, kes::core::image::Grey}) {
        const Image converted = kes::cv::convert(image, target);
        kes::fuzz::require(converted.isNull() || converted.info().width == info.width,
                           "a converted image has the region's width");
    }
    std::vector<double> min{-1.0};
    std::vector<double> max{-2.0};
    if (!kes::cv::minmax(image, min, max))
        kes::fuzz::require(min.size() == 1 && max.size() == 1, "a refused image leaves min and max alone");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    kes::fuzz::ensureApplication();
    FuzzedDataProvider input(data, size);
    ImageInfo info;
    info.width = input.ConsumeIntegralInRange<std::int32_t>(-2, 70);
    info.height = input.ConsumeIntegralInRange<std::int32_t>(-2, 70);
    info.numChannels = input.ConsumeIntegralInRange<std::int32_t>(-1, 5);
    info.bytesPerChannel = input.ConsumeIntegralInRange<std::int32_t>(-1, 5);
    info.format = Format(input.ConsumeIntegral<std::int32_t>());
    const std::size_t step = input.ConsumeIntegralInRange<std::size_t>(0, 400);
    const bool withRoi = input.ConsumeBool();
    const kes::core::Roi roi(input.ConsumeIntegralInRange<std::int32_t>(-5, 80),
                             input.ConsumeIntegralInRange<std::int32_t>(-5, 80),
                             input.ConsumeIntegralInRange<std::uint32_t>(0, 90),
                             input.ConsumeIntegralInRange<std::uint32_t>(0, 90));
    const int channels = input.ConsumeIntegralInRange<int>(-1, 5);
    const int order[4] = {input.ConsumeIntegralInRange<int>(-2, 4), input.ConsumeIntegralInRange<int>(-2, 4),
                          input.ConsumeIntegralInRange<int>(-2, 4), input.ConsumeIntegralInRange<int>(-2, 4)};

    // Own pixels, allocated by the image with its padded stride.
    checkImage(Image(info), info);

    // Pixels of the caller's, exactly as many as the layout needs.
    const std::size_t bytes = bufferSize(info, step);
    if (bytes > (1u << 20))
        return 0;
    std::vector<std::uint8_t> pixels = input.ConsumeBytes<std::uint8_t>(bytes);
    pixels.resize(bytes);
    pixels.shrink_to_fit();
    Image wrapped(info, pixels.empty() ? nullptr : pixels.data(), step);
    checkImage(wrapped, info);
    if (withRoi) {
        setRoi(wrapped, roi);
        checkImage(wrapped, wrapped.info());
    }

    // The row primitives on the same buffer, read as width x height pixels of \a channels bytes.
    if (channels > 0 && info.width > 0 && info.height > 0) {
        const std::size_t row = std::size_t(info.width) * std::size_t(channels);
        const std::size_t needed = step * std::size_t(info.height - 1) + row;
        if (step >= row && needed <= pixels.size()) {
            std::vector<std::uint8_t> copy(needed);
            kes::cv::pixels::copy(pixels.data(), step, channels, copy.data(), step, channels,
                                  info.width, info.height, order);
            kes::cv::pixels::reorder(pixels.data(), step, channels, order, info.width, info.height);
            kes::cv::pixels::setChannel(pixels.data(), step, channels, order[0], 7, info.width,
                                        info.height);
        }
    }
    return 0;
}
