// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <deque>
#include <initializer_list>
#include <memory>
#include <type_traits>
#include <utility>

/// Overwrites memory with zeros, also where nobody reads it afterwards.
void wipe(void* memory, std::size_t size);

// NOLINTBEGIN(readability-identifier-naming): containers name their parts alike.

/// Gives memory back wiped.
template <typename Value>
struct WipingAllocator {
    using value_type = Value;

    WipingAllocator() = default;
    template <typename Other>
    // NOLINTNEXTLINE(google-explicit-constructor): containers convert it.
    WipingAllocator(const WipingAllocator<Other>& /*other*/) {}

    Value* allocate(std::size_t count) { return std::allocator<Value>().allocate(count); }
    void deallocate(Value* memory, std::size_t count) {
        // NOLINTNEXTLINE(bugprone-sizeof-expression): what is kept may be pointers.
        wipe(memory, count * sizeof(Value));
        std::allocator<Value>().deallocate(memory, count);
    }

    friend bool operator==(const WipingAllocator&, const WipingAllocator&) { return true; }
};

/// A queue of which nothing is left in memory once it has been taken.
///
/// Why: what passes through is what the user types, passwords among it, and a queue that only moves its ends
/// keeps long stretches of that, in order, until the place is needed again.
template <typename Value>
class WipedQueue {
    static_assert(std::is_trivially_copyable_v<Value>, "what it points to would be left behind");
    using Values = std::deque<Value, WipingAllocator<Value>>;

  public:
    WipedQueue() = default;
    WipedQueue(std::initializer_list<Value> values) : m_values(values) {}

    bool empty() const { return m_values.empty(); }
    std::size_t size() const { return m_values.size(); }
    const Value& front() const { return m_values.front(); }
    const Value& back() const { return m_values.back(); }
    typename Values::const_iterator begin() const { return m_values.begin(); }
    typename Values::const_iterator end() const { return m_values.end(); }

    template <typename... Arguments>
    void emplace_back(Arguments&&... arguments) {
        m_values.emplace_back(std::forward<Arguments>(arguments)...);
    }
    void push_back(const Value& value) { m_values.push_back(value); }

    void pop_front() {
        wipe(&m_values.front(), sizeof(Value));
        m_values.pop_front();
    }
    Value takeFront() {
        Value value = front();
        pop_front();
        return value;
    }
    /// The others stay in their order.
    template <typename Condition>
    void eraseIf(Condition condition) {
        for (std::size_t left = size(); left > 0; --left) {
            const Value value = takeFront();
            if (!condition(value)) push_back(value);
        }
    }
    void clear() {
        while (!empty()) pop_front();
    }

    friend bool operator==(const WipedQueue&, const WipedQueue&) = default;

  private:
    Values m_values;
};

// NOLINTEND(readability-identifier-naming)
