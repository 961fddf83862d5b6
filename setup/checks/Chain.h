#pragma once

#include "platform/DesktopFacts.h"
#include "setup/checks/ModemFacts.h"
#include "setup/settings/Devices.h"
#include "setup/settings/SettingFindings.h"
#include "setup/text/UserText.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

namespace tarvo {

/// How a link of the chain is.
enum class Mark {
    Ok,
    Broken,
    Unknown, ///< it could not be found out
    Skipped, ///< it is not needed, or a link before it is broken
};

/// @return what @p mark says, in the user's language
QString markText(Mark mark);

/// One link of the chain from the settings to the running companion.
struct Check {
    QByteArray id; ///< never changes, for programs
    Mark mark = Mark::Unknown;
    UserText advice{}; ///< one sentence that says what to do; empty unless broken
    QStringList details{}; ///< more lines, in the user's language where they are not a tool's

    bool operator==(const Check &) const = default;

    /// @return what is checked, in the user's language
    QString title() const;
};

/// The access-point profiles of this computer.
struct ProfileFacts {
    bool wanted = false; ///< the settings say that access points are sent
    QString folder{};
    bool folderExists = false;
    QStringList problems{}; ///< a line for each file that is not in order

    bool operator==(const ProfileFacts &) const = default;
};

/// All that the chain is made of.
struct ChainFacts {
    QString settingsPath{}; ///< empty when there is no file
    QString settingsProblem{}; ///< why the file cannot be used; empty when it can
    QString settingsDigest{}; ///< tells the file's content from others; empty when there is no file
    QList<SettingFinding> findings{};
    QString statusPage{}; ///< path on the modem
    QList<Device> devices{};
    std::optional<ModemFacts> modem{}; ///< of `deviceToCheck(devices)`; nil when it was not asked
    ProfileFacts profiles{};
    DesktopFacts desktop{};
};

/// @return all links, in the order of the chain
QList<Check> checkChain(const ChainFacts &facts);

/// @return whether no link is broken
bool isWhole(const QList<Check> &checks);

} // namespace tarvo
