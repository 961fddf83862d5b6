#include "tests/support/Program.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <stdexcept>

namespace tarvo {

Program::Program(std::vector<std::string> arguments)
{
    std::vector<char *> pointers;
    pointers.reserve(arguments.size() + 1);
    for (std::string &argument : arguments)
        pointers.push_back(argument.data());
    pointers.push_back(nullptr);
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0 || (m_process = fork()) < 0)
        throw std::runtime_error("cannot start " + arguments.front());
    if (m_process == 0) {
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        dup2(ends[1], STDOUT_FILENO);
        execvp(pointers.front(), pointers.data());
        _exit(127);
    }
    close(ends[1]);
    m_output = ends[0];
}

Program::~Program()
{
    kill(m_process, SIGTERM);
    waitpid(m_process, nullptr, 0);
    close(m_output);
}

std::string Program::readLine()
{
    std::string line;
    pollfd readable{.fd = m_output, .events = POLLIN, .revents = 0};
    for (char byte = 0; poll(&readable, 1, 10'000) > 0 && read(m_output, &byte, 1) == 1 && byte != '\n';)
        line += byte;
    return line;
}

} // namespace tarvo
