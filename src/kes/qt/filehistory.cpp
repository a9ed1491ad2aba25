#include <kes/qt/filehistory.h>

#include <kes/qt/translation/manager.h>

#include <QAction>
#include <QFileInfo>
#include <QMenu>
#include <QPointer>
#include <QSettings>

namespace kes::qt {

namespace {

const QString historyKey = QStringLiteral("fileHistory");
const QString directoryKey = QStringLiteral("loadDirectory");
constexpr int maximumEntries = 10;

} // namespace

struct FileHistoryPrivate
{
    // Guarded: an application that parents the menu lets that parent delete it.
    QPointer<QMenu> menu;
};

FileHistory::FileHistory(QObject* parent)
    : QObject(parent)
    , d(std::make_unique<FileHistoryPrivate>())
{
    d->menu = new QMenu;

    QSettings settings;
    const QStringList stored = settings.value(historyKey).toStringList();
    QStringList cleaned;
    for (const QString& entry : stored) {
        if (!cleaned.contains(entry) && QFileInfo::exists(entry))
            cleaned.append(entry);
    }
    settings.setValue(historyKey, cleaned);
    d->menu->setEnabled(!cleaned.isEmpty());

    connect(d->menu, SIGNAL(aboutToShow()), this, SLOT(on_aboutToShow()));
    connect(d->menu, SIGNAL(triggered(QAction*)), this, SLOT(on_menu_triggered(QAction*)));
    connect(&translation::Manager::singleton(), SIGNAL(languageChanged()), this, SLOT(translate()));
    translate();
}

FileHistory::~FileHistory()
{
    delete d->menu.data();
}

void FileHistory::add(const QFileInfo& file)
{
    const QString path = file.absoluteFilePath();
    QSettings settings;
    QStringList list = settings.value(historyKey).toStringList();
    list.removeAll(path);
    list.prepend(path);
    // One entry only: a longer list written by other means shrinks by one per call.
    if (list.size() > maximumEntries)
        list.removeLast();
    if (d->menu)
        d->menu->setEnabled(true);
    settings.setValue(historyKey, list);
    settings.setValue(directoryKey, file.absolutePath());
}

QStringList FileHistory::history() const
{
    return QSettings().value(historyKey).toStringList();
}

bool FileHistory::isEmpty() const
{
    return history().isEmpty();
}

QMenu* FileHistory::menu() const
{
    return d->menu;
}

void FileHistory::translate()
{
    if (d->menu)
        d->menu->setTitle(tr("Recent Files"));
}

void FileHistory::on_aboutToShow()
{
    if (!d->menu)
        return;
    d->menu->clear();
    const QStringList entries = history();
    for (const QString& entry : entries)
        d->menu->addAction(entry);
}

void FileHistory::on_menu_triggered(QAction* action)
{
    if (action)
        Q_EMIT triggered(action->text());
}

} // namespace kes::qt
