#ifndef KES_CORE_ANGLE_H
#define KES_CORE_ANGLE_H

#include <kes/core/kes_core_export.h>

namespace kes::core {

/// The same direction as \a degrees, within (-180, 180]: 180 and -180 both give 180, 540 gives
/// 180, 190 gives -170. Never -0. NaN and infinities give NaN.
KES_CORE_EXPORT float mapToMinus180to180Degrees(float degrees);

} // namespace kes::core

#endif
