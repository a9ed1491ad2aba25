#ifndef KES_GALLERY_OPTIONPAGES_H
#define KES_GALLERY_OPTIONPAGES_H

#include <kes/qt/gui/option/page.h>

#include <QList>

class QAction;
class QComboBox;
class QLabel;
class QLineEdit;
class QSpinBox;

namespace kes::qt::gui::option {
class Dialog;
}

namespace kes::gallery {

class MainWindow;

/// The language the gallery starts in next time (the language manager's "language" key).
class LanguageOptionPage : public kes::qt::gui::option::Page
{
    Q_OBJECT

public:
    explicit LanguageOptionPage(QWidget* parent = nullptr);
    ~LanguageOptionPage() override;

    bool finish() override;

public Q_SLOTS:
    void translate();

private:
    QLabel* m_label = nullptr;
    QComboBox* m_languages = nullptr;
    QLabel* m_note = nullptr;
};

/// The folder the Open dialog starts in ("loadDirectory", which the recent-files history also
/// sets). Refuses a folder that does not exist.
class FilesOptionPage : public kes::qt::gui::option::Page
{
    Q_OBJECT

public:
    explicit FilesOptionPage(QWidget* parent = nullptr);
    ~FilesOptionPage() override;

    bool finish() override;

public Q_SLOTS:
    void translate();

private:
    QLabel* m_label = nullptr;
    QLineEdit* m_folder = nullptr;
    QLabel* m_error = nullptr;
};

/// The frame rates of the live pages, as they declared them to GallerySettings.
class FrameRateOptionPage : public kes::qt::gui::option::Page
{
    Q_OBJECT

public:
    explicit FrameRateOptionPage(const MainWindow& window, QWidget* parent = nullptr);
    ~FrameRateOptionPage() override;

    bool finish() override;

public Q_SLOTS:
    void translate();

private:
    const MainWindow& m_window;
    QLabel* m_intro = nullptr;
    QList<QLabel*> m_labels;
    QList<QSpinBox*> m_rates;
};

/// The gallery's options dialog with all its pages, disabling \a action while it is open.
kes::qt::gui::option::Dialog* createOptionsDialog(MainWindow& window, QAction* action);

} // namespace kes::gallery

#endif
