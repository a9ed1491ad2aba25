#ifndef KES_QT_GUI_WIDGETS_BALLOONTOOLTIP_H
#define KES_QT_GUI_WIDGETS_BALLOONTOOLTIP_H

#include <kes/qt/kes_qt_export.h>

#include <QPoint>
#include <QString>
#include <QWidget>

#include <memory>

class QPixmap;

namespace kes::qt::gui::widgets {

class BalloonToolTipPrivate;

/// A frameless message balloon with a pointed tip: an icon, a coloured title, a word-wrapped text
/// and a close button. It fades in when shown, can hide itself after a delay or on a click, fades
/// out before it closes and deletes itself when closed.
///
/// With a parent widget, the requested point is in the parent's coordinates and the balloon
/// follows the parent (and its window) when they move; without one, the point is global. The tip
/// always touches the requested point. Unless the policy is FixedOrientation, the balloon opens on
/// the side of the point where it fits on the screen, whatever side the orientation prefers.
class KES_QT_EXPORT BalloonToolTip : public QWidget
{
    Q_OBJECT

public:
    /// The kind of message, which chooses the icon and the colour of the title.
    enum MessageType {
        Information = 0,
        Warning = 1,
        Critical = 2,
        /// No icon of its own: the caller sets one with setIcon().
        CustomIcon = 3,
    };
    Q_ENUM(MessageType)

    /// The side of the point on which the balloon opens; Left and Right name the direction in
    /// which it extends from its tip.
    enum Orientation {
        /// No preference: above and to the right where that fits.
        Automatic = 0,
        AboveLeft = 1,
        AboveRight = 2,
        /// The tip lies on the top edge.
        BelowLeft = 3,
        BelowRight = 4,
    };
    Q_ENUM(Orientation)

    /// Whether the balloon may open on another side than the one requested.
    enum OrientationPolicy {
        /// The requested side is kept even where the balloon does not fit on the screen.
        FixedOrientation = 0,
        /// The balloon flips to the other side, up or down and left or right, where the requested
        /// one does not fit, and slides along its tip where neither does.
        AdjustOrientation = 1,
    };
    Q_ENUM(OrientationPolicy)

    /// The interval of the fade steps, in milliseconds.
    static constexpr int _timerIntervall = 15;
    /// The length of a fade in or out, in milliseconds.
    static constexpr int _fadeTime = 150;
    /// The opacity of a shown balloon while the pointer is not on it; it turns opaque under the pointer.
    static constexpr double _opacity = 0.9;
    /// The height of the tip, in pixels.
    static constexpr double _triangleSize = 20.0;
    /// The radius of the rounded corners, in pixels.
    static constexpr double _cornerRadius = 5.0;

    /// A balloon with \a title and \a text whose tip touches \a pos, still hidden: show() fades it in. \a type chooses its icon; \a orientation and \a policy the side it opens on.
    explicit BalloonToolTip(QWidget* parent, const QString& title, const QString& text, const QPoint& pos,
                            MessageType type = Information, Orientation orientation = Automatic,
                            OrientationPolicy policy = AdjustOrientation);
    ~BalloonToolTip() override;

    /// Balloons created and shown at once; they delete themselves when closed.
    static BalloonToolTip* information(QWidget* parent, const QString& title, const QString& text,
                                       const QPoint& pos);
    /// A warning balloon, shown at once.
    static BalloonToolTip* warning(QWidget* parent, const QString& title, const QString& text,
                                   const QPoint& pos);
    /// A balloon for an error, shown at once.
    static BalloonToolTip* critical(QWidget* parent, const QString& title, const QString& text,
                                    const QPoint& pos);

    /// 300 by 150 pixels; the text wraps within it.
    QSize sizeHint() const override;

    /// On at first. Switching it off stops a running delay.
    bool autoHide() const;
    /// Whether the balloon fades out by itself autoHideTime() after showing or after the pointer leaves.
    void setAutoHide(bool autoHide);
    /// The delay of the auto hide after showing or after the pointer leaves; 10000 ms at first.
    int autoHideTime() const;
    /// Sets the delay of the auto hide in milliseconds.
    void setAutoHideTime(int ms);
    /// On at first: a click anywhere on the balloon fades it out.
    bool hideOnClick() const;
    /// Whether a click on the balloon fades it out.
    void setHideOnClick(bool hideOnClick);
    /// On at first.
    bool showCloseButton() const;
    /// Whether the close button shows in the top right corner.
    void setShowCloseButton(bool show);
    /// Only for CustomIcon balloons.
    void setIcon(const QPixmap& icon);

    /// The orientation the balloon opened with (AboveLeft to BelowRight once shown).
    Orientation orientation() const;

    using QWidget::update;

public Q_SLOTS:
    /// Starts the fade-out, after which the balloon closes.
    void onCloseTriggered();
    /// Names the close button in the current language.
    void translate();
    /// Repaints.
    void update();

Q_SIGNALS:
    /// The user clicked the balloon, whether or not that hides it.
    void clicked();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void enterEvent(QEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void place();
    void buildOutline();
    void setOpacity(double opacity);

    std::unique_ptr<BalloonToolTipPrivate> const d;
};

} // namespace kes::qt::gui::widgets

#endif
