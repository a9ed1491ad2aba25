#ifndef KES_QT_GRAPHICS_SIMPLEVIEW_H
#define KES_QT_GRAPHICS_SIMPLEVIEW_H

#include <kes/qt/kes_qt_export.h>

#include <QGraphicsView>

#include <memory>

namespace kes::qt::graphics {

struct SimpleViewPrivate;

/// A graphics view zoomed by clicks: the left button doubles the scale, the right one halves it,
/// and either then centres the view on the scene point under the mouse.
class KES_QT_EXPORT SimpleView : public QGraphicsView
{
    Q_OBJECT

public:
    /// At scale 1, with no scene of its own.
    explicit SimpleView(QWidget* parent = nullptr);
    ~SimpleView() override;

protected:
    void mousePressEvent(QMouseEvent* event) override;

private:
    std::unique_ptr<SimpleViewPrivate> const d;
};

} // namespace kes::qt::graphics

#endif
