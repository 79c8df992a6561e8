#include "TestFiles.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <sys/wait.h>

using namespace serztest;
namespace fs = std::filesystem;

namespace
{

const std::string minimalBinary = hex("5345525A 00000100 FF50 FFFF 01000000") + "r"
    + hex("00000000 01000000 FF56 FFFF 01000000") + "v" + hex("FFFF 06000000") + "sInt32"
    + hex("05000000 FF70 0000");

const std::string minimalXml =
    "<?xml version=\"1.0\" encoding=\"utf-8\"?>\r\n"
    "<r xmlns:d=\"http://www.kuju.com/TnT/2003/Delta\" d:version=\"1.0\">\r\n"
    "\t<v d:type=\"sInt32\">5</v>\r\n"
    "</r>\r\n";

class SerzProcess : public testing::Test
{
protected:
    struct Run {
        int exitCode = -1;
        std::string out;
        std::string err;
    };

    // Runs the built serz.exe with arguments passed as they are, each in single quotes.
    Run run(const std::vector<std::string> &args) const
    {
        std::string command = "'" + (fs::path(BV_BIN_DIR) / "serz.exe").string() + "'";
        for (const std::string &arg : args) {
            command += " '" + arg + "'";
        }
        const fs::path out = dir.path() / "stdout.txt";
        const fs::path err = dir.path() / "stderr.txt";
        command += " >'" + out.string() + "' 2>'" + err.string() + "'";
        const int status = std::system(command.c_str());
        Run run;
        run.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
        run.out = readText(out);
        run.err = readText(err);
        return run;
    }

    std::string file(const std::string &name) const { return (dir.path() / name).string(); }

    ScratchDir dir;
};

} // namespace

TEST_F(SerzProcess, ConvertsBothWaysWhateverThePrefixSays)
{
    writeBytes(file("a.bin"), minimalBinary);
    for (const std::string &target : {"xml:" + file("a.xml"),
                                      "/xml:\"" + file("a.xml") + "\"",
                                      "bin:" + file("a.xml"),
                                      file("a.xml")}) {
        SCOPED_TRACE(target);
        fs::remove(file("a.xml"));
        const Run r = run({file("a.bin"), target});
        EXPECT_EQ(r.exitCode, 0) << r.err;
        EXPECT_EQ(readText(file("a.xml")), minimalXml);
    }
    // The workbench turns text into a binary with an "xml:" prefix in places.
    for (const std::string &target :
         {"bin:\"" + file("b.bin") + "\"", "/bin:" + file("b.bin"), "xml:" + file("b.bin")}) {
        SCOPED_TRACE(target);
        fs::remove(file("b.bin"));
        const Run r = run({"\"" + file("a.xml") + "\"", target});
        EXPECT_EQ(r.exitCode, 0) << r.err;
        EXPECT_EQ(readText(file("b.bin")), minimalBinary);
    }
    EXPECT_EQ(run({file("a.bin"), "xml:" + file("lf.xml"), "--lf"}).exitCode, 0);
    EXPECT_EQ(readText(file("lf.xml")), withoutCr(minimalXml));
}

TEST_F(SerzProcess, FailuresLeaveTheTargetUntouched)
{
    writeBytes(file("empty.bin"), "");
    writeBytes(file("cut.bin"), minimalBinary.substr(0, 20));
    writeBytes(file("bad.xml"), "<?xml version=\"1.0\"?>\n<r>\n<v d:type=\"sInt32\">x</v></r>");
    writeBytes(file("unknown.xml"), "<r><v d:type=\"sInt33\">1</v></r>");
    writeBytes(file("broken.xml"), "<r><v></r>");
    writeBytes(file("good.bin"), minimalBinary);

    struct Case {
        std::string source;
        std::string target;
        std::string message;
    };

    const Case cases[] = {
        {file("empty.bin"), file("t.out"), "empty file"},
        {file("missing.bin"), file("t.out"), "cannot open"},
        {file("cut.bin"), file("t.out"), "at byte 17: file ends inside a token"},
        {file("bad.xml"), file("t.out"), "line 3, column 1: \"x\" is not a sInt32"},
        {file("unknown.xml"), file("t.out"), "unknown type \"sInt33\""},
        {file("broken.xml"), file("t.out"), "line 1, column 7: mismatched tag"},
        {file("good.bin"), file("no/such/folder/t.out"), "cannot write"},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.source);
        writeBytes(file("t.out"), "previous");
        const Run r = run({c.source, "xml:" + c.target});
        EXPECT_NE(r.exitCode, 0);
        EXPECT_TRUE(r.err.starts_with("serz: " + c.source + ": ")) << r.err;
        EXPECT_NE(r.err.find(c.message), std::string::npos) << r.err;
        EXPECT_EQ(r.err.find('\n'), r.err.size() - 1) << "one line";
        EXPECT_EQ(readText(file("t.out")), "previous");
    }
    // Nothing half-written is left beside the target.
    for (const auto &entry : fs::directory_iterator(dir.path())) {
        EXPECT_EQ(entry.path().string().find(".tmp"), std::string::npos) << entry.path();
    }
}

TEST_F(SerzProcess, UsageMistakesAreReported)
{
    for (const std::vector<std::string> &args : {std::vector<std::string>{},
                                                 {"only-one"},
                                                 {"a", "b", "c"},
                                                 {"--bogus", "a", "b"},
                                                 {"--check"}}) {
        const Run r = run(args);
        EXPECT_EQ(r.exitCode, 2);
        EXPECT_TRUE(r.err.starts_with("serz: ")) << r.err;
    }
}

TEST_F(SerzProcess, CheckReportsEachBinaryAndDecidesByStability)
{
    fs::create_directories(dir.path() / "tree/deeper");
    writeBytes(file("tree/deeper/ok.any"), minimalBinary);
    writeBytes(file("tree/skipped.xml"), minimalXml);
    Run r = run({"--check", file("tree")});
    EXPECT_EQ(r.exitCode, 0) << r.out;
    EXPECT_NE(r.out.find("OK   " + file("tree/deeper/ok.any")
                         + ": stable through XML; lossless: "
                           "byte-identical\n"),
              std::string::npos)
        << r.out;
    EXPECT_NE(r.out.find("1 binaries: 1 stable"), std::string::npos) << r.out;

    writeBytes(file("tree/broken.bin"), minimalBinary.substr(0, 30));
    r = run({"--check", file("tree")});
    EXPECT_EQ(r.exitCode, 1);
    EXPECT_NE(r.out.find("FAIL " + file("tree/broken.bin") + ": at byte"), std::string::npos);
}
