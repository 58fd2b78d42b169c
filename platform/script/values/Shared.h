// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>

namespace script {

/// What values share: counted by its owners, all of which live on one thread.
///
/// Why: objects may hold each other millions deep, so the last owner hands them to a queue that is worked off
/// without recursion.
class Counted {
  public:
    Counted() = default;
    virtual ~Counted() = default;
    Counted(const Counted&) = delete;
    Counted& operator=(const Counted&) = delete;

    /// How many owners there are.
    std::size_t owners() const { return m_owners; }

  private:
    template <typename Type>
    friend class Shared;

    void own() { ++m_owners; }
    void disown() {
        if (--m_owners == 0) release(this);
    }
    static void release(Counted* object);

    std::size_t m_owners = 0;
    Counted* m_nextReleased = nullptr;
};

/// An owner of a Counted; never null but after it was moved from.
template <typename Type>
class Shared {
  public:
    explicit Shared(Type* object) : m_object(object) { m_object->own(); }
    Shared(const Shared& other) : m_object(other.m_object) {
        if (m_object != nullptr) m_object->own();
    }
    Shared(Shared&& other) noexcept : m_object(std::exchange(other.m_object, nullptr)) {}
    Shared& operator=(Shared other) noexcept {
        std::swap(m_object, other.m_object);
        return *this;
    }
    ~Shared() {
        if (m_object != nullptr) m_object->disown();
    }

    Type* operator->() const { return m_object; }
    Type& operator*() const { return *m_object; }
    Type* get() const { return m_object; }

  private:
    Type* m_object;
};

template <typename Type, typename... Arguments>
Shared<Type> makeShared(Arguments&&... arguments) {
    return Shared<Type>(new Type(std::forward<Arguments>(arguments)...));
}

/// Bytes that the texts, lists and records of this thread hold.
class HeldMemory {
  public:
    static std::size_t& bytes();

    explicit HeldMemory(std::size_t size) : m_size(size) { bytes() += m_size; }
    ~HeldMemory() { bytes() -= m_size; }
    HeldMemory(const HeldMemory&) = delete;
    HeldMemory& operator=(const HeldMemory&) = delete;

    void resize(std::size_t size) {
        bytes() += size - m_size;
        m_size = size;
    }

  private:
    std::size_t m_size;
};

}  // namespace script
