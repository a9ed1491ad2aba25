#include "optionpages.h"

#include "gallerysettings.h"
#include "mainwindow.h"
#include "page.h"

#include <kes/qt/gui/option/dialog.h>
#include <kes/qt/gui/option/tree.h>
#include <kes/qt/translation/manager.h>

#include <QComboBox>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSettings>
#include <QSpinBox>
#include <QSplitter>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>

namespace kes::gallery {

// The context of the dialog's own texts, its title and directory names.
class OptionsDialog
{
    Q_DECLARE_TR_FUNCTIONS(kes::gallery::OptionsDialog)
};

namespace {

const QString languageKey = QStringLiteral("language");
const QString loadDirectoryKey = QStringLiteral("loadDirectory");

using kes::qt::translation::Manager;

void followLanguage(QObject* page)
{
    QObject::connect(&Manager::singleton(), SIGNAL(languageChanged()), page, SLOT(translate()));
}

QModelIndex findPage(const kes::qt::gui::option::Tree& tree, const kes::qt::gui::option::Page* page,
                     const QModelIndex& parent = QModelIndex())
{
    for (int row = 0; row < tree.rowCount(parent); ++row) {
        const QModelIndex index = tree.index(row, 0, parent);
        if (tree.page(index) == page) {
            return index;
        }
        const QModelIndex below = findPage(tree, page, index);
        if (below.isValid()) {
            return below;
        }
    }
    return QModelIndex();
}

// Brings \a page to the front of its dialog, as if the user had picked it in the tree, so that
// the report of a refusal is seen.
void showPage(kes::qt::gui::option::Page* page)
{
    auto* dialog = qobject_cast<kes::qt::gui::option::Dialog*>(page->window());
    auto* view = dialog ? dialog->findChild<QTreeView*>(QStringLiteral("treeView")) : nullptr;
    const auto* tree = view ? qobject_cast<const kes::qt::gui::option::Tree*>(view->model()) : nullptr;
    if (!tree) {
        return;
    }
    const QModelIndex index = findPage(*tree, page);
    view->setCurrentIndex(index);
    dialog->on_treeView_clicked(index);
}

QLabel* wrappedLabel(QWidget* parent)
{
    auto* label = new QLabel(parent);
    label->setWordWrap(true);
    return label;
}

} // namespace

LanguageOptionPage::LanguageOptionPage(QWidget* parent)
    : Page(parent)
{
    m_label = new QLabel(this);
    m_languages = new QComboBox(this);
    m_languages->setObjectName(QStringLiteral("startLanguage"));
    const Manager& manager = Manager::singleton();
    const QStringList names = manager.fullNames();
    const QStringList codes = manager.shortNames();
    for (int i = 0; i < names.size() && i < codes.size(); ++i) {
        m_languages->addItem(names.at(i), codes.at(i));
    }
    const QString stored = QSettings().value(languageKey, manager.currentLanguageString()).toString();
    m_languages->setCurrentIndex(std::max(0, m_languages->findData(stored)));
    m_label->setBuddy(m_languages);
    m_note = wrappedLabel(this);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_label);
    layout->addWidget(m_languages);
    layout->addSpacing(6);
    layout->addWidget(m_note);
    layout->addStretch(1);

    translate();
    followLanguage(this);
}

LanguageOptionPage::~LanguageOptionPage() = default;

bool LanguageOptionPage::finish()
{
    QSettings().setValue(languageKey, m_languages->currentData());
    return true;
}

void LanguageOptionPage::translate()
{
    setWindowTitle(tr("Start language"));
    m_label->setText(tr("&Language at start:"));
    m_note->setText(tr("Takes effect when the gallery starts next. The Languages menu switches at "
                       "once, and the gallery starts in the language chosen last."));
}

FilesOptionPage::FilesOptionPage(QWidget* parent)
    : Page(parent)
{
    m_label = new QLabel(this);
    m_folder = new QLineEdit(QSettings().value(loadDirectoryKey, QDir::homePath()).toString(), this);
    m_folder->setObjectName(QStringLiteral("openFolder"));
    m_label->setBuddy(m_folder);
    m_error = wrappedLabel(this);
    m_error->setObjectName(QStringLiteral("openFolderError"));
    m_error->setStyleSheet(QStringLiteral("color: #b00020;"));
    m_error->hide();
    connect(m_folder, &QLineEdit::textEdited, m_error, &QWidget::hide);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_label);
    layout->addWidget(m_folder);
    layout->addWidget(m_error);
    layout->addStretch(1);

    translate();
    followLanguage(this);
}

