#ifndef KES_GALLERY_SMALLWIDGETSPAGE_H
#define KES_GALLERY_SMALLWIDGETSPAGE_H

#include "page.h"

#include <QPointer>

class QAction;
class QLabel;
class QPushButton;
class QStackedWidget;
class QTimer;

namespace kes::qt::gui::widgets {
class BalloonToolTip;
class CheckBox;
class HyperLabel;
class LineEditWithHelp;
class Progress;
class ScaledLabel;
class WebDialog;
} // namespace kes::qt::gui::widgets

namespace kes::gallery {

/// The small widgets around a camera calibration: balloons reporting at their buttons (one at the
/// window's edge, where it flips when the screen ends there), a busy indicator whose cancel button
/// stops a simulated calibration, a read-only check box that only the calibration ticks beside
/// one the user may toggle, a link to the documentation, a reading in a scaled label inside a
/// splitter, a part number field whose context menu offers help, and the gallery's help page in
/// the web dialog.
class SmallWidgetsPage : public Page
{
    Q_OBJECT

public:
    explicit SmallWidgetsPage(QWidget* parent = nullptr);
    ~SmallWidgetsPage() override;

    QString id() const override;
    QString title() const override;
    void retranslate() override;
    void activated() override;
    void deactivated() override;
    std::chrono::milliseconds settleTime() const override;

private Q_SLOTS:
    void showInformation();
    void showWarning();
    void showCritical();
    void showAtEdge();
    void startCalibration();
    void calibrationStep();
    void on_progress_cancel();
    void checkPartNumber();
    void showHelp();
    void showPartNumberHelp();

private:
    void showBalloon(kes::qt::gui::widgets::BalloonToolTip* balloon);
    void openHelp(const QString& anchor);
    void updateCalibrationTexts();

    QLabel* m_heading = nullptr;
    QLabel* m_intro = nullptr;

    QLabel* m_balloonHeading = nullptr;
    QPushButton* m_information = nullptr;
    QPushButton* m_warning = nullptr;
    QPushButton* m_critical = nullptr;
    QPushButton* m_edge = nullptr;
    QPointer<kes::qt::gui::widgets::BalloonToolTip> m_balloon;

    QLabel* m_jobHeading = nullptr;
    QStackedWidget* m_jobStack = nullptr;
    QLabel* m_jobStatus = nullptr;
    QPushButton* m_start = nullptr;
    kes::qt::gui::widgets::Progress* m_progress = nullptr;
    QTimer* m_jobTimer = nullptr;
    int m_image = 0;
    bool m_started = false;
    enum class JobState { Idle, Running, Finished, Cancelled } m_jobState = JobState::Idle;
    kes::qt::gui::widgets::CheckBox* m_calibrated = nullptr;
    kes::qt::gui::widgets::CheckBox* m_useCalibration = nullptr;
    QLabel* m_checkNote = nullptr;

    QLabel* m_linkHeading = nullptr;
    kes::qt::gui::widgets::HyperLabel* m_link = nullptr;
    QLabel* m_partLabel = nullptr;
    kes::qt::gui::widgets::LineEditWithHelp* m_partNumber = nullptr;
    QAction* m_partHelp = nullptr;
    QPushButton* m_help = nullptr;
    QPointer<kes::qt::gui::widgets::WebDialog> m_webDialog;

    QLabel* m_scaledHeading = nullptr;
    QLabel* m_scaledNote = nullptr;
    kes::qt::gui::widgets::ScaledLabel* m_reading = nullptr;
    QLabel* m_splitterSide = nullptr;
};

} // namespace kes::gallery

#endif
