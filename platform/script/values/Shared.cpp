// SPDX-License-Identifier: MIT
#include "platform/script/values/Shared.h"

namespace script {

void Counted::release(Counted* object) {
    struct Queue {
        Counted* first = nullptr;
        bool isWorkedOff = false;
    };
    static thread_local Queue queue;
    object->m_nextReleased = std::exchange(queue.first, object);
    if (queue.isWorkedOff) return;
    queue.isWorkedOff = true;
    while (queue.first != nullptr) {
        Counted* next = queue.first;
        queue.first = next->m_nextReleased;
        delete next;
    }
    queue.isWorkedOff = false;
}

std::size_t& HeldMemory::bytes() {
    static thread_local std::size_t held = 0;
    return held;
}

}  // namespace script
