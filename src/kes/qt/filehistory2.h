#ifndef KES_QT_FILEHISTORY2_H
#define KES_QT_FILEHISTORY2_H

#include <kes/qt/filehistory.h>

#include <memory>

namespace kes::qt {

struct FileHistory2Private;

/// The file history as a "&Recent Projects" menu: entries numbered with the mnemonics 1 to 9 and
/// 0, showing only the file name. triggered() still carries the full path.
class KES_QT_EXPORT FileHistory2 : public FileHistory
{
    Q_OBJECT

public:
    /// A numbered history of file names, as FileHistory reads it.
    explicit FileHistory2(QObject* parent = nullptr);
    ~FileHistory2() override;

    /// Entries carry a keyboard mnemonic number; true by default.
    bool isNumbered() const;
    /// Numbers the entries from the next opening of the menu on.
    void setNumbered(bool numbered);
    /// Entries show the file name without its directory; true by default.
    bool isFileNameOnly() const;
    /// Shows file names only, or whole paths, from the next opening of the menu on.
    void setFileNameOnly(bool fileNameOnly);

protected Q_SLOTS:
    void translate() override;
    void on_aboutToShow() override;
    void on_menu_triggered(QAction* action) override;

private:
    std::unique_ptr<FileHistory2Private> const d;
};

} // namespace kes::qt

#endif
