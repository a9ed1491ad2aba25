#include <kes/qt/graphics/simpleview.h>

#include <QMouseEvent>

namespace kes::qt::graphics {

SimpleView::SimpleView(QWidget* parent)
    : QGraphicsView(parent)
{
}

SimpleView::~SimpleView() = default;

void SimpleView::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        scale(2.0, 2.0);
    else if (event->button() == Qt::RightButton)
        scale(0.5, 0.5);
    else
        return;
    centerOn(mapToScene(event->localPos().toPoint()));
}

} // namespace kes::qt::graphics
