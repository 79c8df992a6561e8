#include "XmlFixture.h"
#include "core/ConverterBridge.h"
#include "xml/CheckRoutesXml.h"
#include "xml/TidyXmlFile.h"

using namespace Qt::StringLiterals;

TEST(TidyLine, IndentBecomesTabsAndTheTailGoes)
{
    struct Case {
        QString line;
        QString tidied;
        bool mismatched;
    };

    const Case cases[] = {
        {u"    "_s, u"    "_s, false},
        {u"plain words"_s, u"plain words"_s, false},
        {QString(), QString(), false},
        {u"  <a>x</a> trailing words"_s, u"\t\t<a>x</a>"_s, false},
        {u"text<a>"_s, u"\t\t\t\t<a>"_s, false},
        {u"\t<a>  "_s, u"\t<a>"_s, false},
        {u"<a attr=\"1\""_s, u"<a attr=\"1\""_s, true},
        {u"   x>"_s, u"   x>"_s, true},
        {u"<b>\u00f3 \u00d3 \u00fc \u00dc</b>"_s, u"<b>o o u u</b>"_s, false},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.line.toStdString());
        bool mismatched = !c.mismatched;
        EXPECT_EQ(xml::tidyLine(c.line, mismatched), c.tidied);
        EXPECT_EQ(mismatched, c.mismatched);
    }
}

class TidyTest : public XmlFixture
{
protected:
    QStringList messages() const
    {
        QStringList out;
        for (const QString &line : host.transcript()) {
            if (line.startsWith(u"msgbox"_s)) {
                out.append(line);
            }
        }
        return out;
    }
};

TEST_F(TidyTest, RewritesTheFileAndReportsEachMismatchedLine)
{
    put(u"work.xml"_s, "  <a>\r\n<b\r  x>\r\n\t<c>\xf3</c> \r\n</a>   ");
    xml::TidyXmlFile(session, win(u"work.xml"_s));
    EXPECT_EQ(bytes(u"work.xml"_s), QByteArray("\t\t<a>\r\n<b\r\n  x>\r\n\t<c>o</c>\r\n</a>\r\n"));
    EXPECT_EQ(
        messages(),
        (QStringList{
            u"msgbox exclamation \"Brakevan Max\" \"There are mis-matched '<' tags in Line 2\" -> OK"_s,
            u"msgbox exclamation \"Brakevan Max\" \"There are mis-matched '<' tags in Line 3\" -> OK"_s}));
}

TEST_F(TidyTest, AnEmptyFileEndsInTheWriteMessage)
{
    put(u"empty.xml"_s, QByteArray());
    xml::TidyXmlFile(session, win(u"empty.xml"_s));
    ASSERT_EQ(messages().size(), 1);
    EXPECT_TRUE(messages().at(0).contains(u"An error occurred while writing "_s));
}

TEST_F(TidyTest, KeepsBytesOutsideTheTwoLettersAsTheyWere)
{
    // A file in UTF-8 is read through the code page: its two-byte letters pass unchanged.
    put(u"u.xml"_s, "<a>\xc3\xb3\x81\x9d\xe9</a>\r\n");
    xml::TidyXmlFile(session, win(u"u.xml"_s));
    EXPECT_EQ(bytes(u"u.xml"_s), QByteArray("<a>\xc3\xb3\x81\x9d\xe9</a>\r\n"));
}

class CheckRoutesXmlTest : public TidyTest
{
protected:
    core::ConverterBridge bridge{session};

    void check(const QString &rel)
    {
        host.queueFile(win(rel));
        xml::CheckRoutesXml(session, bridge);
    }
};

TEST_F(CheckRoutesXmlTest, RepairsLineEndsKeepsABackupAndTidies)
{
    const QByteArray original = "<Routes>\n  <Route>x</Route>  \r\n  <Route\r\n</Routes>";
    put(u"Content/routes.XML"_s, original);
    check(u"Content\\routes.XML"_s);
    EXPECT_EQ(bytes(u"Content/routes.XML"_s),
              QByteArray("<Routes>\r\n\t\t<Route>x</Route>\r\n\t\t<Route\r\n</Routes>\r\n"));
    EXPECT_EQ(bytes(u"Content/routes.XML.bak"_s), original);
    EXPECT_EQ(bytes(u"TempFiles/routes.xml"_s), original);
    const QStringList shown = messages();
    ASSERT_EQ(shown.size(), 2);
    EXPECT_TRUE(shown.at(0).endsWith(u"mis-matched '<' tags in Line 3\" -> OK"_s));
    EXPECT_TRUE(shown.at(1).contains(u"The .xml file has been cleaned up, however"_s));

    // A second run keeps the tidied file in the next backup and changes no line.
    const QByteArray tidied = bytes(u"Content/routes.XML"_s);
    check(u"Content\\routes.XML"_s);
    EXPECT_EQ(bytes(u"Content/routes.XML.bak1"_s), tidied);
    EXPECT_EQ(bytes(u"Content/routes.XML"_s), tidied);
    EXPECT_EQ(bytes(u"Content/routes.XML.bak"_s), original);
}

TEST_F(CheckRoutesXmlTest, OnlyAFileNamedRoutesPasses)
{
    for (const QString &rel : {u"MyRoutes.xml"_s, u"Routes"_s, u"Routes.xml.old"_s}) {
        SCOPED_TRACE(rel.toStdString());
        put(rel, "<a\n");
        host.takeTranscript();
        check(rel);
        EXPECT_EQ(
            messages(),
            QStringList{
                u"msgbox none \"Brakevan Max\" \"This does not appear to be a Routes.xml file?\" -> OK"_s});
        EXPECT_EQ(bytes(rel), QByteArray("<a\n"));
        EXPECT_FALSE(exists(rel + u".bak"_s));
    }
}
