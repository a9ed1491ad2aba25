#ifndef KES_GALLERY_LOGPAGE_H
#define KES_GALLERY_LOGPAGE_H

#include "page.h"

#include <QPointer>

#include <atomic>
#include <thread>
#include <vector>

class QAction;
class QLabel;
class QLineEdit;
class QPushButton;
class QSpinBox;
class QTimer;

namespace kes::qt::log {
class Window;
}

namespace kes::gallery {

class MainWindow;

/// The log hub and its window: the window docks at the bottom of the main window, toggled from
/// the View menu, and comes up with this page; the page writes to the hub from the GUI thread,
/// from worker threads at a chosen rate, through a redirected std::cout and through the core
/// library's log. The hub must exist (Log::init()) before the page and outlive it.
class LogPage : public Page
{
    Q_OBJECT

public:
    explicit LogPage(MainWindow& window, QWidget* parent = nullptr);
    ~LogPage() override;

    QString id() const override;
    QString title() const override;
    void retranslate() override;
    void activated() override;
    void deactivated() override;
    std::chrono::milliseconds settleTime() const override;

private:
    void logFromGui();
    void logFromCout();
    void logFromCore();
    void toggleWorkers();
    void startWorkers();
    void stopWorkers();
    void updateStatus();

    MainWindow& m_mainWindow;
    QPointer<kes::qt::log::Window> m_logWindow;
    QAction* m_logAction = nullptr;
    // Set when the page brought the panel up, so that leaving the page takes it down again.
    bool m_shownByPage = false;
    bool m_dockSized = false;

    std::vector<std::thread> m_workers;
    std::atomic<bool> m_stopWorkers{false};
    std::atomic<long long> m_posted{0};
    QTimer* m_statusTimer = nullptr;

    QLabel* m_heading = nullptr;
    QLabel* m_intro = nullptr;
    QLabel* m_guiHeading = nullptr;
    QLineEdit* m_message = nullptr;
    QPushButton* m_logButton = nullptr;
    QPushButton* m_emptyLineButton = nullptr;
    QLabel* m_guiNote = nullptr;
    QLabel* m_threadsHeading = nullptr;
    QLabel* m_threadsLabel = nullptr;
    QSpinBox* m_threads = nullptr;
    QLabel* m_rateLabel = nullptr;
    QSpinBox* m_rate = nullptr;
    QPushButton* m_workersButton = nullptr;
    QLabel* m_workersStatus = nullptr;
    QLabel* m_sourcesHeading = nullptr;
    QPushButton* m_coutButton = nullptr;
    QPushButton* m_coreButton = nullptr;
    QLabel* m_sourcesNote = nullptr;
};

} // namespace kes::gallery

#endif
