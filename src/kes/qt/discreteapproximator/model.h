#ifndef KES_QT_DISCRETEAPPROXIMATOR_MODEL_H
#define KES_QT_DISCRETEAPPROXIMATOR_MODEL_H

#include <kes/qt/kes_qt_export.h>

#include <kes/core/pointf.h>
#include <kes/core/vector.h>

#include <QAbstractTableModel>
#include <QString>

#include <memory>

class QAction;

namespace kes::qt::discreteapproximator {

struct ModelPrivate;

/// A piecewise-linear characteristic: points ordered by x, shown as a table with x in column 0
/// and y in column 1, one row per point.
///
/// Every editing path keeps x non-decreasing along the list; equal neighbouring x values are
/// allowed, only a strict crossing is refused. Edits outside the x and y limits are refused too.
/// Replacing the whole list with setData() does not validate: the caller hands in an ordered list.
///
/// The operations whose names end in "_i" change the data and emit Qt's own model signals only;
/// their public counterparts add modelDataChanged(). The point list is shared copy-on-write, so a
/// copy taken from points() never changes afterwards. Internal operations given a row that does
/// not exist do nothing.
class KES_QT_EXPORT Model : public QAbstractTableModel
{
    Q_OBJECT

public:
    /// The point list, shared copy-on-write.
    using Points = kes::core::Vector<kes::core::PointF>;

    /// Starts with createDefaultData(), no selected row and the absolute limits.
    explicit Model(QObject* parent = nullptr);
    ~Model() override;

    /// The default limits: the range of a signed 32-bit integer.
    static double absoluteMinimum();
    /// The largest signed 32-bit integer.
    static double absoluteMaximum();

    /// One row per point.
    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    /// x and y.
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    /// The display and the edit role both give the text of dataDisplayRole().
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    /// The coordinate as text with 7 significant digits.
    QVariant dataDisplayRole(const QModelIndex& index) const;
    /// "x" and "y" across, the rows numbered from 0 down.
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    /// Every cell is editable.
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    /// A validated edit of one cell in the edit role; emits modelDataChanged() when accepted.
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;

    /// Replaces the list. An identical list changes nothing and emits nothing; an empty one
    /// installs createDefaultData(). Clears the selected row.
    void setData(const Points& points);

    /// setDataEditRole_i() followed by modelDataChanged() when the edit was taken.
    bool setDataEditRole(const QModelIndex& index, const QVariant& value);
    /// Stores value.toDouble() in the cell if it lies within the limits and, for x, does not pass
    /// a neighbour's x. Not-a-number is refused.
    bool setDataEditRole_i(const QModelIndex& index, const QVariant& value);

    /// movePoint_i() followed by modelDataChanged() when either coordinate was taken.
    bool movePoint(int row, const kes::core::PointF& p);
    /// Applies p.x and then p.y through setDataEditRole_i(); each coordinate succeeds or fails on
    /// its own. True if either was taken; false for an unchanged point.
    bool movePoint_i(int row, const kes::core::PointF& p);

    /// insertPointBefore_i() followed by modelDataChanged().
    void insertPointBefore(int row);
    /// Inserts a generated point behind \a row, as insertPointBefore_i(row + 1) does, and emits modelDataChanged().
    void insertPointAfter(int row);
    /// Inserts a generated point at \a row (0 to rowCount()): one step left of the first point,
    /// one step right of the last, or midway in x between two points, with the y of the point it
    /// was derived from. A one-point list steps by 25.0. False for a row out of range.
    bool insertPointBefore_i(int row);
    /// Inserts a point behind every point whose x is not greater than p.x and moves it to \a p
    /// through the validated path; a refused coordinate keeps the generated value. Emits
    /// modelDataChanged() once.
    void insertPoint(const kes::core::PointF& p);

    /// removePoint_i() followed by modelDataChanged().
    void removePoint(int row);
    /// No lower limit on the number of points; the selected row is left as it is.
    bool removePoint_i(int row);

    /// Selects \a row (-1 for none) and announces it with selectedPointChanged(); a row out of
    /// range is ignored.
    void setSelectedPoint(int row, int column);
    /// The selected row, -1 for none.
    int selectedRow() const;

    /// Admissible ranges, applied to later edits only.
    void setXRange(double min, double max);
    /// Admissible y range for later edits.
    void setYRange(double min, double max);
    /// The lowest x an edit may set.
    double xMinimum() const;
    /// The highest x an edit may set.
    double xMaximum() const;
    /// The lowest y an edit may set.
    double yMinimum() const;
    /// The highest y an edit may set.
    double yMaximum() const;

    /// Offered by the context menu when set; not owned.
    QAction* helpAction() const;
    /// Sets the action the context menu offers last; not owned, null for none.
    void setHelpAction(QAction* action);

    /// The points in table order.
    const Points& points() const;

    /// One "x<tab>y" line per point, 6 significant digits, lines joined by "\n".
    QString toString() const;
    /// Reads lines of blank-separated fields, x then y; missing or unreadable fields read as 0
    /// and further fields are ignored. Text without any line leaves the model untouched.
    void fromString(const QString& text);

    /// 21 points of tanh(x), x from -2.0 in steps of 0.2.
    Points createDefaultData() const;

Q_SIGNALS:
    /// After every successful public change of the points.
    void modelDataChanged();
    /// After setSelectedPoint() and after every insertion, with the row to show.
    void selectedPointChanged(const QModelIndex& index);

private:
    bool isRow(int row) const { return row >= 0 && row < rowCount(); }

    std::unique_ptr<ModelPrivate> const d;
};

} // namespace kes::qt::discreteapproximator

#endif
