#include <kes/qt/gui/widgets/hyperlabel.h>

#include <QByteArray>
#include <QDesktopServices>
#include <QFile>
#include <QMouseEvent>
#include <QUrl>

#include <cerrno>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace kes::qt::gui::widgets {

namespace {

QString& browserCommand()
{
    static QString command;
    return command;
}

// Starts \a command with \a argument in a grandchild process, so that no child is left for the
// application to reap, and returns whether the command could be executed. Between fork and exec
// only async-signal-safe calls are made: the application has threads, and anything else (Qt
// included) could deadlock in the child. That is why a failed start is reported back through a
// pipe, closed on exec, for the caller to fall back on, rather than handled in the child.
bool startDetached(const QByteArray& command, const QByteArray& argument)
{
    int channel[2];
    if (::pipe2(channel, O_CLOEXEC) != 0)
        return false;
    const pid_t child = ::fork();
    if (child < 0) {
        ::close(channel[0]);
        ::close(channel[1]);
        return false;
    }
    if (child == 0) {
        ::close(channel[0]);
        const pid_t grandchild = ::fork();
        if (grandchild != 0) {
            if (grandchild < 0) {
                const int error = errno;
                [[maybe_unused]] const ssize_t written = ::write(channel[1], &error, sizeof error);
            }
            ::_exit(0);
        }
        // The browser must not go when the application's terminal does.
        ::setsid();
        ::execlp(command.constData(), command.constData(), argument.constData(), static_cast<char*>(nullptr));
        const int error = errno;
        [[maybe_unused]] const ssize_t written = ::write(channel[1], &error, sizeof error);
        ::_exit(127);
    }
    ::close(channel[1]);
    while (::waitpid(child, nullptr, 0) < 0 && errno == EINTR) {
    }
    // End of file, once every copy of the writing end is closed: the grandchild's by its exec.
    int error = 0;
    ssize_t received = 0;
    do {
        received = ::read(channel[0], &error, sizeof error);
    } while (received < 0 && errno == EINTR);
    ::close(channel[0]);
    return received == 0;
}

} // namespace

class HyperLabelPrivate
{
public:
    QString link;
    QString text;
};

HyperLabel::HyperLabel(QWidget* parent)
    : QLabel(parent)
    , d(std::make_unique<HyperLabelPrivate>())
{
    setFocusPolicy(Qt::NoFocus);
    setCursor(Qt::PointingHandCursor);
    // The label opens its link itself, on a press, and the rich text must not take the click.
    setTextInteractionFlags(Qt::NoTextInteraction);
}

HyperLabel::~HyperLabel() = default;

void HyperLabel::setLink(const QString& link)
{
    d->link = link;
    if (link.isEmpty()) {
        setTextFormat(Qt::PlainText);
        QLabel::setText(d->text);
    } else {
        setTextFormat(Qt::RichText);
        QLabel::setText(QStringLiteral("<a href=\"") + link + QStringLiteral("\">") + d->text + QStringLiteral("</a>"));
    }
}

QString HyperLabel::link() const
{
    return d->link;
}

QString HyperLabel::plainText() const
{
    return d->text;
}

void HyperLabel::setText(const QString& text)
{
    d->text = text;
    setLink(d->link);
}

void HyperLabel::setWebBrowser(const QString& command)
{
    browserCommand() = command;
}

QString HyperLabel::webBrowser()
{
    return browserCommand();
}

void HyperLabel::openWebPage(const QString& url, QWidget* parent)
{
    Q_UNUSED(parent)
    if (url.startsWith(QLatin1String("mailto:"))) {
        QDesktopServices::openUrl(QUrl(url));
        return;
    }
    const QString command = browserCommand();
    if (command.isEmpty() || !startDetached(QFile::encodeName(command), url.toLocal8Bit()))
        QDesktopServices::openUrl(QUrl(url));
}

void HyperLabel::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && !d->link.isEmpty()) {
        openWebPage(d->link, this);
        event->accept();
        return;
    }
    QLabel::mousePressEvent(event);
}

} // namespace kes::qt::gui::widgets
