#include "Installation.h"

#include "authoring/AuthoringWindows.h"
#include "routes/RoutesWindows.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>

#include <stdexcept>

namespace routes::testing
{

namespace
{

const QString converter = QStringLiteral(BV_BIN_DIR "/serz.exe");

QString escaped(QString text)
{
    text.replace(QLatin1Char('&'), QStringLiteral("&amp;"));
    text.replace(QLatin1Char('<'), QStringLiteral("&lt;"));
    text.replace(QLatin1Char('>'), QStringLiteral("&gt;"));
    return text;
}

// Writes the converter's layout: one element a line, a tab a level, CR LF line ends.
class XmlLines
{
public:
    explicit XmlLines(const QString &root)
    {
        m_text = QStringLiteral("<?xml version=\"1.0\" encoding=\"utf-8\"?>\r\n<") + root
            + QStringLiteral(
                     " xmlns:d=\"http://www.kuju.com/TnT/2003/Delta\" d:version=\"1.0\">\r\n");
        m_open.append(root);
    }

    XmlLines &open(const QString &name)
    {
        line(QLatin1Char('<') + name + QLatin1Char('>'));
        m_open.append(name);
        return *this;
    }

    XmlLines &close()
    {
        const QString name = m_open.takeLast();
        line(QStringLiteral("</") + name + QLatin1Char('>'));
        return *this;
    }

    XmlLines &value(const QString &name,
                    const QString &text,
                    const QString &type = QStringLiteral("cDeltaString"))
    {
        line(QLatin1Char('<') + name + QStringLiteral(" d:type=\"") + type + QStringLiteral("\">")
             + escaped(text) + QStringLiteral("</") + name + QLatin1Char('>'));
        return *this;
    }

    XmlLines &reference(const BlueprintRef &ref)
    {
        open(QStringLiteral("iBlueprintLibrary-cAbsoluteBlueprintID"));
        open(QStringLiteral("BlueprintSetID"))
            .open(QStringLiteral("iBlueprintLibrary-cBlueprintSetID"));
        value(QStringLiteral("Provider"), ref.provider)
            .value(QStringLiteral("Product"), ref.product);
        close().close();
        value(QStringLiteral("BlueprintID"), ref.path);
        return close();
    }

    XmlLines &entry(const QString &element, const CatalogueEntry &entry)
    {
        open(element).open(QStringLiteral("ID")).open(QStringLiteral("cGUID"));
        value(QStringLiteral("DevString"), entry.folder).close().close();
        open(QStringLiteral("DisplayName"))
            .open(QStringLiteral("Localisation-cUserLocalisedString"));
        const QStringList languages{QStringLiteral("English"),
                                    QStringLiteral("French"),
                                    QStringLiteral("Italian"),
                                    QStringLiteral("German"),
                                    QStringLiteral("Spanish")};
        for (int i = 0; i < languages.size(); ++i) {
            value(languages[i], entry.names.value(i));
        }
        return close().close().close();
    }

    QString text()
    {
        while (m_open.size() > 1) {
            close();
        }
        return m_text + QStringLiteral("</") + m_open.first() + QStringLiteral(">\r\n");
    }

private:
    void line(const QString &content)
    {
        m_text += QString(m_open.size(), QLatin1Char('\t')) + content + QStringLiteral("\r\n");
    }

    QString m_text;
    QStringList m_open;
};

} // namespace

Installation::Installation()
{
    makeFolder(QStringLiteral("game/Content/Routes"));
    makeFolder(QStringLiteral("app/TempFiles"));
    m_services = std::make_unique<core::Services>(m_paths, scripted, QStringLiteral(BV_BIN_DIR));
    m_session = std::make_unique<core::Session>(*m_services, scripted, m_paths);
    m_session->appFolder = platform::toWindowsPath(m_root.path() + QStringLiteral("/app"));
    m_session->systemFolder = platform::toWindowsPath(QStringLiteral(BV_BIN_DIR));
    m_session->RailSimPath = win(QString());
}

void Installation::defineWindows()
{
    routes::defineRoutesWindows(session(), forms);
    authoring::defineAuthoringWindows(session(), forms);
}

bool Installation::converterFound() const
{
    return QFileInfo::exists(converter);
}

QString Installation::host(const QString &rel) const
{
    return m_root.path() + QStringLiteral("/game/")
        + QString(rel).replace(QLatin1Char('\\'), QLatin1Char('/'));
}

QString Installation::win(const QString &rel) const
{
    const QString root = platform::toWindowsPath(m_root.path() + QStringLiteral("/game"));
    return rel.isEmpty()
        ? root
        : root + QLatin1Char('\\') + QString(rel).replace(QLatin1Char('/'), QLatin1Char('\\'));
}

void Installation::writeText(const QString &rel, const QByteArray &bytes) const
{
    const QString path = host(rel);
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
        throw std::runtime_error("cannot write fixture file");
    }
}

