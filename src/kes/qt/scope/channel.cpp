#include <kes/qt/scope/channel.h>

namespace kes::qt::scope {

// The view refuses follower cycles, so the recursion below always ends.

void Channel::onTrigger()
{
    points.clear();
    for (Channel* follower : qAsConst(followers))
        follower->onTrigger();
}

void Channel::setTriggered(bool value)
{
    triggered = value;
    for (Channel* follower : qAsConst(followers))
        follower->setTriggered(value);
}

} // namespace kes::qt::scope
