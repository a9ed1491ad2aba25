#include <kes/qt/discreteapproximator/schematic/view.h>

#include <kes/qt/discreteapproximator/contextmenu.h>
#include <kes/qt/discreteapproximator/model.h>
#include <kes/qt/discreteapproximator/schematic/model.h>
#include <kes/qt/discreteapproximator/schematic/point.h>
#include <kes/qt/translation/manager.h>

#include <QAction>
#include <QMouseEvent>
#include <QResizeEvent>

namespace kes::qt::discreteapproximator::schematic {

struct ViewPrivate
{
    Model* scene = nullptr;
    // Where the last press was, in scene coordinates: "Insert point" inserts there.
    QPointF pressPos;
    QAction* insertPoint = nullptr;
};

View::View(Model* scene, QWidget* parent)
    : QGraphicsView(scene, parent)
    , d(std::make_unique<ViewPrivate>())
{
    d->scene = scene;
    d->insertPoint = new QAction(this);
    setMinimumSize(int(Model::_leftMargin + Model::_rightMargin + 100.0),
                   int(Model::_topMargin + Model::_bottomMargin + 100.0));
    // The scene is exactly as large as the viewport: nothing to scroll, and no frame taking
    // pixels away from the plotting area.
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setAlignment(Qt::AlignLeft | Qt::AlignTop);
    setRenderHint(QPainter::Antialiasing);
    // The press opens our own menu; the request Qt sends after it must not reach the parents.
    setContextMenuPolicy(Qt::PreventContextMenu);
    connect(d->insertPoint, SIGNAL(triggered()), this, SLOT(on_insertPoint()));
    connect(&kes::qt::translation::Manager::singleton(), SIGNAL(languageChanged()), this,
            SLOT(translate()));
    translate();
}

View::~View() = default;

Model* View::schematic() const
{
    return d->scene;
}

void View::on_insertPoint()
{
    d->scene->insertPoint(d->pressPos);
}

void View::translate()
{
    d->insertPoint->setText(tr("Insert point"));
}

void View::resizeEvent(QResizeEvent* event)
{
    QGraphicsView::resizeEvent(event);
    d->scene->setViewSize(viewport()->size());
}

void View::mousePressEvent(QMouseEvent* event)
{
    QGraphicsView::mousePressEvent(event);
    d->pressPos = mapToScene(event->pos());
    if (event->button() != Qt::RightButton)
        return;
    event->accept();

    int row = -1;
    const QList<QGraphicsItem*> hits = items(event->pos());
    for (QGraphicsItem* item : hits) {
        if (const auto* point = qgraphicsitem_cast<const Point*>(item)) {
            row = point->row();
            break;
        }
    }
    discreteapproximator::Model* dataModel = d->scene->dataModel();
    if (row >= 0 && row < dataModel->rowCount()) {
        ContextMenu menu(row, dataModel);
        menu.init();
        menu.exec(event->globalPos());
        return;
    }
    ContextMenu menu(-1, dataModel);
    menu.addAction(d->insertPoint);
    menu.addSeparator();
    menu.init();
    menu.exec(event->globalPos());
}

} // namespace kes::qt::discreteapproximator::schematic
