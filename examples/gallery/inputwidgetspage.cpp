#include "inputwidgetspage.h"

#include "style.h"

#include <kes/qt/gui/widgets/combobox.h>
#include <kes/qt/gui/widgets/doublespinbox.h>
#include <kes/qt/gui/widgets/hexspinbox.h>
#include <kes/qt/gui/widgets/labeledcombobox.h>
#include <kes/qt/gui/widgets/labeleddoublespinbox.h>
#include <kes/qt/gui/widgets/labeledhexspinbox.h>
#include <kes/qt/gui/widgets/labeledhexspinboximpl.h>
#include <kes/qt/gui/widgets/labeledlineedit.h>
#include <kes/qt/gui/widgets/labeledspinbox.h>
#include <kes/qt/gui/widgets/labeledspinboximpl.h>
#include <kes/qt/gui/widgets/sciencespinbox.h>
#include <kes/qt/gui/widgets/spinbox.h>

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFontDatabase>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

namespace kes::gallery {

namespace {

using namespace style;
namespace widgets = kes::qt::gui::widgets;

constexpr int textMaxWidth = 820;
constexpr int newestKept = 200;

// What the application hangs on its editors as user data: the parameter's key in the camera.
struct Parameter
{
    const char* key;
};

Parameter gainParameter{"camera1/gain"};
Parameter offsetParameter{"camera1/blackLevel"};
Parameter modeParameter{"camera1/triggerMode"};

QString keyOf(void* userData)
{
    return userData ? QString::fromLatin1(static_cast<Parameter*>(userData)->key)
                    : QStringLiteral("null");
}

} // namespace

InputWidgetsPage::InputWidgetsPage(QWidget* parent)
    : Page(parent)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(28, 18, 28, 18);
    layout->setSpacing(0);

    m_heading = sectionHeading(this);
    m_intro = paragraph(textMaxWidth, this);
    layout->addWidget(m_heading);
    layout->addSpacing(6);
    layout->addWidget(m_intro);
    layout->addSpacing(14);

    m_formHeading = new QLabel(this);
    scaleFont(m_formHeading, 1.0, true);

    m_exposureLabel = new QLabel(this);
    //! [input-setup]
    m_exposure = new widgets::ScienceSpinBox(this);
    m_exposure->setObjectName(QStringLiteral("exposure"));
    m_exposure->setRange(1e-6, 10.0);
    m_exposure->setDecadeStepping(true);
    // No suffix: the box's validator judges the line edit's whole text, so the unit goes into
    // the label.
    m_exposure->setValue(5e-5);

    m_gainLabel = new QLabel(this);
    m_gain = new widgets::DoubleSpinBox(&gainParameter);
    m_gain->setObjectName(QStringLiteral("gain"));
    m_gain->setRange(0.0, 48.0);
    m_gain->setSingleStep(0.5);
    m_gain->setSuffix(QStringLiteral(" dB"));

    m_offsetLabel = new QLabel(this);
    m_offset = new widgets::SpinBox(&offsetParameter);
    m_offset->setObjectName(QStringLiteral("offset"));
    m_offset->setRange(-512, 511);

    m_modeLabel = new QLabel(this);
    m_mode = new widgets::ComboBox(&modeParameter);
    m_mode->setObjectName(QStringLiteral("mode"));
    m_mode->setEditable(true);
    m_mode->addItems({QStringLiteral("Free run"), QStringLiteral("Hardware trigger"),
                      QStringLiteral("Software trigger")});

    m_address = new widgets::LabeledHexSpinBox(this);
    m_address->setObjectName(QStringLiteral("registerAddress"));
    m_address->hexSpinBox()->setRange(0, 0xffff);
    m_address->hexSpinBox()->setTextWidth(4);
    m_address->hexSpinBox()->setUpperCase(true);
    m_address->hexSpinBox()->setPrefix(QStringLiteral("0x"));
    m_address->hexSpinBox()->setValue(0x3500);
    //! [input-setup]
    m_registerValue = new widgets::LabeledHexSpinBox(this);
    m_registerValue->setObjectName(QStringLiteral("registerValue"));
    m_registerValue->hexSpinBox()->setPrefix(QStringLiteral("0x"));
    m_registerValue->hexSpinBox()->setValue(0x2c);
    m_register = new QLabel(this);
    m_register->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    muteText(m_register);

