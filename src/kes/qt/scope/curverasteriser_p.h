#pragma once

#include <QColor>
#include <QRect>
#include <QVector>

class QImage;
class QPainter;
class QPointF;

namespace kes::qt::scope {

// Draws one-pixel-wide polylines as vertical runs of pixels, one run per pixel column that the
// path crosses, merging every segment that stays in the column: a noisy curve of ten samples per
// column costs one run there instead of ten lines. Qt's own aliased line drawing pays per span,
// and on some CPUs (AVX2 span functions into 32-bit images) that costs fifteen times as much as
// elsewhere; runs are written straight into the image's pixels instead, or, on any other paint
// device, as one-pixel-wide rectangles, which every CPU fills quickly.
//
// The pixels follow a DDA like Qt's: one per column for flat segments, one per row for steep ones,
// and consecutive runs always touch, so no curve has a gap.
class CurveRasteriser
{
public:
    // Draws into the painter's device, within \a clip (device pixels). The painter's transform
    // and clip are not applied.
    CurveRasteriser(QPainter* painter, const QRect& clip);

    void draw(const QPointF* points, int count, const QColor& color);

private:
    void segment(double xa, double ya, double xb, double yb);
    void add(int column, int from, int to);
    void flush();
    void writePixels(int column, int top, int bottom);

    QPainter* m_painter;
    QImage* m_image = nullptr;   // when its pixels can be written directly
    uchar* m_bits = nullptr;
    qsizetype m_stride = 0;
    QRect m_clip;
    quint32 m_pixel = 0;         // premultiplied
    quint32 m_inverseAlpha = 0;
    bool m_opaque = true;
    QVector<QRect> m_rects;      // runs for painters on other devices

    bool m_open = false;
    int m_column = 0;
    int m_top = 0;
    int m_bottom = 0;
    int m_lastRow = 0;
};

} // namespace kes::qt::scope
