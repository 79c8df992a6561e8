#pragma once
// A small installation for the texture commands: the program's folder with TempFiles, a game
// folder with textures, and the session over our own converter.

#include "core/Services.h"
#include "core/Session.h"
#include "ui/ScriptedHost.h"

#include <QTemporaryDir>

namespace texturetest
{

class TextureInstall
{
public:
    TextureInstall();

    // A Windows path under the installation's root.
    QString win(const QString &rel) const;

    QString host(const QString &rel) const { return m_root.filePath(rel); }

    void put(const QString &rel, const QByteArray &bytes) const;
    QByteArray read(const QString &rel) const;
    bool exists(const QString &rel) const;
    // The message box line the scripted host writes for a box with OK.
    static QString messageLine(ui::Icon icon, const QString &title, const QString &text);

    QTemporaryDir m_root;
    platform::PathMap map = platform::PathMap::forHostRoot();
    ui::ScriptedHost scripted;
    core::Services services;
    core::Session session;
};

} // namespace texturetest
