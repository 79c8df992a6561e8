#include "core/platform/Failure.h"
#include "routes/TextureName.h"
#include "routes/content_model/CatalogueEntry.h"
#include "routes/content_model/TagScan.h"

#include <gtest/gtest.h>

using namespace routes;

namespace
{

const QString tileLines =
    QStringLiteral("\t<Provider d:type=\"cDeltaString\">Kuju</Provider>\r\n"
                   "\t<Product d:type=\"cDeltaString\">RailSimulator</Product>\r\n"
                   "\t<Provider d:type=\"cDeltaString\">Second</Provider>\r\n"
                   "\t<product d:type=\"cDeltaString\">Lower</product>\r\n"
                   "\t<Product d:type=\"cDeltaString\">Upper</Product>\r\n");

} // namespace

TEST(TagScan, ScanValueCutsBetweenTheTagsBracketAndTheNextTag)
{
    EXPECT_EQ(ScanValue(QStringLiteral(
                  "\t\t<BlueprintID d:type=\"cDeltaString\">a\\b.xml</BlueprintID>")),
              QStringLiteral("a\\b.xml"));
    EXPECT_EQ(ScanValue(tileLines, QStringLiteral("<product")), QStringLiteral("RailSimulator"));
    EXPECT_EQ(ScanValue(QStringLiteral("<Empty d:type=\"cDeltaString\"></Empty>")), QString());
    // A line with no tag to close the value cannot be cut: a bad argument, as the windows expect.
    EXPECT_THROW(ScanValue(QStringLiteral("<open>no close")), platform::Failure);
}

TEST(TagScan, GetTagValueMovesToTheClosingTagOrToZero)
{
    const QString text = QStringLiteral("<a><GeometryID t=\"x\">geo</GeometryID><Name>n</Name>");
    int pos = 1;
    QString value = QStringLiteral("before");
    GetTagValue(text, pos, QStringLiteral("geometryid"), value);
    EXPECT_EQ(value, QStringLiteral("geo"));
    EXPECT_EQ(text.mid(pos - 1, 12), QStringLiteral("</GeometryID"));
    GetTagValue(text, pos, QStringLiteral("Missing"), value);
    EXPECT_EQ(pos, 0);
    EXPECT_EQ(value, QStringLiteral("geo"));
}

TEST(TagScan, ProviderAndProductBackFromAPosition)
{
    QString provider;
    QString product;
    GetProviderProduct(int(tileLines.size()), provider, product, tileLines);
    EXPECT_EQ(provider, QStringLiteral("Second"));
    EXPECT_EQ(product, QStringLiteral("Lower")) << "case-blind takes the first product tag";
    GetProviderProductExact(int(tileLines.size()), provider, product, tileLines);
    EXPECT_EQ(product, QStringLiteral("Upper"));
    GetProviderProduct(60, provider, product, tileLines);
    EXPECT_EQ(provider, QStringLiteral("Kuju"));
    EXPECT_EQ(product, QStringLiteral("RailSimulator"));
}

TEST(TagScan, FixEntitiesMendsEntitiesAndMisdecodedLetters)
{
    const struct {
        QString in;
        QString out;
        bool changed;
    } cases[] = {
        {QStringLiteral("goods&amp;parcels"), QStringLiteral("goods&parcels"), true},
        {QStringLiteral("a&amp;amp;b"), QStringLiteral("a&b"), true},
        {QStringLiteral("driver&apos;s cab"), QStringLiteral("driver's cab"), true},
        {QStringLiteral("Stra\u00ef\u00bf\u0178e"), QStringLiteral("Stra\u00dfe"), true},
        {QStringLiteral("Br\u00ef\u00bf\u00bccke M\u00ef\u00bf\u00a4rz"),
         QStringLiteral("Br\u00fccke M\u00e4rz"),
         true},
        {QStringLiteral("plain\\path"), QStringLiteral("plain\\path"), false},
    };

    for (const auto &c : cases) {
        SCOPED_TRACE(c.in.toStdString());
        QString path = c.in;
        EXPECT_EQ(FixEntities(path), c.changed);
        EXPECT_EQ(path, c.out);
    }
}

