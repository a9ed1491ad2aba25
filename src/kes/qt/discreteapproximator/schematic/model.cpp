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

// What the item positions were computed from; nothing needs re-placing while it holds.
struct Mapping
{
    double xScale = 0.0;
    double yScale = 0.0;
    double xMin = 0.0;
    double yMin = 0.0;
    double viewWidth = -1.0;
    double viewHeight = -1.0;

    bool operator==(const Mapping& other) const
    {
        return xScale == other.xScale && yScale == other.yScale && xMin == other.xMin
            && yMin == other.yMin && viewWidth == other.viewWidth
            && viewHeight == other.viewHeight;
    }
};

} // namespace

struct ModelPrivate
{
    discreteapproximator::Model* dataModel = nullptr;
    QVector<Point*> points;
    QVector<Line*> lines;
    double xMin = 0.0;
    double xMax = 0.0;
    double yMin = 0.0;
    double yMax = 0.0;
    double xScale = 0.0;
    double yScale = 0.0;
    double viewWidth = -1.0;
    double viewHeight = -1.0;
    bool moving = false;
    // Items of the scene, which deletes them.
    Coordsystem* coordsystem = nullptr;
    Cross* cross = nullptr;
    // Out of the scene, deleted once control is back in the event loop.
    QVector<Point*> retired;
    Mapping mapping;
    bool mapped = false;
};

Model::Model(discreteapproximator::Model* dataModel, QObject* parent)
    : QGraphicsScene(parent)
    , d(std::make_unique<ModelPrivate>())
{
    d->dataModel = dataModel;
    d->coordsystem = new Coordsystem(this);
    d->cross = new Cross;
    d->cross->hide();
    addItem(d->cross);
    addItem(d->coordsystem);
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
    qDeleteAll(d->retired);
}

discreteapproximator::Model* Model::dataModel() const
{
    return d->dataModel;
}

const QVector<Point*>& Model::points() const
{
    return d->points;
}

const QVector<Line*>& Model::lines() const
{
    return d->lines;
}

double Model::xMinimum() const
{
    return d->xMin;
}

double Model::xMaximum() const
{
    return d->xMax;
}

double Model::yMinimum() const
{
    return d->yMin;
}

double Model::yMaximum() const
{
    return d->yMax;
}

double Model::xScale() const
{
    return d->xScale;
}

double Model::yScale() const
{
    return d->yScale;
}

double Model::viewWidth() const
{
    return d->viewWidth;
}

double Model::viewHeight() const
{
    return d->viewHeight;
}

bool Model::isMoving() const
{
    return d->moving;
}

Coordsystem* Model::coordsystem() const
{
    return d->coordsystem;
}

Cross* Model::cross() const
{
    return d->cross;
}

QPointF Model::toSceneCoords(const PointF& p) const
{
    return QPointF((p.x - d->xMin) * d->xScale + _leftMargin,
                   (d->viewHeight - _bottomMargin) - (p.y - d->yMin) * d->yScale);
}

PointF Model::toDataCoords(const QPointF& q) const
{
    return PointF{(q.x() - _leftMargin) / d->xScale + d->xMin,
                  (q.y() - d->viewHeight + _bottomMargin) / (-d->yScale) + d->yMin};
}

void Model::setViewSize(const QSize& s)
{
    d->viewWidth = s.width();
    d->viewHeight = s.height();
    updateScale();
}

void Model::updateScale()
{
    // A widget smaller than the margins, or one not sized yet, has no plotting area at all.
    const double plotWidth = std::max(0.0, d->viewWidth - _leftMargin - _rightMargin);
    const double plotHeight = std::max(0.0, d->viewHeight - _bottomMargin - _topMargin);
    const Mapping mapping{capped(plotWidth / (d->xMax - d->xMin)),
                          capped(plotHeight / (d->yMax - d->yMin)),
                          d->xMin,
                          d->yMin,
                          d->viewWidth,
                          d->viewHeight};
    // Compared as a whole: a range shifted without changing its width moves every item too.
    if (d->mapped && mapping == d->mapping)
        return;
    d->mapping = mapping;
    d->mapped = true;
    d->xScale = mapping.xScale;
    d->yScale = mapping.yScale;
    updatePoints();
    if (d->viewWidth >= 0.0 && d->viewHeight >= 0.0) {
        const QRectF rect(0.0, 0.0, d->viewWidth, d->viewHeight);
        setSceneRect(rect);
        d->coordsystem->setSceneRect(rect);
    }
}

void Model::calcMinMaxCoords()
{
    const auto& data = d->dataModel->points();
    if (d->moving || data.empty())
        return;
    d->xMin = d->xMax = data[0].x;
    d->yMin = d->yMax = data[0].y;
    for (const PointF& p : data) {
        d->xMin = std::min(d->xMin, p.x);
        d->xMax = std::max(d->xMax, p.x);
        d->yMin = std::min(d->yMin, p.y);
        d->yMax = std::max(d->yMax, p.y);
    }
    d->coordsystem->setMinMax(d->xMin, d->xMax, d->yMin, d->yMax);
    updateScale();
}

