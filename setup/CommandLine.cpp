#include "setup/CommandLine.h"

#include "setup/Report.h"
#include "setup/SettingStore.h"
#include "setup/Survey.h"

#include <QCommandLineParser>
#include <QEventLoop>
#include <QTextStream>

#include <cstdio>
#include <memory>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

void print(const QString &text)
{
    QTextStream(stdout) << text << Qt::flush;
}

int fail(const QString &problem, int status = exit_status::failed)
{
    QTextStream(stderr) << u"tarvo-setup: "_s << problem << Qt::endl;
    return status;
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

int show(const Command &, Survey &)
{
    const SettingsInForce settings = settingsInForce();
    if (settings.path.isEmpty())
        return fail(u"there is no file of settings"_s);
    if (!settings.problem.isEmpty())
        return fail(settings.path + u": "_s + settings.problem);
    print(settings.path + u'\n' + settingsAsText(settings.values));
    return exit_status::inOrder;
}

QString restartLine(ActionResult result)
{
    switch (result) {
    case ActionResult::Done:
        return u"The companion starts again with these settings.\n"_s;
    case ActionResult::NotRunning:
        return u"The companion is not running; it will read these settings when it starts.\n"_s;
    case ActionResult::NoBus:
        return u"There is no session bus to tell the companion: quit it and start it again.\n"_s;
    case ActionResult::Failed:
        return u"The companion did not answer: quit it and start it again.\n"_s;
    }
    return {};
}

/// Says what became of the settings, and lets the companion know.
int finish(const SettingsWritten &written, Survey &survey)
{
    if (!written.problem.isEmpty())
        return fail(written.problem
                    + (written.isDamaged ? u"; --force starts from the shipped settings"_s : QString()));
    print(u"The settings are in %1\n"_s.arg(userSettingsPath()));
    if (written.fromBinary)
        print(u"They had the binary form and have the XML form now.\n"_s);
    if (!written.backup.isEmpty())
        print(u"What was there before is in %1\n"_s.arg(written.backup));
    print(restartLine(waitFor<ActionResult>([&](auto deliver) { survey.restartCompanion(std::move(deliver)); })));
    return exit_status::inOrder;
}

int change(const Command &command, Survey &survey, SettingChange (*changeFor)(DeviceId))
{
    const auto device = deviceIdFrom(command.words.value(1));
    if (!device)
        return fail(u"a device is VENDOR:PRODUCT, both hexadecimal, as lsusb and the list show it"_s,
                    exit_status::wrongUse);
    return finish(changeSettings(changeFor(*device), command.force ? Damaged::StartAfresh : Damaged::Refuse), survey);
}

int use(const Command &command, Survey &survey)
{
    return change(command, survey, useDevice);
}

int exclude(const Command &command, Survey &survey)
{
    return change(command, survey, excludeDevice);
}

int reset(const Command &, Survey &survey)
{
    return finish(resetSettings(), survey);
}

struct Operation {
    QString name;
    qsizetype operands;
    int (*run)(const Command &, Survey &);
};

const Operation *operationOf(const QStringList &words)
{
    static const Operation operations[] = {
        {u"list"_s, 0, list}, {u"check"_s, 0, check},     {u"show"_s, 0, show},
        {u"use"_s, 1, use},   {u"exclude"_s, 1, exclude}, {u"reset"_s, 0, reset},
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
    parser.addOption({u"json"_s, u"Print JSON (list, check)."_s});
    parser.addOption({u"force"_s, u"Start from the shipped settings where the present ones are damaged."_s});
    parser.addPositionalArgument(u"command"_s, u"What to do."_s, u"[command]"_s);
}

} // namespace

Command commandFrom(const QStringList &arguments)
{
    QCommandLineParser parser;
    describe(parser);
    if (!parser.parse(arguments))
        return {.error = parser.errorText()};
    Command command{
        .words = parser.positionalArguments(), .asJson = parser.isSet(u"json"_s), .force = parser.isSet(u"force"_s)};
    if (parser.isSet(u"help"_s))
        command.output = parser.helpText().replace(u"<executable_name>"_s, u"tarvo-setup"_s);
    else if (parser.isSet(u"version"_s))
        command.output = u"tarvo-setup "_s + QStringLiteral(TARVO_VERSION "\n");
    else if (!command.words.isEmpty() && !operationOf(command.words))
        command.error = u"%1: see tarvo-setup --help"_s.arg(command.words.join(u' '));
    return command;
}

int runCommand(const Command &command, Survey &survey)
{
    return operationOf(command.words)->run(command, survey);
}

} // namespace tarvo
