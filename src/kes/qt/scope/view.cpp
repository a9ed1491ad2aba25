#include <kes/qt/scope/view.h>

#include <kes/qt/scope/channelmenu.h>

#include <QAction>
#include <QApplication>
#include <QBrush>
#include <QButtonGroup>
#include <QClipboard>
#include <QFont>
#include <QLineF>
#include <QLocale>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QPen>
#include <QPushButton>
#include <QSignalMapper>

#include <algorithm>
#include <cmath>
#include <limits>

namespace kes::qt::scope {

namespace {

QString number(double value)
{
    return QStringLiteral("%1").arg(value, 0, 'g', -1);
}

// yValue2pixel() in a form the drawing loops can inline.
class RowMapping
{
public:
    RowMapping(const Channel& channel, int centre, const QRect& plot)
        : m_offset(channel.yOffset)
        , m_perUnit(channel.yPixelsPerUnit)
        , m_centre(centre)
        , m_top(plot.top())
        , m_bottom(plot.bottom())
    {
    }

    int operator()(double value) const
    {
        const double pixel = (-value - m_offset) * m_perUnit + m_centre;
        // Clamped before the conversion, which is undefined for values out of int's range; NaN
        // goes to the top like a large value.
        if (!(pixel > m_top))
            return m_top;
        if (!(pixel < m_bottom))
            return m_bottom;
        return int(pixel);
    }

private:
    double m_offset;
    double m_perUnit;
    double m_centre;
    int m_top;
    int m_bottom;
};

// The segments of one curve for a single drawLines call, with each run of samples within one pixel
// column merged into a one pixel wide rectangle. Line rasterising dominates the refresh, and a
// column often holds many samples: the segments between them light that column from their lowest
// to their highest row, exactly the pixels of the rectangle, which the raster engine fills far
// faster. Whether a segment stays inside its column follows the raster engine's aliased line
// rules (26.6 fixed-point ends, the half-pixel extension of square caps, single points rounded to
// the nearest pixel), with a margin; every other segment is kept as it is, so the picture is the
// same as drawing every segment. Translucent colours blend where segments overlap, so for them
// nothing is merged.
constexpr int noColumn = std::numeric_limits<int>::min();
constexpr double columnMargin = 2.0 / 64.0;

// Only a guess: inColumn() decides, with margins on both sides of the column.
int columnOf(double x)
{
    if (!(std::abs(x) < 1e6))
        return noColumn;
    const int truncated = int(x);
    return truncated - int(x < truncated);
}

// Whether the segment a-b, both ends in \a column, lights pixels of that column only, every row
// from a's to b's. Computed without branches: on noisy data they would be guessed wrong.
bool inColumn(const QPointF& a, const QPointF& b, int column)
{
    const double dx = std::abs(b.x() - a.x());
    const double dy = std::abs(b.y() - a.y());
    const double left = std::min(a.x(), b.x()) - column - columnMargin;
    const double right = column + 1 - columnMargin - std::max(a.x(), b.x());
    // A steep segment reaches half a row beyond its ends, and its x moves with it.
    const bool steep = (dy >= 1.0) & (2.0 * dy * left >= dx) & (2.0 * dy * right > dx);
    // A single point goes to the nearest pixel, but a segment shorter than 1/64 pixel may end in
    // the same 26.6 fixed-point x as it starts and then lights nothing: left to the line drawing.
    const bool flat = (dy == 0.0) & (left >= 0.0) & (right > 0.5 * double(dx == 0.0))
                      & ((dx == 0.0) | (dx >= 1.0 / 64.0));
    return steep | flat;
}

// How much of the line and column buffers one trace() used.
struct Trace
{
    int lines = 0;
    int columns = 0;
};

// Traces the polyline through \a count points. State is kept in locals: members would be reloaded
// after every store into the vectors. The buffers only ever grow and are written through raw
// pointers, as QVector::append() checks sharing and capacity on every call of this hot loop.
Trace trace(const QPointF* points, int count, bool merge, QVector<QLineF>& lines,
            QVector<QRect>& columns)
{
    if (count <= 0)
        return Trace();
    if (lines.size() < count - 1)
        lines.resize(count - 1);
    if (columns.size() < count / 2)
        columns.resize(count / 2);
    QLineF* line = lines.data();
    QRect* rect = columns.data();
    int column = noColumn;
    double top = 0.0;
    double bottom = 0.0;
    int run = 0;
    auto startRun = [&](const QPointF& point) {
        column = merge ? columnOf(point.x()) : noColumn;
        top = bottom = point.y();
        run = 1;
    };
    // A run holds at least two points, so there are never more runs than half the points.
    auto endRun = [&] {
        if (run > 1)
            *rect++ = QRect(column, int(top), 1, int(bottom - top) + 1);
    };
    startRun(points[0]);
    for (int i = 1; i < count; ++i) {
        const QPointF& last = points[i - 1];
        const QPointF& point = points[i];
        // inColumn() also tells whether the point is in the run's column at all.
        if (inColumn(last, point, column)) {
            top = std::min(top, point.y());
            bottom = std::max(bottom, point.y());
            ++run;
            continue;
        }
        endRun();
        *line++ = QLineF(last, point);
        startRun(point);
    }
    endRun();
    Trace used;
    used.lines = int(line - lines.constData());
    used.columns = int(rect - columns.constData());
    return used;
}

void drawCurve(QPainter* painter, const QVector<QLineF>& lines, const QVector<QRect>& columns,
               const Trace& used)
{
    painter->drawLines(lines.constData(), used.lines);
    if (used.columns == 0)
        return;
    const QPen pen = painter->pen();
    const QBrush brush = painter->brush();
    painter->setPen(Qt::NoPen);
    painter->setBrush(pen.color());
    painter->drawRects(columns.constData(), used.columns);
    painter->setPen(pen);
    painter->setBrush(brush);
}

} // namespace

View::View(QWidget* parent)
    : QWidget(parent)
    , m_offsetArrowShape(QVector<QPointF>{{0, 0}, {-9, -4}, {-9, 4}})
    , m_triggerArrowShape(QVector<QPointF>{{0, 0}, {9, -4}, {9, 4}})
    , m_plotRect()
    , m_xAxisTitle(QStringLiteral("Time [s]"))
    , m_defaultColors{Qt::red,      Qt::green,       Qt::blue,       Qt::cyan,
                      Qt::magenta,  Qt::yellow,      Qt::darkRed,    Qt::darkGreen,
                      Qt::darkBlue, Qt::darkCyan,    Qt::darkMagenta, Qt::darkYellow,
                      Qt::white,    Qt::black,       Qt::red,        Qt::green}
{
    for (int i = 0; i < maxChannels; ++i)
        m_defaultNames.append(QStringLiteral("Channel %1").arg(i + 1));

    setMinimumSize(320, 240);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);

