#include <kes/qt/discreteapproximator/model.h>

#include <QAction>
#include <QPointer>
#include <QRegularExpression>
#include <QStringList>

#include <cmath>
#include <limits>
#include <utility>

namespace kes::qt::discreteapproximator {

using kes::core::PointF;

namespace {

// A one-point list has no step to repeat.
constexpr double singlePointStep = 25.0;

} // namespace

struct ModelPrivate
{
    Model::Points points;
    int selectedRow = -1;
    double xMin = Model::absoluteMinimum();
    double xMax = Model::absoluteMaximum();
    double yMin = Model::absoluteMinimum();
    double yMax = Model::absoluteMaximum();
    // Guarded: the application may delete its action before the model.
    QPointer<QAction> helpAction;
};

Model::Model(QObject* parent)
    : QAbstractTableModel(parent)
    , d(std::make_unique<ModelPrivate>())
{
    d->points = createDefaultData();
}

Model::~Model() = default;

// The range of a signed 32-bit integer, in which the applications keep their curves.
double Model::absoluteMinimum()
{
    return std::numeric_limits<int>::min();
}

double Model::absoluteMaximum()
{
    return std::numeric_limits<int>::max();
}

int Model::selectedRow() const
{
    return d->selectedRow;
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

QAction* Model::helpAction() const
{
    return d->helpAction;
}

void Model::setHelpAction(QAction* action)
{
    d->helpAction = action;
}

const Model::Points& Model::points() const
{
    return d->points;
}

int Model::rowCount(const QModelIndex&) const
{
    return int(d->points.size());
}

int Model::columnCount(const QModelIndex&) const
{
    return 2;
}

QVariant Model::data(const QModelIndex& index, int role) const
{
    if (index.row() >= rowCount() || index.column() > 1)
        return QVariant();
    if (role == Qt::DisplayRole || role == Qt::EditRole)
        return dataDisplayRole(index);
    return QVariant();
}

QVariant Model::dataDisplayRole(const QModelIndex& index) const
{
    if (!isRow(index.row()))
        return QVariant();
    const PointF& p = d->points[std::size_t(index.row())];
    switch (index.column()) {
    case 0:
        return QString::number(p.x, 'g', 7);
    case 1:
        return QString::number(p.y, 'g', 7);
    default:
        return QVariant();
    }
}

QVariant Model::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole)
        return QVariant();
    if (orientation == Qt::Vertical)
        return QString::number(section);
    switch (section) {
    case 0:
        return QStringLiteral("x");
    case 1:
        return QStringLiteral("y");
    default:
        return QVariant();
    }
}

Qt::ItemFlags Model::flags(const QModelIndex& index) const
{
    return QAbstractTableModel::flags(index) | Qt::ItemIsEditable;
}

bool Model::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (index.row() >= rowCount() || index.column() > 1 || role != Qt::EditRole)
        return false;
    return setDataEditRole(index, value);
}

void Model::setData(const Points& points)
{
    if (points == d->points)
        return;
    const Points replacement = points.empty() ? createDefaultData() : points;
    beginResetModel();
    d->points = replacement;
    // Cleared before the views rebuild, so that none of them shows the old row as selected.
    d->selectedRow = -1;
    endResetModel();
    Q_EMIT modelDataChanged();
}

bool Model::setDataEditRole(const QModelIndex& index, const QVariant& value)
{
    if (!setDataEditRole_i(index, value))
        return false;
    Q_EMIT modelDataChanged();
    return true;
}

bool Model::setDataEditRole_i(const QModelIndex& index, const QVariant& value)
{
    const int row = index.row();
    if (!isRow(row) || index.column() < 0 || index.column() > 1)
        return false;
    const double v = value.toDouble();
    // Not-a-number passes every comparison below and would break the ordering for good.
    if (std::isnan(v))
        return false;
    // Read through a const view: a non-const access would copy a shared list even for a refusal.
    const Points& pts = d->points;
    const std::size_t i = std::size_t(row);
    if (index.column() == 0) {
        if (v < d->xMin || v > d->xMax)
            return false;
        if (row >= 1 && pts[i - 1].x > v)
            return false;
        if (row < rowCount() - 1 && v > pts[i + 1].x)
            return false;
        d->points[i].x = v;
    } else {
        if (v < d->yMin || v > d->yMax)
            return false;
        d->points[i].y = v;
    }
    // Our own index: the caller's may come from another model.
    const QModelIndex cell = this->index(row, index.column());
    Q_EMIT dataChanged(cell, cell);
    return true;
}

bool Model::movePoint(int row, const PointF& p)
{
    if (!movePoint_i(row, p))
        return false;
    Q_EMIT modelDataChanged();
    return true;
}

