#ifndef KES_CV_CONVERT_H
#define KES_CV_CONVERT_H

#include <kes/core/image/format.h>
#include <kes/core/image/image.h>
#include <kes/cv/kes_cv_export.h>

namespace kes::cv {

/// Converts the current region of \a image to \a format, which may be Bgr or Hsv, whose hue maps a
/// full turn onto 0 to 255 (green 85, blue 170). The source may be Bgr, Bgra, Grey, Hsv or any
/// other format, which is read as Rgb; a grey source gives hue 0, saturation 0 and the grey value.
///
/// Returns a newly allocated image of the region's size that carries the source's overlay, or a
/// null image for an unsupported target format or a source whose layout does not fit its format
/// (null or empty, wrong channel count or size, stride shorter than a row, no pixels).
KES_CV_EXPORT kes::core::image::Image convert(const kes::core::image::Image& image,
                                              kes::core::image::Format format);

} // namespace kes::cv

#endif
