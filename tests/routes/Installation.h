#pragma once
// A small game installation in a temporary folder for the route tests: catalogues, tiles, shapes,
// geometry and textures written as the converter's XML and made binary by our own serz.exe, and a
// session over it with a scripted host.

#include "core/Services.h"
#include "core/Session.h"
#include "core/platform/PathMap.h"
#include "ui/Forms.h"
#include "ui/ScriptedHost.h"

#include <QStringList>
#include <QTemporaryDir>

#include <functional>
#include <memory>
#include <ostream>

// Readable failures for texts and lists of texts.
inline void PrintTo(const QString &text, std::ostream *out)
{
    *out << '"' << text.toStdString() << '"';
}

namespace routes::testing
{

struct BlueprintRef {
    QString provider;
    QString product;
    QString path; // below the product folder, ending in .xml
};

struct CatalogueEntry {
    QString folder;
    QStringList names; // English, French, Italian, German, Spanish; missing ones are empty
};

// The scripted host, with a hook run whenever the program yields to pending events: a test's
// way of clicking while a walk runs.
class TestHost : public ui::ScriptedHost
{
public:
    std::function<void()> onYield;

    void yield() override
    {
        if (onYield) {
            onYield();
        }
    }
};

class Installation
{
public:
    Installation();

    bool converterFound() const;

    // Host and Windows forms of a path below the game folder.
    QString host(const QString &rel) const;
    QString win(const QString &rel) const;

    void writeText(const QString &rel, const QByteArray &bytes) const;
    void makeFolder(const QString &rel) const;
    bool exists(const QString &rel) const;
    // Writes the converter's XML and turns it into the binary rel with serz.exe.
    void writeBinary(const QString &rel, const QString &xml) const;

    // The converter's XML of the game's files.
    static QString routesXml(const QList<CatalogueEntry> &routes);
    static QString scenariosXml(const QList<CatalogueEntry> &scenarios);
    static QString tileXml(const QList<BlueprintRef> &refs);
    static QString
    shapeXml(const QString &geometry, const QString &animation = {}, const QString &script = {});
    static QString geometryXml(const QStringList &textures);

    // A route folder with its catalogue entry in Routes.xml and its scenarios' catalogue.
    void addRoute(const QString &folder,
                  const QString &name,
                  const QList<CatalogueEntry> &scenarios) const;
    // A blueprint with its geometry and textures, all present; gives its BlueprintRef.
    BlueprintRef addShape(const QString &rel, const QStringList &textures) const;

    core::Session &session() { return *m_session; }

    // Tells the forms how to make the route and report windows.
    void defineWindows();

    TestHost scripted;
    ui::Forms forms{scripted};

private:
    QTemporaryDir m_root;
    platform::PathMap m_paths = platform::PathMap::forHostRoot();
    std::unique_ptr<core::Services> m_services;
    std::unique_ptr<core::Session> m_session;
};

} // namespace routes::testing
