#include <kes/qt/graphics/simpleview.h>

#include <QMouseEvent>

namespace kes::qt::graphics {

// Empty for now; it keeps the class's size when the view gains state.
struct SimpleViewPrivate
{
};

SimpleView::SimpleView(QWidget* parent)
    : QGraphicsView(parent)
    , d(std::make_unique<SimpleViewPrivate>())
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
