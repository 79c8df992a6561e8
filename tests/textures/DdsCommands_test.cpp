#include "TextureInstall.h"
#include "TextureSamples.h"
#include "core/ConverterBridge.h"
#include "serz/Converter.h"
#include "textures/DdsCommands.h"
#include "ui/Transcript.h"

#include <QFile>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using texturetest::TextureInstall;

namespace
{

const QString texture = u"RS/Assets/Kuju/Scenery/tile.TgPcDx"_s;
const QString dds = u"App/TempDDS/tile.dds"_s;
const QString dat = u"App/TempDDS/tile.dat"_s;

std::string xmlOf(const QByteArray &binary)
{
    const auto *raw = reinterpret_cast<const std::byte *>(binary.constData());
    serz::Result<std::string> xml = serz::toXml({raw, size_t(binary.size())}, {});
    return xml.ok() ? xml.value() : std::string("<not a texture>");
}

class DdsCommandsTest : public testing::Test
{
protected:
    void SetUp() override
    {
        original = texturetest::readHostFile(texturetest::tileTexture());
        if (original.isEmpty()) {
            GTEST_SKIP() << "samples not found";
        }
        if (!QFile::exists(QStringLiteral(BV_BIN_DIR) + u"/serz.exe"_s)) {
            GTEST_SKIP() << "serz.exe not built";
        }
        install.put(texture, original);
    }

    // The open command's road: the texture to XML in TempDDS through the converter.
    QString openedXml()
    {
        install.put(u"App/TempDDS/tile.bin"_s, original);
        core::ConverterBridge(install.session)
            .toXml(install.win(u"App/TempDDS/tile.bin"_s), install.win(u"App/TempDDS/tile.xml"_s));
        return install.services.ReadFile(install.win(u"App/TempDDS/tile.xml"_s));
    }

    void makeDds()
    {
        commands.toDds(install.win(texture), openedXml());
        ASSERT_TRUE(install.exists(dds));
        ASSERT_TRUE(install.exists(dat));
    }

    bool convertBack()
    {
        install.scripted.queueFile(install.win(dds));
        return commands.fromDds([this](const QString &xml) { shown = xml; });
    }

    TextureInstall install;
    textures::DdsCommands commands{install.session};
    QByteArray original;
    QString shown;
};

} // namespace

TEST_F(DdsCommandsTest, AnUnchangedTextureGoesToDdsAndBackOverTheGameFile)
{
    makeDds();
    EXPECT_EQ(
        install.scripted.transcript().last(),
        TextureInstall::messageLine(
            ui::Icon::Information,
            u"Editing .dds files"_s,
            u"If you wish to edit this file, then it must be saved with the following format:-\r\n1. .DDS\r\n2. DXT1 ARGB\r\n3. Number of Mip-Maps - 1"_s));
    EXPECT_EQ(install.read(dds).size(), 128 + 32768);

    install.scripted.queueAnswer(ui::Answer::Yes);
    ASSERT_TRUE(convertBack());
    EXPECT_TRUE(install.scripted.transcript().join(u'\n').contains(ui::quoted(
        u"This option will convert your modified file "_s + install.win(dds) + u"\r\nto "_s
        + install.win(texture) + u"\r\nand create a backup of the original file. Continue?"_s)));
    EXPECT_EQ(install.read(texture + u".bak"_s), original);
    EXPECT_EQ(xmlOf(install.read(texture)), xmlOf(original));
    EXPECT_FALSE(install.exists(u"App/TempDDS"_s));
    EXPECT_TRUE(shown.contains(u"<d:blob d:size=\"32768\">"_s));
}

TEST_F(DdsCommandsTest, BadInputLeavesTheGameFileUntouched)
{
    struct Case {
        const char *name;
        std::function<void()> spoil;
        QString message;
    };

    const QList<Case> cases{
        {"truncated dds",
         [&] { install.put(dds, install.read(dds).left(60)); },
         u"is not a complete .dds file"_s},
        {"dds of the wrong size",
         [&] { install.put(dds, install.read(dds).left(128 + 8192)); },
         u"it holds 8192 bytes of picture data, the texture 32768"_s},
        {"header file missing",
         [&] { QFile::remove(install.host(dat)); },
         u"No header file found in TempFiles for this .dds file, cannot process further."_s},
        {"header file damaged",
         [&] { install.put(dat, install.read(dat).left(200)); },
         u"dat is damaged, cannot process further."_s},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.name);
        makeDds();
        c.spoil();
        install.scripted.takeTranscript();
        EXPECT_FALSE(convertBack());
        EXPECT_TRUE(install.scripted.transcript().join(u'\n').contains(c.message))
            << install.scripted.transcript().join(u'\n').toStdString();
        EXPECT_EQ(install.read(texture), original);
        EXPECT_FALSE(install.exists(texture + u".bak"_s));
    }
}

TEST_F(DdsCommandsTest, NoLeavesTheGameFileAndTheWorkFilesAlone)
{
    makeDds();
    install.scripted.queueAnswer(ui::Answer::No);
    EXPECT_FALSE(convertBack());
    EXPECT_EQ(install.read(texture), original);
    EXPECT_TRUE(install.exists(dds));
}
