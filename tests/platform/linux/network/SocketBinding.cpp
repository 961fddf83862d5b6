#include "platform/linux/network/SocketBinding.h"

#include <gtest/gtest.h>
#include <net/if.h>
#include <sys/socket.h>
#include <unistd.h>

using namespace tarvo;

TEST(SocketBinding, TiesASocketToItsInterfaceOrRefuses)
{
    const int index = static_cast<int>(if_nametoindex("lo"));
    for (const auto &[asked, bound] : {std::pair(index, true), {0, false}, {-1, false}}) {
        const int end = socket(AF_INET, SOCK_STREAM, 0);
        EXPECT_EQ(socketBinder(asked)(end), bound) << asked;
        int actual = 0;
        socklen_t size = sizeof actual;
        EXPECT_EQ(getsockopt(end, SOL_SOCKET, SO_BINDTOIFINDEX, &actual, &size), 0);
        EXPECT_EQ(actual, bound ? index : 0);
        close(end);
    }
}
