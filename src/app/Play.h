#pragma once
// --play: runs a macro through the scripted host with no screen, writing the transcript.

#include "app/AppFolders.h"

#include <QString>

namespace app
{

// Gives the exit code: 0 when every line ran, 2 when one failed.
int play(const AppFolders &folders,
         const QString &macroPath,
         const QString &transcriptPath,
         const QString &commandLineFile);

} // namespace app
