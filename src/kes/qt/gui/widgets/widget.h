#ifndef KES_QT_GUI_WIDGETS_WIDGET_H
#define KES_QT_GUI_WIDGETS_WIDGET_H

#include <kes/qt/kes_qt_export.h>

#include <QColor>

#include <memory>

class QWidget;

namespace kes::qt::gui::widgets {

struct WidgetPrivate;

/// The background colouring of the library's input widgets, a mix-in beside their Qt base: a
/// value being typed but not yet committed shows light blue (Editing), a highlighted field light
/// green, and Normal brings back the widget's own base colour.
class KES_QT_EXPORT Widget
{
public:
    /// The background colouring of the field.
    enum DisplayStyle { Normal = 0, Editing = 1, Highlighted = 2 };

    /// \a self is the widget whose palette is coloured (the object deriving from this mix-in).
    explicit Widget(QWidget* self);

    /// Colours the field's base for \a style; Normal restores the colour it had before the first change.
    virtual void setDisplayStyle(Widget::DisplayStyle style);
    virtual ~Widget();

    Widget(const Widget&) = delete;
    Widget& operator=(const Widget&) = delete;

    /// The current colouring.
    DisplayStyle displayStyle() const;

    /// Whether the input widgets change the style themselves while the user edits; on by
    /// default. Switching it off brings back the Normal style and leaves it to the application.
    bool displayStyleTracking() const;
    /// See displayStyleTracking().
    void setDisplayStyleTracking(bool enable);

    /// The light blue of a value being typed.
    static QColor editingColor() { return QColor(224, 224, 255); }
    /// The light green of a highlighted field.
    static QColor highlightedColor() { return QColor(128, 255, 128); }

private:
    std::unique_ptr<WidgetPrivate> const d;
};

} // namespace kes::qt::gui::widgets

#endif
