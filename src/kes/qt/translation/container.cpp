#include <kes/qt/translation/container.h>

#include <kes/qt/translation/manager.h>

#include <QLatin1String>
#include <QVarLengthArray>

namespace kes::qt::translation {

namespace {

const QChar openBracket = QLatin1Char('[');
const QChar closeBracket = QLatin1Char(']');
const QChar backslash = QLatin1Char('\\');

// One argument of a source text: the indexes of its two brackets.
struct ArgSpan
{
    int open;
    int close;
};
// Texts rarely carry more than a handful of arguments; these live on the stack.
using ArgSpans = QVarLengthArray<ArgSpan, 8>;

// A bracket is escaped by one backslash; a second backslash before that one cancels the escape.
bool isEscaped(const QString& text, int index)
{
    return index > 0 && text.at(index - 1) == backslash
           && (index == 1 || text.at(index - 2) != backslash);
}

void scanArgs(const QString& text, ArgSpans& spans)
{
    int pos = 0;
    for (;;) {
        const int open = text.indexOf(openBracket, pos);
        if (open < 0)
            return;
        pos = open + 1;
        if (pos >= text.size() || isEscaped(text, open))
            continue;
        const int close = text.indexOf(closeBracket, pos);
        // An unclosed bracket ends the scan; starting over would find it again forever.
        if (close < 0)
            return;
        pos = close + 1;
        // An escaped closing bracket abandons the opening one.
        if (isEscaped(text, close))
            continue;
        spans.append({open, close});
    }
}

// The text with every argument cut out, leaving its empty "[]".
QString keyOf(const QString& text, const ArgSpans& spans)
{
    if (spans.isEmpty())
        return text;
    QString key;
    key.reserve(text.size());
    int from = 0;
    for (const ArgSpan& span : spans) {
        key.append(text.constData() + from, span.open + 1 - from);
        from = span.close;
    }
    key.append(text.constData() + from, text.size() - from);
    return key;
}

QStringRef argAt(const QString& text, const ArgSpan& span)
{
    return text.midRef(span.open + 1, span.close - span.open - 1);
}

// Removes the placeholders left over and then the escapes.
QString finish(QString result)
{
    // Most translations have neither brackets nor backslashes; spare them three scans.
    bool plain = true;
    for (const QChar c : qAsConst(result)) {
        if (c == openBracket || c == closeBracket || c == backslash) {
            plain = false;
            break;
        }
    }
    if (plain)
        return result;
    result.remove(QLatin1String("[]"));
    result.replace(QLatin1String("\\["), QLatin1String("["));
    result.replace(QLatin1String("\\]"), QLatin1String("]"));
    return result;
}

// Fills the placeholders of \a translation in place, one after another. The search goes on one
// character after the start of each inserted argument, so a "[]" inside an argument takes the
// next argument.
QString insertInPlace(QString result, const QString& text, const ArgSpans& spans)
{
    int pos = 0;
    int n = 0;
    while (n < spans.size()) {
        const int open = result.indexOf(openBracket, pos);
        if (open < 0)
            break;
        pos = open + 1;
        if (pos >= result.size() || isEscaped(result, open) || result.at(pos) != closeBracket)
            continue;
        const QStringRef arg = argAt(text, spans.at(n));
        result.replace(open, 2, arg.constData(), arg.size());
        ++n;
    }
    return result;
}

// The same result as insertInPlace() when no argument holds a "[", built in one pass: the result
// at any moment is \a out followed by the translation from \a copied on, and the search never has
// to look inside an inserted argument.
QString insertStreaming(const QString& translation, const QString& text, const ArgSpans& spans)
{
    int argsLength = 0;
    for (const ArgSpan& span : spans)
        argsLength += span.close - span.open - 1;
    QString out;
    out.reserve(translation.size() + argsLength);

    int copied = 0;
    // A character of the result, addressed by its index in the translation; those before copied
    // have been emitted, some of them as the end of an argument.
    const auto at = [&](int index) {
        return index >= copied ? translation.at(index) : out.at(out.size() - (copied - index));
    };

    int pos = 0;
    int n = 0;
    while (n < spans.size()) {
        const int open = translation.indexOf(openBracket, pos);
        if (open < 0)
            break;
        pos = open + 1;
        if (pos >= translation.size() || translation.at(pos) != closeBracket)
            continue;
        const int inResult = out.size() + (open - copied);
        if (inResult > 0 && at(open - 1) == backslash
            && (inResult == 1 || at(open - 2) != backslash)) {
            continue;
        }
        out.append(translation.constData() + copied, open - copied);
        const QStringRef arg = argAt(text, spans.at(n));
        out.append(arg.constData(), arg.size());
        copied = open + 2;
        // Resuming one character after the start of an empty argument skips the character that
        // followed the placeholder.
        pos = arg.isEmpty() ? open + 3 : open + 2;
        ++n;
    }
    out.append(translation.constData() + copied, translation.size() - copied);
    return out;
}

QString insertArgs(const QString& translation, const QString& text, const ArgSpans& spans)
{
    if (spans.isEmpty())
        return finish(translation);
    for (const ArgSpan& span : spans) {
        if (argAt(text, span).contains(openBracket))
            return finish(insertInPlace(translation, text, spans));
    }
    return finish(insertStreaming(translation, text, spans));
}

} // namespace

bool caseInsensitiveLessThan(const QString& a, const QString& b)
{
    return a.toLower() < b.toLower();
}

Container::Container() = default;

QStringList Container::keys() const
{
    return m_items.keys();
}

Item Container::item(const QString& key) const
{
    return m_items.value(key);
}

bool Container::contains(const QString& text) const
{
    return m_keys.contains(removeArgs(text));
}

bool Container::contains(const QString& text, const QString& lang) const
{
    const auto language = m_byLanguage.constFind(lang);
    return language != m_byLanguage.constEnd() && language->contains(removeArgs(text));
}

QString Container::tr(const QString& key, const QString& lang, bool fallback) const
{
    const auto it = m_items.constFind(key);
    if (it == m_items.constEnd())
        return fallback ? key : QString();
    return it->lookup(lang, fallback);
}

QString Container::tr(const QString& text, bool fallback) const
{
    ArgSpans spans;
    scanArgs(text, spans);
    const QString key = keyOf(text, spans);

    const auto language = m_byLanguage.constFind(Manager::singleton().currentLanguageString());
    if (language != m_byLanguage.constEnd()) {
        const auto translation = language->constFind(key);
        if (translation != language->constEnd())
            return insertArgs(translation.value(), text, spans);
    }
    // Without a translation an item falls back to its key, arguments put back.
    if (!fallback)
        return QString();
    return m_keys.contains(key) ? insertArgs(key, text, spans) : text;
}

void Container::add(const QString& key)
{
    if (m_items.contains(key))
        return;
    m_items.insert(key, Item(key));
    m_keys.insert(key);
}

void Container::add(const QString& key, const QString& lang, const QString& text)
{
    add(key);
    m_items[key].add(lang, text);
    m_byLanguage[lang].insert(key, text);
}

void Container::add(const boost::shared_ptr<const Container>& other)
{
    if (!other)
        return;
    // A copy of the other map, so that merging a container into itself reads a stable source.
    const QMap<QString, Item> source = other->m_items;
    for (auto it = source.constBegin(); it != source.constEnd(); ++it) {
        const auto existing = m_items.constFind(it.key());
        if (existing != m_items.constEnd())
            unindexItem(existing.value());
        m_items.insert(it.key(), it.value());
        indexItem(it.value());
    }
}

void Container::indexItem(const Item& item)
{
    m_keys.insert(item.key());
    for (auto it = item.translations().constBegin(); it != item.translations().constEnd(); ++it)
        m_byLanguage[it.key()].insert(item.key(), it.value());
}

void Container::unindexItem(const Item& item)
{
    for (auto it = item.translations().constBegin(); it != item.translations().constEnd(); ++it)
        m_byLanguage[it.key()].remove(item.key());
}

QString Container::removeArgs(const QString& text, QStringList* args, QList<int>* positions)
{
    ArgSpans spans;
    scanArgs(text, spans);
    if (args) {
        args->clear();
        for (const ArgSpan& span : spans)
            args->append(argAt(text, span).toString());
    }
    if (positions) {
        positions->clear();
        for (const ArgSpan& span : spans)
            positions->append(span.open);
    }
    return keyOf(text, spans);
}

} // namespace kes::qt::translation
