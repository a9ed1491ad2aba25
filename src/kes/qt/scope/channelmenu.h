#ifndef KES_QT_SCOPE_CHANNELMENU_H
#define KES_QT_SCOPE_CHANNELMENU_H

#include <kes/qt/kes_qt_export.h>

#include <QMenu>
#include <QVector>

#include <memory>

namespace kes::qt::scope {

class ChannelMenuPrivate;
class View;

/// The submenu of a View's context menu that edits one channel, or every shown channel at once
/// ("All channels", channel -1): enable or disable it, its time and amplification scales, its
/// trigger and its colour. Each change goes through the view's setters and is reported by the
/// menu's own signal, which the view forwards.
///
/// Choosing a channel as trigger in "All channels" applies it to every other shown channel: a
/// channel cannot follow itself.
class KES_QT_EXPORT ChannelMenu : public QMenu
{
    Q_OBJECT

public:
    /// \a view is not owned. Without a view (null, or deleted while the menu is open) the menu
    /// lists no channel and its entries do nothing.
    ChannelMenu(int channel, View* view);
    ~ChannelMenu() override;

    /// The channel edited, -1 for all shown channels.
    int channel() const;

public Q_SLOTS:
    /// Names the entries in the current language; a single channel's menu is titled with its name.
    void translate();

Q_SIGNALS:
    /// The user chose \a trigger (a Trigger_t) for \a channel; once per channel for "All channels".
    void triggerChanged(int channel, int trigger);
    /// The user enabled or disabled \a channel.
    void channelEnabled(int channel, bool enable);
    /// The user chose a time base of \a scale x units per division.
    void xscaleChanged(int channel, qreal scale);
    /// The user chose an amplification of \a scale y units per division.
    void yscaleChanged(int channel, qreal scale);
    /// The user chose \a color (an opaque QRgb) for \a channel.
    void colorChanged(int channel, quint32 color);

private Q_SLOTS:
    void on_enable_channel();
    void on_disable_channel();
    void on_xscale(int value);
    void on_yscale(int value);
    void on_trigger(int trigger);
    void on_color();

private:
    /// The channels a slot applies to: this one, or every shown one.
    QVector<int> targets() const;

    std::unique_ptr<ChannelMenuPrivate> const d;
};

} // namespace kes::qt::scope

#endif
