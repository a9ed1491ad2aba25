#include <kes/qt/version.h>

namespace kes::qt {

const char* libraryVersion()
{
    return KES_VERSION_STRING;
}

} // namespace kes::qt
