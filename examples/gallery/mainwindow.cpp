#include "mainwindow.h"

#include "optionpages.h"
#include "page.h"

#include <kes/qt/filehistory.h>
#include <kes/qt/gui/option/dialog.h>
#include <kes/qt/translation/manager.h>
#include <kes/qt/undoaction.h>

#include <QAction>
#include <QApplication>
#include <QEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QIcon>
#include <QKeySequence>
#include <QListWidget>
#include <QLocale>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>
#include <QSettings>
#include <QSplitter>
#include <QStackedWidget>
#include <QStatusBar>
#include <QUndoGroup>
#include <QUndoStack>

namespace kes::gallery {

namespace {

constexpr int defaultWidth = 1100;
constexpr int defaultHeight = 720;
constexpr int pageListWidth = 180;

// The undo and redo actions take their first word from Qt's own catalogue, as Qt's actions do,
// under a context and comment that Qt's message files do not cover; these keep the gallery's
// translations of the words in its .ts files.
[[maybe_unused]] const struct
{
    const char* source;
    const char* comment;
} undoWords[] = {
    QT_TRANSLATE_NOOP3("QUndoStack", "Undo", "DO NOT TRANSLATE!"),
    QT_TRANSLATE_NOOP3("QUndoStack", "Redo", "DO NOT TRANSLATE!"),
};

bool isValidPageId(const QString& id)
{
    static const QRegularExpression pattern(QStringLiteral("^[a-z0-9]+(-[a-z0-9]+)*$"));
    return pattern.match(id).hasMatch();
}

} // namespace

MainWindow::MainWindow(QWidget* parent)
    : QMainWindow(parent)
{
    m_pageList = new QListWidget(this);
    m_pageList->setObjectName(QStringLiteral("pageList"));
    m_pageList->setSelectionMode(QAbstractItemView::SingleSelection);
    m_pageList->setUniformItemSizes(true);
    m_pageList->setMinimumWidth(140);
    // Titles are elided if the splitter is dragged narrow; a navigation list never scrolls sideways.
    m_pageList->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_pageList->setTextElideMode(Qt::ElideRight);
    // The default rows are as tight as a file list; a navigation list reads better with air.
    m_pageList->setStyleSheet(QStringLiteral("QListView::item { padding: 6px 10px; }"));

    m_pageStack = new QStackedWidget(this);
    m_pageStack->setObjectName(QStringLiteral("pageStack"));

    m_splitter = new QSplitter(Qt::Horizontal, this);
    m_splitter->addWidget(m_pageList);
    m_splitter->addWidget(m_pageStack);
    m_splitter->setCollapsible(0, false);
    m_splitter->setCollapsible(1, false);
    m_splitter->setStretchFactor(0, 0);
    m_splitter->setStretchFactor(1, 1);
    m_splitter->setSizes({pageListWidth, defaultWidth - pageListWidth});
    setCentralWidget(m_splitter);

    connect(m_pageList, &QListWidget::currentRowChanged, this, &MainWindow::onCurrentRowChanged);

    m_quitAction = new QAction(this);
    m_quitAction->setIcon(QIcon::fromTheme(QStringLiteral("application-exit")));
    // QKeySequence::Quit is empty on some platforms; the gallery wants one shortcut everywhere.
    m_quitAction->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q));
    m_quitAction->setMenuRole(QAction::QuitRole);
    connect(m_quitAction, &QAction::triggered, this, &QWidget::close);

    m_aboutQtAction = new QAction(this);
    m_aboutQtAction->setMenuRole(QAction::AboutQtRole);
    connect(m_aboutQtAction, &QAction::triggered, qApp, &QApplication::aboutQt);

    m_openAction = new QAction(this);
    m_openAction->setObjectName(QStringLiteral("openAction"));
    m_openAction->setIcon(QIcon(QStringLiteral(":/kes_qt/icons/fileopen.png")));
    m_openAction->setShortcut(QKeySequence::Open);
    connect(m_openAction, &QAction::triggered, this, &MainWindow::openFile);

    //! [file-history]
    m_fileHistory = new kes::qt::FileHistory(this);
    m_fileHistory->menu()->setObjectName(QStringLiteral("recentFilesMenu"));
    connect(m_fileHistory, SIGNAL(triggered(QString)), this, SLOT(openRecentFile(QString)));
    //! [file-history]

    m_fileMenu = menuBar()->addMenu(QString());
    m_fileMenu->addAction(m_openAction);
    m_fileMenu->addMenu(m_fileHistory->menu());
    m_fileMenu->addSeparator();
    m_fileMenu->addAction(m_quitAction);

    // Undo and redo follow the stack of the current page, and are disabled on pages without one.
    m_undoGroup = new QUndoGroup(this);
    m_settingsAction = new QAction(this);
    m_settingsAction->setObjectName(QStringLiteral("settingsAction"));
    m_settingsAction->setMenuRole(QAction::PreferencesRole);
    connect(m_settingsAction, &QAction::triggered, this, &MainWindow::showSettings);
    m_editMenu = menuBar()->addMenu(QString());
    //! [undo-actions]
    QAction* undo = kes::qt::UndoAction::createUndoAction(m_undoGroup, this);
    undo->setObjectName(QStringLiteral("undoAction"));
    QAction* redo = kes::qt::UndoAction::createRedoAction(m_undoGroup, this);
    redo->setObjectName(QStringLiteral("redoAction"));
    m_editMenu->addAction(undo);
    m_editMenu->addAction(redo);
    //! [undo-actions]
    m_editMenu->addSeparator();
    m_editMenu->addAction(m_settingsAction);

    m_helpMenu = menuBar()->addMenu(QString());
    m_helpMenu->addAction(m_aboutQtAction);

    resize(defaultWidth, defaultHeight);
    retranslateUi();

    // LanguageChange arrives posted, and only when a translator is installed or removed; the
    // manager's signal comes with every switch and at once, so pages and titles never lag behind.
    connect(&kes::qt::translation::Manager::singleton(), SIGNAL(languageChanged()), this,
            SLOT(retranslateUi()));
}

