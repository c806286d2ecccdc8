#include "HotkeyAuditTexts.h"

#include "HotkeyFinding.h"
#include "ICuiActionManager.h"
#include "JoinedHotkeys.h"
#include "KeyNames.h"
#include "QShortcutsList.h"

#include <QCoreApplication>

#include <algorithm>

namespace CUI::HotkeyAuditTexts {

namespace {

using Kind = HotkeyFinding::Kind;

class Words
{
    Q_DECLARE_TR_FUNCTIONS(CUI::HotkeyAudit)

public:
    Words(const HotkeyFinding &finding, const ICuiActionManager &registry)
        : m_finding(finding), m_registry(registry)
    {
    }

    QString text(int hotkeyCount) const;

private:
    QString heldTwice() const;
    QString acrossContexts() const;
    QString elsewhere(const ActionIdentifier &acting, bool isAnywhereElse) const;
    QString reserved() const;
    QString lost() const;

    QString nameOf(const ActionIdentifier &action) const;
    QString nameOf(unsigned long contextId) const;
    QString nameWithContext(const HotkeyFinding::Holder &holder) const;
    template <typename Predicate>
    QString holdersThat(Predicate predicate) const;
    QString allHolders() const;

    const HotkeyFinding &m_finding;
    const ICuiActionManager &m_registry;
};

QString nativeText(const QString &hotkey)
{
    return KeyNames::keyOf(hotkey).toString(QKeySequence::NativeText);
}

QString joined(const QStringList &texts)
{
    return texts.join(QLatin1String(", "));
}

QString Words::nameOf(const ActionIdentifier &action) const
{
    const VelAction *known = m_registry.getAction(action);
    return known != nullptr ? known->name() : action.toString();
}

QString Words::nameOf(unsigned long contextId) const
{
    const VelActionContext *known = m_registry.getActionContext(contextId);
    return known != nullptr ? known->name() : QString::number(contextId);
}

QString Words::nameWithContext(const HotkeyFinding::Holder &holder) const
{
    return QStringLiteral("%1 (%2)").arg(nameOf(holder.action), nameOf(holder.contextId));
}

template <typename Predicate>
QString Words::holdersThat(Predicate predicate) const
{
    QStringList names;
    for (const HotkeyFinding::Holder &holder : m_finding.holders) {
        if (predicate(holder))
            names << nameWithContext(holder);
    }
    return joined(names);
}

QString Words::allHolders() const
{
    return holdersThat([](const HotkeyFinding::Holder &) { return true; });
}

QString Words::heldTwice() const
{
    QStringList losers;
    for (const HotkeyFinding::Holder &holder : m_finding.holders) {
        if (holder.action != m_finding.outcomes.front().action)
            losers << nameOf(holder.action);
    }
    return tr("In %1 this key runs %2, never %3.")
            .arg(nameOf(m_finding.holders.front().contextId),
                 nameOf(m_finding.outcomes.front().action), joined(losers));
}

QString Words::elsewhere(const ActionIdentifier &acting, bool isAnywhereElse) const
{
    const auto isBeaten = [this, &acting](const HotkeyFinding::Holder &holder) {
        const auto &outcomes = m_finding.outcomes;
        return holder.action != acting
               && std::none_of(outcomes.begin(), outcomes.end(),
                               [&holder](const HotkeyFinding::Outcome &outcome) {
                                   return outcome.contextId == holder.contextId;
                               });
    };
    const QString beaten = holdersThat(isBeaten);
    if (acting.isEmpty() && isAnywhereElse)
        return tr("Elsewhere it runs nothing, since these count there equally: %1.").arg(beaten);
    if (acting.isEmpty())
        return tr("This key runs nothing, since these count everywhere equally: %1.").arg(beaten);
    if (beaten.isEmpty())
        return tr("Elsewhere it runs %1.").arg(nameOf(acting));
    return (isAnywhereElse ? tr("Elsewhere it runs %1, never %2.")
                           : tr("Everywhere this key runs %1, never %2."))
            .arg(nameOf(acting), beaten);
}

QString Words::acrossContexts() const
{
    QStringList sentences;
    for (const HotkeyFinding::Outcome &outcome : m_finding.outcomes) {
        sentences << (outcome.contextId
                              ? tr("In %1 this key runs %2.")
                                        .arg(nameOf(*outcome.contextId), nameOf(outcome.action))
                              : elsewhere(outcome.action, !sentences.isEmpty()));
    }
    return sentences.join(QLatin1Char(' '));
}

QString Words::reserved() const
{
    QStringList uses;
    for (const HotkeyReservation &reservation : m_finding.reservations) {
        const QString use =
                m_finding.kind == Kind::TakenByTextFields
                        ? reservation.use
                        : QStringLiteral("%1 (%2)").arg(
                                HotkeyReservation::nameOf(reservation.system), reservation.use);
        if (!uses.contains(use))
            uses << use;
    }
    return (m_finding.kind == Kind::TakenByTextFields
                    ? tr("While text is typed, this key does not run %1: %2.")
                    : tr("A desktop may take this key before it runs %1: %2."))
            .arg(allHolders(), joined(uses));
}

QString Words::lost() const
{
    const ActionIdentifier &loser = m_finding.holders.front().action;
    const QString takers = holdersThat(
            [&loser](const HotkeyFinding::Holder &holder) { return holder.action != loser; });
    QStringList hotkeys;
    for (const QString &hotkey : JoinedHotkeys::split(m_finding.hotkey))
        hotkeys << nativeText(hotkey);
    return takers.isEmpty()
                   ? tr("%1 has lost %2.")
                             .arg(nameWithContext(m_finding.holders.front()), joined(hotkeys))
                   : tr("%1 has lost %2, and %3 has it now.")
                             .arg(nameWithContext(m_finding.holders.front()), joined(hotkeys),
                                  takers);
}

QString Words::text(int hotkeyCount) const
{
    switch (m_finding.kind) {
    case Kind::HeldTwice:
        return heldTwice();
    case Kind::Ambiguous:
    case Kind::Shadowed:
        return acrossContexts();
    case Kind::NamesNoKey:
        return tr("No key has this name, so that none runs %1.").arg(allHolders());
    case Kind::NotTypeable:
        return tr("The keyboard in use has no such key, so that none runs %1.").arg(allHolders());
    case Kind::TakenByDesktop:
    case Kind::TakenByTextFields:
        return reserved();
    case Kind::HotkeyLost:
        return lost();
    case Kind::DiffersByKeypad:
    case Kind::DiffersByShift:
        return tr("%1 runs %2, %3 runs %4.")
                .arg(nativeText(m_finding.holders.front().hotkey),
                     nameOf(m_finding.holders.front().action),
                     nativeText(m_finding.holders.back().hotkey),
                     nameOf(m_finding.holders.back().action));
    case Kind::NearLimit:
        break;
    }
    return tr("%1 holds %2 of %3 hotkeys.")
            .arg(allHolders(), QString::number(hotkeyCount),
                 QString::number(QShortcutsList::ShortcutLimitPerAction));
}

} // namespace

QString textOf(const HotkeyFinding &finding, const ICuiActionManager &registry, int hotkeyCount)
{
    return Words(finding, registry).text(hotkeyCount);
}

} // namespace CUI::HotkeyAuditTexts
