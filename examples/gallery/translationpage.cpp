#include "translationpage.h"

#include "style.h"

#include <kes/qt/translation/loader.h>
#include <kes/qt/translation/manager.h>

#include <QBrush>
#include <QColor>
#include <QFont>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPalette>
#include <QSet>
#include <QSignalBlocker>
#include <QTableWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace kes::gallery {

namespace {

using kes::qt::translation::Container;
using kes::qt::translation::Manager;
using namespace style;

enum Column { SourceColumn, KeyColumn, TranslationColumn, ColumnCount };

constexpr int textMaxWidth = 820;

QTableWidgetItem* readOnlyItem()
{
    auto* item = new QTableWidgetItem;
    item->setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled);
    return item;
}

} // namespace

TranslationPage::TranslationPage(QWidget* parent)
    : Page(parent)
{
    loadTexts();

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(28, 18, 28, 18);
    layout->setSpacing(0);

    m_introHeading = sectionHeading(this);
    m_qtTexts = paragraph(textMaxWidth, this);
    m_containerTexts = paragraph(textMaxWidth, this);
    layout->addWidget(m_introHeading);
    layout->addSpacing(6);
    layout->addWidget(m_qtTexts);
    layout->addSpacing(6);
    layout->addWidget(m_containerTexts);
    layout->addSpacing(14);

    m_languageLabel = new QLabel(this);
    m_language = new QLabel(this);
    m_language->setTextInteractionFlags(Qt::TextSelectableByMouse);
    QFont bold = m_language->font();
    bold.setBold(true);
    m_language->setFont(bold);
    m_languageHint = new QLabel(this);
    m_languageHint->setWordWrap(true);
    muteText(m_languageHint);
    auto* languageRow = new QHBoxLayout;
    languageRow->setSpacing(8);
    languageRow->addWidget(m_languageLabel);
    languageRow->addWidget(m_language);
    languageRow->addSpacing(8);
    languageRow->addWidget(m_languageHint, 1);
    layout->addLayout(languageRow);
    layout->addSpacing(18);

    m_tableHeading = sectionHeading(this);
    m_status = new QLabel(this);
    m_status->setWordWrap(true);
    m_status->setTextInteractionFlags(Qt::TextSelectableByMouse);
    if (m_textsLoaded && m_loadError.isEmpty()) {
        muteText(m_status);
    } else {
        QPalette palette = m_status->palette();
        palette.setColor(QPalette::WindowText, QColor(0xb0, 0x1c, 0x1c));
        m_status->setPalette(palette);
    }
    layout->addWidget(m_tableHeading);
    layout->addSpacing(2);
    layout->addWidget(m_status);
    layout->addSpacing(8);

    m_table = new QTableWidget(0, ColumnCount, this);
    m_table->setObjectName(QStringLiteral("translationTable"));
    // Three columns of sentences share the page's width; a slightly smaller type keeps them whole.
    scaleFont(m_table, 0.9, false);
    m_table->verticalHeader()->hide();
    m_table->setAlternatingRowColors(true);
    m_table->setWordWrap(false);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed
                             | QAbstractItemView::AnyKeyPressed);
    QHeaderView* header = m_table->horizontalHeader();
    header->setHighlightSections(false);
    header->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    // Equal thirds: a translation is often longer than its source, so it gets no less room.
    header->setSectionResizeMode(QHeaderView::Stretch);

    const QStringList sources = sampleSources();
    m_table->setRowCount(sources.size());
    for (int row = 0; row < sources.size(); ++row) {
        m_table->setItem(row, SourceColumn, new QTableWidgetItem(sources.at(row)));
        m_table->setItem(row, KeyColumn, readOnlyItem());
        m_table->setItem(row, TranslationColumn, readOnlyItem());
    }
    // No taller than its rows, so that the note below stays with them on a tall window.
    m_table->setMaximumHeight(m_table->horizontalHeader()->sizeHint().height()
                              + m_table->verticalHeader()->length() + 2 * m_table->frameWidth());
    layout->addWidget(m_table, 1);
    layout->addSpacing(6);

    m_tableNote = paragraph(textMaxWidth, this);
    muteText(m_tableNote);
    layout->addWidget(m_tableNote);
    layout->addStretch();

    connect(m_table, &QTableWidget::itemChanged, this, &TranslationPage::onItemChanged);
    connect(&Manager::singleton(), SIGNAL(languageChanged()), this, SLOT(updateTranslations()));

    retranslate();
}

TranslationPage::~TranslationPage() = default;

QString TranslationPage::id() const
{
    return QStringLiteral("translation");
}

QString TranslationPage::title() const
{
    return tr("Translation");
}

QString TranslationPage::textsFileName()
{
    return QStringLiteral(":/gallery/gallery_texts.xml");
}

