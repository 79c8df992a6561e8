#pragma once
// The names in host folders, for case-blind lookups, kept between calls while each folder's change
// time shows that nothing was added, removed or renamed in it since it was read.

#include <QHash>
#include <QString>

namespace platform
{

class FolderListings
{
public:
    // The folder's entry named as name but for letter case (the smallest when several are), or
    // empty text.
    QString find(const QString &folder, const QString &name);

private:
    struct Listing {
        qint64 changed = 0; // the folder's status change time when it was read, in ns
        qint64 read = 0; // when it was read, in ns
        QHash<QString, QString> byFolded;
    };

    static bool readFolder(const QString &folder, Listing &listing);

    QHash<QString, Listing> m_listings;
};

} // namespace platform
