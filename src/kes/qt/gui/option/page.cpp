#include <kes/qt/gui/option/page.h>

namespace kes::qt::gui::option {

Page::Page(QWidget* parent)
    : QWidget(parent)
{
}

Page::~Page() = default;

bool Page::finish()
{
    return true;
}

} // namespace kes::qt::gui::option
