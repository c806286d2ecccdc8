#include "HotkeyKeyboard.h"

#include "HotkeyAuditTexts.h"
#include "ICuiActionManager.h"
#include "KeyCodes.h"
#include "KeyNames.h"
#include "KeyboardGeometry.h"
#include "QvelShortcutManager.h"
#include "SharedKey.h"
#include "VelAction.h"
#include "VelActionContext.h"

#include <QKeySequence>

#include <algorithm>
#include <array>
#include <tuple>
#include <unordered_map>

namespace CUI {

namespace {

using Key = HotkeyKeyboard::Key;
using State = HotkeyKeyboard::State;
using Holder = HotkeyKeyboard::Holder;

constexpr int hotkeyModifiers = Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier;
constexpr double unit = 100;
constexpr double gap = 6;

struct Sign {
    int code;
    const char *text;
    /// A name that is longer than this gives way to the sign.
    int longestName = 0;
};

// What stands on the caps of keys whose names may not fit.
constexpr int narrowCap = 7;
constexpr std::array<Sign, 13> signs{{
        {69, "Num"},
        {70, "Scroll"},
        {KeyCodes::backspace, "⌫"},
        {104, "⇞", narrowCap}, // the page keys
        {109, "⇟", narrowCap},
        {103, "↑"},
        {105, "←"},
        {106, "→"},
        {108, "↓"},
        {41, "半/全"},
        {92, "変換"},
        {93, "かな"},
        {94, "無変換"},
}};

QString native(int combination)
{
    return QKeySequence(combination).toString(QKeySequence::NativeText);
}

/// The modifier that the key stands for; 0 for other keys.
int modifierOf(int code)
{
    switch (code) {
    case KeyCodes::leftShift:
    case KeyCodes::rightShift:
        return Qt::ShiftModifier;
    case KeyCodes::leftControl:
    case KeyCodes::rightControl:
        return Qt::ControlModifier;
    case KeyCodes::leftAlt:
    case KeyCodes::rightAlt:
        return Qt::AltModifier;
    case KeyCodes::leftMeta:
    case KeyCodes::rightMeta:
        return Qt::MetaModifier;
    default:
        return 0;
    }
}

QString textOf(char32_t character)
{
    const char32_t shown = QChar::toUpper(static_cast<uint>(character));
    return shown != 0 ? QString::fromUcs4(&shown, 1) : QString();
}

QString nameOfModifiers(int modifiers)
{
    QString text = native(modifiers);
    text.chop(1); // a plus sign follows it
    return text;
}

/// The key in the user's language, without the keypad's qualifier.
QString nameOfKey(int code, int key)
{
    const int modifier = modifierOf(code);
    if (modifier != 0)
        return nameOfModifiers(modifier);
    return key != 0 ? native(key & ~int{Qt::KeypadModifier}) : QString();
}

QString capOf(int code, const QString &name)
{
    const auto *const sign = std::find_if(signs.begin(), signs.end(), [&](const Sign &known) {
        return known.code == code && name.size() > known.longestName;
    });
    return sign != signs.end() ? QString::fromUtf8(sign->text) : name;
}

void label(Key &key, const KeyboardLayout &layout)
{
    const int hotkeyKey = layout.hotkeyKey(key.code);
    const KeyboardLayout::Characters typed = layout.characters(key.code);
    if (typed.plain == 0 || key.code == KeyCodes::keypadPoint) {
        key.label = capOf(key.code, nameOfKey(key.code, hotkeyKey));
        return;
    }
    key.label = textOf(typed.plain);
    if (textOf(typed.shifted) != key.label)
        key.shiftedLabel = QString::fromUcs4(&typed.shifted, typed.shifted != 0 ? 1 : 0);
    const QString hotkeyLabel = textOf(static_cast<char32_t>(hotkeyKey));
    if (hotkeyLabel != key.label && hotkeyLabel != key.shiftedLabel)
        key.hotkeyLabel = hotkeyLabel;
}

} // namespace

class HotkeyKeyboard::Private
{
public:
    void placeKeys();
    void updateStates();

    std::vector<Holder> holdersOf(int code, int held) const;
    std::vector<HotkeyReservation> reservationsOf(const Key &key) const;
    std::optional<HotkeyFinding> sharingOf(const Key &key) const;

