#include <kes/qt/translation/item.h>

#include <kes/qt/translation/manager.h>

namespace kes::qt::translation {

Item::Item() = default;

Item::Item(const QString& key)
    : m_key(key)
{
}

bool Item::contains(const QString& lang) const
{
    return m_translations.contains(lang);
}

QString Item::tr(const QString& lang, bool fallback) const
{
    return lookup(lang, fallback);
}

QString Item::tr(bool fallback) const
{
    return lookup(Manager::singleton().currentLanguageString(), fallback);
}

QString Item::lookup(const QString& lang, bool fallback) const
{
    const auto it = m_translations.constFind(lang);
    if (it != m_translations.constEnd())
        return it.value();
    return fallback ? m_key : QString();
}

void Item::add(const QString& lang, const QString& text)
{
    m_translations.insert(lang, text);
}

} // namespace kes::qt::translation
