#include <kes/qt/gui/widgets/sciencespinbox.h>

#include <QDoubleValidator>
#include <QEvent>
#include <QLineEdit>
#include <QLocale>

#include <algorithm>
#include <cfloat>
#include <cmath>
#include <cstdio>
#include <string>
#include <vector>

namespace kes::qt::gui::widgets {

struct ScienceSpinBoxPrivate
{
    int displayDecimals = 12;
    QChar point = QLatin1Char('.');
    QChar group;
    QDoubleValidator* validator = nullptr;
    bool decadeStepping = false;
    bool fixedNotation = false;
};

namespace {

// How many candidates the could-still-become-valid search looks at before it gives up.
constexpr qint64 candidateBound = 500000;

// A non-negative integer as decimal digits, most significant first, without leading zeros ("0"
// for zero). Strings rather than 64-bit integers, because the range's bounds reach 1.8e308.
using Digits = std::string;

Digits digitsOf(quint64 value)
{
    return std::to_string(value);
}

// The integer part of a finite, non-negative double, exactly.
Digits digitsOf(double value)
{
    char buffer[400];
    const int length = std::snprintf(buffer, sizeof buffer, "%.0f", std::floor(value));
    if (length <= 0 || length >= int(sizeof buffer))
        return Digits("0");
    return Digits(buffer, std::size_t(length));
}

void decrement(Digits& digits)
{
    std::size_t i = digits.size();
    while (i > 0 && digits[i - 1] == '0')
        digits[--i] = '9';
    if (i == 0)
        return; // zero has no predecessor; callers never ask
    --digits[i - 1];
    if (digits.size() > 1 && digits[0] == '0')
        digits.erase(0, 1);
}

void increment(Digits& digits)
{
    std::size_t i = digits.size();
    while (i > 0 && digits[i - 1] == '9')
        digits[--i] = '0';
    if (i == 0)
        digits.insert(digits.begin(), '1');
    else
        ++digits[i - 1];
}

quint64 magnitude(qint64 value)
{
    return value < 0 ? quint64(0) - quint64(value) : quint64(value);
}

// Tells whether a pattern of digits occurs, in order, among the digits of a candidate. Matching
// greedily from the front is exact for that question, so a candidate's digits lead from one match
// count (state) to the next. Candidates are walked in blocks of a thousand that share all but
// their last three digits: the shared part is matched once per block, and the last three digits
// come from a table per state, so that a candidate costs one look-up and no string is built.
class Matcher
{
public:
    explicit Matcher(Digits pattern)
        : m_pattern(std::move(pattern))
        , m_rows(m_pattern.size() + 1)
    {
    }

    int length() const { return int(m_pattern.size()); }

    int advance(int state, char digit) const
    {
        return state < length() && m_pattern[std::size_t(state)] == digit ? state + 1 : state;
    }

    int advance(int state, const char* begin, const char* end) const
    {
        for (; begin != end && state < length(); ++begin)
            state = advance(state, *begin);
        return state;
    }

    bool matches(const Digits& candidate) const
    {
        return advance(0, candidate.data(), candidate.data() + candidate.size()) == length();
    }

