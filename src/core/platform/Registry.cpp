#include "core/platform/Registry.h"

#include "core/platform/RegistryFile.h"

#include <QDir>

#ifdef Q_OS_WIN
#include <QSettings>
#endif

namespace platform
{

namespace
{

// A 32-bit installer on a 64-bit system writes below Software\Wow6432Node.
QString wow64Key(const QString &subkey)
{
    const QString software = QStringLiteral("Software\\");
    if (!subkey.startsWith(software, Qt::CaseInsensitive)) {
        return {};
    }
    return software + QStringLiteral("Wow6432Node\\") + subkey.mid(software.size());
}

struct Location {
    QString file; // the prefix's registry file
    QString prefix; // the part of the key path the file leaves out
};

Location locate(const QString &winePrefix, RegistryRoot root)
{
    switch (root) {
    case RegistryRoot::LocalMachine:
        return {winePrefix + QStringLiteral("/system.reg"), {}};
    case RegistryRoot::ClassesRoot:
        return {winePrefix + QStringLiteral("/system.reg"), QStringLiteral("Software\\Classes\\")};
    case RegistryRoot::CurrentUser:
        return {winePrefix + QStringLiteral("/user.reg"), {}};
    case RegistryRoot::Users:
        return {winePrefix + QStringLiteral("/userdef.reg"), {}};
    }
    return {};
}

} // namespace

Registry::Registry()
{
    const QString prefix = qEnvironmentVariable("WINEPREFIX");
    m_prefix = prefix.isEmpty() ? QDir::homePath() + QStringLiteral("/.wine") : prefix;
}

Registry::Registry(QString winePrefix)
    : m_prefix(std::move(winePrefix))
{
}

Result<QVariant> Registry::value(RegistryRoot root,
                                 const QString &subkey,
                                 const QString &valueName,
                                 const QVariant &defaultValue) const
{
#ifdef Q_OS_WIN
    static const char *const roots[] = {
        "HKEY_CLASSES_ROOT", "HKEY_CURRENT_USER", "HKEY_LOCAL_MACHINE", "HKEY_USERS"};
    const auto index = static_cast<quint32>(root) - 0x80000000u;
    const QSettings settings(QString::fromLatin1(roots[index]) + u'\\' + subkey,
                             QSettings::NativeFormat);
    if (settings.childKeys().isEmpty() && settings.childGroups().isEmpty()) {
        return defaultValue;
    }
    const QString name = valueName.isEmpty() ? QStringLiteral("Default") : valueName;
    if (!settings.contains(name)) {
        return Error{UnsupportedValueType, standardDescription(UnsupportedValueType)};
    }
    return settings.value(name);
#else
    const Location where = locate(m_prefix, root);
    const RegistryFile file = RegistryFile::load(where.file);
    std::optional<QStringList> lines = file.keyLines(where.prefix + subkey);
    if (!lines) {
        const QString alternative = wow64Key(where.prefix + subkey);
        if (!alternative.isEmpty()) {
            lines = file.keyLines(alternative);
        }
    }
    if (!lines) {
        return defaultValue;
    }
    return RegistryFile::value(*lines, valueName);
#endif
}

Result<QVariant> getRegValue(RegistryRoot root,
                             const QString &subkey,
                             const QString &valueName,
                             const QVariant &defaultValue)
{
    return Registry().value(root, subkey, valueName, defaultValue);
}

} // namespace platform
