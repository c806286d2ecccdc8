#include "BrowsingRival.h"
#include "BrowsingStage.h"
#include "Configuration.h"
#include "QvelHotkeyHistory.h"
#include "QvelShortcutsWidget.h"
#include "Rows.h"
#include "VelAction.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>

#include <cstdio>

namespace CUI::Bench {

namespace {

constexpr int usualSize = 10000;
constexpr int smallSize = 1000;
constexpr double frame = 1.0 / 60.0;

/// The hotkey editor over a stage, as large as its rival.
class EditorScreen : public Searcher
{
public:
    explicit EditorScreen(Stage &stage) : m_stage(stage)
    {
        stage.select();
        m_openingSeconds = busySecondsOf([this] { open(); });
    }

    double openingSeconds() const { return m_openingSeconds; }
    QvelShortcutsWidget &editor() { return *m_editor; }

    template <typename Widget>
    Widget *child(const char *name)
    {
        return m_editor->findChild<Widget *>(QLatin1String(name));
    }

    void untilPainted()
    {
        m_tree->viewport()->update();
        m_watch->wait();
    }

    void type(const QString &text) override
    {
        m_search->setText(text);
        untilPainted();
    }

    int listedCount() const override { return m_tree->model()->rowCount(); }

    void select(int row)
    {
        const QModelIndex index = m_stage.model().index(row, 0);
        m_editor->setCurrentAction(m_stage.model().velActionFromModelIdx(index)->identifier(),
                                   false);
        untilPainted();
    }

    /// Gives the selected action Ctrl+Alt+F11, which no other has.
    void assign()
    {
        auto *field = child<QLineEdit>("HotkeyEditor_shortcutLineEdit");
        QKeyEvent press(QEvent::KeyPress, Qt::Key_F11, Qt::ControlModifier | Qt::AltModifier);
        QApplication::sendEvent(field, &press);
        child<QPushButton>("HotkeyEditor_assignShortcutBtn")->click();
        untilPainted();
    }

    /// Takes it away again: the newest row is on top.
    void remove()
    {
        const auto buttons = m_editor->findChildren<QPushButton *>(
                QStringLiteral("HotkeyEditor_removeAssignedButton"));
        buttons.last()->click();
        untilPainted();
    }

    QString hotkeys() const
    {
        const VelAction *action = m_editor->currentAction();
        return action == nullptr ? QString()
                                 : m_stage.store().getShortcutsFromActionId(action->identifier());
    }

private:
    void open()
    {
        m_model = std::make_unique<QvelActionItemModel>(&m_stage.store());
        m_editor = std::make_unique<QvelShortcutsWidget>(m_model.get(), &m_stage.store());
        m_search = child<QLineEdit>("HotkeyEditor_searchLineEdit");
        m_tree = child<QTreeView>("HotkeyEditor_keyActionsTreeView");
        m_watch = std::make_unique<PaintWatch>(*m_tree);
        m_editor->resize(800, 600);
        m_editor->show();
        m_watch->wait();
    }

