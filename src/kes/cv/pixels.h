#ifndef KES_CV_PIXELS_H
#define KES_CV_PIXELS_H

#include <kes/cv/kes_cv_export.h>

#include <cstddef>
#include <cstdint>

/// Row-wise primitives on 8-bit pixels of one to four channels, for a width-by-height region given
/// by its first pixel and row stride in bytes. They run on AVX2 where the processor has it (unless
/// the environment variable KES_CV_DISABLE_AVX2 is set) and on OpenCV otherwise; large regions are
/// shared out among OpenCV's threads.
///
/// Each returns false and touches nothing when the arguments make no sense: a null pointer, a
/// channel count outside 1 to 4, a channel index out of range, a negative size, or a stride
/// shorter than a row. A region of zero width or height is valid and does nothing.
namespace kes::cv::pixels {

/// Marks a destination channel of copy() that is set to the fill value instead of copied.
constexpr int fillChannel = -1;

/// Copies every pixel of \a srcChannels bytes into one of \a dstChannels bytes. Destination
/// channel i receives source channel \a order[i], or \a fill where \a order[i] is fillChannel; a
/// null \a order copies channel i to channel i and fills the channels the source does not have.
/// \a order, when given, has \a dstChannels entries. Source and destination must not overlap.
KES_CV_EXPORT bool copy(const std::uint8_t* src, std::size_t srcStep, int srcChannels, std::uint8_t* dst,
                        std::size_t dstStep, int dstChannels, int width, int height,
                        const int* order = nullptr, std::uint8_t fill = 255);

/// Rewrites every pixel in place: channel i receives what channel \a order[i] held before.
/// \a order has \a channels entries, each a channel index.
KES_CV_EXPORT bool reorder(std::uint8_t* data, std::size_t step, int channels, const int* order, int width,
                           int height);

/// Sets channel \a channel of every pixel to \a value.
KES_CV_EXPORT bool setChannel(std::uint8_t* data, std::size_t step, int channels, int channel,
                              std::uint8_t value, int width, int height);

} // namespace kes::cv::pixels

#endif
