#ifndef KES_QT_TRANSLATION_MANAGER_H
#define KES_QT_TRANSLATION_MANAGER_H

#include <kes/qt/kes_qt_export.h>

#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVector>

#include <memory>

class QAction;
class QFileInfo;
class QTranslator;

namespace kes::qt::translation {

struct ManagerPrivate;

/// The keeper of the user-interface language.
///
/// Applications use the process-wide singleton(): they add the directories of their ".qm" files
/// with addTranslatorSearchPath() and call load() once with a language list file, an XML document
/// whose element "translations" holds one element "language" per offered language with the
/// attributes "fullName", "shortName" and "actionName". load() creates a checkable action per
/// language (see Menu), loads every "*_<shortName>.qm" of the search paths and Qt's own message
/// file, and selects the start language: the one stored under the settings key "language", else
/// the system locale's language if offered, else the first one. Each change of language swaps the
/// installed translators, stores the choice and emits languageChanged(), to which every widget of
/// the library connects its translate() slot.
///
/// The library's own translations are compiled in under ":/kes_translation_translations/", the
/// first search path, so they follow the application's language without any set-up.
///
/// GUI thread only. Further instances may be created (tests do); they are independent of the
/// singleton, which is what the library's widgets and Container lookups consult.
class KES_QT_EXPORT Manager : public QObject
{
    Q_OBJECT

public:
    /// One offered language.
    struct Language
    {
        /// The name shown in the menu, as the list file gives it ("Deutsch").
        QString fullName;
        /// The code of the message files and of the settings ("de").
        QString shortName;
        QAction* action = nullptr;            ///< owned by the manager
        QList<QTranslator*> translators;      ///< owned by the manager; installed while current
    };

    /// The process-wide manager, created at the first call and kept until exit.
    static Manager& singleton();

    /// A manager without languages; most applications use singleton() instead.
    explicit Manager(QObject* parent = nullptr);
    ~Manager() override;

    /// Adds a directory searched for the application's ".qm" files by load(). Backslashes become
    /// "/" and a trailing "/" is added; an entry already present is not added again.
    void addTranslatorSearchPath(const QString& path);
    /// The directories load() searches, the library's own first.
    QStringList translatorSearchPaths() const;

    /// Reads the language list file \a fileInfo and sets everything up. False, with nothing
    /// changed, when the file cannot be read or its document element is not "translations". A
    /// second call adds the new languages and loads the translators of all languages again. XML that
    /// breaks off is not refused for that alone: the languages read before the break count.
    bool load(const QFileInfo& fileInfo);

    /// A translator with the manager as parent loaded from \a path, or null when it does not load.
    QTranslator* loadTranslator(const QString& path);
    /// Adds the message file \a path to the language \a shortName if both exist; it takes effect
    /// the next time that language is selected.
    void addTranslator(const QString& shortName, const QString& path);

    /// Selects the language at \a index (ignored when out of range), even when it is current.
    void setLanguage(int index);
    /// Selects the language \a shortName, or the first one when it is not offered; does nothing
    /// when it is already current.
    void setLanguage(const QString& shortName);

    /// The short name of the current language; empty before the first selection.
    QString currentLanguageString() const;
    /// The index of the current language, -1 before the first selection.
    int currentLanguage() const;

    /// The offered languages in the order of the list file.
    QVector<Language> languages() const;
    /// The short names of the offered languages, in order.
    QStringList shortNames() const;
    /// The full names of the offered languages, in order.
    QStringList fullNames() const;
    /// The checkable action of each language, in order; owned by the manager.
    QList<QAction*> languageActions() const;

    /// Indexes of the first matching language (exact, case-sensitive), or -1.
    int languageFromActionName(const QString& text) const;
    /// The index of the language named \a name in full, or -1.
    int languageFromFullName(const QString& name) const;
    /// The index of the language with the short name \a name, or -1.
    int languageFromShortName(const QString& name) const;

    /// The XML prefix of the attribute and element names read by Loader and written by
    /// Serialiser ("p" makes them read "p:key" and write "p:item"); empty by default.
    QString namespacePrefix() const;
    /// See namespacePrefix().
    void setNamespacePrefix(const QString& prefix);

Q_SIGNALS:
    /// Emitted after every selection of a language.
    void languageChanged();

public Q_SLOTS:
    /// Selects the language of \a action, unless it is already current.
    void on_actionTriggered(QAction* action);

private:
    void loadMessageFiles(Language& language);

    std::unique_ptr<ManagerPrivate> const d;
};

} // namespace kes::qt::translation

#endif
