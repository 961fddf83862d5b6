#include "simulator/surroundings/SimulatedLogind.h"

#include <QCoreApplication>
#include <QDBusMessage>
#include <QElapsedTimer>
#include <QSocketNotifier>
#include <QTest>

#include <unistd.h>

#include <chrono>
#include <functional>
#include <iostream>
#include <string>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto answerTimeout = 10s;

bool becomes(const std::function<bool()> &condition)
{
    return QTest::qWaitFor(condition, static_cast<int>(std::chrono::milliseconds(answerTimeout).count()));
}

/// Puts the machine to sleep as logind does: when the lock to delay it has been given back.
bool fallAsleep(tarvo::SimulatedLogind &logind)
{
    if (!becomes([&] { return logind.isLocked(); }))
        return false;
    logind.prepareForSleep(true);
    return becomes([&] { return !logind.isLocked(); });
}

/// @return the milliseconds after which the companion's main thread has answered a call; "no answer" when it has not
std::string timeToAnswer(const QDBusConnection &bus)
{
    QElapsedTimer timer;
    timer.start();
    const QDBusMessage answer =
        bus.call(QDBusMessage::createMethodCall(u"io.github.tarvo.Tarvo"_s, u"/io/github/tarvo/Tarvo"_s,
                                                u"org.freedesktop.DBus.Introspectable"_s, u"Introspect"_s),
                 QDBus::Block, std::chrono::milliseconds(answerTimeout).count());
    return answer.type() == QDBusMessage::ReplyMessage ? std::to_string(timer.elapsed()) : "no answer";
}

std::string carryOut(const std::string &command, tarvo::SimulatedLogind &logind, const QDBusConnection &bus)
{
    if (command == "ask")
        return timeToAnswer(bus);
    if (command == "sleep")
        return fallAsleep(logind) ? "ok" : "the lock was not taken, or not given back";
    if (command == "wake")
        logind.prepareForSleep(false);
    else if (command == "activate" || command == "deactivate")
        logind.setSession(command == "activate");
    else
        return "unknown command";
    return "ok";
}

/// Stands in for what the companion meets on a message bus, until standard input ends. @return the exit status
int serve(QCoreApplication &application, const QString &busAddress)
{
    const QDBusConnection bus = QDBusConnection::connectToBus(busAddress, u"asks"_s);
    tarvo::SimulatedLogind logind(busAddress);
    if (!bus.isConnected())
        return 1;
    std::cout << "ready" << std::endl;
    QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, &application, [&] {
        std::string line;
        if (!std::getline(std::cin, line))
            return QCoreApplication::quit();
        std::cout << carryOut(line, logind, bus) << std::endl;
    });
    return QCoreApplication::exec();
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() == 2)
        return serve(application, arguments.last());
    std::cerr << "Usage: tarvo-bus-simulator BUS-ADDRESS\n"
                 "Is logind on that bus. Lines that it reads from standard input, each of which it answers by one:\n"
                 "sleep, wake, activate and deactivate (the user's session), ask (after how many milliseconds the "
                 "companion's main thread answers).\n";
    return 1;
}
