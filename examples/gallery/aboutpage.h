#ifndef KES_GALLERY_ABOUTPAGE_H
#define KES_GALLERY_ABOUTPAGE_H

#include "page.h"

class QLabel;

namespace kes::qt::gui::widgets {
class HyperLabel;
}

namespace kes::gallery {

/// What the library is, which versions are in use, and every icon the library ships.
class AboutPage : public Page
{
    Q_OBJECT

public:
    explicit AboutPage(QWidget* parent = nullptr);
    ~AboutPage() override;

    QString id() const override;
    QString title() const override;
    void retranslate() override;

    /// The file names under the library's icon resource folder, in natural order (so that
    /// "progress2.png" comes before "progress10.png").
    static QStringList iconFileNames();

private:
    QWidget* createIconGrid();

    QLabel* m_heading = nullptr;
    QLabel* m_tagline = nullptr;
    QLabel* m_description = nullptr;
    QLabel* m_versionsHeading = nullptr;
    QLabel* m_libraryVersionLabel = nullptr;
    QLabel* m_libraryVersion = nullptr;
    QLabel* m_qtRuntimeLabel = nullptr;
    QLabel* m_qtRuntime = nullptr;
    QLabel* m_qtCompiledLabel = nullptr;
    QLabel* m_qtCompiled = nullptr;
    QLabel* m_docsHeading = nullptr;
    QLabel* m_referenceLabel = nullptr;
    kes::qt::gui::widgets::HyperLabel* m_reference = nullptr;
    QLabel* m_helpFileLabel = nullptr;
    QLabel* m_helpFile = nullptr;
    QLabel* m_iconsHeading = nullptr;
    QLabel* m_iconsNote = nullptr;
    int m_iconCount = 0;
};

} // namespace kes::gallery

#endif
