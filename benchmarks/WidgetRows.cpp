#include "QvelCommandPalette.h"
#include "QvelConflictsWidget.h"
#include "QvelHotkeyHistory.h"
#include "QvelKeyboardWidget.h"
#include "Rows.h"
#include "Screens.h"

#include <QCoreApplication>
#include <QPlainTextEdit>

namespace CUI::Bench {

namespace {

/// Measures one of the three things that a user does over and over, each time after another.
Trial deed(void (EditorScreen::*prepare)(), void (EditorScreen::*run)())
{
    const auto hotkeys = [] {
        return Stage::instance().store().getShortcutsFromActionId(actionAt(EditorScreen::edited));
    };
    const auto screen = std::make_shared<EditorScreen>();
    screen->select();
    screen->assign();
    const QString assigned = hotkeys();
    screen->remove();
    const QString removed = hotkeys();
    screen->assign();
    return besideFrame(
            faultUnless(assigned != removed && hotkeys() == assigned,
                        "nothing is assigned or removed"),
            [screen, prepare] { ((*screen).*prepare)(); }, [screen, run] { ((*screen).*run)(); });
}

/// A store, and an editor over it.
struct Edited {
    Edited() { Configuration(usualCount).load(store); }

    QvelShortcutManager store;
    std::unique_ptr<EditorScreen> screen;
};

class PaletteScreen : public SearchWindow
{
public:
    PaletteScreen() : SearchWindow(makePalette(), "paletteSearch", "paletteList") { }

    void open()
    {
        static_cast<QvelCommandPalette &>(window()).open();
        untilPainted();
    }
    void close() { window().hide(); }

private:
    static std::unique_ptr<QWidget> makePalette()
    {
        Stage &stage = Stage::instance();
        auto palette = std::make_unique<QvelCommandPalette>(&stage.model(), &stage.store());
        palette->setRecentlyUsed({actionAt(usualCount / 2)});
        palette->open();
        return palette;
    }
};

/// Measures from an edit until a widget shows what has become of it.
template <typename View>
Trial following(const QString &hotkey)
{
    const auto view = std::make_shared<View>();
    const auto edit = [view, hotkey](bool assigns) {
        QvelShortcutManager &store = Stage::instance().store();
        (store
         .*(assigns ? &QvelShortcutManager::assignShortcut
                    : &QvelShortcutManager::unassignShortcut))(actionAt(7), hotkey, {});
        QCoreApplication::processEvents(); // the store is read once for all that has happened
        view->watch.wait();
    };
    const auto before = view->state();
    edit(true);
    const bool isFollowed = view->state() != before;
    edit(false);
    return besideFrame(
            faultUnless(isFollowed && view->state() == before, "the edit is not followed"),
            [edit] { edit(false); }, [edit] { edit(true); });
}

struct Conflicts {
    Conflicts()
    {
        widget.setAuditOptions(Stage::auditOptions());
        widget.setLeastSeverity(HotkeyFinding::Severity::Note);
        widget.resize(800, 600);
        widget.show();
        watch.wait();
    }

    std::size_t state() const { return widget.findings().size(); }

    QvelConflictsWidget widget{&Stage::instance().store()};
    PaintWatch watch{*widget.findChild<QTreeView *>(QStringLiteral("conflictsTable"))->viewport()};
};

struct Keyboard {
    Keyboard()
    {
        widget.resize(1040, 620);
        widget.show();
        widget.setCurrentHotkey(QStringLiteral("F5"));
        watch.wait();
    }

    void press(Qt::KeyboardModifiers modifiers)
    {
        widget.setModifiers(modifiers);
        QCoreApplication::processEvents();
        watch.wait();
    }
    QString state() const { return widget.findChild<QPlainTextEdit *>()->toPlainText(); }

