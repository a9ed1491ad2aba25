#ifndef KES_GALLERY_PAGE_H
#define KES_GALLERY_PAGE_H

#include <QString>
#include <QWidget>

#include <chrono>

namespace kes::gallery {

/// One page of the gallery: a widget shown on the right of the main window, listed on the left
/// under its title. A new page is a subclass plus one MainWindow::addPage() call in main.cpp.
class Page : public QWidget
{
    Q_OBJECT

public:
    explicit Page(QWidget* parent = nullptr);
    ~Page() override;

    /// Lower-case, file-name-safe name ("about", "curve-editor"): the argument of --page and the
    /// name of the page's screenshot. Must not change during the page's life.
    virtual QString id() const = 0;
    /// The page list entry, in the current application language.
    virtual QString title() const = 0;

    /// Called by the main window after the application language changed; pages set every
    /// user-visible string here (and usually call it once from their constructor).
    virtual void retranslate();

    /// Called by the main window when the page comes on screen and when it leaves it (another
    /// page selected, window hidden or closed). Pages with timers or live data start and stop
    /// them here, so that hidden pages cost nothing.
    virtual void activated();
    virtual void deactivated();

    /// How long a screenshot waits after activating the page; pages that animate return a few
    /// hundred milliseconds so that their data is on screen when the window is grabbed.
    virtual std::chrono::milliseconds settleTime() const;
};

} // namespace kes::gallery

#endif
