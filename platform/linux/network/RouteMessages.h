#pragma once

struct nl_msg;

namespace tarvo {

class NetworkModel;

/// Applies one message of the kernel's routing netlink (rtnetlink(7)), an event or a part of a dump, to @p model.
///
/// Messages that did not come from the kernel, that are not well formed, or that are of no concern change nothing.
void applyRouteMessage(nl_msg *message, NetworkModel &model);

} // namespace tarvo
