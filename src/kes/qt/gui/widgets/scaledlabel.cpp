#include <kes/qt/gui/widgets/scaledlabel.h>

#include <QFontMetrics>
#include <QResizeEvent>

#include <algorithm>

namespace kes::qt::gui::widgets {

class ScaledLabelPrivate
{
public:
    int largestPixelSize = 32;
    int smallestPixelSize = 0;

    // A font has at least one pixel.
    int smallest() const { return std::max(smallestPixelSize, 1); }
};

namespace {

QSize singleLine(QFont font, int pixelSize, const QString& text)
{
    font.setPixelSize(pixelSize);
    return QFontMetrics(font).size(Qt::TextSingleLine, text);
}

} // namespace

ScaledLabel::ScaledLabel(QWidget* parent, Qt::WindowFlags flags)
    : ScaledLabel(QString(), parent, flags)
{
}

ScaledLabel::ScaledLabel(const QString& text, QWidget* parent, Qt::WindowFlags flags)
    : QLabel(text, parent, flags)
    , d(std::make_unique<ScaledLabelPrivate>())
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setScaledContents(true);
}

ScaledLabel::~ScaledLabel() = default;

QSize ScaledLabel::minimumSizeHint() const
{
    const QMargins margins = contentsMargins() + QMargins(margin(), margin(), margin(), margin());
    return singleLine(font(), d->smallest(), text()).grownBy(margins);
}

void ScaledLabel::resizeEvent(QResizeEvent* event)
{
    const QMargins margins = contentsMargins() + QMargins(margin(), margin(), margin(), margin());
    const QSize room = event->size().shrunkBy(margins);
    int pixelSize = d->largestPixelSize;
    while (pixelSize > d->smallest()) {
        const QSize needed = singleLine(font(), pixelSize, text());
        if (needed.width() <= room.width() && needed.height() <= room.height())
            break;
        --pixelSize;
    }
    QFont scaled = font();
    scaled.setPixelSize(std::max(pixelSize, 1));
    setFont(scaled);
    QLabel::resizeEvent(event);
}

} // namespace kes::qt::gui::widgets
