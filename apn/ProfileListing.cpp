#include "apn/ProfileListing.h"

#include <QFile>

#include <filesystem>
#include <system_error>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

namespace fs = std::filesystem;

constexpr int maximumDepth = 32;

class Lister {
public:
    explicit Lister(std::stop_token stop)
        : m_stop(std::move(stop))
    {
    }

    /// @param folder  with its trailing slash
    void list(const QString &folder, int depth)
    {
        if (depth > maximumDepth)
            return skip(folder, u"it lies too deep"_s);
        std::error_code error;
        const auto path = fs::path(QFile::encodeName(folder).toStdString());
        for (fs::directory_iterator entry(path, error), end; !error && entry != end; entry.increment(error)) {
            if (m_stop.stop_requested())
                return;
            add(folder, *entry, depth);
        }
        if (error && error != std::errc::no_such_file_or_directory)
            skip(folder, QString::fromStdString(error.message()));
    }

    ProfileListing takeListing() { return std::move(m_listing); }

private:
    void add(const QString &folder, const fs::directory_entry &entry, int depth)
    {
        std::error_code error; // what cannot be told of an entry shows when it is read
        const QString path = folder + QFile::decodeName(entry.path().filename().c_str());
        const bool isProfile = path.endsWith(u".xml");
        if (!entry.is_directory(error)) {
            m_listing.files.append(path);
            if (isProfile)
                m_listing.profiles.append(path);
            return;
        }
        if (isProfile)
            skip(path, u"it is a folder"_s);
        else if (entry.is_symlink(error))
            skip(path, u"it is a link to a folder"_s);
        if (!entry.is_symlink(error))
            list(path + u'/', depth + 1);
    }

    void skip(const QString &path, const QString &problem) { m_listing.problems.append(skippedLine(path, problem)); }

    std::stop_token m_stop;
    ProfileListing m_listing;
};

} // namespace

QString skippedLine(const QString &path, const QString &problem)
{
    return u"%1 is skipped: %2"_s.arg(path, problem);
}

ProfileListing listProfiles(const QString &root, const std::stop_token &stop)
{
    Lister lister(stop);
    lister.list(root, 0);
    return lister.takeListing();
}

} // namespace tarvo
