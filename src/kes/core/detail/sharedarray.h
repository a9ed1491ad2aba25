#ifndef KES_CORE_DETAIL_SHAREDARRAY_H
#define KES_CORE_DETAIL_SHAREDARRAY_H

#include <algorithm>
#include <atomic>
#include <cassert>
#include <cstddef>
#include <initializer_list>
#include <iterator>
#include <stdexcept>
#include <type_traits>
#include <utility>
#include <vector>

namespace kes::core::detail {

/// Everything Vector and List have in common: contiguous elements behind a thread-safe reference
/// count, so that copies are cheap and a handle copies the elements only when it is written to
/// while another handle still shares them. Derived is the public container type; it only serves
/// to keep a Vector from comparing equal to a List.
///
/// Every non-const member that hands out access to the elements (operator[], data(), begin(),
/// end()) counts as a write, even when the caller only reads. Indices past the end are harmless
/// for insert() and erase() (see there); operator[] requires a valid index, at() checks it.
template <typename T, typename Derived>
class SharedArray
{
    // std::vector<bool> packs its bits, so there would be no elements to point at.
    static_assert(!std::is_same_v<T, bool>, "use a container of char or int for flags");

public:
    using value_type = T;
    using size_type = std::size_t;
    using difference_type = std::ptrdiff_t;
    using reference = T&;
    using const_reference = const T&;
    using iterator = T*;
    using const_iterator = const T*;

    SharedArray() noexcept = default;
    SharedArray(std::initializer_list<T> values) : SharedArray(std::vector<T>(values)) {}
    SharedArray(size_type count, const T& value) : SharedArray(std::vector<T>(count, value)) {}
    template <typename InputIt, typename = typename std::iterator_traits<InputIt>::iterator_category>
    SharedArray(InputIt first, InputIt last) : SharedArray(std::vector<T>(first, last))
    {
    }
    explicit SharedArray(std::vector<T> values)
    {
        if (!values.empty())
            m_d = new Block(std::move(values));
    }

    SharedArray(const SharedArray& other) noexcept : m_d(other.m_d)
    {
        if (m_d)
            m_d->ref.fetch_add(1, std::memory_order_relaxed);
    }
    SharedArray(SharedArray&& other) noexcept : m_d(std::exchange(other.m_d, nullptr)) {}
    SharedArray& operator=(const SharedArray& other) noexcept
    {
        SharedArray(other).swap(*this);
        return *this;
    }
    SharedArray& operator=(SharedArray&& other) noexcept
    {
        SharedArray(std::move(other)).swap(*this);
        return *this;
    }

    void swap(SharedArray& other) noexcept { std::swap(m_d, other.m_d); }

    size_type size() const { return m_d ? m_d->items.size() : 0; }
    bool empty() const { return size() == 0; }
    size_type capacity() const { return m_d ? m_d->items.capacity() : 0; }

    /// The elements without detaching; two handles that share storage give the same pointer.
    /// Null for a container that never held anything.
    const T* constData() const { return m_d ? m_d->items.data() : nullptr; }
    const T* data() const { return constData(); }
    T* data() { return m_d ? unshared().data() : nullptr; }

    const T& operator[](size_type index) const
    {
        assert(index < size());
        return constData()[index];
    }
    T& operator[](size_type index)
    {
        assert(index < size());
        return data()[index];
    }
    /// Throws std::out_of_range for an index past the end.
    const T& at(size_type index) const
    {
        if (index >= size())
            throw std::out_of_range("kes::core container index out of range");
        return constData()[index];
    }

    const_iterator begin() const { return constData(); }
    const_iterator end() const { return constData() + size(); }
    const_iterator cbegin() const { return begin(); }
    const_iterator cend() const { return end(); }
    iterator begin() { return data(); }
    iterator end()
    {
        T* first = data();
        return first + size();
    }

    /// Inserts before \a index; an index past the end appends.
    void insert(size_type index, T value)
    {
        std::vector<T>& items = unshared();
        items.insert(items.begin() + difference_type(std::min(index, items.size())), std::move(value));
    }
    /// Removes up to \a count elements from \a index on; whatever lies past the end is ignored.
    void erase(size_type index, size_type count = 1)
    {
        const size_type n = size();
        if (index >= n || count == 0)
            return;
        const size_type last = index + std::min(count, n - index);
        std::vector<T>& items = unshared();
        items.erase(items.begin() + difference_type(index), items.begin() + difference_type(last));
    }
    void append(T value) { unshared().push_back(std::move(value)); }
    void push_back(T value) { append(std::move(value)); }
    /// Also gives up the reserved capacity, so that a cleared copy holds no memory at all.
    void clear() { SharedArray().swap(*this); }
    void reserve(size_type capacity) { unshared().reserve(capacity); }
    void resize(size_type count) { unshared().resize(count); }

    friend bool operator==(const Derived& lhs, const Derived& rhs)
    {
        const SharedArray& l = lhs;
        const SharedArray& r = rhs;
        return std::equal(l.begin(), l.end(), r.begin(), r.end());
    }
    friend bool operator!=(const Derived& lhs, const Derived& rhs) { return !(lhs == rhs); }

protected:
    ~SharedArray()
    {
        if (m_d && m_d->ref.fetch_sub(1, std::memory_order_acq_rel) == 1)
            delete m_d;
    }

private:
    struct Block
    {
        explicit Block(std::vector<T> values) : items(std::move(values)) {}
        std::atomic<long> ref{1};
        std::vector<T> items;
    };

    // The elements of this handle alone, copied first if another handle shares them.
    std::vector<T>& unshared()
    {
        if (!m_d) {
            m_d = new Block({});
        } else if (m_d->ref.load(std::memory_order_acquire) != 1) {
            // Acquire: a handle that let go just now must have finished reading before we write.
            SharedArray copy(m_d->items);
            if (!copy.m_d)
                copy.m_d = new Block({});
            swap(copy);
        }
        return m_d->items;
    }

    Block* m_d = nullptr;
};

} // namespace kes::core::detail

#endif
