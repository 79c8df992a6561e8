// Converter speed: text throughput both ways on the largest sample, and a small tile converted
// in-process against the same conversion as a separate serz.exe process.

#include "serz/Converter.h"

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace
{

const fs::path samples = fs::path(BV_SAMPLES_DIR) / "serz";
const fs::path largest = samples / "Sharpe49+ReseauParisEst/Networks/Tracks.bin";
const fs::path smallTile = samples / "PilsenSpotter+obsluha_brniste/Scenery/+000007+000000.bin";

std::vector<std::byte> fileBytes(const fs::path &path)
{
    std::ifstream in(path, std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    const auto *first = reinterpret_cast<const std::byte *>(text.data());
    return {first, first + text.size()};
}

fs::path scratch(const char *name)
{
    return fs::temp_directory_path()
        / (std::string("serz-bench-") + std::to_string(getpid()) + name);
}

int runProcess(std::vector<std::string> args)
{
    std::vector<char *> argv;
    for (std::string &arg : args) {
        argv.push_back(arg.data());
    }
    argv.push_back(nullptr);
    posix_spawn_file_actions_t quiet;
    posix_spawn_file_actions_init(&quiet);
    posix_spawn_file_actions_addopen(&quiet, 1, "/dev/null", O_WRONLY, 0);
    pid_t pid = 0;
    const int started = posix_spawn(&pid, argv[0], &quiet, nullptr, argv.data(), environ);
    posix_spawn_file_actions_destroy(&quiet);
    if (started != 0) {
        return -1;
    }
    int status = 0;
    waitpid(pid, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

void BM_Converter_BinaryToXml(benchmark::State &state)
{
    const auto bin = fileBytes(largest);
    if (bin.empty()) {
        state.SkipWithError("samples not found");
        return;
    }
    std::size_t xmlSize = 0;
    for (auto _ : state) {
        const auto xml = serz::toXml(bin, {});
        xmlSize = xml.value().size();
        benchmark::DoNotOptimize(xml.value().data());
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * xmlSize));
    state.counters["xml_bytes"] = static_cast<double>(xmlSize);
}

BENCHMARK(BM_Converter_BinaryToXml)->Unit(benchmark::kMillisecond);

void BM_Converter_XmlToBinary(benchmark::State &state)
{
    const auto bin = fileBytes(largest);
    if (bin.empty()) {
        state.SkipWithError("samples not found");
        return;
    }
    const std::string xml = serz::toXml(bin, {}).value();
    for (auto _ : state) {
        const auto back = serz::toBinary(xml, {});
        benchmark::DoNotOptimize(back.value().data());
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * xml.size()));
}

BENCHMARK(BM_Converter_XmlToBinary)->Unit(benchmark::kMillisecond);

void BM_Converter_SmallTileInProcess(benchmark::State &state)
{
    const fs::path target = scratch("-inproc.xml");
    for (auto _ : state) {
        if (!serz::convertFile(smallTile, target, {})) {
            state.SkipWithError("conversion failed");
            break;
        }
    }
    fs::remove(target);
}

BENCHMARK(BM_Converter_SmallTileInProcess)->Unit(benchmark::kMicrosecond);

void BM_Converter_SmallTileAsProcess(benchmark::State &state)
{
    const std::string exe = (fs::path(BV_BIN_DIR) / "serz.exe").string();
    const fs::path target = scratch("-proc.xml");
    for (auto _ : state) {
        if (runProcess({exe, smallTile.string(), "xml:" + target.string()}) != 0) {
            state.SkipWithError("serz.exe failed");
            break;
        }
    }
    fs::remove(target);
}

BENCHMARK(BM_Converter_SmallTileAsProcess)->Unit(benchmark::kMicrosecond)->UseRealTime();

void BM_Converter_ProcessStartOnly(benchmark::State &state)
{
    const std::string exe = (fs::path(BV_BIN_DIR) / "serz.exe").string();
    for (auto _ : state) {
        runProcess({exe, "--help"});
    }
}

BENCHMARK(BM_Converter_ProcessStartOnly)->Unit(benchmark::kMicrosecond)->UseRealTime();

} // namespace
