#ifndef KES_CORE_IMAGE_IMAGEINFO_H
#define KES_CORE_IMAGE_IMAGEINFO_H

#include <kes/core/image/format.h>

#include <cstdint>

namespace kes::core::image {

/// Size and pixel layout of an image: five 32-bit integers in this order.
struct ImageInfo
{
    std::int32_t width = 0;
    std::int32_t height = 0;
    std::int32_t numChannels = 0;
    std::int32_t bytesPerChannel = 0;
    Format format = Unknown;

    constexpr ImageInfo() = default;
    constexpr ImageInfo(std::int32_t width, std::int32_t height, std::int32_t numChannels,
                        std::int32_t bytesPerChannel, Format format)
        : width(width), height(height), numChannels(numChannels), bytesPerChannel(bytesPerChannel),
          format(format)
    {
    }

    friend constexpr bool operator==(const ImageInfo& lhs, const ImageInfo& rhs)
    {
        return lhs.width == rhs.width && lhs.height == rhs.height && lhs.numChannels == rhs.numChannels
               && lhs.bytesPerChannel == rhs.bytesPerChannel && lhs.format == rhs.format;
    }
    friend constexpr bool operator!=(const ImageInfo& lhs, const ImageInfo& rhs) { return !(lhs == rhs); }
};

} // namespace kes::core::image

#endif
