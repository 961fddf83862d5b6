#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace tarvo {

/// An access point in the list that a modem keeps of what computers have given it.
struct ListedApn {
    QString profile; ///< its name; empty when the modem tells none
    qint64 index = 0;

    bool operator==(const ListedApn &) const = default;
};

/// What came of reading a modem's list.
struct ApnList {
    QList<ListedApn> apns;
    QString error; ///< why it cannot be read, without anything of its text; empty when it can
};

/// Reads what a modem answers to `pc_apn_list_query`.
ApnList readApnList(const QString &answer);

/// @return the access point that the JSON text @p record describes; nothing but zero values when it describes none
ListedApn describedApn(const QString &record);

/// @return whether an access point of the name @p profile, which is not empty, is among @p apns
bool hasProfile(const QList<ListedApn> &apns, const QString &profile);

/// What a modem still needs.
struct ApnPlan {
    QStringList records{}; ///< to be sent, in this order
    bool setsDefault = false; ///< the default follows them
};

/// Compares a modem's list with what this computer has to give.
///
/// A list with some of the records was begun and cut off: it gets the others, whatever its length. One with all of them
/// gets none. One with none of them gets all, unless it is longer than that of the modem's own access points.
/// @param listed       the modem's list
/// @param ownApns      how many access points the modem has of its own
/// @param records      JSON texts; what has no profile name is not recognised in a list
/// @param owesDefault  records were sent, and no default was chosen after them
ApnPlan planApns(const QList<ListedApn> &listed, qsizetype ownApns, const QStringList &records, bool owesDefault);

} // namespace tarvo
