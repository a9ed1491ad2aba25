#include <kes/qt/scope/channelmenu.h>

#include <kes/qt/scope/view.h>
#include <kes/qt/translation/manager.h>

#include <QAction>
#include <QPointer>
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

class ChannelMenuPrivate
{
public:
    ChannelMenuPrivate(ChannelMenu* q, int channel, View* view)
        : channel(channel)
        , view(view)
        , xscaleMapper(new QSignalMapper(q))
        , yscaleMapper(new QSignalMapper(q))
        , triggerMapper(new QSignalMapper(q))
    {
    }

    const int channel;
    const QPointer<View> view;
    QSignalMapper* const xscaleMapper;
    QSignalMapper* const yscaleMapper;
    QSignalMapper* const triggerMapper;
    QAction* enable = nullptr;
    QAction* disable = nullptr;
    QMenu* timeMenu = nullptr;
    QMenu* amplificationMenu = nullptr;
    QMenu* triggerMenu = nullptr;
    QVector<QAction*> timeActions;
    QVector<QAction*> amplificationActions;
    QAction* triggerOff = nullptr;
    QAction* triggerRising = nullptr;
    QAction* triggerFalling = nullptr;
    QAction* color = nullptr;
};

ChannelMenu::ChannelMenu(int channel, View* view)
    : QMenu()
    , d(std::make_unique<ChannelMenuPrivate>(this, channel, view))
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
        d->enable = addAction(QString(), this, SLOT(on_enable_channel()));
    }
    d->disable = addAction(QString(), this, SLOT(on_disable_channel()));

    d->timeMenu = addMenu(QString());
    d->amplificationMenu = addMenu(QString());
    for (int step = 0; step < scaleSteps; ++step) {
        const int value = scaleValue(step);
        d->timeActions.append(addMapped(d->timeMenu, d->xscaleMapper, value,
                                       everyScale([](const Channel& c) { return c.xScale; },
                                                  double(value))));
        d->amplificationActions.append(
            addMapped(d->amplificationMenu, d->yscaleMapper, value,
                      everyScale([](const Channel& c) { return c.yScale; }, value * 0.1)));
    }

    d->triggerMenu = addMenu(QString());
    const int trigger = single && view ? int(view->channel(channel).trigger) : -1;
    d->triggerOff = addMapped(d->triggerMenu, d->triggerMapper, TriggerOff, trigger == TriggerOff);
    d->triggerRising = addMapped(d->triggerMenu, d->triggerMapper, TriggerRisingEdge,
                                trigger == TriggerRisingEdge);
    d->triggerFalling = addMapped(d->triggerMenu, d->triggerMapper, TriggerFallingEdge,
                                 trigger == TriggerFallingEdge);
    for (int j = 0; view && j < view->numChannels(); ++j) {
        if (j != channel)
            addMapped(d->triggerMenu, d->triggerMapper, j, trigger == j)->setText(
                view->channel(j).name);
    }

    if (single)
        d->color = addAction(QString(), this, SLOT(on_color()));

    connect(d->xscaleMapper, SIGNAL(mapped(int)), this, SLOT(on_xscale(int)));
    connect(d->yscaleMapper, SIGNAL(mapped(int)), this, SLOT(on_yscale(int)));
    connect(d->triggerMapper, SIGNAL(mapped(int)), this, SLOT(on_trigger(int)));

    connect(&translation::Manager::singleton(), SIGNAL(languageChanged()), this,
            SLOT(translate()));
    translate();
}

ChannelMenu::~ChannelMenu() = default;

int ChannelMenu::channel() const
{
    return d->channel;
}

void ChannelMenu::translate()
{
    if (d->channel >= 0) {
        if (d->view)
            setTitle(d->view->channel(d->channel).name);
    } else {
        setTitle(tr("All channels"));
        d->enable->setText(tr("Enable"));
    }
    d->disable->setText(tr("Disable"));
    d->timeMenu->setTitle(tr("Time"));
    d->amplificationMenu->setTitle(tr("Amplification"));
    d->triggerMenu->setTitle(tr("Trigger"));
    for (int step = 0; step < scaleSteps; ++step) {
        const int value = scaleValue(step);
        d->timeActions.at(step)->setText(tr("%1ms").arg(value));
        d->amplificationActions.at(step)->setText(tr("%1 / Div").arg(value * 0.1, 0, 'g', -1));
    }
    d->triggerOff->setText(tr("Off"));
    d->triggerRising->setText(tr("Rising edge"));
    d->triggerFalling->setText(tr("Falling edge"));
    if (d->color)
        d->color->setText(tr("Set color"));
}

QVector<int> ChannelMenu::targets() const
{
    if (!d->view)
        return {};
    if (d->channel >= 0)
        return {d->channel};
    QVector<int> all;
    for (int i = 0; i < d->view->numChannels(); ++i)
        all.append(i);
    return all;
}

void ChannelMenu::on_enable_channel()
{
    for (int i : targets()) {
        d->view->setChannelEnabled(i, true);
        Q_EMIT channelEnabled(i, true);
    }
}

void ChannelMenu::on_disable_channel()
{
    for (int i : targets()) {
        d->view->setChannelEnabled(i, false);
        Q_EMIT channelEnabled(i, false);
    }
}

void ChannelMenu::on_xscale(int value)
{
    for (int i : targets()) {
        d->view->setXScale(i, value);
        Q_EMIT xscaleChanged(i, value);
    }
}

void ChannelMenu::on_yscale(int value)
{
    for (int i : targets()) {
        d->view->setYScale(i, value * 0.1);
        Q_EMIT yscaleChanged(i, value * 0.1);
    }
}

void ChannelMenu::on_trigger(int trigger)
{
    for (int i : targets()) {
        if (i == trigger)
            continue;
        d->view->setTrigger(i, Trigger_t(trigger));
        // A refused choice (it would close a cycle of followers) is not reported.
        if (d->view->channel(i).trigger == trigger)
            Q_EMIT triggerChanged(i, trigger);
    }
}

void ChannelMenu::on_color()
{
    if (!d->view)
        return;
    const QColor color = QColorDialog::getColor(d->view->channel(d->channel).color, d->view);
    // The dialog runs an event loop of its own, in which the view may go.
    if (!color.isValid() || !d->view)
        return;
    d->view->setColor(d->channel, color);
    Q_EMIT colorChanged(d->channel, color.rgb());
}

} // namespace kes::qt::scope
