#include "simulator/modem/ModemConsole.h"
#include "simulator/modem/ModemServer.h"
#include "simulator/modem/SimulatedModem.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDateTime>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTextStream>

#include <cstdio>
#include <iostream>
#include <string>

using namespace Qt::StringLiterals;

namespace {

/// One request as one line of JSON; "time" is in milliseconds since 1970.
QByteArray recordLine(const tarvo::ReceivedRequest &request)
{
    const QJsonObject record{
        {u"time"_s, QDateTime::currentMSecsSinceEpoch()}, {u"connection"_s, static_cast<qint64>(request.connection)},
        {u"method"_s, QString::fromUtf8(request.method)}, {u"target"_s, QString::fromUtf8(request.target)},
        {u"head"_s, QString::fromUtf8(request.head)},     {u"body"_s, QString::fromUtf8(request.body)},
    };
    return QJsonDocument(record).toJson(QJsonDocument::Compact) + '\n';
}

void addOptions(QCommandLineParser &parser)
{
    parser.setApplicationDescription(
        u"Serves a simulated modem over HTTP until its standard input ends.\n"
        "Lines that it reads there: set NAME=VALUE, fault KIND[=DETAIL] [PART], requests."_s);
    parser.addHelpOption();
    parser.addOption({u"address"_s, u"Listen on ADDRESS."_s, u"ADDRESS"_s, u"127.0.0.1"_s});
    parser.addOption({u"port"_s, u"Listen on PORT; 0 takes any."_s, u"PORT"_s, u"0"_s});
    parser.addOption({u"record"_s, u"Append each request to FILE, a line of JSON each."_s, u"FILE"_s});
    parser.addOption({u"set"_s, u"Start with this value. Names: "_s + tarvo::modemSettingsHelp().replace(u'\n', u' '),
                      u"NAME=VALUE"_s});
}

int fail(const QString &text)
{
    std::cerr << "tarvo-modem-simulator: " << text.toStdString() << std::endl;
    return 1;
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    addOptions(parser);
    parser.process(application);

    QFile record(parser.value(u"record"_s));
    if (parser.isSet(u"record"_s) && !record.open(QIODevice::Append | QIODevice::Unbuffered))
        return fail(record.errorString());
    tarvo::SimulatedModem modem([&record](const tarvo::ReceivedRequest &request) {
        if (record.isOpen())
            record.write(recordLine(request));
    });
    const QStringList assignments = parser.values(u"set"_s);
    for (const QString &assignment : assignments) {
        if (!tarvo::setModemValue(modem, assignment))
            return fail(u"unknown value "_s + assignment);
    }
    tarvo::ModemServer server(modem, QHostAddress(parser.value(u"address"_s)), parser.value(u"port"_s).toUShort());
    if (server.error())
        return fail(*server.error());

    std::cout << "listening on " << server.authority().toStdString() << std::endl;
    for (std::string line; std::getline(std::cin, line);)
        std::cout << tarvo::runModemCommand(modem, server, QString::fromStdString(line)).toStdString() << std::endl;
    return 0;
}
