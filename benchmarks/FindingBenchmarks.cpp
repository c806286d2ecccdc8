#include "BrowsingStage.h"
#include "Host.h"
#include "HotkeyAudit.h"
#include "QvelCommandPalette.h"
#include "QvelConflictsWidget.h"
#include "Rows.h"
#include "VelAction.h"

#include <QApplication>
#include <QLineEdit>

namespace CUI::Bench {

namespace {

constexpr int usualSize = 10000;
constexpr int smallSize = 1000;
constexpr double frame = 1.0 / 60.0;

HotkeyAudit::Options auditOptions()
{
    HotkeyAudit::Options options;
    options.everywhere = {0};
    return options;
}

void compareAudits(benchmark::State &state, Stages &stages)
{
    Stage &usual = stages.ofSize(usualSize);
    Stage &small = stages.ofSize(smallSize);
    std::size_t count = 0;
    const auto measure = [&count](Stage &stage) {
        stage.select();
        return secondsOf(
                [&] { count = HotkeyAudit(stage.store(), auditOptions()).findings().size(); });
    };
    measure(usual);
    if (isWrong(state, count > 0 ? QString() : QStringLiteral("nothing is found")))
        return;
    // Ten times the actions, in memory that the cache does not hold, and sorted.
    compare(
            state, 20.0, [&] { return measure(usual); }, [&] { return measure(small); });
}

/// A palette over a stage.
class PaletteScreen
{
public:
    explicit PaletteScreen(Stage &stage)
        : m_palette(&stage.model(), &stage.store()),
          m_search(m_palette.findChild<QLineEdit *>(QStringLiteral("paletteSearch"))),
          m_list(m_palette.findChild<QTreeView *>(QStringLiteral("paletteList"))),
          m_watch(*m_list)
    {
        stage.select();
        m_palette.setRecentlyUsed(
                {stage.model()
                         .velActionFromModelIdx(stage.model().index(usualSize / 2, 0))
                         ->identifier()});
    }

    int listedCount() const { return m_list->model()->rowCount(); }

    void open()
    {
        m_palette.open();
        untilPainted();
    }

    void close() { m_palette.hide(); }

    void type(const QString &text)
    {
        m_search->setText(text);
        untilPainted();
    }

private:
    void untilPainted()
    {
        m_list->viewport()->update();
        m_watch.wait();
    }

    QvelCommandPalette m_palette;
    QLineEdit *m_search;
    QTreeView *m_list;
    PaintWatch m_watch;
};

void compareOpening(benchmark::State &state, Stages &stages)
{
    PaletteScreen screen(stages.ofSize(usualSize));
    screen.open();
    if (isWrong(state, screen.listedCount() == usualSize
                               ? QString()
                               : QStringLiteral("not all actions are listed")))
        return;
    const auto reopen = [&screen] {
        screen.type(QStringLiteral("edges")); // as if it had been used
        screen.close();
        return secondsOf([&] { screen.open(); });
    };
    compare(state, 1.0, reopen, [] { return frame; });
}

void compareKeystroke(benchmark::State &state, Stages &stages)
{
    PaletteScreen screen(stages.ofSize(usualSize));
    screen.open();
    screen.type(QStringLiteral("e"));
    const int many = screen.listedCount();
    screen.type(QStringLiteral("ed"));
    if (isWrong(state,
                many > screen.listedCount() ? QString() : QStringLiteral("nothing is searched")))
        return;
    // The first letter leaves the most rows.
    const auto keystroke = [&screen] {
        screen.type(QString());
        return secondsOf([&] { screen.type(QStringLiteral("e")); });
    };
    compare(state, 1.0, keystroke, [] { return frame; });
}

/// From an edit until the table of all findings shows what has become of it.
void compareFollowing(benchmark::State &state, Stages &stages)
{
    Stage &stage = stages.ofSize(usualSize);
    stage.select();
    QvelConflictsWidget conflicts(&stage.store());
    conflicts.setAuditOptions(auditOptions());
    conflicts.setLeastSeverity(HotkeyFinding::Severity::Note);
    auto *table = conflicts.findChild<QTreeView *>(QStringLiteral("conflictsTable"));
    PaintWatch watch(*table);
    conflicts.resize(800, 600);
    conflicts.show();
    watch.wait();
    const auto edit = [&](bool assigns) {
        const ActionIdentifier action = actionAt(7);
        if (assigns)
            stage.store().assignShortcut(action, QStringLiteral("Ctrl+Nonsense"), QString());
        else
            stage.store().unassignShortcut(action, QStringLiteral("Ctrl+Nonsense"), QString());
        QApplication::processEvents();
        table->viewport()->update();
        watch.wait();
    };
    const auto isListed = [&conflicts] {
        const auto &findings = conflicts.findings();
        return std::any_of(findings.begin(), findings.end(), [](const HotkeyFinding &finding) {
            return finding.hotkey == QLatin1String("Ctrl+Nonsense");
        });
    };
    edit(true);
    const bool isFollowed = isListed();
    edit(false);
    if (isWrong(state,
                isFollowed && !isListed() ? QString() : QStringLiteral("nothing is followed")))
        return;
    const auto follow = [&edit] {
        const double seconds = secondsOf([&] { edit(true); });
        edit(false);
        return seconds;
    };
    compare(state, 2.0, follow, [] { return frame; });
}

} // namespace

void addFindingRows(Stages &stages)
{
    addRow("audit/10k actions", "1k actions", 10,
           [&](benchmark::State &state) { compareAudits(state, stages); });
    addRow("conflicts/following an edit", "a frame of 60 Hz", 15,
           [&](benchmark::State &state) { compareFollowing(state, stages); });
    addRow("palette/opening", "a frame of 60 Hz", 15,
           [&](benchmark::State &state) { compareOpening(state, stages); });
    addRow("palette/a keystroke", "a frame of 60 Hz", 15,
           [&](benchmark::State &state) { compareKeystroke(state, stages); });
}

} // namespace CUI::Bench
