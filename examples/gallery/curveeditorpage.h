#ifndef KES_GALLERY_CURVEEDITORPAGE_H
#define KES_GALLERY_CURVEEDITORPAGE_H

#include "page.h"

#include <kes/core/pointf.h>
#include <kes/core/vector.h>

class QLabel;
class QPlainTextEdit;
class QSlider;

namespace kes::qt::discreteapproximator {
class View;
}

namespace kes::gallery {

/// The discrete approximator: a valve characteristic to drag, insert into and exchange through
/// the clipboard, with an operating point that follows a slider along the curve and the point
/// list as the application receives it.
class CurveEditorPage : public Page
{
    Q_OBJECT

public:
    explicit CurveEditorPage(QWidget* parent = nullptr);
    ~CurveEditorPage() override;

    QString id() const override;
    QString title() const override;
    void retranslate() override;
    std::chrono::milliseconds settleTime() const override;

    /// The characteristic the page starts with: valve opening over control voltage, with a
    /// dead zone at the bottom and saturation at the top.
    static kes::core::Vector<kes::core::PointF> valveCurve();
    /// y of the polyline through \a points at \a x, constant beyond its ends; 0 for no points.
    static double interpolate(const kes::core::Vector<kes::core::PointF>& points, double x);

private Q_SLOTS:
    void onDataChanged();
    void updateOperatingPoint();

private:
    void showChangeCount();
    void showPoints();

    kes::qt::discreteapproximator::View* m_editor = nullptr;
    QLabel* m_heading = nullptr;
    QLabel* m_intro = nullptr;
    QLabel* m_limits = nullptr;
    QLabel* m_sliderLabel = nullptr;
    QSlider* m_slider = nullptr;
    QLabel* m_operatingPoint = nullptr;
    QLabel* m_pointsHeading = nullptr;
    QLabel* m_changes = nullptr;
    QPlainTextEdit* m_points = nullptr;
    int m_changeCount = 0;
};

} // namespace kes::gallery

#endif
