#pragma once
// Splits and joins command lines by the rules of Windows programs (quotes, "" inside quotes, and
// backslashes before a quote).

#include <QString>
#include <QStringList>

namespace platform
{

class CommandLine
{
public:
    // The first word (the program) is split as the system does: up to the closing quote or the
    // first blank, with no escapes; the arguments as the C runtime splits them.
    static QStringList split(const QString &commandLine);
    // Quotes each argument that needs it, so that split(join(args)) == args.
    static QString join(const QStringList &arguments);
    static QString quote(const QString &argument);
};

} // namespace platform