    KeyboardLayout layout;
    std::vector<unsigned long> contexts;
    HotkeyAudit::Options options;
    int modifiers = 0;
    std::vector<Key> keys;
    std::unordered_map<int, std::vector<Holder>> holdersOfKeys;

private:
    std::vector<int> combinationsOf(int code, int held) const;
    bool counts(unsigned long contextId) const;
    State stateOf(const Key &key) const;
};

void HotkeyKeyboard::Private::placeKeys()
{
    keys.clear();
    const bool hasKeyBesideRightShift = layout.characters(KeyCodes::besideRightShift).plain != 0;
    for (const auto &place : KeyboardGeometry::places(layout.shape(), hasKeyBesideRightShift)) {
        Key key;
        key.code = place.code;
        for (const QRectF &part : place.parts) {
            key.parts.append(QRectF(part.topLeft() * unit, part.size() * unit)
                                     .adjusted(gap / 2, gap / 2, -gap / 2, -gap / 2));
        }
        label(key, layout);
        if (modifierOf(key.code) != Qt::MetaModifier)
            key.modifier = static_cast<Qt::KeyboardModifier>(modifierOf(key.code));
        keys.push_back(key);
    }
    updateStates();
}

void HotkeyKeyboard::Private::updateStates()
{
    for (Key &key : keys) {
        const bool isShifted = (modifiers & int{Qt::ShiftModifier}) != 0;
        const int hotkeyKey = layout.hotkeyKey(key.code, isShifted);
        key.isHeld = (static_cast<int>(key.modifier) & modifiers) != 0;
        const QKeySequence pressed(hotkeyKey | modifiers);
        const bool makesHotkey = KeyNames::canBeHotkey(hotkeyKey | modifiers);
        key.hotkey = makesHotkey ? pressed.toString(QKeySequence::PortableText) : QString();
        key.name = makesHotkey ? pressed.toString(QKeySequence::NativeText)
                               : nameOfKey(key.code, hotkeyKey);
        key.holders = holdersOf(key.code, modifiers);
        key.state = stateOf(key);
    }
}

/// All that a press of the key with the modifiers can mean: a hotkey may name the character that
/// is typed (Ctrl++) in place of the key and Shift (Ctrl+Shift+=).
std::vector<int> HotkeyKeyboard::Private::combinationsOf(int code, int held) const
{
    const bool isShifted = (held & int{Qt::ShiftModifier}) != 0;
    const int hotkey = layout.hotkeyKey(code, isShifted) | held;
    if (!KeyNames::canBeHotkey(hotkey))
        return {};
    std::vector<int> combinations{hotkey};
    const auto add = [&combinations](int combination) {
        if (std::find(combinations.begin(), combinations.end(), combination) == combinations.end())
            combinations.push_back(combination);
    };
    if (code == KeyCodes::enter)
        add(Qt::Key_Return | held);
    const KeyboardLayout::Characters typed = layout.characters(code);
    const char32_t character = isShifted ? typed.shifted : typed.plain;
    if (character == 0 || code == KeyCodes::keypadPoint)
        return combinations;
    const int upper = static_cast<int>(QChar::toUpper(static_cast<uint>(character)));
    add(upper | held);
    if (!QChar::isLetter(static_cast<uint>(character)))
        add(upper | (held & ~int{Qt::ShiftModifier}));
    return combinations;
}

std::vector<Holder> HotkeyKeyboard::Private::holdersOf(int code, int held) const
{
    std::vector<Holder> holders;
    for (const int combination : combinationsOf(code, held)) {
        const auto found = holdersOfKeys.find(combination);
        if (found == holdersOfKeys.end())
            continue;
        std::copy_if(found->second.begin(), found->second.end(), std::back_inserter(holders),
                     [this](const Holder &holder) { return counts(holder.contextId); });
    }
    std::sort(holders.begin(), holders.end(), [](const Holder &a, const Holder &b) {
        return std::tie(a.contextId, a.action) < std::tie(b.contextId, b.action);
    });
    return holders;
}

bool HotkeyKeyboard::Private::counts(unsigned long contextId) const
{
    return contexts.empty()
           || std::find(contexts.begin(), contexts.end(), contextId) != contexts.end();
}

std::vector<HotkeyReservation> HotkeyKeyboard::Private::reservationsOf(const Key &key) const
{
    std::vector<HotkeyReservation> reservations = HotkeyReservation::of(key.hotkey);
    const auto isIgnored = [this](const HotkeyReservation &reservation) {
        return std::find(options.systems.begin(), options.systems.end(), reservation.system)
               == options.systems.end();
    };
    reservations.erase(std::remove_if(reservations.begin(), reservations.end(), isIgnored),
                       reservations.end());
    return reservations;
}

std::optional<HotkeyFinding> HotkeyKeyboard::Private::sharingOf(const Key &key) const
{
    return SharedKey::finding(key.hotkey, key.holders, options);
}

State HotkeyKeyboard::Private::stateOf(const Key &key) const
{
    if (key.hotkey.isEmpty())
        return State::NoHotkey;
    if (sharingOf(key))
        return State::Shadowed;
    const auto reservations = reservationsOf(key);
    const bool isReserved = std::any_of(
            reservations.begin(), reservations.end(), [](const HotkeyReservation &reservation) {
                return reservation.system != HotkeyReservation::System::TextFields;
            });
    if (isReserved)
        return State::Reserved;
    if (key.holders.empty())
        return State::Free;
    return key.holders.front().contextId == key.holders.back().contextId
                   ? State::Taken
                   : State::TakenInSeveralContexts;
}

HotkeyKeyboard::HotkeyKeyboard(const KeyboardLayout &layout) : d(std::make_unique<Private>())
{
    setLayout(layout);
}

HotkeyKeyboard::~HotkeyKeyboard() = default;

HotkeyKeyboard::HotkeyKeyboard(const HotkeyKeyboard &other) : d(std::make_unique<Private>(*other.d))
{
}

HotkeyKeyboard &HotkeyKeyboard::operator=(const HotkeyKeyboard &other)
{
    *d = *other.d;
    return *this;
}

const KeyboardLayout &HotkeyKeyboard::layout() const
{
    return d->layout;
}

void HotkeyKeyboard::setLayout(const KeyboardLayout &layout)
{
    d->layout = layout;
    d->placeKeys();
}

void HotkeyKeyboard::setContexts(const std::vector<unsigned long> &contexts)
{
    d->contexts = contexts;
    d->updateStates();
}

void HotkeyKeyboard::setOptions(const HotkeyAudit::Options &options)
{
    d->options = options;
    d->updateStates();
}

void HotkeyKeyboard::setModifiers(Qt::KeyboardModifiers modifiers)
{
    d->modifiers = static_cast<int>(modifiers) & hotkeyModifiers;
    d->updateStates();
}

Qt::KeyboardModifiers HotkeyKeyboard::modifiers() const
{
    return Qt::KeyboardModifiers(d->modifiers);
}

void HotkeyKeyboard::readHotkeys(const QvelShortcutManager &store)
{
    d->holdersOfKeys.clear();
    const ICuiActionManager *registry = ICuiActionManager::get();
    for (const auto &[action, hotkeys] : store.getShortcuts()) {
        const VelAction *known = registry != nullptr ? registry->getAction(action) : nullptr;
        if (known == nullptr)
            continue;
        for (const QString &hotkey : hotkeys) {
            const QKeySequence keys = KeyNames::keyOf(hotkey);
            if (keys.count() == 1)
                d->holdersOfKeys[keys[0]].push_back({action, known->contextId(), hotkey});
        }
    }
    d->updateStates();
}

const std::vector<Key> &HotkeyKeyboard::keys() const
{
    return d->keys;
}

const Key *HotkeyKeyboard::keyOf(const QString &hotkey) const
{
    const QKeySequence sequence = KeyNames::keyOf(hotkey);
    if (sequence.count() != 1)
        return nullptr;
    const int wanted = sequence[0] & ~hotkeyModifiers;
    const auto found = std::find_if(d->keys.begin(), d->keys.end(), [&](const Key &key) {
        return d->layout.hotkeyKey(key.code) == wanted
               || d->layout.hotkeyKey(key.code, true) == wanted;
    });
    return found != d->keys.end() ? &*found : nullptr;
}

std::vector<Holder> HotkeyKeyboard::holdersOf(const QString &hotkey) const
{
    const Key *key = keyOf(hotkey);
    return key != nullptr ? d->holdersOf(key->code, KeyNames::keyOf(hotkey)[0] & hotkeyModifiers)
                          : std::vector<Holder>();
}

QString HotkeyKeyboard::describe(const Key &key) const
{
    QStringList lines = {textOf(key.state)};
    const ICuiActionManager *registry = ICuiActionManager::get();
    if (registry == nullptr)
        return lines.first();
    for (const Holder &holder : key.holders) {
        const VelAction *action = registry->getAction(holder.action);
        const VelActionContext *context = registry->getActionContext(holder.contextId);
        if (action != nullptr && context != nullptr)
            lines.append(QStringLiteral("%1 (%2)").arg(action->name(), context->name()));
    }
    if (const auto finding = d->sharingOf(key))
        lines.append(HotkeyAuditTexts::textOf(*finding, 0));
    for (const HotkeyReservation &reservation : d->reservationsOf(key)) {
        lines.append(QStringLiteral("%1: %2").arg(HotkeyReservation::nameOf(reservation.system),
                                                  reservation.use));
    }
    return lines.join(QLatin1Char('\n'));
}

QString HotkeyKeyboard::textOf(State state)
{
    switch (state) {
    case State::NoHotkey:
        return tr("Not a hotkey");
    case State::Free:
        return tr("Free");
    case State::Taken:
        return tr("Taken");
    case State::TakenInSeveralContexts:
        return tr("Taken in several groups");
    case State::Shadowed:
        return HotkeyFinding::nameOf(HotkeyFinding::Kind::Shadowed);
    case State::Reserved:
        return tr("Reserved by the system");
    }
    return {};
}

QString HotkeyKeyboard::textOf(Qt::KeyboardModifiers modifiers)
{
    const int named = static_cast<int>(modifiers) & hotkeyModifiers;
    return named != 0 ? nameOfModifiers(named) : tr("Without modifiers");
}

QSizeF HotkeyKeyboard::size()
{
    constexpr double legend = 1;
    return {KeyboardGeometry::width * unit, (KeyboardGeometry::height + legend) * unit};
}

} // namespace CUI
