#include "platform/linux/SingleInstance.h"

#include <QStandardPaths>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

QString lockPath(const QString &program)
{
    return QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation) + QLatin1Char('/') + program + u".lock"_s;
}

} // namespace

SingleInstance::SingleInstance(const QString &program)
    : m_lock(lockPath(program))
{
    m_lock.setStaleLockTime(0); // it is held for the whole session
    m_only = m_lock.tryLock() || m_lock.error() != QLockFile::LockFailedError;
}

} // namespace tarvo
