#ifndef KES_QT_SCOPE_CHANNEL_H
#define KES_QT_SCOPE_CHANNEL_H

#include <kes/qt/kes_qt_export.h>

#include <QColor>
#include <QPixmap>
#include <QPointF>
#include <QPolygonF>
#include <QSet>
#include <QString>
#include <QVector>

namespace kes::qt::scope {

/// Trigger mode of a channel. The values 0 to 15 name the channel it follows: it has no trigger
/// condition of its own and is restarted whenever that channel triggers. Values above
/// TriggerFallingEdge are stored and have no effect; the fixed underlying type keeps any int valid.
enum Trigger_t : int {
    TriggerOff = 16,
    TriggerRisingEdge = 17,
    TriggerFallingEdge = 18,
};

/// Stored per channel for the application; curves are always drawn as straight segments.
enum InterpolationMethod_t : int {
    InterpolationLinear = 0,
};

/// One channel of a View: its samples, scales, colour, trigger and the state derived while
/// drawing. A plain record held by the view; the view keeps it consistent through its setters.
struct KES_QT_EXPORT Channel
{
    /// Whether the curve is drawn; a disabled channel still collects its samples.
    bool enabled = true;
    /// The samples since the last trigger or restart, oldest first.
    QVector<QPointF> points;
    double yOffset = 0.0;              ///< in y units, added before scaling
    double xScale = 100.0;             ///< x units per division
    double yScale = 1.0;               ///< y units per division
    /// Stored for the application; see InterpolationMethod_t.
    InterpolationMethod_t interpolationMethod = InterpolationLinear;
    /// The colour of the curve, the markers and the channel button.
    QColor color = Qt::black;
    /// Shown as the title of the channel's menu.
    QString name;
    /// See Trigger_t.
    Trigger_t trigger = TriggerOff;
    double triggerPosition = 0.0;      ///< trigger level in y units
    double xPixelsPerUnit = 1.0;       ///< derived by the view's refresh
    double yPixelsPerUnit = 1.0;       ///< derived by the view's refresh
    QPolygonF offsetArrow;             ///< hit area of the zero-line marker, widget coordinates
    QPolygonF triggerArrow;            ///< hit area of the trigger marker, widget coordinates
    double lastY = 0.0;                ///< the latest sample's y, stored or not
    QPixmap icon;                      ///< 12 x 12 in the channel colour
    /// Not used by the library.
    QPixmap sparePixmap;
    QSet<Channel*> followers;          ///< channels whose trigger names this one
    bool triggered = false;            ///< sweep mode rather than free running

    /// Clears the points of this channel and of all its followers.
    void onTrigger();
    /// Sets the triggered flag of this channel and of all its followers.
    void setTriggered(bool triggered);
};

} // namespace kes::qt::scope

#endif
