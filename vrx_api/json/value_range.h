#pragma once

#include <cstddef>

namespace vrx
{

/// The elements or the members of a value. An `Item` is made from its place, and its `next` is the place behind it.
template <class Item, class Place>
class ValueRange
{
public:
    class Iterator
    {
    public:
        Iterator() = default;
        explicit Iterator(Place place)
            : m_place(place)
        {
        }

        Item operator*() const { return Item(m_place); }
        Iterator& operator++()
        {
            m_place = Item(m_place).next();
            return *this;
        }
        bool operator==(const Iterator& other) const { return m_place == other.m_place; }
        bool operator!=(const Iterator& other) const { return m_place != other.m_place; }

    private:
        Place m_place{};
    };

    ValueRange(Place begin, Place end)
        : m_begin(begin)
        , m_end(end)
    {
    }

    Iterator begin() const { return Iterator(m_begin); }
    Iterator end() const { return Iterator(m_end); }

    std::size_t count() const
    {
        std::size_t count = 0;
        for (Place place = m_begin; place != m_end; place = Item(place).next())
        {
            ++count;
        }
        return count;
    }

private:
    Place m_begin;
    Place m_end;
};

} // namespace vrx
