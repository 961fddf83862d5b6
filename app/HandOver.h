#pragma once

#include "app/PlugIns.h"
#include "ui/news/RecentDeeds.h"

#include <QByteArray>
#include <QList>

namespace tarvo {

/// What a program that starts over hands to the one that takes its place, so that nothing is done twice for a modem that
/// stays plugged in.
struct HandOver {
    QList<PlugIn> plugIns{};
    QList<RecentDeeds::Deed> deeds{};

    bool operator==(const HandOver &) const = default;
};

/// @return what the program whose place this one takes has left; once, so that the programs that this one starts do not
///         find it
HandOver takeHandOver();

/// Leaves @p handOver to the program that takes the place of this one, when it executes itself anew.
void leaveHandOver(const HandOver &handOver);

/// @return @p handOver as one line of text
QByteArray toText(const HandOver &handOver);

/// @return what @p text says; without the items that cannot be, and nothing of a text that is too long or none of ours
HandOver readHandOver(const QByteArray &text);

} // namespace tarvo
