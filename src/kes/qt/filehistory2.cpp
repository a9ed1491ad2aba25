#include <kes/qt/filehistory2.h>

#include <QAction>
#include <QFileInfo>
#include <QMenu>

namespace kes::qt {

struct FileHistory2Private
{
    bool numbered = true;
    bool fileNameOnly = true;
};

FileHistory2::FileHistory2(QObject* parent)
    : FileHistory(parent)
    , d(std::make_unique<FileHistory2Private>())
{
    // The base constructor could only set its own title.
    translate();
}

FileHistory2::~FileHistory2() = default;

bool FileHistory2::isNumbered() const
{
    return d->numbered;
}

void FileHistory2::setNumbered(bool numbered)
{
    d->numbered = numbered;
}

bool FileHistory2::isFileNameOnly() const
{
    return d->fileNameOnly;
}

void FileHistory2::setFileNameOnly(bool fileNameOnly)
{
    d->fileNameOnly = fileNameOnly;
}

void FileHistory2::translate()
{
    if (QMenu* m = menu())
        m->setTitle(tr("&Recent Projects"));
}

void FileHistory2::on_aboutToShow()
{
    FileHistory::on_aboutToShow();
    QMenu* m = menu();
    if (!m)
        return;
    int i = 1;
    const QList<QAction*> actions = m->actions();
    for (QAction* action : actions) {
        const QString path = action->text();
        action->setData(path);
        const QString name = d->fileNameOnly ? QFileInfo(path).fileName() : path;
        QString text = name;
        if (d->numbered) {
            // Mnemonics 1 to 9, then 0 for the tenth; later entries line up without one.
            text = i <= 10 ? QStringLiteral("&%1  %2").arg(QString::number(i % 10), name)
                           : QStringLiteral("    %1").arg(name);
        }
        action->setText(text);
        ++i;
    }
}

void FileHistory2::on_menu_triggered(QAction* action)
{
    if (action)
        Q_EMIT triggered(action->data().toString());
}

} // namespace kes::qt
