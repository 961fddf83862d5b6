#include "setup/command/CommandLine.h"

#include "platform/LogLine.h"
#include "setup/checks/Survey.h"
#include "setup/command/Report.h"
#include "setup/settings/SettingStore.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QEventLoop>
#include <QTextStream>

#include <algorithm>
#include <cstdio>
#include <memory>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

void print(const QString &text)
{
    QTextStream(stdout) << text << Qt::flush;
}

void printSentence(const QString &sentence)
{
    print(outputLine(sentence));
}

int fail(const QString &problem)
{
    QTextStream(stderr) << QString::fromUtf8(logLine(u"tarvo-setup: "_s + problem)) << Qt::endl;
    return exit_status::failed;
}

/// Runs the event loop until @p start's argument was called. @return what that was called with
template <typename Result, typename Start>
Result waitFor(Start start)
{
    QEventLoop loop;
    Result result{};
    start([&](const Result &arrived) {
        result = arrived;
        loop.quit();
    });
    loop.exec();
    return result;
}

QList<ListedDevice> listDevices(Survey &survey)
{
    QList<ListedDevice> listed;
    const SettingsInForce settings = settingsInForce();
    for (const Device &device : survey.devices(settings.values)) {
        listed.append({device});
        if (!device.network.gateway.isEmpty()) {
            listed.last().isModem = waitFor<bool>(
                [&](auto deliver) { survey.askWhetherModem(device, settings.values, std::move(deliver)); });
        }
    }
    return listed;
}

int list(const Command &command, Survey &survey)
{
    const QList<ListedDevice> devices = listDevices(survey);
    print(command.asJson ? QString::fromUtf8(devicesAsJson(devices)) : devicesAsText(devices));
    return exit_status::inOrder;
}

int check(const Command &command, Survey &survey)
{
    const auto checks = waitFor<QList<Check>>([&](auto deliver) { survey.check(std::move(deliver)); });
    print(command.asJson ? QString::fromUtf8(checksAsJson(checks)) : checksAsText(checks));
    return isWhole(checks) ? exit_status::inOrder : exit_status::failed;
}

int show(const Command &command, Survey &)
{
    const SettingsInForce settings = settingsInForce();
    if (settings.path.isEmpty())
        return fail(qtTrId("FixNoSettings"));
    if (!settings.problem.isEmpty())
        return fail(qtTrId("FixUnreadable").arg(settings.path, settings.problem));
    print(command.asJson ? QString::fromUtf8(settingsAsJson(settings)) : settingsAsText(settings));
    return exit_status::inOrder;
}

QString restartText(ActionResult result)
{
    switch (result) {
    case ActionResult::Done:
        return qtTrId("CompanionRestarts");
    case ActionResult::NotRunning:
        return qtTrId("CompanionNotRunning");
    case ActionResult::NoBus:
    case ActionResult::Failed:
        return qtTrId("CompanionUntold");
    }
    return {};
}

/// Says what became of the settings, and lets the companion know.
int finish(const SettingsWritten &written, Survey &survey)
{
    if (!written.problem.isEmpty())
        return fail(qtTrId("NotSaved").arg(written.problem)
                    + (written.isDamaged ? u' ' + qtTrId("ForceStartsAfresh") : QString()));
    const QString path = written.path.isEmpty() ? settingsInForce().path : written.path;
    printSentence(path.isEmpty() ? qtTrId("FixNoSettings") : qtTrId("SettingsAreIn").arg(path));
    if (written.fromBinary)
        printSentence(qtTrId("WasBinary"));
    if (!written.backup.isEmpty())
        printSentence(qtTrId("OldFileKept").arg(written.backup));
    const auto result = waitFor<ActionResult>([&](auto deliver) { survey.restartCompanion(std::move(deliver)); });
    printSentence(restartText(result));
    return exit_status::inOrder;
}

int change(const Command &command, Survey &survey, const SettingChange &change)
{
    const Damaged damaged = command.force ? Damaged::StartAfresh : Damaged::Refuse;
    return finish(changeSettings(change, damaged, command.scope), survey);
}

bool isPluggedIn(DeviceId device, const Survey &survey)
{
    return std::ranges::any_of(survey.devices({}), [device](const Device &there) {
        return DeviceId{there.usb.vendor, there.usb.product} == device;
    });
}

