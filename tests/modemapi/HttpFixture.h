#pragma once

#include "modemapi/HttpClient.h"
#include "simulator/modem/ModemServer.h"
#include "simulator/modem/SimulatedModem.h"
#include "tests/support/PrintQt.h"

#include <gtest/gtest.h>

namespace tarvo {

using Qt::StringLiterals::operator""_s;

/// A client, and a modem that it asks.
class Http : public testing::Test {
protected:
    QUrl url(const QString &path = u"logo_data.asp"_s) const
    {
        return {u"http://%1/%2"_s.arg(server.authority(), path)};
    }

    HttpAnswer get(const QUrl &from) { return client.exchange({from, {}, {}, {}}, {}); }
    HttpAnswer post(const QByteArray &body) { return client.exchange({url(u"set"_s), {}, body, {}}, {}); }

    SimulatedModem modem;
    ModemServer server{modem};
    HttpClient client;
};

} // namespace tarvo
