#include "curveeditorpage.h"

#include "curveundo.h"
#include "style.h"

#include <kes/qt/discreteapproximator/view.h>

#include <QFontDatabase>
#include <QHBoxLayout>
#include <QLocale>
#include <QLabel>
#include <QPlainTextEdit>
#include <QSlider>
#include <QUndoStack>
#include <QVBoxLayout>

namespace kes::gallery {

namespace {

using kes::core::PointF;
using Points = kes::core::Vector<PointF>;
using namespace style;

constexpr int textMaxWidth = 820;
constexpr int sliderSteps = 1000;

constexpr double voltageMin = 0.0;
constexpr double voltageMax = 10.0;
constexpr double openingMin = 0.0;
constexpr double openingMax = 100.0;

} // namespace

CurveEditorPage::CurveEditorPage(QWidget* parent)
    : Page(parent)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(28, 18, 28, 18);
    layout->setSpacing(0);

    m_heading = sectionHeading(this);
    m_intro = paragraph(textMaxWidth, this);
    m_limits = paragraph(textMaxWidth, this);
    muteText(m_limits);
    layout->addWidget(m_heading);
    layout->addSpacing(6);
    layout->addWidget(m_intro);
    layout->addSpacing(4);
    layout->addWidget(m_limits);
    layout->addSpacing(14);

    //! [editor-setup]
    m_editor = new kes::qt::discreteapproximator::View(this);
    m_editor->setObjectName(QStringLiteral("curveEditor"));
    m_editor->setXRange(voltageMin, voltageMax);
    m_editor->setYRange(openingMin, openingMax);
    m_editor->setData(valveCurve());
    m_editor->setShowPointEnabled(true);
    //! [editor-setup]

    m_sliderLabel = new QLabel(this);
    m_slider = new QSlider(Qt::Horizontal, this);
    m_slider->setObjectName(QStringLiteral("operatingPointSlider"));
    m_slider->setRange(0, sliderSteps);
    m_slider->setValue(sliderSteps * 42 / 100);
    // Wide enough to be dragged with some precision in the smallest window.
    m_slider->setMinimumWidth(160);
    m_operatingPoint = new QLabel(this);
    m_operatingPoint->setWordWrap(true);
    auto* sliderRow = new QHBoxLayout;
    sliderRow->setSpacing(10);
    sliderRow->addWidget(m_sliderLabel);
    sliderRow->addWidget(m_slider, 1);

    auto* editorColumn = new QVBoxLayout;
    editorColumn->setSpacing(8);
    editorColumn->addWidget(m_editor, 1);
    editorColumn->addLayout(sliderRow);
    editorColumn->addWidget(m_operatingPoint, 0, Qt::AlignRight);

    m_pointsHeading = new QLabel(this);
    scaleFont(m_pointsHeading, 1.0, true);
    m_changes = new QLabel(this);
    muteText(m_changes);
    // The column is as wide as the list; longer languages wrap instead of widening the page.
    m_pointsHeading->setWordWrap(true);
    m_changes->setWordWrap(true);
    m_pointsHeading->setFixedWidth(190);
    m_changes->setFixedWidth(190);
    m_points = new QPlainTextEdit(this);
    m_points->setObjectName(QStringLiteral("pointList"));
    m_points->setReadOnly(true);
    m_points->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    m_points->setFixedWidth(190);
    auto* pointsColumn = new QVBoxLayout;
    pointsColumn->setSpacing(4);
    pointsColumn->addWidget(m_pointsHeading);
    pointsColumn->addWidget(m_changes);
    pointsColumn->addWidget(m_points, 1);

    auto* row = new QHBoxLayout;
    row->setSpacing(20);
    row->addLayout(editorColumn, 1);
    row->addLayout(pointsColumn);
    layout->addLayout(row, 1);