    m_channelButtonGroup = new QButtonGroup(this);
    m_channelButtonGroup->setObjectName(QStringLiteral("channelButtonGroup"));
    for (int i = 0; i < maxChannels; ++i) {
        auto* button = new QPushButton(this);
        button->setObjectName(QStringLiteral("channelButton%1").arg(i));
        button->setFixedSize(20, 20);
        button->setCheckable(true);
        button->setFlat(true);
        m_channelButtonGroup->addButton(button, i);
        button->move(0, 20 * i + 2);
        if (i >= m_numChannels)
            button->hide();
        m_channelButtons.append(button);
        setColor(i, m_defaultColors.at(i));
        setChannelName(i, m_defaultNames.at(i));
        updateToolTip(i);
    }
    connect(m_channelButtonGroup, SIGNAL(buttonClicked(int)), this,
            SLOT(on_channelButtonGroup_buttonClicked(int)));

    m_channelButtons.at(0)->setChecked(true);
    refreshPixmap();
}

View::~View() = default;

void View::setNumChannels(int n)
{
    m_numChannels = n < 0 ? 0 : std::min(n, int(maxChannels));
    for (int i = 0; i < maxChannels; ++i) {
        m_channelButtons.at(i)->show();
        if (i >= m_numChannels) {
            m_channelButtons.at(i)->hide();
            m_channels[i].points.clear();
        }
    }
    if (n > m_currentChannel)
        refreshPixmap();
    else
        setCurrentChannel(-1);
}

