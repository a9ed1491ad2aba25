#ifndef KES_QT_GUI_WIDGETS_PROGRESS_H
#define KES_QT_GUI_WIDGETS_PROGRESS_H

#include <kes/qt/kes_qt_export.h>

#include <QString>
#include <QWidget>

#include <memory>

namespace kes::qt::gui::widgets {

class ProgressPrivate;

/// A busy indicator: a title above a turning wheel of twelve frames (one turn in 1.2 s) and,
/// optionally, a "Cancel" button below. The wheel turns only while the widget is shown and goes on
/// from the frame where it stopped.
class KES_QT_EXPORT Progress : public QWidget
{
    Q_OBJECT
    /// The text above the wheel.
    Q_PROPERTY(QString title READ title WRITE setTitle)

public:
    /// A wheel under \a title, with a "Cancel" button below if \a showCancelButton.
    explicit Progress(QWidget* parent = nullptr, bool showCancelButton = false, const QString& title = QString());
    ~Progress() override;

    /// The text above the wheel.
    QString title() const;
    /// Sets the text above the wheel.
    void setTitle(const QString& title);

Q_SIGNALS:
    /// The user pressed "Cancel"; the wheel has stopped.
    void cancel();

public Q_SLOTS:
    /// Shows the next frame.
    void on_timer_timeout();
    /// Stops the wheel and emits cancel().
    void on_cancel_clicked();
    /// Labels the "Cancel" button in the current language, widening it for longer words.
    void translate();

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    std::unique_ptr<ProgressPrivate> const d;
};

} // namespace kes::qt::gui::widgets

#endif
