// The main window's commands that open the route and scenario tools.

#include "routes/frmDelRoute.h"
#include "workbench/frmEditor.h"

namespace workbench
{

void frmEditor::mnuDelRoute_Click()
{
    m_session.DelRouteForPack = false;
    m_session.PackScenarioMode = false;
    m_forms.show<routes::frmDelRoute>(true);
}

} // namespace workbench
