#pragma once

#include <QByteArray>

namespace tarvo {

/// Standard error, for lines that may get lost but must neither block nor end the process. Used under a lock.
///
/// It is the terminal, pipe or file that was there when the object was made. How others write to it is not changed.
class StandardError {
public:
    StandardError();
    ~StandardError();
    StandardError(const StandardError &) = delete;
    StandardError &operator=(const StandardError &) = delete;

    /// @return whether there is one, and it is not the journal, as `JOURNAL_STREAM` tells (systemd.exec(5))
    bool isWanted() const { return m_wanted; }

    /// @param bytes  at most `PIPE_BUF` of them
    /// @return false when nobody takes them at present
    bool write(const QByteArray &bytes) const;

private:
    bool m_wanted = false;
    bool m_isSocket = false;
    int m_own = -1; ///< opened anew, so that not to block is a trait of ours alone; -1 where that cannot be done
};

} // namespace tarvo
