#pragma once
// The tree editor's document as XML text: a declaration line, then each element at the column of
// its depth, with its attributes in order and its text right after its opening tag. Nothing is
// escaped: names, values and text are written as they stand.

#include <QString>

namespace xml
{

class clsNode;
class ColumnText;

// The whole file for the document below the anchor; with no element, the declaration alone.
QString treeText(const clsNode &anchor);

// One element and everything below it, starting at the given column.
void writeNode(ColumnText &out, const clsNode &node, int depth);

} // namespace xml
