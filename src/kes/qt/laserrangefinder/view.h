#ifndef KES_QT_LASERRANGEFINDER_VIEW_H
#define KES_QT_LASERRANGEFINDER_VIEW_H

#include <kes/qt/kes_qt_export.h>

#include <QGraphicsView>
#include <QPoint>

#include <memory>

namespace kes::qt::laserrangefinder {

class ViewPrivate;

/// Shows a scan scene with the scanner's forward direction (the scene's x axis) pointing up and
/// its left (the y axis) to the left.
///
/// Mouse: a left click zooms in by 1.25 and a right click out by 0.8, both about the point where
/// the button went down; a middle click fits the scene. The wheel zooms the same way about the
/// point under the mouse.
class KES_QT_EXPORT View : public QGraphicsView
{
    Q_OBJECT

public:
    /// Without a scene, forward up at one unit per pixel, repainted whole on every change (a scan moves every dot).
    explicit View(QWidget* parent = nullptr);
    ~View() override;

    /// Scales by \a factor and moves the view so that the scene point under \a viewPos stays
    /// under it.
    void zoomAt(const QPoint& viewPos, double factor);

public Q_SLOTS:
    /// Back to one unit per pixel, forward up.
    void resetMatrix();
    /// Forward up, with the whole scene in view.
    void fit();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    std::unique_ptr<ViewPrivate> const d;
};

} // namespace kes::qt::laserrangefinder

#endif
