#include "ScenarioText.h"
#include "core/platform/Cp1252.h"
#include "ui/RichText.h"
#include "xml/Highlight.h"

#include <benchmark/benchmark.h>

namespace
{

// The text as the rich text box holds it: CR LF after each line.
QString boxText()
{
    QString text = platform::Cp1252::decode(scenarioText(20 * 1024 * 1024));
    return text.replace(QStringLiteral("\n"), QStringLiteral("\r\n"));
}

void BM_Highlight_Colorhtml20MB(benchmark::State &state)
{
    const QString text = boxText();
    if (text.isEmpty()) {
        state.SkipWithError("samples not found");
        return;
    }
    for (auto _ : state) {
        benchmark::DoNotOptimize(xml::colorhtml(text));
    }
    state.SetBytesProcessed(int64_t(state.iterations()) * text.size());
}

BENCHMARK(BM_Highlight_Colorhtml20MB)->Unit(benchmark::kMillisecond)->Iterations(3);

// What the highlight button does: the rich text, loaded into the box, then corrected.
void BM_Highlight_IntoTheBox20MB(benchmark::State &state)
{
    const QString text = boxText();
    if (text.isEmpty()) {
        state.SkipWithError("samples not found");
        return;
    }
    ui::RichText box;
    for (auto _ : state) {
        box.setTextRtf(xml::colorhtml(text));
        xml::correctHighlight(box);
    }
    state.counters["runs"] = double(box.runs().size());
}

BENCHMARK(BM_Highlight_IntoTheBox20MB)->Unit(benchmark::kMillisecond)->Iterations(2);

} // namespace