FilesOptionPage::~FilesOptionPage() = default;

bool FilesOptionPage::finish()
{
    const QString folder = m_folder->text().trimmed();
    if (!QFileInfo(folder).isDir()) {
        m_error->setText(tr("There is no folder \"%1\". Enter an existing folder.").arg(folder));
        m_error->show();
        showPage(this);
        m_folder->setFocus();
        m_folder->selectAll();
        return false;
    }
    m_error->hide();
    QSettings().setValue(loadDirectoryKey, QFileInfo(folder).absoluteFilePath());
    return true;
}

void FilesOptionPage::translate()
{
    setWindowTitle(tr("Files"));
    m_label->setText(tr("&Open starts in:"));
    // The message of a refusal is rebuilt by the next OK, in the language of then.
    m_error->hide();
}

FrameRateOptionPage::FrameRateOptionPage(const MainWindow& window, QWidget* parent)
    : Page(parent)
    , m_window(window)
{
    m_intro = wrappedLabel(this);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_intro);
    auto* rows = new QFormLayout;
    const GallerySettings& settings = GallerySettings::instance();
    for (const QString& id : settings.livePages()) {
        auto* label = new QLabel(this);
        auto* rate = new QSpinBox(this);
        rate->setObjectName(QStringLiteral("frameRate_") + id);
        rate->setRange(GallerySettings::minimumFrameRate, GallerySettings::maximumFrameRate);
        rate->setValue(settings.frameRate(id));
        label->setBuddy(rate);
        rows->addRow(label, rate);
        m_labels << label;
        m_rates << rate;
    }
    layout->addLayout(rows);
    layout->addStretch(1);

    translate();
    followLanguage(this);
}

FrameRateOptionPage::~FrameRateOptionPage() = default;

bool FrameRateOptionPage::finish()
{
    GallerySettings& settings = GallerySettings::instance();
    const QStringList ids = settings.livePages();
    for (int i = 0; i < m_rates.size() && i < ids.size(); ++i) {
        settings.setFrameRate(ids.at(i), m_rates.at(i)->value());
    }
    return true;
}

void FrameRateOptionPage::translate()
{
    setWindowTitle(tr("Frame rates"));
    m_intro->setText(tr("How often the live pages redraw while they are shown."));
    const QStringList ids = GallerySettings::instance().livePages();
    for (int i = 0; i < m_labels.size() && i < ids.size(); ++i) {
        const kes::gallery::Page* page = m_window.page(ids.at(i));
        m_labels.at(i)->setText(page ? page->title() + QLatin1Char(':') : ids.at(i));
        m_rates.at(i)->setSuffix(tr(" per second"));
    }
}

kes::qt::gui::option::Dialog* createOptionsDialog(MainWindow& window, QAction* action)
{
    auto* dialog = new kes::qt::gui::option::Dialog(&window, action);
    dialog->setObjectName(QStringLiteral("optionsDialog"));
    const auto setTitle = [dialog] { dialog->setWindowTitle(OptionsDialog::tr("Settings")); };
    setTitle();
    QObject::connect(&Manager::singleton(), &Manager::languageChanged, dialog, setTitle);
    // Directory names are translated by the tree itself, in the context given here.
    //! [options-dialog]
    auto* general = dialog->addDir(QT_TRANSLATE_NOOP("kes::gallery::OptionsDialog", "General"),
                                   "kes::gallery::OptionsDialog");
    dialog->addPage(new LanguageOptionPage, general);
    dialog->addPage(new FilesOptionPage, general);
    auto* live = dialog->addDir(QT_TRANSLATE_NOOP("kes::gallery::OptionsDialog", "Live pages"),
                                "kes::gallery::OptionsDialog");
    dialog->addPage(new FrameRateOptionPage(window), live);
    //! [options-dialog]
    if (auto* view = dialog->findChild<QTreeView*>(QStringLiteral("treeView"))) {
        view->expandAll();
    }
    // The dialog's own first size is for a page or two; the gallery's pages want more room.
    if (!QSettings().contains(QStringLiteral("gui_option/size"))) {
        dialog->resize(620, 360);
        if (auto* splitter = dialog->findChild<QSplitter*>(QStringLiteral("splitter"))) {
            splitter->setSizes({220, 400});
        }
    }
    return dialog;
}

} // namespace kes::gallery
