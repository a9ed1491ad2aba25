#include "collection.h"

#include "widgetinterface.h"

#include <kes/qt/colorrangefinder/dialog.h>
#include <kes/qt/discreteapproximator/view.h>
#include <kes/qt/gui/widgets/checkbox.h>
#include <kes/qt/gui/widgets/combobox.h>
#include <kes/qt/gui/widgets/doublespinbox.h>
#include <kes/qt/gui/widgets/hexspinbox.h>
#include <kes/qt/gui/widgets/hyperlabel.h>
#include <kes/qt/gui/widgets/imageview.h>
#include <kes/qt/gui/widgets/labeledcombobox.h>
#include <kes/qt/gui/widgets/labeleddoublespinbox.h>
#include <kes/qt/gui/widgets/labeledhexspinbox.h>
#include <kes/qt/gui/widgets/labeledlineedit.h>
#include <kes/qt/gui/widgets/labeledspinbox.h>
#include <kes/qt/gui/widgets/lineeditwithhelp.h>
#include <kes/qt/gui/widgets/progress.h>
#include <kes/qt/gui/widgets/scaledlabel.h>
#include <kes/qt/gui/widgets/sciencespinbox.h>
#include <kes/qt/gui/widgets/spinbox.h>
#include <kes/qt/laserrangefinder/view.h>
#include <kes/qt/scope/view.h>

