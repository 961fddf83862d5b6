#include "app/ThreadGroup.h"

#include <utility>

namespace tarvo {

ThreadGroup::~ThreadGroup()
{
    for (Entry &entry : m_entries)
        entry.thread.join();
}

void ThreadGroup::start(std::function<void()> work)
{
    m_entries.remove_if([](Entry &entry) {
        if (!entry.ended)
            return false;
        entry.thread.join();
        return true;
    });
    Entry &entry = m_entries.emplace_back();
    entry.thread = std::thread([&entry, work = std::move(work)] {
        work();
        entry.ended = true;
    });
}

} // namespace tarvo
