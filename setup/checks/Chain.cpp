#include "setup/checks/Chain.h"

#include "RouterObserver/SettingFile.h"

#include <QCoreApplication>

#include <algorithm>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

/// Puts links one behind the other; those behind a broken one are skipped.
class Chain {
public:
    /// @param holds  nil when that is not known
    void add(const QByteArray &id, std::optional<bool> holds, const UserText &advice)
    {
        const bool needed = !m_isBroken;
        addBeside(id, needed, holds, advice);
        m_isBroken = m_isBroken || holds == false;
    }

    /// Adds a link on which no other one depends.
    void addBeside(const QByteArray &id, bool needed, std::optional<bool> holds, const UserText &advice,
                   const QStringList &details = {})
    {
        if (!needed)
            m_checks.append({id, Mark::Skipped});
        else if (!holds)
            m_checks.append({id, Mark::Unknown});
        else if (*holds)
            m_checks.append({id, Mark::Ok});
        else
            m_checks.append({id, Mark::Broken, advice, details});
    }

    bool isBroken() const { return m_isBroken; }
    QList<Check> take() { return std::move(m_checks); }

private:
    QList<Check> m_checks;
    bool m_isBroken = false;
};

UserText deviceAdvice(const QList<Device> &devices)
{
    if (devices.isEmpty())
        return {"FixNoDevice"};
    const auto excluded = std::ranges::find(devices, Support::Excluded, &Device::support);
    const bool onlyExcluded =
        std::ranges::all_of(devices, [](const Device &device) { return device.support == Support::Excluded; });
    return onlyExcluded ? UserText{"FixExcluded", {excluded->name()}} : UserText{"FixUnsupported"};
}

UserText gatewayAdvice(const Device &device)
{
    if (device.network.routeWithoutMetric.isEmpty())
        return {"FixNoGateway", {device.usb.interfaceName}};
    return {"FixHiddenGateway", {device.usb.interfaceName, device.network.routeWithoutMetric}};
}

void addSettings(Chain &chain, const ChainFacts &facts)
{
    const bool found = !facts.settingsPath.isEmpty();
    const UserText advice =
        found ? UserText{"FixUnreadable", {facts.settingsPath, facts.settingsProblem}} : UserText{"FixNoSettings"};
    chain.add("settings", found && facts.settingsProblem.isEmpty(), advice);
    QStringList others;
    for (const SettingFinding &finding : facts.findings.mid(1))
        others.append(finding.sentence().shown());
    chain.addBeside("keys", !chain.isBroken(), facts.findings.isEmpty(),
                    facts.findings.isEmpty() ? UserText{} : facts.findings.first().sentence(), others);
}

void addDevice(Chain &chain, const ChainFacts &facts)
{
    const std::optional<Device> found = deviceToCheck(facts.devices);
    const Device device = found.value_or(Device());
    const QString name = device.usb.interfaceName;
    chain.add("device", found.has_value(), deviceAdvice(facts.devices));
    chain.add("link", device.network.isUp, {"FixLinkDown", {name}});
    chain.add("address", !device.network.addresses.isEmpty(), {"FixNoAddress", {name}});
    chain.add("gateway", !device.network.gateway.isEmpty(), gatewayAdvice(device));
}

UserText pageAdvice(std::optional<Obstacle> obstacle, const QString &gateway, const QString &page)
{
    if (obstacle == Obstacle::Busy)
        return {"FixBusy", {gateway}};
    if (obstacle == Obstacle::WantsPassword)
        return {"FixPassword", {gateway}};
    if (obstacle == Obstacle::WantsHttps)
        return {"FixHttps", {gateway}};
    return obstacle == Obstacle::OtherPage ? UserText{"FixOtherPage", {page}} : UserText{"FixNoPage", {page}};
}

void addModem(Chain &chain, const ChainFacts &facts)
{
    const Device device = deviceToCheck(facts.devices).value_or(Device());
    const ModemFacts modem = facts.modem.value_or(ModemFacts());
    const auto told = [&](bool holds) { return facts.modem ? std::optional(holds) : std::nullopt; };
    const bool isSilent = modem.obstacle == Obstacle::Silence;
    chain.add("port", told(modem.answers), {isSilent ? "FixBusy" : "FixNoAnswer", {device.network.gateway}});
    chain.add("page", told(modem.hasPage), pageAdvice(modem.obstacle, device.network.gateway, facts.statusPage));
    const bool needed = !chain.isBroken();
    chain.addBeside("connection", needed, told(modem.connection.has_value()), {"FixNoConnection", {facts.statusPage}});
    chain.addBeside("data", needed, told(modem.missingFields.isEmpty()),
                    {"FixNoData", {modem.missingFields.join(u", "_s)}});
    chain.addBeside("session", needed, modem.givesSession, {"FixNoSession"});
}

void addProfiles(Chain &chain, const ProfileFacts &profiles)
{
    const UserText advice = profiles.folderExists ? UserText{"FixProfiles", {profiles.folder}}
                                                  : UserText{"FixNoProfiles", {profiles.folder}};
    chain.addBeside("profiles", profiles.wanted, profiles.folderExists && profiles.problems.isEmpty(), advice,
                    profiles.problems);
}

void addDesktop(Chain &chain, const DesktopFacts &desktop)
{
    chain.addBeside("tray", true, desktop.showsIcons, {"FixNoTray"});
    chain.addBeside("notifications", true, desktop.showsNotifications, {"FixNoNotifications"});
    chain.addBeside("browser", true, desktop.opensPages, {"FixNoBrowser"});
}

/// The companion runs, and has read the settings as they are now.
void addCompanion(Chain &chain, const ChainFacts &facts)
{
    const QVariantMap &told = facts.desktop.applicationProperties;
    if (facts.desktop.runsApplication != true) {
        chain.addBeside("companion", true, facts.desktop.runsApplication, {"FixNotRunning"});
        return;
    }
    std::optional<bool> isUpToDate;
    if (told.contains(settingDigestProperty))
        isUpToDate = told.value(settingDigestProperty) == facts.settingsDigest;
    QStringList file{told.value(settingPathProperty).toString()};
    file.removeAll(QString());
    chain.addBeside("companion", true, isUpToDate, {"FixOlderSettings"}, file);
}

} // namespace

QString markText(Mark mark)
{
    switch (mark) {
    case Mark::Ok:
        return qtTrId("MarkOk");
    case Mark::Broken:
        return qtTrId("MarkBroken");
    case Mark::Unknown:
        return qtTrId("MarkUnknown");
    case Mark::Skipped:
        return qtTrId("MarkSkipped");
    }
    return {};
}

QString Check::title() const
{
    return qtTrId(("Check_" + id).constData());
}

QList<Check> checkChain(const ChainFacts &facts)
{
    Chain chain;
    addSettings(chain, facts);
    addDevice(chain, facts);
    addModem(chain, facts);
    addProfiles(chain, facts.profiles);
    addDesktop(chain, facts.desktop);
    addCompanion(chain, facts);
    return chain.take();
}

bool isWhole(const QList<Check> &checks)
{
    return std::ranges::none_of(checks, [](const Check &check) { return check.mark == Mark::Broken; });
}

} // namespace tarvo
