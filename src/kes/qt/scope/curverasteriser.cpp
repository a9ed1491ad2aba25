#include "curverasteriser_p.h"

#include <QImage>
#include <QPainter>
#include <QPointF>

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace kes::qt::scope {

namespace {

// Coordinates further out are dropped rather than converted to int; every curve of the view lies
// within a pixel or two of the plot anyway.
constexpr double coordinateLimit = 1e7;

bool usable(double value)
{
    return std::abs(value) < coordinateLimit; // false for NaN too
}

// For values within the coordinate limit; cheaper than std::floor, which is a library call on
// CPUs without SSE4.1's rounding instructions and is called four times per segment.
int floorToInt(double value)
{
    const int truncated = int(value);
    return truncated - int(value < truncated);
}

// x * alpha / 255 for each byte of a premultiplied pixel, as Qt's own blending rounds it.
quint32 byteMul(quint32 x, quint32 alpha)
{
    quint32 t = (x & 0xff00ff) * alpha;
    t = (t + ((t >> 8) & 0xff00ff) + 0x800080) >> 8;
    t &= 0xff00ff;
    x = ((x >> 8) & 0xff00ff) * alpha;
    x = x + ((x >> 8) & 0xff00ff) + 0x800080;
    x &= 0xff00ff00;
    return x | t;
}

bool writable(const QImage& image)
{
    // A shared image would detach at bits() and leave the painter on the old copy.
    return image.isDetached() && (image.format() == QImage::Format_RGB32
                                  || image.format() == QImage::Format_ARGB32_Premultiplied);
}

} // namespace

CurveRasteriser::CurveRasteriser(QPainter* painter, const QRect& clip)
    : m_painter(painter)
    , m_clip(clip)
{
    QPaintDevice* device = painter ? painter->device() : nullptr;
    if (!device)
        return;
    if (device->devType() == QInternal::Image && writable(*static_cast<QImage*>(device))) {
        m_image = static_cast<QImage*>(device);
        m_clip &= m_image->rect();
        m_bits = m_image->bits();
        m_stride = m_image->bytesPerLine();
    }
}

void CurveRasteriser::draw(const QPointF* points, int count, const QColor& color)
{
    if (!m_painter || !m_painter->isActive() || !points || count <= 0 || m_clip.isEmpty())
        return;
    const QRgb premultiplied = qPremultiply(color.rgba());
    m_pixel = premultiplied;
    m_opaque = color.alpha() == 255;
    m_inverseAlpha = 255 - quint32(color.alpha());
    if (color.alpha() == 0)
        return;
    m_rects.clear();
    m_open = false;

    if (count == 1)
        segment(points[0].x(), points[0].y(), points[0].x(), points[0].y());
    for (int i = 1; i < count; ++i)
        segment(points[i - 1].x(), points[i - 1].y(), points[i].x(), points[i].y());
    flush();
    m_open = false;

    if (m_image || m_rects.isEmpty())
        return;
    m_painter->save();
    m_painter->resetTransform();
    m_painter->setClipRect(m_clip);
    m_painter->setPen(Qt::NoPen);
    m_painter->setBrush(color);
    m_painter->drawRects(m_rects.constData(), m_rects.size());
    m_painter->restore();
}

void CurveRasteriser::segment(double xa, double ya, double xb, double yb)
{
    if (!(usable(xa) && usable(ya) && usable(xb) && usable(yb))) {
        flush();
        m_open = false;
        return;
    }
    const int ca = floorToInt(xa);
    const int cb = floorToInt(xb);
    const int ra = floorToInt(ya);
    const int rb = floorToInt(yb);
    if (ca == cb) {
        // By far the most common case in a dense curve: one merge, however long the segment.
        add(ca, ra, rb);
        return;
    }
    const double dx = xb - xa;
    const double dy = yb - ya;
    if (std::abs(dy) > std::abs(dx)) {
        // Steep: one pixel per row, in the column the segment crosses the row in, computed a
        // column at a time. Row r lies in column floor(xa + (r - ya) * dx / dy); the last row of
        // column k is the last before the segment crosses the column's far edge.
        const int sx = cb > ca ? 1 : -1;
        const int sy = rb >= ra ? 1 : -1;
        const double dydx = dy / dx;
        const auto lastRow = [&](int k) {
            const double t = ya + ((sx > 0 ? k + 1 : k) - xa) * dydx;
            int row = 0;
            if (sx > 0)
                row = sy > 0 ? -floorToInt(-t) - 1 : floorToInt(t) + 1;
            else
                row = sy > 0 ? floorToInt(t) : -floorToInt(-t);
            return (row - rb) * sy > 0 ? rb : row;
        };
        // Columns beyond the clip are skipped, but never more than the runs need to stay joined.
        const int leftmost = std::max(std::min(ca, cb), m_clip.left() - 1);
        const int rightmost = std::min(std::max(ca, cb), m_clip.right() + 1);
        const int first = sx > 0 ? leftmost : rightmost;
        const int last = sx > 0 ? rightmost : leftmost;
        if ((last - first) * sx < 0)
            return;
        int from = first == ca ? ra : lastRow(first - sx) + sy;
        for (int k = first;; k += sx) {
            int to = k == cb ? rb : lastRow(k);
            if ((to - from) * sy < 0)
                to = from;
            add(k, from, to);
            if (k == last)
                break;
            from = to + sy;
        }
        return;
    }
    // Flat: one pixel per column, rounded to the nearest row, halves upwards as Qt does.
    const int step = cb > ca ? 1 : -1;
    const double dydx = dy / dx;
    const int leftmost = std::max(std::min(ca, cb), m_clip.left() - 1);
    const int rightmost = std::min(std::max(ca, cb), m_clip.right() + 1);
    const int first = step > 0 ? leftmost : rightmost;
    const int last = step > 0 ? rightmost : leftmost;
    if ((last - first) * step < 0)
        return;
    for (int c = first;; c += step) {
        const int row = c == ca ? ra : c == cb ? rb : -floorToInt(0.5 - ya - (c - xa) * dydx);
        add(c, row, row);
        if (c == last)
            break;
    }
}

// Extends the run of \a column by the rows from \a from to \a to, in the order the path visits
// them. A new column's run reaches back to the row next to where the path left the previous
// column, so that runs of neighbouring columns always touch.
inline void CurveRasteriser::add(int column, int from, int to)
{
    if (m_open && column == m_column) {
        m_top = std::min({m_top, from, to});
        m_bottom = std::max({m_bottom, from, to});
        m_lastRow = to;
        return;
    }
    const bool adjacent = m_open && std::abs(column - m_column) == 1;
    flush();
    m_open = true;
    m_column = column;
    m_top = std::min(from, to);
    m_bottom = std::max(from, to);
    if (adjacent) {
        if (from > m_lastRow + 1)
            m_top = std::min(m_top, m_lastRow + 1);
        else if (from < m_lastRow - 1)
            m_bottom = std::max(m_bottom, m_lastRow - 1);
    }
    m_lastRow = to;
}

void CurveRasteriser::flush()
{
    if (m_open)
        writePixels(m_column, m_top, m_bottom);
}

void CurveRasteriser::writePixels(int column, int top, int bottom)
{
    if (column < m_clip.left() || column > m_clip.right())
        return;
    top = std::max(top, m_clip.top());
    bottom = std::min(bottom, m_clip.bottom());
    if (top > bottom)
        return;
    if (!m_image) {
        m_rects.append(QRect(column, top, 1, bottom - top + 1));
        return;
    }
    const qsizetype stride = m_stride;
    uchar* line = m_bits + top * stride + column * qsizetype(sizeof(quint32));
    const quint32 pixel = m_pixel;
    if (m_opaque) {
        for (int row = top; row <= bottom; ++row, line += stride)
            *reinterpret_cast<quint32*>(line) = pixel;
        return;
    }
    const quint32 inverse = m_inverseAlpha;
    for (int row = top; row <= bottom; ++row, line += stride) {
        auto* target = reinterpret_cast<quint32*>(line);
        *target = pixel + byteMul(*target, inverse);
    }
}

} // namespace kes::qt::scope
