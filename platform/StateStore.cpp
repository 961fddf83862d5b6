#include "platform/StateStore.h"

#include <algorithm>
#include <functional>
#include <utility>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace store {

QString serviceIPv4Key(const QString &serviceID)
{
    return u"State:/Network/Service/%1/IPv4"_s.arg(serviceID);
}

QString serviceInterfaceSetupKey(const QString &serviceID)
{
    return u"Setup:/Network/Service/%1/Interface"_s.arg(serviceID);
}

} // namespace store

namespace {

const QString anyName = u"[^/]+"_s;

/// A key, or one that has any name at one place.
class KeyPattern {
public:
    explicit KeyPattern(const QString &pattern)
        : m_start(pattern.section(anyName, 0, 0))
        , m_end(pattern.section(anyName, 1))
        , m_isKey(!pattern.contains(anyName))
    {
    }

    /// @return text with which every key that matches begins
    const QString &start() const { return m_start; }

    bool matches(QStringView key) const
    {
        if (m_isKey)
            return key == m_start;
        const qsizetype length = key.size() - m_start.size() - m_end.size();
        return length > 0 && key.startsWith(m_start) && key.endsWith(m_end)
            && !key.sliced(m_start.size(), length).contains(u'/');
    }

private:
    QString m_start;
    QString m_end;
    bool m_isKey;
};

bool matchesAny(const QList<KeyPattern> &patterns, const QString &key)
{
    return std::ranges::any_of(patterns, [&](const auto &pattern) { return pattern.matches(key); });
}

/// Calls @p found with each entry whose key matches @p pattern, in key order. Looks only at the keys that begin like the
/// pattern, in a state of thousands.
void forEachMatch(const StateStore::Entries &entries, const KeyPattern &pattern,
                  const std::function<void(const QString &key, const QVariantMap &value)> &found)
{
    const QString &start = pattern.start();
    for (auto entry = entries.lowerBound(start); entry != entries.cend() && entry.key().startsWith(start); ++entry) {
        if (pattern.matches(entry.key()))
            found(entry.key(), entry.value());
    }
}

} // namespace

class StateStore::Session final : public DynamicStoreSession {
public:
    Session(StateStore &owner, Callback callback)
        : m_store(owner)
        , m_callback(std::move(callback))
    {
        m_store.m_sessions.push_back(this);
    }

    ~Session() override { std::erase(m_store.m_sessions, this); }

    Session(const Session &) = delete;
    Session &operator=(const Session &) = delete;

    void setNotificationPatterns(const QStringList &patterns) override
    {
        m_patterns = QList<KeyPattern>(patterns.begin(), patterns.end());
    }

    std::optional<QVariantMap> copyValue(const QString &key) const override
    {
        const auto entry = m_store.m_entries.constFind(key);
        return entry == m_store.m_entries.cend() ? std::nullopt : std::optional(*entry);
    }

    Entries copyMultiple(const QStringList &patterns) const override
    {
        Entries copied;
        for (const QString &pattern : patterns)
            forEachMatch(m_store.m_entries, KeyPattern(pattern),
                         [&](const QString &key, const QVariantMap &value) { copied.insert(key, value); });
        return copied;
    }

    QStringList copyKeyList(const QString &pattern) const override { return copyMultiple({pattern}).keys(); }

    bool wants(const QString &key) const { return m_callback && matchesAny(m_patterns, key); }
    void tell(const QString &key)
    {
        const Callback callback = m_callback; // the session may be closed from within its own callback
        callback(*this, {key});
    }

private:
    StateStore &m_store;
    Callback m_callback;
    QList<KeyPattern> m_patterns;
};

std::unique_ptr<DynamicStoreSession> StateStore::createSession(const QString &, Callback callback)
{
    return std::make_unique<Session>(*this, std::move(callback));
}

void StateStore::applyChanges(const Changes &changes)
{
    QStringList changed;
    for (const auto &[key, value] : changes.asKeyValueRange()) {
        const auto old = m_entries.constFind(key);
        if (old == m_entries.cend() ? !value : value == *old)
            continue;
        changed.append(key);
        if (value)
            m_entries.insert(key, *value);
        else
            m_entries.remove(key);
    }
    notify(changed);
}

void StateStore::replaceEntries(const Entries &entries)
{
    Changes changes;
    for (const auto &[key, value] : m_entries.asKeyValueRange())
        changes.insert(key, std::nullopt);
    for (const auto &[key, value] : entries.asKeyValueRange())
        changes.insert(key, value);
    applyChanges(changes);
}

void StateStore::announce(const QString &pattern)
{
    std::vector<Notice> due;
    forEachMatch(m_entries, KeyPattern(pattern), [&](const QString &key, const QVariantMap &) {
        for (Session *session : m_sessions) {
            const Notice notice{session, pattern};
            if (session->wants(key) && std::ranges::find(due, notice) == due.end())
                due.push_back(notice);
        }
    });
    tell(due);
}

void StateStore::notify(const QStringList &changedKeys)
{
    std::vector<Notice> due;
    for (const QString &key : changedKeys) {
        for (Session *session : m_sessions) {
            if (session->wants(key))
                due.emplace_back(session, key);
        }
    }
    tell(due);
}

void StateStore::tell(const std::vector<Notice> &due)
{
    for (const auto &[session, key] : due) {
        if (std::ranges::find(m_sessions, session) != m_sessions.end())
            session->tell(key);
    }
}

} // namespace tarvo