void Model::updatePoints()
{
    for (int row = 0; row < d->points.size(); ++row)
        movePoint_i(row);
    d->cross->setPos(toSceneCoords(d->cross->crossPoint()));
}

void Model::updatePointRow()
{
    for (int row = 0; row < d->points.size(); ++row)
        d->points.at(row)->setRow(row);
}

void Model::movePoint_i(int row)
{
    const auto& data = d->dataModel->points();
    if (row < 0 || row >= d->points.size() || std::size_t(row) >= data.size())
        return;
    d->points.at(row)->setPos(toSceneCoords(data[std::size_t(row)]));
    // Only the two lines that end at this point depend on its position.
    layLine(row);
    layLine(row + 1);
}

void Model::layLine(int line)
{
    const int n = d->points.size();
    if (line < 0 || line >= d->lines.size() || n == 0)
        return;
    QPointF from;
    QPointF to;
    if (line == 0) {
        from = d->points.first()->pos();
        to = QPointF(from.x() - d->viewWidth, from.y());
    } else if (line == n) {
        from = d->points.last()->pos();
        to = QPointF(from.x() + d->viewWidth, from.y());
    } else {
        from = d->points.at(line - 1)->pos();
        to = d->points.at(line)->pos();
    }
    d->lines.at(line)->setLine(QLineF(from, to));
}

void Model::movePoint(int row)
{
    movePoint_i(row);
    calcMinMaxCoords();
}

void Model::movePoint(Point* item, const QPointF& scenePos)
{
    d->moving = true;
    d->dataModel->movePoint(d->points.indexOf(item), toDataCoords(scenePos));
}

void Model::movementFinished()
{
    d->moving = false;
    calcMinMaxCoords();
}

void Model::setSelectedPoint(Point* item)
{
    d->dataModel->setSelectedPoint(d->points.indexOf(item), 0);
}

void Model::insertPoint(const QPointF& scenePos)
{
    d->dataModel->insertPoint(toDataCoords(scenePos));
}

void Model::insertPoint(int row)
{
    if (row < 0 || row > d->points.size())
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
    d->points.insert(row, point);
    // n + 1 lines for n points: the first point brings both runs beyond the ends.
    do {
        auto* line = new Line(this);
        addItem(line);
        d->lines.insert(std::min(row, d->lines.size()), line);
    } while (d->lines.size() < d->points.size() + 1);
}

void Model::removePoint(int row)
{
    if (row < 0 || row >= d->points.size())
        return;
    retire(d->points.takeAt(row));
    delete d->lines.takeAt(row);
    // Without points there is nothing for the remaining run to start from.
    if (d->points.isEmpty()) {
        qDeleteAll(d->lines);
        d->lines.clear();
    }
    updatePointRow();
    movePoint_i(row < d->points.size() ? row : row - 1);
    calcMinMaxCoords();
}

void Model::setPoint(const PointF& p)
{
    d->cross->setCrossPoint(p);
    d->cross->setPos(toSceneCoords(p));
}

void Model::setShowPointEnabled(bool enabled)
{
    d->cross->setVisible(enabled);
}

void Model::setXAxisText(const QString& text)
{
    d->coordsystem->setXAxisText(text);
}

void Model::setYAxisText(const QString& text)
{
    d->coordsystem->setYAxisText(text);
}

void Model::clearItems()
{
    for (Point* point : qAsConst(d->points))
        retire(point);
    d->points.clear();
    qDeleteAll(d->lines);
    d->lines.clear();
}

// An application may answer dataChanged() by replacing or removing points while one of them is
// still inside its own mouse handler; that point must outlive the handler.
void Model::retire(Point* point)
{
    // Its release will not come: the drag is over.
    if (mouseGrabberItem() == point)
        d->moving = false;
    removeItem(point);
    d->retired.append(point);
    if (d->retired.size() == 1)
        QMetaObject::invokeMethod(this, "deleteRetired", Qt::QueuedConnection);
}

void Model::deleteRetired()
{
    qDeleteAll(d->retired);
    d->retired.clear();
}

void Model::on_modelReset()
{
    clearItems();
    // One pass for the whole list, not a range and scale update per row.
    const int rows = d->dataModel->rowCount();
    for (int row = 0; row < rows; ++row)
        addItems(row);
    updatePointRow();
    d->mapped = false;
    calcMinMaxCoords();
    // During a drag the range is kept, but the new items still need their places.
    if (!d->mapped)
        updatePoints();
    on_selectedPointChanged(d->dataModel->index(d->dataModel->selectedRow(), 0));
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
    for (Point* point : qAsConst(d->points))
        point->setSelected(point->row() == selected);
}

} // namespace kes::qt::discreteapproximator::schematic
