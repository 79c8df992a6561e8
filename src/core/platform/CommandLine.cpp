#include "core/platform/CommandLine.h"

namespace platform
{

namespace
{

bool isBlank(QChar c)
{
    return c == u' ' || c == u'\t';
}

// The program name: up to the closing quote, or to the first blank; no escapes.
QString programName(const QString &line, qsizetype &i)
{
    QString name;
    bool quoted = false;
    for (; i < line.size(); ++i) {
        const QChar c = line[i];
        if (c == u'"') {
            quoted = !quoted;
        } else if (isBlank(c) && !quoted) {
            break;
        } else {
            name += c;
        }
    }
    return name;
}

// One argument by the C runtime's rules: 2n backslashes and a quote give n backslashes and toggle
// quoting; 2n+1 give n and a literal quote; "" inside quotes is a literal quote.
QString argument(const QString &line, qsizetype &i)
{
    QString arg;
    bool quoted = false;
    while (i < line.size()) {
        const QChar c = line[i];
        if (c == u'\\') {
            qsizetype n = 0;
            while (i < line.size() && line[i] == u'\\') {
                ++n;
                ++i;
            }
            if (i < line.size() && line[i] == u'"') {
                arg += QString(n / 2, u'\\');
                if (n % 2 == 1) {
                    arg += u'"';
                    ++i;
                }
            } else {
                arg += QString(n, u'\\');
            }
            continue;
        }
        if (c == u'"') {
            if (quoted && i + 1 < line.size() && line[i + 1] == u'"') {
                arg += u'"';
                i += 2;
                continue;
            }
            quoted = !quoted;
            ++i;
            continue;
        }
        if (isBlank(c) && !quoted) {
            break;
        }
        arg += c;
        ++i;
    }
    return arg;
}

} // namespace

QStringList CommandLine::split(const QString &commandLine)
{
    QStringList words;
    qsizetype i = 0;
    while (i < commandLine.size() && isBlank(commandLine[i])) {
        ++i;
    }
    if (i == commandLine.size()) {
        return words;
    }
    words << programName(commandLine, i);
    while (true) {
        while (i < commandLine.size() && isBlank(commandLine[i])) {
            ++i;
        }
        if (i >= commandLine.size()) {
            break;
        }
        words << argument(commandLine, i);
    }
    return words;
}

QString CommandLine::quote(const QString &argument)
{
    const bool plain = !argument.isEmpty() && !argument.contains(u' ') && !argument.contains(u'\t')
        && !argument.contains(u'"');
    if (plain) {
        return argument;
    }
    QString quoted = QStringLiteral("\"");
    qsizetype backslashes = 0;
    for (const QChar c : argument) {
        if (c == u'\\') {
            ++backslashes;
            continue;
        }
        if (c == u'"') {
            quoted += QString(2 * backslashes + 1, u'\\');
        } else {
            quoted += QString(backslashes, u'\\');
        }
        backslashes = 0;
        quoted += c;
    }
    quoted += QString(2 * backslashes, u'\\');
    quoted += u'"';
    return quoted;
}

QString CommandLine::join(const QStringList &arguments)
{
    QStringList parts;
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        // The program name takes no escapes: quotes around it are enough.
        const QString &a = arguments[i];
        if (i == 0) {
            parts << (a.contains(u' ') || a.contains(u'\t') || a.isEmpty()
                          ? QStringLiteral("\"") + a + QStringLiteral("\"")
                          : a);
        } else {
            parts << quote(a);
        }
    }
    return parts.join(u' ');
}

} // namespace platform
