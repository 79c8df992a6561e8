#include "core/platform/CommandLine.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using platform::CommandLine;

TEST(CommandLine, SplitsAsWindowsProgramsDo)
{
    const struct {
        QString line;
        QStringList words;
    } cases[] = {
        {u"serz.exe a.bin"_s, {u"serz.exe"_s, u"a.bin"_s}},
        {u"  serz.exe   \"C:\\My Files\\a.bin\"  "_s, {u"serz.exe"_s, u"C:\\My Files\\a.bin"_s}},
        {u"serz.exe bin:\"Z:\\tmp\\a b.bin\""_s, {u"serz.exe"_s, u"bin:Z:\\tmp\\a b.bin"_s}},
        {u"\"C:\\Program Files\\x.exe\" -a"_s, {u"C:\\Program Files\\x.exe"_s, u"-a"_s}},
        {u"p a\\\\\\\"b"_s, {u"p"_s, u"a\\\"b"_s}}, // 3 backslashes + quote
        {u"p \"a\\\\\" b"_s, {u"p"_s, u"a\\"_s, u"b"_s}}, // 2 backslashes + quote
        {u"p a\\b\\ c"_s, {u"p"_s, u"a\\b\\"_s, u"c"_s}}, // backslashes alone stay
        {u"p \"a\"\"b\""_s, {u"p"_s, u"a\"b"_s}}, // "" inside quotes
        {u"p \"\" x"_s, {u"p"_s, u""_s, u"x"_s}}, // an empty argument
        {u"C:\\dir\\prog\\ a"_s, {u"C:\\dir\\prog\\"_s, u"a"_s}},
        {u""_s, {}},
    };

    for (const auto &c : cases) {
        SCOPED_TRACE(c.line.toStdString());
        EXPECT_EQ(CommandLine::split(c.line), c.words);
    }
}

TEST(CommandLine, JoinIsUndoneBySplit)
{
    const QStringList words{u"C:\\Program Files\\x.exe"_s,
                            u"plain"_s,
                            u"with blank"_s,
                            u"quote\"inside"_s,
                            u"trailing\\"_s,
                            u"blank and trailing\\"_s,
                            u""_s};
    EXPECT_EQ(CommandLine::split(CommandLine::join(words)), words);
}
