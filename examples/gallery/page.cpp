#include "page.h"

namespace kes::gallery {

Page::Page(QWidget* parent)
    : QWidget(parent)
{
}

Page::~Page() = default;

void Page::retranslate()
{
}

void Page::activated()
{
}

void Page::deactivated()
{
}

std::chrono::milliseconds Page::settleTime() const
{
    return std::chrono::milliseconds(0);
}

} // namespace kes::gallery
