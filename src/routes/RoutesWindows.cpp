#include "routes/RoutesWindows.h"

#include "routes/frmDelRoute.h"

#include <memory>

namespace routes
{

void defineRoutesWindows(core::Session &session, ui::Forms &forms)
{
    forms.define<frmDelRoute>(
        [&session, &forms] { return std::make_unique<frmDelRoute>(session, forms); });
}

} // namespace routes
