#ifndef KES_GALLERY_INPUTWIDGETSPAGE_H
#define KES_GALLERY_INPUTWIDGETSPAGE_H

#include "page.h"

class QCheckBox;
class QLabel;
class QListWidget;

namespace kes::qt::gui::widgets {
class ComboBox;
class DoubleSpinBox;
class LabeledComboBox;
class LabeledDoubleSpinBox;
class LabeledHexSpinBox;
class LabeledLineEdit;
class LabeledSpinBox;
class ScienceSpinBox;
class SpinBox;
} // namespace kes::qt::gui::widgets

namespace kes::gallery {

/// The input widgets: a camera's parameter form with the exposure in scientific notation, a
/// sensor register in hexadecimal, gain, offset and trigger mode in the edit-tracking widgets and
/// the rest in labelled fields, beside the list of signals the application receives from them,
/// each with the user data that tells the editors apart.
class InputWidgetsPage : public Page
{
    Q_OBJECT

public:
    explicit InputWidgetsPage(QWidget* parent = nullptr);
    ~InputWidgetsPage() override;

    QString id() const override;
    QString title() const override;
    void retranslate() override;

private Q_SLOTS:
    // One slot per signature serves every editor: the user data names the parameter.
    void onValueChanged(int value, void* userData);
    void onValueChanged(double value, void* userData);
    void onEditingFinished(void* userData);
    void onActivated(const QString& text, void* userData);
    void onEditTextChanged(const QString& text, void* userData);
    void onLostFocus();
    void onExposureChanged(double value);
    void onRegisterChanged();
    void onFieldChanged();
    void onTrackingToggled(bool on);
    void onHighlightToggled(bool on);

private:
    void record(const QString& source, const QString& signal, void* userData);

    QLabel* m_heading = nullptr;
    QLabel* m_intro = nullptr;
    QLabel* m_formHeading = nullptr;
    QLabel* m_exposureLabel = nullptr;
    QLabel* m_gainLabel = nullptr;
    QLabel* m_offsetLabel = nullptr;
    QLabel* m_modeLabel = nullptr;
    kes::qt::gui::widgets::ScienceSpinBox* m_exposure = nullptr;
    kes::qt::gui::widgets::DoubleSpinBox* m_gain = nullptr;
    kes::qt::gui::widgets::SpinBox* m_offset = nullptr;
    kes::qt::gui::widgets::ComboBox* m_mode = nullptr;
    kes::qt::gui::widgets::LabeledHexSpinBox* m_address = nullptr;
    kes::qt::gui::widgets::LabeledHexSpinBox* m_registerValue = nullptr;
    kes::qt::gui::widgets::LabeledLineEdit* m_name = nullptr;
    kes::qt::gui::widgets::LabeledDoubleSpinBox* m_frameRate = nullptr;
    kes::qt::gui::widgets::LabeledSpinBox* m_binning = nullptr;
    kes::qt::gui::widgets::LabeledComboBox* m_pixelFormat = nullptr;
    QCheckBox* m_tracking = nullptr;
    QCheckBox* m_highlight = nullptr;
    QLabel* m_signalsHeading = nullptr;
    QLabel* m_signalsNote = nullptr;
    QListWidget* m_signals = nullptr;
    QLabel* m_register = nullptr;
};

} // namespace kes::gallery

#endif
