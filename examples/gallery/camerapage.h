#ifndef KES_GALLERY_CAMERAPAGE_H
#define KES_GALLERY_CAMERAPAGE_H

#include "page.h"

#include <kes/core/image/image.h>

#include <QElapsedTimer>
#include <QImage>

#include <memory>
#include <vector>

class QLabel;
class QPushButton;
class QTimer;

namespace kes::qt::colorrangefinder {
class Dialog;
}
namespace kes::qt::gui::widgets {
class ImageView;
}

namespace kes::gallery {

/// A synthetic camera: coloured objects gliding over a textured background, with sensor noise.
class SyntheticCamera
{
public:
    explicit SyntheticCamera(const QSize& size);

    /// The picture at \a seconds, as the blue-green-red frame a capture driver delivers.
    kes::core::image::Image frame(double seconds);

private:
    QImage m_background;
    std::vector<int> m_noise; ///< more than one frame's worth, read from a random offset
};

/// The colour range finder on a live camera at 30 frames per second. The page segments every
/// frame with the current ranges itself and hands the segments to the view as overlays; "Show
/// result" shows that segmentation.
class CameraPage : public Page
{
    Q_OBJECT

public:
    explicit CameraPage(QWidget* parent = nullptr);
    ~CameraPage() override;

    QString id() const override;
    QString title() const override;
    void retranslate() override;
    void activated() override;
    void deactivated() override;
    std::chrono::milliseconds settleTime() const override;

private Q_SLOTS:
    void nextFrame();
    void on_finder_valuesChanged();
    void on_saveFrame_clicked();

private:
    void showStatus();

    kes::qt::colorrangefinder::Dialog* m_finder = nullptr;
    kes::qt::gui::widgets::ImageView* m_view = nullptr; ///< the finder's
    int m_highlighted = -1;
    QLabel* m_heading = nullptr;
    QLabel* m_description = nullptr;
    QLabel* m_status = nullptr;
    QPushButton* m_saveFrame = nullptr;
    QLabel* m_saved = nullptr;
    QTimer* m_timer = nullptr;
    QElapsedTimer m_clock;
    std::unique_ptr<SyntheticCamera> m_camera;
    int m_segments = 0;
};

} // namespace kes::gallery

#endif
