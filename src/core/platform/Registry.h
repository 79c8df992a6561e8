#pragma once
// Reads registry values: the system registry on Windows, elsewhere the Wine prefix's system.reg
// (HKEY_LOCAL_MACHINE) and user.reg (HKEY_CURRENT_USER).

#include "core/platform/Result.h"

#include <QString>
#include <QVariant>

namespace platform
{

enum class RegistryRoot : quint32 {
    ClassesRoot = 0x80000000u,
    CurrentUser = 0x80000001u,
    LocalMachine = 0x80000002u,
    Users = 0x80000003u,
};

class Registry
{
public:
    // The prefix is $WINEPREFIX, else ~/.wine.
    Registry();
    explicit Registry(QString winePrefix);

    // A missing key gives the default; a key without the value, or a value of a type other than
    // text, expandable text, binary, double word or multi-text, gives error 1001. Text comes back
    // as QString, binary as QByteArray, a double word as qint32. An empty value name is the key's
    // default value.
    [[nodiscard]] Result<QVariant> value(RegistryRoot root,
                                         const QString &subkey,
                                         const QString &valueName,
                                         const QVariant &defaultValue = {}) const;

private:
    QString m_prefix;
};

// Registry().value(...), for callers that read one value.
[[nodiscard]] Result<QVariant> getRegValue(RegistryRoot root,
                                           const QString &subkey,
                                           const QString &valueName,
                                           const QVariant &defaultValue = {});

} // namespace platform