int use(const Command &command, Survey &survey)
{
    const DeviceId device = command.device;
    if (isNoModem(device) && !command.force)
        return fail(qtTrId("NeedsForce").arg(command.words[1]));
    const int status = change(command, survey, useDevice(device));
    if (status == exit_status::inOrder && !isPluggedIn(device, survey))
        printSentence(qtTrId("NotPluggedIn").arg(command.words[1]));
    return status;
}

int exclude(const Command &command, Survey &survey)
{
    return change(command, survey, excludeDevice(command.device));
}

int reset(const Command &command, Survey &survey)
{
    return finish(resetSettings(command.scope), survey);
}

struct Operation {
    QString name;
    qsizetype operands; ///< devices
    bool hasJson; ///< those that only show have it
    int (*run)(const Command &, Survey &);
};

const Operation *operationOf(const QStringList &words)
{
    static const Operation operations[] = {
        {u"list"_s, 0, true, list}, {u"check"_s, 0, true, check},      {u"show"_s, 0, true, show},
        {u"use"_s, 1, false, use},  {u"exclude"_s, 1, false, exclude}, {u"reset"_s, 0, false, reset},
    };
    for (const Operation &operation : operations) {
        if (operation.name == words.value(0) && operation.operands == words.size() - 1)
            return &operation;
    }
    return nullptr;
}

void describe(QCommandLineParser &parser)
{
    parser.setApplicationDescription(u"Finds the modem, checks what is between it and the companion, and writes the "
                                     "companion's settings. Without a command, a window does so.\n\n"
                                     "  list                    lists the USB network devices\n"
                                     "  check                   checks everything, from the settings to the companion\n"
                                     "  use VENDOR:PRODUCT      makes the companion use the devices of this vendor\n"
                                     "  exclude VENDOR:PRODUCT  makes it leave this product alone\n"
                                     "  show                    shows the settings in force\n"
                                     "  reset                   goes back to the shipped settings"_s);
    parser.addOption({{u"h"_s, u"help"_s}, u"Show this help."_s});
    parser.addOption({{u"v"_s, u"version"_s}, u"Show the version."_s});
    parser.addOption({u"json"_s, u"Print JSON (list, check, show)."_s});
    parser.addOption({u"force"_s,
                      u"Start from the shipped settings where the present ones are damaged, and use even a device that "
                      "can be none."_s});
    parser.addOption({u"system"_s, u"Write the settings of all users, as root (use, exclude, reset)."_s});
    parser.addPositionalArgument(u"command"_s, u"What to do."_s, u"[command]"_s);
}

/// @return what is wrong with a command that is to be run; empty when nothing is
QString errorIn(const Command &command)
{
    const Operation *const operation = operationOf(command.words);
    if (!operation && !command.words.isEmpty())
        return u"%1: see tarvo-setup --help"_s.arg(command.words.join(u' '));
    if (command.asJson && !(operation && operation->hasJson))
        return u"--json is for list, check and show"_s;
    if (command.scope == Scope::System && (!operation || operation->hasJson))
        return u"--system is for use, exclude and reset"_s;
    if (operation && operation->operands == 1 && !deviceIdFrom(command.words[1]))
        return u"a device is VENDOR:PRODUCT, both hexadecimal, as lsusb and the list show it"_s;
    return {};
}

} // namespace

Command commandFrom(const QStringList &arguments)
{
    QCommandLineParser parser;
    describe(parser);
    if (!parser.parse(arguments))
        return {.error = parser.errorText()};
    Command command{.words = parser.positionalArguments(),
                    .asJson = parser.isSet(u"json"_s),
                    .force = parser.isSet(u"force"_s),
                    .scope = parser.isSet(u"system"_s) ? Scope::System : Scope::User};
    if (parser.isSet(u"help"_s))
        command.output = parser.helpText().replace(u"<executable_name>"_s, u"tarvo-setup"_s);
    else if (parser.isSet(u"version"_s))
        command.output = u"tarvo-setup "_s + QStringLiteral(TARVO_VERSION "\n");
    else
        command.error = errorIn(command);
    command.device = deviceIdFrom(command.words.value(1)).value_or(DeviceId());
    return command;
}

int runCommand(const Command &command, Survey &survey)
{
    const int status = operationOf(command.words)->run(command, survey);
    return std::ferror(stdout) == 0 ? status : fail(qtTrId("OutputLost"));
}

} // namespace tarvo
