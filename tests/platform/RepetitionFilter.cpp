#include "platform/RepetitionFilter.h"

#include <gtest/gtest.h>

using namespace tarvo;
using namespace std::chrono_literals;

namespace {

/// @return what becomes of lines of one letter each, said in time with the clock
std::string written(const QByteArray &letters, std::chrono::seconds pause = 1s)
{
    RepetitionFilter filter;
    RepetitionFilter::TimePoint now{1h};
    QList<QByteArray> lines;
    for (const char letter : letters)
        lines += filter.pass(QByteArray(1, letter), now += pause);
    return (lines + filter.finish()).join(' ').toStdString();
}

} // namespace

TEST(RepetitionFilter, CountsLinesAndRoundsInsteadOfWritingThem)
{
    EXPECT_EQ(written("aab"), "a repeated 1 time b");
    EXPECT_EQ(written("abcabcabcabcabx"), "a b c a b c the last 3 lines repeated 2 times a b x");
    EXPECT_EQ(written("aabaabaabaa"), "a repeated 1 time b a repeated 1 time b the last 3 lines repeated 1 time a a");
    EXPECT_EQ(written(QByteArray("abcdefgh").repeated(4)),
              "a b c d e f g h a b c d e f g h the last 8 lines repeated 2 times");
    EXPECT_EQ(written(QByteArray(130, 'a')), "a repeated 60 times repeated 60 times repeated 9 times");
    EXPECT_EQ(written("aaa", 60s), "a a a");
}