    QvelKeyboardWidget widget{&Stage::instance().store()};
    PaintWatch watch{*widget.findChild<QWidget *>(QStringLiteral("QvelKeyboardWidget_keyboard"))};
};

} // namespace

Trial openingOfEditor()
{
    const auto isAllListed = EditorScreen().listedCount() == usualCount;
    const bool hasRival = openRival() != nullptr;
    const auto open = [] {
        std::unique_ptr<Searcher> screen;
        return secondsOf([&] { screen = std::make_unique<EditorScreen>(); });
    };
    const auto openRivals = [] {
        std::unique_ptr<Searcher> screen;
        return secondsOf([&] { screen = openRival(); });
    };
    return {faultUnless(isAllListed, "not all actions are listed"), open,
            hasRival ? std::function<double()>(openRivals) : nullptr};
}

Trial selectionInEditor()
{
    return deed(&EditorScreen::selectOther, &EditorScreen::select);
}

Trial assignmentInEditor()
{
    return deed(&EditorScreen::remove, &EditorScreen::assign);
}

Trial removalInEditor()
{
    return deed(&EditorScreen::assign, &EditorScreen::remove);
}

Trial undoingInEditor()
{
    const auto edited = std::make_shared<Edited>();
    auto *history = new QvelHotkeyHistory(&edited->store, &edited->store);
    for (int i = 0; i < 1000; ++i)
        edited->store.assignShortcut(actionAt(i), unusedHotkey(i), nameOf(i));
    edited->screen = std::make_unique<EditorScreen>(edited->store);
    const auto turn = [edited, history](int count) {
        history->setIndex(count);
        edited->screen->untilPainted();
    };
    const auto before = edited->store.getShortcuts();
    turn(999);
    const bool isUndone = edited->store.getShortcuts() != before;
    turn(1000);
    return besideFrame(
            faultUnless(isUndone && edited->store.getShortcuts() == before,
                        "the edit is not undone or redone"),
            [turn] { turn(1000); }, [turn] { turn(999); });
}

Trial switchBetweenSets()
{
    const auto bare = std::make_shared<Edited>();
    const auto shown = std::make_shared<Edited>();
    shown->screen = std::make_unique<EditorScreen>(shown->store);
    const QString directory = Stage::instance().host().path(QStringLiteral("switching"));
    const QStringList paths{writeSet(directory, 0, 1000), writeSet(directory, 1000, 2000)};
    const auto load = [paths](Edited &edited) {
        for (const QString &path : paths)
            edited.store.loadShortcutConfiguration(path);
    };
    load(*bare);
    load(*shown);
    return {faultUnless(shown->store.currentTransformations().size() == 1000
                                && shown->store.getShortcuts() == bare->store.getShortcuts(),
                        "the stores differ"),
            [shown, load] { return secondsOf([&] { load(*shown); }); },
            [bare, load] { return secondsOf([&] { load(*bare); }); }};
}

Trial openingOfPalette()
{
    const auto palette = std::make_shared<PaletteScreen>();
    return besideFrame(
            faultUnless(palette->listedCount() == usualCount, "not all actions are listed"),
            [palette] {
                palette->type(QStringLiteral("edges")); // as if it had been used
                palette->close();
            },
            [palette] { palette->open(); });
}

Trial keystrokeInPalette()
{
    const auto palette = std::make_shared<PaletteScreen>();
    // The first letter leaves the most rows.
    palette->type(QStringLiteral("e"));
    const int count = palette->listedCount();
    return besideFrame(
            faultUnless(count > 0 && count < usualCount, "nothing is searched"),
            [palette] { palette->type(QString()); },
            [palette] { palette->type(QStringLiteral("e")); });
}

Trial editBesideConflicts()
{
    return following<Conflicts>(QStringLiteral("Ctrl+Nonsense"));
}

Trial modifierOfKeyboard()
{
    const auto keyboard = std::make_shared<Keyboard>();
    const QString plain = keyboard->state();
    keyboard->press(Qt::ControlModifier);
    return besideFrame(
            faultUnless(keyboard->state() != plain, "the modifier makes no difference"),
            [keyboard] { keyboard->press(Qt::NoModifier); },
            [keyboard] { keyboard->press(Qt::ControlModifier); });
}

Trial editBesideKeyboard()
{
    return following<Keyboard>(QStringLiteral("F5"));
}

} // namespace CUI::Bench
