#include "camerapage.h"

#include "imagesaving.h"
#include "style.h"

#include <kes/core/image/overlay.h>
#include <kes/cv/convert.h>
#include <kes/qt/colorrangefinder/dialog.h>
#include <kes/qt/convert.h>
#include <kes/qt/gui/widgets/imageview.h>

#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>
#include <QRadialGradient>
#include <QRandomGenerator>
#include <QScrollArea>
#include <QHBoxLayout>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <cmath>

namespace kes::gallery {

namespace {

using kes::core::IntVector;
using kes::core::image::Image;
using kes::core::image::ImageInfo;
using kes::core::image::Segment;
using kes::core::image::SegmentList;
using namespace style;

constexpr int textMaxWidth = 820;
const QSize cameraSize(640, 480);
constexpr int noiseAmplitude = 10;
constexpr int cell = 4;           // segmentation grid, in pixels
constexpr int minimumCells = 12;  // smaller blobs are noise

// A ball, lit from the top left, so that its colour spans a range of values.
void drawBall(QPainter& painter, const QPointF& centre, double radius, const QColor& colour)
{
    QRadialGradient shading(centre - QPointF(radius / 3, radius / 3), radius * 1.4);
    shading.setColorAt(0.0, colour.lighter(125));
    shading.setColorAt(1.0, colour.darker(160));
    painter.setBrush(shading);
    painter.drawEllipse(centre, radius, radius);
}

// Whether an 8-bit hue, saturation or value lies in a range given in degrees or percent, as the
// range finder rounds: the 8-bit value scaled to the range's unit.
std::array<bool, 256> accepted(int low, int high, int full, bool wraps)
{
    std::array<bool, 256> table{};
    for (int v = 0; v < 256; ++v) {
        const int scaled = int(std::lround(v * double(full) / 255.0));
        table[std::size_t(v)] = wraps ? (scaled >= low || scaled <= high) : (scaled >= low && scaled <= high);
    }
    return table;
}

kes::core::Line line(double x1, double y1, double x2, double y2, kes::core::Color colour)
{
    return kes::core::Line{{x1, y1}, {x2, y2}, colour};
}

// The page's own segmentation: pixels within the ranges, gathered on a coarse grid into
// connected blobs. Fills \a result with the frame darkened outside the matching pixels.
SegmentList segment(const Image& frame, const IntVector& ranges, Image& result)
{
    const Image hsv = kes::cv::convert(frame, kes::core::image::Hsv);
    if (hsv.isNull() || ranges.size() != 6)
        return {};
    const auto hue = accepted(ranges[0], ranges[1], 360, ranges[0] > ranges[1]);
    const auto sat = accepted(ranges[2], ranges[3], 100, false);
    const auto val = accepted(ranges[4], ranges[5], 100, false);

    const int w = frame.info().width, h = frame.info().height;
    const int cw = w / cell, ch = h / cell;
    std::vector<int> hits(std::size_t(cw * ch), 0);
    result = Image(ImageInfo(w, h, 3, 1, kes::core::image::Bgr));
    for (int y = 0; y < h; ++y) {
        const std::uint8_t* in = hsv.constData() + std::size_t(y) * hsv.step();
        const std::uint8_t* bgr = frame.constData() + std::size_t(y) * frame.step();
        std::uint8_t* out = result.data() + std::size_t(y) * result.step();
        for (int x = 0; x < w; ++x, in += 3, bgr += 3, out += 3) {
            const bool match = hue[in[0]] && sat[in[1]] && val[in[2]];
            for (int c = 0; c < 3; ++c)
                out[c] = match ? bgr[c] : std::uint8_t(bgr[c] / 5);
            if (match && x / cell < cw && y / cell < ch)
                ++hits[std::size_t((y / cell) * cw + x / cell)];
        }
    }

    // Flood fill over the cells that are mostly matching pixels.
    SegmentList segments;
    std::vector<int> label(hits.size(), 0);
    std::vector<int> stack;
    const auto on = [&](int i) { return hits[std::size_t(i)] * 2 >= cell * cell; };
    for (int start = 0; start < cw * ch; ++start) {
        if (!on(start) || label[std::size_t(start)] != 0)
            continue;
        const int id = int(segments.size()) + 1;
        long count = 0, cells = 0;
        double sx = 0, sy = 0;
        int left = cw, right = 0, top = ch, bottom = 0;
        stack.assign(1, start);
        label[std::size_t(start)] = id;
        while (!stack.empty()) {
            const int i = stack.back();
            stack.pop_back();
            const int cx = i % cw, cy = i / cw;
            ++cells;
            count += hits[std::size_t(i)];
            sx += (cx + 0.5) * cell * hits[std::size_t(i)];
            sy += (cy + 0.5) * cell * hits[std::size_t(i)];
            left = std::min(left, cx), right = std::max(right, cx), top = std::min(top, cy), bottom = std::max(bottom, cy);
            const int next[4][2] = {{cx - 1, cy}, {cx + 1, cy}, {cx, cy - 1}, {cx, cy + 1}};
            for (const auto& n : next) {
                if (n[0] < 0 || n[1] < 0 || n[0] >= cw || n[1] >= ch)
                    continue;
                const int j = n[1] * cw + n[0];
                if (on(j) && label[std::size_t(j)] == 0) {
                    label[std::size_t(j)] = id;
                    stack.push_back(j);
                }
            }
        }
        if (cells < minimumCells)
            continue;
        Segment s;
        s.count = std::uint32_t(count);
        s.id = id;
        s.color = kes::core::Color::fromRgb(255, 230, 0);
        s.centerX = int(sx / double(count));
        s.centerY = int(sy / double(count));
        const double x0 = left * cell, x1 = (right + 1) * cell - 1, y0 = top * cell, y1 = (bottom + 1) * cell - 1;
        s.lines = {line(x0, y0, x1, y0, s.color), line(x1, y0, x1, y1, s.color), line(x1, y1, x0, y1, s.color),
                   line(x0, y1, x0, y0, s.color)};
        segments.append(s);
    }
    return segments;
}

} // namespace

SyntheticCamera::SyntheticCamera(const QSize& size)
    : m_background(size, QImage::Format_RGB32)
{
    // Woven cloth under a soft light from the top: a fine two-way ripple with grain.
    QRandomGenerator random(2024);
    for (int y = 0; y < size.height(); ++y) {
        auto* row = reinterpret_cast<QRgb*>(m_background.scanLine(y));
        for (int x = 0; x < size.width(); ++x) {
            const double weave = 0.5 + 0.25 * std::sin(x * 0.9) * std::sin(y * 0.35) + 0.25 * std::sin(y * 0.9);
            const double light = 1.0 - 0.45 * double(y) / size.height() - 0.2 * std::abs(x - size.width() / 2.0) / size.width();
            const int grain = int(random.bounded(18));
            const int base = int((70 + 40 * weave) * light) + grain;
            row[x] = qRgb(std::min(base + 12, 255), std::min(base + 6, 255), base);
        }
    }
    m_noise.resize(std::size_t(size.width() * size.height() * 4 + 8192));
    for (int& n : m_noise)
        n = int(random.bounded(2 * noiseAmplitude + 1)) - noiseAmplitude;
}

Image SyntheticCamera::frame(double t)
{
    QImage picture = m_background;
    {
        QPainter painter(&picture);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        const double w = picture.width(), h = picture.height();
        // An orange ball on a wide ellipse, a green and a blue ball crossing, a red one bobbing.
        drawBall(painter, QPointF(w / 2 + 0.33 * w * std::cos(0.7 * t), h / 2 + 0.3 * h * std::sin(0.7 * t)), 46,
                 QColor(245, 140, 20));
        drawBall(painter, QPointF(w * (0.5 + 0.4 * std::sin(0.45 * t)), h * 0.3), 38, QColor(50, 170, 70));
        drawBall(painter, QPointF(w * (0.5 - 0.38 * std::sin(0.5 * t + 1.0)), h * 0.72), 42, QColor(50, 90, 215));
        drawBall(painter, QPointF(w * 0.18, h * (0.5 + 0.25 * std::sin(1.3 * t))), 30, QColor(215, 30, 45));
    }
    // Sensor noise, from a different place of the noise table each frame.
    const std::size_t offset = std::size_t(QRandomGenerator::global()->bounded(8192));
    const int* noise = m_noise.data() + offset;
    for (int y = 0; y < picture.height(); ++y) {
        std::uint8_t* row = picture.scanLine(y);
        for (int i = 0; i < picture.width() * 4; ++i, ++noise)
            row[i] = std::uint8_t(std::clamp(row[i] + *noise, 0, 255));
    }
    return kes::qt::convert(picture);
}

CameraPage::CameraPage(QWidget* parent)
    : Page(parent)
    , m_camera(std::make_unique<SyntheticCamera>(cameraSize))
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(28, 18, 28, 18);
    layout->setSpacing(0);
    m_heading = sectionHeading(this);
    m_description = paragraph(textMaxWidth, this);
    m_status = new QLabel(this);
    m_status->setTextInteractionFlags(Qt::TextSelectableByMouse);
    layout->addWidget(m_heading);
    layout->addSpacing(6);
    layout->addWidget(m_description);
    layout->addSpacing(10);
    m_saveFrame = new QPushButton(this);
    m_saveFrame->setObjectName(QStringLiteral("saveFrame"));
    m_saved = new QLabel(this);
    muteText(m_saved);
    m_saved->setWordWrap(true);
    // A row of its own: beside the status line it would widen the page in longer languages.
    auto* saveRow = new QHBoxLayout;
    saveRow->setSpacing(12);
    saveRow->addWidget(m_saveFrame);
    saveRow->addWidget(m_saved, 1);
    layout->addWidget(m_status);
    layout->addSpacing(6);
    layout->addLayout(saveRow);
    layout->addSpacing(8);

