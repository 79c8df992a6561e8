#pragma once

// Tells the program's window list how to make the texture windows: the picture viewer.

namespace core
{
struct Session;
}

namespace ui
{
class Forms;
}

namespace textures
{

void defineTextureWindows(core::Session &session, ui::Forms &forms);

} // namespace textures