bool Model::movePoint_i(int row, const PointF& p)
{
    if (!isRow(row) || std::as_const(d->points)[std::size_t(row)] == p)
        return false;
    const bool xTaken = setDataEditRole_i(index(row, 0), p.x);
    const bool yTaken = setDataEditRole_i(index(row, 1), p.y);
    return xTaken || yTaken;
}

void Model::insertPointBefore(int row)
{
    if (insertPointBefore_i(row))
        Q_EMIT modelDataChanged();
}

void Model::insertPointAfter(int row)
{
    // Checked here, as row + 1 would overflow for the largest int.
    if (row < rowCount() && insertPointBefore_i(row + 1))
        Q_EMIT modelDataChanged();
}

bool Model::insertPointBefore_i(int row)
{
    const int n = rowCount();
    if (row < 0 || row > n)
        return false;
    const Points& pts = d->points;
    PointF p;
    if (n == 0) {
        // Nothing to derive from: the origin, for insertPoint() to move where it belongs.
    } else if (row == 0) {
        p = pts[0];
        p.x = n == 1 ? pts[0].x - singlePointStep : pts[0].x - (pts[1].x - pts[0].x);
    } else if (row == n) {
        const std::size_t last = std::size_t(n - 1);
        p = pts[last];
        p.x = n == 1 ? pts[last].x + singlePointStep
                     : pts[last].x + (pts[last].x - pts[last - 1].x);
    } else {
        const std::size_t i = std::size_t(row);
        p = pts[i];
        p.x = pts[i].x - (pts[i].x - pts[i - 1].x) * 0.5;
    }

    // Built aside, so that a failed allocation leaves the list as it was.
    Points grown = d->points;
    grown.insert(std::size_t(row), p);
    beginInsertRows(QModelIndex(), row, row);
    d->points = grown;
    endInsertRows();
    Q_EMIT selectedPointChanged(index(row, 0));
    return true;
}

void Model::insertPoint(const PointF& p)
{
    const int n = rowCount();
    int row = n;
    for (int i = 0; i < n; ++i) {
        if (std::as_const(d->points)[std::size_t(i)].x > p.x) {
            row = i;
            break;
        }
    }
    if (!insertPointBefore_i(row))
        return;
    // One signal whether or not the move is taken: the new row alone is a change.
    movePoint_i(row, p);
    Q_EMIT modelDataChanged();
}

void Model::removePoint(int row)
{
    if (removePoint_i(row))
        Q_EMIT modelDataChanged();
}

bool Model::removePoint_i(int row)
{
    if (!isRow(row))
        return false;
    Points shrunk = d->points;
    shrunk.erase(std::size_t(row));
    beginRemoveRows(QModelIndex(), row, row);
    d->points = shrunk;
    endRemoveRows();
    return true;
}

void Model::setSelectedPoint(int row, int column)
{
    if (row != -1 && !isRow(row))
        return;
    const int old = d->selectedRow;
    d->selectedRow = row;
    // The old row may be gone: insertions and removals do not follow the selection.
    if (isRow(old))
        Q_EMIT dataChanged(index(old, 0), index(old, 1));
    const QModelIndex idx = index(row, column);
    Q_EMIT selectedPointChanged(idx);
    if (idx.isValid())
        Q_EMIT dataChanged(idx, idx);
}

void Model::setXRange(double min, double max)
{
    d->xMin = min;
    d->xMax = max;
}

void Model::setYRange(double min, double max)
{
    d->yMin = min;
    d->yMax = max;
}

QString Model::toString() const
{
    QStringList lines;
    lines.reserve(rowCount());
    for (const PointF& p : d->points)
        lines << QStringLiteral("%1\t%2").arg(p.x).arg(p.y);
    return lines.join(QLatin1Char('\n'));
}

void Model::fromString(const QString& text)
{
    static const QRegularExpression lineBreak(QStringLiteral("\r?\n"));
    static const QRegularExpression blanks(QStringLiteral("\\s+"));
    Points points;
    const QStringList lines = text.split(lineBreak, Qt::SkipEmptyParts);
    for (const QString& line : lines) {
        const QStringList fields = line.split(blanks, Qt::SkipEmptyParts);
        // A line of blanks is a blank line, not a point at the origin.
        if (fields.isEmpty())
            continue;
        PointF p;
        p.x = fields.at(0).toDouble();
        if (fields.size() >= 2)
            p.y = fields.at(1).toDouble();
        points.append(p);
    }
    if (!points.empty())
        setData(points);
}

Model::Points Model::createDefaultData() const
{
    Points points;
    points.reserve(21);
    double x = -2.0;
    for (int i = 0; i < 21; ++i) {
        points.append(PointF{x, std::tanh(x)});
        x += 0.2;
    }
    return points;
}

} // namespace kes::qt::discreteapproximator
