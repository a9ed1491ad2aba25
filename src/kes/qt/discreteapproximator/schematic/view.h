#ifndef KES_QT_DISCRETEAPPROXIMATOR_SCHEMATIC_VIEW_H
#define KES_QT_DISCRETEAPPROXIMATOR_SCHEMATIC_VIEW_H

#include <kes/qt/kes_qt_export.h>

#include <QGraphicsView>

#include <memory>

namespace kes::qt::discreteapproximator::schematic {

class Model;
struct ViewPrivate;

/// Shows the graph at the size of the widget, one scene pixel per screen pixel. A right click
/// on a point opens the point's context menu; on empty space the menu starts with "Insert point",
/// which inserts at the clicked position.
class KES_QT_EXPORT View : public QGraphicsView
{
    Q_OBJECT

public:
    /// \a scene is not owned.
    explicit View(Model* scene, QWidget* parent = nullptr);
    ~View() override;

    /// The scene shown.
    Model* schematic() const;
    /// The view's own translate(dx, dy) stays available beside the slot of the same name.
    using QGraphicsView::translate;

public Q_SLOTS:
    /// Inserts a point where the right click was.
    void on_insertPoint();
    /// Names the "Insert point" entry in the current language.
    void translate();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    std::unique_ptr<ViewPrivate> const d;
};

} // namespace kes::qt::discreteapproximator::schematic

#endif
