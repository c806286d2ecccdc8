#include "Commands.h"

#include "HostTranslations.h"
#include "KeyboardOptions.h"
#include "OutputFile.h"
#include "Session.h"
#include "TextOutput.h"

#include <UiCustomizations/HotkeySheet.h>

#include <QCommandLineParser>
#include <QLocale>
#include <QTextStream>

namespace HotkeyCtl {

namespace {

const QString output = QStringLiteral("output");
const QString contextOption = QStringLiteral("context");
const QString category = QStringLiteral("category");
const QString search = QStringLiteral("search");
const QString searchHotkey = QStringLiteral("search-hotkey");
const QString changed = QStringLiteral("changed");
const QString all = QStringLiteral("all");
const QString paper = QStringLiteral("paper");
const QString title = QStringLiteral("title");
const QString keyboard = QStringLiteral("keyboard");

/// Nothing, after telling why, when a context is not there.
std::optional<CUI::ActionFilter> filterOf(const QCommandLineParser &line, const Session &session)
{
    CUI::ActionFilter filter;
    for (const QString &name : line.values(contextOption)) {
        const auto contexts = session.contextsNamed(name);
        if (!contexts)
            return {};
        for (const Host::HostCatalogue::Context &context : *contexts)
            filter.contexts.push_back(context.id);
    }
    filter.categories = line.values(category);
    using State = CUI::ActionFilter::State;
    filter.state = line.isSet(changed) ? State::Customized
                   : line.isSet(all)   ? State::All
                                       : State::Assigned;
    const bool isForHotkey = line.isSet(searchHotkey);
    filter.search = line.value(isForHotkey ? searchHotkey : search);
    filter.searchIn = isForHotkey ? CUI::ActionFilter::SearchIn::Hotkeys
                                  : CUI::ActionFilter::SearchIn::Actions;
    return filter;
}

/// What is wrong with the options; empty when nothing is.
QString fault(const QCommandLineParser &line)
{
    if (!line.isSet(output))
        return QStringLiteral("sheet needs -o FILE");
    if (!CUI::HotkeySheet::formatOf(line.value(output))) {
        return QStringLiteral("FILE has to end in .html, .pdf, .md or .csv, unlike '%1'")
                .arg(line.value(output));
    }
    if (hasKeyboardOptions(line) && !line.isSet(keyboard))
        return QStringLiteral("--layout and --shape need --keyboard");
    using Format = CUI::HotkeySheet::Format;
    const auto format = CUI::HotkeySheet::formatOf(line.value(output));
    if (line.isSet(keyboard) && format != Format::Html && format != Format::Pdf) {
        return QStringLiteral("--keyboard needs a FILE that ends in .html or .pdf, since tables "
                              "have no pictures");
    }
    if (line.isSet(changed) && line.isSet(all))
        return QStringLiteral("--changed and --all exclude each other");
    if (line.isSet(search) && line.isSet(searchHotkey))
        return QStringLiteral("--search and --search-hotkey exclude each other");
    const QString size = line.value(paper).toLower();
    if (line.isSet(paper) && size != QLatin1String("a4") && size != QLatin1String("letter"))
        return QStringLiteral("--paper takes a4 or letter, not '%1'").arg(line.value(paper));
    return {};
}

QPageSize pageSizeOf(const QCommandLineParser &line)
{
    if (!line.isSet(paper))
        return CUI::HotkeySheet::defaultPageSize();
    const bool isA4 = line.value(paper).toLower() == QLatin1String("a4");
    return QPageSize(isA4 ? QPageSize::A4 : QPageSize::Letter);
}

ExitCode run(const QCommandLineParser &line, Session &session)
{
    QString wrong = fault(line);
    const auto layout = layoutOf(line, wrong);
    if (!wrong.isEmpty())
        return session.wrongUsage(wrong);
    const Session::Loading loading = session.load();
    if (loading == Session::Loading::Failed)
        return ExitCode::Problem;
    const auto filter = filterOf(line, session);
    if (!filter)
        return ExitCode::Problem;

    Host::installToolkitTranslations(QLocale::system()); // it is for users of that language
    CUI::HotkeySheet sheet(session.store(), *filter);
    if (line.isSet(title))
        sheet.setTitle(line.value(title));
    if (line.isSet(keyboard))
        sheet.setKeyboard(keyboardOf(*layout, session));
    const QString path = line.value(output);
    const QString reason = reasonAgainstPlace(path, session.presetDirectory());
    if (!reason.isEmpty())
        return session.problem(QStringLiteral("%1: is not written, because %2").arg(path, reason));
    if (!sheet.save(path, pageSizeOf(line)))
        return ExitCode::Problem; // the log says why
    session.out() << "Saved " << sheet.size() << " actions as " << printable(path) << ".\n";
    return loading == Session::Loading::Complete ? ExitCode::Done : ExitCode::Problem;
}

QList<QCommandLineOption> options()
{
    return {
            {{output, QStringLiteral("o")},
             QStringLiteral("The file to write; its suffix names the format: html, pdf, md, csv."),
             QStringLiteral("FILE")},
            {contextOption,
             QStringLiteral("Only the actions of the context NAME. May be repeated."),
             QStringLiteral("NAME")},
            {category, QStringLiteral("Only the actions of the category NAME. May be repeated."),
             QStringLiteral("NAME")},
            {search, QStringLiteral("Only actions whose names have all words of TEXT."),
             QStringLiteral("TEXT")},
            {searchHotkey, QStringLiteral("Only actions with that hotkey."),
             QStringLiteral("SHORTCUT")},
            {changed,
             QStringLiteral("Only actions with a hotkey that the base does not give them, or that\n"
                            "have lost all they had.")},
            {all, QStringLiteral("The actions without a hotkey, too.")},
            {paper, QStringLiteral("The size of a PDF's pages: a4 or letter."),
             QStringLiteral("SIZE")},
            {title, QStringLiteral("The heading, in place of 'Hotkeys'."), QStringLiteral("TEXT")},
            {keyboard,
             QStringLiteral(
                     "Pictures of the keyboard behind the list, in HTML and PDF: one for each\n"
                     "combination of Ctrl, Shift and Alt that has hotkeys.")},
    };
}

} // namespace

Command sheetCommand()
{
    Command command;
    command.name = QStringLiteral("sheet");
    command.synopsis =
            QStringLiteral("(-o | --output) FILE [--context NAME]... [--category NAME]... "
                           "[--search TEXT | --search-hotkey SHORTCUT] [--changed | --all] "
                           "[--paper SIZE] [--title TEXT] "
                           "[--keyboard [--layout NAME] [--shape SHAPE]]");
    command.summary = QStringLiteral("write a sheet of the hotkeys to print or to read");
    command.description = QStringLiteral(
            "Writes the hotkeys in effect, those of the base with the set on top, by context and\n"
            "category: a page to search and print (HTML), a document with page numbers and\n"
            "bookmarks (PDF), tables (Markdown) or a table for spreadsheets (CSV, RFC 4180). The\n"
            "actions are chosen as in the table of the hotkey editor. An existing FILE is\n"
            "replaced.\n"
            "\n"
            "When the current set or a base file cannot be loaded, the rest is written and the\n"
            "exit status is 1.\n"
            "\n"
            "Example: the keys of two contexts, to print\n"
            "  hotkeyctl sheet -o keys.pdf --context Mesh --context \"UV Editor\" --paper a4\n"
            "\n"
            "Example: all keys, with pictures of a German keyboard\n"
            "  hotkeyctl sheet -o keys.html --keyboard --layout de\n");
    command.options = options() + keyboardOptions();
    command.run = run;
    return command;
}

} // namespace HotkeyCtl
