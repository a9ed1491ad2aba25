#include <kes/qt/scope/view.h>

#include <kes/qt/scope/channelmenu.h>

#include "clipboardexport_p.h"
#include "curverasteriser_p.h"
#include "triggerlinks_p.h"

#include <QAction>
#include <QApplication>
#include <QBrush>
#include <QButtonGroup>
#include <QClipboard>
#include <QFont>
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

// The plot's margins. The left one holds the column of channel buttons and the zero-line
// marker, whose tip touches the frame; the right one the trigger marker.
constexpr int leftMargin = 27;
constexpr int topMargin = 2;
constexpr int rightMargin = 12;   // from the widget's width to the plot's last column
constexpr int bottomMargin = 13;  // from the widget's height to the plot's last row
// Reserved for x-axis labels below the plot; set by every refresh, read by nothing.
constexpr int labelHeight = 18;
constexpr int channelButtonSize = 20;
constexpr int channelButtonTop = 2;
constexpr int channelIconSize = 12;
// The markers cannot be dragged into bands this high at the top and bottom of the plot, where
// they would leave it.
constexpr int markerDragBand = 8;
// A channel with a trigger records up to 10,000 samples, then waits for its next trigger.
constexpr int triggeredSampleLimit = 9999;
constexpr QSize smallestSize(320, 240);

bool isChannel(int channel)
{
    return channel >= 0 && channel < View::maxChannels;
}

} // namespace

class ViewPrivate
{
public:
    // What a press on the plot started dragging. Every left or right press sets it anew, so the
    // initial value has no visible effect.
    enum class DragMode { None, ZeroLine, TriggerLevel };

    explicit ViewPrivate(View* q);

    void updateToolTip(int channel);
    // Draws the first \a count points of mapped, in pixels, in the channel's colour.
    void drawMapped(const Channel& channel, QPainter* painter, int count);

    View* const q;
    TriggerLinks::Channels channels;
    int numChannels = 4;
    const QPolygonF offsetArrowShape{QVector<QPointF>{{0, 0}, {-9, -4}, {-9, 4}}};
    const QPolygonF triggerArrowShape{QVector<QPointF>{{0, 0}, {9, -4}, {9, 4}}};
    // The picture is painted into an image, whose pixels the curves are written to directly;
    // the pixmap is made from it only when asked for.
    QImage image;
    QPixmap pixmap;
    QRect plotRect;
    int labelHeight = 0;
    int yCentre = 0;
    QString xAxisTitle = QStringLiteral("Time [s]");
    int currentChannel = 0;
    DragMode dragMode = DragMode::ZeroLine;
    QPointF lastMousePos;
    const QVector<QColor> defaultColors{Qt::red,      Qt::green,       Qt::blue,       Qt::cyan,
                                        Qt::magenta,  Qt::yellow,      Qt::darkRed,    Qt::darkGreen,
                                        Qt::darkBlue, Qt::darkCyan,    Qt::darkMagenta, Qt::darkYellow,
                                        Qt::white,    Qt::black,       Qt::red,        Qt::green};
    QVector<QString> defaultNames;
    QVector<QPushButton*> channelButtons;
    QButtonGroup* channelButtonGroup = nullptr;
    // Reused by every curve, so that a refresh allocates nothing once the sizes settle.
    QVector<QPointF> mapped;
};

ViewPrivate::ViewPrivate(View* q)
    : q(q)
{
    for (int i = 0; i < View::maxChannels; ++i)
        defaultNames.append(QStringLiteral("Channel %1").arg(i + 1));
}

void ViewPrivate::drawMapped(const Channel& channel, QPainter* painter, int count)
{
    // The mapping keeps rows inside the plot and the sweeps stop at its edges, but a free-running
    // curve one screen wide starts a pixel left of it: the clip keeps the margins clean.
    CurveRasteriser(painter, plotRect).draw(mapped.constData(), count, channel.color);
}

View::View(QWidget* parent)
    : QWidget(parent)
    , d(std::make_unique<ViewPrivate>(this))
{
    setMinimumSize(smallestSize);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);

    d->channelButtonGroup = new QButtonGroup(this);
    d->channelButtonGroup->setObjectName(QStringLiteral("channelButtonGroup"));
    for (int i = 0; i < maxChannels; ++i) {
        auto* button = new QPushButton(this);
        button->setObjectName(QStringLiteral("channelButton%1").arg(i));
        button->setFixedSize(channelButtonSize, channelButtonSize);
        button->setCheckable(true);
        button->setFlat(true);
        d->channelButtonGroup->addButton(button, i);
        button->move(0, channelButtonSize * i + channelButtonTop);
        if (i >= d->numChannels)
            button->hide();
        d->channelButtons.append(button);
        setColor(i, d->defaultColors.at(i));
        setChannelName(i, d->defaultNames.at(i));
        d->updateToolTip(i);
    }
    connect(d->channelButtonGroup, SIGNAL(buttonClicked(int)), this,
            SLOT(on_channelButtonGroup_buttonClicked(int)));

    d->channelButtons.at(0)->setChecked(true);
    refreshPixmap();
}