void View::setCurrentChannel(int channel)
{
    m_currentChannel = channel;
    // An exclusive group keeps one button checked; it has to let go to show no channel at all.
    m_channelButtonGroup->setExclusive(false);
    for (QPushButton* button : qAsConst(m_channelButtons))
        button->setChecked(false);
    if (isChannel(channel))
        m_channelButtons.at(channel)->setChecked(true);
    m_channelButtonGroup->setExclusive(true);
    refreshPixmap();
}

void View::setChannelEnabled(int channel, bool enable)
{
    if (!isChannel(channel))
        return;
    m_channels[channel].enabled = enable;
    m_channelButtons.at(channel)->setEnabled(enable);
    if (!enable && channel == m_currentChannel)
        setCurrentChannel(-1);
    refreshPixmap();
}

void View::setChannelName(int channel, const QString& name)
{
    if (isChannel(channel))
        m_channels[channel].name = name;
}

void View::setColor(int channel, const QColor& color)
{
    if (!isChannel(channel))
        return;
    Channel& c = m_channels[channel];
    c.color = color;
    c.icon = QPixmap(12, 12);
    c.icon.fill(color);
    m_channelButtons.at(channel)->setIcon(QIcon(c.icon));
    refreshPixmap();
}

void View::setColor(int channel, quint32 rgb)
{
    setColor(channel, QColor(QRgb(rgb)));
}

void View::setXScale(int channel, double scale)
{
    if (!isChannel(channel))
        return;
    m_channels[channel].xScale = scale;
    refreshPixmap();
    updateToolTip(channel);
}

void View::setYScale(int channel, double scale)
{
    if (!isChannel(channel))
        return;
    setYOffset(channel, 0.0);
    m_channels[channel].yScale = scale;
    refreshPixmap();
    updateToolTip(channel);
}

void View::setYOffset(int channel, double offset)
{
    if (!isChannel(channel))
        return;
    m_channels[channel].yOffset = offset;
    refreshPixmap();
}

void View::setTrigger(int channel, Trigger_t trigger)
{
    if (!isChannel(channel))
        return;
    // Following a channel that leads back here would make onTrigger() recurse for ever. Each
    // channel follows at most one other, so the chain has at most 16 links.
    for (int link = trigger, steps = 0; isChannel(link) && steps <= maxChannels; ++steps) {
        if (link == channel)
            return;
        link = m_channels[link].trigger;
    }

    Channel& c = m_channels[channel];
    if (isChannel(c.trigger))
        m_channels[c.trigger].followers.remove(&c);
    c.trigger = trigger;
    if (trigger == TriggerOff) {
        c.setTriggered(false);
    } else if (trigger == TriggerRisingEdge || trigger == TriggerFallingEdge) {
        c.setTriggered(true);
    } else if (isChannel(trigger)) {
        c.setTriggered(m_channels[trigger].triggered);
        m_channels[trigger].followers.insert(&c);
    }
    refreshPixmap();
}

void View::setTriggerPosition(int channel, double position)
{
    if (!isChannel(channel))
        return;
    m_channels[channel].triggerPosition = position;
    refreshPixmap();
}

void View::setInterpolationMethod(int channel, InterpolationMethod_t method)
{
    if (!isChannel(channel))
        return;
    m_channels[channel].interpolationMethod = method;
    refreshPixmap();
}

