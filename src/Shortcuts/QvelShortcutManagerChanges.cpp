#include "HotkeyChangeRecord.h"
#include "HotkeyEditGroup.h"
#include "ShortcutOwnerIndex.h"

#include <QMetaMethod>

#include <algorithm>

namespace CUI {

HotkeyChange::Kind HotkeyChange::kind() const
{
    return d != nullptr ? d->kind : Kind::Upkeep;
}

QString HotkeyChange::text() const
{
    return d != nullptr ? d->text : QString();
}

HotkeyEditGroup::HotkeyEditGroup(QvelShortcutManager *store, const QString &text) : m_store(store)
{
    if (store != nullptr)
        store->beginGroup(text);
}

HotkeyEditGroup::~HotkeyEditGroup()
{
    if (!m_store.isNull())
        m_store->endChange();
}

// Recording

void QvelShortcutManager::beginGroup(const QString &text)
{
    beginChange(HotkeyChange::Kind::Upkeep);
    if (change->groupText.isEmpty())
        change->groupText = text;
}

void QvelShortcutManager::beginChange(HotkeyChange::Kind kind)
{
    if (change->depth++ == 0) {
        change->isWanted =
                isSignalConnected(QMetaMethod::fromSignal(&QvelShortcutManager::hotkeysChanged));
        if (change->isWanted) {
            change->steps = *transformations;
            change->isModified = modified;
        }
    }
    change->kind = std::max(change->kind, kind);
}

void QvelShortcutManager::rememberHotkeys(const ActionIdentifier &identifier)
{
    if (!change->isWanted || change->hotkeys.count(identifier) > 0)
        return;
    const auto entry = currentShortcuts.find(identifier);
    change->hotkeys.emplace(identifier,
                            entry != currentShortcuts.end() ? entry->second : QShortcutsList());
}

void QvelShortcutManager::rememberAllHotkeys()
{
    if (!change->isWanted)
        return;
    for (const ShortcutMap *map : {&currentShortcuts, &baseShortcuts}) {
        for (const auto &entry : *map)
            rememberHotkeys(entry.first);
    }
}

void QvelShortcutManager::noteStep(const ShortcutTransformation &step)
{
    change->hasRecorded = true;
    if (change->isWanted)
        change->stepText = step.toString();
}

void QvelShortcutManager::endChange()
{
    if (--change->depth > 0)
        return;
    const ChangeRecord record = std::move(*change);
    *change = ChangeRecord();
    if (!record.isWanted)
        return;
    auto data = std::make_shared<HotkeyChange::Data>();
    data->kind = record.kind;
    if (record.kind != HotkeyChange::Kind::Reset) {
        for (const auto &[action, before] : record.hotkeys) {
            const auto entry = currentShortcuts.find(action);
            const QShortcutsList after =
                    entry != currentShortcuts.end() ? entry->second : QShortcutsList();
            if (before != after)
                data->hotkeys.push_back({action, before, after});
        }
        data->isModifiedBefore = record.isModified;
        data->isModifiedAfter = modified;
        data->steps = RecordedSteps::differenceOf(record.steps, *transformations);
        data->text = record.groupText.isEmpty() ? record.stepText : record.groupText;
    }
    const bool hasChanged = record.kind == HotkeyChange::Kind::Reset || record.hasRecorded
                            || !data->hotkeys.empty() || data->steps.isAny();
    if (hasChanged)
        Q_EMIT hotkeysChanged(HotkeyChange(std::move(data)));
}

// Restoring

void QvelShortcutManager::undoChange(const HotkeyChange &undone)
{
    restore(undone, false);
}

void QvelShortcutManager::redoChange(const HotkeyChange &redone)
{
    restore(redone, true);
}

void QvelShortcutManager::restore(const HotkeyChange &restored, bool forward)
{
    if (restored.d == nullptr || restored.kind() == HotkeyChange::Kind::Reset)
        return;
    for (const HotkeyChange::Data::Hotkeys &hotkeys : restored.d->hotkeys)
        setHotkeys(hotkeys.action, forward ? hotkeys.after : hotkeys.before);
    const bool isExact = transformations->apply(restored.d->steps, forward);
    if (isExact)
        announceModified(forward ? restored.d->isModifiedAfter : restored.d->isModifiedBefore);
    else
        announceModified(transformations->isModified());
    Q_EMIT shortcutTransformsCleared();
    if (!transformations->steps().empty())
        Q_EMIT shortcutTransformsCollapsed();
}

void QvelShortcutManager::setHotkeys(const ActionIdentifier &identifier,
                                     const QShortcutsList &hotkeys)
{
    const auto entry = currentShortcuts.find(identifier);
    if (entry != currentShortcuts.end()) {
        for (const QString &hotkey : entry->second)
            ownerIndex->remove(hotkey, identifier);
        currentShortcuts.erase(entry);
    }
    for (const QString &hotkey : hotkeys)
        ownerIndex->add(hotkey, identifier);
    if (!hotkeys.isEmpty())
        currentShortcuts.emplace(identifier, hotkeys);
}

} // namespace CUI
