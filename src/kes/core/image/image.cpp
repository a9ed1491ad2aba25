#include <kes/core/image/image.h>

#include <algorithm>
#include <cstring>

namespace kes::core::image {

namespace {

std::size_t bytesPerPixel(const ImageInfo& info)
{
    if (info.numChannels <= 0 || info.bytesPerChannel <= 0)
        return 0;
    return std::size_t(info.numChannels) * std::size_t(info.bytesPerChannel);
}

} // namespace

Image::Image() = default;

Image::Image(const ImageInfo& info)
    : Image(info, Uninitialized{})
{
    if (m_storage)
        std::fill_n(m_storage.get(), m_step * std::size_t(m_info.height), std::uint8_t(0));
}

Image::Image(const ImageInfo& info, Uninitialized)
{
    const std::size_t pixel = bytesPerPixel(info);
    if (info.width <= 0 || info.height <= 0 || pixel == 0)
        return;
    const std::size_t rowBytes = pixel * std::size_t(info.width);
    // Word-aligned rows, as most capture drivers deliver them; it also keeps every consumer honest
    // about using step() rather than width times pixel size.
    m_step = (rowBytes + 3) / 4 * 4;
    m_storage.reset(new std::uint8_t[m_step * std::size_t(info.height)]);
    m_base = m_data = m_storage.get();
    // The padding is nobody's to write, so it is zeroed here: whole-buffer copies and comparisons
    // then see defined bytes.
    if (m_step != rowBytes) {
        for (int y = 0; y < info.height; ++y)
            std::memset(m_data + std::size_t(y) * m_step + rowBytes, 0, m_step - rowBytes);
    }
    m_fullInfo = m_info = info;
}

Image::Image(const ImageInfo& info, void* data, std::size_t step)
    : m_base(static_cast<std::uint8_t*>(data)),
      m_data(m_base),
      m_fullInfo(info),
      m_info(info),
      m_step(step)
{
}

Image::Image(const Image&) = default;
Image& Image::operator=(const Image&) = default;
Image::Image(Image&&) noexcept = default;
Image& Image::operator=(Image&&) noexcept = default;
Image::~Image() = default;

Image Image::clone() const
{
    if (isNull() || pixelBytes() == 0)
        return Image();
    Image copy(m_info);
    const std::size_t rowBytes = pixelBytes() * std::size_t(m_info.width);
    for (std::int32_t y = 0; y < m_info.height; ++y)
        std::memcpy(copy.m_data + std::size_t(y) * copy.m_step, m_data + std::size_t(y) * m_step, rowBytes);
    copy.m_overlay = m_overlay;
    return copy;
}

bool Image::isNull() const
{
    return m_data == nullptr || m_info.width <= 0 || m_info.height <= 0;
}

std::size_t Image::pixelBytes() const
{
    return bytesPerPixel(m_info);
}

Roi Image::roi() const
{
    return Roi(m_roiX, m_roiY, std::uint32_t(std::max(m_info.width, 0)),
               std::uint32_t(std::max(m_info.height, 0)));
}

void Image::setOverlay(std::shared_ptr<const Overlay> overlay)
{
    m_overlay = std::move(overlay);
}

void setRoi(Image& image, const Roi& roi)
{
    if (image.m_base == nullptr)
        return;
    const ImageInfo& full = image.m_fullInfo;
    // 64-bit arithmetic: x + width may exceed the range of either 32-bit type.
    const auto clampTo = [](std::int64_t v, std::int32_t hi) {
        return std::int32_t(std::clamp<std::int64_t>(v, 0, std::max(hi, 0)));
    };
    const std::int32_t left = clampTo(roi.x, full.width);
    const std::int32_t top = clampTo(roi.y, full.height);
    const std::int32_t right = clampTo(std::int64_t(roi.x) + roi.width, full.width);
    const std::int32_t bottom = clampTo(std::int64_t(roi.y) + roi.height, full.height);

    image.m_roiX = left;
    image.m_roiY = top;
    image.m_info = full;
    image.m_info.width = std::max(right - left, 0);
    image.m_info.height = std::max(bottom - top, 0);
    image.m_data = image.m_base + std::size_t(top) * image.m_step + std::size_t(left) * bytesPerPixel(full);
}

} // namespace kes::core::image
