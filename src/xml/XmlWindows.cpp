#include "xml/XmlWindows.h"

#include "ui/Forms.h"
#include "xml/dlgFind.h"
#include "xml/dlgSearch.h"
#include "xml/frmAddAttribute.h"

namespace xml
{

void defineXmlWindows(core::Session &session, ui::Forms &forms)
{
    forms.define<dlgSearch>([&forms] { return std::make_unique<dlgSearch>(forms); });
    forms.define<dlgFind>([&forms] { return std::make_unique<dlgFind>(forms); });
    forms.define<frmAddAttribute>(
        [&session, &forms] { return std::make_unique<frmAddAttribute>(session, forms); });
}

} // namespace xml
