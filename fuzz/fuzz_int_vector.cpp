// The colour range finder's paste: the core integer-vector reading rule on arbitrary bytes, and
// the dialog taking whatever it read.
#include "fuzzapp.h"

#include <kes/core/vector.h>
#include <kes/qt/colorrangefinder/dialog.h>

#include <string>

using kes::qt::colorrangefinder::Dialog;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    kes::fuzz::ensureApplication();
    static Dialog* dialog = new Dialog;
    const std::string text(reinterpret_cast<const char*>(data), size);
    const kes::core::IntVector values = kes::core::fromString<int>(text);
    if (values.size() > 0) {
        const kes::core::IntVector again = kes::core::fromString<int>(kes::core::toString(values));
        kes::fuzz::require(again == values, "the text form reads back to the same values");
    }
    const kes::core::IntVector before = dialog->ranges();
    dialog->setRanges(values);
    kes::fuzz::require(values.size() == 6 || dialog->ranges() == before,
                       "anything but six values leaves the ranges alone");
    return 0;
}
