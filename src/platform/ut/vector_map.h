#pragma once

#include <cstddef>
#include <utility>
#include <vector>

namespace ut {

using vector_map_index = std::size_t;

// Stand-in for the application's map that keeps its entries in the order they
// were inserted, for lists a user sees in the order the author gave.
template<typename Key, typename Value>
class vector_map
{
public:
    using value_type = std::pair<Key, Value>;
    using const_iterator = typename std::vector<value_type>::const_iterator;
    using iterator = typename std::vector<value_type>::iterator;

    vector_map() = default;
    vector_map(std::initializer_list<value_type> entries)
    {
        for (const value_type& entry : entries)
            insert(entry.first, entry.second);
    }

    // A key already present keeps its place and takes the new value.
    void insert(const Key& key, const Value& value)
    {
        for (value_type& entry : m_entries) {
            if (entry.first == key) {
                entry.second = value;
                return;
            }
        }
        m_entries.emplace_back(key, value);
    }

    const_iterator find(const Key& key) const
    {
        for (auto it = m_entries.cbegin(); it != m_entries.cend(); ++it) {
            if (it->first == key)
                return it;
        }
        return m_entries.cend();
    }

    iterator begin() { return m_entries.begin(); }
    iterator end() { return m_entries.end(); }
    const_iterator begin() const { return m_entries.cbegin(); }
    const_iterator end() const { return m_entries.cend(); }
    const_iterator cbegin() const { return m_entries.cbegin(); }
    const_iterator cend() const { return m_entries.cend(); }
    std::size_t size() const { return m_entries.size(); }
    bool empty() const { return m_entries.empty(); }
    // As in the application, an index past the end is the caller's fault.
    const value_type& at(vector_map_index index) const { return m_entries.at(index); }

private:
    std::vector<value_type> m_entries;
};

} // namespace ut
