#include "smallwidgetspage.h"

#include "style.h"

#include <kes/qt/gui/widgets/balloontooltip.h>
#include <kes/qt/gui/widgets/checkbox.h>
#include <kes/qt/gui/widgets/hyperlabel.h>
#include <kes/qt/gui/widgets/lineeditwithhelp.h>
#include <kes/qt/gui/widgets/progress.h>
#include <kes/qt/gui/widgets/scaledlabel.h>
#include <kes/qt/gui/widgets/webdialog.h>

#include <QAction>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRegularExpression>
#include <QSplitter>
#include <QStackedWidget>
#include <QTimer>
#include <QUrl>
#include <QVBoxLayout>

namespace kes::gallery {

namespace {

using namespace style;
namespace widgets = kes::qt::gui::widgets;
using widgets::BalloonToolTip;

constexpr int textMaxWidth = 820;
constexpr int calibrationImages = 8;
constexpr int imageTime = 700; // ms per calibration image

QLabel* subHeading(QWidget* parent)
{
    auto* label = new QLabel(parent);
    scaleFont(label, 1.0, true);
    return label;
}

// The middle of the top edge: balloons open above a button and leave it readable.
QPoint topCentre(const QWidget* widget)
{
    return QPoint(widget->width() / 2, 0);
}

} // namespace

SmallWidgetsPage::SmallWidgetsPage(QWidget* parent)
    : Page(parent)
{
    // The desktop's opener; where it is missing, the label falls back to Qt's own.
    widgets::HyperLabel::setWebBrowser(QStringLiteral("xdg-open"));

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(28, 18, 28, 18);
    layout->setSpacing(0);
    m_heading = sectionHeading(this);
    m_intro = paragraph(textMaxWidth, this);
    layout->addWidget(m_heading);
    layout->addSpacing(6);
    layout->addWidget(m_intro);
    layout->addSpacing(14);

    // Balloons: one row across the page, the last button at its right edge.
    m_balloonHeading = subHeading(this);
    m_information = new QPushButton(this);
    m_information->setObjectName(QStringLiteral("informationBalloon"));
    m_warning = new QPushButton(this);
    m_warning->setObjectName(QStringLiteral("warningBalloon"));
    m_critical = new QPushButton(this);
    m_critical->setObjectName(QStringLiteral("criticalBalloon"));
    m_edge = new QPushButton(this);
    m_edge->setObjectName(QStringLiteral("edgeBalloon"));
    auto* balloons = new QHBoxLayout;
    balloons->setSpacing(8);
    balloons->addWidget(m_information);
    balloons->addWidget(m_warning);
    balloons->addWidget(m_critical);
    balloons->addStretch();
    balloons->addWidget(m_edge);
    layout->addWidget(m_balloonHeading);
    layout->addSpacing(6);
    layout->addLayout(balloons);
    layout->addSpacing(16);

    // Left column: the calibration job and the check boxes it drives.
    m_jobHeading = subHeading(this);
    m_jobStack = new QStackedWidget(this);
    m_jobStack->setObjectName(QStringLiteral("jobStack"));
    m_jobStack->setFixedHeight(130);
    auto* idle = new QWidget;
    m_jobStatus = paragraph(320, idle);
    m_start = new QPushButton(idle);
    m_start->setObjectName(QStringLiteral("startCalibration"));
    auto* idleLayout = new QVBoxLayout(idle);
    idleLayout->setContentsMargins(0, 0, 0, 0);
    idleLayout->addWidget(m_jobStatus);
    idleLayout->addSpacing(8);
    idleLayout->addWidget(m_start, 0, Qt::AlignLeft);
    idleLayout->addStretch();
    m_progress = new widgets::Progress(nullptr, true);
    m_progress->setObjectName(QStringLiteral("progress"));
    m_jobStack->addWidget(idle);
    m_jobStack->addWidget(m_progress);
    m_jobTimer = new QTimer(this);
    m_jobTimer->setInterval(imageTime);

    m_calibrated = new widgets::CheckBox(this);
    m_calibrated->setObjectName(QStringLiteral("calibrated"));
    m_calibrated->setReadOnly(true);
    m_useCalibration = new widgets::CheckBox(this);
    m_useCalibration->setObjectName(QStringLiteral("useCalibration"));
    m_useCalibration->setChecked(true);
    m_checkNote = paragraph(420, this);
    muteText(m_checkNote);

    auto* left = new QVBoxLayout;
    left->setSpacing(6);
    left->addWidget(m_jobHeading);
    left->addWidget(m_jobStack);
    left->addWidget(m_calibrated);
    left->addWidget(m_useCalibration);
    left->addWidget(m_checkNote);
    left->addStretch();

    // Right column: documentation, the part number field and the scaled reading.
    m_linkHeading = subHeading(this);
    m_link = new widgets::HyperLabel(this);
    m_link->setObjectName(QStringLiteral("link"));
    m_link->setLink(QStringLiteral("https://docs.opencv.org/4.x/dc/dbb/tutorial_py_calibration.html"));
    m_partLabel = new QLabel(this);
    m_partHelp = new QAction(this);
    m_partNumber = new widgets::LineEditWithHelp(m_partHelp, this);
    m_partNumber->setObjectName(QStringLiteral("partNumber"));
    m_partNumber->setText(QStringLiteral("KES-4711-B"));
    m_partLabel->setBuddy(m_partNumber);
    m_help = new QPushButton(this);
    m_help->setObjectName(QStringLiteral("openHelp"));
    auto* part = new QHBoxLayout;
    part->setSpacing(8);
    part->addWidget(m_partLabel);
    part->addWidget(m_partNumber, 1);

    m_scaledHeading = subHeading(this);
    m_scaledNote = paragraph(420, this);
    muteText(m_scaledNote);
    // The splitter sets its own maximum size from its children's: a frame holds its height.
    auto* splitterFrame = new QWidget(this);
    splitterFrame->setFixedHeight(96);
    auto* splitter = new QSplitter(Qt::Horizontal, splitterFrame);
    splitter->setObjectName(QStringLiteral("readingSplitter"));
    splitter->setChildrenCollapsible(false);
    auto* splitterLayout = new QVBoxLayout(splitterFrame);
    splitterLayout->setContentsMargins(0, 0, 0, 0);
    splitterLayout->addWidget(splitter);
    m_reading = new widgets::ScaledLabel(QStringLiteral("1 250.4 rpm"), splitter);
    m_reading->setObjectName(QStringLiteral("reading"));
    m_reading->setAlignment(Qt::AlignCenter);
    m_reading->setStyleSheet(QStringLiteral("background: #1d2b2a; color: #7df0a8;"));
    m_splitterSide = new QLabel(splitter);
    m_splitterSide->setAlignment(Qt::AlignCenter);
    m_splitterSide->setWordWrap(true);
    m_splitterSide->setFrameShape(QFrame::StyledPanel);
    muteText(m_splitterSide);
    splitter->addWidget(m_reading);
    splitter->addWidget(m_splitterSide);
    splitter->setStretchFactor(0, 3);
    splitter->setStretchFactor(1, 1);

    auto* right = new QVBoxLayout;
    right->setSpacing(6);
    right->addWidget(m_linkHeading);
    right->addWidget(m_link);
    right->addSpacing(4);
    right->addLayout(part);
    right->addWidget(m_help, 0, Qt::AlignLeft);
    right->addSpacing(10);
    right->addWidget(m_scaledHeading);
    right->addWidget(m_scaledNote);
    right->addWidget(splitterFrame);
    right->addStretch();

    auto* columns = new QHBoxLayout;
    columns->setSpacing(28);
    columns->addLayout(left, 1);
    columns->addLayout(right, 1);
    layout->addLayout(columns, 1);

    connect(m_information, SIGNAL(clicked()), this, SLOT(showInformation()));
    connect(m_warning, SIGNAL(clicked()), this, SLOT(showWarning()));
    connect(m_critical, SIGNAL(clicked()), this, SLOT(showCritical()));
    connect(m_edge, SIGNAL(clicked()), this, SLOT(showAtEdge()));
    connect(m_start, SIGNAL(clicked()), this, SLOT(startCalibration()));
    connect(m_jobTimer, SIGNAL(timeout()), this, SLOT(calibrationStep()));
    connect(m_progress, SIGNAL(cancel()), this, SLOT(on_progress_cancel()));
    connect(m_help, SIGNAL(clicked()), this, SLOT(showHelp()));
    connect(m_partHelp, SIGNAL(triggered()), this, SLOT(showPartNumberHelp()));
    connect(m_partNumber, SIGNAL(editingFinished()), this, SLOT(checkPartNumber()));

    retranslate();
}

SmallWidgetsPage::~SmallWidgetsPage() = default;

QString SmallWidgetsPage::id() const
{
    return QStringLiteral("small-widgets");
}

QString SmallWidgetsPage::title() const
{
    return tr("Small widgets");
}

void SmallWidgetsPage::retranslate()
{
    m_heading->setText(tr("Messages, progress and helpers"));
    m_intro->setText(tr("Balloons fade in next to the control they talk about and fade out after "
                        "ten seconds or on a click; hovering keeps them. The calibration shows a "
                        "busy indicator whose Cancel stops it, and only a finished calibration "
                        "ticks the read-only box."));
    m_balloonHeading->setText(tr("Balloon messages"));
    m_information->setText(tr("Information"));
    m_warning->setText(tr("Warning"));
    m_critical->setText(tr("Critical"));
    m_edge->setText(tr("At the window's edge"));
    m_jobHeading->setText(tr("Camera calibration"));
    m_start->setText(tr("Start calibration"));
    m_calibrated->setText(tr("Camera 2 calibrated"));
    m_useCalibration->setText(tr("Undistort the live image"));
    m_checkNote->setText(tr("The first box is read-only: neither clicks nor the Space key change "
                            "it, only the calibration does. The second one is a plain check box."));
    m_linkHeading->setText(tr("Documentation"));
    m_link->setText(tr("Calibration tutorial"));
    m_partLabel->setText(tr("&Part number:"));
    m_partHelp->setText(tr("Help on part numbers"));
    m_help->setText(tr("Open the help"));
    m_scaledHeading->setText(tr("Spindle speed"));
    m_scaledNote->setText(tr("The reading takes the largest font that fits: drag the splitter "
                             "handle."));
    m_splitterSide->setText(tr("Drag the handle on the left"));
    updateCalibrationTexts();
}

void SmallWidgetsPage::activated()
{
    // The first visit shows a calibration under way.
    if (!m_started)
        startCalibration();
    else if (m_jobState == JobState::Running)
        m_jobTimer->start();
}

void SmallWidgetsPage::deactivated()
{
    m_jobTimer->stop();
}

std::chrono::milliseconds SmallWidgetsPage::settleTime() const
{
    return std::chrono::milliseconds(350);
}

void SmallWidgetsPage::showBalloon(BalloonToolTip* balloon)
{
    // One balloon at a time: the previous one fades out as the new one fades in.
    if (m_balloon)
        m_balloon->onCloseTriggered();
    m_balloon = balloon;
}

void SmallWidgetsPage::showInformation()
{
    showBalloon(BalloonToolTip::information(m_information, tr("Calibration saved"),
                                            tr("Camera 2 uses the new intrinsics from the next "
                                               "frame on."),
                                            topCentre(m_information)));
}

void SmallWidgetsPage::showWarning()
{
    //! [balloon]
    showBalloon(BalloonToolTip::warning(m_warning, tr("Exposure clipped"),
                                        tr("12 % of the pixels are saturated. Lower the gain or "
                                           "the exposure time."),
                                        topCentre(m_warning)));
    //! [balloon]
}

void SmallWidgetsPage::showCritical()
{
    showBalloon(BalloonToolTip::critical(m_critical, tr("Laser scanner offline"),
                                         tr("No scan from 192.168.0.41 for 3 s. Check the cable "
                                            "and the scanner's power supply."),
                                         topCentre(m_critical)));
}

void SmallWidgetsPage::showAtEdge()
{
    // Asks for the side away from the window's middle; on a window that reaches the edge of the
    // screen there is no room there, and the balloon opens on the other side.
    auto* balloon = new BalloonToolTip(m_edge, tr("At the edge"),
                                       tr("This balloon asked to open above and to the right of "
                                          "the button's corner. Where the screen ends, it opens "
                                          "on the other side, its tip still on the corner."),
                                       QPoint(m_edge->width() - 1, 0), BalloonToolTip::Information,
                                       BalloonToolTip::AboveRight);
    balloon->show();
    showBalloon(balloon);
}

void SmallWidgetsPage::startCalibration()
{
    m_started = true;
    m_image = 0;
    m_jobState = JobState::Running;
    m_calibrated->setChecked(false);
    updateCalibrationTexts();
    m_jobStack->setCurrentWidget(m_progress);
    m_jobTimer->start();
}

void SmallWidgetsPage::calibrationStep()
{
    ++m_image;
    if (m_image >= calibrationImages) {
        m_jobTimer->stop();
        m_jobState = JobState::Finished;
        // The application may tick what the user may not.
        m_calibrated->setChecked(true);
        m_jobStack->setCurrentIndex(0);
    }
    updateCalibrationTexts();
}

void SmallWidgetsPage::on_progress_cancel()
{
    m_jobTimer->stop();
    m_jobState = JobState::Cancelled;
    m_jobStack->setCurrentIndex(0);
    updateCalibrationTexts();
}

void SmallWidgetsPage::updateCalibrationTexts()
{
    m_progress->setTitle(tr("Calibrating camera 2: image %1 of %2").arg(m_image + 1).arg(calibrationImages));
    switch (m_jobState) {
    case JobState::Idle:
    case JobState::Running:
        m_jobStatus->setText(tr("Camera 2 has not been calibrated yet."));
        break;
    case JobState::Finished:
        m_jobStatus->setText(tr("Calibration finished: mean reprojection error 0.21 px over %1 "
                                "images.").arg(calibrationImages));
        break;
    case JobState::Cancelled:
        m_jobStatus->setText(tr("Calibration cancelled after %1 of %2 images; the previous "
                                "calibration stays in use.").arg(m_image).arg(calibrationImages));
        break;
    }
}

void SmallWidgetsPage::checkPartNumber()
{
    static const QRegularExpression pattern(QStringLiteral("^KES-\\d{4}-[A-Z]$"));
    if (pattern.match(m_partNumber->text()).hasMatch())
        return;
    showBalloon(BalloonToolTip::warning(m_partNumber, tr("Unknown part number"),
                                        tr("Part numbers read KES, four digits and a revision "
                                           "letter, e.g. KES-4711-B."),
                                        topCentre(m_partNumber)));
}

void SmallWidgetsPage::showHelp()
{
    openHelp(QString());
}

void SmallWidgetsPage::showPartNumberHelp()
{
    openHelp(QStringLiteral("part-numbers"));
}

void SmallWidgetsPage::openHelp(const QString& anchor)
{
    if (!m_webDialog) {
        m_webDialog = new widgets::WebDialog(window());
        m_webDialog->setObjectName(QStringLiteral("helpDialog"));
        m_webDialog->resize(560, 420);
    }
    QUrl url(QStringLiteral("qrc:/gallery/help.html"));
    if (!anchor.isEmpty())
        url.setFragment(anchor);
    m_webDialog->load(url);
    m_webDialog->show();
    m_webDialog->raise();
    m_webDialog->activateWindow();
}

} // namespace kes::gallery
