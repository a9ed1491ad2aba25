#include "scopepage.h"

#include "flowlayout.h"

#include "gallerysettings.h"
#include "style.h"

#include <kes/qt/scope/view.h>

#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QLocale>
#include <QLabel>
#include <QRandomGenerator>
#include <QSpinBox>
#include <QTimer>
#include <QVBoxLayout>

#include <cmath>

namespace kes::gallery {

namespace {

using kes::qt::scope::Trigger_t;
using kes::qt::scope::View;
using namespace style;

constexpr int textMaxWidth = 820;
constexpr int initialChannels = 6;
constexpr double initialLevel = 0.3;
// Samples beyond this per tick are skipped rather than drawn late, as after a stalled event loop.
constexpr qint64 maxBatch = 500;

// Channel c at time t in milliseconds: sine, square, sawtooth and noisy sine, each at its own
// frequency and amplitude, in turn.
double signal(int c, double t)
{
    const double hz = c == 0 ? 2.0 : 2.0 + 1.5 * (c % 5) + c / 4;
    const double phase = t * hz / 1000.0;
    const double amplitude = 0.8 + 0.25 * (c % 3);
    const double cycle = phase - std::floor(phase);
    switch (c % 4) {
    case 0:
        return amplitude * std::sin(2.0 * M_PI * phase);
    case 1:
        return cycle < 0.5 ? amplitude : -amplitude;
    case 2:
        return amplitude * (2.0 * cycle - 1.0);
    default:
        return amplitude * (0.7 * std::sin(2.0 * M_PI * phase)
                            + 0.6 * (QRandomGenerator::global()->generateDouble() - 0.5));
    }
}

} // namespace

ScopePage::ScopePage(QWidget* parent)
    : Page(parent)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(28, 18, 28, 18);
    layout->setSpacing(0);

    m_heading = sectionHeading(this);
    m_description = paragraph(textMaxWidth, this);
    layout->addWidget(m_heading);
    layout->addSpacing(6);
    layout->addWidget(m_description);
    layout->addSpacing(12);

    m_channelsLabel = new QLabel(this);
    m_channels = new QSpinBox(this);
    m_channels->setObjectName(QStringLiteral("channels"));
    m_channels->setRange(1, View::maxChannels);
    m_channels->setValue(initialChannels);
    m_channelsLabel->setBuddy(m_channels);
    m_levelLabel = new QLabel(this);
    m_level = new QDoubleSpinBox(this);
    m_level->setObjectName(QStringLiteral("level"));
    m_level->setRange(-4.0, 4.0);
    m_level->setSingleStep(0.1);
    m_level->setDecimals(2);
    m_level->setValue(initialLevel);
    m_levelLabel->setBuddy(m_level);
    m_signalLabel = new QLabel(this);
    m_signal = new QLabel(this);
    m_signal->setTextInteractionFlags(Qt::TextSelectableByMouse);
    muteText(m_signalLabel);
    // Each label with its control, the groups flowing onto a second row where a language's
    // longer labels need it.
    auto* controls = new QWidget(this);
    auto* flow = new FlowLayout(controls);
    flow->setContentsMargins(0, 0, 0, 0);
    flow->setHorizontalSpacing(24);
    flow->setVerticalSpacing(6);
    const auto group = [&](QWidget* label, QWidget* control) {
        auto* pair = new QWidget(controls);
        auto* row = new QHBoxLayout(pair);
        row->setContentsMargins(0, 0, 0, 0);
        row->setSpacing(8);
        label->setParent(pair);
        control->setParent(pair);
        row->addWidget(label);
        row->addWidget(control);
        flow->addWidget(pair);
    };
    group(m_channelsLabel, m_channels);
    group(m_levelLabel, m_level);
    group(m_signalLabel, m_signal);
    layout->addWidget(controls);
    layout->addSpacing(10);

    //! [scope-setup]
    m_view = new View(this);
    m_view->setObjectName(QStringLiteral("view"));
    m_view->setXAxisTitle(QStringLiteral("Time [ms]"));
    m_view->setNumChannels(initialChannels);
    // Stacked in four rows, so that the first channels do not hide each other.
    for (int c = 0; c < View::maxChannels; ++c)
        m_view->setYOffset(c, 3.3 - 2.2 * (c % 4));
    // A sweep as long as the 500 ms between two triggers fills the width; 50 ms per division is
    // also one of the time bases the channel menu offers, so that it shows ticked there.
    m_view->setXScale(0, 50.0);
    m_view->setXScale(1, 50.0);
    m_view->setTrigger(0, kes::qt::scope::TriggerRisingEdge);
    m_view->setTriggerPosition(0, initialLevel);
    m_view->setTrigger(1, Trigger_t(0));
    //! [scope-setup]
    layout->addWidget(m_view, 1);