View::~View() = default;

void View::setNumChannels(int n)
{
    d->numChannels = n < 0 ? 0 : std::min(n, int(maxChannels));
    for (int i = 0; i < maxChannels; ++i) {
        d->channelButtons.at(i)->show();
        if (i >= d->numChannels) {
            d->channelButtons.at(i)->hide();
            d->channels[i].points.clear();
        }
    }
    if (n > d->currentChannel)
        refreshPixmap();
    else
        setCurrentChannel(-1);
}

int View::numChannels() const
{
    return d->numChannels;
}

int View::currentChannel() const
{
    return d->currentChannel;
}

void View::setXAxisTitle(const QString& title)
{
    d->xAxisTitle = title;
}

QString View::xAxisTitle() const
{
    return d->xAxisTitle;
}

QRect View::plotRect() const
{
    return d->plotRect;
}

int View::yCentre() const
{
    return d->yCentre;
}

void View::setCurrentChannel(int channel)
{
    d->currentChannel = channel;
    // An exclusive group keeps one button checked; it has to let go to show no channel at all.
    d->channelButtonGroup->setExclusive(false);
    for (QPushButton* button : qAsConst(d->channelButtons))
        button->setChecked(false);
    if (isChannel(channel))
        d->channelButtons.at(channel)->setChecked(true);
    d->channelButtonGroup->setExclusive(true);
    refreshPixmap();
}

void View::setChannelEnabled(int channel, bool enable)
{
    if (!isChannel(channel))
        return;
    d->channels[channel].enabled = enable;
    d->channelButtons.at(channel)->setEnabled(enable);
    if (!enable && channel == d->currentChannel)
        setCurrentChannel(-1);
    refreshPixmap();
}

void View::setChannelName(int channel, const QString& name)
{
    if (isChannel(channel))
        d->channels[channel].name = name;
}

void View::setColor(int channel, const QColor& color)
{
    if (!isChannel(channel))
        return;
    Channel& c = d->channels[channel];
    c.color = color;
    c.icon = QPixmap(channelIconSize, channelIconSize);
    c.icon.fill(color);
    d->channelButtons.at(channel)->setIcon(QIcon(c.icon));
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
    d->channels[channel].xScale = scale;
    refreshPixmap();
    d->updateToolTip(channel);
}

void View::setYScale(int channel, double scale)
{
    if (!isChannel(channel))
        return;
    setYOffset(channel, 0.0);
    d->channels[channel].yScale = scale;
    refreshPixmap();
    d->updateToolTip(channel);
}

void View::setYOffset(int channel, double offset)
{
    if (!isChannel(channel))
        return;
    d->channels[channel].yOffset = offset;
    refreshPixmap();
}

void View::setTrigger(int channel, Trigger_t trigger)
{
    if (TriggerLinks::setTrigger(d->channels, channel, trigger))
        refreshPixmap();
}

void View::setTriggerPosition(int channel, double position)
{
    if (!isChannel(channel))
        return;
    d->channels[channel].triggerPosition = position;
    refreshPixmap();
}

void View::setInterpolationMethod(int channel, InterpolationMethod_t method)
{
    if (!isChannel(channel))
        return;
    d->channels[channel].interpolationMethod = method;
    refreshPixmap();
}

void View::addPoint(int channel, double x, double y)
{
    if (channel < 0 || channel >= d->numChannels || !std::isfinite(x))
        return;
    Channel& c = d->channels[channel];
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
    if (c.points.size() <= triggeredSampleLimit)
        c.points.append(QPointF(x, y));
    c.lastY = y;
}

const Channel& View::channel(int channel) const
{
    return d->channels[isChannel(channel) ? channel : 0];
}

void View::redraw()
{
    refreshPixmap();
}

int View::yValue2pixel(const Channel& channel, double value) const
{
    return RowMapping(channel, d->yCentre, d->plotRect)(value);
}

double View::pixel2yValue(const Channel& channel, int pixel) const
{
    return (pixel - d->yCentre) / channel.yPixelsPerUnit + channel.yOffset;
}

