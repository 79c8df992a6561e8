#pragma once
// One attribute of an element in the tree editor's document: its name as written (with any
// prefix) and its value.

#include <QString>

namespace xml
{

class clsNodeAttribute
{
public:
    QString AttribName;
    QString AttribValue;
};

} // namespace xml