TEST(CatalogueEntry, CutKeepsOneCharacterBeforeTheNextEntry)
{
    const QString text = QStringLiteral("<S>\n\t<cScenarioProperties>k-1</cScenarioProperties>\n"
                                        "\t<cScenarioProperties>k-2</cScenarioProperties>\n"
                                        "\t<cScenarioProperties>k-3</cScenarioProperties>\n</S>");
    EXPECT_EQ(RemoveScenarioEntry(text, QStringLiteral("k-2")),
              QStringLiteral("<S>\n\t<cScenarioProperties>k-1</cScenarioProperties>\n"
                             "\t\t<cScenarioProperties>k-3</cScenarioProperties>\n</S>"));
    EXPECT_EQ(RemoveScenarioEntry(text, QStringLiteral("k-3")),
              QStringLiteral("<S>\n\t<cScenarioProperties>k-1</cScenarioProperties>\n"
                             "\t<cScenarioProperties>k-2</cScenarioProperties>\n\t\n</S>"));
    const QString routes = QStringLiteral("<R><cRouteProperties>x</cRouteProperties></R>");
    EXPECT_EQ(RemoveRouteEntry(routes, QStringLiteral("x")), QStringLiteral("<R></R>"));
}

TEST(TextureName, ParentStepsAndMarkers)
{
    EXPECT_EQ(CountParents(QStringLiteral("..\\..\\..\\tex")), 3);
    EXPECT_EQ(CountParents(QStringLiteral("..\\..\\..\\..\\..\\..\\tex")), 5);
    EXPECT_EQ(CountParents(QStringLiteral("..\\tex")), 1);
    EXPECT_EQ(CountParents(QStringLiteral("tex")), 0);
    EXPECT_EQ(dropMarker(QStringLiteral("[00]name")), QStringLiteral("name"));
    EXPECT_EQ(dropMarker(QStringLiteral("a[00]b")), QStringLiteral("ab"));
    EXPECT_EQ(dropMarker(QStringLiteral("plain")), QStringLiteral("plain"));
}

TEST(TextureName, PrefixFollowsTheParentSteps)
{
    const QString geometry =
        QStringLiteral("Z:\\g\\Assets\\P\\Q\\Trains\\Coach\\Body\\coach.GeoPcDx");
    const QString base = QStringLiteral("Z:\\g\\Assets\\P\\Q\\Trains\\Coach\\Body\\");

    const struct {
        QString texture;
        QString previous;
        QString prefix;
        QString name;
    } cases[] = {
        {QStringLiteral("body"), {}, base, QStringLiteral("body")},
        {QStringLiteral("..\\shared"),
         {},
         QStringLiteral("Z:\\g\\Assets\\P\\Q\\Trains\\Coach\\"),
         QStringLiteral("shared")},
        {QStringLiteral("..\\..\\common"),
         {},
         QStringLiteral("Z:\\g\\Assets\\P\\Q\\Trains\\"),
         QStringLiteral("common")},
        // three steps are looked for one level up
        {QStringLiteral("..\\..\\..\\deep"),
         {},
         QStringLiteral("Z:\\g\\Assets\\P\\Q\\Trains\\Coach\\"),
         QStringLiteral("deep")},
        {QStringLiteral("..\\..\\..\\..\\Trains\\T\\wheel"),
         {},
         QStringLiteral("Z:\\g\\Assets\\P\\Q\\"),
         QStringLiteral("Trains\\T\\wheel")},
        {QStringLiteral("..\\..\\..\\..\\Other\\x"),
         {},
         QStringLiteral("Z:\\g\\Assets\\P\\"),
         QStringLiteral("Other\\x")},
        {QStringLiteral("textures\\t1"),
         QStringLiteral("Z:\\kept\\"),
         QStringLiteral("Z:\\kept\\"),
         QStringLiteral("textures\\t1")},
        {QStringLiteral("textures\\t1"), {}, base, QStringLiteral("textures\\t1")},
    };

    for (const auto &c : cases) {
        SCOPED_TRACE(c.texture.toStdString());
        const TexturePlace place = placeTexture(c.texture, base, geometry, c.previous);
        EXPECT_EQ(place.prefix, c.prefix);
        EXPECT_EQ(place.name, c.name);
    }
}
