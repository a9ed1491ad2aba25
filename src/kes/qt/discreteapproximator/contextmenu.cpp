#include <kes/qt/discreteapproximator/contextmenu.h>

#include <kes/qt/discreteapproximator/model.h>
#include <kes/qt/translation/manager.h>

#include <QClipboard>
#include <QGuiApplication>

namespace kes::qt::discreteapproximator {

ContextMenu::ContextMenu(int row, Model* model, QWidget* parent)
    : QMenu(parent)
    , m_row(row)
    , m_model(model)
{
    connect(&kes::qt::translation::Manager::singleton(), SIGNAL(languageChanged()), this,
            SLOT(translate()));
}

ContextMenu::~ContextMenu() = default;

void ContextMenu::init()
{
    if (m_row >= 0) {
        m_insertBefore = addAction(QString(), this, SLOT(on_insertPointBefore()));
        m_insertAfter = addAction(QString(), this, SLOT(on_insertPointAfter()));
        m_remove = addAction(QString(), this, SLOT(on_removePoint()));
        m_remove->setEnabled(m_model->rowCount() != 1);
        addSeparator();
    }
    m_import = addAction(QString(), this, SLOT(on_importFromClipboard()));
    m_import->setEnabled(!QGuiApplication::clipboard()->text().isEmpty());
    m_export = addAction(QString(), this, SLOT(on_exportToClipboard()));
    if (QAction* help = m_model->helpAction()) {
        addSeparator();
        addAction(help);
    }
    translate();
}

void ContextMenu::on_insertPointBefore()
{
    m_model->insertPointBefore(m_row);
}

void ContextMenu::on_insertPointAfter()
{
    m_model->insertPointAfter(m_row);
}

void ContextMenu::on_removePoint()
{
    m_model->removePoint(m_row);
}

void ContextMenu::on_importFromClipboard()
{
    m_model->fromString(QGuiApplication::clipboard()->text());
}

void ContextMenu::on_exportToClipboard()
{
    QGuiApplication::clipboard()->setText(m_model->toString());
}

void ContextMenu::translate()
{
    if (m_insertBefore) {
        m_insertBefore->setText(tr("Insert point before"));
        m_insertAfter->setText(tr("Insert point after"));
        m_remove->setText(tr("Remove point"));
    }
    if (m_import) {
        m_import->setText(tr("Import from clipboard"));
        m_export->setText(tr("Export to clipboard"));
    }
}

} // namespace kes::qt::discreteapproximator
