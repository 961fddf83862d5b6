#pragma once

#include <QLockFile>
#include <QString>

namespace tarvo {

/// Makes sure that a user runs a program once, by a lock file in the user's runtime folder (`XDG_RUNTIME_DIR`). The
/// lock of a program that crashed does not count.
class SingleInstance {
public:
    /// @param program  names the lock file
    explicit SingleInstance(const QString &program);

    /// @return false when another instance runs. Where no lock file can be made, nobody can tell: then true.
    bool isOnly() const { return m_only; }

private:
    QLockFile m_lock;
    bool m_only;
};

} // namespace tarvo