QStringList TranslationPage::sampleSources()
{
    return {
        QStringLiteral("Loading [scene_03.xml]"),
        QStringLiteral("Camera [2] connected at [30] fps"),
        QStringLiteral("Exposure time"),
        QStringLiteral("Working distance \\[mm\\]"),
        QStringLiteral("Laser scanner [2] not responding"),
        QStringLiteral("[8] of [420] parts rejected"),
        QStringLiteral("Move robot to home position"),
        QStringLiteral("Trigger mode"),
        QStringLiteral("Region of interest"),
        // Not in the file, to show what a missing text looks like.
        QStringLiteral("Frame [1042] dropped"),
    };
}

void TranslationPage::retranslate()
{
    m_introHeading->setText(tr("Two kinds of translation"));
    m_qtTexts->setText(
        tr("The library's widgets translate their texts with Qt's tr() and the message files "
           "(.qm) compiled into the library. On a change of language the manager installs the "
           "new ones and every widget re-labels itself, like the title of the Languages menu."));
    m_containerTexts->setText(
        tr("Application texts can come from XML translation files, loaded into a container. "
           "Arguments in square brackets are cut out to find a text and put back into its "
           "translation, in their order; a bracket after a backslash is a literal one."));
    m_languageLabel->setText(tr("Current language:"));
    m_languageHint->setText(tr("Choose another one in the Languages menu."));

    m_tableHeading->setText(tr("Application texts"));
    if (!m_textsLoaded) {
        m_status->setText(m_loadError.isEmpty()
                              ? tr("Cannot read the translation file %1.").arg(textsFileName())
                              : tr("Cannot read the translation file %1: %2")
                                    .arg(textsFileName(), m_loadError));
    } else if (!m_loadError.isEmpty()) {
        m_status->setText(
            tr("Some texts of %1 were skipped: %2").arg(textsFileName(), m_loadError));
    } else {
        QSet<QString> languages;
        const QStringList keys = m_texts->keys();
        for (const QString& key : keys) {
            const auto translations = m_texts->item(key).translations();
            for (auto it = translations.cbegin(); it != translations.cend(); ++it) {
                languages.insert(it.key());
            }
        }
        QStringList sorted = languages.values();
        std::sort(sorted.begin(), sorted.end());
        m_status->setText(tr("%1 texts from %2, translated into %3")
                              .arg(keys.size())
                              .arg(textsFileName(), sorted.join(QStringLiteral(", "))));
    }
    m_table->setHorizontalHeaderLabels({tr("Source text"), tr("Key"), tr("Translation")});
    m_tableNote->setText(
        tr("Double-click a source text to edit it. A text that the file does not hold stays as "
           "it is, in grey."));

    updateTranslations();
}

void TranslationPage::updateTranslations()
{
    const Manager& manager = Manager::singleton();
    const int current = manager.currentLanguage();
    const QStringList fullNames = manager.fullNames();
    m_language->setText(current >= 0 && current < fullNames.size()
                            ? tr("%1 (%2)").arg(fullNames.at(current),
                                                manager.currentLanguageString())
                            : tr("none"));

    for (int row = 0; row < m_table->rowCount(); ++row) {
        updateRow(row);
    }
}

void TranslationPage::loadTexts()
{
    kes::qt::translation::Loader loader;
    m_textsLoaded = loader.load(textsFileName());
    m_loadError = loader.lastError();
    m_texts = loader.container();
}

void TranslationPage::updateRow(int row)
{
    const QTableWidgetItem* sourceItem = m_table->item(row, SourceColumn);
    QTableWidgetItem* keyItem = m_table->item(row, KeyColumn);
    QTableWidgetItem* translationItem = m_table->item(row, TranslationColumn);
    if (!sourceItem || !keyItem || !translationItem) {
        return;
    }
    const QString source = sourceItem->text();
    const QString language = Manager::singleton().currentLanguageString();

    // The page's own changes to the other columns are not edits to react to.
    const QSignalBlocker blocker(m_table);
    keyItem->setText(Container::removeArgs(source));
    // Through a reference: lupdate takes "->tr(" for a Qt tr() call it cannot place and warns.
    const Container& texts = *m_texts;
    translationItem->setText(texts.tr(source, true));
    if (!texts.contains(source)) {
        const QPalette palette = m_table->palette();
        translationItem->setForeground(
            mixed(palette.color(QPalette::Text), palette.color(QPalette::Base), 55));
        translationItem->setToolTip(tr("Not in the translation file: shown as it is."));
    } else {
        translationItem->setData(Qt::ForegroundRole, QVariant());
        translationItem->setToolTip(
            texts.contains(source, language)
                ? QString()
                : tr("No translation into \"%1\": the key, with the arguments put back.")
                      .arg(language));
    }
}

void TranslationPage::onItemChanged(QTableWidgetItem* item)
{
    if (item && item->column() == SourceColumn) {
        updateRow(item->row());
    }
}

} // namespace kes::gallery
