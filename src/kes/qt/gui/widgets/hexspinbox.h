#ifndef KES_QT_GUI_WIDGETS_HEXSPINBOX_H
#define KES_QT_GUI_WIDGETS_HEXSPINBOX_H

#include <kes/qt/kes_qt_export.h>

#include <QSpinBox>
#include <QValidator>

#include <memory>

namespace kes::qt::gui::widgets {

struct HexSpinBoxPrivate;

/// A spin box for register-style values: its integer shown and typed in hexadecimal, zero-padded
/// to textWidth() digits, in a fixed-pitch font. The range is 0 to 255 until the application sets
/// another. Up to eight hex digits are accepted; a text that does not fit a signed 32-bit integer
/// reads as 0.
class KES_QT_EXPORT HexSpinBox : public QSpinBox
{
    Q_OBJECT
    /// The minimum number of digits shown, zero-padded.
    Q_PROPERTY(int textWidth READ textWidth WRITE setTextWidth)
    /// Whether the digits A to F are shown in upper case.
    Q_PROPERTY(bool upperCase READ upperCase WRITE setUpperCase)

public:
    /// Range 0 to 255, two lower-case digits, fixed-pitch font.
    explicit HexSpinBox(QWidget* parent = nullptr);
    ~HexSpinBox() override;

    /// The minimum number of digits shown, padded with "0"; 2 by default.
    int textWidth() const;
    /// Pads to \a width digits, kept within 0 to 64.
    void setTextWidth(int width);
    /// Digits A to F in upper case; lower case by default.
    bool upperCase() const;
    /// Shows the digits A to F in upper case, or in lower case.
    void setUpperCase(bool upperCase);

    /// The value \a input stands for: the current value unless the text (without prefix and
    /// suffix) is Acceptable hex; \a state gets the verdict.
    int interpretText(QString& input, int& pos, QValidator::State& state) const;

    /// \a value in hexadecimal, padded to textWidth() digits, in the chosen case.
    QString textFromValue(int value) const override;
    /// The value of \a text read as hexadecimal; see interpretText().
    int valueFromText(const QString& text) const override;
    /// Acceptable for one to eight hex digits (after prefix and suffix), Intermediate for none.
    QValidator::State validate(QString& text, int& pos) const override;

private:
    std::unique_ptr<HexSpinBoxPrivate> const d;
};

} // namespace kes::qt::gui::widgets

#endif
