#include "core/platform/BatchLine.h"

#include <initializer_list>

namespace platform
{

namespace
{

bool isBlank(QChar c)
{
    return c == u' ' || c == u'\t';
}

// The file name after a '>': blanks skipped, quotes removed; i ends after it.
QString redirectionTarget(const QString &text, qsizetype &i)
{
    while (i < text.size() && isBlank(text[i])) {
        ++i;
    }
    QString target;
    bool quoted = false;
    for (; i < text.size() && (quoted || !isBlank(text[i])); ++i) {
        if (text[i] == u'"') {
            quoted = !quoted;
        } else {
            target += text[i];
        }
    }
    return target;
}

// A stream number written just before the '>' ("2>nul") belongs to the redirection.
QChar takeStreamNumber(QString &kept)
{
    const bool numbered = !kept.isEmpty() && (kept.back() == u'1' || kept.back() == u'2')
        && (kept.size() == 1 || isBlank(kept[kept.size() - 2]));
    if (!numbered) {
        return u'1';
    }
    const QChar stream = kept.back();
    kept.chop(1);
    return stream;
}

// Takes ">file", ">>file", "2>nul", "2>&1" out of the line (outside quotes).
QString withoutRedirection(const QString &text, BatchLine &line)
{
    QString kept;
    bool quoted = false;
    qsizetype i = 0;
    while (i < text.size()) {
        const QChar c = text[i];
        if (c == u'"') {
            quoted = !quoted;
        }
        if (c != u'>' || quoted) {
            kept += c;
            ++i;
            continue;
        }
        const QChar stream = takeStreamNumber(kept);
        ++i;
        const bool append = i < text.size() && text[i] == u'>';
        if (append) {
            ++i;
        }
        const QString target = redirectionTarget(text, i);
        if (stream == u'1') {
            line.redirectTo = target;
            line.append = append;
        }
    }
    return kept;
}

QStringList words(const QString &text)
{
    QStringList found;
    QString word;
    bool quoted = false;
    bool started = false;
    for (const QChar c : text) {
        if (c == u'"') {
            quoted = !quoted;
            started = true;
            continue;
        }
        if (isBlank(c) && !quoted) {
            if (started) {
                found << word;
            }
            word.clear();
            started = false;
            continue;
        }
        word += c;
        started = true;
    }
    if (started) {
        found << word;
    }
    return found;
}

} // namespace

BatchLine BatchLine::parse(const QString &text)
{
    BatchLine line;
    // Leading blanks go; trailing ones stay, as "echo" writes them.
    QString command = withoutRedirection(text, line);
    while (!command.isEmpty() && isBlank(command.front())) {
        command.remove(0, 1);
    }
    qsizetype i = 0;
    bool quoted = false;
    while (i < command.size() && (quoted || (!isBlank(command[i]) && command[i] != u'/'))) {
        if (command[i] == u'"') {
            quoted = !quoted;
        }
        ++i;
    }
    // "echo." and "cd.." or "cd\": the built-in's name ends before the dot or backslash.
    for (const QStringView builtin : std::initializer_list<QStringView>{u"echo", u"cd", u"chdir"}) {
        const qsizetype n = builtin.size();
        if (i > n && command.startsWith(builtin, Qt::CaseInsensitive)
            && (command[n] == u'.' || command[n] == u'\\')) {
            i = n;
            break;
        }
    }
    line.verb = command.left(i);
    line.verb.remove(u'"');
    line.rest = command.mid(i);
    for (const QString &word : words(line.rest)) {
        // Switches may be run together: "/E/S".
        if (word.startsWith(u'/') && word.size() > 1) {
            for (const QString &part : word.split(u'/', Qt::SkipEmptyParts)) {
                line.switches << part.toUpper();
            }
        } else {
            line.arguments << word;
        }
    }
    return line;
}

} // namespace platform
