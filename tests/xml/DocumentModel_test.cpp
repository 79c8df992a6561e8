#include "core/platform/Failure.h"
#include "xml/SaxReader.h"
#include "xml/clsXMLParse.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace xml;

namespace
{

// The document element of a parsed text.
struct Parsed {
    clsXMLParse document;

    explicit Parsed(const QByteArray &text) { document.load(text); }

    clsNode &first() const { return document.RootNode().ChildNodes.Item(1); }
};

int failureOf(const std::function<void()> &statement)
{
    try {
        statement();
    } catch (const platform::Failure &failure) {
        return failure.number();
    }
    return 0;
}

} // namespace

TEST(DocumentModel, KeysNamesAndAttributesFollowTheFile)
{
    const Parsed parsed(R"(<?xml version="1.0" encoding="utf-8"?>
<cRecordSet xmlns:d="http://www.kuju.com/TnT/2003/Delta" d:version="1.0">
<Record><d:blob d:size="2">ab</d:blob><e b="2" a="1" d:type="cDeltaString"/></Record>
<Record/>
</cRecordSet>)");
    const clsNode &top = parsed.first();
    EXPECT_EQ(top.NodeName, u"cRecordSet"_s);
    EXPECT_EQ(top.NodeKey, u"nod1"_s);
    // Namespace declarations are not attributes of the document; prefixed attributes keep their
    // prefix.
    ASSERT_EQ(top.NodeAttributes.Count(), 1);
    EXPECT_EQ(top.NodeAttributes.Item(1).AttribName, u"d:version"_s);
    ASSERT_EQ(top.ChildNodes.Count(), 2);
    const clsNode &record = top.ChildNodes.Item(1);
    EXPECT_EQ(record.NodeKey, u"nod2"_s);
    EXPECT_EQ(record.NodeAttributes.Count(), 0);
    const clsNode &blob = record.ChildNodes.Item(1);
    EXPECT_EQ(blob.NodeName, u"blob"_s);
    EXPECT_EQ(blob.NodeKey, u"nod3"_s);
    EXPECT_EQ(blob.NodeCharacters, u"ab"_s);
    const clsNode &e = record.ChildNodes.Item(u"NOD4"_s);
    EXPECT_EQ(e.ParentNode, &record);
    QStringList names;
    for (const clsNodeAttribute &attribute : e.NodeAttributes) {
        names.append(attribute.AttribName + u"="_s + attribute.AttribValue);
    }
    EXPECT_EQ(names, (QStringList{u"b=2"_s, u"a=1"_s, u"d:type=cDeltaString"_s}));
    EXPECT_EQ(top.ChildNodes.Item(2).NodeKey, u"nod5"_s);
    EXPECT_EQ(top.ChildNodes.Item(2).NodeName, u"Record"_s);
}

TEST(DocumentModel, OnlyTheLastPieceOfTextStays)
{
    struct Case {
        QByteArray xml;
        QString characters;
    };

    const Case cases[] = {
        {"<a>fish &amp; chips</a>", u" chips"_s},
        {"<a>fish &amp;</a>", u"&"_s},
        {"<a>caf&#233;s</a>", u"s"_s},
        {"<a>one\r\ntwo</a>", u"one\ntwo"_s},
        {"<a>before<b/>after</a>", u"after"_s},
        {"<a>before<!-- note -->after</a>", u"after"_s},
        {"<a>\r\n\t<b>x</b>\r\n</a>", u"\n"_s},
        {"<a>\n\t<b>x</b>\n\t<c/>\n\t</a>", u"\n\t"_s},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.xml.toStdString());
        EXPECT_EQ(Parsed(c.xml).first().NodeCharacters, c.characters);
    }
}