    Stage &m_stage;
    std::unique_ptr<QvelActionItemModel> m_model;
    std::unique_ptr<QvelShortcutsWidget> m_editor;
    QLineEdit *m_search = nullptr;
    QTreeView *m_tree = nullptr;
    std::unique_ptr<PaintWatch> m_watch;
    double m_openingSeconds = 0.0;
};

void compareOpening(benchmark::State &state, Stages &stages)
{
    Stage &stage = stages.ofSize(usualSize);
    if (isWrong(state, EditorScreen(stage).listedCount() == usualSize
                               ? QString()
                               : QStringLiteral("not all actions are listed")))
        return;
    compare(
            state, 0.5, [&] { return EditorScreen(stage).openingSeconds(); },
            [] { return secondsToOpenShortcutsEditor(usualSize); });
}

void compareTyping(benchmark::State &state, Stages &stages)
{
    EditorScreen screen(stages.ofSize(usualSize));
    const std::unique_ptr<Searcher> rival = makeShortcutsEditor(usualSize);
    screen.type(QStringLiteral("edges"));
    rival->type(QStringLiteral("edges"));
    if (isWrong(state, screen.listedCount() == rival->listedCount()
                               ? QString()
                               : QStringLiteral("%1 rows are listed").arg(screen.listedCount())))
        return;
    compare(
            state, 0.5, [&] { return secondsOfSequence(screen); },
            [&] { return secondsOfSequence(*rival); });
}

/// One of the three things that a user does over and over; undoes what it has done.
enum class Deed { Select, Assign, Remove };

double secondsOf(EditorScreen &screen, Deed deed)
{
    constexpr int row = 30;
    screen.select(row + 1);
    if (deed == Deed::Select)
        return Bench::secondsOf([&] { screen.select(row); });
    screen.select(row);
    const double assigning = Bench::secondsOf([&] { screen.assign(); });
    const double removing = Bench::secondsOf([&] { screen.remove(); });
    return deed == Deed::Assign ? assigning : removing;
}

QString faultOfDeeds(EditorScreen &screen)
{
    const QString added = QStringLiteral("Ctrl+Alt+F11");
    screen.select(30);
    const QString before = screen.hotkeys();
    screen.assign();
    if (!screen.hotkeys().endsWith(added))
        return QStringLiteral("nothing is assigned");
    screen.remove();
    return screen.hotkeys() == before ? QString() : QStringLiteral("nothing is removed");
}

void compareDeed(benchmark::State &state, Stages &stages, Deed deed)
{
    EditorScreen screen(stages.ofSize(usualSize));
    if (isWrong(state, faultOfDeeds(screen)))
        return;
    compare(
            state, 1.0, [&] { return secondsOf(screen, deed); }, [] { return frame; });
}

void compareSizesOfDeed(benchmark::State &state, Stages &stages, Deed deed)
{
    Stage &usual = stages.ofSize(usualSize);
    Stage &small = stages.ofSize(smallSize);
    EditorScreen large(usual);
    EditorScreen rival(small);
    usual.select();
    QString fault = faultOfDeeds(large);
    small.select();
    fault += faultOfDeeds(rival);
    if (isWrong(state, fault))
        return;
    const auto measure = [deed](Stage &stage, EditorScreen &screen) {
        stage.select();
        return secondsOf(screen, deed);
    };
    compare(
            state, 2.0, [&] { return measure(usual, large); },
            [&] { return measure(small, rival); });
}

/// Writes a set of a thousand steps and returns its path.
QString writeSet(const QString &directory, const QString &name, int firstHotkey)
{
    const QString path = directory + QLatin1Char('/') + name + QLatin1String(".hsx");
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        qFatal("A set cannot be written.");
    file.write("<VelHotkeyTransformations>\n");
    for (int i = 0; i < 1000; ++i)
        file.write(QStringLiteral("<Assign_Hotkey Shortcut=\"%1\" Id=\"%2\"/>\n")
                           .arg(unusedHotkey(firstHotkey + i).toHtmlEscaped(),
                                actionAt(i * 7).toString())
                           .toUtf8());
    file.write("</VelHotkeyTransformations>\n");
    return path;
}

void compareSwitching(benchmark::State &state, Workload &workload)
{
    const QString directory = workload.directory() + QLatin1String("/switching");
    QDir().mkpath(directory);
    const QStringList paths{writeSet(directory, QStringLiteral("One"), 0),
                            writeSet(directory, QStringLiteral("Two"), 5000)};
    workload.listSetsIn(QString(), directory);
    const Configuration &base = workload.configuration(usualSize, Steps::Separate);
    QvelShortcutManager edited;
    QvelShortcutManager bare;
    workload.load(base, edited);
    workload.load(base, bare);
    QvelActionItemModel model(&edited);
    QvelShortcutsWidget editor(&model, &edited);
    editor.show();
    auto *sets = editor.findChild<QComboBox *>(QStringLiteral("HotkeyEditor_hotkeySetComboBox"));
    int next = 0;
    const auto choose = [&] {
        next = 1 - next;
        sets->setCurrentIndex(sets->findData(paths.at(next), Qt::ToolTipRole));
    };
    choose();
    bare.loadShortcutConfiguration(paths.at(next));
    if (isWrong(state, edited.currentTransformations().size() == 1000
                                       && edited.getShortcuts() == bare.getShortcuts()
                               ? QString()
                               : QStringLiteral("the stores differ")))
        return;
    compare(
            state, 1.3, [&] { return busySecondsOf(choose); },
            [&] { return busySecondsOf([&] { bare.loadShortcutConfiguration(paths.at(next)); }); });
}

/// The last of a thousand unsaved edits, undone and redone under an open editor.
void compareUndoing(benchmark::State &state, Workload &workload)
{
    constexpr int editCount = 1000;
    QvelShortcutManager store;
    workload.load(workload.configuration(usualSize, Steps::Separate), store);
    QvelHotkeyHistory history(&store);
    for (int i = 0; i < editCount; ++i)
        store.unassignShortcut(actionAt(i), firstHotkeyOf(i), nameOf(i));
    QvelActionItemModel model(&store);
    QvelShortcutsWidget editor(&model, &store);
    editor.show();
    const auto before = store.getShortcuts();
    history.undo();
    history.redo();
    if (isWrong(state, history.count() == editCount && store.getShortcuts() == before
                               ? QString()
                               : QStringLiteral("the edit is not redone")))
        return;
    compare(
            state, 1.0,
            [&] {
                const double seconds = Bench::secondsOf([&] {
                    history.undo();
                    QApplication::processEvents();
                });
                history.redo();
                QApplication::processEvents();
                return seconds;
            },
            [] { return frame; });
}

} // namespace

void addEditorRows(Workload &workload, Stages &stages)
{
    if (hasShortcutsEditor()) {
        addRow("editor/opening", "KDE's shortcut editor", 6,
               [&](benchmark::State &state) { compareOpening(state, stages); });
        addRow("editor/typing the sequence", "KDE's shortcut editor", 8,
               [&](benchmark::State &state) { compareTyping(state, stages); });
    } else {
        std::puts("editor/opening and typing are left out: KDE's shortcut editor "
                  "(libkf5xmlgui-dev) was not there at the build.");
    }
    const auto addDeed = [&](const char *row, const char *sizes, Deed deed) {
        addRow(row, "a frame of 60 Hz", 15,
               [&stages, deed](benchmark::State &state) { compareDeed(state, stages, deed); });
        addRow(sizes, "1k actions", 30, [&stages, deed](benchmark::State &state) {
            compareSizesOfDeed(state, stages, deed);
        });
    };
    addDeed("editor/selecting", "editor/selecting, 10k actions", Deed::Select);
    addDeed("editor/assigning", "editor/assigning, 10k actions", Deed::Assign);
    addDeed("editor/removing", "editor/removing, 10k actions", Deed::Remove);
    addRow("editor/undoing, 10k actions", "a frame of 60 Hz", 15,
           [&](benchmark::State &state) { compareUndoing(state, workload); });
    addRow("editor/switching sets", "loading without an editor", 6,
           [&](benchmark::State &state) { compareSwitching(state, workload); });
}

} // namespace CUI::Bench
