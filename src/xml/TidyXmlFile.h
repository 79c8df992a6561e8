#pragma once
// The line tidy of an XML file, without a parser: each line's indent becomes tabs, anything after
// its last ">" goes, two accented letters become plain ones, and a line whose "<" and ">" do not
// pair up is reported by number (and kept).

#include <QString>

namespace core
{
struct Session;
}

namespace xml
{

// One line tidied; mismatched tells whether it holds a "<" without a ">" or the reverse.
QString tidyLine(const QString &line, bool &mismatched);

// Rewrites the file in place, line by line, with CR LF line ends; one message per mismatched line.
void TidyXmlFile(core::Session &session, const QString &path);

} // namespace xml
