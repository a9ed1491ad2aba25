#ifndef KES_CORE_LIST_H
#define KES_CORE_LIST_H

#include <kes/core/detail/sharedarray.h>

#include <string>

namespace kes::core {

/// A sequence of values shared between copies until one of them is written to; a copy taken
/// before a write never changes. Stored like Vector, from which it differs only in type, so that
/// interfaces can keep naming lists of names or messages apart from numeric vectors.
template <typename T>
class List : public detail::SharedArray<T, List<T>>
{
public:
    using detail::SharedArray<T, List<T>>::SharedArray;
};

/// Byte strings holding UTF-8 text.
using StringList = List<std::string>;

} // namespace kes::core

#endif