    m_name = new widgets::LabeledLineEdit(this);
    m_name->setObjectName(QStringLiteral("cameraName"));
    m_name->lineEdit()->setText(QStringLiteral("Line 2, station 4 (top)"));
    m_frameRate = new widgets::LabeledDoubleSpinBox(this);
    m_frameRate->setObjectName(QStringLiteral("frameRate"));
    m_frameRate->doubleSpinBox()->setRange(1.0, 120.0);
    m_frameRate->doubleSpinBox()->setValue(30.0);
    m_binning = new widgets::LabeledSpinBox(this);
    m_binning->setObjectName(QStringLiteral("binning"));
    m_binning->spinBox()->setRange(1, 4);
    m_pixelFormat = new widgets::LabeledComboBox(this);
    m_pixelFormat->setObjectName(QStringLiteral("pixelFormat"));
    m_pixelFormat->comboBox()->addItems(
        {QStringLiteral("Mono8"), QStringLiteral("Mono12"), QStringLiteral("BayerRG8")});

    m_tracking = new QCheckBox(this);
    m_tracking->setObjectName(QStringLiteral("tracking"));
    m_tracking->setChecked(true);
    m_highlight = new QCheckBox(this);
    m_highlight->setObjectName(QStringLiteral("highlight"));

    auto* form = new QGridLayout;
    form->setHorizontalSpacing(10);
    form->setVerticalSpacing(8);
    form->setColumnMinimumWidth(1, 200);
    int row = 0;
    form->addWidget(m_formHeading, row++, 0, 1, 2);
    form->addWidget(m_exposureLabel, row, 0);
    form->addWidget(m_exposure, row++, 1);
    form->addWidget(m_gainLabel, row, 0);
    form->addWidget(m_gain, row++, 1);
    form->addWidget(m_offsetLabel, row, 0);
    form->addWidget(m_offset, row++, 1);
    form->addWidget(m_modeLabel, row, 0);
    form->addWidget(m_mode, row++, 1);
    form->addWidget(m_address, row++, 0, 1, 2);
    form->addWidget(m_registerValue, row++, 0, 1, 2);
    form->addWidget(m_register, row++, 0, 1, 2);
    form->addWidget(m_name, row++, 0, 1, 2);
    form->addWidget(m_frameRate, row++, 0, 1, 2);
    form->addWidget(m_binning, row++, 0, 1, 2);
    form->addWidget(m_pixelFormat, row++, 0, 1, 2);
    form->addWidget(m_tracking, row++, 0, 1, 2);
    form->addWidget(m_highlight, row++, 0, 1, 2);
    form->setRowStretch(row, 1);

    m_signalsHeading = new QLabel(this);
    scaleFont(m_signalsHeading, 1.0, true);
    m_signalsNote = paragraph(460, this);
    muteText(m_signalsNote);
    m_signals = new QListWidget(this);
    m_signals->setObjectName(QStringLiteral("signalList"));
    m_signals->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    m_signals->setFocusPolicy(Qt::NoFocus);
    auto* signalColumn = new QVBoxLayout;
    signalColumn->setSpacing(4);
    signalColumn->addWidget(m_signalsHeading);
    signalColumn->addWidget(m_signalsNote);
    signalColumn->addWidget(m_signals, 1);

    // The form scrolls in a small window rather than making the window taller.
    auto* formWidget = new QWidget;
    formWidget->setLayout(form);
    form->setContentsMargins(0, 0, 0, 0);
    auto* formArea = new QScrollArea(this);
    formArea->setFrameShape(QFrame::NoFrame);
    formArea->setWidgetResizable(true);
    formArea->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    formArea->setWidget(formWidget);
    formArea->setMinimumWidth(formWidget->minimumSizeHint().width()
                              + formArea->verticalScrollBar()->sizeHint().width());

