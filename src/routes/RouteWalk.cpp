#include "routes/RouteWalk.h"

#include "core/ConverterBridge.h"
#include "core/Services.h"
#include "core/Session.h"
#include "core/TextPrimitives.h"
#include "core/Traps.h"
#include "routes/TextureName.h"
#include "routes/content_model/RowArrays.h"
#include "routes/content_model/TagScan.h"
#include "ui/FileList.h"

using core::instr;
using core::instrRev;
using core::left;
using core::mid;

namespace routes
{

namespace
{

constexpr auto blind = Qt::CaseInsensitive;
const QString lineBreak = QStringLiteral("\r\n");
// Reading on past the last line of a file fails as Line Input does.
constexpr int InputPastEndOfFile = 62;

const QString &lineAt(const QStringList &lines, int line)
{
    if (line >= lines.size()) {
        platform::raise(InputPastEndOfFile, QStringLiteral("Input past end of file"));
    }
    return lines[line];
}

bool holds(const QString &line, const QString &find)
{
    return instr(1, line, find, blind) > 0;
}

QString fileNameOf(const QString &path)
{
    return mid(path, instrRev(path, QStringLiteral("\\")) + 1);
}

} // namespace

RouteWalk::RouteWalk(core::Session &session,
                     ui::FileList &files,
                     std::function<void(const QString &)> progress)
    : m_session(session)
    , m_files(files)
    , m_progress(std::move(progress))
{
    makeRows(ShapeList, 500);
    makeRows(TextureList, 500);
    const core::Services &services = session.services;
    m_files.setLister([&services](const QString &folder, const QString &pattern) {
        return services.listFiles(folder, pattern);
    });
}

void RouteWalk::ListBlueprintRefs(const QString &folder, const QString &label, ui::ListBox &report)
{
    core::silently([&] {
        QString existing = folder;
        if (!m_session.services.FolderExists(existing)) {
            return;
        }
        m_known.clear();
        m_files.setPath(folder);
        const core::ConverterBridge bridge(m_session);
        const int total = m_files.listCount();
        for (int row = 0; row < m_files.listCount(); ++row) {
            if (m_session.AbortRequested) {
                return;
            }
            m_files.setSelected(row, true);
            showProgress(label, row + 1, total);
            const QString file = m_files.list(row);
            const QString xmlPath = workFile(file) + QStringLiteral("xml");
            bridge.toXml(folder + QLatin1Char('\\') + file, xmlPath);
            const QStringList lines = m_session.services.ReadLines(xmlPath);
            for (int line = 0; line < lines.size(); ++line) {
                QString provider;
                QString product;
                QString path;
                if (readReference(lines, line, provider, product, path)) {
                    addReference(path, provider, product, label, report);
                }
            }
            m_session.services.Kill(xmlPath);
            m_session.host.yield();
        }
    });
}

bool RouteWalk::readReference(
    const QStringList &lines, int &line, QString &provider, QString &product, QString &path) const
{
    if (!holds(lines[line], QStringLiteral("<Provider"))) {
        return false;
    }
    provider = ScanValue(lines[line], QStringLiteral("<Provider"));
    if (provider.isEmpty()) {
        return false;
    }
    product = ScanValue(lineAt(lines, ++line));
    line += 3;
    path = ScanValue(lineAt(lines, line));
    return !path.isEmpty();
}

void RouteWalk::addReference(QString path,
                             const QString &provider,
                             const QString &product,
                             const QString &label,
                             ui::ListBox &report)
{
    path = left(path, int(path.size()) - 3);
    const QString folder = m_session.RailSimPath + QStringLiteral("\\Assets\\") + provider
        + QLatin1Char('\\') + product + QLatin1Char('\\');
    QString fullName = folder + path + QStringLiteral("bin");
    if (!blueprintExists(fullName)) {
        const QString row = QStringLiteral("   ") + label;
        if (!FixEntities(path)) {
            report.addItem(fullName + row);
            return;
        }
        fullName = folder + path + QStringLiteral("bin");
        if (blueprintExists(fullName)) {
            // a name that needed mending is neither reported nor listed
            return;
        }
        report.addItem(fullName + row);
    }
    ++shapeCount;
    growRows(ShapeList, shapeCount, 500);
    ShapeList[shapeCount] = fullName;
}

void RouteWalk::CheckShapeFiles(ui::ListBox &shapes)
{
    core::silently([&] {
        // A shape without a geometry of its own reads the one before it again.
        QString geometry;
        const int total = shapes.listCount();
        for (int row = 0; row < shapes.listCount(); ++row) {
            if (m_session.AbortRequested) {
                return;
            }
            shapes.setSelected(row, true);
            showProgress(QStringLiteral("(Shapes)"), row + 1, total);
            checkShape(shapes.list(row), geometry);
            m_session.host.yield();
        }
    });
}

void RouteWalk::checkShape(const QString &shape, QString &geometry)
{
    core::Services &services = m_session.services;
    QString &report = m_session.ReportText;
    if (!services.FileExists(shape)) {
        report += QStringLiteral("Shape file missing:-  ") + shape + lineBreak;
        return;
    }
    const QString xmlPath = workFile(fileNameOf(shape)) + QStringLiteral("xml");
    core::ConverterBridge(m_session).toXml(shape, xmlPath);
    const QString text = services.ReadFile(xmlPath);
    const QString assets = m_session.RailSimPath + QStringLiteral("\\Assets\\");
    if (instr(1, text, QStringLiteral("<GeometryID"), blind) > 0) {
        int pos = 1;
        GetTagValue(text, pos, QStringLiteral("GeometryID"), geometry);
        const int bracket = instr(1, geometry, QStringLiteral("["));
        if (bracket > 0) {
            geometry = assets + left(geometry, bracket - 1) + mid(geometry, bracket + 4)
                + QStringLiteral(".GeoPcDx");
            if (!services.FileExists(geometry)) {
                report += QStringLiteral("GeoPcDx file missing:-  ") + geometry + lineBreak;
            }
        }
        if (instr(1, text, QStringLiteral("<AnimationName"), blind) > 0) {
            QString animation;
            pos = 1;
            GetTagValue(text, pos, QStringLiteral("AnimationName"), animation);
            const QString fullName = assets + animation + QStringLiteral(".ban");
            if (!services.FileExists(fullName)) {
                report += QStringLiteral("Animation file missing:-  ") + fullName + lineBreak;
            }
        }
        const int script = instr(1, text, QStringLiteral("<_script"), blind);
        if (script > 0 && instr(script, text, QStringLiteral("<Name"), blind) > 0) {
            QString name;
            pos = script;
            GetTagValue(text, pos, QStringLiteral("Name"), name);
            const QString fullName = assets + name + QStringLiteral(".lua");
            if (!services.FileExists(fullName)) {
                report += QStringLiteral("Script file missing:-  ") + fullName + lineBreak;
            }
        }
    }
    services.Kill(xmlPath);
    if (!geometry.isEmpty()) {
        readTextures(geometry);
    }
}

void RouteWalk::readTextures(const QString &geometry)
{
    core::Services &services = m_session.services;
    const QString base = left(geometry, instrRev(geometry, QStringLiteral("\\")));
    const QString stem = workFile(fileNameOf(geometry));
    services.FileCopy(geometry, stem + QStringLiteral("bin"));
    core::ConverterBridge(m_session).toXml(stem + QStringLiteral("bin"),
                                           stem + QStringLiteral("xml"));
    const QStringList lines = services.ReadLines(stem + QStringLiteral("xml"));
    for (int line = 0; line < lines.size(); ++line) {
        if (holds(lines[line], QStringLiteral("<d:blob"))) {
            break;
        }
        if (!holds(lines[line], QStringLiteral("<TextureByName"))) {
            continue;
        }
        QString prefix;
        for (;;) {
            const QString &entry = lineAt(lines, ++line);
            if (holds(entry, QStringLiteral("</TextureByName"))
                || !holds(entry, QStringLiteral("<e"))) {
                break;
            }
            const TexturePlace place =
                placeTexture(dropMarker(ScanValue(entry)), base, geometry, prefix);
            prefix = place.prefix;
            const QString texture = place.prefix + place.name;
            if (!services.FileExists(texture + QStringLiteral(".TgPcDx"))) {
                m_session.ReportText += QStringLiteral("Texture file missing:-  ") + texture
                    + QStringLiteral(".TgPcDx") + lineBreak;
            }
            ++textureCount;
            growRows(TextureList, textureCount, 500);
            TextureList[textureCount] = texture + QStringLiteral("*.TgPcDx");
        }
    }
    services.Kill(stem + QStringLiteral("xml"));
    services.Kill(stem + QStringLiteral("bin"));
}

bool RouteWalk::blueprintExists(const QString &fullName)
{
    const auto known = m_known.constFind(fullName);
    if (known != m_known.constEnd()) {
        return *known;
    }
    const bool exists = m_session.services.FileExists(fullName);
    m_known.insert(fullName, exists);
    return exists;
}

QString RouteWalk::workFile(const QString &fileName) const
{
    return m_session.appFolder + QStringLiteral("\\TempFiles\\")
        + left(fileName, instrRev(fileName, QStringLiteral(".")));
}

void RouteWalk::showProgress(const QString &what, int done, int total) const
{
    if (m_progress) {
        m_progress(what + QLatin1Char(' ') + QString::number(done) + QStringLiteral(" of ")
                   + QString::number(total));
    }
}

} // namespace routes
