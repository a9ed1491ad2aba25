// The spin boxes' validators on arbitrary texts under an English and a German locale, with ranges
// from the input: a verdict of the enumeration, a cursor inside the text, and no crash or hang.
#include "fuzzapp.h"

#include <kes/qt/gui/widgets/hexspinbox.h>
#include <kes/qt/gui/widgets/sciencespinbox.h>

#include <QLocale>
#include <QValidator>

#include <fuzzer/FuzzedDataProvider.h>

using kes::qt::gui::widgets::HexSpinBox;
using kes::qt::gui::widgets::ScienceSpinBox;

namespace {

void checkVerdict(QValidator::State state, const QString& text, int pos)
{
    kes::fuzz::require(state == QValidator::Invalid || state == QValidator::Intermediate
                           || state == QValidator::Acceptable,
                       "a verdict of the enumeration");
    kes::fuzz::require(pos >= 0 && pos <= text.size(), "the cursor stays within the text");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    kes::fuzz::ensureApplication();
    static ScienceSpinBox* science = new ScienceSpinBox;
    static HexSpinBox* hex = new HexSpinBox;
    FuzzedDataProvider input(data, size);
    const QLocale locale(input.ConsumeBool() ? QLocale::German : QLocale::English,
                         input.ConsumeBool() ? QLocale::Germany : QLocale::UnitedStates);
    science->setLocale(locale);
    hex->setLocale(locale);
    science->setDecimals(input.ConsumeIntegralInRange<int>(-2, 20));
    const double a = input.ConsumeFloatingPoint<double>();
    const double b = input.ConsumeFloatingPoint<double>();
    science->setRange(a, b);
    hex->setRange(input.ConsumeIntegral<int>(), input.ConsumeIntegral<int>());
    const QString text = QString::fromStdString(input.ConsumeRandomLengthString(64));
    const int cursor = input.ConsumeIntegralInRange<int>(0, text.size());

    QString scienceText = text;
    int sciencePos = cursor;
    checkVerdict(science->validate(scienceText, sciencePos), scienceText, sciencePos);
    science->valueFromText(text);

    QString hexText = text;
    int hexPos = cursor;
    checkVerdict(hex->validate(hexText, hexPos), hexText, hexPos);
    hex->valueFromText(text);
    return 0;
}
