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
    Q_PROPERTY(int numChannels READ numChannels WRITE setNumChannels)
    Q_PROPERTY(QString xAxisTitle READ xAxisTitle WRITE setXAxisTitle)

public:
    static constexpr int maxChannels = 16;

    explicit View(QWidget* parent = nullptr);
    ~View() override;

    /// Shows channels 0 to \a n - 1 (clamped to 0 to 16); hidden channels lose their points.
    void setNumChannels(int n);
    int numChannels() const;
    /// -1 selects none.
    void setCurrentChannel(int channel);
    int currentChannel() const;

    void setChannelEnabled(int channel, bool enable);
    void setChannelName(int channel, const QString& name);
    void setColor(int channel, const QColor& color);
    void setColor(int channel, quint32 rgb);
    /// Without it, setColor(i, Qt::red) would pick the quint32 overload.
    void setColor(int channel, Qt::GlobalColor color) { setColor(channel, QColor(color)); }
    void setXScale(int channel, double scale);
    /// Also resets the channel's y offset to 0.
    void setYScale(int channel, double scale);
    void setYOffset(int channel, double offset);
    /// A choice that would make the channel follow itself, directly or through other channels,
    /// is refused.
    void setTrigger(int channel, Trigger_t trigger);
    void setTriggerPosition(int channel, double position);
    void setInterpolationMethod(int channel, InterpolationMethod_t method);
    /// Appends a sample; it becomes visible at the next redraw(). Ignored for hidden channels and
    /// for a non-finite \a x. A free-running channel starts again when x runs backwards; one with
    /// a trigger holds at most 10,000 samples and drops further ones until its next trigger.
    void addPoint(int channel, double x, double y);

    void setXAxisTitle(const QString& title);
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

    void drawGrid(QPainter* painter);
    void drawArrows(QPainter* painter);
    void drawCurves(QPainter* painter);
    void drawData(const Channel& channel, QPainter* painter);
    void drawDataReverse(const Channel& channel, QPainter* painter);
    void refreshPixmap();

public Q_SLOTS:
    /// Repaints the plot from the channels' current samples.
    void redraw();

Q_SIGNALS:
    void triggerChanged(int channel, int trigger);
    void triggerPositionChanged(int channel, double yoffset);
    void channelEnabled(int channel, bool enable);
    void xscaleChanged(int channel, qreal scale);
    void yscaleChanged(int channel, qreal scale);
    void colorChanged(int channel, quint32 color);
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
