#include <kes/qt/translation/manager.h>

#include <QAction>
#include <QActionGroup>
#include <QCoreApplication>
#include <QDir>
#include <QDomDocument>
#include <QDomElement>
#include <QFile>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QLocale>
#include <QSettings>
#include <QTranslator>

namespace kes::qt::translation {

namespace {

const char* const settingsKey = "language";

} // namespace

struct ManagerPrivate
{
    int currentLanguage = -1;
    QVector<Manager::Language> languages;
    QStringList searchPaths;
    QString namespacePrefix;
};

Manager& Manager::singleton()
{
    static Manager instance;
    return instance;
}

Manager::Manager(QObject* parent)
    : QObject(parent)
    , d(std::make_unique<ManagerPrivate>())
{
    // The library's own message files are compiled into its resources here.
    addTranslatorSearchPath(QStringLiteral(":/kes_translation_translations/"));
}

Manager::~Manager() = default;

QStringList Manager::translatorSearchPaths() const
{
    return d->searchPaths;
}

int Manager::currentLanguage() const
{
    return d->currentLanguage;
}

QVector<Manager::Language> Manager::languages() const
{
    return d->languages;
}

QString Manager::namespacePrefix() const
{
    return d->namespacePrefix;
}

void Manager::setNamespacePrefix(const QString& prefix)
{
    d->namespacePrefix = prefix;
}

void Manager::addTranslatorSearchPath(const QString& path)
{
    QString normalised = path;
    normalised.replace(QLatin1Char('\\'), QLatin1Char('/'));
    if (!normalised.endsWith(QLatin1Char('/')))
        normalised.append(QLatin1Char('/'));
    if (!d->searchPaths.contains(normalised))
        d->searchPaths.append(normalised);
}

bool Manager::load(const QFileInfo& fileInfo)
{
    QFile file(fileInfo.absoluteFilePath());
    if (!file.open(QIODevice::ReadOnly))
        return false;
    // The result is ignored on purpose: a list that breaks off keeps the languages read before
    // the break, which QDomDocument holds despite the error.
    QDomDocument document;
    document.setContent(&file);
    file.close();
    const QDomElement root = document.documentElement();
    if (root.tagName() != QLatin1String("translations"))
        return false;

    for (QDomElement element = root.firstChildElement(QStringLiteral("language"));
         !element.isNull(); element = element.nextSiblingElement(QStringLiteral("language"))) {
        Language language;
        language.fullName = element.attribute(QStringLiteral("fullName"));
        language.shortName = element.attribute(QStringLiteral("shortName"));
        const QString actionName = element.attribute(QStringLiteral("actionName"));
        language.action = new QAction(actionName.isEmpty() ? language.fullName : actionName, this);
        language.action->setCheckable(true);
        d->languages.append(language);
    }

    // A new group takes every action, those of earlier files too; an action belongs to one group
    // at a time, so the older groups are left empty.
    auto* group = new QActionGroup(this);
    for (const Language& language : qAsConst(d->languages))
        group->addAction(language.action);
    connect(group, SIGNAL(triggered(QAction*)), this, SLOT(on_actionTriggered(QAction*)));

    // Earlier languages are loaded again too: a search path added since the first file may hold
    // message files for them.
    for (Language& language : d->languages)
        loadMessageFiles(language);

    QSettings settings;
    const QStringList names = shortNames();
    const QString stored = settings.value(QLatin1String(settingsKey)).toString();
    if ((!settings.contains(QLatin1String(settingsKey)) || !names.contains(stored))
        && !names.isEmpty()) {
        const QString system = QLocale::system().name().section(QLatin1Char('_'), 0, 0);
        settings.setValue(QLatin1String(settingsKey),
                          names.contains(system) ? system : names.constFirst());
    }
    if (settings.contains(QLatin1String(settingsKey)))
        setLanguage(settings.value(QLatin1String(settingsKey)).toString());
    return true;
}

void Manager::loadMessageFiles(Language& language)
{
    const QString pattern = QStringLiteral("*_%1.qm").arg(language.shortName);
    for (const QString& path : qAsConst(d->searchPaths)) {
        const QDir directory(path);
        const QFileInfoList entries = directory.entryInfoList(QStringList(pattern));
        for (const QFileInfo& entry : entries) {
            if (QTranslator* translator = loadTranslator(entry.absoluteFilePath()))
                language.translators.append(translator);
        }
    }

    if (language.shortName == QLatin1String("en"))
        return;
    // Qt's own texts (standard buttons, dialogs). The last two candidates are the places older
    // installations used; an unset QTDIR deliberately still tries "/translations".
    const QString qtFile = QStringLiteral("qt_%1.qm").arg(language.shortName);
    QStringList candidates;
    const QString translationDir = qEnvironmentVariable("QTTRANSLATIONDIR");
    if (!translationDir.isEmpty())
        candidates << translationDir + QLatin1Char('/') + qtFile;
    candidates << QLibraryInfo::location(QLibraryInfo::TranslationsPath) + QLatin1Char('/') + qtFile
               << qEnvironmentVariable("QTDIR") + QStringLiteral("/translations/") + qtFile
               << QStringLiteral("/usr/local/KES GmbH/Qt-%1/translations/%2")
                      .arg(QLatin1String(qVersion()), qtFile);
    for (const QString& candidate : qAsConst(candidates)) {
        if (QTranslator* translator = loadTranslator(candidate)) {
            language.translators.append(translator);
            return;
        }
    }
}

QTranslator* Manager::loadTranslator(const QString& path)
{
    auto* translator = new QTranslator(this);
    if (!translator->load(path)) {
        delete translator;
        return nullptr;
    }
    return translator;
}

void Manager::addTranslator(const QString& shortName, const QString& path)
{
    const int index = languageFromShortName(shortName);
    if (index < 0)
        return;
    if (QTranslator* translator = loadTranslator(path))
        d->languages[index].translators.append(translator);
}

void Manager::setLanguage(int index)
{
    if (index < 0 || index >= d->languages.size())
        return;
    if (d->currentLanguage >= 0 && d->currentLanguage < d->languages.size()) {
        for (QTranslator* translator : qAsConst(d->languages.at(d->currentLanguage).translators))
            QCoreApplication::removeTranslator(translator);
    }
    d->currentLanguage = index;
    const Language& language = d->languages.at(index);
    language.action->setChecked(true);
    for (QTranslator* translator : language.translators)
        QCoreApplication::installTranslator(translator);
    QSettings().setValue(QLatin1String(settingsKey), language.shortName);
    Q_EMIT languageChanged();
}

void Manager::setLanguage(const QString& shortName)
{
    if (d->languages.isEmpty())
        return;
    int index = languageFromShortName(shortName);
    if (index < 0)
        index = 0;
    if (index != d->currentLanguage)
        setLanguage(index);
}

QString Manager::currentLanguageString() const
{
    if (d->currentLanguage < 0 || d->currentLanguage >= d->languages.size())
        return QString();
    return d->languages.at(d->currentLanguage).shortName;
}

QStringList Manager::shortNames() const
{
    QStringList names;
    for (const Language& language : d->languages)
        names.append(language.shortName);
    return names;
}

QStringList Manager::fullNames() const
{
    QStringList names;
    for (const Language& language : d->languages)
        names.append(language.fullName);
    return names;
}

QList<QAction*> Manager::languageActions() const
{
    QList<QAction*> actions;
    for (const Language& language : d->languages)
        actions.append(language.action);
    return actions;
}

int Manager::languageFromActionName(const QString& text) const
{
    for (int i = 0; i < d->languages.size(); ++i) {
        if (d->languages.at(i).action->text() == text)
            return i;
    }
    return -1;
}

int Manager::languageFromFullName(const QString& name) const
{
    for (int i = 0; i < d->languages.size(); ++i) {
        if (d->languages.at(i).fullName == name)
            return i;
    }
    return -1;
}

int Manager::languageFromShortName(const QString& name) const
{
    for (int i = 0; i < d->languages.size(); ++i) {
        if (d->languages.at(i).shortName == name)
            return i;
    }
    return -1;
}

void Manager::on_actionTriggered(QAction* action)
{
    if (!action)
        return;
    const int index = languageFromActionName(action->text());
    if (index != -1 && index != d->currentLanguage)
        setLanguage(index);
}

} // namespace kes::qt::translation
