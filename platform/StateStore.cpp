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

constexpr QStringView anyName = u"[^/]+";

bool isSpecial(QChar character)
{
    return QStringView(u"\\^$.|?*+()[]{}").contains(character);
}

bool isPlain(QStringView text)
{
    return std::ranges::none_of(text, isSpecial);
}

/// Keys that a regular expression matches whole. A key matches itself, whatever its characters would mean in a pattern.
///
/// Nearly every pattern is a key, or one with any name at a place: an expression is compiled for the others only.
class KeyPattern {
public:
    explicit KeyPattern(const QString &pattern)
        : m_pattern(pattern)
        , m_before(m_pattern.left(m_pattern.indexOf(anyName)))
        , m_after(m_pattern.mid(m_before.size() + anyName.size()))
        , m_isPlain(isPlain(m_before) && isPlain(m_after))
        , m_expression(QRegularExpression::anchoredPattern(pattern))
    {
    }

    /// @return text with which every key that matches begins
    QStringView start() const
    {
        if (m_pattern.contains(u'|'))
            return {};
        const auto *const end = std::ranges::find_if(m_pattern, isSpecial);
        const qsizetype length = std::distance(m_pattern.begin(), end);
        const bool mayBeAbsent = end != m_pattern.end() && QStringView(u"?*{").contains(*end);
        return QStringView(m_pattern).first(mayBeAbsent ? std::max<qsizetype>(length - 1, 0) : length);
    }

    bool matches(const QString &key) const
    {
        if (key == m_pattern)
            return true;
        if (m_isPlain)
            return hasName(key);
        return m_expression.isValid() && m_expression.match(key).hasMatch();
    }

private:
    /// @return whether @p key has one name, and nothing else, where the pattern has any
    bool hasName(QStringView key) const
    {
        const qsizetype length = key.size() - m_before.size() - m_after.size();
        return m_before != m_pattern && length > 0 && key.startsWith(m_before) && key.endsWith(m_after)
            && !key.sliced(m_before.size(), length).contains(u'/');
    }

    QString m_pattern;
    QString m_before; ///< what comes before any name, the whole pattern when it has none
    QString m_after;
    bool m_isPlain;
    QRegularExpression m_expression; ///< compiled by its first use
};

bool matchesAny(const QList<KeyPattern> &patterns, const QString &key)
{
    return std::ranges::any_of(patterns, [&](const auto &pattern) { return pattern.matches(key); });
}

/// Calls @p found with each entry whose whole key matches @p pattern, in key order. Looks only at the keys that begin
/// like the pattern: most patterns are one key, or nearly so, in a state of thousands.
void forEachMatch(const StateStore::Entries &entries, const KeyPattern &pattern,
                  const std::function<void(const QString &key, const QVariantMap &value)> &found)
{
    const QStringView start = pattern.start();
    for (auto entry = entries.lowerBound(start.toString()); entry != entries.cend() && entry.key().startsWith(start);
         ++entry) {
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