namespace kes::designer {

namespace {

// Most widgets take their parent in the constructor; the edit-tracking boxes get it afterwards,
// as when a layout adopts them.
template <typename W>
QWidget* withParent(QWidget* parent)
{
    return new W(parent);
}

template <typename W>
QWidget* adopted(QWidget* parent)
{
    auto* widget = new W;
    widget->setParent(parent);
    return widget;
}

QString geometry(int width, int height)
{
    return QStringLiteral("  <property name=\"geometry\">\n   <rect><x>0</x><y>0</y><width>%1</width>"
                          "<height>%2</height></rect>\n  </property>\n")
        .arg(width)
        .arg(height);
}

QString stringProperty(const QString& name, const QString& value)
{
    return QStringLiteral("  <property name=\"%1\">\n   <string>%2</string>\n  </property>\n").arg(name, value);
}

QString boolProperty(const QString& name, bool value)
{
    return QStringLiteral("  <property name=\"%1\">\n   <bool>%2</bool>\n  </property>\n")
        .arg(name, value ? QStringLiteral("true") : QStringLiteral("false"));
}

QString header(const QString& path)
{
    return QStringLiteral("<kes/qt/%1>").arg(path);
}

QList<WidgetDescription> descriptions()
{
    using namespace kes::qt;
    using namespace kes::qt::gui::widgets;
    const QString labelText = QStringLiteral("labelText");
    return {
        {QStringLiteral("kes::qt::scope::View"), header(QStringLiteral("scope/view.h")), QStringLiteral("ScopeView"),
         QStringLiteral("Oscilloscope view of up to sixteen channels"),
         QStringLiteral("Plots up to sixteen channels of (x, y) samples like an oscilloscope, each with its own "
                        "time base, amplification, offset, colour and trigger. Feed samples with addPoint() and "
                        "call redraw() at the frame rate you want."),
         geometry(480, 320), withParent<scope::View>},
        {QStringLiteral("kes::qt::discreteapproximator::View"), header(QStringLiteral("discreteapproximator/view.h")),
         QStringLiteral("CurveEditor"), QStringLiteral("Editor of a piecewise-linear curve, as a graph and a table"),
         QStringLiteral("Edits a characteristic curve given as a list of points, in a graph whose points can be "
                        "dragged and in a table. Set the points with setData() and the admissible ranges with "
                        "setXRange() and setYRange(); dataChanged() reports every change by the user."),
         geometry(480, 320), withParent<discreteapproximator::View>},
        {QStringLiteral("kes::qt::gui::widgets::ImageView"), header(QStringLiteral("gui/widgets/imageview.h")),
         QStringLiteral("ImageView"), QStringLiteral("Camera image view with region-of-interest selection"),
         QStringLiteral("Shows a core image scaled to fit, draws its overlays and segments on request and, with "
                        "region selection enabled, reports a dragged rectangle in image pixels by roiChanged()."),
         geometry(320, 240), withParent<ImageView>},
        {QStringLiteral("kes::qt::colorrangefinder::Dialog"), header(QStringLiteral("colorrangefinder/dialog.h")),
         QStringLiteral("ColorRangeFinder"), QStringLiteral("Finds hue, saturation and value ranges in an image"),
         QStringLiteral("Turns a rectangle the user drags over a camera image into hue, saturation and value "
                        "ranges, shown in spin boxes and as colour swatches and exchanged with the clipboard."),
         geometry(640, 420), withParent<colorrangefinder::Dialog>},
        {QStringLiteral("kes::qt::laserrangefinder::View"), header(QStringLiteral("laserrangefinder/view.h")),
         QStringLiteral("LaserScanView"), QStringLiteral("View of a laser range finder's scan scene"),
         QStringLiteral("Shows a laser scan scene with the scanner's forward direction up; clicks and the wheel "
                        "zoom about the pointer, a middle click fits the scene. Give it a laserrangefinder::Scene."),
         geometry(320, 320), withParent<laserrangefinder::View>},
        {QStringLiteral("kes::qt::gui::widgets::ScienceSpinBox"), header(QStringLiteral("gui/widgets/sciencespinbox.h")),
         QStringLiteral("ScienceSpinBox"), QStringLiteral("Spin box for any double, in plain or exponent notation"),
         QStringLiteral("Takes any double in plain or exponent notation (1.5e-07) with the locale's decimal point. "
                        "With decadeStepping its arrows multiply or divide by ten."),
         QString(), withParent<ScienceSpinBox>},
        {QStringLiteral("kes::qt::gui::widgets::HexSpinBox"), header(QStringLiteral("gui/widgets/hexspinbox.h")),
         QStringLiteral("HexSpinBox"), QStringLiteral("Spin box for register values in hexadecimal"),
         QStringLiteral("Shows and takes its integer in hexadecimal, zero-padded to textWidth digits, in upper or "
                        "lower case."),
         QString(), withParent<HexSpinBox>},
        {QStringLiteral("kes::qt::gui::widgets::SpinBox"), header(QStringLiteral("gui/widgets/spinbox.h")),
         QStringLiteral("SpinBox"), QStringLiteral("Integer spin box that takes typed text only on Return"),
         QStringLiteral("Takes typed text only on Return, focus loss or a step and tints the field until then; "
                        "Escape brings back the committed value. Its signals carry the application's user data."),
         QString(), adopted<SpinBox>},
        {QStringLiteral("kes::qt::gui::widgets::DoubleSpinBox"), header(QStringLiteral("gui/widgets/doublespinbox.h")),
         QStringLiteral("DoubleSpinBox"), QStringLiteral("Double spin box that takes typed text only on Return"),
         QStringLiteral("Takes typed text only on Return, focus loss or a step and tints the field until then; "
                        "Escape brings back the committed value. Its signals carry the application's user data."),
         QString(), adopted<DoubleSpinBox>},
        {QStringLiteral("kes::qt::gui::widgets::ComboBox"), header(QStringLiteral("gui/widgets/combobox.h")),
         QStringLiteral("ComboBox"), QStringLiteral("Combo box that tints typed text until it is taken"),
         QStringLiteral("An editable combo box tints typed text until an entry is activated; Escape brings back "
                        "the last one. Its signals carry the application's user data."),
         QString(), adopted<ComboBox>},
        {QStringLiteral("kes::qt::gui::widgets::LabeledSpinBox"), header(QStringLiteral("gui/widgets/labeledspinbox.h")),
         QStringLiteral("LabeledSpinBox"), QStringLiteral("Spin box with a label in front"),
         QStringLiteral("A label and an integer spin box in one row, for forms; the label greys out with the field "
                        "and the spin box's signals are re-emitted."),
         stringProperty(labelText, QStringLiteral("Value")), withParent<LabeledSpinBox>},
        {QStringLiteral("kes::qt::gui::widgets::LabeledDoubleSpinBox"),
         header(QStringLiteral("gui/widgets/labeleddoublespinbox.h")), QStringLiteral("LabeledDoubleSpinBox"),
         QStringLiteral("Double spin box with a label in front"),
         QStringLiteral("A label and a double spin box in one row, for forms; the label greys out with the field "
                        "and the spin box's signals are re-emitted."),
         stringProperty(labelText, QStringLiteral("Value")), withParent<LabeledDoubleSpinBox>},
        {QStringLiteral("kes::qt::gui::widgets::LabeledHexSpinBox"),
         header(QStringLiteral("gui/widgets/labeledhexspinbox.h")), QStringLiteral("LabeledHexSpinBox"),
         QStringLiteral("Hexadecimal spin box with a label in front"),
         QStringLiteral("A label and a hexadecimal spin box in one row, for register forms; the label greys out "
                        "with the field and the spin box's signals are re-emitted."),
         stringProperty(labelText, QStringLiteral("Register")), withParent<LabeledHexSpinBox>},
        {QStringLiteral("kes::qt::gui::widgets::LabeledLineEdit"), header(QStringLiteral("gui/widgets/labeledlineedit.h")),
         QStringLiteral("LabeledLineEdit"), QStringLiteral("Line edit with a label in front"),
         QStringLiteral("A label and a line edit in one row, for forms; the label greys out with the field and "
                        "the line edit's signals are re-emitted."),
         stringProperty(labelText, QStringLiteral("Name")), withParent<LabeledLineEdit>},
        {QStringLiteral("kes::qt::gui::widgets::LabeledComboBox"), header(QStringLiteral("gui/widgets/labeledcombobox.h")),
         QStringLiteral("LabeledComboBox"), QStringLiteral("Combo box with a label in front"),
         QStringLiteral("A label and a combo box in one row, for forms; the label greys out with the field and the "
                        "combo box's signals are re-emitted. Fill it through comboBox()."),
         stringProperty(labelText, QStringLiteral("Mode")), withParent<LabeledComboBox>},
        {QStringLiteral("kes::qt::gui::widgets::Progress"), header(QStringLiteral("gui/widgets/progress.h")),
         QStringLiteral("Progress"), QStringLiteral("Busy indicator: a title above a turning wheel"),
         QStringLiteral("Shows a title above a wheel that turns while the widget is shown, for work of unknown "
                        "length. Created in code, it can offer a Cancel button."),
         stringProperty(QStringLiteral("title"), QStringLiteral("Working")), withParent<Progress>},
        {QStringLiteral("kes::qt::gui::widgets::HyperLabel"), header(QStringLiteral("gui/widgets/hyperlabel.h")),
         QStringLiteral("HyperLabel"), QStringLiteral("Label that opens its link in the web browser"),
         QStringLiteral("Shows its text as a link and opens the link in the browser set with setWebBrowser() (the "
                        "desktop's handler otherwise) on a left click."),
         stringProperty(QStringLiteral("text"), QStringLiteral("Link")), withParent<HyperLabel>},
        {QStringLiteral("kes::qt::gui::widgets::ScaledLabel"), header(QStringLiteral("gui/widgets/scaledlabel.h")),
         QStringLiteral("ScaledLabel"), QStringLiteral("Label whose font follows its size"),
         QStringLiteral("Takes the largest font, up to 32 pixels, at which its text fits on one line, on every "
                        "resize; for readings that should fill the space they get."),
         stringProperty(QStringLiteral("text"), QStringLiteral("0.000")), withParent<ScaledLabel>},
        {QStringLiteral("kes::qt::gui::widgets::CheckBox"), header(QStringLiteral("gui/widgets/checkbox.h")),
         QStringLiteral("CheckBox"), QStringLiteral("Check box that can be made read-only"),
         QStringLiteral("A check box that, when readOnly, the user can toggle neither with the mouse nor with the "
                        "keyboard, while setChecked() still works; it looks the same either way."),
         stringProperty(QStringLiteral("text"), QStringLiteral("CheckBox"))
             + boolProperty(QStringLiteral("readOnly"), true),
         withParent<CheckBox>},
        {QStringLiteral("kes::qt::gui::widgets::LineEditWithHelp"),
         header(QStringLiteral("gui/widgets/lineeditwithhelp.h")), QStringLiteral("LineEditWithHelp"),
         QStringLiteral("Line edit whose context menu offers help"),
         QStringLiteral("A line edit whose context menu ends with the application's help action, set with "
                        "setHelpAction()."),
         QString(), [](QWidget* parent) -> QWidget* { return new LineEditWithHelp(nullptr, parent); }},
    };
}

} // namespace

Collection::Collection(QObject* parent)
    : QObject(parent)
{
    for (const WidgetDescription& description : descriptions())
        m_widgets.append(new WidgetInterface(description, this));
}

QList<QDesignerCustomWidgetInterface*> Collection::customWidgets() const
{
    return m_widgets;
}

} // namespace kes::designer
