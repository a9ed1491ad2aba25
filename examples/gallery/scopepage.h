#ifndef KES_GALLERY_SCOPEPAGE_H
#define KES_GALLERY_SCOPEPAGE_H

#include "page.h"

#include <QElapsedTimer>

class QDoubleSpinBox;
class QLabel;
class QSpinBox;
class QTimer;

namespace kes::qt::scope {
class View;
}

namespace kes::gallery {

/// The oscilloscope view fed live: sixteen synthetic signals sampled at 1 kHz, a rising-edge
/// trigger on the first channel with the second following it, and the view redrawn 30 times a
/// second.
class ScopePage : public Page
{
    Q_OBJECT

public:
    explicit ScopePage(QWidget* parent = nullptr);
    ~ScopePage() override;

    QString id() const override;
    QString title() const override;
    void retranslate() override;
    void activated() override;
    void deactivated() override;
    std::chrono::milliseconds settleTime() const override;

private Q_SLOTS:
    void addSamples();
    /// The frame rate chosen in the options dialog.
    void applyFrameRate(const QString& pageId, int rate);
    void on_channels_valueChanged(int count);
    void on_level_valueChanged(double level);
    void on_view_triggerPositionChanged(int channel, double level);
    void showSignal(const QString& text);
    void on_view_channelEnabled(int channel, bool enable);
    void on_view_xscaleChanged(int channel, qreal scale);
    void on_view_yscaleChanged(int channel, qreal scale);
    void on_view_triggerChanged(int channel, int trigger);
    void on_view_colorChanged(int channel, quint32 color);
    void on_view_yOffsetChanged(int channel, double offset);

private:
    kes::qt::scope::View* m_view = nullptr;
    QLabel* m_heading = nullptr;
    QLabel* m_description = nullptr;
    QLabel* m_channelsLabel = nullptr;
    QSpinBox* m_channels = nullptr;
    QLabel* m_levelLabel = nullptr;
    QDoubleSpinBox* m_level = nullptr;
    QLabel* m_signalLabel = nullptr;
    QLabel* m_signal = nullptr;
    bool m_signalShown = false;
    QTimer* m_sampleTimer = nullptr;
    QTimer* m_frameTimer = nullptr;
    QElapsedTimer m_clock;
    qint64 m_samples = 0;   ///< samples fed per channel so far; one per millisecond
};

} // namespace kes::gallery

#endif
