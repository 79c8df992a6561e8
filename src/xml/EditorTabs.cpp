#include "xml/EditorTabs.h"

using namespace Qt::StringLiterals;

namespace xml
{

EditorTabView editorTabView(int page, bool defaultEditorIsTree, int editorChoice)
{
    if (page == 0) {
        const bool treeCounts = editorChoice == 2 || (editorChoice == 0 && defaultEditorIsTree);
        if (treeCounts) {
            return {
                u"Warning: You are using XML editor, any changes you make on this page will not be saved"_s,
                true,
                true};
        }
        return {u"Brakevan Editor"_s, false, false};
    }
    const bool textCounts = editorChoice == 1 || (editorChoice == 0 && !defaultEditorIsTree);
    if (textCounts) {
        return {
            u"Warning: You are using Brakevan editor, any changes you make on this page will not be saved"_s,
            true,
            false};
    }
    return {u"XML Editor"_s, false, true};
}

} // namespace xml
