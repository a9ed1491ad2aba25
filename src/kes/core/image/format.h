#ifndef KES_CORE_IMAGE_FORMAT_H
#define KES_CORE_IMAGE_FORMAT_H

#include <cstdint>

namespace kes::core::image {

/// Pixel layout of an image. The numbers are stored in files and travel between processes, so
/// they never change; any value not listed is read as three 8-bit channels red, green, blue.
enum Format : std::int32_t {
    Unknown = 0,
    Rgb = 1,  ///< three 8-bit channels in memory order red, green, blue
    Bgr = 2,  ///< three 8-bit channels in memory order blue, green, red
    Bgra = 3, ///< four 8-bit channels, blue, green, red, then a byte that is ignored
    Grey = 4, ///< one 8-bit channel
    Hsv = 6   ///< three 8-bit channels hue, saturation, value, each scaled to 0 to 255
};

} // namespace kes::core::image

#endif
