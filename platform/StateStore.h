#pragma once

#include "platform/DynamicStore.h"

#include <vector>

namespace tarvo {

/// A dynamic store whose entries are put in by its owner: the common half of every implementation.
///
/// A session that is opened while a change is being told hears of later changes only.
class StateStore : public DynamicStore {
public:
    /// Values by key.
    using Entries = QMap<QString, QVariantMap>;

    StateStore() = default;
    StateStore(const StateStore &) = delete;
    StateStore &operator=(const StateStore &) = delete;

    std::unique_ptr<DynamicStoreSession> createSession(const QString &name, Callback callback) override;

    /// @return the whole state as it is now
    const Entries &entries() const { return m_entries; }

    /// Replaces the whole state, then tells each session of each key whose value differs, in key order.
    void replaceEntries(Entries entries);

    /// Tells the sessions of every key that matches @p pattern whole, although nothing changed.
    void announce(const QString &pattern);

private:
    class Session;

    void notify(const QStringList &changedKeys);

    Entries m_entries;
    std::vector<Session *> m_sessions;
};

} // namespace tarvo
