#pragma once
// A small installation for the XML tests: a temporary program folder with its TempFiles, the
// services over it, a scripted host, and helpers to put and read files by relative name.

#include "core/Services.h"
#include "core/Session.h"
#include "core/platform/PathMap.h"
#include "ui/Forms.h"
#include "ui/ScriptedHost.h"
#include "xml/XmlWindows.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

class XmlFixture : public testing::Test
{
protected:
    QTemporaryDir root;
    platform::PathMap map = platform::PathMap::forHostRoot();
    ui::ScriptedHost host;
    core::Services services{map, host, QStringLiteral(BV_BIN_DIR)};
    core::Session session{services, host, map};
    ui::Forms forms{host};

    XmlFixture()
    {
        session.appFolder = win();
        QDir(root.path()).mkpath(QStringLiteral("TempFiles"));
        xml::defineXmlWindows(session, forms);
    }

    QString win(const QString &rel = {}) const
    {
        return platform::toWindowsPath(root.path())
            + (rel.isEmpty() ? QString() : QStringLiteral("\\") + rel);
    }

    void put(const QString &rel, const QByteArray &bytes) const
    {
        QDir().mkpath(QFileInfo(root.filePath(rel)).absolutePath());
        QFile file(root.filePath(rel));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    QByteArray bytes(const QString &rel) const
    {
        QFile file(root.filePath(rel));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    bool exists(const QString &rel) const { return QFile::exists(root.filePath(rel)); }
};
