#include "fuzz/Input.h"
#include "modemapi/Obstacle.h"

using namespace tarvo;

/// The input is where a server points to, a line feed, and the page that it sends along.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char *bytes, std::size_t size)
{
    const QByteArray input = bytesOf(bytes, size);
    const qsizetype end = input.indexOf('\n');
    HttpAnswer answer;
    answer.status = 302;
    answer.redirect = QUrl::fromEncoded(input.left(end));
    answer.data = end < 0 ? QByteArray() : input.mid(end + 1);
    const Obstacle obstacle = obstacleOf(answer);
    check(obstacle != Obstacle::NoAnswer && obstacle != Obstacle::Silence);
    check((obstacle == Obstacle::WantsHttps) <= (answer.redirect.scheme() == u"https"));
    return 0;
}
