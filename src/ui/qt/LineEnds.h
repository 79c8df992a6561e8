#pragma once
// Text boxes in the program hold lines ended by CR LF; Qt's editors hold bare line feeds. These
// turn texts and positions from one form into the other.

#include <QString>

namespace uiqt
{

QString toEditorText(const QString &programText);
QString toProgramText(const QString &editorText);
// A position in the program's text as a position in the editor's, and back.
int toEditorPos(const QString &programText, int programPos);
int toProgramPos(const QString &programText, int editorPos);

} // namespace uiqt
