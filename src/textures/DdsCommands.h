#pragma once
// The main window's texture conversions as steps over the session: the open texture's XML to a
// .dds and its header file in TempDDS, an edited .dds back into the game texture, and starting
// the user's picture viewer or editor on the .dds.

#include "core/Session.h"
#include "textures/HeaderFile.h"

#include <QString>

#include <functional>
#include <optional>

namespace textures
{

class DdsCommands
{
public:
    explicit DdsCommands(core::Session &session);

    // The program's folder for textures in work.
    QString tempDds() const;
    // Whether a path names a game texture, by its last six characters, case-blind.
    static bool isTexturePath(const QString &path);

    // Writes TempDDS\<stem>dds and TempDDS\<stem>dat from the texture's XML (as the text page
    // holds it) and tells the user how to save an edit. sourcePath is the opened texture.
    void toDds(const QString &sourcePath, const QString &xml) const;

    // Asks for a .dds, splices it into its header file's pieces, backs the game texture up and
    // converts the new XML over it. The new XML goes to showXml (the text page) before the
    // conversion. False when the command stopped before the game texture was touched.
    bool fromDds(const std::function<void(const QString &)> &showXml) const;

    // Starts a viewer or editor on the texture's .dds in TempDDS; without a tool, tells the user
    // how to choose one (missingText is the first line of that message).
    void
    startTool(const QString &toolPath, const QString &sourcePath, const QString &missingText) const;

private:
    void tell(const QString &text) const;
    std::optional<HeaderFile> headerFile(const QString &stem) const;
    bool confirmed(const QString &ddsPath, const QString &originalPath) const;
    void convertBack(const QString &xmlPath, const QString &originalPath) const;

    core::Session &m_session;
};

} // namespace textures
