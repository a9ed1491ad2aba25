#ifndef KES_GALLERY_MAINWINDOW_H
#define KES_GALLERY_MAINWINDOW_H

#include <QList>
#include <QMainWindow>
#include <QPointer>

class QAction;
class QListWidget;
class QMenu;
class QSplitter;
class QStackedWidget;
class QUndoGroup;

namespace kes::qt {
class FileHistory;
}

namespace kes::gallery {

class Page;

/// The gallery's window: the list of pages on the left, the selected page on the right.
///
/// The page on screen is told so with Page::activated() and Page::deactivated(); a page counts as
/// on screen only while it is selected and the window is visible.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget* parent = nullptr);
    ~MainWindow() override;

    /// Appends \a page to the list and takes ownership of it. The first page added becomes the
    /// current one. A QUndoStack among the page's children drives Edit > Undo and Redo while the
    /// page is current. A page whose id is malformed or already taken is a programming error and
    /// aborts, since its screenshot would be unusable or overwrite another page's.
    void addPage(Page* page);
    /// The pages in the order they were added.
    QList<Page*> pages() const;
    /// The page with \a id, or null.
    Page* page(const QString& id) const;

    Page* currentPage() const;
    /// Selects the page with \a id; false (and nothing changes) when there is none.
    bool setCurrentPage(const QString& id);
    void setCurrentPage(Page* page);

    QMenu* fileMenu() const { return m_fileMenu; }
    QMenu* editMenu() const { return m_editMenu; }
    /// The recently opened files, offered in the File menu; pages that open files add them.
    kes::qt::FileHistory* fileHistory() const { return m_fileHistory; }
    QMenu* helpMenu() const { return m_helpMenu; }
    /// The View menu, for the toggle actions of dock panels; put into the menu bar, before Help,
    /// on the first call, so that it is not shown empty.
    QMenu* viewMenu();
    /// Puts \a menu into the menu bar just before Help, which stays last, and reparents it to the
    /// menu bar. Returns the menu's action in the bar.
    QAction* insertMenu(QMenu* menu);

Q_SIGNALS:
    void currentPageChanged(kes::gallery::Page* page);

protected:
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private Q_SLOTS:
    void retranslateUi();
    void openFile();
    void openRecentFile(const QString& fileName);
    void showSettings();

private:
    void onCurrentRowChanged(int row);
    void updateActivePage();

    QSplitter* m_splitter = nullptr;
    QListWidget* m_pageList = nullptr;
    QStackedWidget* m_pageStack = nullptr;
    QList<Page*> m_pages;
    QPointer<Page> m_activePage;

    QMenu* m_fileMenu = nullptr;
    QMenu* m_editMenu = nullptr;
    QMenu* m_helpMenu = nullptr;
    QMenu* m_viewMenu = nullptr;
    QAction* m_quitAction = nullptr;
    QAction* m_openAction = nullptr;
    QAction* m_settingsAction = nullptr;
    QUndoGroup* m_undoGroup = nullptr;
    kes::qt::FileHistory* m_fileHistory = nullptr;
    QAction* m_aboutQtAction = nullptr;
};

} // namespace kes::gallery

#endif
