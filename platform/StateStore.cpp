#include "platform/StateStore.h"

#include <QRegularExpression>

#include <algorithm>
#include <functional>
#include <iterator>
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

/// @return text with which every key that matches @p pattern whole begins
QStringView literalStart(const QString &pattern)
{
    static const QString special = u"\\^$.|?*+()[]{}"_s;
    if (pattern.contains(u'|'))
        return {};
    const auto *const end = std::ranges::find_if(pattern, [](QChar c) { return special.contains(c); });
    const qsizetype length = std::distance(pattern.begin(), end);
    const bool mayBeAbsent = end != pattern.end() && u"?*{"_s.contains(*end);
    return QStringView(pattern).first(mayBeAbsent ? std::max<qsizetype>(length - 1, 0) : length);
}

QRegularExpression wholeKey(const QString &pattern)
{
    return QRegularExpression(QRegularExpression::anchoredPattern(pattern));
}

bool matches(const QRegularExpression &expression, const QString &key)
{
    return expression.isValid() && expression.match(key).hasMatch();
}

bool matchesAny(const QList<QRegularExpression> &expressions, const QString &key)
{
    return std::ranges::any_of(expressions, [&](const auto &expression) { return matches(expression, key); });
}

QList<QRegularExpression> wholeKeys(const QStringList &patterns)
{
    QList<QRegularExpression> expressions;
    std::ranges::transform(patterns, std::back_inserter(expressions), wholeKey);
    return expressions;
}

/// Calls @p found with each entry whose whole key matches @p pattern, in key order. Looks only at the keys that begin
/// like the pattern: most patterns are one key, or nearly so, in a state of thousands. A key matches itself, whatever
/// its characters would mean in a pattern.
void forEachMatch(const StateStore::Entries &entries, const QString &pattern,
                  const std::function<void(const QString &key, const QVariantMap &value)> &found)
{
    const QStringView start = literalStart(pattern);
    const QRegularExpression expression = wholeKey(pattern);
    for (auto entry = entries.lowerBound(start.toString()); entry != entries.cend() && entry.key().startsWith(start);
         ++entry) {
        if (entry.key() == pattern || matches(expression, entry.key()))
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

    void setNotificationPatterns(const QStringList &patterns) override { m_patterns = wholeKeys(patterns); }

    std::optional<QVariantMap> copyValue(const QString &key) const override
    {
        const auto entry = m_store.m_entries.constFind(key);
        return entry == m_store.m_entries.cend() ? std::nullopt : std::optional(*entry);
    }

    Entries copyMultiple(const QStringList &patterns) const override
    {
        Entries copied;
        for (const QString &pattern : patterns)
            forEachMatch(m_store.m_entries, pattern,
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
    QList<QRegularExpression> m_patterns;
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
    forEachMatch(m_entries, pattern, [&](const QString &key, const QVariantMap &) {
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