void View::addPoint(int channel, double x, double y)
{
    if (channel < 0 || channel >= m_numChannels || !std::isfinite(x))
        return;
    Channel& c = m_channels[channel];
    const double level = c.triggerPosition;

    if (c.trigger == TriggerOff) {
        if (!c.points.isEmpty() && c.points.constLast().x() > x)
            c.points.clear();
        c.points.append(QPointF(x, y));
        c.lastY = y;
        return;
    }

    bool fired = false;
    if (c.trigger == TriggerRisingEdge)
        fired = c.lastY < level && y >= level;
    else if (c.trigger == TriggerFallingEdge)
        fired = c.lastY >= level && y < level;
    if (fired)
        c.onTrigger();
    // A full channel stops recording until the next trigger clears it.
    if (c.points.size() <= 9999)
        c.points.append(QPointF(x, y));
    c.lastY = y;
}

const Channel& View::channel(int channel) const
{
    return m_channels[isChannel(channel) ? channel : 0];
}

void View::redraw()
{
    refreshPixmap();
}

int View::yValue2pixel(const Channel& channel, double value) const
{
    return RowMapping(channel, m_yCentre, m_plotRect)(value);
}

double View::pixel2yValue(const Channel& channel, int pixel) const
{
    return (pixel - m_yCentre) / channel.yPixelsPerUnit + channel.yOffset;
}

void View::drawGrid(QPainter* painter)
{
    if (!painter)
        return;
    const QPen dark(palette().brush(QPalette::Dark), 1.0, Qt::SolidLine);
    const QPen light(palette().brush(QPalette::Light), 1.0, Qt::SolidLine);
    Q_UNUSED(light)
    painter->setPen(dark);
    const int left = m_plotRect.left();
    const int right = m_plotRect.right();
    const int top = m_plotRect.top();
    const int bottom = m_plotRect.bottom();
    for (int k = 1; k <= 9; ++k) {
        const int x = left + k * (right - left + 1) / 10;
        painter->drawLine(x, top, x, bottom);
    }
    for (int k = 1; k <= 9; ++k) {
        const int y = bottom - k * (bottom - top + 1) / 10;
        painter->drawLine(left, y, right, y);
    }
    painter->drawRect(m_plotRect);
}

void View::drawArrows(QPainter* painter)
{
    if (!painter || !isChannel(m_currentChannel))
        return;
    Channel& c = m_channels[m_currentChannel];
    painter->setBrush(QBrush(c.color, Qt::SolidPattern));

    const int y0 = yValue2pixel(c, 0.0);
    painter->translate(m_plotRect.left(), y0);
    painter->drawPolygon(m_offsetArrowShape);
    painter->resetTransform();
    c.offsetArrow = m_offsetArrowShape.translated(m_plotRect.left(), y0);

    if (c.trigger != TriggerOff) {
        const int yT = yValue2pixel(c, c.triggerPosition);
        painter->translate(m_plotRect.right(), yT);
        painter->drawPolygon(m_triggerArrowShape);
        painter->resetTransform();
        c.triggerArrow = m_triggerArrowShape.translated(m_plotRect.right(), yT);
    }
    painter->setBrush(QBrush(Qt::black, Qt::SolidPattern));
}

void View::drawCurves(QPainter* painter)
{
    if (!painter)
        return;
    const double plotWidth = m_plotRect.width();
    // The mapping keeps rows inside the plot and the sweeps stop at its edges, but a free-running
    // curve one screen wide starts a pixel left of it: the clip keeps the margins clean.
    painter->save();
    painter->setClipRect(m_plotRect);
    for (int i = 0; i < m_numChannels; ++i) {
        Channel& c = m_channels[i];
        if (!c.enabled || c.points.isEmpty())
            continue;
        painter->setPen(QPen(c.color, 1));
        if (c.triggered) {
            drawData(c, painter);
            continue;
        }
        const double lastX = c.points.constLast().x();
        auto fits = [&](const QPointF& first) {
            return (lastX - first.x()) * c.xPixelsPerUnit <= plotWidth;
        };
        if (!((lastX - c.points.constFirst().x()) * c.xPixelsPerUnit > plotWidth)) {
            drawData(c, painter);
            continue;
        }
        int keep = 0;
        while (keep < c.points.size() && !fits(c.points.at(keep)))
            ++keep;
        c.points.erase(c.points.begin(), c.points.begin() + keep);
        drawDataReverse(c, painter);
    }
    painter->restore();
}

