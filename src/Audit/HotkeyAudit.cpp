#include "HotkeyAudit.h"

#include "HotkeyAuditTexts.h"
#include "HotkeyClaims.h"
#include "ICuiActionManager.h"
#include "JoinedHotkeys.h"
#include "KeyNames.h"
#include "NearbyKeys.h"
#include "QvelShortcutManager.h"
#include "SharedKey.h"

#include <QHash>

#include <algorithm>
#include <iterator>
#include <tuple>

namespace CUI {

namespace {

using Finding = HotkeyFinding;
using Kind = HotkeyFinding::Kind;
using Holder = HotkeyFinding::Holder;
using Options = HotkeyAudit::Options;
using System = HotkeyReservation::System;

constexpr int nearLimit = QShortcutsList::ShortcutLimitPerAction - 1;
constexpr int firstNamedKey = 0x01000000;
constexpr int keypad = Qt::KeypadModifier;

/// A key that an action holds.
struct HeldKey {
    QKeySequence key;
    Holder holder;
};

bool operator<(const HeldKey &a, const HeldKey &b)
{
    return std::tie(a.key, a.holder.contextId, a.holder.action)
           < std::tie(b.key, b.holder.contextId, b.holder.action);
}

using HeldKeys = std::vector<HeldKey>;

struct KeyOrder {
    bool operator()(const HeldKey &a, const QKeySequence &b) const { return a.key < b; }
    bool operator()(const QKeySequence &a, const HeldKey &b) const { return a < b.key; }
};

/// Calls @p function with each range of neighbours for which @p isSame holds.
template <typename Function, typename IsSame>
void forEachGroup(const HeldKeys &keys, IsSame isSame, Function function)
{
    for (auto first = keys.begin(); first != keys.end();) {
        const auto last = std::find_if_not(first, keys.end(),
                                           [&](const HeldKey &key) { return isSame(*first, key); });
        function(HeldKeys(first, last));
        first = last;
    }
}

bool haveSameKey(const HeldKey &a, const HeldKey &b)
{
    return a.key == b.key;
}

bool haveSameKeyAndContext(const HeldKey &a, const HeldKey &b)
{
    return a.key == b.key && a.holder.contextId == b.holder.contextId;
}

std::vector<Holder> holdersOf(const HeldKeys &keys)
{
    std::vector<Holder> holders;
    for (const HeldKey &held : keys) {
        // An action may have two texts for one key.
        if (holders.empty() || holders.back().action != held.holder.action)
            holders.push_back(held.holder);
    }
    return holders;
}

QString portableText(const QKeySequence &key)
{
    return key.toString(QKeySequence::PortableText);
}

/// The one key combination; 0 for several.
int combinationOf(const QKeySequence &key)
{
    return key.count() == 1 ? key[0] : 0;
}

bool isOnKeypad(int key)
{
    return (key >= Qt::Key_0 && key <= Qt::Key_9) || key >= firstNamedKey || key == Qt::Key_Asterisk
           || key == Qt::Key_Plus || key == Qt::Key_Minus || key == Qt::Key_Period
           || key == Qt::Key_Slash || key == Qt::Key_Comma || key == Qt::Key_Equal;
}

bool isTypeable(int combination, const std::optional<std::set<int>> &typeableKeys)
{
    const int key = combination & ~static_cast<int>(Qt::KeyboardModifierMask);
    if ((combination & keypad) != 0)
        return isOnKeypad(key);
    return key >= firstNamedKey || key == Qt::Key_Space || !typeableKeys
           || typeableKeys->count(key) != 0;
}

/// One audit while it is being made.
class Run
{
public:
    Run(const QvelShortcutManager &manager, const ICuiActionManager &registry,
        const Options &options)
        : m_manager(manager), m_registry(registry), m_options(options)
    {
    }

    void collect();
    void findHeldTwice();
    void findAcrossContexts();
    void findReserved();
    void findNotTypeable();
    void findSimilar(Kind kind, int modifier);
    void findLost();

