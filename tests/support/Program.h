#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

namespace tarvo {

/// A program that runs for as long as its object lives, and never longer than the test. Its standard error is ours.
class Program {
public:
    /// @param arguments  the program's name, looked up in PATH, and what it is given
    explicit Program(std::vector<std::string> arguments);
    /// Ends the program and waits until it is gone.
    ~Program();
    Program(const Program &) = delete;
    Program &operator=(const Program &) = delete;

    /// @return the next line of its standard output, without the line end; empty when none comes within 10 s
    std::string readLine();

    pid_t process() const { return m_process; }

private:
    pid_t m_process = -1;
    int m_output = -1;
};

} // namespace tarvo