    //! [editor-signal]
    connect(m_editor, SIGNAL(dataChanged()), this, SLOT(onDataChanged()));
    //! [editor-signal]
    // The main window finds the stack among the page's children and offers it in its Edit menu.
    auto* undoStack = new QUndoStack(this);
    undoStack->setObjectName(QStringLiteral("curveUndoStack"));
    new CurveUndoTracker(m_editor, undoStack, this);
    connect(m_slider, SIGNAL(valueChanged(int)), this, SLOT(updateOperatingPoint()));

    retranslate();
    showPoints();
}

CurveEditorPage::~CurveEditorPage() = default;

QString CurveEditorPage::id() const
{
    return QStringLiteral("curve-editor");
}

QString CurveEditorPage::title() const
{
    return tr("Curve editor");
}

std::chrono::milliseconds CurveEditorPage::settleTime() const
{
    // The graph is laid out for its size once the page is on screen.
    return std::chrono::milliseconds(100);
}

Points CurveEditorPage::valveCurve()
{
    return Points{{0.0, 0.0},  {1.0, 0.0},  {1.5, 3.5},  {3.0, 17.0}, {5.0, 44.0},
                  {7.0, 71.0}, {8.5, 89.0}, {9.5, 98.0}, {10.0, 100.0}};
}

double CurveEditorPage::interpolate(const Points& points, double x)
{
    if (points.empty())
        return 0.0;
    if (x <= points[0].x)
        return points[0].y;
    for (std::size_t i = 1; i < points.size(); ++i) {
        const PointF& a = points[i - 1];
        const PointF& b = points[i];
        if (x <= b.x) {
            // Equal x values make a vertical step; take its upper end.
            return b.x == a.x ? b.y : a.y + (b.y - a.y) * (x - a.x) / (b.x - a.x);
        }
    }
    return points[points.size() - 1].y;
}

void CurveEditorPage::retranslate()
{
    m_heading->setText(tr("Characteristic of a proportional valve"));
    m_intro->setText(
        tr("The opening of a valve over its control voltage, as a table of points joined by "
           "straight lines. Drag a point in the graph, or edit it in the table; a right click "
           "inserts and removes points and exchanges the whole list with the clipboard as lines "
           "of x and y."));
    m_limits->setText(tr("Admissible: %1 to %2 V, %3 to %4 %. A point cannot pass its "
                         "neighbours in x; a refused coordinate keeps its value.")
                          .arg(voltageMin)
                          .arg(voltageMax)
                          .arg(openingMin)
                          .arg(openingMax));
    m_editor->setXAxisText(tr("U [V]"));
    m_editor->setYAxisText(tr("Opening [%]"));
    m_sliderLabel->setText(tr("Operating point:"));
    m_pointsHeading->setText(tr("Point list received"));
    showChangeCount();
    updateOperatingPoint();
}

void CurveEditorPage::onDataChanged()
{
    ++m_changeCount;
    showChangeCount();
    showPoints();
    updateOperatingPoint();
}

void CurveEditorPage::updateOperatingPoint()
{
    const Points points = m_editor->data();
    if (points.empty())
        return;
    const double first = points[0].x;
    const double last = points[points.size() - 1].x;
    const double x = first + (last - first) * m_slider->value() / sliderSteps;
    const double y = interpolate(points, x);
    m_editor->setPoint(x, y);
    const QLocale locale;
    m_operatingPoint->setText(
        tr("%1 V \u2192 %2 %").arg(locale.toString(x, 'f', 2), locale.toString(y, 'f', 1)));
}

void CurveEditorPage::showChangeCount()
{
    m_changes->setText(tr("dataChanged() received: %1").arg(m_changeCount));
}

void CurveEditorPage::showPoints()
{
    const QLocale locale;
    QStringList lines;
    for (const PointF& p : m_editor->data())
        lines << QStringLiteral("%1  %2").arg(locale.toString(p.x, 'g', 6), 8).arg(locale.toString(p.y, 'g', 6), 9);
    m_points->setPlainText(lines.join(QLatin1Char('\n')));
}

} // namespace kes::gallery
