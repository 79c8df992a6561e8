#pragma once

// Tells the program's window list how to make the authoring windows: reports, print preview and
// the route picker.

namespace core
{
struct Session;
}

namespace ui
{
class Forms;
}

namespace authoring
{

void defineAuthoringWindows(core::Session &session, ui::Forms &forms);

} // namespace authoring
