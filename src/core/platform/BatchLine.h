#pragma once
// One line of a batch file taken apart as the command interpreter does: the command word, its
// arguments (quotes removed), its switches, and an output redirection.

#include <QString>
#include <QStringList>

namespace platform
{

struct BatchLine {
    QString verb; // as written: "XCopy", "cd", "C:"
    QString rest; // the text after the verb, redirection removed
    QStringList arguments; // words without their quotes, switches left out
    QStringList switches; // upper case, without the slash: "E", "S", "-Y"
    QString redirectTo; // the file of ">" or ">>"; "nul" discards
    bool append = false;

    static BatchLine parse(const QString &text);

    bool has(const QString &switchLetters) const { return switches.contains(switchLetters); }
};

} // namespace platform