TEST(DocumentModel, ABrokenDocumentLeavesTheAnchorAsItWas)
{
    for (const QByteArray &broken : {QByteArray(),
                                     QByteArray("<a><b></a>"),
                                     QByteArray("<a>"),
                                     QByteArray("not xml"),
                                     QByteArray("<?xml version=\"1.0\"?>"),
                                     QByteArray("<a></a><b/>")}) {
        SCOPED_TRACE(broken.toStdString());
        clsXMLParse document;
        document.load("<kept/>");
        EXPECT_EQ(failureOf([&] { document.load(broken); }), ParseFailure);
        ASSERT_EQ(document.RootNode().ChildNodes.Count(), 1);
        EXPECT_EQ(document.RootNode().ChildNodes.Item(1).NodeName, u"kept"_s);
    }
}

TEST(DocumentModel, ReadsTheDeclaredEncoding)
{
    const Parsed utf8("<?xml version=\"1.0\" encoding=\"utf-8\"?><Stra\xc3\x9f"
                      "e n=\"\xc3\xa9\">\xe2\x82\xac</Stra\xc3\x9f"
                      "e>");
    EXPECT_EQ(utf8.first().NodeName, u"Straße"_s);
    EXPECT_EQ(utf8.first().NodeAttributes.Item(1).AttribValue, u"é"_s);
    EXPECT_EQ(utf8.first().NodeCharacters, u"€"_s);
    const Parsed ansi("<?xml version=\"1.0\" encoding=\"windows-1252\"?><a>\x80 \xf3</a>");
    EXPECT_EQ(ansi.first().NodeCharacters, u"€ ó"_s);
}

TEST(DocumentModel, CollectionsRaiseAsTheProgramsCollectionsDo)
{
    Parsed parsed("<a x=\"1\"><b/><c/></a>");
    clsNode &a = parsed.first();
    EXPECT_EQ(failureOf([&] { a.ChildNodes.Item(0); }), platform::SubscriptOutOfRange);
    EXPECT_EQ(failureOf([&] { a.ChildNodes.Item(3); }), platform::SubscriptOutOfRange);
    EXPECT_EQ(failureOf([&] { a.ChildNodes.Item(u"nod9"_s); }), platform::InvalidArgument);
    EXPECT_EQ(failureOf([&] { a.ChildNodes.Add(u"d"_s, {}, {}, {}, &a, u"nod2"_s, u"nod2"_s); }),
              457);
    EXPECT_EQ(failureOf([&] { a.NodeAttributes.Item(2); }), platform::SubscriptOutOfRange);

    a.ChildNodes.Remove(u"nod2"_s);
    ASSERT_EQ(a.ChildNodes.Count(), 1);
    EXPECT_EQ(a.ChildNodes.Item(1).NodeName, u"c"_s);
    // A removed key is free again.
    a.ChildNodes.Add(u"d"_s, {}, {}, {}, &a, u"nod2"_s, u"nod2"_s);
    a.ChildNodes.Remove(1);
    EXPECT_EQ(a.ChildNodes.Item(1).NodeName, u"d"_s);
    EXPECT_EQ(a.ChildNodes.Item(u"nod2"_s).NodeName, u"d"_s);

    a.NodeAttributes.Add(u"k"_s, u"v"_s, u"key"_s);
    EXPECT_EQ(a.NodeAttributes.Item(u"KEY"_s).AttribValue, u"v"_s);
    a.NodeAttributes.Remove(1);
    EXPECT_EQ(a.NodeAttributes.Item(1).AttribName, u"k"_s);
}

TEST(DocumentModel, SurvivesDeepAndWideDocuments)
{
    constexpr int depth = 200000;
    QByteArray deep;
    deep.reserve(depth * 7);
    for (int i = 0; i < depth; ++i) {
        deep += "<n>";
    }
    for (int i = 0; i < depth; ++i) {
        deep += "</n>";
    }
    clsXMLParse document;
    document.load(deep);
    const clsNode *node = &document.RootNode();
    int levels = 0;
    while (node->ChildNodes.Count() > 0) {
        node = &node->ChildNodes.Item(1);
        ++levels;
    }
    EXPECT_EQ(levels, depth);
    EXPECT_EQ(node->NodeKey, u"nod"_s + QString::number(depth));
    // Replacing the document drops the deep one without running out of stack.
    document.load("<a/>");
    EXPECT_EQ(document.RootNode().ChildNodes.Item(1).NodeName, u"a"_s);
}
