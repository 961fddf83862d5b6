#include "attachment/ThreadGroup.h"

#include "platform/SystemLog.h"

#include <QString>

#include <exception>
#include <system_error>
#include <utility>

namespace tarvo {

using namespace Qt::StringLiterals;

ThreadGroup::ThreadGroup(SystemLog &systemLog)
    : m_systemLog(systemLog)
{
}

ThreadGroup::~ThreadGroup()
{
    for (Entry &entry : m_entries)
        entry.thread.join();
}

bool ThreadGroup::start(std::function<void()> work)
{
    const std::scoped_lock lock(m_mutex);
    m_entries.remove_if([](Entry &entry) {
        if (!entry.ended)
            return false;
        entry.thread.join();
        return true;
    });
    Entry &entry = m_entries.emplace_back();
    try {
        entry.thread = std::thread([this, &entry, work = std::move(work)] { run(entry, work); });
    } catch (const std::system_error &error) {
        m_entries.pop_back();
        m_systemLog.write(u"no thread: "_s + QString::fromLocal8Bit(error.what()));
        return false;
    }
    return true;
}

void ThreadGroup::run(Entry &entry, const std::function<void()> &work)
{
    try {
        work();
    } catch (const std::exception &error) {
        m_systemLog.write(u"a thread gave up: "_s + QString::fromLocal8Bit(error.what()));
    }
    entry.ended = true;
}

} // namespace tarvo