void View::drawData(const Channel& channel, QPainter* painter)
{
    const QVector<QPointF>& points = channel.points;
    if (!painter || points.isEmpty())
        return;
    const double left = m_plotRect.left();
    const double right = m_plotRect.right();
    const double x0 = points.constFirst().x();
    const double perUnit = channel.xPixelsPerUnit;
    const RowMapping row(channel, m_yCentre, m_plotRect);

    // The samples from the left edge, then down or up to the zero row and along it to the right
    // edge, unless a sample beyond the right edge ended the sweep. Time that ran back before the
    // sweep's start (the application restarted its clock) ends it as well, and so does a time
    // base that maps to NaN.
    m_mapped.resize(points.size() + 2);
    QPointF* mapped = m_mapped.data();
    int count = 0;
    for (const QPointF& p : points) {
        const double px = (p.x() - x0) * perUnit + left;
        if (!(px <= right && px >= left))
            break;
        mapped[count++] = QPointF(px, row(p.y()));
    }
    if (count == points.size()) {
        const double zero = row(0.0);
        mapped[count] = QPointF(mapped[count - 1].x(), zero);
        mapped[count + 1] = QPointF(right, zero);
        count += 2;
    }
    drawMapped(channel, painter, count);
}

void View::drawDataReverse(const Channel& channel, QPainter* painter)
{
    const QVector<QPointF>& points = channel.points;
    if (!painter || points.isEmpty())
        return;
    const double left = m_plotRect.left();
    const double right = m_plotRect.right();
    const double xLast = points.constLast().x();
    const double perUnit = channel.xPixelsPerUnit;
    const RowMapping row(channel, m_yCentre, m_plotRect);

    // The samples from the right edge backwards, then to the zero row and along it to the left.
    // drawCurves() trimmed them to the width, give or take a pixel; a time base that maps to NaN
    // draws nothing.
    m_mapped.resize(points.size() + 2);
    QPointF* mapped = m_mapped.data();
    int count = 0;
    for (int i = points.size() - 1; i >= 0; --i) {
        const QPointF& p = points.at(i);
        const double px = right - (xLast - p.x()) * perUnit;
        if (!(px >= left - 1.0 && px <= right))
            break;
        mapped[count++] = QPointF(px, row(p.y()));
    }
    if (count == 0)
        return;
    const double zero = row(0.0);
    mapped[count] = QPointF(mapped[count - 1].x(), zero);
    mapped[count + 1] = QPointF(left, zero);
    drawMapped(channel, painter, count + 2);
}

void View::drawMapped(const Channel& channel, QPainter* painter, int count)
{
    const Trace used = trace(m_mapped.constData(), count, channel.color.alpha() == 255,
                             m_curveLines, m_curveColumns);
    drawCurve(painter, m_curveLines, m_curveColumns, used);
}

