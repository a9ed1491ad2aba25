#pragma once

#include <kes/qt/scope/channel.h>

#include <array>

namespace kes::qt::scope {

// The bookkeeping of channels that follow another channel's trigger: each channel's followers
// set, through which a trigger clears the followers' samples and a change of mode reaches them.
class TriggerLinks
{
public:
    static constexpr int channelCount = 16;
    using Channels = std::array<Channel, channelCount>;

    // Gives \a channel the trigger \a trigger and keeps every followers set in step. A choice
    // that would make the channel follow itself, directly or through other channels, is refused
    // (false): onTrigger() would recurse for ever.
    static bool setTrigger(Channels& channels, int channel, Trigger_t trigger);

private:
    static bool isChannel(int index) { return index >= 0 && index < channelCount; }
};

} // namespace kes::qt::scope
