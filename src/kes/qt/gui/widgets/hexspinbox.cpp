#include <kes/qt/gui/widgets/hexspinbox.h>

#include <QFont>
#include <QRegExp>
#include <QRegExpValidator>

#include <algorithm>

namespace kes::qt::gui::widgets {

struct HexSpinBoxPrivate
{
    QRegExpValidator* validator = nullptr;
    int textWidth = 2;
    bool upperCase = false;
};

HexSpinBox::HexSpinBox(QWidget* parent)
    : QSpinBox(parent)
    , d(std::make_unique<HexSpinBoxPrivate>())
{
    d->validator = new QRegExpValidator(QRegExp(QStringLiteral("[0-9A-Fa-f]{1,8}")), this);
    setRange(0, 255);
    QFont fixed = font();
    fixed.setFamily(QStringLiteral("Courier"));
    fixed.setStyleHint(QFont::TypeWriter);
    setFont(fixed);
}

HexSpinBox::~HexSpinBox() = default;

int HexSpinBox::textWidth() const
{
    return d->textWidth;
}

void HexSpinBox::setTextWidth(int width)
{
    // A field wider than any int's digits only pads; the bound keeps the text finite.
    width = std::clamp(width, 0, 64);
    if (width == d->textWidth)
        return;
    d->textWidth = width;
    // Setting the prefix again is the base's public way to show the value anew.
    setPrefix(prefix());
}

bool HexSpinBox::upperCase() const
{
    return d->upperCase;
}

void HexSpinBox::setUpperCase(bool upperCase)
{
    if (upperCase == d->upperCase)
        return;
    d->upperCase = upperCase;
    setPrefix(prefix());
}

QString HexSpinBox::textFromValue(int value) const
{
    const QString text = QStringLiteral("%1").arg(value, d->textWidth, 16, QLatin1Char('0'));
    return d->upperCase ? text.toUpper() : text.toLower();
}

int HexSpinBox::interpretText(QString& input, int& pos, QValidator::State& state) const
{
    int result = value();
    QString copy = input;
    if (!prefix().isEmpty() && copy.startsWith(prefix()))
        copy.remove(0, prefix().size());
    if (!suffix().isEmpty() && copy.endsWith(suffix()))
        copy.chop(suffix().size());
    state = d->validator->validate(copy, pos);
    if (state == QValidator::Acceptable) {
        bool ok = false;
        result = copy.toInt(&ok, 16);
        if (!ok)
            result = 0;
    }
    return result;
}

int HexSpinBox::valueFromText(const QString& text) const
{
    QString copy = text;
    int pos = 0;
    QValidator::State state = QValidator::Invalid;
    return interpretText(copy, pos, state);
}

QValidator::State HexSpinBox::validate(QString& text, int& pos) const
{
    QValidator::State state = QValidator::Invalid;
    interpretText(text, pos, state);
    return state;
}

} // namespace kes::qt::gui::widgets
