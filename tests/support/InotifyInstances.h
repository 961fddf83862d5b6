#pragma once

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringList>

namespace tarvo {

/// @return what the kernel tells of each inotify instance of this process, with a line "inotify wd:" for each path that it
///         watches
inline QStringList inotifyInstances()
{
    QStringList instances;
    const QFileInfoList descriptors = QDir(QStringLiteral("/proc/self/fd")).entryInfoList(QDir::Files | QDir::System);
    for (const QFileInfo &descriptor : descriptors) {
        QFile facts(QStringLiteral("/proc/self/fdinfo/") + descriptor.fileName());
        if (descriptor.symLinkTarget().contains(QLatin1String("inotify")) && facts.open(QIODevice::ReadOnly))
            instances.append(QString::fromLatin1(facts.readAll()));
    }
    return instances;
}

/// @return whether this process watches any path
inline bool watchesAnything()
{
    return !inotifyInstances().filter(QStringLiteral("inotify wd:")).isEmpty();
}

} // namespace tarvo
