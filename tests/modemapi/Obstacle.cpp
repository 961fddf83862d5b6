#include "modemapi/Obstacle.h"

#include "tests/modemapi/HttpFixture.h"

using namespace tarvo;

TEST_F(Http, TellsWhatAnAnswerSaysOfItself)
{
    const QByteArray form = "<FORM><input  type = \"Password\"></FORM>";
    const QByteArray stranger = "http://u:p@192.0.2.1/x?number=7";
    const auto answer = [](const QByteArray &head, const QByteArray &body = {}) {
        return "HTTP/1.1 " + head + "\r\nConnection: close\r\nContent-Length: " + QByteArray::number(body.size())
            + "\r\n\r\n" + body;
    };
    const std::tuple<QByteArray, int, Obstacle> cases[] = {
        {answer("200 OK", "{}"), 200, Obstacle::OtherPage},
        {answer("200 OK", " \n"), 200, Obstacle::NoAnswer},
        {answer("200 OK\r\nContent-Type: text/html", form), 200, Obstacle::WantsPassword},
        {answer("200 OK", form), 200, Obstacle::WantsPassword},
        {answer("200 OK\r\nContent-Type: text/plain", "type=password"), 200, Obstacle::OtherPage},
        {answer("401 No", "{}"), 401, Obstacle::WantsPassword},
        {answer("403 No"), 403, Obstacle::WantsPassword},
        {answer("404 No"), 404, Obstacle::OtherPage},
        {answer("503 No", "<html>"), 503, Obstacle::Busy},
        {answer("301 No\r\nLocation: https://" + server.authority().toLatin1()), 301, Obstacle::WantsHttps},
        {answer("302 No\r\nLocation: " + stranger), 302, Obstacle::OtherPage},
        {answer("302 No\r\nLocation: " + stranger + "/Login.html"), 302, Obstacle::OtherPage},
        {answer("302 No\r\nLocation: http://192.0.2.1/Login.html"), 302, Obstacle::WantsPassword},
    };
    for (const auto &[text, status, obstacle] : cases) {
        server.setFault({.kind = FaultKind::Verbatim, .text = text});
        const HttpAnswer got = get(url());
        EXPECT_EQ(got.status, status) << text.constData();
        EXPECT_EQ(obstacleOf(got), obstacle) << text.constData();
        EXPECT_EQ(got.error.has_value(), !got.redirect.isEmpty());
    }
    server.setFault({.kind = FaultKind::Verbatim, .text = answer("302 No\r\nLocation: " + stranger)});
    EXPECT_EQ(get(url()).error, u"redirected to http://192.0.2.1"_s) << "nothing that is secret, or new each time";
    server.setFault({FaultKind::CloseAtOnce});
    EXPECT_EQ(obstacleOf(get(url())), Obstacle::Silence);
    server.setFault({FaultKind::Refuse});
    EXPECT_EQ(obstacleOf(get(url())), Obstacle::NoAnswer);
}
