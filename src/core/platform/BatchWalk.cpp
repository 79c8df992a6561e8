#include "core/platform/BatchWalk.h"

#include "core/platform/Wildcard.h"

#include <QDir>
#include <QFileInfo>

namespace platform
{

namespace
{

constexpr QDir::Filters FileFilter = QDir::Files | QDir::Hidden | QDir::System;
constexpr QDir::Filters DirFilter =
    QDir::Dirs | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System | QDir::NoSymLinks;
constexpr QDir::SortFlags Order = QDir::Name | QDir::IgnoreCase;

} // namespace

QString joinWin(const QString &folder, const QString &name)
{
    if (name.isEmpty()) {
        return folder;
    }
    return folder.endsWith(u'\\') ? folder + name : folder + u'\\' + name;
}

QString parentOf(const QString &absWin)
{
    const qsizetype cut = absWin.lastIndexOf(u'\\');
    return cut <= 2 ? absWin.left(3) : absWin.left(cut);
}

QString lastComponent(const QString &absWin)
{
    return absWin.mid(absWin.lastIndexOf(u'\\') + 1);
}

Source Source::of(const PathMap &paths, const QString &argument)
{
    const QString abs = paths.absolute(argument);
    if (!Wildcard::hasWildcards(abs) && QFileInfo(paths.toHost(abs)).isDir()) {
        return {abs, QStringLiteral("*.*"), true};
    }
    return {parentOf(abs), lastComponent(abs), false};
}

Walk::Walk(QString pattern, bool recurse, bool withFolders)
    : m_pattern(std::move(pattern))
    , m_recurse(recurse)
    , m_withFolders(withFolders)
{
}

void Walk::run(const QString &host, const QString &rel)
{
    const QDir dir(host);
    for (const QString &name : dir.entryList(FileFilter, Order)) {
        if (Wildcard::matches(m_pattern, name)) {
            found.append({dir.filePath(name), rel, name});
        }
    }
    const QStringList subs = dir.entryList(DirFilter, Order);
    for (const QString &name : subs) {
        if (m_withFolders && Wildcard::matches(m_pattern, name)) {
            found.append({dir.filePath(name), rel, name});
        }
    }
    if (!m_recurse) {
        return;
    }
    for (const QString &name : subs) {
        const QString subRel = joinWin(rel, name);
        folders << subRel;
        run(dir.filePath(name), subRel);
    }
}

} // namespace platform
