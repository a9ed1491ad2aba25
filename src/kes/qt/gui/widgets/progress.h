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
    Q_PROPERTY(QString title READ title WRITE setTitle)

public:
    explicit Progress(QWidget* parent = nullptr, bool showCancelButton = false, const QString& title = QString());
    ~Progress() override;

    QString title() const;
    void setTitle(const QString& title);

Q_SIGNALS:
    /// The user pressed "Cancel"; the wheel has stopped.
    void cancel();

public Q_SLOTS:
    /// Shows the next frame.
    void on_timer_timeout();
    void on_cancel_clicked();
    void translate();

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    std::unique_ptr<ProgressPrivate> const d;
};

} // namespace kes::qt::gui::widgets

#endif