    // The state after the three digits of \a last (zero-padded, 0 to 999) from \a state.
    int block(int state, int last)
    {
        std::vector<quint16>& row = m_rows[std::size_t(state)];
        if (row.empty()) {
            row.resize(1000);
            for (int x = 0; x < 1000; ++x) {
                int s = advance(state, char('0' + x / 100));
                s = advance(s, char('0' + x / 10 % 10));
                row[std::size_t(x)] = quint16(advance(s, char('0' + x % 10)));
            }
        }
        return row[std::size_t(last)];
    }

private:
    Digits m_pattern;
    std::vector<std::vector<quint16>> m_rows;
};

enum class Search { Found, NotFound, GaveUp };

Digits threeDigits(int value)
{
    const char text[3] = {char('0' + value / 100), char('0' + value / 10 % 10), char('0' + value % 10)};
    return Digits(text, 3);
}

int lastThree(const Digits& digits)
{
    return std::stoi(digits.substr(digits.size() - 3));
}

// Looks through the candidates from \a from down to \a lo (\a from >= \a lo) for one holding the
// pattern. Every candidate looked at costs one unit of \a budget; GaveUp means candidates were
// left when it ran out.
Search searchDown(Matcher& matcher, const Digits& lo, Digits from, qint64& budget, Digits& match)
{
    for (;;) {
        if (from.size() <= 3) {
            const int end = std::stoi(lo);
            for (int x = std::stoi(from); x >= end; --x) {
                if (budget == 0)
                    return Search::GaveUp;
                --budget;
                const Digits candidate = digitsOf(quint64(x));
                if (matcher.matches(candidate)) {
                    match = candidate;
                    return Search::Found;
                }
            }
            return Search::NotFound;
        }
        const std::size_t split = from.size() - 3;
        const bool lastBlock = lo.size() == from.size() && lo.compare(0, split, from, 0, split) == 0;
        const int state = matcher.advance(0, from.data(), from.data() + split);
        const int end = lastBlock ? lastThree(lo) : 0;
        for (int x = lastThree(from); x >= end; --x) {
            if (budget == 0)
                return Search::GaveUp;
            --budget;
            if (matcher.block(state, x) == matcher.length()) {
                match = from.substr(0, split) + threeDigits(x);
                return Search::Found;
            }
        }
        if (lastBlock)
            return Search::NotFound;
        Digits prefix = from.substr(0, split);
        decrement(prefix);
        from = prefix == "0" ? Digits("999") : prefix + "999";
    }
}

// The same upwards, from \a from to \a hi.
Search searchUp(Matcher& matcher, const Digits& hi, Digits from, qint64& budget, Digits& match)
{
    for (;;) {
        if (from.size() <= 3) {
            const bool lastBlock = hi.size() <= 3;
            const int end = lastBlock ? std::stoi(hi) : 999;
            for (int x = std::stoi(from); x <= end; ++x) {
                if (budget == 0)
                    return Search::GaveUp;
                --budget;
                const Digits candidate = digitsOf(quint64(x));
                if (matcher.matches(candidate)) {
                    match = candidate;
                    return Search::Found;
                }
            }
            if (lastBlock)
                return Search::NotFound;
            from = "1000";
            continue;
        }
        const std::size_t split = from.size() - 3;
        const bool lastBlock = hi.size() == from.size() && hi.compare(0, split, from, 0, split) == 0;
        const int state = matcher.advance(0, from.data(), from.data() + split);
        const int end = lastBlock ? lastThree(hi) : 999;
        for (int x = lastThree(from); x <= end; ++x) {
            if (budget == 0)
                return Search::GaveUp;
            --budget;
            if (matcher.block(state, x) == matcher.length()) {
                match = from.substr(0, split) + threeDigits(x);
                return Search::Found;
            }
        }
        if (lastBlock)
            return Search::NotFound;
        Digits prefix = from.substr(0, split);
        increment(prefix);
        from = prefix + "000";
    }
}

bool isDigits(const QString& text, int begin, int end)
{
    for (int i = begin; i < end; ++i) {
        if (text.at(i) < QLatin1Char('0') || text.at(i) > QLatin1Char('9'))
            return false;
    }
    return true;
}

bool isPlus(QChar c, const QLocale& locale)
{
    return c == QLatin1Char('+') || c == locale.positiveSign();
}

bool isMinus(QChar c, const QLocale& locale)
{
    return c == QLatin1Char('-') || c == locale.negativeSign();
}

} // namespace

ScienceSpinBox::ScienceSpinBox(QWidget* parent)
    : QDoubleSpinBox(parent)
    , d(std::make_unique<ScienceSpinBoxPrivate>())
{
    d->validator = new QDoubleValidator(this);
    d->validator->setDecimals(1000);
    d->validator->setNotation(QDoubleValidator::ScientificNotation);
    initLocalValues(parent);
    // The base must never cut digits: the text is this class's business.
    setDecimals(1000);
    setRange(-DBL_MAX, DBL_MAX);
    lineEdit()->setValidator(d->validator);
}

ScienceSpinBox::~ScienceSpinBox() = default;

int ScienceSpinBox::displayDecimals() const
{
    return d->displayDecimals;
}

void ScienceSpinBox::setDisplayDecimals(int decimals)
{
    decimals = std::clamp(decimals, 1, 17);
    if (decimals == d->displayDecimals)
        return;
    d->displayDecimals = decimals;
    refreshText();
}

bool ScienceSpinBox::decadeStepping() const
{
    return d->decadeStepping;
}

void ScienceSpinBox::setDecadeStepping(bool enable)
{
    d->decadeStepping = enable;
}

bool ScienceSpinBox::fixedNotation() const
{
    return d->fixedNotation;
}

void ScienceSpinBox::setFixedNotation(bool enable)
{
    if (enable == d->fixedNotation)
        return;
    d->fixedNotation = enable;
    refreshText();
}

void ScienceSpinBox::initLocalValues(QWidget* widget)
{
    const QLocale locale = widget ? widget->locale() : QLocale();
    const QString sample = locale.toString(4567.1, 'g', 6);
    if (sample.size() == 6) {
        d->point = sample.at(4);
        d->group = QChar();
    } else if (sample.size() == 7) {
        d->group = sample.at(1);
        d->point = sample.at(5);
    }
    // The line edit's validator judges the keystrokes: it must read the same characters.
    d->validator->setLocale(locale);
}

void ScienceSpinBox::changeEvent(QEvent* event)
{
    QDoubleSpinBox::changeEvent(event);
    if (event->type() == QEvent::LocaleChange) {
        initLocalValues(this);
        refreshText();
    }
}

void ScienceSpinBox::refreshText()
{
    // Setting the prefix again is the base's public way to show the value anew.
    setPrefix(prefix());
}

void ScienceSpinBox::stepUp()
{
    stepBy(1);
}

void ScienceSpinBox::stepDown()
{
    stepBy(-1);
}

void ScienceSpinBox::stepBy(int steps)
{
    // One step per call whatever its size, so that page keys and fast wheels do not leap decades.
    if (!d->decadeStepping) {
        QDoubleSpinBox::stepBy(steps < 0 ? -1 : 1);
        return;
    }
    const double current = value();
    setValue(round(steps < 0 ? current / 10.0 : current * 10.0));
    selectAll();
}

QString ScienceSpinBox::textFromValue(double value) const
{
    QString text = locale().toString(value, d->fixedNotation ? 'f' : 'g', d->displayDecimals);
    if (std::fabs(value) >= 1000.0 && !d->group.isNull())
        text.remove(d->group);
    if (text.contains(d->point))
        return text;
    const int exponent = text.indexOf(QLatin1Char('e'), 0, Qt::CaseInsensitive);
    const QString fraction = QString(d->point) + QLatin1Char('0');
    if (exponent < 0)
        text += fraction;
    else
        text.insert(exponent, fraction);
    return text;
}

double ScienceSpinBox::round(double value) const
{
    const QLocale locale = this->locale();
    return locale.toDouble(locale.toString(value, 'g', d->displayDecimals));
}

void ScienceSpinBox::fixup(QString& text) const
{
    if (!d->group.isNull())
        text.remove(d->group);
}

QString ScienceSpinBox::stripped(const QString& text, int* pos) const
{
    // The cursor moves left by what is cut away before it, and stays inside what is left.
    int cursor = pos ? *pos : 0;
    QString result = text;
    const QString special = specialValueText();
    if (special.isEmpty() || text != special) {
        const QString pre = prefix();
        const QString suf = suffix();
        if (!pre.isEmpty() && result.startsWith(pre)) {
            result.remove(0, pre.size());
            cursor -= std::min(cursor, int(pre.size()));
        }
        if (!suf.isEmpty() && result.endsWith(suf))
            result.chop(suf.size());
    }
    int leading = 0;
    while (leading < result.size() && result.at(leading).isSpace())
        ++leading;
    cursor -= std::min(cursor, leading);
    result = result.trimmed();
    if (pos)
        *pos = std::clamp(cursor, 0, int(result.size()));
    return result;
}

QValidator::State ScienceSpinBox::validate(QString& text, int& pos) const
{
    QValidator::State state = QValidator::Invalid;
    validateAndInterpret(text, pos, state);
    return state;
}

double ScienceSpinBox::valueFromText(const QString& text) const
{
    QString copy = text;
    int pos = lineEdit()->cursorPosition();
    QValidator::State state = QValidator::Acceptable;
    return validateAndInterpret(copy, pos, state).toDouble();
}

QVariant ScienceSpinBox::validateAndInterpret(QString& input, int& pos, QValidator::State& state) const
{
    // One cache for the whole process: valueFromText() right after validate() costs nothing.
    static QString cachedText;
    static double cachedValue = 0.0;
    static QValidator::State cachedState = QValidator::Invalid;
    if (!input.isEmpty() && input == cachedText) {
        state = cachedState;
        return cachedValue;
    }

    const double min = minimum();
    const double max = maximum();
    const QLocale locale = this->locale();
    const QChar point = d->point;
    const QChar group = d->group;

    // Where the stripped text starts within the input.
    int offset = 0;
    if (specialValueText().isEmpty() || input != specialValueText()) {
        if (!prefix().isEmpty() && input.startsWith(prefix()))
            offset = prefix().size();
    }
    const int inputPos = pos;
    // The input itself is not changed here, so the caller's cursor stays where it is.
    int strippedPos = pos;
    QString copy = stripped(input, &strippedPos);
    while (offset < input.size() && input.at(offset).isSpace())
        ++offset;

    double value = 0.0;
    state = QValidator::Invalid;
    auto signAllowed = [&](QChar c) {
        return (isPlus(c, locale) && max >= 0.0) || (isMinus(c, locale) && min <= 0.0);
    };

    bool decided = false;
    if (copy.isEmpty()) {
        state = QValidator::Intermediate;
        decided = true;
    } else if (copy.size() == 1) {
        const QChar c = copy.at(0);
        if (c == point || signAllowed(c)) {
            state = QValidator::Intermediate;
            decided = true;
        } else if (!group.isNull() && c == group) {
            decided = true;
        }
    } else if (copy.size() == 2) {
        if (signAllowed(copy.at(0)) && copy.at(1) == point) {
            state = QValidator::Intermediate;
            decided = true;
        } else if (!group.isNull() && copy.at(0) == group) {
            decided = true;
        }
    }

    if (!decided) {
        // A decimal point typed onto the existing one steps over it instead of doubling it.
        const int first = copy.indexOf(point);
        if (first >= 0 && first + 1 < copy.size() && copy.at(first + 1) == point
            && inputPos - offset == first + 1) {
            copy.remove(first + 1, 1);
            input.remove(offset + first + 1, 1);
        }

        bool ok = !std::any_of(copy.cbegin(), copy.cend(), [](QChar c) { return c.isSpace(); });
        QString plain = copy;
        if (ok) {
            value = locale.toDouble(copy, &ok);
            if (!ok && !group.isNull() && copy.contains(group)) {
                const bool smallRange = min > -1000.0 && max < 1000.0;
                const bool doubled = copy.contains(QString(2, group));
                if (!smallRange && !doubled) {
                    plain.remove(group);
                    value = locale.toDouble(plain, &ok);
                }
            }
        }
        if (ok) {
            if (value >= min && value <= max)
                state = QValidator::Acceptable;
            else if (min == max)
                state = QValidator::Invalid;
            else if ((value >= 0.0 && value > max) || (value < 0.0 && value < min))
                state = QValidator::Invalid;
            else
                state = isIntermediateValue(plain) ? QValidator::Intermediate : QValidator::Invalid;
        }
    }

    if (state != QValidator::Acceptable)
        value = std::clamp(0.0, min, std::max(min, max));
    cachedText = state == QValidator::Acceptable ? prefix() + copy + suffix() : input;
    cachedValue = value;
    cachedState = state;
    return value;
}

bool ScienceSpinBox::isIntermediateValue(const QString& text) const
{
    const QLocale locale = this->locale();
    double min = minimum();
    double max = maximum();
    if (std::isnan(min) || std::isnan(max) || min > max)
        return false;
    min = std::max(min, -DBL_MAX);
    max = std::min(max, DBL_MAX);

    QString body = text;
    if (!d->group.isNull())
        body.remove(d->group);
    bool negative = false;
    if (!body.isEmpty() && (isPlus(body.at(0), locale) || isMinus(body.at(0), locale))) {
        negative = isMinus(body.at(0), locale);
        body.remove(0, 1);
    }
    // The magnitudes the sign leaves within the range.
    double lo = 0.0;
    double hi = 0.0;
    if (negative) {
        if (!(min < 0.0))
            return false;
        lo = max < 0.0 ? -max : 0.0;
        hi = -min;
    } else {
        if (!(max >= 0.0))
            return false;
        lo = min > 0.0 ? min : 0.0;
        hi = max;
    }

    const int pointAt = body.indexOf(d->point);
    const int exponentAt = body.indexOf(QLatin1Char('e'), 0, Qt::CaseInsensitive);
    const int mantissaEnd = exponentAt < 0 ? body.size() : exponentAt;
    if (pointAt > mantissaEnd)
        return false;
    const int integerEnd = pointAt < 0 ? mantissaEnd : pointAt;
    if (!isDigits(body, 0, integerEnd) || !isDigits(body, pointAt < 0 ? integerEnd : pointAt + 1, mantissaEnd))
        return false;
    if (exponentAt >= 0) {
        // Digits typed into the mantissa or the exponent still move the value anywhere its sign
        // allows; only the characters must fit.
        int from = exponentAt + 1;
        if (from < body.size() && (isPlus(body.at(from), locale) || isMinus(body.at(from), locale)))
            ++from;
        return isDigits(body, from, body.size());
    }

    const QString fraction = pointAt < 0 ? QString() : body.mid(pointAt + 1);
    if (fraction.size() > decimals())
        return false;
    const bool zeroFraction =
        std::all_of(fraction.cbegin(), fraction.cend(), [](QChar c) { return c == QLatin1Char('0'); });

    // Leading zeros of the integer part may still get digits behind them ("0" becomes "05"), so
    // they constrain nothing.
    int firstDigit = 0;
    while (firstDigit < integerEnd && body.at(firstDigit) == QLatin1Char('0'))
        ++firstDigit;
    Matcher matcher(body.mid(firstDigit, integerEnd - firstDigit).toStdString());

    const Digits intLo = digitsOf(lo);
    const Digits intHi = digitsOf(hi);
    const double fractionLo = lo - std::floor(lo);
    const double fractionHi = hi - std::floor(hi);
    qint64 budget = candidateBound;
    Digits from = intHi;
    for (;;) {
        Digits match;
        const Search result = searchDown(matcher, intLo, from, budget, match);
        if (result == Search::GaveUp)
            return true;
        if (result == Search::NotFound)
            return false;
        // The fraction must still fit between the bounds of the integer part found.
        const double low = match == intLo ? fractionLo : 0.0;
        const double high = match == intHi ? fractionHi : 1.0;
        if (low < high || (low == high && (fraction.isEmpty() || (zeroFraction && low == 0.0))))
            return true;
        if (match == intLo)
            return false;
        from = match;
        decrement(from);
    }
}

bool ScienceSpinBox::isIntermediateValueHelper(qint64 num, qint64 min, qint64 max, qint64* match)
{
    auto answer = [match](qint64 value) {
        if (match)
            *match = value;
        return true;
    };
    if (num >= min && num <= max)
        return answer(num);
    if (min > max)
        return false;

    Matcher matcher(digitsOf(magnitude(num)));
    qint64 budget = candidateBound;
    Digits found;
    // From max down: the positive candidates, zero, then the negative ones by growing magnitude.
    if (max >= 1) {
        const Search result = searchDown(matcher, digitsOf(magnitude(std::max<qint64>(min, 1))),
                                         digitsOf(magnitude(max)), budget, found);
        if (result == Search::Found)
            return answer(qint64(std::stoull(found)));
        if (result == Search::GaveUp)
            return answer(num);
    }
    if (min <= 0 && max >= 0) {
        if (budget == 0)
            return answer(num);
        --budget;
        if (matcher.matches(Digits("0")))
            return answer(0);
    }
    if (min <= -1) {
        const Search result = searchUp(matcher, digitsOf(magnitude(min)),
                                       digitsOf(magnitude(std::min<qint64>(max, -1))), budget, found);
        if (result == Search::Found)
            return answer(qint64(quint64(0) - std::stoull(found)));
        if (result == Search::GaveUp)
            return answer(num);
    }
    return false;
}

} // namespace kes::qt::gui::widgets
