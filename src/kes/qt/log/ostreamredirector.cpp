#include <kes/qt/log/ostreamredirector.h>

#include <kes/qt/log/log.h>

#include <QString>

namespace kes::qt::log {

OStreamRedirector::OStreamRedirector(std::ostream& stream, Log& log)
    : m_stream(stream)
    , m_previousBuffer(stream.rdbuf())
    , m_log(log)
{
    m_stream.rdbuf(this);
}

OStreamRedirector::~OStreamRedirector()
{
    if (!m_pending.empty())
        post(m_pending.data(), m_pending.size());
    m_stream.rdbuf(m_previousBuffer);
}

OStreamRedirector::int_type OStreamRedirector::overflow(int_type ch)
{
    if (ch == '\n') {
        post(m_pending.data(), m_pending.size());
        m_pending.clear();
    } else {
        m_pending += traits_type::to_char_type(ch);
    }
    return ch;
}

std::streamsize OStreamRedirector::xsputn(const char* s, std::streamsize n)
{
    if (n <= 0)
        return 0;
    m_pending.append(s, std::size_t(n));
    std::size_t start = 0;
    for (std::size_t end = m_pending.find('\n'); end != std::string::npos;
         end = m_pending.find('\n', start)) {
        post(m_pending.data() + start, end - start);
        start = end + 1;
    }
    m_pending.erase(0, start);
    return n;
}

void OStreamRedirector::post(const char* data, std::size_t size)
{
    m_log.postLog(QString::fromLatin1(data, int(size)), Log::libraryTag);
}

} // namespace kes::qt::log
