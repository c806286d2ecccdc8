#include "BrowsingRival.h"
#include "BrowsingStage.h"
#include "Rows.h"
#include "SearchQuery.h"

#include <cstdio>
#include <iterator>

namespace CUI::Bench {

namespace {

constexpr int usualSize = 10000;
constexpr int largeSize = 100000;

/// What a user types, each text over the one before it.
struct Typed {
    const char *text;
    const char *row;
};
constexpr Typed sequence[] = {
        {"e", "type/one letter"},        {"ed", "type/two letters"},
        {"edges", "type/a common word"}, {"edges visible", "type/two words"},
        {"quickly", "type/a rare word"}, {"", "type/nothing"},
};

QString textOf(const Typed &typed)
{
    return QString::fromLatin1(typed.text);
}

/// What is wrong with the outcome of a search by name, which lists what holds every word, the names
/// that start with the text first.
QString faultOfNames(Stage &stage, const SearchScreen &screen, const QString &search)
{
    const QStringList words = search.split(QLatin1Char(' '));
    const auto comesBefore = [&search](const QString &a, const QString &b) {
        const bool isStart = a.startsWith(search, Qt::CaseInsensitive);
        return isStart == b.startsWith(search, Qt::CaseInsensitive)
                       ? a.compare(b, Qt::CaseInsensitive) < 0
                       : isStart;
    };
    int count = 0;
    QString first;
    for (int row = 0; row < stage.size(); ++row) {
        const QString name = stage.text(row, QvelActionItemModel::ActionColumn);
        const auto holds = [&name](const QString &word) {
            return name.contains(word, Qt::CaseInsensitive);
        };
        if (!std::all_of(words.begin(), words.end(), holds))
            continue;
        if (++count == 1 || comesBefore(name, first))
            first = name;
    }
    if (screen.rowCount() != count)
        return QStringLiteral("'%1' lists %2 rows").arg(search).arg(screen.rowCount());
    return screen.text(0, 0) == first ? QString() : QStringLiteral("'%1' is not first").arg(first);
}

QString faultOfTyping(Stage &stage, SearchScreen &screen)
{
    QString fault;
    for (const Typed &typed : sequence) {
        screen.type(textOf(typed));
        if (fault.isEmpty())
            fault = faultOfNames(stage, screen, textOf(typed));
    }
    return fault;
}

/// What is wrong with the outcome of a search by hotkey; the regular expression is asked of every
/// cell.
QString faultOfHotkeys(Stage &stage, SearchScreen &screen, const QString &hotkey)
{
    const SearchQuery query = SearchQuery::ofHotkey(hotkey, hotkey.split(QLatin1Char('+')));
    int count = 0;
    for (int row = 0; row < stage.size(); ++row) {
        SearchText hotkeys(stage.text(row, QvelActionItemModel::HotkeyColumn)
                                   .replace(QLatin1String(", "), QLatin1String(" ")));
        hotkeys.isSimple = false; // asks the regular expression
        count += query.matches(hotkeys) ? 1 : 0;
    }
    screen.type(hotkey);
    const int listed = screen.rowCount();
    screen.type(QString());
    return count > 0 && listed == count
                   ? QString()
                   : QStringLiteral("'%1' lists %2 rows").arg(hotkey).arg(listed);
}

const QString &searchedHotkey()
{
    static const QString hotkey = QStringLiteral("Ctrl+Shift+A");
    return hotkey;
}

/// Types one text of the sequence after the one before it.
double secondsOfText(Searcher &searcher, std::size_t place)
{
    searcher.type(textOf(sequence[(place + std::size(sequence) - 1) % std::size(sequence)]));
    const QString text = textOf(sequence[place]);
    return busySecondsOf([&] { searcher.type(text); });
}

double secondsOfHotkey(SearchScreen &screen)
{
    screen.type(QString());
    return busySecondsOf([&screen] { screen.type(searchedHotkey()); });
}

void compareText(benchmark::State &state, Stages &stages, std::size_t place)
{
    Stage &stage = stages.ofSize(usualSize);
    SearchScreen screen(stage);
    BareScreen rival(stage);
    if (isWrong(state, faultOfTyping(stage, screen)))
        return;
    compare(
            state, 1.0, [&] { return secondsOfText(screen, place); },
            [&] { return secondsOfText(rival, place); });
}

void compareSequence(benchmark::State &state, Stages &stages)
{
    Stage &stage = stages.ofSize(usualSize);
    SearchScreen screen(stage);
    const std::unique_ptr<Searcher> rival = makeShortcutsEditor(usualSize);
    QString fault = faultOfTyping(stage, screen);
    rival->type(QStringLiteral("edges"));
    screen.type(QStringLiteral("edges"));
    if (rival->listedCount() != screen.listedCount())
        fault = QStringLiteral("The rival lists %1 rows").arg(rival->listedCount());
    if (isWrong(state, fault))
        return;
    compare(
            state, 0.5, [&] { return secondsOfSequence(screen); },
            [&] { return secondsOfSequence(*rival); });
}

void compareHotkeySearch(benchmark::State &state, Stages &stages)
{
    Stage &stage = stages.ofSize(usualSize);
    SearchScreen screen(stage);
    SearchScreen names(stage);
    screen.searchHotkeys();
    if (isWrong(state, faultOfHotkeys(stage, screen, searchedHotkey()))
        || isWrong(state, faultOfTyping(stage, names)))
        return;
    const auto secondsOfName = [&names] {
        names.type(QString());
        return busySecondsOf([&names] { names.type(QStringLiteral("edges")); });
    };
    compare(
            state, 1.0, [&] { return secondsOfHotkey(screen); }, secondsOfName);
}

void compareSizesOfTyping(benchmark::State &state, Stages &stages)
{
    SearchScreen large(stages.ofSize(largeSize));
    SearchScreen usual(stages.ofSize(usualSize));
    if (isWrong(state, faultOfTyping(stages.ofSize(largeSize), large))
        || isWrong(state, faultOfTyping(stages.ofSize(usualSize), usual)))
        return;
    compare(
            state, 14.0, [&] { return secondsOfSequence(large); },
            [&] { return secondsOfSequence(usual); });
}

void compareSizesOfHotkeySearch(benchmark::State &state, Stages &stages)
{
    SearchScreen large(stages.ofSize(largeSize));
    SearchScreen usual(stages.ofSize(usualSize));
    large.searchHotkeys();
    usual.searchHotkeys();
    if (isWrong(state, faultOfHotkeys(stages.ofSize(largeSize), large, searchedHotkey()))
        || isWrong(state, faultOfHotkeys(stages.ofSize(usualSize), usual, searchedHotkey())))
        return;
    compare(
            state, 14.0, [&] { return secondsOfHotkey(large); },
            [&] { return secondsOfHotkey(usual); });
}

} // namespace

double secondsOfSequence(Searcher &searcher)
{
    return busySecondsOf([&searcher] {
        for (const Typed &typed : sequence)
            searcher.type(textOf(typed));
    });
}

void addTypingRows(Stages &stages)
{
    for (std::size_t place = 0; place < std::size(sequence); ++place) {
        addRow(sequence[place].row, "the toolkit's proxy", 12,
               [&stages, place](benchmark::State &state) { compareText(state, stages, place); });
    }
    if (hasShortcutsEditor()) {
        addRow("type/the whole sequence", "KDE's shortcut editor", 12,
               [&](benchmark::State &state) { compareSequence(state, stages); });
    } else {
        std::puts("type/the whole sequence is left out: KDE's shortcut editor (libkf5xmlgui-dev) "
                  "was not there at the build.");
    }
    addRow("type/a hotkey", "typing a common word", 12,
           [&](benchmark::State &state) { compareHotkeySearch(state, stages); });
    addRow("type/the sequence, 100k actions", "10k actions", 5,
           [&](benchmark::State &state) { compareSizesOfTyping(state, stages); });
    addRow("type/a hotkey, 100k actions", "10k actions", 8,
           [&](benchmark::State &state) { compareSizesOfHotkeySearch(state, stages); });
}

} // namespace CUI::Bench