    //! [finder-setup]
    m_finder = new kes::qt::colorrangefinder::Dialog(this);
    m_finder->setObjectName(QStringLiteral("finder"));
    // The range finder's six boxes stand in one row; in a narrow window it scrolls sideways.
    auto* finderArea = new QScrollArea(this);
    finderArea->setFrameShape(QFrame::NoFrame);
    finderArea->setWidgetResizable(true);
    finderArea->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    finderArea->setWidget(m_finder);
    layout->addWidget(finderArea, 1);
    // The orange ball, roughly, so that the segmentation has something to find from the start.
    m_finder->setRanges(20, 40, 70, 100, 40, 100);
    // Segments bring their crosses; their outlines, one pixel wide in the camera's resolution, are
    // drawn again as wide overlay lines, which stay visible when the view scales the frame down.
    m_view = m_finder->findChild<kes::qt::gui::widgets::ImageView*>(QStringLiteral("imageView"));
    if (m_view) {
        m_view->setSegmentDrawingEnabled(true, -1);
        m_view->setOverlayDrawingEnabled(true);
    }
    //! [finder-setup]

    m_timer = new QTimer(this);
    m_timer->setInterval(1000 / 30);
    connect(m_timer, SIGNAL(timeout()), this, SLOT(nextFrame()));
    QMetaObject::connectSlotsByName(this);
    retranslate();
    nextFrame();
}

