#include <kes/qt/discreteapproximator/view.h>

#include <kes/qt/discreteapproximator/model.h>
#include <kes/qt/discreteapproximator/schematic/model.h>
#include <kes/qt/discreteapproximator/schematic/view.h>
#include <kes/qt/discreteapproximator/tableview.h>
#include <kes/qt/translation/manager.h>

#include <limits>

namespace kes::qt::discreteapproximator {

View::View(QWidget* parent)
    : QTabWidget(parent)
    , m_model(new Model(this))
{
    m_model->setObjectName(QStringLiteral("model"));
    setTabPosition(QTabWidget::South);
    setTabShape(QTabWidget::Triangular);
    m_scene = new schematic::Model(m_model, this);
    m_graphicsView = new schematic::View(m_scene, this);
    m_graphicsView->setObjectName(QStringLiteral("graphicsView"));
    addTab(m_graphicsView, QString());
    m_tableView = new TableView(m_model, this);
    m_tableView->setObjectName(QStringLiteral("tableView"));
    addTab(m_tableView, QString());
    connect(m_model, SIGNAL(modelDataChanged()), this, SIGNAL(dataChanged()));
    connect(&kes::qt::translation::Manager::singleton(), SIGNAL(languageChanged()), this,
            SLOT(translate()));
    translate();
}

View::~View() = default;

// The range of a signed 32-bit integer, in which the applications keep their curves.
double View::absoluteMinimum()
{
    return std::numeric_limits<int>::min();
}

double View::absoluteMaximum()
{
    return std::numeric_limits<int>::max();
}

kes::core::Vector<kes::core::PointF> View::data() const
{
    return m_model->points();
}

void View::setData(const kes::core::Vector<kes::core::PointF>& points)
{
    m_model->setData(points);
}

void View::setXRange(double min, double max)
{
    m_model->setXRange(min, max);
}

void View::setYRange(double min, double max)
{
    m_model->setYRange(min, max);
}

void View::setXAxisText(const QString& text)
{
    m_scene->setXAxisText(text);
}

void View::setYAxisText(const QString& text)
{
    m_scene->setYAxisText(text);
}

void View::setPoint(const kes::core::PointF& p)
{
    m_scene->setPoint(p);
}

void View::setPoint(double x, double y)
{
    setPoint(kes::core::PointF{x, y});
}

void View::setShowPointEnabled(bool enabled)
{
    m_scene->setShowPointEnabled(enabled);
}

void View::setHelpAction(QAction* action)
{
    m_model->setHelpAction(action);
}

void View::translate()
{
    setTabText(0, tr("Graphics"));
    setTabText(1, tr("Table"));
}

} // namespace kes::qt::discreteapproximator
