#include "HotkeyAuditTexts.h"

#include "HotkeyFinding.h"
#include "JoinedHotkeys.h"
#include "QShortcutsList.h"
#include "ShownNames.h"

#include <QCoreApplication>

#include <algorithm>

namespace CUI::HotkeyAuditTexts {

namespace {

using Kind = HotkeyFinding::Kind;

class Words
{
    Q_DECLARE_TR_FUNCTIONS(CUI::HotkeyAudit)

public:
    explicit Words(const HotkeyFinding &finding) : m_finding(finding) { }

    QString text(int hotkeyCount) const;

private:
    QString heldTwice() const;
    QString acrossContexts() const;
    QString inPart(const HotkeyFinding::Outcome &outcome) const;
    QString elsewhere(const HotkeyFinding::Outcome &outcome, bool isAnywhereElse) const;
    QString reserved() const;
    QString lost() const;

    template <typename Predicate>
    QString holdersThat(Predicate predicate) const;
    QString othersOf(const HotkeyFinding::Outcome &outcome) const;
    QString allHolders() const;

    const HotkeyFinding &m_finding;
};

QString shown(const HotkeyFinding::Holder &holder)
{
    return ShownNames::ofActionIn(holder.action, holder.contextId);
}

QString joined(const QStringList &texts)
{
    return texts.join(QLatin1String(", "));
}

template <typename Predicate>
QString Words::holdersThat(Predicate predicate) const
{
    QStringList names;
    for (const HotkeyFinding::Holder &holder : m_finding.holders) {
        if (predicate(holder))
            names << shown(holder);
    }
    names.removeDuplicates();
    return joined(names);
}

QString Words::allHolders() const
{
    return holdersThat([](const HotkeyFinding::Holder &) { return true; });
}

QString Words::othersOf(const HotkeyFinding::Outcome &outcome) const
{
    return holdersThat([&others = outcome.others](const HotkeyFinding::Holder &holder) {
        return std::find(others.begin(), others.end(), holder.action) != others.end();
    });
}

QString Words::heldTwice() const
{
    QStringList losers;
    for (const HotkeyFinding::Holder &holder : m_finding.holders) {
        if (holder.action != m_finding.outcomes.front().action)
            losers << ShownNames::ofAction(holder.action);
    }
    return tr("In %1 this key runs %2, never %3.")
            .arg(ShownNames::ofContext(m_finding.holders.front().contextId),
                 ShownNames::ofAction(m_finding.outcomes.front().action), joined(losers));
}

QString Words::inPart(const HotkeyFinding::Outcome &outcome) const
{
    const QString context = ShownNames::ofContext(*outcome.contextId);
    const QString action = ShownNames::ofAction(outcome.action);
    return outcome.others.empty()
                   ? tr("In %1 this key runs %2.").arg(context, action)
                   : tr("In %1 this key runs %2, not %3.").arg(context, action, othersOf(outcome));
}

QString Words::elsewhere(const HotkeyFinding::Outcome &outcome, bool isAnywhereElse) const
{
    const ActionIdentifier &acting = outcome.action;
    const QString beaten = othersOf(outcome);
    if (acting.isEmpty() && isAnywhereElse)
        return tr("Elsewhere it runs nothing, since these count there equally: %1.").arg(beaten);
    if (acting.isEmpty())
        return tr("This key runs nothing, since these count everywhere equally: %1.").arg(beaten);
    if (beaten.isEmpty())
        return tr("Elsewhere it runs %1.").arg(ShownNames::ofAction(acting));
    return (isAnywhereElse ? tr("Elsewhere it runs %1, never %2.")
                           : tr("Everywhere this key runs %1, never %2."))
            .arg(ShownNames::ofAction(acting), beaten);
}

QString Words::acrossContexts() const
{
    QStringList sentences;
    for (const HotkeyFinding::Outcome &outcome : m_finding.outcomes) {
        sentences << (outcome.contextId ? inPart(outcome)
                                        : elsewhere(outcome, !sentences.isEmpty()));
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
    return m_finding.kind == Kind::TakenByTextFields
                   ? tr("While text is typed, this key does not run %1: %2.")
                             .arg(allHolders(), joined(uses))
                   : tr("%1 may take this key before it runs %2.").arg(joined(uses), allHolders());
}

QString Words::lost() const
{
    const ActionIdentifier &loser = m_finding.holders.front().action;
    const QString takers = holdersThat(
            [&loser](const HotkeyFinding::Holder &holder) { return holder.action != loser; });
    QStringList hotkeys;
    for (const QString &hotkey : JoinedHotkeys::split(m_finding.hotkey))
        hotkeys << ShownNames::ofHotkey(hotkey);
    return takers.isEmpty()
                   ? tr("%1 has lost %2.").arg(shown(m_finding.holders.front()), joined(hotkeys))
                   : tr("%1 has lost %2, and %3 has it now.")
                             .arg(shown(m_finding.holders.front()), joined(hotkeys), takers);
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
                .arg(ShownNames::ofHotkey(m_finding.holders.front().hotkey),
                     ShownNames::ofAction(m_finding.holders.front().action),
                     ShownNames::ofHotkey(m_finding.holders.back().hotkey),
                     ShownNames::ofAction(m_finding.holders.back().action));
    case Kind::NearLimit:
        break;
    }
    return tr("%1 holds %2 of %3 hotkeys.")
            .arg(allHolders(), QString::number(hotkeyCount),
                 QString::number(QShortcutsList::ShortcutLimitPerAction));
}

} // namespace

QString textOf(const HotkeyFinding &finding, int hotkeyCount)
{
    return Words(finding).text(hotkeyCount);
}

} // namespace CUI::HotkeyAuditTexts