MainWindow::~MainWindow()
{
    // Pages still exist here but not after QWidget's destructor, so stop their timers now.
    if (m_activePage) {
        m_activePage->deactivated();
    }
}

void MainWindow::addPage(Page* page)
{
    Q_ASSERT(page);
    const QString id = page->id();
    if (!isValidPageId(id)) {
        qFatal("gallery page id \"%s\" is not lower-case letters, digits and single dashes",
               qUtf8Printable(id));
    }
    if (this->page(id)) {
        qFatal("gallery page id \"%s\" is used twice", qUtf8Printable(id));
    }

    m_pages.append(page);
    // Until it is shown, a page does not count towards the window's least size.
    page->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    m_pageStack->addWidget(page);
    if (auto* stack = page->findChild<QUndoStack*>()) {
        m_undoGroup->addStack(stack);
    }
    auto* item = new QListWidgetItem(page->title(), m_pageList);
    item->setData(Qt::UserRole, id);
    if (m_pages.size() == 1) {
        m_pageList->setCurrentRow(0);
    }
}

QList<Page*> MainWindow::pages() const
{
    return m_pages;
}

Page* MainWindow::page(const QString& id) const
{
    for (Page* p : m_pages) {
        if (p->id() == id) {
            return p;
        }
    }
    return nullptr;
}

Page* MainWindow::currentPage() const
{
    const int row = m_pageList->currentRow();
    return row >= 0 && row < m_pages.size() ? m_pages.at(row) : nullptr;
}

bool MainWindow::setCurrentPage(const QString& id)
{
    Page* p = page(id);
    if (!p) {
        return false;
    }
    setCurrentPage(p);
    return true;
}

void MainWindow::setCurrentPage(Page* page)
{
    const int row = m_pages.indexOf(page);
    if (row >= 0) {
        m_pageList->setCurrentRow(row);
    }
}

