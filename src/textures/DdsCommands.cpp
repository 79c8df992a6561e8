#include "textures/DdsCommands.h"

#include "core/ConverterBridge.h"
#include "core/Services.h"
#include "core/TextPrimitives.h"
#include "textures/DdsExport.h"
#include "textures/DdsImport.h"
#include "textures/HeaderFile.h"
#include "ui/Host.h"

namespace textures
{

namespace
{

const QString crlf = QStringLiteral("\r\n");

} // namespace

DdsCommands::DdsCommands(core::Session &session)
    : m_session(session)
{
}

QString DdsCommands::tempDds() const
{
    return m_session.appFolder + QStringLiteral("\\TempDDS");
}

bool DdsCommands::isTexturePath(const QString &path)
{
    return path.right(6).compare(QStringLiteral("TgPcDx"), Qt::CaseInsensitive) == 0;
}

void DdsCommands::tell(const QString &text) const
{
    m_session.host.msgBox(text, ui::Buttons::OK, ui::Icon::Exclamation, m_session.host.appTitle());
}

void DdsCommands::toDds(const QString &sourcePath, const QString &xml) const
{
    core::Services &services = m_session.services;
    if (!isTexturePath(sourcePath)) {
        tell(QStringLiteral("You do not appear to have opened a .TgPcDx file?"));
        return;
    }
    const QString stem = core::ConverterBridge::workNames(tempDds(), sourcePath).stem;
    const QString target = stem + QStringLiteral("dds");
    if (services.FileExists(target)) {
        services.Kill(target);
    }
    platform::Result<DdsExport> made = exportDds(xml, sourcePath);
    if (!made) {
        tell(made.error().description);
        return;
    }
    QString folder = tempDds();
    if (!services.FolderExists(folder)) {
        services.MkDir(folder);
    }
    m_session.host.yield();
    services.WriteBinary(target, made.value().dds);
    services.WriteFile(stem + QStringLiteral("dat"), headerFileText(made.value().header));
    m_session.host.setBusy(false);
    m_session.host.msgBox(
        QStringLiteral("If you wish to edit this file, then it must be saved with the following "
                       "format:-")
            + crlf + QStringLiteral("1. .DDS") + crlf + QStringLiteral("2. ")
            + made.value().format->shown + crlf + QStringLiteral("3. Number of Mip-Maps - ")
            + QString::number(made.value().levels),
        ui::Buttons::OK,
        ui::Icon::Information,
        QStringLiteral("Editing .dds files"));
}

bool DdsCommands::confirmed(const QString &ddsPath, const QString &originalPath) const
{
    const ui::Answer answer = m_session.host.msgBox(
        QStringLiteral("This option will convert your modified file ") + ddsPath + crlf
            + QStringLiteral("to ") + originalPath + crlf
            + QStringLiteral("and create a backup of the original file. Continue?"),
        ui::Buttons::YesNo,
        ui::Icon::Exclamation,
        m_session.host.appTitle());
    return answer == ui::Answer::Yes;
}

// The header file kept beside the .dds; nothing, after telling the user, when it is missing or
// damaged.
std::optional<HeaderFile> DdsCommands::headerFile(const QString &stem) const
{
    const QString path = stem + QStringLiteral("dat");
    if (!m_session.services.FileExists(path)) {
        tell(QStringLiteral(
            "No header file found in TempFiles for this .dds file, cannot process further."));
        return std::nullopt;
    }
    std::optional<HeaderFile> header = parseHeaderFile(m_session.services.ReadFile(path));
    if (!header) {
        tell(QStringLiteral("The header file ") + path
             + QStringLiteral(" is damaged, cannot process further. Convert the texture to .dds "
                              "again."));
    }
    return header;
}

bool DdsCommands::fromDds(const std::function<void(const QString &)> &showXml) const
{
    core::Services &services = m_session.services;
    ui::FileDialogRequest request;
    request.title = QStringLiteral("Convert .dds file");
    request.filter = QStringLiteral("DDS Files (*.dds)|*.dds");
    request.initialDir = tempDds();
    const QString ddsPath = m_session.host.fileDialog(request);
    if (ddsPath.isEmpty()) {
        return false;
    }
    const QString stem = ddsPath.left(ddsPath.size() - 3);
    const std::optional<HeaderFile> header = headerFile(stem);
    if (!header) {
        return false;
    }
    platform::Result<QString> xml = importDds(*header, services.ReadBinary(ddsPath), ddsPath);
    m_session.host.yield();
    if (!xml) {
        tell(xml.error().description);
        return false;
    }
    if (!confirmed(ddsPath, header->originalPath)) {
        return false;
    }
    const QString xmlPath = stem + QStringLiteral("xml");
    if (services.FileExists(xmlPath)) {
        services.Kill(xmlPath);
    }
    services.WriteFile(xmlPath, xml.value());
    showXml(xml.value());
    convertBack(xmlPath, header->originalPath);
    return true;
}

// Backup first, then the converter, then the rename over the original: if the converter writes
// nothing, the rename fails and the original is left as its backup.
void DdsCommands::convertBack(const QString &xmlPath, const QString &originalPath) const
{
    core::Services &services = m_session.services;
    const QString newBinary =
        core::left(originalPath, core::instrRev(originalPath, QStringLiteral(".")))
        + QStringLiteral("bin");
    core::ConverterBridge(m_session).backup(originalPath);
    m_session.host.yield();
    services.ChDrive(m_session.appFolder.left(2));
    services.ChDir(m_session.appFolder + QStringLiteral("\\Tempfiles"));
    services.ShellAndWait(
        core::ConverterBridge::toBinCommand(xmlPath, newBinary, true), true, true);
    services.Name(newBinary, originalPath);
    services.DelAll(tempDds());
    m_session.host.setBusy(false);
}

void DdsCommands::startTool(const QString &toolPath,
                            const QString &sourcePath,
                            const QString &missingText) const
{
    if (toolPath.isEmpty()) {
        m_session.host.msgBox(missingText + crlf
                                  + QStringLiteral("and select the path from the Options menu."),
                              ui::Buttons::OK,
                              ui::Icon::Information,
                              m_session.host.appTitle());
        return;
    }
    const QString dds =
        core::ConverterBridge::workNames(tempDds(), sourcePath).stem + QStringLiteral("dds");
    const QChar quote(u'"');
    m_session.services.StartDetached(quote + toolPath + quote + u' ' + quote + dds + quote);
}

} // namespace textures
