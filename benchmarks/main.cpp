#include "Rows.h"

#include <QApplication>
#include <QLoggingCategory>

#include <cstdio>

using namespace CUI::Bench;

namespace {

// To add a row, write a function that makes a Trial, declare it in Rows.h and name it here. Where a
// name does not say how many actions there are, there are 10,000.
const std::vector<Row> rows = {
        // name, rival, limit, rounds, what is measured
        {"load/10k", "a bare check and reading of the two files", 1.4, 15,
         loadingBesideBareReading},
        {"save/10k steps", "a bare check and reading of the file", 1.5, 15, saving},
        {"sets/first listing of 200", "a bare check of the 200 files", 1.3, 8, firstListingOfSets},
        {"sets/listing again", "the first listing", 0.1, 8, laterListingOfSets},

        {"edit/displacing, 1,000 unsaved", "what nobody notices", 1.0, 60, edit},
        {"edit/cancelling 10,000 steps", "what nobody notices", 1.0, 60, cancellingOf10k},
        {"audit/all hotkeys", "a frame of 60 Hz", 2.0, 10, audit},
        {"sheet/HTML", "a tenth of a second", 1.0, 10, sheet},

        {"type/one letter", "the toolkit's proxy", 1.0, 12, [] { return typing(0); }},
        {"type/two letters", "the toolkit's proxy", 1.0, 12, [] { return typing(1); }},
        {"type/a common word", "the toolkit's proxy", 1.0, 12, [] { return typing(2); }},
        {"type/two words", "the toolkit's proxy", 1.0, 12, [] { return typing(3); }},
        {"type/a rare word", "the toolkit's proxy", 1.0, 12, [] { return typing(4); }},
        {"type/nothing", "the toolkit's proxy", 1.0, 12, [] { return typing(5); }},
        {"type/a hotkey", "the toolkit's proxy", 1.0, 12, hotkey},
        {"sort/by action", "the toolkit's proxy", 1.0, 12, [] { return sorting(0); }},
        {"sort/by hotkey", "the toolkit's proxy", 1.0, 12, [] { return sorting(1); }},
        {"sort/by group", "the toolkit's proxy", 1.0, 12, [] { return sorting(2); }},
        {"sort/by category", "the toolkit's proxy", 1.0, 12, [] { return sorting(3); }},
        {"model/loading 10k actions", "inserting 40k items", 1.7, 20, loadingOfModel},

        {"editor/opening", "KDE's shortcut editor", 0.5, 6, openingOfEditor},
        {"editor/typing the sequence", "KDE's shortcut editor", 0.5, 8, sequenceInEditor},
        {"editor/selecting", "a frame of 60 Hz", 1.0, 15, selectionInEditor},
        {"editor/assigning", "a frame of 60 Hz", 1.0, 15, assignmentInEditor},
        {"editor/removing", "a frame of 60 Hz", 1.0, 15, removalInEditor},
        {"editor/undoing, 1,000 unsaved", "a frame of 60 Hz", 1.0, 15, undoingInEditor},
        {"editor/switching sets", "loading without an editor", 1.3, 6, switchBetweenSets},

        {"palette/opening", "a frame of 60 Hz", 1.0, 15, openingOfPalette},
        {"palette/a keystroke", "a frame of 60 Hz", 1.0, 15, keystrokeInPalette},
        {"conflicts/following an edit", "a frame of 60 Hz", 2.0, 15, editBesideConflicts},
        {"keyboard/a modifier", "a frame of 60 Hz", 1.0, 15, modifierOfKeyboard},
        {"keyboard/following an edit", "a frame of 60 Hz", 1.0, 15, editBesideKeyboard},

        // The rest registers 100,000 actions, and has to come last.
        {"load/100k", "loading 10k", 14.0, 6, loadingOf100k},
        // 10 * log(100,000) / log(10,000), and the caches of the processor hold less of it.
        {"type/the sequence, 100k", "10k actions", 14.0, 5, sequenceOf100k},
};

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    // Every key that is pressed writes a line, and so does every window on a screen that does not
    // exist.
    QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false\ndefault.warning=false"));

    const QStringList names = QCoreApplication::arguments().mid(1);
    if (measure(rows, {names.begin(), names.end()}))
        return 0;
    std::puts("\nA limit is exceeded.");
    return 1;
}
