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

Coordsystem::Coordsystem(Model* scene, QGraphicsItem* parent)
    : QGraphicsItem(parent)
    , m_scene(scene)
{
    // Plates first, so that they lie under the labels but over the characteristic's lines.
    const QColor background = QGuiApplication::palette().color(QPalette::Base);
    for (QGraphicsRectItem*& plate : m_plates) {
        plate = new QGraphicsRectItem(this);
        plate->setPen(Qt::NoPen);
        plate->setBrush(background);
    }
    const QPen axisPen(axisColour, 1.0);
    for (QGraphicsLineItem** line : {&m_xAxis, &m_yAxis, &m_xTick, &m_yTick}) {
        *line = new QGraphicsLineItem(this);
        (*line)->setPen(axisPen);
    }
    for (QGraphicsPolygonItem** arrow : {&m_xArrow, &m_yArrow}) {
        *arrow = new QGraphicsPolygonItem(this);
        (*arrow)->setPen(Qt::NoPen);
        (*arrow)->setBrush(axisColour);
    }
    const QFont axisFont = scaledFont(1.0);
    for (QGraphicsSimpleTextItem** text : {&m_xText, &m_yText}) {
        *text = new QGraphicsSimpleTextItem(this);
        (*text)->setFont(axisFont);
        (*text)->setBrush(axisTextColour);
    }
    const QFont rangeFont = scaledFont(0.85);
    for (QGraphicsSimpleTextItem*& label : m_rangeLabels) {
        label = new QGraphicsSimpleTextItem(this);
        label->setFont(rangeFont);
        label->setBrush(rangeColour);
    }
    // Over the lines of the characteristic, under its points.
    setZValue(10.0);
    m_xText->setText(QStringLiteral("x"));
    m_yText->setText(QStringLiteral("y"));
}

Coordsystem::~Coordsystem() = default;

void Coordsystem::setMinMax(double xMin, double xMax, double yMin, double yMax)
{
    m_range = {xMin, xMax, yMin, yMax};
    for (std::size_t i = 0; i < m_range.size(); ++i)
        m_rangeLabels[i]->setText(QString::number(m_range[i], 'g', 4));
    updateLabelPos();
    updateBoundingRect();
}

void Coordsystem::setSceneRect(const QRectF& rect)
{
    m_sceneRect = rect;
    const double w = rect.width();
    const double h = rect.height();
    const double left = Model::_leftMargin;
    const double xAxisY = h - Model::_bottomMargin;
    const double xEnd = w - Model::_rightMargin + 10.0;
    const double yEnd = Model::_topMargin - 10.0;

    m_xAxis->setLine(left - 5.0, xAxisY, xEnd, xAxisY);
    m_yAxis->setLine(left, xAxisY + 5.0, left, yEnd);
    m_xArrow->setPolygon(arrowHead(QPointF(xEnd, xAxisY), QPointF(1.0, 0.0)));
    m_yArrow->setPolygon(arrowHead(QPointF(left, yEnd), QPointF(0.0, -1.0)));
    m_xTick->setLine(w - Model::_rightMargin, xAxisY, w - Model::_rightMargin,
                     xAxisY + tickLength);
    m_yTick->setLine(left - tickLength, Model::_topMargin, left, Model::_topMargin);

    updateLabelPos();
    updateBoundingRect();
}

void Coordsystem::setXAxisText(const QString& text)
{
    m_xText->setText(text);
    updateLabelPos();
    updateBoundingRect();
}

void Coordsystem::setYAxisText(const QString& text)
{
    m_yText->setText(text);
    updateLabelPos();
    updateBoundingRect();
}

QString Coordsystem::rangeText(RangeLabel label) const
{
    return m_rangeLabels[std::size_t(label)]->text();
}

QString Coordsystem::xAxisText() const
{
    return m_xText->text();
}

QString Coordsystem::yAxisText() const
{
    return m_yText->text();
}

QRectF Coordsystem::boundingRect() const
{
    return m_boundingRect;
}

void Coordsystem::paint(QPainter*, const QStyleOptionGraphicsItem*, QWidget*) {}

void Coordsystem::updateLabelPos()
{
    const double w = m_sceneRect.width();
    const double h = m_sceneRect.height();
    const double left = Model::_leftMargin;
    const double right = w - Model::_rightMargin;
    const double xAxisY = h - Model::_bottomMargin;

    auto size = [](const QGraphicsSimpleTextItem* text) { return text->boundingRect().size(); };

    // The x range under its two ends, centred; the maximum yields when both would touch.
    QGraphicsSimpleTextItem* xMin = m_rangeLabels[XMinimum];
    QGraphicsSimpleTextItem* xMax = m_rangeLabels[XMaximum];
    placeText(xMin, left - size(xMin).width() / 2.0, xAxisY + gap);
    const double xMinEnd = xMin->pos().x() + size(xMin).width();
    placeText(xMax, std::max(right - size(xMax).width() / 2.0, xMinEnd + gap), xAxisY + gap);

    // The y range left of its two ends. The minimum sits a little higher than centred, so that
    // it keeps clear of the x minimum below the axes' crossing.
    QGraphicsSimpleTextItem* yMin = m_rangeLabels[YMinimum];
    QGraphicsSimpleTextItem* yMax = m_rangeLabels[YMaximum];
    const double yLabelsEnd = left - gap - 1.0;
    placeText(yMin, yLabelsEnd - size(yMin).width(), xAxisY + gap / 2.0 - size(yMin).height());
    placeText(yMax, yLabelsEnd - size(yMax).width(), Model::_topMargin - size(yMax).height() / 2.0);

    // The axis texts beside the arrow heads: x above the end of its axis, right-aligned to the
    // scene, y centred above the tip of its axis.
    placeText(m_xText, w - border - 1.0 - size(m_xText).width(),
              xAxisY - arrowHalfWidth - gap / 2.0 - size(m_xText).height());
    placeText(m_yText, left - size(m_yText).width() / 2.0,
              Model::_topMargin - 10.0 - gap / 2.0 - size(m_yText).height());

    for (std::size_t i = 0; i < m_plates.size(); ++i) {
        const QGraphicsSimpleTextItem* label = m_rangeLabels[i];
        m_plates[i]->setRect(label->mapRectToParent(label->boundingRect()).adjusted(-1, 0, 1, 0));
        m_plates[i]->setVisible(!label->text().isEmpty());
    }
}

void Coordsystem::updateBoundingRect()
{
    prepareGeometryChange();
    m_boundingRect = childrenBoundingRect();
}

} // namespace kes::qt::discreteapproximator::schematic
