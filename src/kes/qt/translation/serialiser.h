#ifndef KES_QT_TRANSLATION_SERIALISER_H
#define KES_QT_TRANSLATION_SERIALISER_H

#include <kes/qt/kes_qt_export.h>
#include <kes/qt/translation/container.h>

#include <QDomElement>

// The Xerces-C overload is declared only where its headers are; the library always provides it.
#if __has_include(<xercesc/util/XercesDefs.hpp>)
#include <xercesc/util/XercesDefs.hpp>
#define KES_QT_TRANSLATION_HAVE_XERCES 1
XERCES_CPP_NAMESPACE_BEGIN
class DOMDocument;
class DOMElement;
XERCES_CPP_NAMESPACE_END
#endif

class QDomDocument;

namespace kes::qt::translation {

/// Writes a Container as one translation section for Loader to read back.
///
/// The section is an element "translations" with one "item" per key, sorted by
/// caseInsensitiveLessThan(), and in each item one "translation" per language: the standard
/// languages "de", "en", "fr", "es" always, then the item's other languages in plain order. A
/// missing English translation is written as the key; a missing one in another language, or one
/// equal to its key, is written empty. The loader takes sections only from below a document
/// element, so the caller must wrap the returned element in an element of its own.
class KES_QT_EXPORT Serialiser
{
public:
    Serialiser();

    /// Builds the section through \a document without inserting it anywhere.
    QDomElement save(const ConstContainerPtr& container, QDomDocument& document) const;

#ifdef KES_QT_TRANSLATION_HAVE_XERCES
    /// Xerces-C documents are not supported: writes nothing and returns null.
    XERCES_CPP_NAMESPACE::DOMElement* save(const ConstContainerPtr& container,
                                           XERCES_CPP_NAMESPACE::DOMDocument* document) const;
#endif
};

} // namespace kes::qt::translation

#endif
