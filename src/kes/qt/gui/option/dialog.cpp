#include <kes/qt/gui/option/dialog.h>

#include <kes/qt/gui/option/page.h>
#include <kes/qt/gui/option/tree.h>
#include <kes/qt/translation/manager.h>

#include <QAction>
#include <QDialogButtonBox>
#include <QEvent>
#include <QHeaderView>
#include <QList>
#include <QPointer>
#include <QSettings>
#include <QShowEvent>
#include <QSplitter>
#include <QStackedWidget>
#include <QTreeView>
#include <QVBoxLayout>
#include <QVariantList>

namespace kes::qt::gui::option {

namespace {

const QString settingsGroup = QStringLiteral("gui_option");

} // namespace

struct DialogPrivate
{
    Tree* tree = nullptr;
    QSplitter* splitter = nullptr;
    QTreeView* treeView = nullptr;
    QStackedWidget* stack = nullptr;
    QDialogButtonBox* buttons = nullptr;
    // Guarded: the application may delete its action while the dialog is open.
    QPointer<QAction> action;
};

Dialog::Dialog(QWidget* parent, QAction* action)
    : QDialog(parent)
    , d(std::make_unique<DialogPrivate>())
{
    d->action = action;
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);
    installEventFilter(this);

    d->tree = new Tree(this);
    d->treeView = new QTreeView(this);
    d->treeView->setObjectName(QStringLiteral("treeView"));
    d->treeView->setModel(d->tree);
    d->treeView->header()->hide();
    d->treeView->setMinimumWidth(200);

    d->stack = new QStackedWidget(this);
    d->stack->setObjectName(QStringLiteral("stackedWidget"));

    d->splitter = new QSplitter(this);
    d->splitter->setObjectName(QStringLiteral("splitter"));
    d->splitter->setChildrenCollapsible(false);
    d->splitter->addWidget(d->treeView);
    d->splitter->addWidget(d->stack);

    d->buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    d->buttons->setObjectName(QStringLiteral("buttonBox"));

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(d->splitter, 1);
    layout->addWidget(d->buttons);

    connect(d->buttons, SIGNAL(accepted()), this, SLOT(accept()));
    connect(d->buttons, SIGNAL(rejected()), this, SLOT(reject()));
    connect(d->treeView, SIGNAL(clicked(const QModelIndex&)), this,
            SLOT(on_treeView_clicked(const QModelIndex&)));
    connect(&translation::Manager::singleton(), SIGNAL(languageChanged()), this, SLOT(translate()));

    readSettings();
    translate();
    if (d->action)
        d->action->setEnabled(false);
}

Dialog::~Dialog()
{
    // Also when the dialog goes with its parent, without being closed.
    if (d->action)
        d->action->setEnabled(true);
}

TreeItem* Dialog::addDir(const char* name, const char* context)
{
    return d->tree->addDir(name, context);
}

void Dialog::addPage(Page* page, TreeItem* dir)
{
    if (!page)
        return;
    d->stack->addWidget(page);
    d->tree->addPage(page, dir);
}

void Dialog::readSettings()
{
    QSettings settings;
    settings.beginGroup(settingsGroup);
    resize(settings.value(QStringLiteral("size"), QSize(400, 300)).toSize());
    move(settings.value(QStringLiteral("pos"), QPoint(200, 200)).toPoint());
    QList<int> sizes;
    const QVariantList stored = settings.value(QStringLiteral("splitter")).toList();
    for (const QVariant& size : stored)
        sizes.append(size.toInt());
    if (sizes.isEmpty())
        sizes = {150, 250};
    d->splitter->setSizes(sizes);
    settings.endGroup();
}

void Dialog::writeSettings()
{
    QSettings settings;
    settings.beginGroup(settingsGroup);
    settings.setValue(QStringLiteral("size"), size());
    settings.setValue(QStringLiteral("pos"), pos());
    QVariantList sizes;
    const QList<int> splitterSizes = d->splitter->sizes();
    for (int size : splitterSizes)
        sizes.append(size);
    settings.setValue(QStringLiteral("splitter"), sizes);
    settings.endGroup();
    if (d->action)
        d->action->setEnabled(true);
}

void Dialog::accept()
{
    for (int i = 0; i < d->stack->count(); ++i) {
        auto* page = qobject_cast<Page*>(d->stack->widget(i));
        if (page && !page->finish())
            return;
    }
    writeSettings();
    QDialog::accept();
}

void Dialog::reject()
{
    writeSettings();
    QDialog::reject();
}

bool Dialog::eventFilter(QObject* object, QEvent* event)
{
    if (object == this && event->type() == QEvent::Close)
        reject();
    return QDialog::eventFilter(object, event);
}

void Dialog::showEvent(QShowEvent* event)
{
    const QModelIndex first = d->tree->firstPage(nullptr);
    d->treeView->setCurrentIndex(first);
    on_treeView_clicked(first);
    QDialog::showEvent(event);
}

void Dialog::translate()
{
    // Nothing of its own: the pages translate themselves and the tree follows by its items.
}

void Dialog::on_treeView_clicked(const QModelIndex& index)
{
    if (Page* page = d->tree->page(index))
        d->stack->setCurrentWidget(page);
}

} // namespace kes::qt::gui::option
