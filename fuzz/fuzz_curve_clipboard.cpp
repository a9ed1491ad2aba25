// The curve editor's clipboard text: whatever fromString() makes of a text, its toString() must
// read back to the same text.
#include "fuzzapp.h"

#include <kes/qt/discreteapproximator/model.h>

using kes::qt::discreteapproximator::Model;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    kes::fuzz::ensureApplication();
    // Reused from input to input: a text without points leaves a model as it was, which the check
    // below covers as well.
    static Model* model = new Model;
    static Model* again = new Model;
    model->fromString(kes::fuzz::text(data, size));
    const QString once = model->toString();
    again->fromString(once);
    kes::fuzz::require(again->toString() == once, "the text form reads back to itself");
    kes::fuzz::require(again->rowCount() == model->rowCount(), "as many points as before");
    return 0;
}
