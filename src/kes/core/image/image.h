#ifndef KES_CORE_IMAGE_IMAGE_H
#define KES_CORE_IMAGE_IMAGE_H

#include <kes/core/image/imageinfo.h>
#include <kes/core/kes_core_export.h>
#include <kes/core/roi.h>

#include <cstddef>
#include <cstdint>
#include <memory>

namespace kes::core::image {

struct Overlay;

/// An image in memory: an ImageInfo, a pointer to the first pixel and a row stride.
///
/// Copies are shallow, as with cv::Mat: a copy shares the pixels (and the attached overlay data)
/// with the original, so writing through data() of one is seen by the other. Use clone() for an
/// independent image. An image may be restricted to a region of its pixels with setRoi(); info(),
/// data() and constData() then describe only that region while step() stays the stride of the
/// whole allocation.
class KES_CORE_EXPORT Image
{
public:
    /// A null image.
    Image();
    /// Allocates zero-filled pixels for \a info with a stride of whole 4-byte words, so that rows
    /// are padded whenever a row is not a multiple of 4 bytes. Gives a null image when the width,
    /// height, channel count or bytes per channel is not positive.
    explicit Image(const ImageInfo& info);
    /// Tag for the constructor below.
    struct Uninitialized
    {
    };
    /// Allocates like Image(info) but leaves the pixels as they come, for a caller that writes
    /// every row at once: zero-filling a frame costs as much as a third of copying it.
    Image(const ImageInfo& info, Uninitialized);
    /// Wraps memory owned by the caller, who keeps it alive as long as any copy of this image.
    /// Nothing is checked here: consumers that read pixels validate the layout themselves.
    Image(const ImageInfo& info, void* data, std::size_t step);

    Image(const Image&);
    Image& operator=(const Image&);
    Image(Image&&) noexcept;
    Image& operator=(Image&&) noexcept;
    ~Image();

    /// A deep copy of the current region, with its own tightly allocated pixels and the overlays.
    Image clone() const;

    /// True when there are no pixels to show: no memory, or a region of zero width or height.
    bool isNull() const;
    const ImageInfo& info() const { return m_info; }
    std::size_t step() const { return m_step; }
    std::uint8_t* data() { return m_data; }
    const std::uint8_t* data() const { return m_data; }
    const std::uint8_t* constData() const { return m_data; }
    /// Bytes of one pixel (channels times bytes per channel), 0 for a layout that makes no sense.
    std::size_t pixelBytes() const;

    /// The current region within the full image; the whole image when no region was set.
    Roi roi() const;
    /// Size and layout of the whole image, whatever the current region.
    const ImageInfo& fullInfo() const { return m_fullInfo; }

    /// Overlay data shared by all copies of this image until one of them attaches new data.
    const std::shared_ptr<const Overlay>& overlay() const { return m_overlay; }
    void setOverlay(std::shared_ptr<const Overlay> overlay);

private:
    friend KES_CORE_EXPORT void setRoi(Image& image, const Roi& roi);

    std::shared_ptr<std::uint8_t[]> m_storage; // empty for wrapped memory
    std::uint8_t* m_base = nullptr;           // first pixel of the full image
    std::uint8_t* m_data = nullptr;           // first pixel of the current region
    ImageInfo m_fullInfo;
    ImageInfo m_info;
    std::size_t m_step = 0;
    std::int32_t m_roiX = 0;
    std::int32_t m_roiY = 0;
    std::shared_ptr<const Overlay> m_overlay;
};

/// Restricts \a image to \a roi without copying pixels. The region is taken relative to the full
/// image (it replaces any earlier region) and clamped to it; a region outside the image leaves an
/// image of zero width or height, which isNull().
KES_CORE_EXPORT void setRoi(Image& image, const Roi& roi);

} // namespace kes::core::image

#endif
