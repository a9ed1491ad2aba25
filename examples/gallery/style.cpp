#include "style.h"

#include <QLabel>
#include <QPalette>
#include <QWidget>

namespace kes::gallery::style {

namespace {

// QLabel reckons its height for the width the layout offers, not for the narrower one its maximum
// leaves it; in a wider column it then gets too few lines of room and loses its last ones.
class Paragraph : public QLabel
{
public:
    using QLabel::QLabel;

    int heightForWidth(int width) const override
    {
        return QLabel::heightForWidth(qMin(width, maximumWidth()));
    }
};

} // namespace

QColor mixed(const QColor& a, const QColor& b, int percentOfA)
{
    const auto mix = [percentOfA](int x, int y) {
        return (x * percentOfA + y * (100 - percentOfA)) / 100;
    };
    return QColor(mix(a.red(), b.red()), mix(a.green(), b.green()), mix(a.blue(), b.blue()));
}

QFont scaledFont(QFont font, qreal factor, bool bold)
{
    if (font.pointSizeF() > 0) {
        font.setPointSizeF(font.pointSizeF() * factor);
    } else {
        font.setPixelSize(qRound(font.pixelSize() * factor));
    }
    font.setBold(bold);
    return font;
}

void scaleFont(QWidget* widget, qreal factor, bool bold)
{
    widget->setFont(scaledFont(widget->font(), factor, bold));
}

void muteText(QWidget* widget)
{
    QPalette palette = widget->palette();
    // 62 % keeps the text readable on both light and dark palettes.
    palette.setColor(QPalette::WindowText, mixed(palette.color(QPalette::WindowText),
                                                 palette.color(QPalette::Window), 62));
    widget->setPalette(palette);
}

QLabel* sectionHeading(QWidget* parent)
{
    auto* label = new QLabel(parent);
    scaleFont(label, 1.25, true);
    return label;
}

QLabel* paragraph(int maxWidth, QWidget* parent)
{
    auto* label = new Paragraph(parent);
    label->setWordWrap(true);
    label->setMaximumWidth(maxWidth);
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    return label;
}

} // namespace kes::gallery::style
