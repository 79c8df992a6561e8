#include "authoring/AuthoringWindows.h"

#include "authoring/dlgSelRoute.h"
#include "authoring/fEZPrint.h"
#include "authoring/frmReport.h"

#include <memory>

namespace authoring
{

void defineAuthoringWindows(core::Session &session, ui::Forms &forms)
{
    forms.define<frmReport>(
        [&session, &forms] { return std::make_unique<frmReport>(session, forms); });
    forms.define<fEZPrint>(
        [&session, &forms] { return std::make_unique<fEZPrint>(session, forms); });
    forms.define<dlgSelRoute>(
        [&session, &forms] { return std::make_unique<dlgSelRoute>(session, forms); });
}

} // namespace authoring
