#ifndef KES_QT_TRANSLATION_LOADER_H
#define KES_QT_TRANSLATION_LOADER_H

#include <kes/qt/kes_qt_export.h>
#include <kes/qt/translation/container.h>

#include <QString>

class QDomElement;

namespace kes::qt::translation {

/// Reads XML translation files into a Container.
///
/// A translation file is an XML document whose document element (any name) holds one or more
/// sections: child elements whose tag name ends with "translations". A section's child elements
/// are items with the attribute "key"; every child node of an item is a translation with the
/// attribute "lang" and the translated text as content. When the language manager has a
/// namespace prefix "p", the attributes read are "p:key" and "p:lang".
///
/// Every load adds into the same container, so several files can be combined. A key may appear
/// only once over all of them, compared after argument removal; within an item a language only
/// once. Translations with an empty text are accepted and not stored.
class KES_QT_EXPORT Loader
{
public:
    Loader();

    /// Reads the file \a fileName. False when it cannot be opened, holds no section, or (with
    /// abortOnError()) an item is invalid; lastError() is set only by invalid items.
    bool load(const QString& fileName);
    /// Reads the one section \a section (the element whose children are items); empties fileName().
    bool load(const QDomElement& section);

    /// Reads the items of \a section. With abortOnError() false an invalid item is skipped and the
    /// result is true; lastError() then tells the last failure.
    bool parseTranslations(const QDomElement& section);
    /// Reads one item: its key must be new to the container and each child node must be a valid translation.
    bool parseTranslationItem(const QDomElement& item);
    /// Reads one translation of \a key through addTranslation().
    bool parseTranslation(const QDomElement& translation, const QString& key);
    /// Validates and stores one translation; an empty \a text is accepted and not stored.
    bool addTranslation(const QString& key, const QString& lang, const QString& text);

    /// The message of the most recent validation error; never cleared by a later load.
    QString lastError() const { return m_lastError; }
    /// The file of the most recent load(fileName) that could be opened; emptied by every load.
    QString fileName() const { return m_fileName; }
    /// The container every load adds into; created empty with the loader.
    ContainerPtr container() const { return m_container; }

    /// Whether the first invalid item ends a load with failure. False by default: invalid items
    /// are skipped.
    bool abortOnError() const { return m_abortOnError; }
    /// See abortOnError().
    void setAbortOnError(bool abort) { m_abortOnError = abort; }

private:
    QString m_lastError;
    QString m_fileName;
    ContainerPtr m_container;
    bool m_abortOnError = false;
};

} // namespace kes::qt::translation

#endif
