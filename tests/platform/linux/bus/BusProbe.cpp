#include "platform/linux/bus/BusProbe.h"

#include "platform/linux/bus/BusAddress.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <array>
#include <string>
#include <utility>

using namespace tarvo;
using namespace Qt::StringLiterals;

namespace {

using State = BusProbe::State;

/// A bus that says what it is told to.
class FakeBus {
public:
    explicit FakeBus(const QString &path)
    {
        sockaddr_un address{.sun_family = AF_UNIX, .sun_path = {}};
        path.toStdString().copy(address.sun_path, sizeof address.sun_path);
        EXPECT_EQ(bind(m_listener, reinterpret_cast<const sockaddr *>(&address), sizeof address), 0);
        listen(m_listener, 0);
    }
    ~FakeBus()
    {
        close(m_end);
        close(m_listener);
    }
    FakeBus(const FakeBus &) = delete;
    FakeBus &operator=(const FakeBus &) = delete;

    /// @return what the client has said
    std::string accept()
    {
        std::array<char, 1000> bytes{};
        m_end = ::accept(m_listener, nullptr, nullptr);
        return {bytes.data(), static_cast<size_t>(recv(m_end, bytes.data(), bytes.size(), 0))};
    }
    void say(const std::string &text) const { send(m_end, text.data(), text.size(), MSG_NOSIGNAL); }
    void hangUp() { close(std::exchange(m_end, -1)); }

private:
    int m_listener = socket(AF_UNIX, SOCK_STREAM, 0);
    int m_end = -1;
};

} // namespace

TEST(BusProbe, TellsABusThatAnswersFromOneThatIsMuteOrAbsent)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"bus"_s);
    const QString address = u"unix:path=/nonexistent;"_s + addressOfSocket(path);
    EXPECT_EQ(BusProbe(address).update(), State::Absent);
    EXPECT_EQ(BusProbe(u"tcp:host=localhost"_s).update(), State::Absent);
    EXPECT_EQ(BusProbe(addressOfSocket(u"/"_s + u"x"_s.repeated(200))).update(), State::Absent);

    FakeBus bus(path);
    const std::pair<std::string, State> answers[]{{"", State::Mute},
                                                  {"OK", State::Mute},
                                                  {"OK 1234\r\n", State::Mute},
                                                  {"OK 1234\r\nl", State::Answered},
                                                  {"REJECTED EXTERNAL\r\n", State::Answered},
                                                  {std::string(4096, 'x'), State::Mute},
                                                  {std::string(4097, 'x'), State::Absent}};
    for (const auto &[answer, state] : answers) {
        BusProbe probe(address);
        const std::string said = bus.accept();
        EXPECT_TRUE(said.starts_with(std::string("\0AUTH EXTERNAL ", 15))) << said;
        EXPECT_NE(said.find("Hello"), std::string::npos);
        EXPECT_EQ(probe.update(), State::Mute);
        bus.say(answer);
        EXPECT_EQ(probe.update(), state) << answer;
        EXPECT_EQ(probe.descriptor() >= 0, state == State::Mute) << answer;
        bus.hangUp();
        EXPECT_EQ(probe.update(), state == State::Answered ? State::Answered : State::Absent) << answer;
    }
    const BusProbe first(address);
    BusProbe second(address);
    BusProbe third(address);
    EXPECT_EQ(third.update(), State::Mute) << "there are more clients than it takes";
    EXPECT_LT(third.descriptor(), 0);
}
