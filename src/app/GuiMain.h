#pragma once
// The workbench with the Qt view: people's dialogs and windows.

#include <QString>

namespace app
{

int guiMain(
    int argc, char *argv[], const QString &appFolderOverride, const QString &file, bool sample);

} // namespace app
