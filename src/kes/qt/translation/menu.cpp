#include <kes/qt/translation/menu.h>

#include <kes/qt/translation/manager.h>

namespace kes::qt::translation {

// Empty for now; it keeps the class's size when the menu gains state.
struct MenuPrivate
{
};

Menu::Menu(QWidget* parent)
    : QMenu(parent)
    , d(std::make_unique<MenuPrivate>())
{
    Manager& manager = Manager::singleton();
    addActions(manager.languageActions());
    connect(&manager, SIGNAL(languageChanged()), this, SLOT(translate()));
    translate();
}

Menu::~Menu() = default;

void Menu::translate()
{
    setTitle(tr("&Languages"));
}

} // namespace kes::qt::translation
