#ifndef KES_QT_GUI_WIDGETS_SCIENCESPINBOX_H
#define KES_QT_GUI_WIDGETS_SCIENCESPINBOX_H

#include <kes/qt/kes_qt_export.h>

#include <QDoubleSpinBox>
#include <QValidator>
#include <QVariant>

#include <memory>

namespace kes::qt::gui::widgets {

struct ScienceSpinBoxPrivate;

/// A double spin box for the whole double range, in plain or exponent notation (1.5e-07), with
/// the decimal point and digit-group separator of the widget's locale.
///
/// The value is taken from the text with the box's own rules: a text that parses inside the range
/// is Acceptable; one that is out of range but can still become an in-range number by typing
/// further digits is Intermediate (typing 1 on the way to 150 in the range 100 to 200); anything
/// else is Invalid. Verdicts are kept in one cache for the whole process, so that the value
/// conversion after a validation costs nothing.
///
/// With decadeStepping() the arrows multiply or divide by ten, one decade per step, instead of
/// adding the single step.
///
/// Keystrokes are judged by a QDoubleValidator in the widget's locale on the line edit's whole
/// text, so a prefix or suffix cannot be typed around: put the unit into a label.
class KES_QT_EXPORT ScienceSpinBox : public QDoubleSpinBox
{
    Q_OBJECT
    /// The significant digits shown, 1 to 17.
    Q_PROPERTY(int displayDecimals READ displayDecimals WRITE setDisplayDecimals)
    /// Whether a step multiplies or divides by ten.
    Q_PROPERTY(bool decadeStepping READ decadeStepping WRITE setDecadeStepping)
    /// Whether values are shown without an exponent.
    Q_PROPERTY(bool fixedNotation READ fixedNotation WRITE setFixedNotation)

public:
    /// The whole double range, 12 significant digits, in the locale of \a parent (the default locale for null).
    explicit ScienceSpinBox(QWidget* parent = nullptr);
    ~ScienceSpinBox() override;

    /// Precision of the shown text and of round(); 12 by default, kept within 1 to 17 (a double
    /// holds no more significant digits).
    int displayDecimals() const;
    /// Sets the significant digits shown; kept within 1 to 17.
    void setDisplayDecimals(int decimals);
    /// Whether a step multiplies or divides by ten; off by default.
    bool decadeStepping() const;
    /// Makes steps multiply or divide by ten, or add the single step again.
    void setDecadeStepping(bool enable);
    /// Plain 'f' notation instead of 'g' (which switches to an exponent for large and small values).
    bool fixedNotation() const;
    /// Shows values without an exponent, or in 'g' notation again.
    void setFixedNotation(bool enable);

    /// The verdict of validateAndInterpret() on \a text.
    QValidator::State validate(QString& text, int& pos) const override;
    /// Removes the digit-group separators.
    void fixup(QString& text) const override;
    /// One step per call, whatever \a steps says (down for a negative count, else up), so that page keys and fast wheels do not leap decades.
    void stepBy(int steps) override;
    /// The value of \a text by the box's own rules.
    double valueFromText(const QString& text) const override;
    /// \a value with displayDecimals() significant digits in the widget's locale.
    QString textFromValue(double value) const override;

    /// \a value with displayDecimals() significant digits, in the widget's locale.
    double round(double value) const;
    /// \a text without prefix and suffix (unless it is the special-value text) and trimmed;
    /// \a pos, if given, moves by the change in length.
    QString stripped(const QString& text, int* pos = nullptr) const;
    /// The verdict on \a input and its value; may remove a decimal point typed onto another one.
    QVariant validateAndInterpret(QString& input, int& pos, QValidator::State& state) const;
    /// Whether the digits of \a text (stripped, group separators removed) can still be completed
    /// to an in-range value by typing more digits, keeping its sign and decimal point.
    bool isIntermediateValue(const QString& text) const;

    /// Whether the digits typed so far, \a num, can become an integer in [\a min, \a max] by
    /// inserting digits: true at once when \a num is in range; otherwise the candidates from
    /// \a max down are searched for one that holds the digits of |num| in order (the first found
    /// goes to \a match). After 500,000 candidates the search gives up and answers true with
    /// \a match = \a num, so that huge ranges stay fast. \a match may be null.
    static bool isIntermediateValueHelper(qint64 num, qint64 min, qint64 max, qint64* match);

public Q_SLOTS:
    /// One step up.
    void stepUp();
    /// One step down.
    void stepDown();

protected:
    /// Takes the decimal point and group separator from \a widget's locale (the default locale
    /// for null).
    void initLocalValues(QWidget* widget);
    void changeEvent(QEvent* event) override;

private:
    void refreshText();

    std::unique_ptr<ScienceSpinBoxPrivate> const d;
};

} // namespace kes::qt::gui::widgets

#endif
