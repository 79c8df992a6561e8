#include "xml/CheckRoutesXml.h"

#include "core/ConverterBridge.h"
#include "core/Services.h"
#include "core/Session.h"
#include "core/TextPrimitives.h"
#include "ui/Host.h"
#include "xml/TidyXmlFile.h"

using namespace Qt::StringLiterals;

namespace xml
{

void CheckRoutesXml(core::Session &session, const core::ConverterBridge &bridge)
{
    ui::Host &host = session.host;
    core::Services &services = session.services;
    ui::FileDialogRequest request;
    request.kind = ui::FileDialogKind::Open;
    request.title = u"Select .xml file"_s;
    request.filter = u"XML Files (*.xml)|*.xml"_s;
    const QString path = host.fileDialog(request);
    const QString name = core::mid(path, core::instrRev(path, u"\\"_s) + 1);
    const QString stem = core::left(name, core::instrRev(name, u"."_s));
    if (stem.compare(u"Routes."_s, Qt::CaseInsensitive) != 0) {
        host.msgBox(u"This does not appear to be a Routes.xml file?"_s,
                    ui::Buttons::OK,
                    ui::Icon::None,
                    host.appTitle());
        return;
    }
    const QString copy = session.tempFiles() + u"\\"_s + stem + u"xml"_s;
    services.FileCopy(path, copy);
    host.yield();
    QString text = services.ReadFile(copy);
    text = core::replaceAll(text, u"\r\n"_s, u"\n"_s);
    host.yield();
    text = core::replaceAll(text, u"\n"_s, u"\r\n"_s);
    host.yield();
    bridge.backup(path);
    services.WriteFile(path, text);
    host.yield();
    TidyXmlFile(session, path);
    host.msgBox(
        u"The .xml file has been cleaned up, however if you received any messages regarding mis-matched tags the file will require manual editing to sort the errors."_s,
        ui::Buttons::OK,
        ui::Icon::None,
        host.appTitle());
}

} // namespace xml
