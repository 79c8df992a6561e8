#pragma once
// Where the program keeps its folder (preferences.txt, TempFiles, Templates, Reports) and where
// its system folder (the one serz.exe is run from) is.

#include "workbench/Workbench.h"

#include <QString>

namespace app
{

using AppFolders = workbench::Folders;

// The executable's folder when it can be written, else a per-user data folder; an override
// (--app-folder) wins.
AppFolders locateFolders(const QString &overrideFolder);

} // namespace app