    std::vector<Finding> takeFindings();
    HeldKeys takeKeys() { return std::move(m_keys); }

private:
    Finding &add(Kind kind, const QString &hotkey, std::vector<Holder> holders);
    QKeySequence keyOf(const QString &hotkey);
    void collect(const VelAction &action, const QShortcutsList &hotkeys);
    HeldKeys effectiveKeys() const;
    const HeldKey *holderOf(const QKeySequence &key, unsigned long contextId) const;
    void compareContexts(const HeldKeys &holders);

    const QvelShortcutManager &m_manager;
    const ICuiActionManager &m_registry;
    const Options &m_options;
    QHash<QString, QKeySequence> m_keyOfText; // reading one takes long, and many actions share it
    HotkeyClaims m_claims;
    HeldKeys m_keys; // sorted
    std::vector<Finding> m_findings;
};

Finding &Run::add(Kind kind, const QString &hotkey, std::vector<Holder> holders)
{
    Finding finding;
    finding.kind = kind;
    finding.severity = Finding::severityOf(kind);
    finding.hotkey = hotkey;
    finding.holders = std::move(holders);
    m_findings.push_back(std::move(finding));
    return m_findings.back();
}

std::vector<Finding> Run::takeFindings()
{
    std::stable_sort(m_findings.begin(), m_findings.end(), [](const Finding &a, const Finding &b) {
        return std::make_tuple(-static_cast<int>(a.severity), a.kind)
               < std::make_tuple(-static_cast<int>(b.severity), b.kind);
    });
    for (Finding &finding : m_findings) {
        const auto hotkeys = m_manager.getShortcuts().find(finding.holders.front().action);
        finding.text = HotkeyAuditTexts::textOf(
                finding, hotkeys == m_manager.getShortcuts().end() ? 0 : hotkeys->second.size());
    }
    return std::move(m_findings);
}

// Collecting

QKeySequence Run::keyOf(const QString &hotkey)
{
    const auto known = m_keyOfText.constFind(hotkey);
    return known != m_keyOfText.constEnd() ? *known
                                           : *m_keyOfText.insert(hotkey, KeyNames::keyOf(hotkey));
}

void Run::collect()
{
    std::vector<const VelAction *> actions;
    for (const auto &entry : m_manager.getShortcuts()) {
        if (const VelAction *action = m_registry.getAction(entry.first))
            actions.push_back(action);
    }
    std::sort(actions.begin(), actions.end(), [](const VelAction *a, const VelAction *b) {
        return a->identifier() < b->identifier();
    });
    for (const VelAction *action : actions)
        collect(*action, m_manager.getShortcuts().at(action->identifier()));
    std::sort(m_keys.begin(), m_keys.end());
}

void Run::collect(const VelAction &action, const QShortcutsList &hotkeys)
{
    const ActionIdentifier identifier = action.identifier();
    QList<QKeySequence> keys;
    for (const QString &hotkey : hotkeys) {
        const QKeySequence key = keyOf(hotkey);
        const Holder holder{identifier, action.contextId(), hotkey};
        if (key.isEmpty()) {
            add(Kind::NamesNoKey, hotkey, {holder});
            continue;
        }
        keys.append(key);
        m_keys.push_back({key, holder});
    }
    m_claims.set(identifier, action.contextId(), keys);
    if (hotkeys.size() >= nearLimit)
        add(Kind::NearLimit, QString(), {{identifier, action.contextId(), QString()}});
}

// Who gets a key

void Run::findHeldTwice()
{
    forEachGroup(m_keys, haveSameKeyAndContext, [this](const HeldKeys &group) {
        std::vector<Holder> holders = holdersOf(group);
        if (holders.size() < 2)
            return;
        const QKeySequence &key = group.front().key;
        const unsigned long context = group.front().holder.contextId;
        const ActionIdentifier acting = m_claims.holderOf(context, key);
        std::stable_partition(holders.begin(), holders.end(),
                              [&acting](const Holder &holder) { return holder.action == acting; });
        add(Kind::HeldTwice, portableText(key), std::move(holders))
                .outcomes.push_back({context, acting});
    });
}

/// What each action may use within its context: its keys, and Return where it has Enter.
HeldKeys Run::effectiveKeys() const
{
    HeldKeys effective;
    for (const HeldKey &held : m_keys) {
        const HotkeyClaims::Context context = held.holder.contextId;
        if (m_claims.holderOf(context, held.key) == held.holder.action)
            effective.push_back(held);
        const QKeySequence other = HotkeyClaims::withReturn(held.key);
        if (!other.isEmpty() && m_claims.holderOf(context, other) == held.holder.action)
            effective.push_back({other, held.holder});
    }
    std::sort(effective.begin(), effective.end());
    return effective;
}

void Run::compareContexts(const HeldKeys &group)
{
    if (const auto finding =
                SharedKey::finding(portableText(group.front().key), holdersOf(group), m_options))
        m_findings.push_back(*finding);
}

void Run::findAcrossContexts()
{
    forEachGroup(effectiveKeys(), haveSameKey, [this](const HeldKeys &group) {
        // What is true of Enter need not be said of Return again.
        const bool isImplied =
                std::none_of(group.begin(), group.end(), [this](const HeldKey &held) {
                    return keyOf(held.holder.hotkey) == held.key;
                });
        if (!isImplied)
            compareContexts(group);
    });
}

// Keys that do not arrive

void Run::findReserved()
{
    forEachGroup(m_keys, haveSameKey, [this](const HeldKeys &group) {
        const QString hotkey = portableText(group.front().key);
        std::vector<HotkeyReservation> ofDesktops;
        std::vector<HotkeyReservation> ofTextFields;
        for (const HotkeyReservation &reservation : HotkeyReservation::of(hotkey)) {
            const auto &systems = m_options.systems;
            if (std::find(systems.begin(), systems.end(), reservation.system) == systems.end())
                continue;
            (reservation.system == System::TextFields ? ofTextFields : ofDesktops)
                    .push_back(reservation);
        }
        if (!ofDesktops.empty())
            add(Kind::TakenByDesktop, hotkey, holdersOf(group)).reservations = ofDesktops;
        if (!ofTextFields.empty())
            add(Kind::TakenByTextFields, hotkey, holdersOf(group)).reservations = ofTextFields;
    });
}

void Run::findNotTypeable()
{
    forEachGroup(m_keys, haveSameKey, [this](const HeldKeys &group) {
        const QKeySequence &key = group.front().key;
        for (int i = 0; i < key.count(); ++i) {
            if (isTypeable(key[static_cast<uint>(i)], m_options.typeableKeys))
                continue;
            add(Kind::NotTypeable, portableText(key), holdersOf(group));
            return;
        }
    });
}

void Run::findSimilar(Kind kind, int modifier)
{
    for (const HeldKey &held : m_keys) {
        const int combination = combinationOf(held.key);
        if (combination == 0 || (combination & modifier) != 0)
            continue;
        const auto [first, last] = std::equal_range(
                m_keys.begin(), m_keys.end(), QKeySequence(combination | modifier), KeyOrder());
        for (auto other = first; other != last; ++other) {
            if (other->holder.contextId == held.holder.contextId
                && other->holder.action != held.holder.action)
                add(kind, portableText(held.key), {held.holder, other->holder});
        }
    }
}

// Actions without hotkeys

const HeldKey *Run::holderOf(const QKeySequence &key, unsigned long contextId) const
{
    const ActionIdentifier holder = m_claims.holderOf(contextId, key);
    const auto [first, last] = std::equal_range(m_keys.begin(), m_keys.end(), key, KeyOrder());
    const auto held = std::find_if(first, last, [&](const HeldKey &candidate) {
        return candidate.holder.action == holder && candidate.holder.contextId == contextId;
    });
    return held == last ? nullptr : &*held;
}

void Run::findLost()
{
    std::vector<const VelAction *> losers;
    for (const auto &entry : m_registry.actions()) {
        const ActionIdentifier &identifier = entry.first;
        if (m_manager.getShortcuts().count(identifier) == 0
            && !m_manager.getBaseShortcutsFromActionId(identifier).isEmpty())
            losers.push_back(entry.second.get());
    }
    std::sort(losers.begin(), losers.end(), [](const VelAction *a, const VelAction *b) {
        return a->identifier() < b->identifier();
    });
    for (const VelAction *loser : losers) {
        const QString base = m_manager.getBaseShortcutsFromActionId(loser->identifier());
        std::vector<Holder> holders{{loser->identifier(), loser->contextId(), base}};
        for (const QString &hotkey : JoinedHotkeys::split(base)) {
            if (const HeldKey *held = holderOf(keyOf(hotkey), loser->contextId()))
                holders.push_back(held->holder);
        }
        add(Kind::HotkeyLost, base, std::move(holders));
    }
}

} // namespace

class HotkeyAudit::Private
{
public:
    bool isFree(int combination, unsigned long contextId) const;

