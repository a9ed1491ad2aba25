#ifndef KES_QT_GUI_WIDGETS_SCALEDLABEL_H
#define KES_QT_GUI_WIDGETS_SCALEDLABEL_H

#include <kes/qt/kes_qt_export.h>

#include <QLabel>
#include <QString>

#include <memory>

namespace kes::qt::gui::widgets {

class ScaledLabelPrivate;

/// A label whose font follows its size: on every resize it takes the largest pixel size, up to
/// 32, at which its text fits on one line.
class KES_QT_EXPORT ScaledLabel : public QLabel
{
    Q_OBJECT

public:
    /// An empty label; its font follows its size from the first resize on.
    explicit ScaledLabel(QWidget* parent = nullptr, Qt::WindowFlags flags = Qt::WindowFlags());
    /// A label showing \a text; its font follows its size from the first resize on.
    explicit ScaledLabel(const QString& text, QWidget* parent = nullptr, Qt::WindowFlags flags = Qt::WindowFlags());
    ~ScaledLabel() override;

    /// The text at the smallest pixel size, so that layouts and splitters can shrink the label
    /// below the size of its current font.
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    std::unique_ptr<ScaledLabelPrivate> const d;
};

} // namespace kes::qt::gui::widgets

#endif
