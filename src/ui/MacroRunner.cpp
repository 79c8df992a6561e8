#include "ui/MacroRunner.h"

#include "core/platform/Failure.h"
#include "ui/Button.h"
#include "ui/CheckBox.h"
#include "ui/FileList.h"
#include "ui/Grid.h"
#include "ui/ListBox.h"
#include "ui/Menu.h"
#include "ui/OptionButton.h"
#include "ui/RichText.h"
#include "ui/TabStrip.h"
#include "ui/TextBox.h"
#include "ui/Transcript.h"
#include "ui/TreeView.h"

namespace ui
{

namespace
{

// Splits "verb rest of line"; the rest keeps its inner blanks.
std::pair<QString, QString> splitVerb(const QString &line)
{
    const qsizetype blank = line.indexOf(QLatin1Char(' '));
    if (blank < 0) {
        return {line, QString()};
    }
    return {line.left(blank), line.mid(blank + 1)};
}

QList<int> parseRows(const QString &rows)
{
    QList<int> out;
    for (const QString &part : rows.split(QLatin1Char(','), Qt::SkipEmptyParts)) {
        bool ok = false;
        const int row = part.trimmed().toInt(&ok);
        if (!ok) {
            throw MacroError(QStringLiteral("not a row number: ") + part);
        }
        out.append(row);
    }
    return out;
}

} // namespace

MacroRunner::MacroRunner(Forms &forms, ScriptedHost &host, QString mainWindow)
    : m_forms(forms)
    , m_host(host)
    , m_mainWindow(std::move(mainWindow))
{
}

int MacroRunner::run(const QStringList &lines)
{
    for (int i = 0; i < lines.size(); ++i) {
        const QString line = lines.at(i).trimmed();
        if (line.isEmpty() || line.startsWith(QLatin1Char('#'))) {
            continue;
        }
        try {
            runLine(line);
        } catch (const MacroError &error) {
            m_host.write(QStringLiteral("error line %1: %2").arg(i + 1).arg(error.reason()));
            return 2;
        } catch (const Unanswered &unanswered) {
            m_host.write(QStringLiteral("error line %1: no answer for %2")
                             .arg(i + 1)
                             .arg(unanswered.prompt()));
            return 2;
        } catch (const platform::Failure &failure) {
            // A failure that no trap of the program caught: the original would stop with a
            // run-time error here.
            m_host.write(QStringLiteral("error line %1: run-time error %2: %3")
                             .arg(i + 1)
                             .arg(failure.number())
                             .arg(failure.description()));
            return 2;
        }
        m_forms.collect();
    }
    return 0;
}

void MacroRunner::runLine(const QString &line)
{
    const auto [verb, rest] = splitVerb(line);
    if (verb == QLatin1String("menu")) {
        click(rest.contains(QLatin1Char('.')) ? rest : m_mainWindow + QLatin1Char('.') + rest);
    } else if (verb == QLatin1String("click")) {
        click(rest);
    } else if (verb == QLatin1String("dblclick")) {
        target(rest).control->fireDblClick();
    } else if (verb == QLatin1String("select")) {
        const auto [address, rows] = splitVerb(rest);
        select(address, rows);
    } else if (verb == QLatin1String("type")) {
        const auto [address, text] = splitVerb(rest);
        type(address, text);
    } else if (verb == QLatin1String("key")) {
        const auto [address, code] = splitVerb(rest);
        key(address, code);
    } else if (verb == QLatin1String("answer")) {
        Answer answer = Answer::OK;
        if (!parseAnswer(rest.trimmed(), answer)) {
            throw MacroError(QStringLiteral("no such answer: ") + rest);
        }
        m_host.queueAnswer(answer);
    } else if (verb == QLatin1String("input")) {
        m_host.queueInput(rest.isEmpty() ? std::nullopt : std::optional<QString>(rest));
    } else if (verb == QLatin1String("file")) {
        m_host.queueFile(rest);
    } else if (verb == QLatin1String("close")) {
        closeWindow(rest.trimmed());
    } else if (verb == QLatin1String("dump")) {
        dump(rest.trimmed(), false);
    } else if (verb == QLatin1String("dumprtf")) {
        dump(rest.trimmed(), true);
    } else if (verb == QLatin1String("replace")) {
        const auto [address, edit] = splitVerb(rest);
        replaceText(address, edit);
    } else if (verb == QLatin1String("find")) {
        const auto [address, term] = splitVerb(rest);
        findText(address, term);
    } else if (verb == QLatin1String("files")) {
        listFiles(rest.trimmed());
    } else {
        throw MacroError(QStringLiteral("unknown action ") + verb);
    }
}

MacroRunner::Target MacroRunner::target(const QString &address) const
{
    const qsizetype dot = address.indexOf(QLatin1Char('.'));
    Window *window = m_forms.find(dot < 0 ? address : address.left(dot));
    if (!window) {
        throw MacroError(QStringLiteral("no control ") + address);
    }
    if (dot < 0) {
        return {window, nullptr};
    }
    Control *control = window->control(address.mid(dot + 1));
    if (!control) {
        throw MacroError(QStringLiteral("no control ") + address);
    }
    return {window, control};
}

void MacroRunner::select(const QString &address, const QString &rows)
{
    Control *control = target(address).control;
    if (!control) {
        throw MacroError(QStringLiteral("no control ") + address);
    }
    if (auto *tabs = dynamic_cast<TabStrip *>(control)) {
        tabs->setTab(parseRows(rows).value(0));
    } else if (auto *tree = dynamic_cast<TreeView *>(control)) {
        bool isRow = false;
        const int row = rows.toInt(&isRow);
        const QStringList keys = tree->keysInOrder();
        if (isRow && (row < 0 || row >= keys.size())) {
            throw MacroError(QStringLiteral("no row %1 in %2").arg(row).arg(address));
        }
        tree->userSelect(isRow ? keys.at(row) : rows.trimmed());
    } else if (auto *grid = dynamic_cast<Grid *>(control)) {
        grid->userSelect(parseRows(rows));
    } else if (auto *dirs = dynamic_cast<DirList *>(control)) {
        const int row = parseRows(rows).value(0);
        dirs->setPath(dirs->path() + QLatin1Char('\\') + dirs->list(row));
    } else if (auto *drives = dynamic_cast<DriveList *>(control)) {
        drives->setDrive(rows.trimmed());
    } else if (auto *combo = dynamic_cast<ComboBox *>(control)) {
        combo->setListIndex(parseRows(rows).value(0));
    } else if (auto *list = dynamic_cast<ListBox *>(control)) {
        list->userSelect(parseRows(rows));
    } else {
        throw MacroError(QStringLiteral("cannot select in ") + address);
    }
}

void MacroRunner::click(const QString &address)
{
    Control *control = target(address).control;
    if (!control) {
        throw MacroError(QStringLiteral("no control ") + address);
    }
    if (!control->enabled()) {
        throw MacroError(address + QStringLiteral(" is disabled"));
    }
    if (auto *check = dynamic_cast<CheckBox *>(control)) {
        check->click();
    } else if (auto *option = dynamic_cast<OptionButton *>(control)) {
        option->click();
    } else {
        control->fireClick();
    }
}

void MacroRunner::type(const QString &address, const QString &text)
{
    Control *control = target(address).control;
    if (auto *box = dynamic_cast<TextBox *>(control)) {
        box->setText(text);
    } else if (auto *rich = dynamic_cast<RichText *>(control)) {
        rich->setText(text);
    } else if (auto *combo = dynamic_cast<ComboBox *>(control)) {
        combo->setText(text);
    } else if (auto *tree = dynamic_cast<TreeView *>(control)) {
        tree->finishLabelEdit(text);
    } else {
        throw MacroError(QStringLiteral("cannot type into ") + address);
    }
}

void MacroRunner::key(const QString &address, const QString &code)
{
    Control *control = target(address).control;
    if (!control) {
        throw MacroError(QStringLiteral("no control ") + address);
    }
    bool ok = false;
    int keyAscii = code.trimmed().toInt(&ok);
    if (!ok) {
        throw MacroError(QStringLiteral("not a key code: ") + code);
    }
    control->fireKeyPress(keyAscii);
}

void MacroRunner::dump(const QString &address, bool rtf)
{
    const Target t = target(address);
    const QString head = QStringLiteral("dump ") + address;
    if (!t.control) {
        m_host.write(head + QStringLiteral(" = ") + quoted(t.window->caption()));
        return;
    }
    if (rtf) {
        auto *rich = dynamic_cast<RichText *>(t.control);
        if (!rich) {
            throw MacroError(address + QStringLiteral(" holds no rich text"));
        }
        m_host.write(head + QStringLiteral(" = ") + quoted(rich->textRtf()));
        return;
    }
    const QStringList rows = t.control->dumpRows();
    if (!t.control->dumpsAsRows()) {
        const QString value = t.control->dumpValue();
        m_host.write(head + QStringLiteral(" = ") + quoted(rows.value(0))
                     + (value.isEmpty() ? QString() : QLatin1Char(' ') + value));
        return;
    }
    if (rows.isEmpty()) {
        m_host.write(head + QStringLiteral(" (no rows)"));
    }
    for (int row = 0; row < rows.size(); ++row) {
        m_host.write(QStringLiteral("%1[%2] = %3%4")
                         .arg(head)
                         .arg(row)
                         .arg(quoted(rows.at(row)))
                         .arg(t.control->isRowSelected(row) ? QStringLiteral(" *") : QString()));
    }
}

// "OLD -> NEW": the first OLD in a text box or rich text box becomes NEW, as a user's edit.
void MacroRunner::replaceText(const QString &address, const QString &edit)
{
    const qsizetype arrow = edit.indexOf(QStringLiteral(" -> "));
    if (arrow < 0) {
        throw MacroError(QStringLiteral("replace needs OLD -> NEW"));
    }
    const QString before = edit.left(arrow);
    const QString after = edit.mid(arrow + 4);
    Control *control = target(address).control;
    auto edited = [&](const QString &text) {
        const qsizetype at = text.indexOf(before);
        if (at < 0) {
            throw MacroError(QStringLiteral("no ") + quoted(before) + QStringLiteral(" in ")
                             + address);
        }
        return QString(text).replace(at, before.size(), after);
    };
    if (auto *box = dynamic_cast<TextBox *>(control)) {
        box->setText(edited(box->text()));
    } else if (auto *rich = dynamic_cast<RichText *>(control)) {
        rich->setText(edited(rich->text()));
    } else {
        throw MacroError(QStringLiteral("cannot edit ") + address);
    }
}

// Writes where a text stands in a control's text, from 1 (0: not there).
void MacroRunner::findText(const QString &address, const QString &term)
{
    const QStringList rows = target(address).control->dumpRows();
    const qsizetype at = rows.join(QLatin1Char('\n')).indexOf(term);
    m_host.write(QStringLiteral("find ") + address + QLatin1Char(' ') + quoted(term)
                 + QStringLiteral(" -> ") + QString::number(at + 1));
}

void MacroRunner::listFiles(const QString &pattern)
{
    if (!m_files) {
        throw MacroError(QStringLiteral("no file lister"));
    }
    m_host.write(QStringLiteral("files ") + quoted(pattern));
    for (const QString &name : m_files(pattern)) {
        m_host.write(QStringLiteral("  ") + quoted(name));
    }
}

void MacroRunner::closeWindow(const QString &name)
{
    Window *window = m_forms.find(name);
    if (!window) {
        throw MacroError(QStringLiteral("no control ") + name);
    }
    m_forms.unload(*window);
}

} // namespace ui
