#ifndef KES_QT_LOG_OSTREAMREDIRECTOR_H
#define KES_QT_LOG_OSTREAMREDIRECTOR_H

#include <kes/qt/kes_qt_export.h>

#include <ostream>
#include <streambuf>
#include <string>

namespace kes::qt::log {

class Log;

/// Takes over an output stream (std::cout, std::cerr or any other) for its lifetime: every line
/// written to it is posted to a log hub, its bytes read as Latin-1. A line ends at a line feed
/// only; a carriage return before it stays part of the line. An unfinished last line is posted on
/// destruction, which gives the stream its former buffer back.
///
/// The stream may be written from any thread, but from one at a time: the line being collected
/// is not locked.
class KES_QT_EXPORT OStreamRedirector : public std::streambuf
{
public:
    /// Takes \a stream's output for \a log until destroyed; \a stream and \a log must outlive the redirector.
    OStreamRedirector(std::ostream& stream, Log& log);
    ~OStreamRedirector() override;

    OStreamRedirector(const OStreamRedirector&) = delete;
    OStreamRedirector& operator=(const OStreamRedirector&) = delete;

protected:
    int_type overflow(int_type ch) override;
    std::streamsize xsputn(const char* s, std::streamsize n) override;

private:
    void post(const char* data, std::size_t size);

    std::ostream& m_stream;
    std::streambuf* m_previousBuffer;
    std::string m_pending;
    Log& m_log;
};

} // namespace kes::qt::log

#endif
