#include <kes/qt/translation/container.h>

#include <kes/qt/translation/manager.h>

#include <QLatin1String>

namespace kes::qt::translation {

namespace {

const QChar openBracket = QLatin1Char('[');
const QChar closeBracket = QLatin1Char(']');
const QChar backslash = QLatin1Char('\\');

// A bracket is escaped by one backslash; a second backslash before that one cancels the escape.
bool isEscaped(const QString& text, int index)
{
    return index > 0 && text.at(index - 1) == backslash
           && (index == 1 || text.at(index - 2) != backslash);
}

// Puts the arguments into the placeholders of a translation and removes the escapes.
QString insertArgs(QString result, const QStringList& args)
{
    int pos = 0;
    int n = 0;
    while (n < args.size()) {
        const int open = result.indexOf(openBracket, pos);
        if (open < 0)
            break;
        pos = open + 1;
        if (pos >= result.size() || isEscaped(result, open) || result.at(pos) != closeBracket)
            continue;
        result.replace(open, 2, args.at(n));
        ++n;
        // pos stays inside the argument just inserted: a "[]" in it takes the next argument.
    }

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
    return m_items.contains(removeArgs(text));
}

bool Container::contains(const QString& text, const QString& lang) const
{
    const auto it = m_items.constFind(removeArgs(text));
    return it != m_items.constEnd() && it->contains(lang);
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
    QStringList args;
    const auto it = m_items.constFind(removeArgs(text, &args));
    if (it == m_items.constEnd())
        return fallback ? text : QString();
    return insertArgs(it->lookup(Manager::singleton().currentLanguageString(), fallback), args);
}

void Container::add(const QString& key)
{
    if (!m_items.contains(key))
        m_items.insert(key, Item(key));
}

void Container::add(const QString& key, const QString& lang, const QString& text)
{
    auto it = m_items.find(key);
    if (it == m_items.end())
        it = m_items.insert(key, Item(key));
    it->add(lang, text);
}

void Container::add(const boost::shared_ptr<const Container>& other)
{
    if (!other)
        return;
    // A copy of the other map, so that merging a container into itself reads a stable source.
    const QMap<QString, Item> source = other->m_items;
    for (auto it = source.constBegin(); it != source.constEnd(); ++it)
        m_items.insert(it.key(), it.value());
}

QString Container::removeArgs(const QString& text, QStringList* args, QList<int>* positions)
{
    QStringList foundArgs;
    QList<int> foundPositions;
    int pos = 0;
    for (;;) {
        const int open = text.indexOf(openBracket, pos);
        if (open < 0)
            break;
        pos = open + 1;
        if (pos >= text.size() || isEscaped(text, open))
            continue;
        const int close = text.indexOf(closeBracket, pos);
        // An unclosed bracket ends the scan; starting over would find it again forever.
        if (close < 0)
            break;
        pos = close + 1;
        // An escaped closing bracket abandons the opening one.
        if (isEscaped(text, close))
            continue;
        foundArgs.append(text.mid(open + 1, close - open - 1));
        foundPositions.append(open);
    }

    QString result = text;
    for (int i = foundArgs.size() - 1; i >= 0; --i)
        result.remove(foundPositions.at(i) + 1, foundArgs.at(i).size());

    if (args)
        *args = foundArgs;
    if (positions)
        *positions = foundPositions;
    return result;
}

} // namespace kes::qt::translation
