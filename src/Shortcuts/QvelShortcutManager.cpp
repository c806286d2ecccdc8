#include "QvelShortcutManager.h"

#include "HotkeyChangeRecord.h"
#include "ICuiActionManager.h"
#include "KeyNames.h"
#include "KnownFile.h"
#include "ReassignmentLog.h"
#include "RecordedSteps.h"
#include "ShortcutOwnerIndex.h"

namespace CUI {

namespace {

constexpr std::size_t initialBuckets = 8;

using ShortcutMap = std::unordered_map<ActionIdentifier, QShortcutsList>;

QString joined(const ShortcutMap &map, const ActionIdentifier &identifier)
{
    const auto it = map.find(identifier);
    return it == map.end() ? QString() : it->second.join(QLatin1String(", "));
}

// Removes the first text that equals the hotkey exactly, and the entry with its last hotkey.
bool removeFromEntry(ShortcutMap &map, ShortcutMap::iterator entry, const QString &shortcut)
{
    const bool removed = entry->second.removeOne(shortcut);
    if (entry->second.isEmpty())
        map.erase(entry);
    return removed;
}

} // namespace

QvelShortcutManager::QvelShortcutManager(QObject *parent)
    : QObject(parent),
      currentShortcuts(initialBuckets),
      baseShortcuts(initialBuckets),
      transformations(std::make_unique<RecordedSteps>()),
      setFile(std::make_unique<KnownFile>()),
      ownerIndex(std::make_unique<ShortcutOwnerIndex>()),
      change(std::make_unique<ChangeRecord>())
{
}

QvelShortcutManager::~QvelShortcutManager() = default;

// Queries

const ShortcutMap &QvelShortcutManager::getShortcuts() const
{
    return currentShortcuts;
}

const ShortcutMap &QvelShortcutManager::getBaseShortcuts() const
{
    return baseShortcuts;
}

const std::vector<ShortcutTransformation> &QvelShortcutManager::currentTransformations() const
{
    return transformations->steps();
}

QString QvelShortcutManager::getShortcutsFromActionId(const ActionIdentifier &identifier) const
{
    return joined(currentShortcuts, identifier);
}

QString QvelShortcutManager::getBaseShortcutsFromActionId(const ActionIdentifier &identifier) const
{
    return joined(baseShortcuts, identifier);
}

ActionIdentifier QvelShortcutManager::getActionIdFromShortcut(const QString &shortcut,
                                                              unsigned long contextId) const
{
    return ownerIndex->owner(shortcut, contextId);
}

bool QvelShortcutManager::hasRoomForShortcuts(const ActionIdentifier &identifier) const
{
    const auto it = currentShortcuts.find(identifier);
    return it == currentShortcuts.end() || it->second.hasRoom();
}

bool QvelShortcutManager::isUserModified() const
{
    return modified;
}

bool QvelShortcutManager::isUserModifiedAction(const ActionIdentifier &identifier)
{
    return transformations->touches(identifier);
}

bool QvelShortcutManager::isUserModifiedShortcut(const ActionIdentifier &identifier,
                                                 const QString &shortcut)
{
    return transformations->touches(identifier, shortcut);
}

// Edits

void QvelShortcutManager::assignShortcut(const ActionIdentifier &identifier,
                                         const QString &shortcut, const QString &description)
{
    if (shortcut.isEmpty() || !hasRoomForShortcuts(identifier))
        return;
    const ShortcutTransformation step(ShortcutTransformation::Assign, identifier, shortcut,
                                      description);
    const ChangeScope scope(this, HotkeyChange::Kind::Edit);
    transformations->append(step);
    noteStep(step);
    // The step's copies: the caller's may be references into the map entry that is about to change.
    assignShortcutInternal(step.actionId(), step.shortcut(), true, false);
    checkModifiedAndEmit();
    Q_EMIT shortcutTransformAdded(step);
}

void QvelShortcutManager::unassignShortcut(const ActionIdentifier &identifier,
                                           const QString &shortcut, const QString &description)
{
    if (shortcut.isEmpty())
        return;
    const ShortcutTransformation step(ShortcutTransformation::Unassign, identifier, shortcut,
                                      description);
    const ChangeScope scope(this, HotkeyChange::Kind::Edit);
    transformations->append(step);
    noteStep(step);
    // The step's copies: the caller's may be references into the map entry that is about to change.
    unassignShortcutInternal(step.actionId(), step.shortcut(), true);
    checkModifiedAndEmit();
    Q_EMIT shortcutTransformAdded(step);
}

bool QvelShortcutManager::assignShortcutInternal(const ActionIdentifier &identifier,
                                                 const QString &shortcut, bool userModification,
                                                 bool checkRoom)
{
    if (checkRoom && !hasRoomForShortcuts(identifier))
        return false;

    QvelMessageLog *log = &QvelMessageLog::getInstance();
    ActionIdentifier holder;
    if (const ICuiActionManager *registry = ICuiActionManager::get()) {
        const VelAction *action = registry->getAction(identifier);
        const ScopedMessageTypeCap cap(log, action != nullptr ? QvelMessageLog::Info
                                                              : QvelMessageLog::Warning);
        if (action == nullptr) {
            logLazily(QvelMessageLog::Warning, [&] {
                return QStringLiteral("Action '%1' not found.").arg(identifier.toString());
            });
            return false;
        }
        holder = getActionIdFromShortcut(shortcut, action->contextId());
    }
    if (!holder.isEmpty() && holder != identifier) { // a conflict: the new action gets the hotkey
        const ScopedMessageTypeCap cap(log, QvelMessageLog::Warning);
        logReassignment(shortcut, holder, identifier);
        unassignShortcutInternal(holder, shortcut, userModification);
    }

    rememberHotkeys(identifier);
    if (!userModification)
        baseShortcuts[identifier].addShortcut(shortcut);
    if (currentShortcuts[identifier].addShortcut(shortcut))
        ownerIndex->add(shortcut, identifier);
    logLazily(QvelMessageLog::Debug, [&] {
        return QStringLiteral("Shortcut '%1' for Action '%2' added.")
                .arg(shortcut, identifier.toString());
    });
    Q_EMIT shortcutAssigned(identifier, shortcut);
    return true;
}

void QvelShortcutManager::unassignShortcutInternal(const ActionIdentifier &identifier,
                                                   const QString &shortcut, bool userModification)
{
    bool removedFromBase = false;
    if (!userModification) {
        const auto base = baseShortcuts.find(identifier);
        if (base != baseShortcuts.end()) {
            removeFromEntry(baseShortcuts, base, shortcut);
            removedFromBase = true;
        }
    }
    rememberHotkeys(identifier);
    const auto current = currentShortcuts.find(identifier);
    if (current != currentShortcuts.end()) {
        if (removeFromEntry(currentShortcuts, current, shortcut))
            ownerIndex->remove(shortcut, identifier);
    } else if (!removedFromBase) {
        return;
    }
    logLazily(QvelMessageLog::Debug, [&] {
        return QStringLiteral("Shortcut '%1' for Action '%2' removed.")
                .arg(shortcut, identifier.toString());
    });
    Q_EMIT shortcutUnassigned(identifier, shortcut);
}

void QvelShortcutManager::applyTransforms()
{
    const ChangeScope scope(this, HotkeyChange::Kind::Reset);
    baseShortcuts = currentShortcuts;
    transformations->forgetRefused();
    if (!transformations->steps().empty())
        dropTransforms();
}

void QvelShortcutManager::replaceTransforms(const std::vector<ShortcutTransformation> &callersSteps)
{
    const RecordedSteps::Steps steps = callersSteps; // the caller's may be the recorded ones
    const ChangeScope scope(this, HotkeyChange::Kind::Edit);
    rememberAllHotkeys();
    const RecordedSteps before = *transformations;
    currentShortcuts = baseShortcuts;
    ownerIndex->rebuild(currentShortcuts);
    transformations->clear();
    Q_EMIT shortcutTransformsCleared();
    for (const ShortcutTransformation &step : steps) {
        if (!recordStep(step))
            continue;
        noteStep(step);
        applyStep(step);
    }
    transformations->reclaimSaved(before);
    checkModifiedAndEmit();
}

void QvelShortcutManager::clearTransforms()
{
    if (transformations->steps().empty() && !transformations->lacksSavedSteps()) {
        transformations->forgetRefused();
        return;
    }
    const ChangeScope scope(this, HotkeyChange::Kind::Reset);
    currentShortcuts = baseShortcuts;
    ownerIndex->rebuild(currentShortcuts);
    dropTransforms();
}

void QvelShortcutManager::dropTransforms()
{
    transformations->clear();
    checkModifiedAndEmit();
    Q_EMIT shortcutTransformsCleared();
}

void QvelShortcutManager::collapseTransforms(std::size_t start)
{
    const ChangeScope scope(this, HotkeyChange::Kind::Upkeep);
    transformations->cancelFrom(start);
    Q_EMIT shortcutTransformsCollapsed();
}

void QvelShortcutManager::clearShortcuts()
{
    if (currentShortcuts.empty() && baseShortcuts.empty())
        return;
    const ChangeScope scope(this, HotkeyChange::Kind::Reset);
    currentShortcuts = ShortcutMap(initialBuckets);
    baseShortcuts = ShortcutMap(initialBuckets);
    ownerIndex->clear();
    transformations->clear();
    checkModifiedAndEmit();
    Q_EMIT shortcutsCleared();
}

// State

void QvelShortcutManager::restate(const ShortcutTransformation &step)
{
    const ChangeScope scope(this, HotkeyChange::Kind::Edit);
    transformations->restate(step);
    checkModifiedAndEmit();
    Q_EMIT shortcutTransformAdded(step);
}

void QvelShortcutManager::markStepsSaved()
{
    transformations->markSaved();
    checkModifiedAndEmit();
}

void QvelShortcutManager::checkModifiedAndEmit()
{
    if (transformations->hasUnsaved()) {
        transformations->cancelUnsaved();
        Q_EMIT shortcutTransformsCollapsed();
    }
    if (transformations->isModified())
        announceModified(true);
    else if (transformations->isUnmodified())
        announceModified(false);
}

void QvelShortcutManager::announceModified(bool isModified)
{
    if (modified == isModified)
        return;
    modified = isModified;
    if (modified)
        Q_EMIT shortcutsModified();
    else
        Q_EMIT shortcutsUnModified();
}

// Key names

bool QvelShortcutManager::keySequenceToVirtualKey(const QString &shortcut, int &virtualKey,
                                                  int &fVirt)
{
    return KeyNames::keySequenceToVirtualKey(shortcut, virtualKey, fVirt);
}

QString QvelShortcutManager::virtualKeyToStr(int virtualKey, int fVirt)
{
    return KeyNames::virtualKeyToStr(virtualKey, fVirt);
}

int QvelShortcutManager::keyToOEM(int key)
{
    return KeyNames::keyToOEM(key);
}

int QvelShortcutManager::oemToKey(int virtualKey)
{
    return KeyNames::oemToKey(virtualKey);
}

const QString QvelShortcutManager::getNumPadKeyName(QKeySequence::SequenceFormat format)
{
    return KeyNames::getNumPadKeyName(format);
}

} // namespace CUI
