#include <kes/qt/gui/option/page.h>

namespace kes::qt::gui::option {

// Empty for now; applications derive from Page, so its size stays put when it gains state.
struct PagePrivate
{
};

Page::Page(QWidget* parent)
    : QWidget(parent)
    , d(std::make_unique<PagePrivate>())
{
}

Page::~Page() = default;

bool Page::finish()
{
    return true;
}

} // namespace kes::qt::gui::option
