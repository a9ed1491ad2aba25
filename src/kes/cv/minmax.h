#ifndef KES_CV_MINMAX_H
#define KES_CV_MINMAX_H

#include <kes/core/image/image.h>
#include <kes/cv/kes_cv_export.h>

#include <vector>

namespace kes::cv {

/// Per-channel minimum and maximum over the current region of \a image, which may have 1 to 4
/// channels of 8-bit unsigned, 16-bit unsigned or 32-bit float values.
///
/// On success \a min and \a max hold one value per channel and the result is true. An image whose
/// layout makes no sense (null or empty, unsupported channel count or size, stride shorter than a
/// row, no pixels) gives false and leaves \a min and \a max as they were.
KES_CV_EXPORT bool minmax(const kes::core::image::Image& image, std::vector<double>& min,
                          std::vector<double>& max);

} // namespace kes::cv

#endif