void View::drawGrid(QPainter* painter)
{
    if (!painter)
        return;
    // One-pixel lines drawn as rectangles of the same pixels: on CPUs with Qt's slow AVX2 span
    // functions the twenty lines of the grid alone cost a few milliseconds.
    const QBrush dark = palette().brush(QPalette::Dark);
    const int left = d->plotRect.left();
    const int right = d->plotRect.right();
    const int top = d->plotRect.top();
    const int bottom = d->plotRect.bottom();
    const int width = right - left + 1;
    const int height = bottom - top + 1;
    for (int k = 1; k <= 9; ++k)
        painter->fillRect(QRect(left + k * width / 10, top, 1, height), dark);
    for (int k = 1; k <= 9; ++k)
        painter->fillRect(QRect(left, bottom - k * height / 10, width, 1), dark);
    // The frame as a one-pixel pen outlines it: through right + 1 and bottom + 1.
    painter->fillRect(QRect(left, top, width + 1, 1), dark);
    painter->fillRect(QRect(left, bottom + 1, width + 1, 1), dark);
    painter->fillRect(QRect(left, top, 1, height + 1), dark);
    painter->fillRect(QRect(right + 1, top, 1, height + 1), dark);
    // The marker outlines use the grid's pen.
    painter->setPen(QPen(dark, 1.0, Qt::SolidLine));
}

void View::drawArrows(QPainter* painter)
{
    if (!painter || !isChannel(d->currentChannel))
        return;
    Channel& c = d->channels[d->currentChannel];
    painter->setBrush(QBrush(c.color, Qt::SolidPattern));

    const int y0 = yValue2pixel(c, 0.0);
    painter->translate(d->plotRect.left(), y0);
    painter->drawPolygon(d->offsetArrowShape);
    painter->resetTransform();
    c.offsetArrow = d->offsetArrowShape.translated(d->plotRect.left(), y0);

    if (c.trigger != TriggerOff) {
        const int yT = yValue2pixel(c, c.triggerPosition);
        painter->translate(d->plotRect.right(), yT);
        painter->drawPolygon(d->triggerArrowShape);
        painter->resetTransform();
        c.triggerArrow = d->triggerArrowShape.translated(d->plotRect.right(), yT);
    }
    painter->setBrush(QBrush(Qt::black, Qt::SolidPattern));
}

void View::drawCurves(QPainter* painter)
{
    if (!painter)
        return;
    const double plotWidth = d->plotRect.width();
    for (int i = 0; i < d->numChannels; ++i) {
        Channel& c = d->channels[i];
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
}

void View::drawData(const Channel& channel, QPainter* painter)
{
    const QVector<QPointF>& points = channel.points;
    if (!painter || points.isEmpty())
        return;
    const double left = d->plotRect.left();
    const double right = d->plotRect.right();
    const double x0 = points.constFirst().x();
    const double perUnit = channel.xPixelsPerUnit;
    const RowMapping row(channel, d->yCentre, d->plotRect);

    // The samples from the left edge, then down or up to the zero row and along it to the right
    // edge, unless a sample beyond the right edge ended the sweep. Time that ran back before the
    // sweep's start (the application restarted its clock) ends it as well, and so does a time
    // base that maps to NaN.
    d->mapped.resize(points.size() + 2);
    QPointF* mapped = d->mapped.data();
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
    d->drawMapped(channel, painter, count);
}

void View::drawDataReverse(const Channel& channel, QPainter* painter)
{
    const QVector<QPointF>& points = channel.points;
    if (!painter || points.isEmpty())
        return;
    const double left = d->plotRect.left();
    const double right = d->plotRect.right();
    const double xLast = points.constLast().x();
    const double perUnit = channel.xPixelsPerUnit;
    const RowMapping row(channel, d->yCentre, d->plotRect);

    // The samples from the right edge backwards, then to the zero row and along it to the left.
    // drawCurves() trimmed them to the width, give or take a pixel; a time base that maps to NaN
    // draws nothing.
    d->mapped.resize(points.size() + 2);
    QPointF* mapped = d->mapped.data();
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
    d->drawMapped(channel, painter, count + 2);
}

void View::refreshPixmap()
{
    const int w = width();
    const int h = height();
    d->plotRect = QRect(QPoint(leftMargin, topMargin), QPoint(w - rightMargin, h - bottomMargin));
    const double plotWidth = d->plotRect.right() - d->plotRect.left() + 1;
    const double plotHeight = d->plotRect.bottom() - d->plotRect.top() + 1;
    for (Channel& c : d->channels) {
        c.xPixelsPerUnit = plotWidth * (1.0 / (c.xScale * 10.0));
        c.yPixelsPerUnit = plotHeight * (1.0 / (c.yScale * 10.0));
    }
    d->labelHeight = labelHeight;
    d->yCentre = (d->plotRect.top() + d->plotRect.bottom()) / 2;

    d->pixmap = QPixmap();
    // Kept while the size stays: a new one each time costs the page faults of a fresh buffer.
    if (d->image.size() != QSize(w, h))
        d->image = QImage(w, h, QImage::Format_RGB32);
    // An empty widget has nothing to paint on.
    if (d->image.isNull()) {
        update();
        return;
    }
    d->image.fill(palette().color(backgroundRole()));
    QPainter painter(&d->image);
    drawGrid(&painter);
    drawArrows(&painter);
    drawCurves(&painter);
    painter.end();
    update();
}

void View::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.drawImage(0, 0, d->image);
}

