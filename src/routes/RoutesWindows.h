#pragma once

// Tells the program's window list how to make the route and scenario windows.

namespace core
{
struct Session;
}

namespace ui
{
class Forms;
}

namespace routes
{

void defineRoutesWindows(core::Session &session, ui::Forms &forms);

} // namespace routes
