#pragma once

/// @file

#include <QtGlobal>

#include <algorithm>
#include <initializer_list>
#include <iterator>
#include <memory>
#include <utility>
#include <vector>

namespace MtConf {

/// A list whose elements keep their addresses as long as they are in it, when other elements are
/// added, moved or removed. Each element is allocated separately.
///
/// It has the functions of `QList` that a list of declarations needs, with the same names and
/// behaviour. Unlike a copy of a `QList`, a copy never shares its elements. As with `QList`, an
/// index must be in range.
///
/// @see ItemList
/// @since 0.1
template<class T> class StableList
{
    using Elements = std::vector<std::unique_ptr<T>>;

    /// Iterates over the elements, not over the pointers to them.
    template<class Element, class Position> class Iterator
    {
    public:
        using iterator_category = std::random_access_iterator_tag;
        using value_type = T;
        using difference_type = qptrdiff;
        using pointer = Element *;
        using reference = Element &;

        Iterator() = default;
        explicit Iterator(Position position) : mPosition(position) {}
        /// Converts an iterator to a const iterator.
        template<class Other, class OtherPosition>
        Iterator(const Iterator<Other, OtherPosition> &other) : mPosition(other.position())
        {
        }

        Position position() const { return mPosition; }

        reference operator*() const { return **mPosition; }
        pointer operator->() const { return mPosition->get(); }
        reference operator[](difference_type distance) const { return **(mPosition + distance); }

        Iterator &operator+=(difference_type distance)
        {
            mPosition += distance;
            return *this;
        }
        Iterator &operator-=(difference_type distance) { return *this += -distance; }
        Iterator &operator++() { return *this += 1; }
        Iterator &operator--() { return *this += -1; }
        Iterator operator++(int) { return std::exchange(*this, *this + 1); }
        Iterator operator--(int) { return std::exchange(*this, *this - 1); }

        friend Iterator operator+(Iterator iterator, difference_type distance)
        {
            return iterator += distance;
        }
        friend Iterator operator+(difference_type distance, Iterator iterator)
        {
            return iterator += distance;
        }
        friend Iterator operator-(Iterator iterator, difference_type distance)
        {
            return iterator -= distance;
        }
        friend difference_type operator-(Iterator a, Iterator b)
        {
            return a.mPosition - b.mPosition;
        }
        friend bool operator==(Iterator a, Iterator b) { return a.mPosition == b.mPosition; }
        friend bool operator!=(Iterator a, Iterator b) { return a.mPosition != b.mPosition; }
        friend bool operator<(Iterator a, Iterator b) { return a.mPosition < b.mPosition; }
        friend bool operator>(Iterator a, Iterator b) { return b < a; }
        friend bool operator<=(Iterator a, Iterator b) { return !(b < a); }
        friend bool operator>=(Iterator a, Iterator b) { return !(a < b); }

    private:
        Position mPosition{};
    };

public:
    using value_type = T;              ///< the type of an element
    using size_type = qsizetype;       ///< the type of a number of elements and of an index
    using difference_type = qptrdiff;  ///< the type of a distance between iterators
    using reference = T &;             ///< an element
    using const_reference = const T &; ///< an element to read
    using iterator = Iterator<T, typename Elements::iterator>; ///< iterates over the elements
    using const_iterator =
        Iterator<const T, typename Elements::const_iterator>; ///< the same, read-only

    /// An empty list.
    StableList() = default;
    /// A list of copies of `elements`.
    StableList(std::initializer_list<T> elements)
    {
        for (const T &element : elements)
            append(element);
    }
    /// A list of copies of the elements of `other`.
    StableList(const StableList &other)
    {
        mElements.reserve(other.mElements.size());
        for (const T &element : other)
            append(element);
    }
    /// Moves the elements of `other`, which keep their addresses, and leaves it empty.
    StableList(StableList &&other) noexcept : mElements(std::exchange(other.mElements, {})) {}
    /// Replaces the elements with copies of those of `other`.
    StableList &operator=(const StableList &other)
    {
        StableList(other).swap(*this);
        return *this;
    }
    /// Replaces the elements with those of `other`, which keep their addresses, and leaves it
    /// empty.
    StableList &operator=(StableList &&other) noexcept
    {
        StableList(std::move(other)).swap(*this);
        return *this;
    }
    ~StableList() { clear(); }

    /// The number of elements.
    size_type size() const { return static_cast<size_type>(mElements.size()); }
    /// The number of elements.
    size_type count() const { return size(); }
    /// Whether there is no element.
    bool isEmpty() const { return mElements.empty(); }
    /// Whether there is no element.
    bool empty() const { return isEmpty(); }
    /// Always true: no other list shares the elements.
    bool isDetached() const { return true; }

    /// The element at `index`.
    const T &at(size_type index) const { return *element(index); }
    /// The element at `index`.
    const T &operator[](size_type index) const { return *element(index); }
    /// The element at `index`.
    T &operator[](size_type index) { return *element(index); }
    /// The first element of a list that is not empty.
    const T &first() const { return at(0); }
    /// The first element of a list that is not empty.
    T &first() { return (*this)[0]; }
    /// The last element of a list that is not empty.
    const T &last() const { return at(size() - 1); }
    /// The last element of a list that is not empty.
    T &last() { return (*this)[size() - 1]; }

    /// Adds a copy of `value` at the end.
    void append(const T &value) { mElements.push_back(std::make_unique<T>(value)); }
    /// Adds a copy of `value` at the end.
    void push_back(const T &value) { append(value); }
    /// Adds a copy of `value` at the end.
    StableList &operator<<(const T &value)
    {
        append(value);
        return *this;
    }
    /// Adds a copy of `value` before the element at `index`, or at the end if `index` is `size()`.
    void insert(size_type index, const T &value)
    {
        Q_ASSERT(index >= 0 && index <= size());
        mElements.insert(mElements.begin() + index, std::make_unique<T>(value));
    }
    /// Assigns `value` to the element at `index`, which keeps its address.
    void replace(size_type index, const T &value) { *element(index) = value; }

    /// Removes the element at `index`.
    void removeAt(size_type index)
    {
        Q_ASSERT(index >= 0 && index < size());
        // Removed from the list before it is destroyed: its destructor may use the list.
        const auto removed = std::move(element(index));
        mElements.erase(mElements.begin() + index);
    }
    /// Removes the first element of a list that is not empty.
    void removeFirst() { removeAt(0); }
    /// Removes the last element of a list that is not empty.
    void removeLast() { removeAt(size() - 1); }
    /// Removes the element at `position` and returns where the next one is.
    iterator erase(const_iterator position)
    {
        const auto index = position - cbegin();
        removeAt(index);
        return begin() + index;
    }
    /// Removes all elements.
    void clear() { std::exchange(mElements, {}); }

    /// Moves the element at `from` to `to`.
    void move(size_type from, size_type to)
    {
        auto moved = std::move(element(from));
        mElements.erase(mElements.begin() + from);
        mElements.insert(mElements.begin() + to, std::move(moved));
    }
    /// Exchanges the positions of two elements.
    void swapItemsAt(size_type i, size_type j) { std::swap(element(i), element(j)); }
    /// Exchanges the elements of two lists, which keep their addresses.
    void swap(StableList &other) noexcept { mElements.swap(other.mElements); }

    iterator begin() { return iterator(mElements.begin()); } ///< at the first element
    iterator end() { return iterator(mElements.end()); }     ///< behind the last element
    const_iterator begin() const { return cbegin(); }        ///< at the first element
    const_iterator end() const { return cend(); }            ///< behind the last element
    /// At the first element.
    const_iterator cbegin() const { return const_iterator(mElements.cbegin()); }
    /// Behind the last element.
    const_iterator cend() const { return const_iterator(mElements.cend()); }
    /// At the first element.
    const_iterator constBegin() const { return cbegin(); }
    /// Behind the last element.
    const_iterator constEnd() const { return cend(); }

private:
    const std::unique_ptr<T> &element(size_type index) const
    {
        Q_ASSERT(index >= 0 && index < size());
        return mElements[static_cast<size_t>(index)];
    }
    std::unique_ptr<T> &element(size_type index)
    {
        Q_ASSERT(index >= 0 && index < size());
        return mElements[static_cast<size_t>(index)];
    }

    Elements mElements;
};

} // namespace MtConf
