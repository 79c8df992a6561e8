#include "TextureInstall.h"
#include "TextureSamples.h"
#include "serz/Converter.h"
#include "textures/TextureWindows.h"
#include "textures/WorkBitmap.h"
#include "textures/frmGFX.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using texturetest::TextureInstall;

namespace
{

const QString assets = u"RS/Assets"_s;

QByteArray binaryOf(const QString &xml)
{
    serz::Result<std::vector<std::byte>> bin = serz::toBinary(xml.toStdString(), {});
    EXPECT_TRUE(bin.ok());
    return bin.ok() ? QByteArray(reinterpret_cast<const char *>(bin.value().data()),
                                 qsizetype(bin.value().size()))
                    : QByteArray();
}

class frmGFXTest : public testing::Test
{
protected:
    void SetUp() override
    {
        wide = binaryOf(
            texturetest::makeTexture(u"HC_IMAGE_FORMAT_COMPRESSED"_s, 16, 8, 1, {}, 5).xml);
        square = binaryOf(
            texturetest::makeTexture(u"HC_IMAGE_FORMAT_COMPRESSED_EXPL_ALPHA"_s, 8, 8, 1, {}, 9)
                .xml);
        install.put(assets + u"/wide.TgPcDx"_s, wide);
        install.put(assets + u"/square.TgPcDx"_s, square);
        install.put(assets + u"/notes.txt"_s, "x");
        textures::defineTextureWindows(install.session, forms);
    }

    textures::frmGFX &viewer() { return forms.get<textures::frmGFX>(); }

    void choose(const QString &name)
    {
        const int row = int(viewer().File1.rows().indexOf(name));
        ASSERT_GE(row, 0) << name.toStdString();
        viewer().File1.userSelect({row});
    }

    QImage workBitmap() const
    {
        return textures::bitmapFromBytes(install.read(u"App/TempFiles/temp.bmp"_s));
    }

    TextureInstall install;
    ui::Forms forms{install.scripted};
    QByteArray wide;
    QByteArray square;
};

} // namespace

TEST_F(frmGFXTest, ProcessesTheWorkBitmapAndNeverTheGameFile)
{
    choose(u"wide.TgPcDx"_s);
    EXPECT_EQ(viewer().caption(), u"PicView - wide.TgPcDx (16x8)"_s);
    const QImage before = workBitmap();
    viewer().rot.fireClick();
    const QImage turned = workBitmap();
    ASSERT_EQ(turned.size(), QSize(8, 16));
    EXPECT_EQ(turned.pixel(7, 0), before.pixel(0, 0)); // clockwise: the top left goes top right
    viewer().flip.fireClick();
    EXPECT_EQ(workBitmap().pixel(7, 15), turned.pixel(7, 0));
    viewer().grey.fireClick();
    const QImage grey = workBitmap();
    for (int y = 0; y < grey.height(); ++y) {
        for (int x = 0; x < grey.width(); ++x) {
            const QRgb pixel = grey.pixel(x, y);
            ASSERT_TRUE(qRed(pixel) == qGreen(pixel) && qGreen(pixel) == qBlue(pixel));
        }
    }
    EXPECT_EQ(install.read(assets + u"/wide.TgPcDx"_s), wide);

    // A second texture replaces the work bitmap, and with it the grey scale.
    choose(u"square.TgPcDx"_s);
    const QImage next = workBitmap();
    ASSERT_EQ(next.size(), QSize(8, 8));
    bool coloured = false;
    for (int i = 0; i < 64 && !coloured; ++i) {
        const QRgb pixel = next.pixel(i % 8, i / 8);
        coloured = qRed(pixel) != qGreen(pixel) || qGreen(pixel) != qBlue(pixel);
    }
    EXPECT_TRUE(coloured);
}

TEST_F(frmGFXTest, AFileThatIsNoTextureShowsNothing)
{
    choose(u"wide.TgPcDx"_s);
    install.put(assets + u"/broken.TgPcDx"_s, wide.left(40));
    viewer().Text3.setText(install.win(assets + u"/broken.TgPcDx"_s));
    EXPECT_TRUE(viewer().Picture1.picture().isEmpty());
    EXPECT_FALSE(install.exists(u"App/TempFiles/temp.bmp"_s));
    EXPECT_TRUE(install.scripted.transcript().last().contains(u"This picture cannot be shown: "_s));
}
