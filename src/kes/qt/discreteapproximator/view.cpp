#include <kes/qt/discreteapproximator/view.h>

#include <kes/qt/discreteapproximator/model.h>
#include <kes/qt/discreteapproximator/schematic/coordsystem.h>
#include <kes/qt/discreteapproximator/schematic/cross.h>
#include <kes/qt/discreteapproximator/schematic/model.h>
#include <kes/qt/discreteapproximator/schematic/view.h>
#include <kes/qt/discreteapproximator/tableview.h>
#include <kes/qt/translation/manager.h>

namespace kes::qt::discreteapproximator {

struct ViewPrivate
{
    // All children of the view.
    Model* model = nullptr;
    schematic::Model* scene = nullptr;
    schematic::View* graphicsView = nullptr;
    TableView* tableView = nullptr;
};

View::View(QWidget* parent)
    : QTabWidget(parent)
    , d(std::make_unique<ViewPrivate>())
{
    d->model = new Model(this);
    d->model->setObjectName(QStringLiteral("model"));
    setTabPosition(QTabWidget::South);
    setTabShape(QTabWidget::Triangular);
    d->scene = new schematic::Model(d->model, this);
    d->graphicsView = new schematic::View(d->scene, this);
    d->graphicsView->setObjectName(QStringLiteral("graphicsView"));
    addTab(d->graphicsView, QString());
    d->tableView = new TableView(d->model, this);
    d->tableView->setObjectName(QStringLiteral("tableView"));
    addTab(d->tableView, QString());
    connect(d->model, SIGNAL(modelDataChanged()), this, SIGNAL(dataChanged()));
    connect(&kes::qt::translation::Manager::singleton(), SIGNAL(languageChanged()), this,
            SLOT(translate()));
    translate();
}

View::~View() = default;

Model* View::model() const
{
    return d->model;
}

schematic::View* View::graphicsView() const
{
    return d->graphicsView;
}

TableView* View::tableView() const
{
    return d->tableView;
}

double View::absoluteMinimum()
{
    return Model::absoluteMinimum();
}

double View::absoluteMaximum()
{
    return Model::absoluteMaximum();
}

kes::core::Vector<kes::core::PointF> View::data() const
{
    return d->model->points();
}

void View::setData(const kes::core::Vector<kes::core::PointF>& points)
{
    d->model->setData(points);
}

void View::setXRange(double min, double max)
{
    d->model->setXRange(min, max);
}

void View::setYRange(double min, double max)
{
    d->model->setYRange(min, max);
}

QString View::xAxisText() const
{
    return d->scene->coordsystem()->xAxisText();
}

void View::setXAxisText(const QString& text)
{
    d->scene->setXAxisText(text);
}

QString View::yAxisText() const
{
    return d->scene->coordsystem()->yAxisText();
}

void View::setYAxisText(const QString& text)
{
    d->scene->setYAxisText(text);
}

void View::setPoint(const kes::core::PointF& p)
{
    d->scene->setPoint(p);
}

void View::setPoint(double x, double y)
{
    setPoint(kes::core::PointF{x, y});
}

void View::setShowPointEnabled(bool enabled)
{
    d->scene->setShowPointEnabled(enabled);
}

bool View::showPointEnabled() const
{
    return d->scene->cross()->isVisible();
}

void View::setHelpAction(QAction* action)
{
    d->model->setHelpAction(action);
}

void View::translate()
{
    setTabText(0, tr("Graphics"));
    setTabText(1, tr("Table"));
}

} // namespace kes::qt::discreteapproximator
