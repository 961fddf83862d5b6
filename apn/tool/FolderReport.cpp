#include "apn/tool/FolderReport.h"

#include "apn/ProfileDecoding.h"
#include "apn/ProfileFile.h"
#include "apn/ProfileListing.h"
#include "apn/tool/ProfileSource.h"

#include <QSet>

#include <utility>

namespace tarvo {

namespace {

class Reporter {
public:
    Reporter(QString folder, const ProfileKey &key)
        : m_folder(std::move(folder))
        , m_key(key)
    {
    }

    FolderReport report()
    {
        const QStringList names = reportList();
        const ProfileListing listing = listProfiles(m_folder, {});
        for (const QString &problem : listing.problems)
            addProblem(problem);
        for (const QString &path : listing.profiles) {
            if (path != m_folder + QStringLiteral("profile.xml"))
                reportFile(path, names);
        }
        for (const QString &name : names) {
            if (!name.isEmpty() && !m_found.contains(name))
                addProblem(QStringLiteral("%1: listed, and there is no such file").arg(name));
        }
        return m_report;
    }

private:
    /// @return the names in the list
    QStringList reportList()
    {
        const ProfileText list = readProfile(m_folder + QStringLiteral("profile.xml"), m_key);
        if (!list.text) {
            addProblem(QStringLiteral("profile.xml: ") + list.problem);
            return {};
        }
        const QStringList names = list.text->split(u'*');
        m_report.lines.append(QStringLiteral("profile.xml: lists %1").arg(names.join(u", ")));
        return names;
    }

    void reportFile(const QString &path, const QStringList &names)
    {
        const auto base = getFileNameFromAbsolutePath(path);
        const QString shown = path.sliced(m_folder.size());
        if (!base)
            return addProblem(QStringLiteral("%1: its name cannot be cut before the extension").arg(shown));
        m_found.insert(*base);
        const QString listed = names.contains(*base) ? QStringLiteral("listed") : QStringLiteral("not listed");
        const ProfileText profile = readProfile(path, m_key);
        const QStringList problems = profile.text ? recordProblems(*profile.text) : QStringList(profile.problem);
        if (problems.isEmpty())
            m_report.lines.append(QStringLiteral("%1: %2, in order").arg(shown, listed));
        else
            addProblem(QStringLiteral("%1: %2, %3").arg(shown, listed, problems.join(u"; ")));
    }

    void addProblem(const QString &line)
    {
        m_report.lines.append(line);
        m_report.isInOrder = false;
    }

    QString m_folder;
    const ProfileKey &m_key;
    QSet<QString> m_found; ///< base names
    FolderReport m_report;
};

} // namespace

FolderReport reportFolder(const QString &folder, const ProfileKey &key)
{
    return Reporter(folder.endsWith(u'/') ? folder : folder + u'/', key).report();
}

FolderReport reportFolder(const QString &folder)
{
    const auto &key = builtInProfileKey();
    return key ? reportFolder(folder, *key)
               : FolderReport{{QStringLiteral("no key to decode profiles is built in")}, false};
}

} // namespace tarvo
