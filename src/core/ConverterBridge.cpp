#include "core/ConverterBridge.h"

#include "core/ReplaceBackup.h"
#include "core/Services.h"
#include "core/TextPrimitives.h"
#include "ui/Host.h"

namespace core
{

namespace
{

const QChar quote(u'"');

} // namespace

ConverterBridge::ConverterBridge(Session &session)
    : m_session(session)
{
}

WorkNames ConverterBridge::workNames(const QString &workFolder, const QString &sourcePath)
{
    const int slash = instrRev(sourcePath, QStringLiteral("\\"), -1, Qt::CaseInsensitive);
    const QString fileName = mid(sourcePath, slash + 1);
    const int dot = instrRev(fileName, QStringLiteral("."));
    QString folder = workFolder;
    if (!folder.endsWith(u'\\')) {
        folder += u'\\';
    }
    return WorkNames{folder + left(fileName, dot), mid(fileName, dot + 1)};
}

QString ConverterBridge::toXmlCommand(const QString &binPath, const QString &xmlPath)
{
    return QStringLiteral("serz.exe ") + quote + binPath + quote + QStringLiteral(" xml:") + quote
        + xmlPath + quote;
}

QString
ConverterBridge::toBinCommand(const QString &xmlPath, const QString &binPath, bool slashForm)
{
    return QStringLiteral("serz.exe ") + quote + xmlPath + quote
        + (slashForm ? QStringLiteral(" /bin:") : QStringLiteral(" bin:")) + quote + binPath
        + quote;
}

void ConverterBridge::run(const QString &commandLine) const
{
    Services &services = m_session.services;
    services.ChDrive(m_session.appFolder.left(2));
    services.ChDir(m_session.appFolder);
    services.ShellAndWait(commandLine, true, true);
}

void ConverterBridge::toXml(const QString &binPath, const QString &xmlPath) const
{
    run(toXmlCommand(binPath, xmlPath));
}

void ConverterBridge::toBin(const QString &xmlPath, const QString &binPath, bool slashForm) const
{
    run(toBinCommand(xmlPath, binPath, slashForm));
}

QString ConverterBridge::backup(const QString &target) const
{
    return ReplaceBackup(m_session.paths).keep(target).orRaise();
}

void ConverterBridge::putBack(const WorkNames &work,
                              const QString &target,
                              const std::function<void(const QString &)> &status) const
{
    Services &services = m_session.services;
    ui::Host &host = m_session.host;
    auto show = [&](const QString &text) {
        if (status) {
            status(text);
        }
        host.yield();
    };
    if (work.ext.compare(QStringLiteral("bin"), Qt::CaseInsensitive) != 0) {
        if (services.FileExists(work.stem + work.ext)) {
            services.Kill(work.stem + work.ext);
        }
        services.Name(work.stem + QStringLiteral("bin"), work.stem + work.ext);
        host.yield();
    }
    show(QStringLiteral("Making Backup of strBin"));
    backup(target);
    host.yield();
    show(QStringLiteral("Copying new .bin file"));
    services.FileCopy(work.stem + work.ext, target);
}

} // namespace core
