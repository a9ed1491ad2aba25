#ifndef KES_QT_GUI_WIDGETS_ABSTRACTLABELEDWIDGET_H
#define KES_QT_GUI_WIDGETS_ABSTRACTLABELEDWIDGET_H

#include <kes/qt/kes_qt_export.h>

#include <QString>
#include <QWidget>

#include <memory>

class QLabel;

namespace kes::qt::gui::widgets {

struct AbstractLabeledWidgetPrivate;

/// A text label in front of one input widget, in one row, as a unit for building forms: the label
/// shows the label text followed by the separator (":" by default), greys out with its field, and
/// the field takes all extra width. Subclasses create the field, return it from widget(), call
/// setupLayout() and re-emit the field's signals as their own.
class KES_QT_EXPORT AbstractLabeledWidget : public QWidget
{
    Q_OBJECT
    /// The text in front of the field, without the separator.
    Q_PROPERTY(QString labelText READ labelText WRITE setLabelText)
    /// What follows the label text; ":" by default.
    Q_PROPERTY(QString separator READ separator WRITE setSeparator)

public:
    /// An empty label.
    explicit AbstractLabeledWidget(QWidget* parent = nullptr);
    /// The label shows \a labelText followed by ":".
    explicit AbstractLabeledWidget(const QString& labelText, QWidget* parent = nullptr);
    ~AbstractLabeledWidget() override;

    /// The wrapped input widget.
    virtual QWidget* widget() const = 0;

    /// The label in front of the field.
    QLabel* label() const;
    /// The label's text without the separator.
    QString labelText() const;
    /// Shows \a text followed by the separator.
    void setLabelText(const QString& text);
    /// What follows the label text.
    QString separator() const;
    /// Sets what follows the label text; empty for nothing.
    void setSeparator(const QString& separator);

    /// Puts the label and widget() side by side without margins; the field stretches.
    void setupLayout();

public Q_SLOTS:
    /// Applied to the label and the field alike.
    void setEnabled(bool enable);
    /// The opposite of setEnabled().
    void setDisabled(bool disable);

private:
    std::unique_ptr<AbstractLabeledWidgetPrivate> const d;
};

} // namespace kes::qt::gui::widgets

#endif
