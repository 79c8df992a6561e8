#pragma once
// Keeps the previous copy of a file the program is about to overwrite, by renaming it to ".bak",
// or to the first free ".bak1" ... ".bak50".

#include "core/platform/PathMap.h"
#include "core/platform/Result.h"

#include <QString>

namespace core
{

class ReplaceBackup
{
public:
    explicit ReplaceBackup(const platform::PathMap &paths);

    // The Windows path the file was renamed to; empty when all 51 names are taken (nothing
    // moves). A missing file is error 53, a rename the file system refuses 75.
    [[nodiscard]] platform::Result<QString> keep(const QString &winPath) const;

private:
    const platform::PathMap &m_paths;
};

} // namespace core
