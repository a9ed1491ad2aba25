#include <kes/qt/discreteapproximator/schematic/coordsystem.h>

#include <kes/qt/discreteapproximator/schematic/model.h>

#include <QBrush>
#include <QFont>
#include <QGraphicsLineItem>
#include <QGraphicsPolygonItem>
#include <QGraphicsRectItem>
#include <QGraphicsSimpleTextItem>
#include <QGuiApplication>
#include <QPalette>
#include <QPen>
#include <QPolygonF>

#include <algorithm>
#include <array>

namespace kes::qt::discreteapproximator::schematic {

namespace {

const QColor axisColour(0x50, 0x50, 0x50);
const QColor rangeColour(0x60, 0x60, 0x60);
const QColor axisTextColour(0x20, 0x20, 0x20);

constexpr double arrowLength = 8.0;
constexpr double arrowHalfWidth = 4.0;
constexpr double tickLength = 3.0;
// Between a label and the axis, tick or arrow it belongs to.
constexpr double gap = 4.0;
// Labels never start left of or above this, so that none is cut by the scene's border.
constexpr double border = 1.0;

QFont scaledFont(qreal factor)
{
    QFont font;
    if (font.pointSizeF() > 0.0)
        font.setPointSizeF(font.pointSizeF() * factor);
    else
        font.setPixelSize(std::max(1, qRound(font.pixelSize() * factor)));
    return font;
}

QPolygonF arrowHead(const QPointF& tip, const QPointF& direction)
{
    const QPointF back = tip - direction * arrowLength;
    const QPointF side(-direction.y() * arrowHalfWidth, direction.x() * arrowHalfWidth);
    return QPolygonF(QVector<QPointF>{tip, back + side, back - side});
}

// Puts the text's top left corner at (x, y), kept inside the scene's top and left border.
void placeText(QGraphicsSimpleTextItem* text, double x, double y)
{
    text->setPos(std::max(border, x), std::max(border, y));
}

} // namespace

// The parts are child items, deleted with the coordinate system.
struct CoordsystemPrivate
{
    Model* scene = nullptr;
    std::array<QGraphicsRectItem*, 4> plates{};
    QGraphicsLineItem* xAxis = nullptr;
    QGraphicsLineItem* yAxis = nullptr;
    QGraphicsLineItem* xTick = nullptr;
    QGraphicsLineItem* yTick = nullptr;
    QGraphicsPolygonItem* xArrow = nullptr;
    QGraphicsPolygonItem* yArrow = nullptr;
    QGraphicsSimpleTextItem* xText = nullptr;
    QGraphicsSimpleTextItem* yText = nullptr;
    std::array<QGraphicsSimpleTextItem*, 4> rangeLabels{};
    QRectF boundingRect;
    QRectF sceneRect;
    std::array<double, 4> range{};
};

Coordsystem::Coordsystem(Model* scene, QGraphicsItem* parent)
    : QGraphicsItem(parent)
    , d(std::make_unique<CoordsystemPrivate>())
{
    d->scene = scene;
    // Plates first, so that they lie under the labels but over the characteristic's lines.
    const QColor background = QGuiApplication::palette().color(QPalette::Base);
    for (QGraphicsRectItem*& plate : d->plates) {
        plate = new QGraphicsRectItem(this);
        plate->setPen(Qt::NoPen);
        plate->setBrush(background);
    }
    const QPen axisPen(axisColour, 1.0);
    for (QGraphicsLineItem** line : {&d->xAxis, &d->yAxis, &d->xTick, &d->yTick}) {
        *line = new QGraphicsLineItem(this);
        (*line)->setPen(axisPen);
    }
    for (QGraphicsPolygonItem** arrow : {&d->xArrow, &d->yArrow}) {
        *arrow = new QGraphicsPolygonItem(this);
        (*arrow)->setPen(Qt::NoPen);
        (*arrow)->setBrush(axisColour);
    }
    const QFont axisFont = scaledFont(1.0);
    for (QGraphicsSimpleTextItem** text : {&d->xText, &d->yText}) {
        *text = new QGraphicsSimpleTextItem(this);
        (*text)->setFont(axisFont);
        (*text)->setBrush(axisTextColour);
    }
    const QFont rangeFont = scaledFont(0.85);
    for (QGraphicsSimpleTextItem*& label : d->rangeLabels) {
        label = new QGraphicsSimpleTextItem(this);
        label->setFont(rangeFont);
        label->setBrush(rangeColour);
    }
    // Over the lines of the characteristic, under its points.
    setZValue(10.0);
    d->xText->setText(QStringLiteral("x"));
    d->yText->setText(QStringLiteral("y"));
}

Coordsystem::~Coordsystem() = default;

Model* Coordsystem::schematic() const
{
    return d->scene;
}

void Coordsystem::setMinMax(double xMin, double xMax, double yMin, double yMax)
{
    d->range = {xMin, xMax, yMin, yMax};
    for (std::size_t i = 0; i < d->range.size(); ++i)
        d->rangeLabels[i]->setText(QString::number(d->range[i], 'g', 4));
    updateLabelPos();
    updateBoundingRect();
}

void Coordsystem::setSceneRect(const QRectF& rect)
{
    d->sceneRect = rect;
    const double w = rect.width();
    const double h = rect.height();
    const double left = Model::_leftMargin;
    const double xAxisY = h - Model::_bottomMargin;
    const double xEnd = w - Model::_rightMargin + 10.0;
    const double yEnd = Model::_topMargin - 10.0;

    d->xAxis->setLine(left - 5.0, xAxisY, xEnd, xAxisY);
    d->yAxis->setLine(left, xAxisY + 5.0, left, yEnd);
    d->xArrow->setPolygon(arrowHead(QPointF(xEnd, xAxisY), QPointF(1.0, 0.0)));
    d->yArrow->setPolygon(arrowHead(QPointF(left, yEnd), QPointF(0.0, -1.0)));
    d->xTick->setLine(w - Model::_rightMargin, xAxisY, w - Model::_rightMargin,
                     xAxisY + tickLength);
    d->yTick->setLine(left - tickLength, Model::_topMargin, left, Model::_topMargin);

    updateLabelPos();
    updateBoundingRect();
}

void Coordsystem::setXAxisText(const QString& text)
{
    d->xText->setText(text);
    updateLabelPos();
    updateBoundingRect();
}

void Coordsystem::setYAxisText(const QString& text)
{
    d->yText->setText(text);
    updateLabelPos();
    updateBoundingRect();
}

QString Coordsystem::rangeText(RangeLabel label) const
{
    return d->rangeLabels[std::size_t(label)]->text();
}

QString Coordsystem::xAxisText() const
{
    return d->xText->text();
}

QString Coordsystem::yAxisText() const
{
    return d->yText->text();
}

QRectF Coordsystem::boundingRect() const
{
    return d->boundingRect;
}

void Coordsystem::paint(QPainter*, const QStyleOptionGraphicsItem*, QWidget*) {}

void Coordsystem::updateLabelPos()
{
    const double w = d->sceneRect.width();
    const double h = d->sceneRect.height();
    const double left = Model::_leftMargin;
    const double right = w - Model::_rightMargin;
    const double xAxisY = h - Model::_bottomMargin;

    auto size = [](const QGraphicsSimpleTextItem* text) { return text->boundingRect().size(); };

    // The x range under its two ends, centred; the maximum yields when both would touch.
    QGraphicsSimpleTextItem* xMin = d->rangeLabels[XMinimum];
    QGraphicsSimpleTextItem* xMax = d->rangeLabels[XMaximum];
    placeText(xMin, left - size(xMin).width() / 2.0, xAxisY + gap);
    const double xMinEnd = xMin->pos().x() + size(xMin).width();
    placeText(xMax, std::max(right - size(xMax).width() / 2.0, xMinEnd + gap), xAxisY + gap);

    // The y range left of its two ends. The minimum sits a little higher than centred, so that
    // it keeps clear of the x minimum below the axes' crossing.
    QGraphicsSimpleTextItem* yMin = d->rangeLabels[YMinimum];
    QGraphicsSimpleTextItem* yMax = d->rangeLabels[YMaximum];
    const double yLabelsEnd = left - gap - 1.0;
    placeText(yMin, yLabelsEnd - size(yMin).width(), xAxisY + gap / 2.0 - size(yMin).height());
    placeText(yMax, yLabelsEnd - size(yMax).width(), Model::_topMargin - size(yMax).height() / 2.0);

    // The axis texts beside the arrow heads: x above the end of its axis, right-aligned to the
    // scene, y centred above the tip of its axis.
    placeText(d->xText, w - border - 1.0 - size(d->xText).width(),
              xAxisY - arrowHalfWidth - gap / 2.0 - size(d->xText).height());
    placeText(d->yText, left - size(d->yText).width() / 2.0,
              Model::_topMargin - 10.0 - gap / 2.0 - size(d->yText).height());

    for (std::size_t i = 0; i < d->plates.size(); ++i) {
        const QGraphicsSimpleTextItem* label = d->rangeLabels[i];
        d->plates[i]->setRect(label->mapRectToParent(label->boundingRect()).adjusted(-1, 0, 1, 0));
        d->plates[i]->setVisible(!label->text().isEmpty());
    }
}

void Coordsystem::updateBoundingRect()
{
    prepareGeometryChange();
    d->boundingRect = childrenBoundingRect();
}

} // namespace kes::qt::discreteapproximator::schematic
