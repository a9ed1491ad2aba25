#ifndef KES_QT_GUI_WIDGETS_LINEEDITWITHHELP_H
#define KES_QT_GUI_WIDGETS_LINEEDITWITHHELP_H

#include <kes/qt/kes_qt_export.h>

#include <QLineEdit>

#include <memory>

class QAction;

namespace kes::qt::gui::widgets {

class LineEditWithHelpPrivate;

/// A line edit whose context menu ends with the application's help action, after a separator.
class KES_QT_EXPORT LineEditWithHelp : public QLineEdit
{
    Q_OBJECT

public:
    /// \a helpAction is not owned and may be null (no help entry).
    explicit LineEditWithHelp(QAction* helpAction, QWidget* parent = nullptr);
    ~LineEditWithHelp() override;

    /// The action the context menu ends with; not owned, null for none.
    void setHelpAction(QAction* helpAction);
    /// The action the context menu ends with, or null.
    QAction* helpAction() const;

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    std::unique_ptr<LineEditWithHelpPrivate> const d;
};

} // namespace kes::qt::gui::widgets

#endif
