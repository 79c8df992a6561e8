#include "core/platform/Registry.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using platform::Registry;
using platform::RegistryRoot;

namespace
{

const char SystemReg[] = R"(WINE REGISTRY Version 2
;; All keys relative to \\Machine

#arch=win64

[Software\\Rail Simulator\\Packager Manager\\Installation] 1700000000
#time=1da0000000000
@="default text"
"Path"="C:\\Program Files\\Rail Simulator"
"Quoted"="say \"hi\" \\ done"
"Escaped"="caf\x00e9 \x20ac"
"Expand"=str(2):"%ProgramFiles%\\Game"
"Multi"=str(7):"one\0two\0"
"MultiHex"=hex(7):61,00,00,00,62,00,00,00,00,00
"Count"=dword:0000002a
"Negative"=dword:ffffffff
"Blob"=hex:01,02,ff,\
  10
"Wide"=hex(2):41,00,42,00,00,00
"Quad"=hex(b):01,00,00,00,00,00,00,00

[Software\\Wow6432Node\\Old Game] 1700000000
"Path"="C:\\Old"
)";

} // namespace

class RegistryTest : public testing::Test
{
protected:
    QTemporaryDir prefix;
    Registry registry{prefix.path()};
    const QString key = u"Software\\Rail Simulator\\Packager Manager\\Installation"_s;

    void SetUp() override { write(u"system.reg"_s, SystemReg); }

    void write(const QString &name, const QByteArray &text) const
    {
        QFile file(prefix.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }

    QVariant read(const QString &name, const QString &subkey = {}) const
    {
        return registry.value(RegistryRoot::LocalMachine, subkey.isEmpty() ? key : subkey, name)
            .orRaise();
    }
};

TEST_F(RegistryTest, ReadsEachTypeAsTheQueryGivesIt)
{
    EXPECT_EQ(read(u""_s), QVariant(u"default text"_s));
    EXPECT_EQ(read(u"path"_s), QVariant(u"C:\\Program Files\\Rail Simulator"_s));
    EXPECT_EQ(read(u"Quoted"_s), QVariant(u"say \"hi\" \\ done"_s));
    EXPECT_EQ(read(u"Escaped"_s), QVariant(u"caf\u00e9 \u20ac"_s));
    EXPECT_EQ(read(u"Expand"_s), QVariant(u"%ProgramFiles%\\Game"_s));
    EXPECT_EQ(read(u"Multi"_s), QVariant(u"one\0two"_s));
    EXPECT_EQ(read(u"MultiHex"_s), QVariant(u"a\0b"_s));
    EXPECT_EQ(read(u"Count"_s), QVariant(qint32(42)));
    EXPECT_EQ(read(u"Negative"_s), QVariant(qint32(-1)));
    EXPECT_EQ(read(u"Blob"_s), QVariant(QByteArray("\x01\x02\xff\x10", 4)));
    EXPECT_EQ(read(u"Wide"_s), QVariant(u"AB"_s));
}

TEST_F(RegistryTest, OtherTypesAndMissingValuesAreError1001)
{
    for (const QString &name : {u"Quad"_s, u"NoSuchValue"_s}) {
        SCOPED_TRACE(name.toStdString());
        const auto result = registry.value(RegistryRoot::LocalMachine, key, name);
        ASSERT_FALSE(result.ok());
        EXPECT_EQ(result.error().number, 1001);
        EXPECT_EQ(result.error().description, u"Unsupported value type"_s);
    }
}

TEST_F(RegistryTest, AMissingKeyGivesTheDefault)
{
    const auto result =
        registry.value(RegistryRoot::LocalMachine, u"Software\\Nothing"_s, u"Path"_s, 7);
    ASSERT_TRUE(result.ok());
    EXPECT_EQ(result.value(), QVariant(7));
    const auto user = registry.value(RegistryRoot::CurrentUser, key, u"Path"_s);
    ASSERT_TRUE(user.ok()); // there is no user.reg at all
    EXPECT_FALSE(user.value().isValid());
}

TEST_F(RegistryTest, FallsBackToTheWow6432NodeKey)
{
    EXPECT_EQ(read(u"Path"_s, u"software\\old game"_s), QVariant(u"C:\\Old"_s));
}

TEST_F(RegistryTest, MalformedFilesNeverCrash)
{
    const QByteArray broken[] = {
        "[Software\\\\Broken\n\"Path\"=\"unterminated\n",
        "[\n]\n[]\n\"=\n@\n\"x\"=hex:zz,\\\n",
        "[Software\\\\Broken] 1\n\"Path\"=str(:\"x\"\n\"Hex\"=hex(7):4\n\"Esc\"=\"\\x\\",
        QByteArray("\xff\xfe\x00[", 4),
    };
    for (const QByteArray &text : broken) {
        write(u"system.reg"_s, text);
        for (const QString &name : {u"Path"_s, u"Hex"_s, u"Esc"_s, u"x"_s, u""_s}) {
            (void)registry.value(RegistryRoot::LocalMachine, u"Software\\Broken"_s, name);
        }
    }
    const auto last =
        registry.value(RegistryRoot::LocalMachine, u"Software\\Broken"_s, u"Path"_s, 1);
    EXPECT_TRUE(last.ok());
}
