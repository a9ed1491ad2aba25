#ifndef KES_CORE_LOG_H
#define KES_CORE_LOG_H

#include <kes/core/kes_core_export.h>

#include <boost/function.hpp>

#include <memory>
#include <mutex>
#include <string>

namespace kes::core {

/// The process's log: messages go to one receiver, or to standard error while there is none.
///
/// The receiver runs on whichever thread logs, and without any lock held, so it may itself log or
/// replace the receiver. The price: a message being delivered while the receiver is replaced may
/// still reach the old one after setReceiver() returned, so a receiver must stay callable until
/// logging threads are done with it.
class KES_CORE_EXPORT Log
{
public:
    using Receiver = boost::function<void(const std::string&)>;

    static Log& singleton();

    Log(const Log&) = delete;
    Log& operator=(const Log&) = delete;

    /// An empty function removes the receiver.
    void setReceiver(Receiver receiver);
    void log(const std::string& message);

private:
    Log();
    ~Log();

    std::mutex m_mutex;
    // Shared so that log() takes it out of the lock without copying the function object.
    std::shared_ptr<const Receiver> m_receiver;
};

} // namespace kes::core

#endif
