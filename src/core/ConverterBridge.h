#pragma once
// The road between a game binary and editable XML: the work-file names in TempFiles, the exact
// converter command lines, running them from the program's folder, and putting a new binary over
// its target after the backup.

#include "core/Session.h"

#include <QString>

#include <functional>

namespace core
{

// The work-file names of a source: its stem (work folder, name up to and including its last dot)
// and its extension as written.
struct WorkNames {
    QString stem;
    QString ext;
};

class ConverterBridge
{
public:
    explicit ConverterBridge(Session &session);

    // Splits the source's file name at its last dot into the stem under workFolder and the
    // extension; a name without a dot has an empty name part, so the work files are "bin", "xml".
    static WorkNames workNames(const QString &workFolder, const QString &sourcePath);

    // serz.exe "X" xml:"Y"
    static QString toXmlCommand(const QString &binPath, const QString &xmlPath);
    // serz.exe "Y" bin:"X", or with "/bin:" for textures.
    static QString
    toBinCommand(const QString &xmlPath, const QString &binPath, bool slashForm = false);

    // Changes to the program's folder and runs the command, waiting and yielding, hidden.
    void run(const QString &commandLine) const;
    void toXml(const QString &binPath, const QString &xmlPath) const;
    void toBin(const QString &xmlPath, const QString &binPath, bool slashForm = false) const;

    // The target's backup by rename: ".bak", else ".bak1" ... ".bak50"; nothing when all are
    // taken. Gives the name used, or empty.
    QString backup(const QString &target) const;

    // The end of both save roads: when the extension is not "bin", renames stem+"bin" to
    // stem+ext; backs the target up; copies stem+ext over the target. Steps report through
    // status (may be empty); failures raise.
    void putBack(const WorkNames &work,
                 const QString &target,
                 const std::function<void(const QString &)> &status = {}) const;

private:
    Session &m_session;
};

} // namespace core
