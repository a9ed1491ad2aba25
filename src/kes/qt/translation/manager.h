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
        QString fullName;
        QString shortName;
        QAction* action = nullptr;            ///< owned by the manager
        QList<QTranslator*> translators;      ///< owned by the manager; installed while current
    };

    static Manager& singleton();

    explicit Manager(QObject* parent = nullptr);
    ~Manager() override;

    /// Adds a directory searched for the application's ".qm" files by load(). Backslashes become
    /// "/" and a trailing "/" is added; an entry already present is not added again.
    void addTranslatorSearchPath(const QString& path);
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

    QVector<Language> languages() const;
    QStringList shortNames() const;
    QStringList fullNames() const;
    QList<QAction*> languageActions() const;

    /// Indexes of the first matching language (exact, case-sensitive), or -1.
    int languageFromActionName(const QString& text) const;
    int languageFromFullName(const QString& name) const;
    int languageFromShortName(const QString& name) const;

    /// The XML prefix of the attribute and element names read by Loader and written by
    /// Serialiser ("p" makes them read "p:key" and write "p:item"); empty by default.
    QString namespacePrefix() const;
    void setNamespacePrefix(const QString& prefix);

Q_SIGNALS:
    /// Emitted after every selection of a language.
    void languageChanged();

public Q_SLOTS:
    void on_actionTriggered(QAction* action);

private:
    void loadMessageFiles(Language& language);

    std::unique_ptr<ManagerPrivate> const d;
};

} // namespace kes::qt::translation

#endif
