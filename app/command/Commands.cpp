#include "app/command/Commands.h"

#include "app/command/CommandLine.h"
#include "app/command/StatusFollower.h"
#include "platform/LogLine.h"
#include "platform/linux/bus/ApplicationService.h"
#include "platform/linux/process/TerminationSignals.h"

#include <QCoreApplication>
#include <QDBusError>
#include <QDBusMessage>

#include <cstdio>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

constexpr int wrongArguments = 2;

void print(const QByteArray &text)
{
    std::fwrite(text.constData(), 1, static_cast<std::size_t>(text.size()), stdout);
    std::fflush(stdout);
}

void complain(const QString &sentence)
{
    std::fprintf(stderr, "tarvo: %s\n", escapedText(sentence).constData());
}

int showStatus(const QString &busAddress, const QString &applicationId, const Request &request)
{
    BusConnection bus(busAddress);
    const TerminationSignals signals(&QCoreApplication::quit);
    StatusFollower follower(
        bus, applicationId, request,
        {.print = [](const QByteArray &line) { print(line + '\n'); },
         .finished = [] { QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection); }});
    follower.start();
    QCoreApplication::exec();
    return follower.exitStatus();
}

QDBusMessage messageFor(const QString &applicationId, const Request &request)
{
    const QString method = request.kind == Request::Kind::Show ? u"ShowStatus"_s
        : request.kind == Request::Kind::Quit                  ? u"Quit"_s
                                                               : u"OpenPage"_s;
    const QVariantList arguments = request.kind == Request::Kind::Open ? QVariantList{request.page} : QVariantList();
    return applicationCall(applicationId, publicInterfaceOf(applicationId), method, arguments);
}

int call(const QString &busAddress, const QDBusMessage &message)
{
    const QDBusMessage answer = callAndWait(busAddress, message);
    if (answer.type() == QDBusMessage::ReplyMessage)
        return 0;
    const bool isThere = answer.errorName() == QDBusError::errorString(QDBusError::Failed);
    complain(isThere ? answer.errorMessage() : u"Tarvo is not running"_s);
    return isThere ? 1 : notRunning;
}

} // namespace

int runCommand(int argc, char **argv, const QString &busAddress, const QString &applicationId)
{
    const QCoreApplication application(argc, argv);
    const auto parsed = parseArguments(QCoreApplication::arguments().mid(1));
    if (const auto *const problem = std::get_if<QString>(&parsed)) {
        complain(*problem + u"; see tarvo --help"_s);
        return wrongArguments;
    }
    const auto &request = std::get<Request>(parsed);
    switch (request.kind) {
    case Request::Kind::Help:
        print(helpText().toUtf8());
        return 0;
    case Request::Kind::Version:
        print("tarvo " TARVO_VERSION "\n");
        return 0;
    case Request::Kind::Status:
        return showStatus(busAddress, applicationId, request);
    default:
        return call(busAddress, messageFor(applicationId, request));
    }
}

} // namespace tarvo
