#include "platform/StateStore.h"

#include <QRegularExpression>

#include <algorithm>
#include <utility>

namespace tarvo {

namespace store {

QString serviceIPv4Key(const QString &serviceID)
{
    return QStringLiteral("State:/Network/Service/%1/IPv4").arg(serviceID);
}

QString serviceInterfaceSetupKey(const QString &serviceID)
{
    return QStringLiteral("Setup:/Network/Service/%1/Interface").arg(serviceID);
}

} // namespace store

namespace {

QRegularExpression wholeKey(const QString &pattern)
{
    return QRegularExpression(QRegularExpression::anchoredPattern(pattern));
}

bool matchesAny(const QList<QRegularExpression> &expressions, const QString &key)
{
    return std::ranges::any_of(expressions, [&](const auto &expression) { return expression.match(key).hasMatch(); });
}

QList<QRegularExpression> wholeKeys(const QStringList &patterns)
{
    QList<QRegularExpression> expressions;
    std::ranges::transform(patterns, std::back_inserter(expressions), wholeKey);
    return expressions;
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

    void setNotificationPatterns(const QStringList &patterns) override { m_patterns = wholeKeys(patterns); }

    std::optional<QVariantMap> copyValue(const QString &key) const override
    {
        const auto entry = m_store.m_entries.constFind(key);
        return entry == m_store.m_entries.cend() ? std::nullopt : std::optional(*entry);
    }

    Entries copyMultiple(const QStringList &patterns) const override
    {
        const auto expressions = wholeKeys(patterns);
        Entries copied;
        for (const auto &[key, value] : m_store.m_entries.asKeyValueRange()) {
            if (matchesAny(expressions, key))
                copied.insert(key, value);
        }
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
    QList<QRegularExpression> m_patterns;
};

std::unique_ptr<DynamicStoreSession> StateStore::createSession(const QString &, Callback callback)
{
    return std::make_unique<Session>(*this, std::move(callback));
}

void StateStore::replaceEntries(Entries entries)
{
    std::swap(m_entries, entries);
    const Entries &before = entries;
    QStringList changed;
    for (const auto &[key, value] : before.asKeyValueRange()) {
        if (!m_entries.contains(key))
            changed.append(key);
    }
    for (const auto &[key, value] : m_entries.asKeyValueRange()) {
        const auto old = before.constFind(key);
        if (old == before.cend() || *old != value)
            changed.append(key);
    }
    changed.sort();
    notify(changed);
}

void StateStore::announce(const QString &pattern)
{
    const auto expression = wholeKey(pattern);
    QStringList keys;
    for (const auto &[key, value] : m_entries.asKeyValueRange()) {
        if (expression.match(key).hasMatch())
            keys.append(key);
    }
    notify(keys);
}

void StateStore::notify(const QStringList &changedKeys)
{
    std::vector<std::pair<Session *, QString>> due;
    for (const QString &key : changedKeys) {
        for (Session *session : m_sessions) {
            if (session->wants(key))
                due.emplace_back(session, key);
        }
    }
    for (const auto &[session, key] : due) {
        if (std::ranges::find(m_sessions, session) != m_sessions.end())
            session->tell(key);
    }
}

} // namespace tarvo
