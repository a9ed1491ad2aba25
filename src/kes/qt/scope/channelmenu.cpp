#include <kes/qt/scope/channelmenu.h>

#include <kes/qt/scope/view.h>
#include <kes/qt/translation/manager.h>

#include <QAction>
#include <QColorDialog>
#include <QSignalMapper>

namespace kes::qt::scope {

namespace {

constexpr int scaleSteps = 13;

// 1, 2, 5, 10, 20, 50, ... 10000.
int scaleValue(int step)
{
    static const int mantissas[] = {1, 2, 5};
    int factor = 1;
    for (int k = 0; k < step / 3; ++k)
        factor *= 10;
    return mantissas[step % 3] * factor;
}

QAction* addMapped(QMenu* menu, QSignalMapper* mapper, int value, bool checked)
{
    QAction* action = menu->addAction(QString());
    action->setCheckable(true);
    action->setChecked(checked);
    QObject::connect(action, SIGNAL(triggered()), mapper, SLOT(map()));
    mapper->setMapping(action, value);
    return action;
}

} // namespace

ChannelMenu::ChannelMenu(int channel, View* view)
    : QMenu()
    , m_channel(channel)
    , m_view(view)
    , m_xscaleMapper(new QSignalMapper(this))
    , m_yscaleMapper(new QSignalMapper(this))
    , m_triggerMapper(new QSignalMapper(this))
{
    const bool single = channel >= 0;
    const QVector<int> shown = targets();
    // For all channels a scale is checked only when channel 0 and every shown channel share it.
    QVector<int> compared = shown;
    if (!single && !compared.contains(0))
        compared.prepend(0);
    auto everyScale = [&](auto scaleOf, double value) {
        if (!view)
            return false;
        for (int i : qAsConst(compared)) {
            if (scaleOf(view->channel(i)) != value)
                return false;
        }
        return true;
    };

    if (single) {
        if (view)
            setIcon(QIcon(view->channel(channel).icon));
    } else {
        m_enable = addAction(QString(), this, SLOT(on_enable_channel()));
    }
    m_disable = addAction(QString(), this, SLOT(on_disable_channel()));

    m_timeMenu = addMenu(QString());
    m_amplificationMenu = addMenu(QString());
    for (int step = 0; step < scaleSteps; ++step) {
        const int value = scaleValue(step);
        m_timeActions.append(addMapped(m_timeMenu, m_xscaleMapper, value,
                                       everyScale([](const Channel& c) { return c.xScale; },
                                                  double(value))));
        m_amplificationActions.append(
            addMapped(m_amplificationMenu, m_yscaleMapper, value,
                      everyScale([](const Channel& c) { return c.yScale; }, value * 0.1)));
    }

    m_triggerMenu = addMenu(QString());
    const int trigger = single && view ? int(view->channel(channel).trigger) : -1;
    m_triggerOff = addMapped(m_triggerMenu, m_triggerMapper, TriggerOff, trigger == TriggerOff);
    m_triggerRising = addMapped(m_triggerMenu, m_triggerMapper, TriggerRisingEdge,
                                trigger == TriggerRisingEdge);
    m_triggerFalling = addMapped(m_triggerMenu, m_triggerMapper, TriggerFallingEdge,
                                 trigger == TriggerFallingEdge);
    for (int j = 0; view && j < view->numChannels(); ++j) {
        if (j != channel)
            addMapped(m_triggerMenu, m_triggerMapper, j, trigger == j)->setText(
                view->channel(j).name);
    }

    if (single)
        m_color = addAction(QString(), this, SLOT(on_color()));

    connect(m_xscaleMapper, SIGNAL(mapped(int)), this, SLOT(on_xscale(int)));
    connect(m_yscaleMapper, SIGNAL(mapped(int)), this, SLOT(on_yscale(int)));
    connect(m_triggerMapper, SIGNAL(mapped(int)), this, SLOT(on_trigger(int)));

    connect(&translation::Manager::singleton(), SIGNAL(languageChanged()), this,
            SLOT(translate()));
    translate();
}

ChannelMenu::~ChannelMenu() = default;

void ChannelMenu::translate()
{
    if (m_channel >= 0) {
        if (m_view)
            setTitle(m_view->channel(m_channel).name);
    } else {
        setTitle(tr("All channels"));
        m_enable->setText(tr("Enable"));
    }
    m_disable->setText(tr("Disable"));
    m_timeMenu->setTitle(tr("Time"));
    m_amplificationMenu->setTitle(tr("Amplification"));
    m_triggerMenu->setTitle(tr("Trigger"));
    for (int step = 0; step < scaleSteps; ++step) {
        const int value = scaleValue(step);
        m_timeActions.at(step)->setText(tr("%1ms").arg(value));
        m_amplificationActions.at(step)->setText(tr("%1 / Div").arg(value * 0.1, 0, 'g', -1));
    }
    m_triggerOff->setText(tr("Off"));
    m_triggerRising->setText(tr("Rising edge"));
    m_triggerFalling->setText(tr("Falling edge"));
    if (m_color)
        m_color->setText(tr("Set color"));
}

QVector<int> ChannelMenu::targets() const
{
    if (!m_view)
        return {};
    if (m_channel >= 0)
        return {m_channel};
    QVector<int> all;
    for (int i = 0; i < m_view->numChannels(); ++i)
        all.append(i);
    return all;
}

void ChannelMenu::on_enable_channel()
{
    for (int i : targets()) {
        m_view->setChannelEnabled(i, true);
        Q_EMIT channelEnabled(i, true);
    }
}

void ChannelMenu::on_disable_channel()
{
    for (int i : targets()) {
        m_view->setChannelEnabled(i, false);
        Q_EMIT channelEnabled(i, false);
    }
}

void ChannelMenu::on_xscale(int value)
{
    for (int i : targets()) {
        m_view->setXScale(i, value);
        Q_EMIT xscaleChanged(i, value);
    }
}

void ChannelMenu::on_yscale(int value)
{
    for (int i : targets()) {
        m_view->setYScale(i, value * 0.1);
        Q_EMIT yscaleChanged(i, value * 0.1);
    }
}

void ChannelMenu::on_trigger(int trigger)
{
    for (int i : targets()) {
        if (i == trigger)
            continue;
        m_view->setTrigger(i, Trigger_t(trigger));
        // A refused choice (it would close a cycle of followers) is not reported.
        if (m_view->channel(i).trigger == trigger)
            Q_EMIT triggerChanged(i, trigger);
    }
}

void ChannelMenu::on_color()
{
    if (!m_view)
        return;
    const QColor color = QColorDialog::getColor(m_view->channel(m_channel).color, m_view);
    // The dialog runs an event loop of its own, in which the view may go.
    if (!color.isValid() || !m_view)
        return;
    m_view->setColor(m_channel, color);
    Q_EMIT colorChanged(m_channel, color.rgb());
}

} // namespace kes::qt::scope
