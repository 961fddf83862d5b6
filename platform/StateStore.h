#pragma once

#include "platform/DynamicStore.h"

#include <utility>
#include <vector>

namespace tarvo {

/// A dynamic store whose entries are put in by its owner: the common half of every implementation.
///
/// A session that is opened while a change is being told hears of later changes only.
class StateStore : public DynamicStore {
public:
    /// Values by key.
    using Entries = QMap<QString, QVariantMap>;
    /// New values by key; nil for a key that goes.
    using Changes = QMap<QString, std::optional<QVariantMap>>;

    StateStore() = default;
    StateStore(const StateStore &) = delete;
    StateStore &operator=(const StateStore &) = delete;

    std::unique_ptr<DynamicStoreSession> createSession(const QString &name, Callback callback) override;

    /// @return the whole state as it is now
    const Entries &entries() const { return m_entries; }

    /// Makes all of @p changes, then tells each session of each key whose value differs, in key order.
    void applyChanges(const Changes &changes);

    /// Replaces the whole state, and tells of it in the same way.
    void replaceEntries(const Entries &entries);

    /// Tells each session that asked for any of the keys that match @p pattern of the pattern itself, once and
    /// although nothing changed: who looks at several entries can then choose among them.
    void announce(const QString &pattern);

private:
    class Session;
    using Notice = std::pair<Session *, QString>;

    void notify(const QStringList &changedKeys);
    void tell(const std::vector<Notice> &due);

    Entries m_entries;
    std::vector<Session *> m_sessions;
};

} // namespace tarvo
