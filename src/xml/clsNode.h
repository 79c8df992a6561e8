#pragma once
// One element of the tree editor's document: its name without prefix, its attributes, its text,
// its children, a back link to its parent, and the key ("nod" plus a number) that the screen tree
// shares with it.

#include "xml/clsNodeAttributes.h"
#include "xml/clsNodes.h"

#include <QString>

#include <memory>

namespace xml
{

class clsNode
{
public:
    clsNode() = default;
    clsNode(const clsNode &) = delete;
    clsNode &operator=(const clsNode &) = delete;
    ~clsNode() = default;

    clsNodes ChildNodes;
    clsNode *ParentNode = nullptr; // not owned; the anchor above the first element has none
    clsNodeAttributes NodeAttributes;
    QString NodeCharacters;
    QString NodeName;
    QString NodeKey;
};

} // namespace xml
