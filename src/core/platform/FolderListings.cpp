#include "core/platform/FolderListings.h"

#include <QFile>

#ifndef Q_OS_WIN
#include <dirent.h>
#include <sys/stat.h>
#include <time.h>
#endif

namespace platform
{

namespace
{

constexpr qint64 NsPerSecond = 1'000'000'000;
// A listing read less than this after the folder last changed is not kept: file times tick
// coarsely, so a change in the same tick as the reading would not show.
constexpr qint64 SettleNs = 2 * NsPerSecond;
// Enough for the folders of a large route walk; beyond it the cache starts over.
constexpr qsizetype MaxFolders = 4096;

} // namespace

#ifndef Q_OS_WIN

bool FolderListings::readFolder(const QString &folder, Listing &listing)
{
    DIR *dir = ::opendir(QFile::encodeName(folder).constData());
    if (!dir) {
        return false;
    }
    while (const dirent *entry = ::readdir(dir)) {
        const QString name = QFile::decodeName(entry->d_name);
        if (name == u"." || name == u"..") {
            continue;
        }
        const QString folded = name.toCaseFolded();
        const auto it = listing.byFolded.constFind(folded);
        if (it == listing.byFolded.cend() || name < *it) {
            listing.byFolded.insert(folded, name);
        }
    }
    ::closedir(dir);
    return true;
}

QString FolderListings::find(const QString &folder, const QString &name)
{
    struct stat status = {};
    if (::stat(QFile::encodeName(folder).constData(), &status) != 0) {
        return {};
    }
    // The change time, unlike the modification time, cannot be set back by a program.
    const qint64 changed = qint64(status.st_ctim.tv_sec) * NsPerSecond + status.st_ctim.tv_nsec;
    const auto cached = m_listings.constFind(folder);
    if (cached != m_listings.cend() && cached->changed == changed
        && cached->read - changed >= SettleNs) {
        return cached->byFolded.value(name.toCaseFolded());
    }
    timespec now = {};
    ::clock_gettime(CLOCK_REALTIME, &now);
    Listing listing;
    listing.changed = changed;
    listing.read = qint64(now.tv_sec) * NsPerSecond + now.tv_nsec;
    if (!readFolder(folder, listing)) {
        return {};
    }
    const QString found = listing.byFolded.value(name.toCaseFolded());
    if (m_listings.size() >= MaxFolders) {
        m_listings.clear();
    }
    m_listings.insert(folder, std::move(listing));
    return found;
}

#else

QString FolderListings::find(const QString &, const QString &)
{
    return {}; // the system matches names case-blind itself
}

#endif

} // namespace platform
