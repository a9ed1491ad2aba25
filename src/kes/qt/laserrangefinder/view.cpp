#include <kes/qt/laserrangefinder/view.h>

#include <QMouseEvent>
#include <QTransform>
#include <QWheelEvent>

#include <cstdlib>

namespace kes::qt::laserrangefinder {

class ViewPrivate
{
public:
    QPoint pressPos;
    int pressButtons = 0;
};

View::View(QWidget* parent)
    : QGraphicsView(parent)
    , d(std::make_unique<ViewPrivate>())
{
    resetMatrix();
    setTransformationAnchor(QGraphicsView::NoAnchor);
    setResizeAnchor(QGraphicsView::NoAnchor);
    // A scan moves every dot: working out the smallest region to repaint costs more than
    // repainting the whole view.
    setViewportUpdateMode(QGraphicsView::FullViewportUpdate);
}

View::~View() = default;

void View::resetMatrix()
{
    resetTransform();
    QTransform transform;
    transform.scale(1.0, -1.0);
    transform.rotate(90.0);
    setTransform(transform);
}

void View::fit()
{
    resetMatrix();
    fitInView(sceneRect(), Qt::KeepAspectRatio);
}

void View::zoomAt(const QPoint& viewPos, double factor)
{
    const QPointF s0 = mapToScene(viewPos);
    scale(factor, factor);
    const QPointF s1 = mapToScene(viewPos);
    translate(s1.x() - s0.x(), s1.y() - s0.y());
}

void View::mousePressEvent(QMouseEvent* event)
{
    d->pressPos = event->localPos().toPoint();
    d->pressButtons = int(event->buttons());
    event->accept();
}

void View::mouseReleaseEvent(QMouseEvent* event)
{
    switch (d->pressButtons) {
    case Qt::LeftButton:
        zoomAt(d->pressPos, 1.25);
        break;
    case Qt::RightButton:
        zoomAt(d->pressPos, 0.8);
        break;
    case Qt::MiddleButton:
        fit();
        break;
    default:
        break;
    }
    event->accept();
}

void View::wheelEvent(QWheelEvent* event)
{
    // As the toolkit judges a wheel's orientation: vertical unless it turned more sideways.
    const int delta = event->angleDelta().y();
    if (delta != 0 && std::abs(delta) >= std::abs(event->angleDelta().x()))
        zoomAt(event->position().toPoint(), delta > 0 ? 1.25 : 0.8);
    event->accept();
}

} // namespace kes::qt::laserrangefinder
