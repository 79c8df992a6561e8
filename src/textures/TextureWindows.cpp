#include "textures/TextureWindows.h"

#include "textures/frmGFX.h"

#include <memory>

namespace textures
{

void defineTextureWindows(core::Session &session, ui::Forms &forms)
{
    forms.define<frmGFX>([&session, &forms] { return std::make_unique<frmGFX>(session, forms); });
}

} // namespace textures
