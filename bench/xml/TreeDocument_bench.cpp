#include "ScenarioText.h"
#include "core/Services.h"
#include "core/Session.h"
#include "core/platform/PathMap.h"
#include "ui/Button.h"
#include "ui/Forms.h"
#include "ui/ListBox.h"
#include "ui/Menu.h"
#include "ui/ScriptedHost.h"
#include "ui/TextBox.h"
#include "ui/TreeView.h"
#include "ui/Window.h"
#include "xml/TreeEditor.h"
#include "xml/TreeState.h"

#include <QTemporaryDir>

#include <benchmark/benchmark.h>

namespace
{

// The tree page's controls and its editor, over a temporary program folder.
struct TreePage {
    QTemporaryDir root;
    platform::PathMap map = platform::PathMap::forHostRoot();
    ui::ScriptedHost host;
    core::Services services{map, host, root.path()};
    core::Session session{services, host, map};
    ui::Forms forms{host};
    ui::Window window{QStringLiteral("frmEditor")};
    ui::TreeView trevwContents;
    ui::ListBox lstAttributes;
    ui::TextBox txtAttributeValue, txtCharacters;
    ui::Button cmdAdd, cmdDel, cmdRename;
    ui::Menu mnuFileSave, mnuFileSaveAs, mnuNodePopUp, mnuNodePopUpNew, mnuNodePopupRename,
        mnuNodePopUpDelete, mnuEditCopy, mnuEditPaste;
    xml::TreeState state;
    xml::TreeEditor editor{session, forms, state, xml::treePageOf(window, *this)};
};

void BM_TreeDocument_LoadAndWrite20MB(benchmark::State &state)
{
    const QByteArray text = scenarioText(20 * 1024 * 1024);
    if (text.isEmpty()) {
        state.SkipWithError("samples not found");
        return;
    }
    TreePage page;
    const QString path =
        platform::toWindowsPath(page.root.filePath(QStringLiteral("scenario.xml")));
    int nodes = 0;
    for (auto _ : state) {
        state.PauseTiming();
        page.services.WriteBinary(path, text);
        bool cancelled = false;
        page.editor.reset(path, cancelled);
        state.ResumeTiming();
        page.editor.load();
        page.editor.write();
        nodes = page.trevwContents.count();
    }
    state.counters["nodes"] = nodes;
    state.SetBytesProcessed(int64_t(state.iterations()) * text.size());
}

BENCHMARK(BM_TreeDocument_LoadAndWrite20MB)->Unit(benchmark::kMillisecond)->Iterations(3);

} // namespace
