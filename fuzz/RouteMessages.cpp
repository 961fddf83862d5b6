#include "platform/linux/network/RouteMessages.h"

#include "platform/linux/network/LinkEntries.h"

#include <QStringList>

#include <netlink/msg.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <vector>

using namespace tarvo;

namespace {

/// Publishes a model as the network store does.
void publish(NetworkModel &model, LinkEntries &entries, StateStore &store)
{
    const QSet<int> removed = model.takeRemovedLinks();
    const QSet<int> changed = model.takeChangedLinks();
    for (const auto &changes : entries.update(model, changed, removed, [&](int index) { return model.gateway(index); }))
        store.applyChanges(changes);
}

StateStore::Entries madeAnew(const NetworkModel &model)
{
    NetworkModel copy;
    LinkEntries entries;
    StateStore store;
    copy.takeAll(model);
    publish(copy, entries, store);
    return store.entries();
}

/// Ends the program unless every service is one of a known interface and has an address.
void checkServices(const StateStore::Entries &entries, const QStringList &interfaces)
{
    const auto services = entries[store::globalIPv4SetupKey][store::kSCPropNetServiceOrder].toStringList();
    for (const QString &service : services) {
        const QVariantMap state = entries[store::serviceIPv4Key(service)];
        if (!interfaces.contains(service) || state[store::kSCPropInterfaceName] != service
            || state[store::kSCPropNetIPv4Addresses].toStringList().isEmpty())
            std::abort();
    }
    if (entries.size() != 2 + 2 * services.size())
        std::abort();
}

} // namespace

/// The input is what the kernel sends: messages one after the other, each padded to four bytes.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char *bytes, std::size_t size)
{
    std::vector<nlmsghdr> aligned(size / sizeof(nlmsghdr) + 1);
    std::memcpy(aligned.data(), bytes, size);
    NetworkModel model;
    LinkEntries entries;
    StateStore store;
    int remaining = static_cast<int>(size);
    for (nlmsghdr *header = aligned.data(); nlmsg_ok(header, remaining); header = nlmsg_next(header, &remaining)) {
        const std::unique_ptr<nl_msg, decltype(&nlmsg_free)> message(nlmsg_convert(header), &nlmsg_free);
        applyRouteMessage(message.get(), model);
        publish(model, entries, store);
        QStringList interfaces =
            store.entries()[store::interfaceListKey][store::kSCDynamicStorePropNetInterfaces].toStringList();
        if (interfaces.removeDuplicates() != 0)
            return 0; // the kernel gives no name twice
        checkServices(store.entries(), interfaces);
    }
    if (store.entries() != madeAnew(model) && !store.entries().isEmpty())
        std::abort();
    return 0;
}
