#ifndef KES_QT_GUI_OPTION_PAGE_H
#define KES_QT_GUI_OPTION_PAGE_H

#include <kes/qt/kes_qt_export.h>

#include <QWidget>

#include <memory>

namespace kes::qt::gui::option {

struct PagePrivate;

/// One page of settings in an options Dialog; applications derive one per group of settings.
///
/// The page's window title is its name in the dialog's tree.
class KES_QT_EXPORT Page : public QWidget
{
    Q_OBJECT

public:
    /// An empty page; its window title names it in the tree.
    explicit Page(QWidget* parent = nullptr);
    ~Page() override;

    /// Called when the user confirms the dialog: apply the page's settings and return true, or
    /// report the invalid input and return false to keep the dialog open.
    virtual bool finish();

private:
    std::unique_ptr<PagePrivate> const d;
};

} // namespace kes::qt::gui::option

#endif