void Installation::makeFolder(const QString &rel) const
{
    QDir().mkpath(rel.startsWith(QStringLiteral("app")) ? m_root.path() + QLatin1Char('/') + rel
                                                        : host(rel));
}

bool Installation::exists(const QString &rel) const
{
    return QFileInfo::exists(host(rel));
}

void Installation::writeBinary(const QString &rel, const QString &xml) const
{
    const QString target = host(rel);
    const QString source = target + QStringLiteral(".source.xml");
    writeText(rel + QStringLiteral(".source.xml"), xml.toUtf8());
    QProcess process;
    process.start(converter, {source, QStringLiteral("bin:") + target});
    if (!process.waitForFinished(10000) || process.exitCode() != 0) {
        throw std::runtime_error("the converter refused a fixture file");
    }
    QFile::remove(source);
}

QString Installation::routesXml(const QList<CatalogueEntry> &routes)
{
    XmlLines xml(QStringLiteral("cRouteDatabase"));
    xml.open(QStringLiteral("Routes"));
    for (const CatalogueEntry &route : routes) {
        xml.entry(QStringLiteral("cRouteProperties"), route);
    }
    return xml.text();
}

QString Installation::scenariosXml(const QList<CatalogueEntry> &scenarios)
{
    XmlLines xml(QStringLiteral("cScenarioDatabase"));
    xml.open(QStringLiteral("Scenarios"));
    for (const CatalogueEntry &scenario : scenarios) {
        xml.entry(QStringLiteral("cScenarioProperties"), scenario);
    }
    return xml.text();
}

QString Installation::tileXml(const QList<BlueprintRef> &refs)
{
    XmlLines xml(QStringLiteral("cRecordSet"));
    xml.open(QStringLiteral("Record"));
    for (const BlueprintRef &ref : refs) {
        xml.open(QStringLiteral("cDynamicEntity"))
            .open(QStringLiteral("BlueprintID"))
            .reference(ref);
        xml.close().close();
    }
    return xml.text();
}

QString
Installation::shapeXml(const QString &geometry, const QString &animation, const QString &script)
{
    XmlLines xml(QStringLiteral("cBlueprintLoader"));
    xml.open(QStringLiteral("Blueprint")).open(QStringLiteral("cSceneryBlueprint"));
    xml.open(QStringLiteral("RenderComponent")).open(QStringLiteral("cSceneryRenderBlueprint"));
    xml.value(QStringLiteral("GeometryID"), geometry);
    if (!animation.isEmpty()) {
        xml.open(QStringLiteral("AnimSet"))
            .value(QStringLiteral("AnimationName"), animation)
            .close();
    }
    xml.close().close();
    if (!script.isEmpty()) {
        xml.open(QStringLiteral("_script")).value(QStringLiteral("Name"), script).close();
    }
    return xml.text();
}

QString Installation::geometryXml(const QStringList &textures)
{
    XmlLines xml(QStringLiteral("cHcRModel"));
    xml.open(QStringLiteral("Materials")).open(QStringLiteral("cHcRMaterial"));
    xml.open(QStringLiteral("TextureByName"));
    for (const QString &texture : textures) {
        xml.value(QStringLiteral("e"), texture);
    }
    xml.close().close().close();
    xml.value(QStringLiteral("Name"), QStringLiteral("mesh"));
    return xml.text();
}

void Installation::addRoute(const QString &folder,
                            const QString &name,
                            const QList<CatalogueEntry> &scenarios) const
{
    const QString route = QStringLiteral("Content/Routes/") + folder;
    makeFolder(route);
    writeBinary(route + QStringLiteral("/Scenarios.bin"), scenariosXml(scenarios));
    writeText(QStringLiteral("Content/Routes.xml"), routesXml({{folder, {name}}}).toUtf8());
}

BlueprintRef Installation::addShape(const QString &rel, const QStringList &textures) const
{
    // rel: "Provider/Product/path/name" without an extension.
    const QStringList parts = rel.split(QLatin1Char('/'));
    const QString inProduct = parts.mid(2).join(QLatin1Char('\\'));
    const int cut = int(inProduct.lastIndexOf(QLatin1Char('\\'))) + 1;
    const QString geometry = parts[0] + QLatin1Char('\\') + parts[1] + QLatin1Char('\\')
        + inProduct.left(cut) + QStringLiteral("[00]") + inProduct.mid(cut);
    writeBinary(QStringLiteral("Assets/") + rel + QStringLiteral(".bin"), shapeXml(geometry));
    writeBinary(QStringLiteral("Assets/") + rel + QStringLiteral(".GeoPcDx"),
                geometryXml(textures));
    const QString folder =
        QStringLiteral("Assets/") + rel.left(rel.lastIndexOf(QLatin1Char('/')) + 1);
    for (const QString &texture : textures) {
        writeText(folder + QString(texture).remove(QStringLiteral("[00]"))
                      + QStringLiteral(".TgPcDx"),
                  "tex");
    }
    return BlueprintRef{parts[0], parts[1], inProduct + QStringLiteral(".xml")};
}

} // namespace routes::testing
