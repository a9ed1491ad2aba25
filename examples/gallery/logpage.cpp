#include "logpage.h"

#include "flowlayout.h"
#include "mainwindow.h"
#include "style.h"

#include <kes/core/log.h>
#include <kes/qt/log/log.h>
#include <kes/qt/log/ostreamredirector.h>
#include <kes/qt/log/window.h>
#include <kes/qt/translation/manager.h>

#include <QAction>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QMenu>
#include <QPushButton>
#include <QSpinBox>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>
#include <chrono>
#include <iostream>

namespace kes::gallery {

namespace {

using kes::qt::log::Log;
using namespace style;

constexpr int textMaxWidth = 820;
// The log panel's share of the window when the page first shows it, and its least height.
constexpr double dockShare = 0.3;
constexpr int dockHeight = 150;
// Tighter than on the other pages: the page shares its height with the log panel.
constexpr int sectionGap = 10;

// What the threads of a vision cell log; every fourth message is the same, to show the dots.
QString workerMessage(int worker, long long i)
{
    if (i % 4 == 2)
        return QStringLiteral("waiting for trigger");
    if (i % 4 == 0)
        return QStringLiteral("worker %1: image %2 inspected, %3 blobs").arg(worker + 1).arg(i).arg(i % 7);
    if (i % 4 == 1)
        return QStringLiteral("worker %1: conveyor at %2 mm/s").arg(worker + 1).arg(180 + i % 40);
    return QStringLiteral("part %1 %2").arg(i).arg(i % 29 == 0 ? "rejected" : "accepted");
}

void postFromWorker(int worker, int ratePerSecond, const std::atomic<bool>& stop,
                    std::atomic<long long>& posted)
{
    using Clock = std::chrono::steady_clock;
    // Fast rates post in slices of about 10 ms, so that the thread does not wake per message.
    const int perSlice = std::max(1, ratePerSecond / 100);
    const auto period = std::chrono::nanoseconds(1000000000LL * perSlice / ratePerSecond);
    auto next = Clock::now();
    long long i = 0;
    while (!stop) {
        for (int k = 0; k < perSlice; ++k)
            Log::singleton()->postLog(workerMessage(worker, i++));
        posted += perSlice;
        next += period;
        // Short naps, so that a stop request is seen within 20 ms at any rate.
        for (auto now = Clock::now(); now < next && !stop; now = Clock::now())
            std::this_thread::sleep_for(std::min<Clock::duration>(next - now, std::chrono::milliseconds(20)));
    }
}

QPushButton* button(const char* name, QWidget* parent)
{
    auto* result = new QPushButton(parent);
    result->setObjectName(QLatin1String(name));
    return result;
}

} // namespace

LogPage::LogPage(MainWindow& window, QWidget* parent)
    : Page(parent)
    , m_mainWindow(window)
{
    //! [log-window]
    m_logAction = window.viewMenu()->addAction(QString());
    m_logAction->setCheckable(true);
    m_logWindow = new kes::qt::log::Window(m_logAction, &window);
    window.addDockWidget(Qt::BottomDockWidgetArea, m_logWindow);
    m_logWindow->hide();
    // The panel leaves following the language to the application.
    connect(&kes::qt::translation::Manager::singleton(), SIGNAL(languageChanged()), m_logWindow,
            SLOT(translate()));
    //! [log-window]

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(28, 18, 28, 18);
    layout->setSpacing(0);

    m_heading = sectionHeading(this);
    m_intro = paragraph(textMaxWidth, this);
    layout->addWidget(m_heading);
    layout->addSpacing(6);
    layout->addWidget(m_intro);
    layout->addSpacing(sectionGap);

    m_guiHeading = sectionHeading(this);
    m_message = new QLineEdit(QStringLiteral("Camera 2 connected at 30 fps"), this);
    m_message->setObjectName(QStringLiteral("message"));
    m_message->setMaximumWidth(360);
    m_logButton = button("logButton", this);
    m_emptyLineButton = button("emptyLineButton", this);
    auto* guiRow = new QHBoxLayout;
    guiRow->setSpacing(8);
    guiRow->addWidget(m_message, 1);
    guiRow->addWidget(m_logButton);
    guiRow->addWidget(m_emptyLineButton);
    guiRow->addStretch(1);
    m_guiNote = paragraph(textMaxWidth, this);
    muteText(m_guiNote);
    layout->addWidget(m_guiHeading);
    layout->addSpacing(6);
    layout->addLayout(guiRow);
    layout->addSpacing(4);
    layout->addWidget(m_guiNote);
    layout->addSpacing(sectionGap);

    m_threadsHeading = sectionHeading(this);
    m_threadsLabel = new QLabel(this);
    m_threads = new QSpinBox(this);
    m_threads->setObjectName(QStringLiteral("threads"));
    m_threads->setRange(1, 8);
    m_threads->setValue(4);
    m_rateLabel = new QLabel(this);
    m_rate = new QSpinBox(this);
    m_rate->setObjectName(QStringLiteral("rate"));
    m_rate->setRange(1, 50000);
    m_rate->setValue(20);
    m_workersButton = button("workersButton", this);
    m_workersStatus = new QLabel(this);
    muteText(m_workersStatus);
    // Wraps in a narrow window; each label stays with its field.
    const auto labelled = [this](QLabel* label, QWidget* field) {
        auto* pair = new QWidget(this);
        auto* pairLayout = new QHBoxLayout(pair);
        pairLayout->setContentsMargins(0, 0, 0, 0);
        pairLayout->setSpacing(8);
        pairLayout->addWidget(label);
        pairLayout->addWidget(field);
        label->setBuddy(field);
        return pair;
    };
    auto* threadsRow = new FlowLayout;
    threadsRow->setHorizontalSpacing(20);
    threadsRow->setVerticalSpacing(6);
    threadsRow->addWidget(labelled(m_threadsLabel, m_threads));
    threadsRow->addWidget(labelled(m_rateLabel, m_rate));
    threadsRow->addWidget(m_workersButton);
    threadsRow->addWidget(m_workersStatus);
    layout->addWidget(m_threadsHeading);
    layout->addSpacing(6);
    layout->addLayout(threadsRow);
    layout->addSpacing(sectionGap);

    m_sourcesHeading = sectionHeading(this);
    m_coutButton = button("coutButton", this);
    m_coreButton = button("coreButton", this);
    auto* sourcesRow = new QHBoxLayout;
    sourcesRow->setSpacing(8);
    sourcesRow->addWidget(m_coutButton);
    sourcesRow->addWidget(m_coreButton);
    sourcesRow->addStretch(1);
    m_sourcesNote = paragraph(textMaxWidth, this);
    muteText(m_sourcesNote);
    layout->addWidget(m_sourcesHeading);
    layout->addSpacing(6);
    layout->addLayout(sourcesRow);
    layout->addSpacing(4);
    layout->addWidget(m_sourcesNote);
    layout->addStretch(1);

    m_statusTimer = new QTimer(this);
    m_statusTimer->setInterval(250);
    connect(m_statusTimer, &QTimer::timeout, this, &LogPage::updateStatus);
    connect(m_logButton, &QPushButton::clicked, this, &LogPage::logFromGui);
    connect(m_message, &QLineEdit::returnPressed, this, &LogPage::logFromGui);
    connect(m_emptyLineButton, &QPushButton::clicked, this,
            [] { Log::singleton()->insertEmptyLine(); });
    connect(m_workersButton, &QPushButton::clicked, this, &LogPage::toggleWorkers);
    connect(m_coutButton, &QPushButton::clicked, this, &LogPage::logFromCout);
    connect(m_coreButton, &QPushButton::clicked, this, &LogPage::logFromCore);

    // What an application has logged by the time the user looks.
    Log::singleton()->log(QStringList{
        QStringLiteral("kes_gallery started"),
        QStringLiteral("camera 1 connected at 30 fps"),
        QStringLiteral("camera 2 connected at 30 fps"),
        QStringLiteral("laser scanner 1: 541 points per scan"),
        QStringLiteral("robot: move to home position done"),
        QStringLiteral("waiting for trigger"),
        QStringLiteral("waiting for trigger"),
        QStringLiteral("waiting for trigger"),
        QStringLiteral("part 1042 accepted"),
    });

    retranslate();
    updateStatus();
}

LogPage::~LogPage()
{
    stopWorkers();
}

QString LogPage::id() const
{
    return QStringLiteral("log");
}

QString LogPage::title() const
{
    return tr("Log", "page list entry");
}

void LogPage::retranslate()
{
    m_logAction->setText(tr("&Log window"));
    m_heading->setText(tr("The log hub"));
    m_intro->setText(
        tr("Messages from every part of an application gather in one process-wide log and show "
           "in the log window docked below (View menu). Any thread may post; the GUI thread "
           "writes whatever has arrived in one go, so that a flood of messages never stalls it. "
           "The newest 100 lines are kept."));
    m_guiHeading->setText(tr("From the GUI thread"));
    m_logButton->setText(tr("Log", "button that writes the message"));
    m_emptyLineButton->setText(tr("Empty line"));
    m_guiNote->setText(tr("Log the same message again: instead of a new line, the last one gets "
                          "a dot for every repeat."));
    m_threadsHeading->setText(tr("From worker threads"));
    m_threadsLabel->setText(tr("Threads:"));
    m_rateLabel->setText(tr("Messages per second and thread:"));
    m_sourcesHeading->setText(tr("Redirected stream and core library"));
    m_coutButton->setText(tr("Write to std::cout"));
    m_coreButton->setText(tr("Log through the core library"));
    m_sourcesNote->setText(
        tr("std::cout is taken over while the button writes three lines and an unfinished one, "
           "which is posted when the stream gets its buffer back; its bytes are read as Latin-1. "
           "The core library's log is called from a worker thread, in UTF-8."));
    updateStatus();
}

void LogPage::activated()
{
    if (m_logWindow && !m_logWindow->isVisible()) {
        m_shownByPage = true;
        m_logWindow->show();
    }
    if (m_logWindow && !m_dockSized) {
        // Low enough to leave the pages their room; the user's own size is kept afterwards.
        const int height = std::max(dockHeight, int(m_mainWindow.height() * dockShare));
        m_mainWindow.resizeDocks({m_logWindow.data()}, {height}, Qt::Vertical);
        m_dockSized = true;
    }
    m_statusTimer->start();
}

void LogPage::deactivated()
{
    stopWorkers();
    m_statusTimer->stop();
    if (m_shownByPage && m_logWindow)
        m_logWindow->hide();
    m_shownByPage = false;
}

std::chrono::milliseconds LogPage::settleTime() const
{
    return std::chrono::milliseconds(300);
}

void LogPage::logFromGui()
{
    Log::singleton()->log(m_message->text());
}

void LogPage::logFromCout()
{
    //! [redirector]
    const kes::qt::log::OStreamRedirector redirector(std::cout, *Log::singleton());
    std::cout << "std::cout: calibration started" << std::endl;
    std::cout << "std::cout: reprojection error " << 0.042 << " px\n";
    std::cout << "std::cout: r\xe9sultat enregistr\xe9 (Latin-1)\n";
    std::cout << "std::cout: an unfinished line";
    //! [redirector]
}

void LogPage::logFromCore()
{
    std::thread([] {
        kes::core::Log::singleton().log("core: Größe des Bereichs 12 × 8 mm, Abstand 0,5 µm (UTF-8)");
    }).join();
}

void LogPage::toggleWorkers()
{
    if (m_workers.empty())
        startWorkers();
    else
        stopWorkers();
}

void LogPage::startWorkers()
{
    stopWorkers();
    m_stopWorkers = false;
    const int rate = m_rate->value();
    for (int w = 0; w < m_threads->value(); ++w)
        m_workers.emplace_back(postFromWorker, w, rate, std::cref(m_stopWorkers), std::ref(m_posted));
    m_threads->setEnabled(false);
    m_rate->setEnabled(false);
    updateStatus();
}

void LogPage::stopWorkers()
{
    m_stopWorkers = true;
    for (auto& worker : m_workers)
        worker.join();
    m_workers.clear();
    m_threads->setEnabled(true);
    m_rate->setEnabled(true);
    updateStatus();
}

void LogPage::updateStatus()
{
    if (!m_workersButton)
        return;
    m_workersButton->setText(m_workers.empty() ? tr("Start") : tr("Stop"));
    m_workersStatus->setText(
        tr("%1 messages posted").arg(QLocale().toString(m_posted.load())));
}

} // namespace kes::gallery
