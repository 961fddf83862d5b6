#include "setup/checks/Survey.h"

#include "RouterObserver/ConfigManager.h"
#include "modemapi/ModemClient.h"
#include "setup/settings/SettingKeys.h"

#include <chrono>
#include <utility>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

/// A desktop whose bus says nothing is not waited for any longer.
constexpr std::chrono::seconds desktopTimeout{5};
/// Longer than the requests to a modem take.
constexpr std::chrono::seconds readTimeout{30};

} // namespace

/// Facts that come from several places, and who is told when all are there.
struct Survey::Gathering {
    ChainFacts facts;
    int missing = 0;
    std::function<void(const QList<Check> &)> deliver;
};

Survey::Survey(SetupServices services)
    : m_services(std::move(services))
{
}

QList<Device> Survey::devices(const QVariantMap &settings) const
{
    QList<Device> devices;
    for (const UsbNetworkDevice &usb : m_services.usbDevices.devices())
        devices.append({usb, m_services.interfaceState(usb.interfaceIndex),
                        supportOf(usb.vendor, usb.product, ConfigManager(settings))});
    return devices;
}

ModemQuestion Survey::questionFor(const Device &device, const QVariantMap &settings) const
{
    return {device.network.gateway, m_services.socketBinderFor(device.usb),
            ConfigManager(settings.isEmpty() ? shippedSettings() : settings)};
}

void Survey::askWhetherModem(const Device &device, const QVariantMap &settings,
                             std::function<void(bool isModem)> deliver)
{
    m_background.run<bool>(
        [question = questionFor(device, settings)](const std::stop_token &stop) {
            return tarvo::askWhetherModem(question, stop).isModem();
        },
        std::move(deliver));
}

template <typename Fact>
void Survey::gather(const std::shared_ptr<Gathering> &gathering, std::chrono::milliseconds limit,
                    std::function<Fact(std::stop_token)> read,
                    std::function<void(ChainFacts &facts, const Fact &fact)> put)
{
    ++gathering->missing;
    m_background.runFor<Fact>(limit, Fact(), std::move(read), [gathering, put = std::move(put)](const Fact &fact) {
        put(gathering->facts, fact);
        if (--gathering->missing == 0)
            gathering->deliver(checkChain(gathering->facts));
    });
}

void Survey::check(std::function<void(const QList<Check> &checks)> deliver)
{
    const SettingsInForce settings = settingsInForce();
    const auto gathering = std::make_shared<Gathering>();
    gathering->facts = factsAtHand(settings);
    gathering->deliver = std::move(deliver);
    gather<DesktopFacts>(
        gathering, desktopTimeout, [read = m_services.readDesktop](const std::stop_token &) { return read(); },
        [](ChainFacts &facts, const DesktopFacts &desktop) { facts.desktop = desktop; });
    if (!settings.path.isEmpty() && ConfigManager(settings.values).flag(u"ProvisionAccessPoints"_s, true)) {
        gather<ProfileFacts>(
            gathering, readTimeout, [read = m_services.readProfiles](const std::stop_token &) { return read(); },
            [](ChainFacts &facts, const ProfileFacts &profiles) { facts.profiles = profiles; });
    }
    const std::optional<Device> device = deviceToCheck(gathering->facts.devices);
    if (device && !device->network.gateway.isEmpty()) {
        gather<ModemFacts>(
            gathering, readTimeout,
            [question = questionFor(*device, settings.values)](const std::stop_token &stop) {
                return askModem(question, stop);
            },
            [](ChainFacts &facts, const ModemFacts &modem) { facts.modem = modem; });
    }
}

/// @return what can be told without waiting
ChainFacts Survey::factsAtHand(const SettingsInForce &settings) const
{
    ChainFacts facts;
    facts.settingsPath = settings.path;
    facts.settingsProblem = settings.problem;
    facts.settingsDigest = settings.digest;
    facts.findings = checkSettings(settings.values);
    facts.statusPage = ModemClient::getNetInfoAddress(ConfigManager(settings.values));
    facts.devices = devices(settings.values);
    return facts;
}

void Survey::restartCompanion(std::function<void(ActionResult result)> deliver)
{
    m_background.runFor<ActionResult>(
        desktopTimeout, ActionResult::Failed,
        [restart = m_services.restartCompanion](const std::stop_token &) { return restart(); }, std::move(deliver));
}

} // namespace tarvo