void View::refreshPixmap()
{
    const int w = width();
    const int h = height();
    m_plotRect = QRect(QPoint(27, 2), QPoint(w - 12, h - 13));
    const double plotWidth = m_plotRect.right() - m_plotRect.left() + 1;
    const double plotHeight = m_plotRect.bottom() - m_plotRect.top() + 1;
    for (Channel& c : m_channels) {
        c.xPixelsPerUnit = plotWidth * (1.0 / (c.xScale * 10.0));
        c.yPixelsPerUnit = plotHeight * (1.0 / (c.yScale * 10.0));
    }
    m_labelHeight = 18;
    m_yCentre = (m_plotRect.top() + m_plotRect.bottom()) / 2;

    // Kept while the size stays: a new one each time costs the page faults of a fresh buffer.
    if (m_pixmap.size() != QSize(w, h))
        m_pixmap = QPixmap(w, h);
    // An empty widget has nothing to paint on.
    if (m_pixmap.isNull()) {
        update();
        return;
    }
    m_pixmap.fill(palette().color(backgroundRole()));
    QPainter painter(&m_pixmap);
    drawGrid(&painter);
    drawArrows(&painter);
    drawCurves(&painter);
    painter.end();
    update();
}

void View::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.drawPixmap(0, 0, m_pixmap);
}

void View::mousePressEvent(QMouseEvent* event)
{
    if (isChannel(m_currentChannel)) {
        const Channel& c = m_channels[m_currentChannel];
        m_lastMousePos = event->localPos();
        if (c.offsetArrow.containsPoint(m_lastMousePos, Qt::OddEvenFill))
            m_dragMode = 1;
        else if (c.triggerArrow.containsPoint(m_lastMousePos, Qt::OddEvenFill))
            m_dragMode = 2;
        else
            m_dragMode = 0;
    }
    if (event->button() != Qt::RightButton)
        return;

    QMenu menu(this);
    auto* mapper = new QSignalMapper(&menu);
    auto adopt = [&](ChannelMenu* submenu) {
        // QMenu::addMenu() does not take ownership; the context menu is to destroy everything.
        submenu->setParent(&menu, submenu->windowFlags());
        connect(submenu, SIGNAL(triggerChanged(int, int)), this, SIGNAL(triggerChanged(int, int)));
        connect(submenu, SIGNAL(channelEnabled(int, bool)), this,
                SIGNAL(channelEnabled(int, bool)));
        connect(submenu, SIGNAL(xscaleChanged(int, qreal)), this,
                SIGNAL(xscaleChanged(int, qreal)));
        connect(submenu, SIGNAL(yscaleChanged(int, qreal)), this,
                SIGNAL(yscaleChanged(int, qreal)));
        connect(submenu, SIGNAL(colorChanged(int, quint32)), this,
                SIGNAL(colorChanged(int, quint32)));
        menu.addMenu(submenu);
    };
    adopt(new ChannelMenu(-1, this));
    for (int i = 0; i < m_numChannels; ++i) {
        const Channel& c = m_channels[i];
        if (c.enabled) {
            adopt(new ChannelMenu(i, this));
        } else {
            QAction* action = menu.addAction(QIcon(c.icon), tr("Enable %1").arg(c.name));
            connect(action, SIGNAL(triggered()), mapper, SLOT(map()));
            mapper->setMapping(action, i);
        }
    }
    menu.addAction(tr("Copy as Image"), this, SLOT(on_copy_image()));
    menu.addAction(tr("Copy as Data"), this, SLOT(on_copy_data()));
    connect(mapper, SIGNAL(mapped(int)), this, SLOT(on_enable_channel(int)));
    menu.exec(event->globalPos());
}

void View::mouseMoveEvent(QMouseEvent* event)
{
    if (!isChannel(m_currentChannel) || m_dragMode == 0)
        return;
    const double y = std::round(event->localPos().y());
    if (y <= m_plotRect.top() + 8 || y >= m_plotRect.bottom() - 8)
        return;
    const double dy = m_lastMousePos.y() - y;
    m_lastMousePos = QPointF(std::round(event->localPos().x()), y);
    const Channel& c = m_channels[m_currentChannel];
    const double delta = dy / c.yPixelsPerUnit;
    if (m_dragMode == 1) {
        const double offset = c.yOffset + delta;
        setYOffset(m_currentChannel, offset);
        Q_EMIT yOffsetChanged(m_currentChannel, offset);
    } else if (m_dragMode == 2) {
        const double level = c.triggerPosition + delta;
        setTriggerPosition(m_currentChannel, level);
        Q_EMIT triggerPositionChanged(m_currentChannel, level);
    }
}

