#include <kes/qt/translation/menu.h>

#include <kes/qt/translation/manager.h>

namespace kes::qt::translation {

Menu::Menu(QWidget* parent)
    : QMenu(parent)
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
