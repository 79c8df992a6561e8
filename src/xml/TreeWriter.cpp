#include "xml/TreeWriter.h"

#include "xml/ColumnText.h"
#include "xml/clsNode.h"

#include <vector>

namespace xml
{

namespace
{

QString openingTag(const clsNode &node)
{
    QString tag = QLatin1Char('<') + node.NodeName;
    for (const clsNodeAttribute &attribute : node.NodeAttributes) {
        tag += QLatin1Char(' ') + attribute.AttribName + QStringLiteral("=\"")
            + attribute.AttribValue + QLatin1Char('"');
    }
    return tag + QLatin1Char('>') + node.NodeCharacters;
}

QString closingTag(const clsNode &node)
{
    return QStringLiteral("</") + node.NodeName + QLatin1Char('>');
}

} // namespace

void writeNode(ColumnText &out, const clsNode &node, int depth)
{
    // Documents nest deeper than the stack allows recursion: keep the open elements on a list.
    struct Open {
        const clsNode *node;
        int depth;
        clsNodes::iterator next;
    };

    std::vector<Open> open;
    auto enter = [&](const clsNode &element, int at) {
        out.moveTo(at);
        out.print(openingTag(element));
        if (element.ChildNodes.Count() == 0) {
            out.print(closingTag(element));
            out.endLine();
        } else {
            open.push_back(Open{&element, at, element.ChildNodes.begin()});
        }
    };
    enter(node, depth);
    while (!open.empty()) {
        Open &top = open.back();
        if (top.next != top.node->ChildNodes.end()) {
            const clsNode &child = *top.next;
            ++top.next;
            enter(child, top.depth + 1);
            continue;
        }
        out.moveTo(top.depth);
        out.print(closingTag(*top.node));
        out.endLine();
        open.pop_back();
    }
}

QString treeText(const clsNode &anchor)
{
    ColumnText out;
    out.print(QStringLiteral("<?xml version=") + QLatin1Char('"') + QStringLiteral("1.0")
              + QLatin1Char('"') + QStringLiteral(" encoding=") + QLatin1Char('"')
              + QStringLiteral("utf-8") + QLatin1Char('"') + QStringLiteral("?>"));
    out.endLine();
    if (anchor.ChildNodes.Count() > 0) {
        writeNode(out, anchor.ChildNodes.Item(1), 1);
    }
    return out.text();
}

} // namespace xml
