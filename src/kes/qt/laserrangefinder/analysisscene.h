#ifndef KES_QT_LASERRANGEFINDER_ANALYSISSCENE_H
#define KES_QT_LASERRANGEFINDER_ANALYSISSCENE_H

#include <kes/qt/kes_qt_export.h>
#include <kes/qt/laserrangefinder/scene.h>

#include <memory>

namespace kes::qt::laserrangefinder {

class AnalysisScenePrivate;

/// A scan scene with an analysis window: a translucent red sector around a direction, with an
/// opening angle and a radius, cut to the scanner's field of view.
///
/// Angles are in degrees in the beams' sense (0 straight ahead, counter-clockwise positive). The
/// sector follows a new field of view only when updateGraphic() runs, which every setter does on
/// a change; a scan alone leaves it as it is. A distance or opening of 0, or a sector entirely
/// outside the field of view, shows no sector.
class KES_QT_EXPORT AnalysisScene : public Scene
{
    Q_OBJECT

public:
    /// Without a sector until a distance and an opening are set.
    explicit AnalysisScene(QObject* parent = nullptr);
    ~AnalysisScene() override;

    /// The direction of the sector's middle, taken into -180 ... 180.
    void setAngle(float degrees);
    /// Taken into -180 ... 180 like a direction; a negative result counts as 0.
    void setOpeningAngle(float degrees);
    /// The radius; 0 for a distance that is not positive or not finite.
    void setDistance(float metres);
    /// Places the sector for the current settings and the last scan's field of view.
    void updateGraphic();

    /// The direction of the sector's middle in degrees, -180 to 180.
    float angle() const;
    /// The sector's opening in degrees, 0 to 180.
    float openingAngle() const;
    /// In scene units (centimetres).
    float distance() const;
    /// The sector item; on the scene only while a sector is shown. Owned by this scene.
    QGraphicsEllipseItem* sector() const;

private:
    std::unique_ptr<AnalysisScenePrivate> const d;
};

} // namespace kes::qt::laserrangefinder

#endif
