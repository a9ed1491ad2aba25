#include <kes/qt/discreteapproximator/contextmenu.h>

#include <kes/qt/discreteapproximator/model.h>
#include <kes/qt/translation/manager.h>

#include <QClipboard>
#include <QGuiApplication>

namespace kes::qt::discreteapproximator {

struct ContextMenuPrivate
{
    int row = -1;
    Model* model = nullptr;
    // Created by init(); the row entries only for a row.
    QAction* insertBefore = nullptr;
    QAction* insertAfter = nullptr;
    QAction* remove = nullptr;
    QAction* import = nullptr;
    QAction* exportAction = nullptr;
};

ContextMenu::ContextMenu(int row, Model* model, QWidget* parent)
    : QMenu(parent)
    , d(std::make_unique<ContextMenuPrivate>())
{
    d->row = row;
    d->model = model;
    connect(&kes::qt::translation::Manager::singleton(), SIGNAL(languageChanged()), this,
            SLOT(translate()));
}

ContextMenu::~ContextMenu() = default;

int ContextMenu::row() const
{
    return d->row;
}

void ContextMenu::init()
{
    if (d->row >= 0) {
        d->insertBefore = addAction(QString(), this, SLOT(on_insertPointBefore()));
        d->insertAfter = addAction(QString(), this, SLOT(on_insertPointAfter()));
        d->remove = addAction(QString(), this, SLOT(on_removePoint()));
        d->remove->setEnabled(d->model->rowCount() != 1);
        addSeparator();
    }
    d->import = addAction(QString(), this, SLOT(on_importFromClipboard()));
    d->import->setEnabled(!QGuiApplication::clipboard()->text().isEmpty());
    d->exportAction = addAction(QString(), this, SLOT(on_exportToClipboard()));
    if (QAction* help = d->model->helpAction()) {
        addSeparator();
        addAction(help);
    }
    translate();
}

void ContextMenu::on_insertPointBefore()
{
    d->model->insertPointBefore(d->row);
}

void ContextMenu::on_insertPointAfter()
{
    d->model->insertPointAfter(d->row);
}

void ContextMenu::on_removePoint()
{
    d->model->removePoint(d->row);
}

void ContextMenu::on_importFromClipboard()
{
    d->model->fromString(QGuiApplication::clipboard()->text());
}

void ContextMenu::on_exportToClipboard()
{
    QGuiApplication::clipboard()->setText(d->model->toString());
}

void ContextMenu::translate()
{
    if (d->insertBefore) {
        d->insertBefore->setText(tr("Insert point before"));
        d->insertAfter->setText(tr("Insert point after"));
        d->remove->setText(tr("Remove point"));
    }
    if (d->import) {
        d->import->setText(tr("Import from clipboard"));
        d->exportAction->setText(tr("Export to clipboard"));
    }
}

} // namespace kes::qt::discreteapproximator
