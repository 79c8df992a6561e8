#include "TextureInstall.h"

#include "ui/Transcript.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace texturetest
{

TextureInstall::TextureInstall()
    : services(map, scripted, QStringLiteral(BV_BIN_DIR))
    , session(services, scripted, map)
{
    QDir(m_root.path()).mkpath(QStringLiteral("App/TempFiles"));
    QDir(m_root.path()).mkpath(QStringLiteral("RS/Assets"));
    session.appFolder = win(QStringLiteral("App"));
    session.RailSimPath = win(QStringLiteral("RS"));
}

QString TextureInstall::win(const QString &rel) const
{
    QString path = platform::toWindowsPath(m_root.path());
    if (!rel.isEmpty()) {
        path += u'\\' + QString(rel).replace(u'/', u'\\');
    }
    return path;
}

void TextureInstall::put(const QString &rel, const QByteArray &bytes) const
{
    QDir().mkpath(QFileInfo(host(rel)).absolutePath());
    QFile file(host(rel));
    if (file.open(QIODevice::WriteOnly)) {
        file.write(bytes);
    }
}

QByteArray TextureInstall::read(const QString &rel) const
{
    QFile file(host(rel));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<missing>");
}

bool TextureInstall::exists(const QString &rel) const
{
    return QFileInfo::exists(host(rel));
}

QString TextureInstall::messageLine(ui::Icon icon, const QString &title, const QString &text)
{
    return QStringLiteral("msgbox ") + ui::iconName(icon) + u' ' + ui::quoted(title) + u' '
        + ui::quoted(text) + QStringLiteral(" -> OK");
}

} // namespace texturetest
