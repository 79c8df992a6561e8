#include "ui/FileList.h"

namespace ui
{

void FileList::setPath(const QString &path)
{
    m_path = path;
    refresh();
}

void FileList::setPattern(const QString &pattern)
{
    m_pattern = pattern;
    refresh();
}

void FileList::refresh()
{
    setRows(m_lister && !m_path.isEmpty() ? m_lister(m_path, m_pattern) : QStringList());
}

void DirList::setPath(const QString &path)
{
    const bool moved = path != m_path;
    m_path = path;
    setRows(m_lister && !m_path.isEmpty() ? m_lister(m_path, QStringLiteral("*")) : QStringList());
    if (moved) {
        fireChange();
    }
}

void DriveList::setDrive(const QString &drive)
{
    if (drive != m_drive) {
        m_drive = drive;
        changed();
        fireChange();
    }
}

} // namespace ui
