#include <kes/core/image/overlay.h>

#include <memory>

namespace kes::core::image {

namespace {

template <typename Field>
Field field(const Image& image, Field Overlay::*member)
{
    return image.overlay() ? (*image.overlay()).*member : Field();
}

template <typename Field, typename Value>
void replaceField(Image& image, Field Overlay::*member, const Value& value)
{
    // Copying the other lists only takes references to their shared elements.
    auto overlay = image.overlay() ? std::make_shared<Overlay>(*image.overlay()) : std::make_shared<Overlay>();
    (*overlay).*member = value;
    image.setOverlay(std::move(overlay));
}

} // namespace

Vector<Line> getLines(const Image& image)
{
    return field(image, &Overlay::lines);
}

Vector<ColorPoint> getPoints(const Image& image)
{
    return field(image, &Overlay::points);
}

Vector<Circle> getCircles(const Image& image, bool* ok)
{
    const std::optional<Vector<Circle>> circles = field(image, &Overlay::circles);
    if (ok)
        *ok = circles.has_value();
    return circles.value_or(Vector<Circle>());
}

SegmentList getSegmentList(const Image& image)
{
    return field(image, &Overlay::segments);
}

void setLines(Image& image, const Vector<Line>& lines)
{
    replaceField(image, &Overlay::lines, lines);
}

void setPoints(Image& image, const Vector<ColorPoint>& points)
{
    replaceField(image, &Overlay::points, points);
}

void setCircles(Image& image, const Vector<Circle>& circles)
{
    replaceField(image, &Overlay::circles, circles);
}

void setSegmentList(Image& image, const SegmentList& segments)
{
    replaceField(image, &Overlay::segments, segments);
}

} // namespace kes::core::image
