#include "workbench/Workbench.h"

#include "authoring/AuthoringWindows.h"
#include "routes/RoutesWindows.h"
#include "textures/TextureWindows.h"
#include "workbench/frmEditor.h"
#include "xml/XmlWindows.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace workbench
{

Workbench::Workbench(ui::Host &host, const Folders &folders, const QString &commandLineFile)
    : m_paths(QDir(folders.appFolder).filePath(u"drive_c"_s))
    , m_services(m_paths, host, folders.systemFolder)
    , m_session(m_services, host, m_paths)
    , m_forms(host)
{
    m_session.appFolder = m_paths.toWindows(folders.appFolder);
    m_session.systemFolder = m_paths.toWindows(folders.systemFolder);
    m_session.commandLine = commandLineFile;
    m_paths.changeDir(m_session.appFolder);
    defineWindows();
}

void Workbench::defineWindows()
{
    m_forms.define<frmEditor>([this] { return std::make_unique<frmEditor>(m_session, m_forms); });
    xml::defineXmlWindows(m_session, m_forms);
    textures::defineTextureWindows(m_session, m_forms);
    routes::defineRoutesWindows(m_session, m_forms);
    authoring::defineAuthoringWindows(m_session, m_forms);
}

frmEditor &Workbench::start()
{
    return m_forms.show<frmEditor>();
}

} // namespace workbench
