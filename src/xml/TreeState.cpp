#include "xml/TreeState.h"

#include "xml/TreeEditor.h"
#include "xml/TreeSearch.h"

namespace xml
{

TreeState::TreeState()
    : Document(std::make_unique<clsXMLParse>())
{
}

TreeState::~TreeState() = default;

void TreeState::newDocument()
{
    SelectedNode = nullptr;
    Document = std::make_unique<clsXMLParse>();
}

} // namespace xml
