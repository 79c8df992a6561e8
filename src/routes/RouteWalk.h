#pragma once
// The walk behind the route check and the route packager: every tile of a folder converted and
// read for the blueprints it places, and every shape read for the geometry, animation, script and
// textures it needs. The lists it gathers are kept between walks, rows stored from 1.

#include <QHash>
#include <QString>
#include <QStringList>

#include <functional>

namespace core
{
struct Session;
}

namespace ui
{
class FileList;
class ListBox;
} // namespace ui

namespace routes
{

class RouteWalk
{
public:
    // files: the file list that shows the walk; progress receives "n of m" texts for a status bar.
    RouteWalk(core::Session &session,
              ui::FileList &files,
              std::function<void(const QString &)> progress = {});

    // Converts each *.bin of folder and adds the blueprints it names: a missing one as a report
    // row (full name, three blanks, label), an existing one to ShapeList. Any failure ends the
    // walk of that folder without a word.
    void ListBlueprintRefs(const QString &folder, const QString &label, ui::ListBox &report);

    // Reads each shape named by a row of shapes for the files it needs, adding a line to the
    // session's ReportText for each one missing and a pattern to TextureList for each texture.
    // Any failure ends the check without a word.
    void CheckShapeFiles(ui::ListBox &shapes);

    QStringList ShapeList;
    int shapeCount = 0;
    QStringList TextureList;
    int textureCount = 0;

private:
    // The blueprint's full name from a tile's Provider line on; false at a reference with an
    // empty provider or path. line moves past the lines read.
    bool readReference(const QStringList &lines,
                       int &line,
                       QString &provider,
                       QString &product,
                       QString &path) const;
    void addReference(QString path,
                      const QString &provider,
                      const QString &product,
                      const QString &label,
                      ui::ListBox &report);
    void checkShape(const QString &shape, QString &geometry);
    void readTextures(const QString &geometry);
    QString workFile(const QString &fileName) const;
    // Whether a blueprint's file is there; asked once per name during one folder's walk, since a
    // route's tiles name the same blueprints thousands of times.
    bool blueprintExists(const QString &fullName);
    void showProgress(const QString &what, int done, int total) const;

    core::Session &m_session;
    ui::FileList &m_files;
    std::function<void(const QString &)> m_progress;
    QHash<QString, bool> m_known;
};

} // namespace routes
