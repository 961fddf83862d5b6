#pragma once

#include <QString>

#include <chrono>

namespace tarvo {

/// Keeps others that take the same lock from changing what is in a folder. It ends with this object, and with the process
/// whatever becomes of it: nothing is left in the folder.
class FolderLock {
public:
    FolderLock() = default;
    ~FolderLock();
    FolderLock(const FolderLock &) = delete;
    FolderLock &operator=(const FolderLock &) = delete;

    /// Takes the lock of the folder at @p path, once.
    /// @return false when others held it for as long as @p timeout; where folders have no locks, nobody holds any
    bool take(const QString &path, std::chrono::milliseconds timeout);

private:
    int m_descriptor = -1;
};

} // namespace tarvo
