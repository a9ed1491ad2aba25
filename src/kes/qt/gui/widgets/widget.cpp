#include <kes/qt/gui/widgets/widget.h>

#include <QPalette>
#include <QWidget>

namespace kes::qt::gui::widgets {

struct WidgetPrivate
{
    QWidget* self = nullptr;
    Widget::DisplayStyle style = Widget::Normal;
    bool tracking = true;
    QColor savedBase;
    bool baseNotSaved = true;
};

Widget::Widget(QWidget* self)
    : d(std::make_unique<WidgetPrivate>())
{
    d->self = self;
}

Widget::~Widget() = default;

void Widget::setDisplayStyle(Widget::DisplayStyle style)
{
    if (style == d->style)
        return;
    d->style = style;
    if (!d->self)
        return;
    QPalette palette = d->self->palette();
    // The widget's own colour is taken before the first change, so that Normal can return to it.
    if (d->baseNotSaved) {
        d->savedBase = palette.color(QPalette::Active, QPalette::Base);
        d->baseNotSaved = false;
    }
    QColor color = d->savedBase;
    if (style == Editing)
        color = editingColor();
    else if (style == Highlighted)
        color = highlightedColor();
    palette.setBrush(QPalette::Active, QPalette::Base, QBrush(color));
    palette.setBrush(QPalette::Inactive, QPalette::Base, QBrush(color));
    d->self->setPalette(palette);
}

Widget::DisplayStyle Widget::displayStyle() const
{
    return d->style;
}

bool Widget::displayStyleTracking() const
{
    return d->tracking;
}

void Widget::setDisplayStyleTracking(bool enable)
{
    if (!enable && d->tracking)
        setDisplayStyle(Normal);
    d->tracking = enable;
}

} // namespace kes::qt::gui::widgets
