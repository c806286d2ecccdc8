#include "QvelActionItem.h"
#include "Rows.h"
#include "Screens.h"

#include <QStandardItemModel>

#include <algorithm>
#include <memory>
#include <vector>

namespace CUI::Bench {

namespace {

using Model = QvelActionItemModel;

/// What a user types, each text over the one before it.
const QStringList &sequence()
{
    static const QStringList texts =
            QStringLiteral("e,ed,edges,edges visible,quickly,").split(QLatin1Char(','));
    return texts;
}

double secondsOfSequence(Searcher &searcher)
{
    return secondsOf([&searcher] {
        for (const QString &text : sequence())
            searcher.type(text);
    });
}

/// What is wrong with the outcome of a search by name, which lists what holds every word.
QString faultOfNames(Searcher &searcher, const QString &search, int actionCount = usualCount)
{
    const QStringList words = search.split(QLatin1Char(' '));
    int expected = 0;
    for (int i = 0; i < actionCount; ++i) {
        const QString name = nameOf(i);
        expected += std::all_of(words.begin(), words.end(), [&name](const QString &word) {
            return name.contains(word, Qt::CaseInsensitive);
        });
    }
    searcher.type(search);
    return faultUnless(searcher.listedCount() == expected, "the wrong rows are listed");
}

double secondsOfTyping(Searcher &searcher, const QString &before, const QString &text)
{
    searcher.type(before);
    return secondsOf([&] { searcher.type(text); });
}

/// Sorts by the column of rows that are sorted by another.
double secondsOfSort(Screen &screen, int column)
{
    screen.sort(column == Model::ActionColumn ? Model::GroupColumn : Model::ActionColumn);
    return secondsOf([&] { screen.sort(column); });
}

std::unique_ptr<QSortFilterProxyModel> makeProxy(bool isRanking = true)
{
    auto proxy = std::make_unique<QvelSortFilterProxyModel>(&Stage::instance().store());
    proxy->setActionSearchSorting(isRanking);
    return proxy;
}

/// Our proxy and the toolkit's on a screen each.
struct Screens {
    explicit Screens(bool isRanking) : ours(Stage::instance().model(), makeProxy(isRanking)) { }

    Screen ours;
    Screen toolkits{Stage::instance().model(), std::make_unique<QSortFilterProxyModel>()};
};

/// Measures something on both screens.
template <typename Seconds>
Trial beside(const std::shared_ptr<Screens> &screens, const QString &fault, Seconds seconds)
{
    return {fault, [screens, seconds] { return seconds(screens->ours); },
            [screens, seconds] { return seconds(screens->toolkits); }};
}

} // namespace

Trial typing(int place)
{
    const auto screens = std::make_shared<Screens>(true);
    const QString text = sequence().at(place);
    const QString before = sequence().at((place + sequence().size() - 1) % sequence().size());
    return beside(screens, faultOfNames(screens->ours, text),
                  [before, text](Screen &screen) { return secondsOfTyping(screen, before, text); });
}

Trial hotkey()
{
    const auto screens = std::make_shared<Screens>(false);
    const QString text = QStringLiteral("Ctrl+Shift+A");
    for (Screen *screen : {&screens->ours, &screens->toolkits}) {
        screen->setSearchedColumn(Model::HotkeyColumn);
        screen->sort(Model::HotkeyColumn);
        screen->type(text);
    }
    // Ours also finds it among other modifiers.
    const int count = screens->ours.listedCount();
    return beside(screens,
                  faultUnless(count > screens->toolkits.listedCount() && count < usualCount / 10,
                              "the wrong rows are listed"),
                  [text](Screen &screen) { return secondsOfTyping(screen, {}, text); });
}

Trial sorting(int column)
{
    const auto screens = std::make_shared<Screens>(false);
    screens->ours.sort(column);
    screens->toolkits.sort(column);
    bool isRight = true;
    for (int row = 1; row < usualCount; ++row) {
        const QString text = screens->ours.text(row, column);
        // Ours compares hotkeys by their keys, and has rows without one at the end.
        const bool isInPlace =
                column == Model::HotkeyColumn
                        ? text.isEmpty() || !screens->ours.text(row - 1, column).isEmpty()
                        : text == screens->toolkits.text(row, column);
        isRight = isRight && isInPlace;
    }
    return beside(screens, faultUnless(isRight, "a row is misplaced"),
                  [column](Screen &screen) { return secondsOfSort(screen, column); });
}

Trial sequenceOf100k()
{
    Stage &stage = Stage::instance();
    const auto usual = std::make_shared<Screen>(stage.model(), makeProxy());
    const auto large = std::make_shared<Screen>(stage.largeModel(), makeProxy());
    QString fault;
    for (const QString &text : sequence())
        fault += faultOfNames(*large, text, largeCount);
    return {fault, [large] { return secondsOfSequence(*large); },
            [usual] { return secondsOfSequence(*usual); }};
}

Trial sequenceInEditor()
{
    const std::shared_ptr<Searcher> rival = openRival();
    if (rival == nullptr)
        return {};
    const auto editor = std::make_shared<EditorScreen>();
    editor->type(sequence().at(2));
    rival->type(sequence().at(2));
    return {faultUnless(editor->listedCount() == rival->listedCount(), "the wrong rows are listed"),
            [editor] { return secondsOfSequence(*editor); },
            [rival] { return secondsOfSequence(*rival); }};
}

Trial loadingOfModel()
{
    Stage &stage = Stage::instance();
    const auto load = [&stage] {
        std::unique_ptr<QvelActionItemModel> model;
        return secondsOf([&] { model = std::make_unique<QvelActionItemModel>(&stage.store()); });
    };
    const auto insert = [&rows = stage.model()] {
        QStandardItemModel model;
        std::vector<QString> texts;
        for (int i = 0; i < 4 * usualCount; ++i)
            texts.push_back(rows.item(i / 4, i % 4)->text());
        return secondsOf([&] {
            for (std::size_t i = 0; i < texts.size(); i += 4)
                model.appendRow({new QStandardItem(texts[i]), new QStandardItem(texts[i + 1]),
                                 new QStandardItem(texts[i + 2]), new QStandardItem(texts[i + 3])});
        });
    };
    const QvelActionItemModel model(&stage.store());
    const auto *last = model.itemFromVelAction(Model::ActionColumn, actionAt(usualCount - 1));
    return {faultUnless(model.rowCount() == usualCount && last != nullptr, "an action is missing"),
            load, insert};
}

} // namespace CUI::Bench
