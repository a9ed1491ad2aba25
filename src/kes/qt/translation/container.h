#ifndef KES_QT_TRANSLATION_CONTAINER_H
#define KES_QT_TRANSLATION_CONTAINER_H

#include <kes/qt/kes_qt_export.h>
#include <kes/qt/translation/item.h>

#include <QHash>
#include <QList>
#include <QMap>
#include <QSet>
#include <QString>
#include <QStringList>

#include <boost/shared_ptr.hpp>

namespace kes::qt::translation {

/// True when \a a in lower case sorts before \a b in lower case (plain code-unit order). Keys that
/// are equal in lower case compare equal, so a stable sort keeps their original order.
KES_QT_EXPORT bool caseInsensitiveLessThan(const QString& a, const QString& b);

/// A store of texts translated through XML translation files, keyed by source text.
///
/// A source text may carry run-time arguments in square brackets: "Loading [scene.xml]" is looked
/// up under the key "Loading []", and "scene.xml" is put into the "[]" of the translation. A
/// bracket preceded by a single backslash is a literal bracket; a double backslash does not escape.
/// Containers are shared as boost::shared_ptr (see ContainerPtr).
class KES_QT_EXPORT Container
{
public:
    Container();

    /// All keys in plain code-unit order (upper-case letters before lower-case ones).
    QStringList keys() const;
    /// The item stored under exactly \a key, or a default Item.
    Item item(const QString& key) const;

    /// Whether there is an item for \a text after its arguments are cut out.
    bool contains(const QString& text) const;
    /// Whether that item exists and has a translation for \a lang.
    bool contains(const QString& text, const QString& lang) const;

    /// Looks \a key up exactly as given (no argument handling). Found: the item's
    /// Item::tr(lang, fallback); not found: \a key if \a fallback, else the empty string.
    QString tr(const QString& key, const QString& lang, bool fallback) const;
    /// Translates \a text into the language manager's current language, arguments included. A text
    /// without an item comes back unchanged (escapes too) when \a fallback is true, else empty.
    QString tr(const QString& text, bool fallback = true) const;
    /// tr(text, "de") would otherwise compile as tr(text, true); name the fallback instead.
    QString tr(const QString& text, const char* lang) const = delete;

    /// Makes sure there is an item under \a key; an existing item keeps its translations.
    void add(const QString& key);
    /// Sets the translation of \a key for \a lang, creating the item if needed.
    void add(const QString& key, const QString& lang, const QString& text);
    /// Merges \a other in: each of its items replaces this container's item of the same key whole
    /// (translations are not merged per language). A null pointer adds nothing.
    void add(const boost::shared_ptr<const Container>& other);

    /// Cuts the arguments out of \a text, leaving an empty "[]" for each, and returns the result.
    /// \a args receives the arguments and \a positions the index of each one's "[", both in order
    /// of appearance; either may be null. An unescaped "[" that has no "]" after it ends the scan:
    /// the arguments before it stand and the rest of the text is kept as it is.
    static QString removeArgs(const QString& text, QStringList* args = nullptr,
                              QList<int>* positions = nullptr);

private:
    void indexItem(const Item& item);
    void unindexItem(const Item& item);

    // The ordered map is the data model (keys() and the serialiser need its order); the hashes
    // beside it answer lookups without walking a tree of string comparisons.
    QMap<QString, Item> m_items;
    QSet<QString> m_keys;
    QHash<QString, QHash<QString, QString>> m_byLanguage; // language -> key -> translation
};

/// A container shared between the loader and the application.
using ContainerPtr = boost::shared_ptr<Container>;
/// A shared container that is only read.
using ConstContainerPtr = boost::shared_ptr<const Container>;

} // namespace kes::qt::translation

#endif
