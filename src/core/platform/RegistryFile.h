#pragma once
// One of Wine's registry files (system.reg, user.reg): finds a key and decodes its values into
// what a registry query returns. Malformed text gives a missing key or an error, never a crash.

#include "core/platform/Result.h"

#include <QString>
#include <QStringList>
#include <QVariant>

#include <optional>

namespace platform
{

class RegistryFile
{
public:
    // An unreadable file reads as empty: every key is missing.
    static RegistryFile load(const QString &hostPath);
    static RegistryFile fromText(const QString &text);

    // The value lines of a key (case-blind name, "\"-separated), continuations joined; nothing when
    // the key is missing.
    std::optional<QStringList> keyLines(const QString &key) const;

    // The value named (case-blind; empty: the default value "@"), decoded by its type; error 1001
    // when the key has no such value or its type is not one the program reads.
    static Result<QVariant> value(const QStringList &keyLines, const QString &name);

    // Decodes the text after "=": "..." and str(n):, dword:, hex: and hex(n):.
    static Result<QVariant> decode(const QString &data);

    // Wine's escapes in quoted text: \\ \" \n \r \t \0 and \xHHHH. Stops at the closing quote;
    // end receives the position after it.
    static QString unescape(const QString &text, qsizetype start, qsizetype *end = nullptr);

private:
    QStringList m_lines;
};

} // namespace platform
