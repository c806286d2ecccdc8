#include "QvelShortcutManager.h"

#include "ICuiActionManager.h"
#include "KeyNames.h"
#include "LazyLog.h"
#include "ShortcutOwnerIndex.h"
#include "TransformationCollapser.h"

#include <algorithm>

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
      ownerIndex(std::make_unique<ShortcutOwnerIndex>()),
      collapser(std::make_unique<TransformationCollapser>())
{
}

QvelShortcutManager::~QvelShortcutManager() = default;

// Queries

const ShortcutMap &QvelShortcutManager::getShortcuts() const
{
    return currentShortcuts;
}

const std::vector<ShortcutTransformation> &QvelShortcutManager::currentTransformations() const
{
    collapser->compact(transformations);
    return transformations;
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
    const ICuiActionManager *registry = ICuiActionManager::get();
    if (registry == nullptr)
        return {};
    ActionIdentifier first;
    for (const ActionIdentifier &owner : ownerIndex->owners(shortcut)) {
        // Asked anew each time: the host may have given the action another context meanwhile.
        const VelAction *action = registry->getAction(owner);
        if (action != nullptr && action->contextId() == contextId
            && (first.isEmpty() || owner < first))
            first = owner;
    }
    return first;
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
    clampUserModTransformIndex();
    if (collapser->hasSettled(transformations, userModTransformIndex))
        return collapser->touches(identifier);
    const auto &steps = currentTransformations();
    return std::any_of(steps.begin() + static_cast<std::ptrdiff_t>(userModTransformIndex),
                       steps.end(), [&identifier](const ShortcutTransformation &step) {
                           return step.actionId() == identifier;
                       });
}

bool QvelShortcutManager::isUserModifiedShortcut(const ActionIdentifier &identifier,
                                                 const QString &shortcut)
{
    clampUserModTransformIndex();
    if (collapser->hasSettled(transformations, userModTransformIndex))
        return collapser->touches(transformations, identifier, shortcut);
    const auto &steps = currentTransformations();
    return std::any_of(steps.begin() + static_cast<std::ptrdiff_t>(userModTransformIndex),
                       steps.end(), [&](const ShortcutTransformation &step) {
                           return step.actionId() == identifier && step.shortcut() == shortcut;
                       });
}

// Edits

void QvelShortcutManager::assignShortcut(const ActionIdentifier &identifier,
                                         const QString &shortcut, const QString &description)
{
    if (shortcut.isEmpty() || !hasRoomForShortcuts(identifier))
        return;
    const ShortcutTransformation step(ShortcutTransformation::Assign, identifier, shortcut,
                                      description);
    transformations.push_back(step);
    // The step's copies: the caller's may lie inside the very map entry that is about to change.
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
    transformations.push_back(step);
    // The step's copies: the caller's may lie inside the very map entry that is about to change.
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
    if (!holder.isEmpty() && holder != identifier) {
        const ScopedMessageTypeCap cap(log, QvelMessageLog::Warning);
        logLazily(QvelMessageLog::Warning, [&] {
            return QStringLiteral("Removing existing shortcut '%1' from '%2' and assigning it to "
                                  "'%3'.")
                    .arg(shortcut, holder.toString(), identifier.toString());
        });
        unassignShortcutInternal(holder, shortcut, userModification);
    }

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
    baseShortcuts = currentShortcuts;
    if (transformationCount() > 0)
        dropTransforms();
}

void QvelShortcutManager::clearTransforms()
{
    if (transformationCount() == 0 && !hasLostSavedSteps)
        return;
    currentShortcuts = baseShortcuts;
    ownerIndex->rebuild(currentShortcuts);
    dropTransforms();
}

void QvelShortcutManager::dropTransforms()
{
    resetTransformations();
    checkModifiedAndEmit();
    Q_EMIT shortcutTransformsCleared();
}

void QvelShortcutManager::collapseTransforms(std::size_t start)
{
    collapser->settle(transformations, start);
    collapser->compact(transformations);
    Q_EMIT shortcutTransformsCollapsed();
}

void QvelShortcutManager::clearShortcuts()
{
    if (currentShortcuts.empty() && baseShortcuts.empty())
        return;
    currentShortcuts = ShortcutMap(initialBuckets);
    baseShortcuts = ShortcutMap(initialBuckets);
    ownerIndex->clear();
    resetTransformations();
    checkModifiedAndEmit();
    Q_EMIT shortcutsCleared();
}

// State

std::size_t QvelShortcutManager::transformationCount() const
{
    return collapser->count(transformations);
}

void QvelShortcutManager::resetTransformations()
{
    transformations.clear();
    collapser->reset();
    userModTransformIndex = 0;
    hasLostSavedSteps = false;
}

void QvelShortcutManager::setUserModTransformIndex(int index)
{
    userModTransformIndex = static_cast<std::uint64_t>(index);
    checkModifiedAndEmit();
}

void QvelShortcutManager::clampUserModTransformIndex()
{
    userModTransformIndex = std::min<std::uint64_t>(userModTransformIndex, transformationCount());
}

void QvelShortcutManager::checkModifiedAndEmit()
{
    if (userModTransformIndex < transformationCount()) {
        collapser->settle(transformations, userModTransformIndex);
        Q_EMIT shortcutTransformsCollapsed();
    }
    const std::size_t count = transformationCount();
    if ((userModTransformIndex < count || hasLostSavedSteps) && !modified) {
        modified = true;
        Q_EMIT shortcutsModified();
    } else if (userModTransformIndex == count && !hasLostSavedSteps && modified) {
        modified = false;
        Q_EMIT shortcutsUnModified();
    }
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