void View::mouseReleaseEvent(QMouseEvent* /*event*/)
{
    m_dragMode = 0;
}

void View::resizeEvent(QResizeEvent* /*event*/)
{
    refreshPixmap();
}

void View::on_enable_channel(int channel)
{
    setChannelEnabled(channel, true);
    Q_EMIT channelEnabled(channel, true);
}

void View::on_channelButtonGroup_buttonClicked(int id)
{
    m_currentChannel = id;
    refreshPixmap();
}

void View::on_copy_image()
{
    int count = 0;
    for (int i = 0; i < m_numChannels; ++i)
        count += m_channels[i].enabled ? 1 : 0;
    if (count == 0 || m_pixmap.isNull())
        return;

    const QColor background = palette().color(backgroundRole());
    QPixmap legend(200, 14 * count);
    legend.fill(background);
    QPainter painter(&legend);
    painter.setPen(QPen(Qt::black));
    painter.setFont(QFont(QStringLiteral("Arial"), 8));
    int rank = 0;
    for (int i = 0; i < m_numChannels; ++i) {
        const Channel& c = m_channels[i];
        if (!c.enabled)
            continue;
        painter.drawPixmap(2, 14 * rank + 2, c.icon);
        painter.drawText(QRect(QPoint(20, 14 * rank), QPoint(199, 14 * rank + 11)),
                         Qt::AlignTop | Qt::AlignLeft,
                         tr("Ch%1  %2/XDiv  %3/YDiv")
                             .arg(QString::number(i + 1), number(c.xScale), number(c.yScale)));
        ++rank;
    }
    painter.end();

    QPixmap result(m_pixmap.width(), m_pixmap.height() + legend.height());
    result.fill(background);
    painter.begin(&result);
    painter.drawPixmap(0, 0, m_pixmap);
    painter.drawPixmap(0, m_pixmap.height(), legend);
    painter.end();
    QApplication::clipboard()->setPixmap(result, QClipboard::Clipboard);
}

void View::on_copy_data()
{
    const QLocale locale;
    // Kept deliberately: the export switches the application to the system's number format.
    QLocale::setDefault(QLocale::system());

    QVector<const Channel*> shown;
    for (int i = 0; i < m_numChannels; ++i) {
        if (m_channels[i].enabled)
            shown.append(&m_channels[i]);
    }
    // Without a channel no row could ever end the table.
    if (shown.isEmpty())
        return;

    QString text;
    for (const Channel* c : qAsConst(shown)) {
        if (c->points.isEmpty())
            return;
        text += m_xAxisTitle + QLatin1Char('\t') + c->name + QLatin1Char('\t');
    }
    text += QLatin1Char('\n');

    for (int row = 0;; ++row) {
        bool last = false;
        for (const Channel* c : qAsConst(shown)) {
            if (row >= c->points.size()) {
                last = true;
                continue;
            }
            // The first x in single precision, as the exported times have always been relative
            // to it.
            const double x0 = double(float(c->points.constFirst().x()));
            const QPointF& p = c->points.at(row);
            text += locale.toString(p.x() - x0, 'f', 12) + QLatin1Char('\t')
                    + locale.toString(p.y(), 'f', 12) + QLatin1Char('\t');
        }
        text += QLatin1Char('\n');
        if (last)
            break;
    }
    QApplication::clipboard()->setText(text, QClipboard::Clipboard);
}

void View::updateToolTip(int channel)
{
    const Channel& c = m_channels[channel];
    m_channelButtons.at(channel)->setToolTip(QStringLiteral("%1 %2/XDiv  %3/YDiv")
                                                 .arg(c.name, number(c.xScale), number(c.yScale)));
}

} // namespace kes::qt::scope
