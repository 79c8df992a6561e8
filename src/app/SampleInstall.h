#pragma once
// --sample: points a first start at the sample installation that the build made, by writing
// preferences.txt with it as the game folder when there is no preferences.txt yet.

#include <QString>

namespace app
{

// The sample installation beside the build's programs, or empty when the build made none.
QString sampleInstallFolder();
// Writes preferences.txt in appFolder (host paths) unless one exists; false when nothing written.
bool seedPreferences(const QString &appFolder, const QString &railSimWinPath);

} // namespace app
