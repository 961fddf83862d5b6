#include "modemapi/StatusSnapshot.h"

#include <utility>

namespace tarvo {

bool SharedSnapshot::update(const Work &work, const std::function<void(StatusSnapshot &snapshot)> &change)
{
    return work.whileAttached([&] {
        StatusSnapshot snapshot = m_snapshot.get();
        change(snapshot);
        m_snapshot.set(std::move(snapshot));
    });
}

} // namespace tarvo
