#ifndef KES_QT_FILEHISTORY_H
#define KES_QT_FILEHISTORY_H

#include <kes/qt/kes_qt_export.h>

#include <QObject>
#include <QString>
#include <QStringList>

#include <memory>

class QAction;
class QFileInfo;
class QMenu;

namespace kes::qt {

struct FileHistoryPrivate;

/// The application's recently used files, kept in its default settings store and offered as a
/// menu; picking an entry emits triggered() with the file's path.
///
/// The list lives under the key "fileHistory" (absolute paths, most recent first, at most 10
/// after an add()); "loadDirectory" holds the directory of the file added last, for the
/// application's open dialog. Construction drops duplicates and files that no longer exist. The
/// menu reads the list afresh whenever it opens, so that several histories in one process see
/// each other's additions. GUI thread only.
class KES_QT_EXPORT FileHistory : public QObject
{
    Q_OBJECT

public:
    /// Reads the stored list, without duplicates and files that are gone, and builds the menu.
    explicit FileHistory(QObject* parent = nullptr);
    ~FileHistory() override;

    /// Records a use of \a file: its absolute path goes to the front of the list, once.
    void add(const QFileInfo& file);
    /// The stored list as it is, unfiltered.
    QStringList history() const;
    /// Whether the stored list has no entry.
    bool isEmpty() const;

    /// The menu for the application to insert into its own; owned by the history unless the
    /// application gives it a parent, in which case that parent deletes it.
    QMenu* menu() const;

Q_SIGNALS:
    /// The user picked \a fileName, an absolute path, from the menu.
    void triggered(const QString& fileName);

protected Q_SLOTS:
    virtual void translate();
    virtual void on_aboutToShow();
    virtual void on_menu_triggered(QAction* action);

private:
    std::unique_ptr<FileHistoryPrivate> const d;
};

} // namespace kes::qt

#endif
