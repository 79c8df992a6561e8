#include "xml/ColumnText.h"
#include "xml/TreeWriter.h"
#include "xml/clsXMLParse.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace xml;

namespace
{

const QString declaration = u"<?xml version=\"1.0\" encoding=\"utf-8\"?>\r\n"_s;

QString written(const QByteArray &xml)
{
    clsXMLParse document;
    document.load(xml);
    return treeText(document.RootNode());
}

} // namespace

TEST(TreeWriter, PutsEachElementAtTheColumnOfItsDepth)
{
    // An opening tag ends past the column of its first child, so each child starts a new line,
    // padded to its depth; a childless element closes on its own line.
    EXPECT_EQ(written("<a x=\"1\" y=\"2\"><b><c>t</c><d/></b><e>u</e></a>"),
              declaration
                  + u"<a x=\"1\" y=\"2\">\r\n"_s
                    u" <b>\r\n"_s
                    u"  <c>t</c>\r\n"_s
                    u"  <d></d>\r\n"_s
                    u" </b>\r\n"_s
                    u" <e>u</e>\r\n"_s
                    u"</a>\r\n"_s);
}

TEST(TreeWriter, TextWithLineBreaksRestartsTheColumnCount)
{
    // The whitespace the reader gave an element ends its opening tag; its first child is then
    // padded from the column that whitespace left.
    EXPECT_EQ(written("<a>\n\t<b>\n\t\t<c/>\n\t</b>\n</a>"),
              declaration
                  + u"<a>\n <b>\n\t <c></c>\r\n"_s
                    u" </b>\r\n"_s
                    u"</a>\r\n"_s);
}

TEST(TreeWriter, WritesNamesValuesAndTextUnescaped)
{
    EXPECT_EQ(written("<a v=\"&lt;1 &amp; 2&gt;\">x &lt; y</a>"),
              declaration + u"<a v=\"<1 & 2>\"> y</a>\r\n"_s);
}

TEST(TreeWriter, AnEmptyDocumentIsItsDeclaration)
{
    clsXMLParse empty;
    EXPECT_EQ(treeText(empty.RootNode()), declaration);
}

TEST(TreeWriter, ColumnsCountFromOne)
{
    ColumnText out;
    out.moveTo(1);
    EXPECT_EQ(out.text(), QString());
    out.print(u"abc"_s);
    out.moveTo(4);
    EXPECT_EQ(out.column(), 4);
    out.moveTo(3);
    out.print(u"x"_s);
    EXPECT_EQ(out.text(), u"abc\r\n  x"_s);
}

TEST(TreeWriter, ARoundTripKeepsNamesAttributeOrderAndTheLastText)
{
    const QByteArray source = R"(<?xml version="1.0" encoding="utf-8"?>
<cRecordSet xmlns:d="http://www.kuju.com/TnT/2003/Delta" d:version="1.0">
	<Record>
		<cGUID z="3" a="1" m="2">
			<UUID>
				<e d:type="sUInt64">123</e>
				<e d:type="sUInt64">456</e>
			</UUID>
			<DevString d:type="cDeltaString">a &amp; b</DevString>
		</cGUID>
		<d:blob d:size="1">ff</d:blob>
	</Record>
</cRecordSet>)";
    clsXMLParse first;
    first.load(source);
    const QString text = treeText(first.RootNode());
    clsXMLParse second;
    second.load(text.toUtf8());

    // Walk both trees side by side.
    std::vector<std::pair<const clsNode *, const clsNode *>> pending{
        {&first.RootNode().ChildNodes.Item(1), &second.RootNode().ChildNodes.Item(1)}};
    int compared = 0;
    while (!pending.empty()) {
        const auto [a, b] = pending.back();
        pending.pop_back();
        SCOPED_TRACE(a->NodeKey.toStdString());
        ++compared;
        EXPECT_EQ(a->NodeName, b->NodeName);
        EXPECT_EQ(a->NodeKey, b->NodeKey);
        ASSERT_EQ(a->NodeAttributes.Count(), b->NodeAttributes.Count());
        for (int i = 1; i <= a->NodeAttributes.Count(); ++i) {
            EXPECT_EQ(a->NodeAttributes.Item(i).AttribName, b->NodeAttributes.Item(i).AttribName);
            EXPECT_EQ(a->NodeAttributes.Item(i).AttribValue, b->NodeAttributes.Item(i).AttribValue);
        }
        if (a->ChildNodes.Count() == 0) {
            EXPECT_EQ(a->NodeCharacters, b->NodeCharacters);
        }
        ASSERT_EQ(a->ChildNodes.Count(), b->ChildNodes.Count());
        for (int i = 1; i <= a->ChildNodes.Count(); ++i) {
            pending.emplace_back(&a->ChildNodes.Item(i), &b->ChildNodes.Item(i));
        }
    }
    EXPECT_EQ(compared, 8);
    // Of the text around the reference only the piece after it was kept.
    EXPECT_TRUE(text.contains(u"<DevString d:type=\"cDeltaString\"> b</DevString>"_s));
}
