#pragma once
// What the tree editor keeps between events: the file it reads and writes, its flags, the key
// counter, the document with its selected and copied nodes, the tree search's state, and the
// helpers that serve the tree page's controls.

#include "xml/clsXMLParse.h"

#include <QString>

#include <memory>

namespace xml
{

class TreeEditor;
class TreeSearch;

struct TreeState {
    TreeState();
    TreeState(const TreeState &) = delete;
    TreeState &operator=(const TreeState &) = delete;
    ~TreeState();

    QString TreeFile;
    bool TreeLoaded = false;
    bool TreeModified = false;
    bool TreeSynced = false;
    bool ShowingNode = false;
    int NodeCounter = 0;

    std::unique_ptr<clsXMLParse> Document;
    clsNode *SelectedNode = nullptr; // in Document; cleared whenever its node may go
    std::unique_ptr<clsNode> CopiedNode; // a copy of its own, outside the document

    // The tree page's search.
    QString TreeSearchTerm;
    int TreeSearchIndex = 1;
    bool SearchStopped = false;

    std::unique_ptr<TreeEditor> editor;
    std::unique_ptr<TreeSearch> search;

    // A new, empty document; the selection goes with the old one.
    void newDocument();
};

} // namespace xml
