#include "aboutpage.h"

#include "flowlayout.h"
#include "style.h"

#include <kes/qt/gui/widgets/hyperlabel.h>
#include <kes/qt/version.h>

#include <QDir>
#include <QFileInfo>
#include <QFont>
#include <QFontMetrics>
#include <QFormLayout>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QPalette>
#include <QPixmap>
#include <QScrollArea>
#include <QStringView>
#include <QUrl>
#include <QVBoxLayout>

#include <algorithm>

namespace kes::gallery {

namespace {

using namespace style;

const QString iconDirectory = QStringLiteral(":/kes_qt/icons/");
const QString libraryName = QStringLiteral("libkes_qt");

constexpr int iconMaxSize = 48;
constexpr int iconTilePadding = 4;
constexpr int iconCellPadding = 10;
constexpr qreal iconNameScale = 0.9;
constexpr int descriptionMaxWidth = 540;

// The API documentation of this build (docs/ of the build folder), if it was generated.
QString docsFile(const QString& name)
{
    const QString folder = QStringLiteral(KES_GALLERY_DOCS_DIR);
    return folder.isEmpty() ? QString() : QDir(folder).filePath(name);
}

bool isAsciiDigit(QChar c)
{
    return c >= QLatin1Char('0') && c <= QLatin1Char('9');
}

QStringView digitRun(const QString& s, int& pos)
{
    const int start = pos;
    while (pos < s.size() && isAsciiDigit(s.at(pos))) {
        ++pos;
    }
    QStringView run = QStringView(s).mid(start, pos - start);
    // Compared by length and then character by character, so numbers of any length never overflow.
    while (run.size() > 1 && run.front() == QLatin1Char('0')) {
        run = run.mid(1);
    }
    return run;
}

int naturalCompare(const QString& a, const QString& b)
{
    int i = 0;
    int j = 0;
    while (i < a.size() && j < b.size()) {
        if (isAsciiDigit(a.at(i)) && isAsciiDigit(b.at(j))) {
            const QStringView na = digitRun(a, i);
            const QStringView nb = digitRun(b, j);
            if (na.size() != nb.size()) {
                return na.size() < nb.size() ? -1 : 1;
            }
            if (const int c = na.compare(nb)) {
                return c;
            }
            continue;
        }
        if (a.at(i) != b.at(j)) {
            return a.at(i) < b.at(j) ? -1 : 1;
        }
        ++i;
        ++j;
    }
    const int rest = (a.size() - i) - (b.size() - j);
    // "a01" and "a1" tie numerically; a plain comparison keeps the order total.
    return rest != 0 ? rest : a.compare(b);
}

QLabel* selectableValue(const QString& text, QWidget* parent)
{
    auto* label = new QLabel(text, parent);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

QPixmap fittedPixmap(const QPixmap& pixmap)
{
    if (pixmap.width() <= iconMaxSize && pixmap.height() <= iconMaxSize) {
        return pixmap;
    }
    return pixmap.scaled(iconMaxSize, iconMaxSize, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

QWidget* iconCell(const QString& fileName, const QPixmap& pixmap, int cellWidth, int tileSize,
                  QWidget* parent)
{
    auto* cell = new QWidget(parent);
    cell->setFixedWidth(cellWidth);
    auto* layout = new QVBoxLayout(cell);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(3);

    // A tile in the base colour shows the extent of icons with transparent edges.
    auto* tile = new QLabel(cell);
    tile->setFixedSize(tileSize, tileSize);
    tile->setAlignment(Qt::AlignCenter);
    tile->setFrameShape(QFrame::StyledPanel);
    tile->setBackgroundRole(QPalette::Base);
    tile->setAutoFillBackground(true);
    if (pixmap.isNull()) {
        tile->setText(QStringLiteral("?"));
        tile->setToolTip(AboutPage::tr("Not a readable image"));
    } else {
        // Shown at their own size so that the 16 and 24 pixel variants can be told apart.
        tile->setPixmap(fittedPixmap(pixmap));
        tile->setToolTip(
            AboutPage::tr("%1 \u00d7 %2 pixels").arg(pixmap.width()).arg(pixmap.height()));
    }

    auto* name = new QLabel(fileName, cell);
    name->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    name->setTextInteractionFlags(Qt::TextSelectableByMouse);
    scaleFont(name, iconNameScale, false);

    layout->addWidget(tile, 0, Qt::AlignHCenter);
    layout->addWidget(name);
    return cell;
}

} // namespace

AboutPage::AboutPage(QWidget* parent)
    : Page(parent)
{
    auto* content = new QWidget;
    auto* layout = new QVBoxLayout(content);
    layout->setContentsMargins(28, 18, 28, 18);
    layout->setSpacing(0);

    m_heading = new QLabel(libraryName, content);
    scaleFont(m_heading, 2.0, true);
    m_tagline = new QLabel(content);
    m_tagline->setWordWrap(true);
    scaleFont(m_tagline, 1.15, false);
    muteText(m_tagline);
    m_description = paragraph(descriptionMaxWidth, content);

    auto* introduction = new QVBoxLayout;
    introduction->setSpacing(0);
    introduction->addWidget(m_heading);
    introduction->addSpacing(2);
    introduction->addWidget(m_tagline);
    introduction->addSpacing(16);
    introduction->addWidget(m_description);
    introduction->addStretch(1);

    m_versionsHeading = sectionHeading(content);
    m_libraryVersionLabel = new QLabel(content);
    m_libraryVersion = selectableValue(QString::fromLatin1(kes::qt::libraryVersion()), content);
    m_qtRuntimeLabel = new QLabel(content);
    m_qtRuntime = selectableValue(QString::fromLatin1(qVersion()), content);
    m_qtCompiledLabel = new QLabel(content);
    m_qtCompiled = selectableValue(QStringLiteral(QT_VERSION_STR), content);

    auto* versionRows = new QFormLayout;
    versionRows->setContentsMargins(0, 0, 0, 0);
    versionRows->setLabelAlignment(Qt::AlignLeft);
    versionRows->setFormAlignment(Qt::AlignLeft | Qt::AlignTop);
    versionRows->setHorizontalSpacing(16);
    versionRows->setVerticalSpacing(6);
    versionRows->addRow(m_libraryVersionLabel, m_libraryVersion);
    versionRows->addRow(m_qtRuntimeLabel, m_qtRuntime);
    versionRows->addRow(m_qtCompiledLabel, m_qtCompiled);

    // The reference opens in the browser; the Qt help file is for Qt Assistant and Qt Creator.
    m_docsHeading = sectionHeading(content);
    m_referenceLabel = new QLabel(content);
    m_reference = new kes::qt::gui::widgets::HyperLabel(content);
    m_reference->setObjectName(QStringLiteral("apiReference"));
    const QString index = docsFile(QStringLiteral("html/index.html"));
    if (QFileInfo::exists(index))
        m_reference->setLink(QUrl::fromLocalFile(index).toString());
    m_helpFileLabel = new QLabel(content);
    const QString helpFile = docsFile(QStringLiteral("kes_qt.qch"));
    m_helpFile = selectableValue(QString(), content);
    m_helpFile->setObjectName(QStringLiteral("helpFile"));
    if (QFileInfo::exists(helpFile)) {
        // A build folder's path is long: the label shows the file name, the tooltip where it is.
        m_helpFile->setText(QFileInfo(helpFile).fileName());
        m_helpFile->setToolTip(QDir::toNativeSeparators(helpFile));
    }

    auto* docsRows = new QFormLayout;
    docsRows->setContentsMargins(0, 0, 0, 0);
    docsRows->setLabelAlignment(Qt::AlignLeft);
    docsRows->setFormAlignment(Qt::AlignLeft | Qt::AlignTop);
    docsRows->setHorizontalSpacing(16);
    docsRows->setVerticalSpacing(6);
    docsRows->addRow(m_referenceLabel, m_reference);
    docsRows->addRow(m_helpFileLabel, m_helpFile);

    auto* versions = new QVBoxLayout;
    versions->setSpacing(8);
    versions->addWidget(m_versionsHeading);
    versions->addLayout(versionRows);
    versions->addSpacing(10);
    versions->addWidget(m_docsHeading);
    versions->addLayout(docsRows);
    versions->addStretch(1);

    // Side by side, the introduction and the versions leave most of the page's height to the icons.
    auto* overview = new QHBoxLayout;
    overview->setSpacing(28);
    overview->addLayout(introduction);
    overview->addLayout(versions);
    overview->addStretch(1);
    layout->addLayout(overview);
    layout->addSpacing(18);

    m_iconsHeading = sectionHeading(content);
    m_iconsNote = new QLabel(content);
    m_iconsNote->setWordWrap(true);
    muteText(m_iconsNote);
    layout->addWidget(m_iconsHeading);
    layout->addSpacing(2);
    layout->addWidget(m_iconsNote);
    layout->addSpacing(10);
    layout->addWidget(createIconGrid());
    layout->addStretch(1);

    auto* scrollArea = new QScrollArea(this);
    scrollArea->setFrameShape(QFrame::NoFrame);
    scrollArea->setWidgetResizable(true);
    // The icons flow to the width and the text wraps, so the page only ever scrolls down.
    scrollArea->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scrollArea->setWidget(content);

    auto* pageLayout = new QVBoxLayout(this);
    pageLayout->setContentsMargins(0, 0, 0, 0);
    pageLayout->addWidget(scrollArea);

    retranslate();
}

AboutPage::~AboutPage() = default;

QString AboutPage::id() const
{
    return QStringLiteral("about");
}

QString AboutPage::title() const
{
    return tr("About");
}

void AboutPage::retranslate()
{
    m_tagline->setText(tr("Qt widgets and helpers for robotics and machine-vision tools"));
    m_description->setText(
        tr("%1 is a Qt 5 widget library for desktop tools in robotics and machine vision: the "
           "views, editors and small helpers that such tools need again and again. Each page of "
           "this gallery shows one part of it.")
            .arg(libraryName));

    m_versionsHeading->setText(tr("Versions"));
    m_libraryVersionLabel->setText(tr("%1:").arg(libraryName));
    const QString runtimeVersion = QString::fromLatin1(kes::qt::libraryVersion());
    const QString headerVersion = QStringLiteral(KES_VERSION_STRING);
    m_libraryVersion->setText(runtimeVersion == headerVersion
                                  ? runtimeVersion
                                  : tr("%1 (the gallery was built against %2)")
                                        .arg(runtimeVersion, headerVersion));
    m_qtRuntimeLabel->setText(tr("Qt at run time:"));
    m_qtCompiledLabel->setText(tr("Qt at compile time:"));

    m_docsHeading->setText(tr("Documentation"));
    m_referenceLabel->setText(tr("API reference:"));
    m_helpFileLabel->setText(tr("Qt help file:"));
    // Without a generated reference the label says so, as plain text.
    m_reference->setText(m_reference->link().isEmpty() ? tr("not generated") : tr("HTML"));
    if (m_helpFile->toolTip().isEmpty())
        m_helpFile->setText(tr("not generated"));

    m_iconsHeading->setText(tr("Icons"));
    m_iconsNote->setText(
        (m_iconCount > 0 ? tr("Compiled into the library's resources under %1")
                         : tr("No icons found under %1."))
            .arg(iconDirectory));
}

QStringList AboutPage::iconFileNames()
{
    QStringList names = QDir(iconDirectory).entryList(QDir::Files, QDir::NoSort);
    std::sort(names.begin(), names.end(),
              [](const QString& a, const QString& b) { return naturalCompare(a, b) < 0; });
    return names;
}

QWidget* AboutPage::createIconGrid()
{
    auto* grid = new QWidget;
    const QStringList names = iconFileNames();
    m_iconCount = names.size();

    QList<QPixmap> pixmaps;
    int largestIcon = 16;
    int widestName = 0;
    const QFontMetrics nameMetrics(scaledFont(font(), iconNameScale, false));
    for (const QString& name : names) {
        pixmaps.append(QPixmap(iconDirectory + name));
        const QSize shown = fittedPixmap(pixmaps.constLast()).size();
        largestIcon = std::max({largestIcon, shown.width(), shown.height()});
        widestName = std::max(widestName, nameMetrics.horizontalAdvance(name));
    }
    // Equal cells line the icons up in columns, as in a grid, whatever the width of the page.
    const int tileSize = largestIcon + 2 * iconTilePadding;
    const int cellWidth = std::max(tileSize, widestName) + iconCellPadding;

    auto* layout = new FlowLayout(grid);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setHorizontalSpacing(6);
    layout->setVerticalSpacing(8);
    for (int i = 0; i < names.size(); ++i) {
        layout->addWidget(iconCell(names.at(i), pixmaps.at(i), cellWidth, tileSize, grid));
    }
    return grid;
}

} // namespace kes::gallery
