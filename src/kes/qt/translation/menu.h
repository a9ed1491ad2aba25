#ifndef KES_QT_TRANSLATION_MENU_H
#define KES_QT_TRANSLATION_MENU_H

#include <kes/qt/kes_qt_export.h>

#include <QMenu>

#include <memory>

namespace kes::qt::translation {

struct MenuPrivate;

/// A menu of the languages offered by Manager::singleton(), one checkable entry each.
///
/// The entries are the manager's own actions, so every Menu shows the same check mark, and a click
/// switches the language through the manager. Create it after Manager::load(): languages loaded
/// later do not appear in an existing menu.
class KES_QT_EXPORT Menu : public QMenu
{
    Q_OBJECT

public:
    /// Holds the actions of the languages loaded so far.
    explicit Menu(QWidget* parent = nullptr);
    ~Menu() override;

public Q_SLOTS:
    /// Titles the menu "&Languages" in the current language.
    void translate();

private:
    std::unique_ptr<MenuPrivate> const d;
};

} // namespace kes::qt::translation

#endif