    auto* columns = new QHBoxLayout;
    columns->setSpacing(28);
    columns->addWidget(formArea);
    columns->addLayout(signalColumn, 1);
    layout->addLayout(columns, 1);

    for (QObject* editor : {static_cast<QObject*>(m_gain), static_cast<QObject*>(m_offset)}) {
        connect(editor, SIGNAL(editingFinished(void*)), this, SLOT(onEditingFinished(void*)));
        connect(editor, SIGNAL(lostFocus()), this, SLOT(onLostFocus()));
    }
    //! [input-signals]
    connect(m_gain, SIGNAL(valueChanged(double, void*)), this, SLOT(onValueChanged(double, void*)));
    connect(m_offset, SIGNAL(valueChanged(int, void*)), this, SLOT(onValueChanged(int, void*)));
    //! [input-signals]
    connect(m_mode, SIGNAL(activated(const QString&, void*)), this,
            SLOT(onActivated(const QString&, void*)));
    connect(m_mode, SIGNAL(editTextChanged(const QString&, void*)), this,
            SLOT(onEditTextChanged(const QString&, void*)));
    connect(m_exposure, SIGNAL(valueChanged(double)), this, SLOT(onExposureChanged(double)));
    connect(m_address, SIGNAL(valueChanged(int)), this, SLOT(onRegisterChanged()));
    connect(m_registerValue, SIGNAL(valueChanged(int)), this, SLOT(onRegisterChanged()));
    connect(m_name, SIGNAL(editingFinished()), this, SLOT(onFieldChanged()));
    connect(m_frameRate, SIGNAL(editingFinished()), this, SLOT(onFieldChanged()));
    connect(m_binning, SIGNAL(valueChanged(int)), this, SLOT(onFieldChanged()));
    connect(m_pixelFormat, SIGNAL(activated(int)), this, SLOT(onFieldChanged()));
    connect(m_tracking, SIGNAL(toggled(bool)), this, SLOT(onTrackingToggled(bool)));
    connect(m_highlight, SIGNAL(toggled(bool)), this, SLOT(onHighlightToggled(bool)));

    // The camera's parameters arrive as the application loads them: setValue() commits at once,
    // so each brings valueChanged() and editingFinished().
    m_gain->setValue(12.5);
    m_offset->setValue(-16);
    m_mode->setEditText(QStringLiteral("Hardware trigger"));
    // The gain differs from the camera's default: the application marks it.
    m_highlight->setChecked(true);

    retranslate();
    onRegisterChanged();
}

InputWidgetsPage::~InputWidgetsPage() = default;

QString InputWidgetsPage::id() const
{
    return QStringLiteral("input-widgets");
}

QString InputWidgetsPage::title() const
{
    return tr("Input widgets");
}

void InputWidgetsPage::retranslate()
{
    m_heading->setText(tr("Camera parameters"));
    m_intro->setText(
        tr("Gain, black level and trigger mode turn light blue while a new value is typed: "
           "Return or leaving the field commits it, Escape brings back the committed one, and "
           "Return on an unchanged number sends nothing. The exposure takes any double in plain "
           "or exponent notation (2e-3) and its arrows step by decades; the sensor register is "
           "typed in hexadecimal."));
    m_formHeading->setText(tr("Camera 1"));
    m_exposureLabel->setText(tr("Exposure [s]:"));
    m_gainLabel->setText(tr("Gain:"));
    m_offsetLabel->setText(tr("Black level:"));
    m_modeLabel->setText(tr("Trigger mode:"));
    m_address->setLabelText(tr("Register address"));
    m_registerValue->setLabelText(tr("Register value"));
    m_name->setLabelText(tr("Name"));
    m_frameRate->setLabelText(tr("Frame rate [fps]"));
    m_binning->setLabelText(tr("Binning"));
    m_pixelFormat->setLabelText(tr("Pixel format"));
    m_tracking->setText(tr("Colour while editing"));
    m_highlight->setText(tr("Highlight the gain"));
    m_signalsHeading->setText(tr("Signals received"));
    m_signalsNote->setText(tr("Gain, black level and trigger mode share one slot per signal "
                              "signature; the user data names the parameter."));

    // The labelled fields' labels as wide as the form's, so that all fields line up.
    const QList<QLabel*> labels = {m_exposureLabel, m_gainLabel, m_offsetLabel, m_modeLabel,
                                   m_address->label(), m_registerValue->label(), m_name->label(),
                                   m_frameRate->label(), m_binning->label(), m_pixelFormat->label()};
    int width = 0;
    for (QLabel* label : labels) {
        label->setMinimumWidth(0);
        width = qMax(width, label->sizeHint().width());
    }
    for (QLabel* label : labels)
        label->setMinimumWidth(width);
}

