// Storms of 2,000 pairs of links beside a modem's, in the network namespace that it is started in: what following them
// costs the product, and a listener that only parses the same messages; and how late the modem's own change is told.
#include "bench/NoLog.h"
#include "platform/linux/network/LeaseFiles.h"
#include "platform/linux/network/NetlinkDynamicStore.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QProcess>
#include <QTimer>

#include <linux/if_addr.h>
#include <linux/rtnetlink.h>
#include <netlink/attr.h>
#include <netlink/errno.h>
#include <netlink/msg.h>
#include <netlink/netlink.h>
#include <netlink/socket.h>
#include <poll.h>
#include <pthread.h>
#include <sys/socket.h>

#include <array>
#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <functional>
#include <memory>
#include <optional>
#include <thread>

namespace {

using namespace tarvo;
using namespace Qt::StringLiterals;

constexpr int pairs = 2000;

/// @return the processor time of @p thread, in milliseconds
double processorTime(pthread_t thread)
{
    clockid_t clock{};
    timespec time{};
    if (pthread_getcpuclockid(thread, &clock) != 0 || clock_gettime(clock, &time) != 0)
        return 0;
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

int parse(nl_msg *message, void *)
{
    nlmsghdr *const header = nlmsg_hdr(message);
    std::array<nlattr *, IFLA_MAX + 1> attributes{};
    int length = sizeof(rtmsg);
    if (header->nlmsg_type == RTM_NEWLINK || header->nlmsg_type == RTM_DELLINK)
        length = sizeof(ifinfomsg);
    else if (header->nlmsg_type == RTM_NEWADDR || header->nlmsg_type == RTM_DELADDR)
        length = sizeof(ifaddrmsg);
    return nlmsg_parse(header, length, attributes.data(), IFLA_MAX, nullptr) < 0 ? NL_SKIP : NL_OK;
}

/// Listens to the same events on a thread of its own, and does nothing but parse them.
class BareListener {
public:
    BareListener()
    {
        nl_socket_disable_seq_check(m_socket.get());
        nl_socket_modify_cb(m_socket.get(), NL_CB_VALID, NL_CB_CUSTOM, parse, nullptr);
        nl_connect(m_socket.get(), NETLINK_ROUTE);
        nl_socket_set_nonblocking(m_socket.get());
        const int room = 16 << 20; // so that it parses all, however late it gets the processor
        setsockopt(nl_socket_get_fd(m_socket.get()), SOL_SOCKET, SO_RCVBUFFORCE, &room, sizeof(room));
        nl_socket_add_memberships(m_socket.get(), RTNLGRP_LINK, RTNLGRP_IPV4_IFADDR, RTNLGRP_IPV4_ROUTE, 0);
        m_thread = std::thread([this] { listen(); });
    }
    ~BareListener()
    {
        m_ended = true;
        m_thread.join();
    }
    BareListener(const BareListener &) = delete;
    BareListener &operator=(const BareListener &) = delete;

    double time() { return processorTime(m_thread.native_handle()); }
    bool hasLost() const { return m_lost; }

private:
    void listen()
    {
        pollfd readable{nl_socket_get_fd(m_socket.get()), POLLIN, 0};
        while (!m_ended) {
            if (poll(&readable, 1, 100) > 0 && nl_recvmsgs_default(m_socket.get()) == -NLE_NOMEM)
                m_lost = true;
        }
    }

    std::unique_ptr<nl_sock, void (*)(nl_sock *)> m_socket{nl_socket_alloc(), nl_socket_free};
    std::atomic<bool> m_ended{false};
    std::atomic<bool> m_lost{false};
    std::thread m_thread;
};

/// Runs ip(8). @param commands  one a line, without the word "ip"
std::unique_ptr<QProcess> begin(const QString &commands)
{
    auto process = std::make_unique<QProcess>();
    process->setProcessChannelMode(QProcess::ForwardedChannels);
    process->start(u"ip"_s, {u"-batch"_s, u"-"_s});
    process->write(commands.toUtf8());
    process->closeWriteChannel();
    return process;
}

void ip(const QString &commands)
{
    const auto process = begin(commands);
    process->waitForFinished(-1);
    if (process->exitCode() != 0)
        std::exit(EXIT_FAILURE);
}

QString comingPairs()
{
    QString commands;
    for (int i = 0; i < pairs; ++i)
        commands += u"link add a%1 group 9 type veth peer name b%1 group 9\n"_s.arg(i);
    return commands;
}

class Storms {
public:
    Storms()
    {
        ip(u"link add en5 type veth peer name far5\nlink set far5 up\naddr add 192.168.8.100/24 dev en5\n"
           "link set en5 up\nroute add default via 192.168.8.1"_s);
        m_store.emplace(m_log, m_leases);
        m_session = m_store->createSession(u"bench"_s, [](auto &, const auto &) {});
        m_session->setNotificationPatterns({store::interfaceListKey, store::anyServiceIPv4Pattern});
    }

    void run()
    {
        measure("storm: 2,000 pairs come", [this] { follow(comingPairs()); });
        measure("storm: 2,000 pairs go", [this] { follow(u"link del group 9"_s); });
        QString manyLinks;
        for (int i = 0; i < 5000; ++i)
            manyLinks += u"link add c%1 group 8 type veth peer name d%1 group 8\n"_s.arg(i);
        follow(manyLinks);
        measure("storm: 2,000 pairs come to 10,000 links", [this] { follow(comingPairs()); });
        measure("storm: 2,000 pairs go from 10,000 links", [this] { follow(u"link del group 9"_s); });
        follow(u"link del group 8"_s);
        printDelay("storm: the modem's change in it", delayInStorm(false));
        printDelay("storm: the modem's change, with overrun", delayInStorm(true));
    }

private:
    QString router() const
    {
        const auto state = m_session->copyValue(store::serviceIPv4Key(u"en5"_s));
        return state ? state->value(store::kSCPropNetIPv4Router).toString() : QString();
    }

    /// Lets events come until the storm of @p commands is over, and what it changed is published.
    static void follow(const QString &commands)
    {
        QEventLoop events;
        const auto storm = begin(commands);
        QObject::connect(storm.get(), &QProcess::finished, &events,
                         [&events] { QTimer::singleShot(600, &events, &QEventLoop::quit); });
        events.exec();
    }

    void measure(const char *what, const std::function<void()> &storm)
    {
        BareListener listener;
        const double ours = processorTime(pthread_self());
        const double floor = listener.time();
        storm();
        std::printf(R"({"what": "%s", "ours": %.1f, "floor": %.1f, "unit": "ms CPU", "goal": 2})"
                    "\n",
                    what, processorTime(pthread_self()) - ours, listener.time() - floor);
        if (listener.hasLost())
            std::fprintf(stderr, "%s: the bare listener lost messages, and so looks too cheap\n", what);
    }

    /// @return milliseconds from the change of the modem's router, half-way through a storm, until it is told; with
    ///         @p overrun from when the program, which slept through the storm, looks again
    qint64 delayInStorm(bool overrun)
    {
        const auto storm = begin(comingPairs());
        if (!overrun)
            follow(u"link set lo up"_s); // for a while
        const QString next = overrun ? u"192.168.8.3"_s : u"192.168.8.2"_s;
        if (overrun)
            storm->waitForFinished(-1);
        ip(u"route replace default via "_s + next);
        QElapsedTimer since;
        since.start();
        while (router() != next)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        const qint64 delay = since.elapsed();
        storm->waitForFinished(-1);
        ip(u"link del group 9"_s);
        return delay;
    }

    static void printDelay(const char *what, qint64 milliseconds)
    {
        std::printf(R"({"what": "%s", "ours": %lld, "unit": "ms", "goal": 300})"
                    "\n",
                    what, static_cast<long long>(milliseconds));
    }

    NoLog m_log;
    LeaseFiles m_leases;
    std::optional<NetlinkDynamicStore> m_store;
    std::unique_ptr<DynamicStoreSession> m_session;
};

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    Storms().run();
    return EXIT_SUCCESS;
}
