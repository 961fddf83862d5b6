#pragma once

#include <QString>

#include <optional>

namespace tarvo {

/// Makes sure that a user runs a program once, by a locked file in the user's runtime folder (`XDG_RUNTIME_DIR`).
///
/// The lock is the kernel's: it ends with the program, however that ends, and when the program executes itself anew.
/// What the file holds does not matter, and it stays. Programs that are started from here do not inherit the lock.
class SingleInstance {
public:
    /// @param program  names the file
    explicit SingleInstance(const QString &program);
    ~SingleInstance();
    SingleInstance(const SingleInstance &) = delete;
    SingleInstance &operator=(const SingleInstance &) = delete;

    /// @return false when another instance runs. Where no file can be locked, nobody can tell: then true.
    bool isOnly() const { return m_only; }

    /// @return why nobody can tell, a line for the log; nil when it can be told
    const std::optional<QString> &problem() const { return m_problem; }

private:
    int m_file = -1;
    bool m_only = true;
    std::optional<QString> m_problem;
};

} // namespace tarvo
