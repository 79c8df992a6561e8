#pragma once
// A temporary folder with the services over it, for the tests of the file statements.

#include "core/Services.h"
#include "core/platform/PathMap.h"
#include "ui/ScriptedHost.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

class ServicesFixture : public testing::Test
{
protected:
    QTemporaryDir root;
    platform::PathMap map = platform::PathMap::forHostRoot();
    ui::ScriptedHost host;
    core::Services services{map, host, root.path()};

    QString win(const QString &rel = {}) const
    {
        return platform::toWindowsPath(root.path())
            + (rel.isEmpty() ? QString() : QStringLiteral("\\") + rel);
    }

    void put(const QString &rel, const QByteArray &bytes = "x") const
    {
        QDir().mkpath(QFileInfo(root.filePath(rel)).absolutePath());
        QFile file(root.filePath(rel));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    QByteArray read(const QString &rel) const
    {
        QFile file(root.filePath(rel));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<missing>");
    }

    bool exists(const QString &rel) const { return QFileInfo::exists(root.filePath(rel)); }
};
