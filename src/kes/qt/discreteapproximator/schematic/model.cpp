#include <kes/qt/discreteapproximator/schematic/model.h>

#include <kes/qt/discreteapproximator/model.h>
#include <kes/qt/discreteapproximator/schematic/coordsystem.h>
#include <kes/qt/discreteapproximator/schematic/cross.h>
#include <kes/qt/discreteapproximator/schematic/line.h>
#include <kes/qt/discreteapproximator/schematic/point.h>

#include <algorithm>
#include <cmath>

namespace kes::qt::discreteapproximator::schematic {

using kes::core::PointF;

namespace {

// Not-a-number (an empty plotting area over a zero range) and infinity both mean "no limit".
double capped(double scale)
{
    return std::isnan(scale) || scale > Model::maximumScale ? Model::maximumScale : scale;
}

} // namespace

bool Model::Mapping::operator==(const Mapping& other) const
{
    return xScale == other.xScale && yScale == other.yScale && xMin == other.xMin
        && yMin == other.yMin && viewWidth == other.viewWidth && viewHeight == other.viewHeight;
}

Model::Model(discreteapproximator::Model* dataModel, QObject* parent)
    : QGraphicsScene(parent)
    , m_dataModel(dataModel)
    , m_coordsystem(new Coordsystem(this))
    , m_cross(new Cross)
{
    m_cross->hide();
    addItem(m_cross);
    addItem(m_coordsystem);
    on_modelReset();
    connect(dataModel, SIGNAL(modelReset()), this, SLOT(on_modelReset()));
    connect(dataModel, SIGNAL(dataChanged( const QModelIndex &, const QModelIndex & )), this,
            SLOT(on_dataChanged( const QModelIndex &, const QModelIndex & )));
    connect(dataModel, SIGNAL(rowsRemoved ( const QModelIndex &, int, int )), this,
            SLOT(on_rowsRemoved ( const QModelIndex &, int, int )));
    connect(dataModel, SIGNAL(rowsInserted ( const QModelIndex &, int, int )), this,
            SLOT(on_rowsInserted ( const QModelIndex &, int, int )));
    connect(dataModel, SIGNAL(selectedPointChanged( const QModelIndex& )), this,
            SLOT(on_selectedPointChanged( const QModelIndex& )));
}

Model::~Model()
{
    qDeleteAll(m_retired);
}

QPointF Model::toSceneCoords(const PointF& p) const
{
    return QPointF((p.x - m_xMin) * m_xScale + _leftMargin,
                   (m_viewHeight - _bottomMargin) - (p.y - m_yMin) * m_yScale);
}

PointF Model::toDataCoords(const QPointF& q) const
{
    return PointF{(q.x() - _leftMargin) / m_xScale + m_xMin,
                  (q.y() - m_viewHeight + _bottomMargin) / (-m_yScale) + m_yMin};
}

void Model::setViewSize(const QSize& s)
{
    m_viewWidth = s.width();
    m_viewHeight = s.height();
    updateScale();
}

void Model::updateScale()
{
    // A widget smaller than the margins, or one not sized yet, has no plotting area at all.
    const double plotWidth = std::max(0.0, m_viewWidth - _leftMargin - _rightMargin);
    const double plotHeight = std::max(0.0, m_viewHeight - _bottomMargin - _topMargin);
    const Mapping mapping{capped(plotWidth / (m_xMax - m_xMin)),
                          capped(plotHeight / (m_yMax - m_yMin)),
                          m_xMin,
                          m_yMin,
                          m_viewWidth,
                          m_viewHeight};
    // Compared as a whole: a range shifted without changing its width moves every item too.
    if (m_mapped && mapping == m_mapping)
        return;
    m_mapping = mapping;
    m_mapped = true;
    m_xScale = mapping.xScale;
    m_yScale = mapping.yScale;
    updatePoints();
    if (m_viewWidth >= 0.0 && m_viewHeight >= 0.0) {
        const QRectF rect(0.0, 0.0, m_viewWidth, m_viewHeight);
        setSceneRect(rect);
        m_coordsystem->setSceneRect(rect);
    }
}

void Model::calcMinMaxCoords()
{
    const auto& data = m_dataModel->points();
    if (m_moving || data.empty())
        return;
    m_xMin = m_xMax = data[0].x;
    m_yMin = m_yMax = data[0].y;
    for (const PointF& p : data) {
        m_xMin = std::min(m_xMin, p.x);
        m_xMax = std::max(m_xMax, p.x);
        m_yMin = std::min(m_yMin, p.y);
        m_yMax = std::max(m_yMax, p.y);
    }
    m_coordsystem->setMinMax(m_xMin, m_xMax, m_yMin, m_yMax);
    updateScale();
}

void Model::updatePoints()
{
    for (int row = 0; row < m_points.size(); ++row)
        movePoint_i(row);
    m_cross->setPos(toSceneCoords(m_cross->crossPoint()));
}

void Model::updatePointRow()
{
    for (int row = 0; row < m_points.size(); ++row)
        m_points.at(row)->setRow(row);
}

void Model::movePoint_i(int row)
{
    const auto& data = m_dataModel->points();
    if (row < 0 || row >= m_points.size() || std::size_t(row) >= data.size())
        return;
    m_points.at(row)->setPos(toSceneCoords(data[std::size_t(row)]));
    // Only the two lines that end at this point depend on its position.
    layLine(row);
    layLine(row + 1);
}

void Model::layLine(int line)
{
    const int n = m_points.size();
    if (line < 0 || line >= m_lines.size() || n == 0)
        return;
    QPointF from;
    QPointF to;
    if (line == 0) {
        from = m_points.first()->pos();
        to = QPointF(from.x() - m_viewWidth, from.y());
    } else if (line == n) {
        from = m_points.last()->pos();
        to = QPointF(from.x() + m_viewWidth, from.y());
    } else {
        from = m_points.at(line - 1)->pos();
        to = m_points.at(line)->pos();
    }
    m_lines.at(line)->setLine(QLineF(from, to));
}

void Model::movePoint(int row)
{
    movePoint_i(row);
    calcMinMaxCoords();
}

void Model::movePoint(Point* item, const QPointF& scenePos)
{
    m_moving = true;
    m_dataModel->movePoint(m_points.indexOf(item), toDataCoords(scenePos));
}

void Model::movementFinished()
{
    m_moving = false;
    calcMinMaxCoords();
}

void Model::setSelectedPoint(Point* item)
{
    m_dataModel->setSelectedPoint(m_points.indexOf(item), 0);
}

void Model::insertPoint(const QPointF& scenePos)
{
    m_dataModel->insertPoint(toDataCoords(scenePos));
}

void Model::insertPoint(int row)
{
    if (row < 0 || row > m_points.size())
        return;
    addItems(row);
    updatePointRow();
    movePoint_i(row);
    calcMinMaxCoords();
}

void Model::addItems(int row)
{
    auto* point = new Point(this);
    addItem(point);
    m_points.insert(row, point);
    // n + 1 lines for n points: the first point brings both runs beyond the ends.
    do {
        auto* line = new Line(this);
        addItem(line);
        m_lines.insert(std::min(row, m_lines.size()), line);
    } while (m_lines.size() < m_points.size() + 1);
}

void Model::removePoint(int row)
{
    if (row < 0 || row >= m_points.size())
        return;
    retire(m_points.takeAt(row));
    delete m_lines.takeAt(row);
    // Without points there is nothing for the remaining run to start from.
    if (m_points.isEmpty()) {
        qDeleteAll(m_lines);
        m_lines.clear();
    }
    updatePointRow();
    movePoint_i(row < m_points.size() ? row : row - 1);
    calcMinMaxCoords();
}

void Model::setPoint(const PointF& p)
{
    m_cross->setCrossPoint(p);
    m_cross->setPos(toSceneCoords(p));
}

void Model::setShowPointEnabled(bool enabled)
{
    m_cross->setVisible(enabled);
}

void Model::setXAxisText(const QString& text)
{
    m_coordsystem->setXAxisText(text);
}

void Model::setYAxisText(const QString& text)
{
    m_coordsystem->setYAxisText(text);
}

void Model::clearItems()
{
    for (Point* point : qAsConst(m_points))
        retire(point);
    m_points.clear();
    qDeleteAll(m_lines);
    m_lines.clear();
}

// An application may answer dataChanged() by replacing or removing points while one of them is
// still inside its own mouse handler; that point must outlive the handler.
void Model::retire(Point* point)
{
    // Its release will not come: the drag is over.
    if (mouseGrabberItem() == point)
        m_moving = false;
    removeItem(point);
    m_retired.append(point);
    if (m_retired.size() == 1)
        QMetaObject::invokeMethod(this, "deleteRetired", Qt::QueuedConnection);
}

void Model::deleteRetired()
{
    qDeleteAll(m_retired);
    m_retired.clear();
}

void Model::on_modelReset()
{
    clearItems();
    // One pass for the whole list, not a range and scale update per row.
    const int rows = m_dataModel->rowCount();
    for (int row = 0; row < rows; ++row)
        addItems(row);
    updatePointRow();
    m_mapped = false;
    calcMinMaxCoords();
    // During a drag the range is kept, but the new items still need their places.
    if (!m_mapped)
        updatePoints();
    on_selectedPointChanged(m_dataModel->index(m_dataModel->selectedRow(), 0));
}

void Model::on_dataChanged(const QModelIndex& topLeft, const QModelIndex&)
{
    if (topLeft.row() < 0)
        return;
    movePoint_i(topLeft.row());
    calcMinMaxCoords();
}

void Model::on_rowsRemoved(const QModelIndex&, int start, int end)
{
    for (int row = end; row >= start; --row)
        removePoint(row);
}

void Model::on_rowsInserted(const QModelIndex&, int start, int end)
{
    for (int row = start; row <= end; ++row)
        insertPoint(row);
}

void Model::on_selectedPointChanged(const QModelIndex& index)
{
    const int selected = index.isValid() ? index.row() : -1;
    for (Point* point : qAsConst(m_points))
        point->setSelected(point->row() == selected);
}

} // namespace kes::qt::discreteapproximator::schematic
