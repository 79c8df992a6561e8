#include "xml/frmAddAttribute.h"

#include "core/Session.h"
#include "ui/Forms.h"

using namespace Qt::StringLiterals;

namespace xml
{

frmAddAttribute::frmAddAttribute(core::Session &session, ui::Forms &forms)
    : Window(u"frmAddAttribute"_s)
    , m_session(session)
    , m_forms(forms)
{
    setCaption(u"Add Attribute"_s);
    setGeometry(0, 0, 4800, 2400);
    add(u"Label1"_s, Label1).setCaption(u"Name"_s);
    add(u"txtName"_s, txtName);
    add(u"Label2"_s, Label2).setCaption(u"Value"_s);
    add(u"txtValue"_s, txtValue);
    add(u"cmdOK"_s, cmdOK).setCaption(u"OK"_s);
    add(u"cmdCancel"_s, cmdCancel).setCaption(u"Cancel"_s);
    cmdOK.onClick([this] { cmdOK_Click(); });
    cmdCancel.onClick([this] { cmdCancel_Click(); });
}

void frmAddAttribute::cmdOK_Click()
{
    ui::Host &host = m_session.host;
    const QString name = txtName.text();
    if (name.contains(QLatin1Char(' '))) {
        host.msgBox(u"Attribute names are not allowed spaces in them."_s,
                    ui::Buttons::OK,
                    ui::Icon::None,
                    u"Invalid Character"_s);
        return;
    }
    if (name.isEmpty()) {
        host.msgBox(
            u"Please enter a name. The value box may be left blank,\r\nhowever, the name must be supplied."_s,
            ui::Buttons::OK,
            ui::Icon::None,
            u"Name missing"_s);
        return;
    }
    const Accepted accepted = std::move(m_accepted);
    const QString value = txtValue.text();
    m_forms.unload(*this);
    if (accepted) {
        accepted(name, value);
    }
}

void frmAddAttribute::cmdCancel_Click()
{
    m_forms.unload(*this);
}

} // namespace xml
