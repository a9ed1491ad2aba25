#include "triggerlinks_p.h"

namespace kes::qt::scope {

bool TriggerLinks::setTrigger(Channels& channels, int channel, Trigger_t trigger)
{
    if (!isChannel(channel))
        return false;
    // Each channel follows at most one other, so a chain that does not come back here ends
    // within as many links as there are channels.
    for (int link = trigger, steps = 0; isChannel(link) && steps <= channelCount; ++steps) {
        if (link == channel)
            return false;
        link = channels[link].trigger;
    }

    Channel& c = channels[channel];
    if (isChannel(c.trigger))
        channels[c.trigger].followers.remove(&c);
    c.trigger = trigger;
    if (trigger == TriggerOff) {
        c.setTriggered(false);
    } else if (trigger == TriggerRisingEdge || trigger == TriggerFallingEdge) {
        c.setTriggered(true);
    } else if (isChannel(trigger)) {
        c.setTriggered(channels[trigger].triggered);
        channels[trigger].followers.insert(&c);
    }
    return true;
}

} // namespace kes::qt::scope
