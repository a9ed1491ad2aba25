#ifndef KES_QT_SCOPE_VIEW_H
#define KES_QT_SCOPE_VIEW_H

#include <kes/qt/kes_qt_export.h>
#include <kes/qt/scope/channel.h>

#include <QColor>
#include <QPixmap>
#include <QRect>
#include <QString>
#include <QWidget>

#include <memory>

class QPainter;

namespace kes::qt::scope {

class ViewPrivate;

/// An oscilloscope-style plot of up to sixteen channels of (x, y) samples.
///
/// The plot has 10 x 10 divisions; each channel has its own x and y scale (units per division),
/// y offset, colour and trigger. The application feeds samples with addPoint() and calls redraw()
/// when the plot should show them. A triggered channel sweeps from the left edge and restarts at
/// each trigger; a free-running one keeps its newest sample at the right edge and forgets what
/// scrolled out. The current channel shows two markers on the plot frame, its zero line on the
/// left and its trigger level on the right, which the user drags with the mouse; a column of
/// colour buttons selects the current channel and a right click opens a menu of ChannelMenu
/// submenus and the clipboard exports.
///
/// The setters emit nothing; the signals report what the user changed. Channel indices outside
/// 0 to 15 are ignored. GUI thread only.
class KES_QT_EXPORT View : public QWidget
{
    Q_OBJECT
    /// The number of channels shown, 0 to 16; 4 at first.
    Q_PROPERTY(int numChannels READ numChannels WRITE setNumChannels)
    /// The text under the x axis; "Time [s]" at first.
    Q_PROPERTY(QString xAxisTitle READ xAxisTitle WRITE setXAxisTitle)

public:
    /// The number of channels a view has; numChannels() of them are shown.
    static constexpr int maxChannels = 16;

    /// Four channels shown, free running, none current; the plot is drawn at the first resize.
    explicit View(QWidget* parent = nullptr);
    ~View() override;

    /// Shows channels 0 to \a n - 1 (clamped to 0 to 16); hidden channels lose their points.
    void setNumChannels(int n);
    /// The number of channels shown.
    int numChannels() const;
    /// -1 selects none.
    void setCurrentChannel(int channel);
    /// The channel whose markers show and can be dragged, -1 for none.
    int currentChannel() const;

    /// A disabled channel is not drawn and its button is disabled; it stops being the current one.
    void setChannelEnabled(int channel, bool enable);
    /// The title of the channel's menu.
    void setChannelName(int channel, const QString& name);
    /// The colour of the channel's curve, markers and button.
    void setColor(int channel, const QColor& color);
    /// The colour as a QRgb; its alpha is used as QColor(QRgb) uses it.
    void setColor(int channel, quint32 rgb);
    /// Without it, setColor(i, Qt::red) would pick the quint32 overload.
    void setColor(int channel, Qt::GlobalColor color) { setColor(channel, QColor(color)); }
    /// The time base: x units per division.
    void setXScale(int channel, double scale);
    /// Also resets the channel's y offset to 0.
    void setYScale(int channel, double scale);
    /// The offset in y units added to the samples before scaling.
    void setYOffset(int channel, double offset);
    /// A choice that would make the channel follow itself, directly or through other channels,
    /// is refused.
    void setTrigger(int channel, Trigger_t trigger);
    /// The trigger level in y units.
    void setTriggerPosition(int channel, double position);
    /// Stored for the application; curves are always straight segments.
    void setInterpolationMethod(int channel, InterpolationMethod_t method);
    /// Appends a sample; it becomes visible at the next redraw(). Ignored for hidden channels and
    /// for a non-finite \a x. A free-running channel starts again when x runs backwards; one with
    /// a trigger holds at most 10,000 samples and drops further ones until its next trigger.
    void addPoint(int channel, double x, double y);

    /// Sets the text under the x axis; shown from the next refresh.
    void setXAxisTitle(const QString& title);
    /// The text under the x axis.
    QString xAxisTitle() const;

    /// Channel \a channel, or channel 0 for an index outside 0 to 15.
    const Channel& channel(int channel) const;
    /// The plot area in widget pixels, inclusive corners, as of the last refresh.
    QRect plotRect() const;
    /// The pixel row of the value 0 at offset 0, as of the last refresh.
    int yCentre() const;
    /// The picture the view shows.
    const QPixmap& pixmap() const;

    /// The pixel row of \a value, clamped to the plot.
    int yValue2pixel(const Channel& channel, double value) const;
    /// Not the inverse of yValue2pixel(): the value term has the opposite sign.
    double pixel2yValue(const Channel& channel, int pixel) const;

    /// Draws the nine inner lines each way of the 10 by 10 divisions.
    void drawGrid(QPainter* painter);
    /// Draws the current channel's zero-line and trigger markers and records where they are, for dragging.
    void drawArrows(QPainter* painter);
    /// Draws every enabled channel: a triggered one from the left edge, a free-running one with its newest sample at the right edge.
    void drawCurves(QPainter* painter);
    /// Draws a triggered channel's sweep from the left edge.
    void drawData(const Channel& channel, QPainter* painter);
    /// Draws a free-running channel backwards from its newest sample at the right edge.
    void drawDataReverse(const Channel& channel, QPainter* painter);
    /// Lays the plot out for the widget's size and draws the picture again; the paint event only copies it.
    void refreshPixmap();

public Q_SLOTS:
    /// Repaints the plot from the channels' current samples.
    void redraw();

Q_SIGNALS:
    /// The user chose a trigger in the channel menu.
    void triggerChanged(int channel, int trigger);
    /// The user dragged the current channel's trigger marker to level \a yoffset.
    void triggerPositionChanged(int channel, double yoffset);
    /// The user enabled or disabled a channel through the context menu.
    void channelEnabled(int channel, bool enable);
    /// The user chose a time base in the channel menu.
    void xscaleChanged(int channel, qreal scale);
    /// The user chose an amplification in the channel menu.
    void yscaleChanged(int channel, qreal scale);
    /// The user chose a colour in the channel menu.
    void colorChanged(int channel, quint32 color);
    /// The user dragged the current channel's zero-line marker to offset \a yoffset.
    void yOffsetChanged(int channel, double yoffset);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private Q_SLOTS:
    void on_enable_channel(int channel);
    void on_channelButtonGroup_buttonClicked(int id);
    void on_copy_image();
    void on_copy_data();

private:
    friend class ViewPrivate;
    std::unique_ptr<ViewPrivate> const d;
};

} // namespace kes::qt::scope

#endif
