#include <kes/core/log.h>

#include <iostream>

namespace kes::core {

Log::Log() = default;
Log::~Log() = default;

Log& Log::singleton()
{
    static Log log;
    return log;
}

void Log::setReceiver(Receiver receiver)
{
    std::shared_ptr<const Receiver> next;
    if (receiver)
        next = std::make_shared<const Receiver>(std::move(receiver));
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_receiver.swap(next);
    }
    // next now holds the old receiver, destroyed here outside the lock: its captures may log.
}

void Log::log(const std::string& message)
{
    std::shared_ptr<const Receiver> receiver;
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        receiver = m_receiver;
    }
    if (receiver) {
        (*receiver)(message);
        return;
    }
    // One write per line, so that lines from different threads do not interleave.
    std::string line = message;
    if (line.empty() || line.back() != '\n')
        line += '\n';
    std::cerr.write(line.data(), std::streamsize(line.size()));
    std::cerr.flush();
}

} // namespace kes::core