    m_sampleTimer = new QTimer(this);
    m_sampleTimer->setInterval(20);
    connect(m_sampleTimer, SIGNAL(timeout()), this, SLOT(addSamples()));
    m_frameTimer = new QTimer(this);
    GallerySettings& settings = GallerySettings::instance();
    settings.declareFrameRate(id(), 30);
    m_frameTimer->setInterval(1000 / settings.frameRate(id()));
    //! [scope-redraw]
    connect(m_frameTimer, SIGNAL(timeout()), m_view, SLOT(redraw()));
    //! [scope-redraw]
    connect(&settings, SIGNAL(frameRateChanged(QString, int)), this,
            SLOT(applyFrameRate(QString, int)));

    QMetaObject::connectSlotsByName(this);
    retranslate();
}

ScopePage::~ScopePage() = default;

QString ScopePage::id() const
{
    return QStringLiteral("scope");
}

QString ScopePage::title() const
{
    return tr("Scope");
}

void ScopePage::retranslate()
{
    m_heading->setText(tr("Sixteen channels at 1 kHz"));
    m_description->setText(
        tr("Synthetic sine, square, sawtooth and noisy signals arrive every 20 ms and the plot is "
           "redrawn 30 times a second. Channel 1 sweeps from a rising edge and channel 2 follows "
           "it; the others run free with the newest sample at the right edge. Choose a channel "
           "with the colour buttons, drag its zero line (left) or trigger level (right), and "
           "right-click for time base, amplification, trigger, colour and the clipboard exports."));
    m_channelsLabel->setText(tr("&Channels:"));
    m_levelLabel->setText(tr("Trigger &level:"));
    m_signalLabel->setText(tr("Last signal:"));
    if (!m_signalShown)
        m_signal->setText(tr("none yet"));
}

void ScopePage::activated()
{
    m_clock.start();
    m_samples = 0;
    m_sampleTimer->start();
    m_frameTimer->start();
}

void ScopePage::deactivated()
{
    m_sampleTimer->stop();
    m_frameTimer->stop();
}

void ScopePage::applyFrameRate(const QString& pageId, int rate)
{
    if (pageId == id())
        m_frameTimer->setInterval(1000 / rate);
}

std::chrono::milliseconds ScopePage::settleTime() const
{
    return std::chrono::milliseconds(1300);
}

void ScopePage::addSamples()
{
    const qint64 due = m_clock.elapsed();
    if (due - m_samples > maxBatch)
        m_samples = due - maxBatch;
    //! [scope-samples]
    for (; m_samples < due; ++m_samples) {
        const double t = double(m_samples);
        for (int c = 0; c < m_view->numChannels(); ++c)
            m_view->addPoint(c, t, signal(c, t));
    }
    //! [scope-samples]
}

void ScopePage::on_channels_valueChanged(int count)
{
    m_view->setNumChannels(count);
}

void ScopePage::on_level_valueChanged(double level)
{
    m_view->setTriggerPosition(0, level);
}

void ScopePage::on_view_triggerPositionChanged(int channel, double level)
{
    if (channel == 0) {
        const QSignalBlocker blocker(m_level);
        m_level->setValue(level);
    }
    showSignal(QStringLiteral("triggerPositionChanged(%1, %2)").arg(channel).arg(QLocale().toString(level, 'f', 2)));
}

void ScopePage::showSignal(const QString& text)
{
    m_signalShown = true;
    m_signal->setText(text);
}

void ScopePage::on_view_channelEnabled(int channel, bool enable)
{
    showSignal(QStringLiteral("channelEnabled(%1, %2)").arg(channel).arg(enable ? "true" : "false"));
}

void ScopePage::on_view_xscaleChanged(int channel, qreal scale)
{
    showSignal(QStringLiteral("xscaleChanged(%1, %2)").arg(channel).arg(QLocale().toString(scale)));
}

void ScopePage::on_view_yscaleChanged(int channel, qreal scale)
{
    showSignal(QStringLiteral("yscaleChanged(%1, %2)").arg(channel).arg(QLocale().toString(scale)));
}

void ScopePage::on_view_triggerChanged(int channel, int trigger)
{
    showSignal(QStringLiteral("triggerChanged(%1, %2)").arg(channel).arg(trigger));
}

void ScopePage::on_view_colorChanged(int channel, quint32 color)
{
    showSignal(QStringLiteral("colorChanged(%1, #%2)").arg(channel).arg(color & 0xffffff, 6, 16,
                                                                          QLatin1Char('0')));
}

void ScopePage::on_view_yOffsetChanged(int channel, double offset)
{
    showSignal(QStringLiteral("yOffsetChanged(%1, %2)").arg(channel).arg(QLocale().toString(offset, 'f', 2)));
}

} // namespace kes::gallery
