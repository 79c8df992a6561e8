#pragma once
// How the scripted host writes what happened: quoting of texts and the names of icons and answers.

#include "ui/Host.h"

#include <QString>

namespace ui
{

// A text in double quotes, with line breaks written \n, tabs \t, quotes \" and backslashes \\.
QString quoted(const QString &text);
QString iconName(Icon icon);
QString answerName(Answer answer);
// "Yes", "no", "OK"... as a macro writes them; false when the word names no answer.
bool parseAnswer(const QString &word, Answer &answer);

} // namespace ui
