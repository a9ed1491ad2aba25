#include <kes/core/angle.h>

#include <cmath>
#include <limits>

namespace kes::core {

float mapToMinus180to180Degrees(float degrees)
{
    if (!std::isfinite(degrees))
        return std::numeric_limits<float>::quiet_NaN();
    // fmod is exact and keeps the sign, so r lies in (-360, 360); each shift below is exact too.
    float r = std::fmod(degrees, 360.0f);
    if (r > 180.0f)
        r -= 360.0f;
    else if (r <= -180.0f)
        r += 360.0f;
    // Adding +0 turns -0 into 0, which a label would otherwise show as "-0".
    return r + 0.0f;
}

} // namespace kes::core
