#include <kes/qt/translation/serialiser.h>

#include <kes/qt/translation/manager.h>

#include <QDomDocument>
#include <QDomText>
#include <QLatin1String>

#include <algorithm>

#ifndef KES_QT_TRANSLATION_HAVE_XERCES
#error "The Xerces-C headers (Debian package libxerces-c-dev) are needed to build the serialiser"
#endif

namespace kes::qt::translation {

namespace {

const char* const standardLanguages[] = {"de", "en", "fr", "es"};

QString prefixed(const QString& prefix, const char* name)
{
    const QString plain = QLatin1String(name);
    return prefix.isEmpty() ? plain : prefix + QLatin1Char(':') + plain;
}

} // namespace

Serialiser::Serialiser() = default;

QDomElement Serialiser::save(const ConstContainerPtr& container, QDomDocument& document) const
{
    QDomElement section = document.createElement(QStringLiteral("translations"));
    if (!container)
        return section;

    const QString prefix = Manager::singleton().namespacePrefix();
    const QString itemName = prefixed(prefix, "item");
    const QString translationName = prefixed(prefix, "translation");
    const QString keyName = prefixed(prefix, "key");
    const QString langName = prefixed(prefix, "lang");

    QStringList keys = container->keys();
    // Stable, so that keys equal in lower case keep their map order (upper case first).
    std::stable_sort(keys.begin(), keys.end(), caseInsensitiveLessThan);

    for (const QString& key : qAsConst(keys)) {
        const Item item = container->item(key);
        QDomElement itemElement = document.createElement(itemName);
        section.appendChild(itemElement);
        itemElement.setAttribute(keyName, key);

        QStringList languages;
        for (const char* lang : standardLanguages)
            languages.append(QLatin1String(lang));
        for (auto it = item.translations().constBegin(); it != item.translations().constEnd(); ++it) {
            if (!languages.contains(it.key()))
                languages.append(it.key());
        }

        for (const QString& lang : qAsConst(languages)) {
            QDomElement translation = document.createElement(translationName);
            itemElement.appendChild(translation);
            translation.setAttribute(langName, lang);
            QString text = item.translations().value(lang, key);
            // Written empty, as a missing one would be: a translation that equals its key adds
            // nothing, except in English, whose entry documents the source text.
            if (text == key && lang != QLatin1String("en"))
                text.clear();
            translation.appendChild(document.createTextNode(text));
        }
    }
    return section;
}

XERCES_CPP_NAMESPACE::DOMElement* Serialiser::save(const ConstContainerPtr&,
                                                   XERCES_CPP_NAMESPACE::DOMDocument*) const
{
    return nullptr;
}

} // namespace kes::qt::translation
