#ifndef KES_QT_DISCRETEAPPROXIMATOR_SCHEMATIC_LINE_H
#define KES_QT_DISCRETEAPPROXIMATOR_SCHEMATIC_LINE_H

#include <kes/qt/kes_qt_export.h>

#include <QGraphicsLineItem>

namespace kes::qt::discreteapproximator::schematic {

class Model;

/// One segment of the characteristic, or one of the horizontal runs beyond its ends.
class KES_QT_EXPORT Line : public QGraphicsLineItem
{
public:
    explicit Line(Model* scene, QGraphicsItem* parent = nullptr);
    ~Line() override;

    Model* schematic() const { return m_scene; }

private:
    Model* m_scene;
};

} // namespace kes::qt::discreteapproximator::schematic

#endif