const QPixmap& View::pixmap() const
{
    if (d->pixmap.isNull() && !d->image.isNull())
        d->pixmap = QPixmap::fromImage(d->image);
    return d->pixmap;
}

void View::mousePressEvent(QMouseEvent* event)
{
    if (isChannel(d->currentChannel)) {
        const Channel& c = d->channels[d->currentChannel];
        d->lastMousePos = event->localPos();
        if (c.offsetArrow.containsPoint(d->lastMousePos, Qt::OddEvenFill))
            d->dragMode = ViewPrivate::DragMode::ZeroLine;
        else if (c.triggerArrow.containsPoint(d->lastMousePos, Qt::OddEvenFill))
            d->dragMode = ViewPrivate::DragMode::TriggerLevel;
        else
            d->dragMode = ViewPrivate::DragMode::None;
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
    for (int i = 0; i < d->numChannels; ++i) {
        const Channel& c = d->channels[i];
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
    if (!isChannel(d->currentChannel) || d->dragMode == ViewPrivate::DragMode::None)
        return;
    const double y = std::round(event->localPos().y());
    if (y <= d->plotRect.top() + markerDragBand || y >= d->plotRect.bottom() - markerDragBand)
        return;
    const double dy = d->lastMousePos.y() - y;
    d->lastMousePos = QPointF(std::round(event->localPos().x()), y);
    const Channel& c = d->channels[d->currentChannel];
    const double delta = dy / c.yPixelsPerUnit;
    if (d->dragMode == ViewPrivate::DragMode::ZeroLine) {
        const double offset = c.yOffset + delta;
        setYOffset(d->currentChannel, offset);
        Q_EMIT yOffsetChanged(d->currentChannel, offset);
    } else if (d->dragMode == ViewPrivate::DragMode::TriggerLevel) {
        const double level = c.triggerPosition + delta;
        setTriggerPosition(d->currentChannel, level);
        Q_EMIT triggerPositionChanged(d->currentChannel, level);
    }
}

void View::mouseReleaseEvent(QMouseEvent* /*event*/)
{
    d->dragMode = ViewPrivate::DragMode::None;
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
    d->currentChannel = id;
    refreshPixmap();
}

void View::on_copy_image()
{
    if (d->image.isNull())
        return;
    QVector<ClipboardExport::LegendRow> legend;
    for (int i = 0; i < d->numChannels; ++i) {
        const Channel& c = d->channels[i];
        if (c.enabled) {
            legend.append({c.icon, tr("Ch%1  %2/XDiv  %3/YDiv")
                                       .arg(QString::number(i + 1), number(c.xScale),
                                            number(c.yScale))});
        }
    }
    if (legend.isEmpty())
        return;
    QApplication::clipboard()->setPixmap(
        ClipboardExport::imageWithLegend(d->image, legend, palette().color(backgroundRole())),
        QClipboard::Clipboard);
}

void View::on_copy_data()
{
    const QLocale locale;
    // Kept deliberately: the export switches the application to the system's number format.
    QLocale::setDefault(QLocale::system());

    QVector<const Channel*> shown;
    for (int i = 0; i < d->numChannels; ++i) {
        if (d->channels[i].enabled)
            shown.append(&d->channels[i]);
    }
    const QString text = ClipboardExport::dataTable(shown, d->xAxisTitle, locale);
    if (!text.isEmpty())
        QApplication::clipboard()->setText(text, QClipboard::Clipboard);
}

void ViewPrivate::updateToolTip(int channel)
{
    const Channel& c = channels[channel];
    channelButtons.at(channel)->setToolTip(QStringLiteral("%1 %2/XDiv  %3/YDiv")
                                                 .arg(c.name, number(c.xScale), number(c.yScale)));
}

} // namespace kes::qt::scope
