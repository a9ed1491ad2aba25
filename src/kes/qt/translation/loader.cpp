#include <kes/qt/translation/loader.h>

#include <kes/qt/translation/manager.h>

#include <QDomDocument>
#include <QDomElement>
#include <QDomNode>
#include <QFile>
#include <QLatin1String>

namespace kes::qt::translation {

namespace {

// The attribute name as written under the language manager's namespace prefix, read anew each
// time so that a prefix set between loads takes effect.
QString attributeName(const char* name)
{
    const QString prefix = Manager::singleton().namespacePrefix();
    const QString plain = QLatin1String(name);
    return prefix.isEmpty() ? plain : prefix + QLatin1Char(':') + plain;
}

} // namespace

Loader::Loader()
    : m_container(new Container)
{
}

bool Loader::load(const QString& fileName)
{
    m_fileName.clear();
    if (fileName.isEmpty())
        return false;
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    m_fileName = fileName;

    // A document that does not parse counts as empty and so has no sections: that is the report.
    // QDomDocument keeps what it read before the error, which must not be loaded.
    QDomDocument document;
    if (!document.setContent(&file))
        document = QDomDocument();
    file.close();

    int sections = 0;
    for (QDomNode node = document.documentElement().firstChild(); !node.isNull();
         node = node.nextSibling()) {
        const QDomElement element = node.toElement();
        if (element.isNull() || !element.tagName().endsWith(QLatin1String("translations")))
            continue;
        if (!parseTranslations(element))
            return false;
        ++sections;
    }
    return sections > 0;
}

bool Loader::load(const QDomElement& section)
{
    m_fileName.clear();
    return parseTranslations(section);
}

bool Loader::parseTranslations(const QDomElement& section)
{
    for (QDomNode node = section.firstChild(); !node.isNull(); node = node.nextSibling()) {
        if (!node.isElement())
            continue;
        if (!parseTranslationItem(node.toElement()) && m_abortOnError)
            return false;
    }
    return true;
}

bool Loader::parseTranslationItem(const QDomElement& item)
{
    const QString key = item.attribute(attributeName("key"));
    if (key.isEmpty()) {
        m_lastError = QStringLiteral("translation item element must implement attribute \"key\"");
        return false;
    }
    if (m_container->contains(key)) {
        m_lastError = QStringLiteral("translations already contain key \" ") + key
                      + QLatin1Char('"');
        return false;
    }
    // Every child counts as a translation, comments and stray text included: those carry no
    // language and fail, which keeps hand-edited files honest.
    for (QDomNode node = item.firstChild(); !node.isNull(); node = node.nextSibling()) {
        if (!parseTranslation(node.toElement(), key))
            return false;
    }
    return true;
}

bool Loader::parseTranslation(const QDomElement& translation, const QString& key)
{
    return addTranslation(key, translation.attribute(attributeName("lang")), translation.text());
}

bool Loader::addTranslation(const QString& key, const QString& lang, const QString& text)
{
    if (lang.isEmpty()) {
        m_lastError = QStringLiteral("translation element must implement attribute \nlang\"");
        return false;
    }
    if (m_container->contains(key, lang)) {
        m_lastError = QStringLiteral("translation item contains multiple translations for \" ")
                      + lang + QLatin1Char('"');
        return false;
    }
    if (!text.isEmpty())
        m_container->add(key, lang, text);
    return true;
}

} // namespace kes::qt::translation
