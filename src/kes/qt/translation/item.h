#ifndef KES_QT_TRANSLATION_ITEM_H
#define KES_QT_TRANSLATION_ITEM_H

#include <kes/qt/kes_qt_export.h>

#include <QMap>
#include <QString>

namespace kes::qt::translation {

/// One source text with its translations, one per language short name ("de", "fr", ...).
class KES_QT_EXPORT Item
{
public:
    Item();
    /// An item for \a key without translations.
    explicit Item(const QString& key);

    /// The source text this item translates; empty in a default-constructed item.
    QString key() const { return m_key; }
    /// Translations by language, in plain string order of the languages.
    const QMap<QString, QString>& translations() const { return m_translations; }

    /// Whether there is a translation for \a lang.
    bool contains(const QString& lang) const;

    /// The translation for \a lang, even when it is empty; without one, the key if \a fallback is
    /// true (and the key is not empty), else the empty string.
    QString tr(const QString& lang, bool fallback) const;
    /// Keeps tr("de", true) from silently meaning tr(bool) through the pointer-to-bool conversion.
    QString tr(const char* lang, bool fallback) const { return tr(QString::fromUtf8(lang), fallback); }
    /// The translation into the language manager's current language.
    QString tr(bool fallback) const;

    /// Sets the translation for \a lang, replacing an earlier one.
    void add(const QString& lang, const QString& text);

    friend bool operator==(const Item& a, const Item& b)
    {
        return a.m_key == b.m_key && a.m_translations == b.m_translations;
    }
    friend bool operator!=(const Item& a, const Item& b) { return !(a == b); }

private:
    friend class Container;
    // The body of both tr() overloads, under a name that lupdate does not take for Qt's tr().
    QString lookup(const QString& lang, bool fallback) const;

    QString m_key;
    QMap<QString, QString> m_translations;
};

} // namespace kes::qt::translation

#endif
