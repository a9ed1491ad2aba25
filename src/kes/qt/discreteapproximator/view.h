#ifndef KES_QT_DISCRETEAPPROXIMATOR_VIEW_H
#define KES_QT_DISCRETEAPPROXIMATOR_VIEW_H

#include <kes/qt/kes_qt_export.h>

#include <kes/core/pointf.h>
#include <kes/core/vector.h>

#include <QTabWidget>

#include <memory>

class QAction;

namespace kes::qt::discreteapproximator {

class Model;
class TableView;
struct ViewPrivate;

namespace schematic {
class Model;
class View;
} // namespace schematic

/// The curve editor: a piecewise-linear characteristic as a draggable graph on one tab and as
/// an x/y table on the other, both editing the same points.
///
/// The application sets the points, the admissible x and y ranges, the axis texts and an
/// operating point to mark, and hears of every change made by the user through dataChanged().
/// A new editor shows 21 points of a hyperbolic tangent between x = -2 and x = 2.
class KES_QT_EXPORT View : public QTabWidget
{
    Q_OBJECT
    /// The text at the arrow end of the graph's x axis.
    Q_PROPERTY(QString xAxisText READ xAxisText WRITE setXAxisText)
    /// The text at the arrow end of the graph's y axis.
    Q_PROPERTY(QString yAxisText READ yAxisText WRITE setYAxisText)
    /// Whether the operating point's cross shows; off at first.
    Q_PROPERTY(bool showPointEnabled READ showPointEnabled WRITE setShowPointEnabled)

public:
    /// Graph and table tabs on one model, following the language manager.
    explicit View(QWidget* parent = nullptr);
    ~View() override;

    /// The default limits of the model: the range of a signed 32-bit integer.
    static double absoluteMinimum();
    /// The largest signed 32-bit integer.
    static double absoluteMaximum();

    /// The points, shared with the editor but never changed by later edits.
    kes::core::Vector<kes::core::PointF> data() const;
    /// Replaces the points; an equal list emits nothing, an empty one installs the default curve.
    void setData(const kes::core::Vector<kes::core::PointF>& points);

    /// Admissible ranges for later edits; points already outside are left as they are.
    void setXRange(double min, double max);
    /// Admissible y range for later edits.
    void setYRange(double min, double max);
    /// The text at the arrow end of the graph's x axis.
    QString xAxisText() const;
    /// Sets the text at the arrow end of the x axis, typically the quantity and its unit.
    void setXAxisText(const QString& text);
    /// The text at the arrow end of the graph's y axis.
    QString yAxisText() const;
    /// Sets the text at the arrow end of the y axis.
    void setYAxisText(const QString& text);

    /// The operating point marked by a cross on the graph.
    void setPoint(const kes::core::PointF& p);
    /// The operating point (\a x, \a y).
    void setPoint(double x, double y);
    /// Shows or hides the cross; hidden at first.
    void setShowPointEnabled(bool enabled);
    /// Whether the cross shows.
    bool showPointEnabled() const;
    /// Offered last in the right-click menus; not owned.
    void setHelpAction(QAction* action);

    /// The point model both tabs edit.
    Model* model() const;
    /// The graph tab.
    schematic::View* graphicsView() const;
    /// The table tab.
    TableView* tableView() const;

public Q_SLOTS:
    /// Names the tabs in the current language.
    void translate();

Q_SIGNALS:
    /// After every change of the points by the user or by setData().
    void dataChanged();

private:
    std::unique_ptr<ViewPrivate> const d;
};

} // namespace kes::qt::discreteapproximator

#endif