    Options options;
    std::vector<Finding> findings;
    HeldKeys keys; // sorted
};

bool HotkeyAudit::Private::isFree(int combination, unsigned long contextId) const
{
    if (!isTypeable(combination, options.typeableKeys))
        return false;
    const auto countsEverywhere = [this](unsigned long context) {
        return std::find(options.everywhere.begin(), options.everywhere.end(), context)
               != options.everywhere.end();
    };
    const bool isWanted = countsEverywhere(contextId);
    const auto countsBeside = [&](unsigned long other) {
        return std::any_of(options.together.begin(), options.together.end(), [&](const auto &part) {
            return std::count(part.begin(), part.end(), contextId) != 0
                   && std::count(part.begin(), part.end(), other) != 0;
        });
    };
    const QKeySequence key(combination);
    const auto [first, last] = std::equal_range(keys.begin(), keys.end(), key, KeyOrder());
    const bool isHeld = std::any_of(first, last, [&](const HeldKey &held) {
        return isWanted || held.holder.contextId == contextId
               || countsEverywhere(held.holder.contextId) || countsBeside(held.holder.contextId);
    });
    if (isHeld)
        return false;
    const std::vector<HotkeyReservation> reservations = HotkeyReservation::of(portableText(key));
    return std::none_of(reservations.begin(), reservations.end(), [this](const auto &reservation) {
        return std::find(options.systems.begin(), options.systems.end(), reservation.system)
               != options.systems.end();
    });
}

HotkeyAudit::HotkeyAudit(const QvelShortcutManager &manager) : HotkeyAudit(manager, Options()) { }

HotkeyAudit::HotkeyAudit(const QvelShortcutManager &manager, const Options &options)
    : d(std::make_unique<Private>())
{
    d->options = options;
    const ICuiActionManager *registry = ICuiActionManager::get();
    if (registry == nullptr)
        return;
    Run run(manager, *registry, d->options);
    run.collect();
    run.findHeldTwice();
    run.findAcrossContexts();
    run.findReserved();
    run.findNotTypeable();
    run.findSimilar(Kind::DiffersByKeypad, keypad);
    run.findSimilar(Kind::DiffersByShift, Qt::ShiftModifier);
    run.findLost();
    d->findings = run.takeFindings();
    d->keys = run.takeKeys();
}

HotkeyAudit::~HotkeyAudit() = default;
HotkeyAudit::HotkeyAudit(HotkeyAudit &&other) noexcept = default;
HotkeyAudit &HotkeyAudit::operator=(HotkeyAudit &&other) noexcept = default;

const std::vector<HotkeyFinding> &HotkeyAudit::findings() const
{
    return d->findings;
}

QStringList HotkeyAudit::nearestFree(const QString &hotkey, unsigned long contextId,
                                     int count) const
{
    QStringList free;
    const int combination = combinationOf(KeyNames::keyOf(hotkey));
    if (combination == 0)
        return free;
    for (int similar : NearbyKeys::similarTo(combination)) {
        if (free.size() >= count)
            break;
        if (d->isFree(similar, contextId))
            free << portableText(QKeySequence(similar));
    }
    return free;
}

} // namespace CUI