QAction* MainWindow::insertMenu(QMenu* menu)
{
    Q_ASSERT(menu);
    menu->setParent(menuBar(), menu->windowFlags());
    return menuBar()->insertMenu(m_helpMenu->menuAction(), menu);
}

QMenu* MainWindow::viewMenu()
{
    if (!m_viewMenu) {
        m_viewMenu = new QMenu(tr("&View"), menuBar());
        menuBar()->insertMenu(m_helpMenu->menuAction(), m_viewMenu);
    }
    return m_viewMenu;
}

void MainWindow::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslateUi();
    }
    QMainWindow::changeEvent(event);
}

void MainWindow::showEvent(QShowEvent* event)
{
    QMainWindow::showEvent(event);
    updateActivePage();
}

void MainWindow::hideEvent(QHideEvent* event)
{
    QMainWindow::hideEvent(event);
    updateActivePage();
}

void MainWindow::retranslateUi()
{
    // Numbers follow the language as the texts do: the default for what the pages format, the
    // window's for the widgets in it (spin boxes), before the pages write their texts anew.
    const QString language = kes::qt::translation::Manager::singleton().currentLanguageString();
    const QLocale locale = language.isEmpty() ? QLocale::system() : QLocale(language);
    QLocale::setDefault(locale);
    setLocale(locale);
    setWindowTitle(tr("libkes_qt gallery"));
    m_fileMenu->setTitle(tr("&File"));
    m_openAction->setText(tr("&Open\u2026"));
    m_editMenu->setTitle(tr("&Edit"));
    m_settingsAction->setText(tr("&Settings\u2026"));
    m_quitAction->setText(tr("&Quit"));
    m_helpMenu->setTitle(tr("&Help"));
    if (m_viewMenu) {
        m_viewMenu->setTitle(tr("&View"));
    }
    m_aboutQtAction->setText(tr("About &Qt"));
    for (int row = 0; row < m_pages.size(); ++row) {
        Page* p = m_pages.at(row);
        p->retranslate();
        m_pageList->item(row)->setText(p->title());
    }
}

void MainWindow::onCurrentRowChanged(int row)
{
    QUndoStack* stack = nullptr;
    if (row >= 0 && row < m_pages.size()) {
        // The window's least size is the shown page's, not the largest of all pages.
        for (Page* page : qAsConst(m_pages)) {
            const auto policy = page == m_pages.at(row) ? QSizePolicy::Preferred
                                                        : QSizePolicy::Ignored;
            page->setSizePolicy(policy, policy);
        }
        m_pageStack->setCurrentWidget(m_pages.at(row));
        stack = m_pages.at(row)->findChild<QUndoStack*>();
    }
    m_undoGroup->setActiveStack(stack);
    updateActivePage();
    Q_EMIT currentPageChanged(currentPage());
}

void MainWindow::openFile()
{
    const QString fileName = QFileDialog::getOpenFileName(
        this, tr("Open a file"), QSettings().value(QStringLiteral("loadDirectory")).toString());
    if (!fileName.isEmpty()) {
        openRecentFile(fileName);
    }
}

void MainWindow::openRecentFile(const QString& fileName)
{
    const QFileInfo file(fileName);
    if (!file.isFile()) {
        statusBar()->showMessage(tr("%1 no longer exists").arg(fileName), 5000);
        return;
    }
    // The gallery does not show arbitrary files; it records them as an application would.
    m_fileHistory->add(file);
    statusBar()->showMessage(tr("Opened %1 (%2 bytes)").arg(file.absoluteFilePath()).arg(file.size()),
                             5000);
}

void MainWindow::showSettings()
{
    // Disabled while the dialog is open, so there is never more than one.
    createOptionsDialog(*this, m_settingsAction)->show();
}

void MainWindow::updateActivePage()
{
    Page* wanted = isVisible() ? currentPage() : nullptr;
    if (wanted == m_activePage) {
        return;
    }
    if (m_activePage) {
        m_activePage->deactivated();
    }
    m_activePage = wanted;
    if (m_activePage) {
        m_activePage->activated();
    }
}

} // namespace kes::gallery