CameraPage::~CameraPage() = default;

QString CameraPage::id() const
{
    return QStringLiteral("camera");
}

QString CameraPage::title() const
{
    return tr("Camera");
}

void CameraPage::retranslate()
{
    m_heading->setText(tr("Colour ranges from a live camera"));
    m_description->setText(
        tr("A synthetic camera delivers 30 frames a second: four coloured balls over a cloth, with "
           "sensor noise. Drag a rectangle over a ball to measure its hue, saturation and value "
           "ranges; the page then finds every blob within them and marks it. \"Show result\" shows "
           "the page's segmentation, \"Freeze image\" holds the picture, and the buttons copy the "
           "ranges to the clipboard and paste them back."));
    m_saveFrame->setText(tr("Save &frame\u2026"));
    showStatus();
}

void CameraPage::activated()
{
    m_clock.start();
    m_timer->start();
}

void CameraPage::deactivated()
{
    m_timer->stop();
}

std::chrono::milliseconds CameraPage::settleTime() const
{
    return std::chrono::milliseconds(400);
}

void CameraPage::nextFrame()
{
    const double seconds = m_clock.isValid() ? m_clock.elapsed() / 1000.0 : 0.0;
    Image frame = m_camera->frame(seconds + 2.0);
    Image result;
    const SegmentList segments = segment(frame, m_finder->ranges(), result);
    kes::core::Vector<kes::core::Line> outlines;
    const Segment* largest = nullptr;
    for (const Segment& s : segments) {
        for (const kes::core::Line& l : s.lines)
            outlines.append(l);
        if (!largest || s.count > largest->count)
            largest = &s;
    }
    for (Image* image : {&frame, &result}) {
        kes::core::image::setSegmentList(*image, segments);
        kes::core::image::setLines(*image, outlines);
    }
    // The largest blob gets the bold cross; the view rebuilds on the call, so only on a change.
    const int highlighted = largest ? largest->id : -1;
    if (m_view && highlighted != m_highlighted) {
        m_highlighted = highlighted;
        m_view->setHighlightedSegment(highlighted);
    }
    m_segments = int(segments.size());
    //! [finder-frame]
    m_finder->setImage(frame);
    m_finder->setResultImage(result);
    //! [finder-frame]
    showStatus();
}

void CameraPage::on_finder_valuesChanged()
{
    showStatus();
}

void CameraPage::on_saveFrame_clicked()
{
    // The picture the view shows: the camera frame or the segmentation, held while frozen.
    if (!m_view)
        return;
    const QString result = saveImage(this, kes::qt::convert(m_view->image(), true), QStringLiteral("camera-frame"));
    if (!result.isEmpty())
        m_saved->setText(result);
}

void CameraPage::showStatus()
{
    m_status->setText(tr("Ranges: %1    Blobs found: %2")
                          .arg(QString::fromStdString(kes::core::toString(m_finder->ranges())))
                          .arg(m_segments));
}

} // namespace kes::gallery
