#include "apn/tool/FolderReport.h"

#include "apn/ProfileDecoding.h"
#include "apn/ProfileFile.h"
#include "apn/ProfileListing.h"
#include "apn/tool/ProfileSource.h"

#include <QFile>
#include <QSet>

#include <utility>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

class Reporter {
public:
    Reporter(QString folder, const ProfileKey &key, const SealRule &sealRule)
        : m_folder(std::move(folder))
        , m_key(key)
        , m_sealRule(sealRule)
    {
    }

    FolderReport report()
    {
        reportSeal();
        const QStringList names = reportList();
        const ProfileListing listing = listProfiles(m_folder, {});
        for (const QString &problem : listing.problems)
            addProblem(problem);
        for (const QString &path : listing.profiles) {
            if (path != m_folder + u"profile.xml"_s)
                reportFile(path, names);
        }
        for (const QString &name : names) {
            if (!name.isEmpty() && !m_found.contains(name))
                addProblem(u"%1: listed, and there is no such file"_s.arg(name));
        }
        return m_report;
    }

private:
    void reportSeal()
    {
        const ProfileSeal seal = readProfileSeal(m_folder, m_sealRule, {});
        if (!seal.problem.isEmpty())
            addProblem(seal.problem);
        else if (seal.hashes)
            m_report.lines.append(u"profile.sig: in order"_s);
        else if (QFile::exists(sealPath(m_folder)))
            m_report.lines.append(u"profile.sig: not checked, as no key is built in"_s);
    }

    /// @return the names in the list
    QStringList reportList()
    {
        const ProfileText list = readProfile(m_folder + u"profile.xml"_s, m_key);
        if (!list.text) {
            addProblem(u"profile.xml: "_s + list.problem);
            return {};
        }
        const QStringList names = list.text->split(u'*');
        m_report.lines.append(u"profile.xml: lists %1"_s.arg(names.join(u", ")));
        return names;
    }

    void reportFile(const QString &path, const QStringList &names)
    {
        const auto base = getFileNameFromAbsolutePath(path);
        const QString shown = path.sliced(m_folder.size());
        if (!base)
            return addProblem(u"%1: its name cannot be cut before the extension"_s.arg(shown));
        m_found.insert(*base);
        const QString listed = names.contains(*base) ? u"listed"_s : u"not listed"_s;
        const ProfileText profile = readProfile(path, m_key);
        const QStringList problems = profile.text ? recordProblems(*profile.text) : QStringList(profile.problem);
        if (problems.isEmpty())
            m_report.lines.append(u"%1: %2, in order"_s.arg(shown, listed));
        else
            addProblem(u"%1: %2, %3"_s.arg(shown, listed, problems.join(u"; ")));
    }

    void addProblem(const QString &line)
    {
        m_report.lines.append(line);
        m_report.isInOrder = false;
    }

    QString m_folder;
    const ProfileKey &m_key;
    const SealRule &m_sealRule;
    QSet<QString> m_found; ///< base names
    FolderReport m_report;
};

} // namespace

FolderReport reportFolder(const QString &folder, const ProfileKey &key, const SealRule &sealRule)
{
    return Reporter(folder.endsWith(u'/') ? folder : folder + u'/', key, sealRule).report();
}

FolderReport reportFolder(const QString &folder)
{
    const auto &[key, problem] = builtInProfileKey();
    return key ? reportFolder(folder, *key, builtInSealRule())
               : FolderReport{{u"no key to read profiles with: "_s + problem}, false};
}

} // namespace tarvo