void InputWidgetsPage::record(const QString& source, const QString& signal, void* userData)
{
    QString line = QStringLiteral("%1  %2").arg(source, signal);
    if (userData)
        line += QStringLiteral("  [%1]").arg(keyOf(userData));
    m_signals->addItem(line);
    while (m_signals->count() > newestKept)
        delete m_signals->takeItem(0);
    m_signals->scrollToBottom();
}

void InputWidgetsPage::onValueChanged(int value, void* userData)
{
    record(tr("black level"), QStringLiteral("valueChanged(%1)").arg(value), userData);
}

void InputWidgetsPage::onValueChanged(double value, void* userData)
{
    record(tr("gain"), QStringLiteral("valueChanged(%1)").arg(value), userData);
}

void InputWidgetsPage::onEditingFinished(void* userData)
{
    const QString source = userData == &gainParameter ? tr("gain") : tr("black level");
    record(source, QStringLiteral("editingFinished()"), userData);
}

void InputWidgetsPage::onActivated(const QString& text, void* userData)
{
    record(tr("trigger mode"), QStringLiteral("activated(\"%1\")").arg(text), userData);
}

void InputWidgetsPage::onEditTextChanged(const QString& text, void* userData)
{
    record(tr("trigger mode"), QStringLiteral("editTextChanged(\"%1\")").arg(text), userData);
}

void InputWidgetsPage::onLostFocus()
{
    const QString source = sender() == m_gain ? tr("gain") : tr("black level");
    record(source, QStringLiteral("lostFocus()"), nullptr);
}

void InputWidgetsPage::onExposureChanged(double value)
{
    record(tr("exposure"), QStringLiteral("valueChanged(%1)").arg(value, 0, 'g', 12), nullptr);
}

void InputWidgetsPage::onRegisterChanged()
{
    const int address = m_address->hexSpinBox()->value();
    const int value = m_registerValue->hexSpinBox()->value();
    m_register->setText(QStringLiteral("write16(0x%1, 0x%2)  // %3")
                            .arg(address, 4, 16, QLatin1Char('0'))
                            .arg(value, 2, 16, QLatin1Char('0'))
                            .arg(value));
}

void InputWidgetsPage::onFieldChanged()
{
    auto* field = qobject_cast<kes::qt::gui::widgets::AbstractLabeledWidget*>(sender());
    if (!field)
        return;
    QString shown;
    if (field == m_name)
        shown = m_name->lineEdit()->text();
    else if (field == m_frameRate)
        shown = m_frameRate->doubleSpinBox()->text();
    else if (field == m_binning)
        shown = m_binning->spinBox()->text();
    else
        shown = m_pixelFormat->comboBox()->currentText();
    record(field->labelText(), shown, nullptr);
}

void InputWidgetsPage::onTrackingToggled(bool on)
{
    m_gain->setDisplayStyleTracking(on);
    m_offset->setDisplayStyleTracking(on);
    m_mode->setDisplayStyleTracking(on);
    if (on && m_highlight->isChecked())
        m_gain->setDisplayStyle(kes::qt::gui::widgets::Widget::Highlighted);
}

void InputWidgetsPage::onHighlightToggled(bool on)
{
    m_gain->setDisplayStyle(on ? kes::qt::gui::widgets::Widget::Highlighted
                               : kes::qt::gui::widgets::Widget::Normal);
}

} // namespace kes::gallery
