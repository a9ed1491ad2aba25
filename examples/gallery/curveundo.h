#ifndef KES_GALLERY_CURVEUNDO_H
#define KES_GALLERY_CURVEUNDO_H

#include <kes/core/pointf.h>
#include <kes/core/vector.h>

#include <QObject>

class QUndoStack;

namespace kes::qt::discreteapproximator {
class View;
}

namespace kes::gallery {

/// Turns the user's edits of a curve editor into undo commands on \a stack: each drag, table
/// edit, insertion, removal and paste becomes one command, described in the current language
/// ("Move point 3"). The editor reports only that the points changed; the tracker tells the
/// kinds apart by comparing the lists and by the model's reset, which only a paste causes.
class CurveUndoTracker : public QObject
{
    Q_OBJECT

public:
    using Points = kes::core::Vector<kes::core::PointF>;

    CurveUndoTracker(kes::qt::discreteapproximator::View* editor, QUndoStack* stack,
                     QObject* parent = nullptr);
    ~CurveUndoTracker() override;

    /// Puts \a points into the editor without recording it.
    void apply(const Points& points);
    /// The number of the mouse gesture in progress on the graph; -1 while no button is held, so
    /// that the moves of one drag merge into one command and those of two drags do not.
    int gesture() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private Q_SLOTS:
    void onModelReset();
    void onDataChanged();

private:
    kes::qt::discreteapproximator::View* m_editor;
    QUndoStack* m_stack;
    Points m_points;
    bool m_applying = false;
    bool m_reset = false;
    bool m_buttonHeld = false;
    int m_gesture = 0;
};

} // namespace kes::gallery

#endif
