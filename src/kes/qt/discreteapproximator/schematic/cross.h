#ifndef KES_QT_DISCRETEAPPROXIMATOR_SCHEMATIC_CROSS_H
#define KES_QT_DISCRETEAPPROXIMATOR_SCHEMATIC_CROSS_H

#include <kes/qt/kes_qt_export.h>

#include <kes/core/pointf.h>

#include <QGraphicsPathItem>

#include <memory>

namespace kes::qt::discreteapproximator::schematic {

struct CrossPrivate;

/// A red plus sign over everything else at an operating point given by the application, with
/// its coordinates underneath.
class KES_QT_EXPORT Cross : public QGraphicsPathItem
{
public:
    /// Half the length of each bar of the cross, in scene pixels.
    static constexpr double _crossSize = 5.0;

    /// Over every other item, at the scene's origin until placed.
    explicit Cross(QGraphicsItem* parent = nullptr);
    ~Cross() override;

    /// Stores \a p and shows it as "(x,y)"; placing the cross is the scene's business.
    void setCrossPoint(const kes::core::PointF& p);
    /// The operating point in data coordinates.
    kes::core::PointF crossPoint() const;
    /// The coordinates shown under the cross, "(x,y)".
    QString labelText() const;

private:
    std::unique_ptr<CrossPrivate> const d;
};

} // namespace kes::qt::discreteapproximator::schematic

#endif
