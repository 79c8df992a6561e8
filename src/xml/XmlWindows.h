#pragma once

// Tells the program's windows how to make the XML documents' dialogs.

namespace core
{
struct Session;
}

namespace ui
{
class Forms;
}

namespace xml
{

void defineXmlWindows(core::Session &session, ui::Forms &forms);

} // namespace xml
