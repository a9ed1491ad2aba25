#include <kes/cv/minmax.h>

#include <opencv2/core.hpp>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <exception>
#include <utility>

namespace kes::cv {

using kes::core::image::Image;
using kes::core::image::ImageInfo;

namespace {

int depthOf(std::int32_t bytesPerChannel)
{
    switch (bytesPerChannel) {
    case 1:
        return CV_8U;
    case 2:
        return CV_16U;
    case 4:
        return CV_32F;
    default:
        return -1;
    }
}

// A header on the image's own pixels where OpenCV can take them as they are; otherwise an aligned
// copy, since cv::Mat refuses strides that are not whole channels and floats must be aligned.
::cv::Mat wrap(const Image& image, int type)
{
    const ImageInfo& info = image.info();
    const std::size_t channelBytes = std::size_t(info.bytesPerChannel);
    const auto address = reinterpret_cast<std::uintptr_t>(image.constData());
    if (image.step() % channelBytes == 0 && address % channelBytes == 0)
        return ::cv::Mat(info.height, info.width, type, const_cast<std::uint8_t*>(image.constData()),
                         image.step());

    ::cv::Mat copy(info.height, info.width, type);
    const std::size_t rowBytes = std::size_t(info.width) * image.pixelBytes();
    for (int y = 0; y < info.height; ++y)
        std::memcpy(copy.ptr(y), image.constData() + std::size_t(y) * image.step(), rowBytes);
    return copy;
}

} // namespace

bool minmax(const Image& image, std::vector<double>& min, std::vector<double>& max)
{
    const ImageInfo& info = image.info();
    const int depth = depthOf(info.bytesPerChannel);
    if (image.isNull() || depth < 0 || info.numChannels < 1 || info.numChannels > 4)
        return false;
    if (image.step() < std::size_t(info.width) * image.pixelBytes())
        return false;

    std::vector<double> lows(std::size_t(info.numChannels));
    std::vector<double> highs(lows.size());
    try {
        std::vector<::cv::Mat> planes;
        ::cv::split(wrap(image, CV_MAKETYPE(depth, info.numChannels)), planes);
        for (std::size_t c = 0; c < planes.size() && c < lows.size(); ++c)
            ::cv::minMaxIdx(planes[c], &lows[c], &highs[c]);
    } catch (const std::exception&) { // OpenCV's errors and failed allocations alike
        return false;
    }
    min = std::move(lows);
    max = std::move(highs);
    return true;
}

} // namespace kes::cv
