#include "Configuration.h"

#include "BaseHotkeyFile.h"
#include "HotkeySetFile.h"
#include "QvelShortcutManager.h"

#include <QFile>

#include <memory>
#include <vector>

namespace CUI::Bench {

namespace {

enum class Change { Add, Displace, Remove };

Change changeOf(int action, Steps steps)
{
    const int kind = slotOf(action) % 10;
    if (kind >= 7)
        return Change::Remove;
    return kind >= 4 && steps == Steps::Displacing ? Change::Displace : Change::Add;
}

// The action of the same context that loses its first hotkey to this one.
int displacedBy(int action)
{
    return action - 4 * contextCount;
}

bool hasSecondHotkey(int action)
{
    return (slotOf(action) + action) % 5 < 2;
}

void writeFile(const QString &path, const std::vector<BaseHotkeyFile::Entry> &entries)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || !BaseHotkeyFile::write(file, entries))
        qFatal("A base hotkey file cannot be written.");
}

void writeFile(const QString &path, const std::vector<ShortcutTransformation> &steps)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly)
        || !HotkeySetFile::write(file, steps, HotkeySetFile::LockAttribute::WriteUnlocked))
        qFatal("A hotkey set file cannot be written.");
}

BaseHotkeyFile::Entry entryOf(int action)
{
    BaseHotkeyFile::Entry entry;
    entry.actionId = actionAt(action);
    entry.shortcuts << firstHotkeyOf(action);
    if (hasSecondHotkey(action))
        entry.shortcuts << secondHotkeyOf(action);
    entry.description = QStringLiteral("Command %1").arg(action);
    return entry;
}

ShortcutTransformation stepOf(int action, Steps steps)
{
    const QString description = QStringLiteral("Command %1").arg(action);
    switch (changeOf(action, steps)) {
    case Change::Remove:
        return {ShortcutTransformation::Unassign, actionAt(action), firstHotkeyOf(action),
                description};
    case Change::Displace:
        return {ShortcutTransformation::Assign, actionAt(action),
                firstHotkeyOf(displacedBy(action)), description};
    case Change::Add:
        break;
    }
    return {ShortcutTransformation::Assign, actionAt(action), addedHotkeyOf(action), description};
}

} // namespace

int hotkeyCount(const QvelShortcutManager &store)
{
    int count = 0;
    for (const auto &[actionId, hotkeys] : store.getShortcuts())
        count += hotkeys.size();
    return count;
}

QString Configuration::faultOf(const QvelShortcutManager &store) const
{
    if (hotkeyCount(store) != hotkeysOfSet())
        return QStringLiteral("%1 hotkeys loaded").arg(hotkeyCount(store));
    if (store.currentTransformations().size() != static_cast<std::size_t>(actionCount))
        return QStringLiteral("%1 steps loaded").arg(store.currentTransformations().size());
    for (int i = 0; i < actionCount; ++i) {
        const ShortcutTransformation step = stepOf(i, steps);
        const ActionIdentifier owner = store.getActionIdFromShortcut(step.shortcut(), contextOf(i));
        const bool isAssigned = step.kind() == ShortcutTransformation::Assign;
        if (owner != (isAssigned ? actionAt(i) : ActionIdentifier()))
            return QStringLiteral("Step %1 was not applied").arg(i);
    }
    return store.isUserModified() ? QStringLiteral("The store counts as modified") : QString();
}

Workload::Workload()
{
    auto registry = std::make_unique<Registry>();
    m_registry = registry.get();
    std::unique_ptr<ICuiActionManager> installedRegistry = std::move(registry);
    ICuiActionManager::set(installedRegistry);

    auto paths = std::make_unique<Paths>();
    m_paths = paths.get();
    std::unique_ptr<IPathManager> installedPaths = std::move(paths);
    IPathManager::set(installedPaths);
}

Workload::~Workload()
{
    std::unique_ptr<ICuiActionManager> noRegistry;
    ICuiActionManager::set(noRegistry);
    std::unique_ptr<IPathManager> noPaths;
    IPathManager::set(noPaths);
}

const Configuration &Workload::configuration(int actionCount, Steps steps)
{
    Configuration &known = m_configurations[{actionCount, steps}];
    if (known.actionCount == 0)
        known = write(actionCount, steps);
    return known;
}

Configuration Workload::write(int actionCount, Steps steps) const
{
    Configuration result;
    result.actionCount = actionCount;
    result.steps = steps;
    const QString stem = QStringLiteral("%1/%2-%3")
                                 .arg(directory())
                                 .arg(actionCount)
                                 .arg(static_cast<int>(steps));
    result.basePath = stem + QLatin1String(".hsxb");
    result.setPath = stem + QLatin1String(".hsx");

    std::vector<BaseHotkeyFile::Entry> entries;
    std::vector<ShortcutTransformation> changes;
    for (int i = 0; i < actionCount; ++i) {
        entries.push_back(entryOf(i));
        changes.push_back(stepOf(i, steps));
    }
    writeFile(result.basePath, entries);
    writeFile(result.setPath, changes);
    return result;
}

void Workload::load(const Configuration &configuration, QvelShortcutManager &store)
{
    select(configuration.actionCount);
    m_paths->setBaseHotkeyFile(configuration.basePath);
    store.loadShortcutConfiguration(configuration.setPath);
}

} // namespace CUI::Bench
