#ifndef KES_QT_DISCRETEAPPROXIMATOR_SCHEMATIC_LINE_H
#define KES_QT_DISCRETEAPPROXIMATOR_SCHEMATIC_LINE_H

#include <kes/qt/kes_qt_export.h>

#include <QGraphicsLineItem>

#include <memory>

namespace kes::qt::discreteapproximator::schematic {

class Model;
struct LinePrivate;

/// One segment of the characteristic, or one of the horizontal runs beyond its ends.
class KES_QT_EXPORT Line : public QGraphicsLineItem
{
public:
    /// A line of \a scene, which is not owned; the scene lays it out.
    explicit Line(Model* scene, QGraphicsItem* parent = nullptr);
    ~Line() override;

    /// The scene the line belongs to.
    Model* schematic() const;

private:
    std::unique_ptr<LinePrivate> const d;
};

} // namespace kes::qt::discreteapproximator::schematic

#endif
