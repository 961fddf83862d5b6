#include "modemapi/StatusSnapshot.h"

namespace tarvo {

bool SharedSnapshot::update(const Work &work, const std::function<void(StatusSnapshot &snapshot)> &change)
{
    return work.whileAttached([&] {
        StatusSnapshot snapshot = m_snapshot.get();
        change(snapshot);
        m_snapshot.set(snapshot);
    });
}

} // namespace tarvo
