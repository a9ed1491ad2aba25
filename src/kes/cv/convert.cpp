#include <kes/cv/convert.h>

#include <opencv2/core.hpp>
#include <opencv2/imgproc.hpp>

#include <cstddef>
#include <cstdint>
#include <exception>

namespace kes::cv {

using kes::core::image::Format;
using kes::core::image::Image;
using kes::core::image::ImageInfo;

namespace {

int channelsOf(Format format)
{
    switch (format) {
    case kes::core::image::Bgra:
        return 4;
    case kes::core::image::Grey:
        return 1;
    default:
        return 3;
    }
}

bool isReadable(const Image& image)
{
    const ImageInfo& info = image.info();
    if (image.isNull() || info.bytesPerChannel != 1 || info.numChannels != channelsOf(info.format))
        return false;
    return image.step() >= std::size_t(info.width) * std::size_t(info.numChannels);
}

::cv::Mat sourceHeader(const Image& image)
{
    const ImageInfo& info = image.info();
    // cv::Mat has no read-only header; the source is only ever passed as an input array.
    return ::cv::Mat(info.height, info.width, CV_8UC(info.numChannels),
                     const_cast<std::uint8_t*>(image.constData()), image.step());
}

::cv::Mat targetHeader(Image& image)
{
    const ImageInfo& info = image.info();
    return ::cv::Mat(info.height, info.width, CV_8UC(info.numChannels), image.data(), image.step());
}

void toBgr(const ::cv::Mat& src, Format from, ::cv::Mat& dst)
{
    switch (from) {
    case kes::core::image::Bgr:
        src.copyTo(dst);
        break;
    case kes::core::image::Bgra:
        ::cv::cvtColor(src, dst, ::cv::COLOR_BGRA2BGR);
        break;
    case kes::core::image::Grey:
        ::cv::cvtColor(src, dst, ::cv::COLOR_GRAY2BGR);
        break;
    case kes::core::image::Hsv: {
        ::cv::Mat hsv;
        src.convertTo(hsv, CV_32F);
        ::cv::multiply(hsv, ::cv::Scalar(360.0 / 255.0, 1.0 / 255.0, 1.0 / 255.0), hsv);
        ::cv::Mat unit;
        ::cv::cvtColor(hsv, unit, ::cv::COLOR_HSV2BGR);
        unit.convertTo(dst, CV_8U, 255.0);
        break;
    }
    default:
        ::cv::cvtColor(src, dst, ::cv::COLOR_RGB2BGR);
        break;
    }
}

void toHsv(const ::cv::Mat& src, Format from, ::cv::Mat& dst)
{
    switch (from) {
    case kes::core::image::Grey: {
        // Exact by construction, where a detour through BGR would depend on OpenCV's rounding.
        dst.setTo(::cv::Scalar::all(0));
        const int greyToValue[] = {0, 2};
        ::cv::mixChannels(&src, 1, &dst, 1, greyToValue, 1);
        break;
    }
    case kes::core::image::Hsv:
        src.copyTo(dst);
        break;
    default: {
        // OpenCV's 8-bit _FULL codes put a full turn at 256 (blue at 171); a full turn at 255, as
        // the format promises, needs the hue in degrees first.
        const bool bgrOrder = from == kes::core::image::Bgr || from == kes::core::image::Bgra;
        ::cv::Mat unit;
        src.convertTo(unit, CV_32F, 1.0 / 255.0);
        ::cv::Mat hsv; // the fourth byte of a BGRA source is skipped by OpenCV itself
        ::cv::cvtColor(unit, hsv, bgrOrder ? ::cv::COLOR_BGR2HSV : ::cv::COLOR_RGB2HSV);
        ::cv::multiply(hsv, ::cv::Scalar(255.0 / 360.0, 255.0, 255.0), hsv);
        hsv.convertTo(dst, CV_8U);
        break;
    }
    }
}

} // namespace

Image convert(const Image& image, Format format)
{
    if ((format != kes::core::image::Bgr && format != kes::core::image::Hsv) || !isReadable(image))
        return Image();

    const ImageInfo& info = image.info();
    try {
        Image result(ImageInfo(info.width, info.height, 3, 1, format));
        if (result.isNull())
            return Image();
        const ::cv::Mat src = sourceHeader(image);
        ::cv::Mat dst = targetHeader(result);
        if (format == kes::core::image::Bgr)
            toBgr(src, info.format, dst);
        else
            toHsv(src, info.format, dst);
        // OpenCV reallocates a destination whose size or type it does not like; the pixels would
        // then be in its buffer and not ours.
        if (dst.data != result.data())
            return Image();
        result.setOverlay(image.overlay());
        return result;
    } catch (const std::exception&) { // OpenCV's errors, and allocations for a region of any claimed size
        return Image();
    }
}

} // namespace kes::cv
