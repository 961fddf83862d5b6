#pragma once

#include <QString>

namespace tarvo {

/// Whose settings are written.
enum class Scope {
    User, ///< those of the user that the process runs as
    System, ///< those of all users who have none of their own
};

/// Looks for what somebody else than root could have put on the way to the file at @p path, or could still put there: a
/// folder or file that is not root's or that others may write, or a symbolic link.
/// @return the first such part of @p path; empty when there is none. What is missing is no such part
QString foreignPart(const QString &path);

/// @return why a process with the rights of root is not to write @p path, in the user's language; empty when it may, and
///         for all other processes
QString rootRefusal(const QString &path, Scope scope);

} // namespace tarvo
