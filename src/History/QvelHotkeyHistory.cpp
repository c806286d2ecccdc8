#include "QvelHotkeyHistory.h"

#include "HotkeyChange.h"
#include "QvelShortcutManager.h"

#include <QPointer>

#include <vector>

namespace CUI {

class QvelHotkeyHistory::Private
{
public:
    explicit Private(QvelHotkeyHistory *history, QvelShortcutManager *manager)
        : q(history), store(manager)
    {
    }

    void follow(const HotkeyChange &change);
    void attach(const HotkeyChange &change) const;
    void followIndex();
    void followModified();

    QvelHotkeyHistory *const q;
    const QPointer<QvelShortcutManager> store;
    bool isRestoring = false;
    /// A slot edited the store while a command was undone: the others start from another state.
    bool isBroken = false;
};

/// An edit, and the saves between it and its neighbours.
class QvelHotkeyHistory::Command : public QUndoCommand
{
public:
    struct Part {
        HotkeyChange change;
        bool forward;
    };
    using Parts = std::vector<Part>;

    Command(Private *history, const HotkeyChange &change)
        : QUndoCommand(change.text()), m_history(history), m_parts(std::make_shared<Parts>())
    {
        m_parts->push_back({change, true});
    }

    Parts &parts() const { return *m_parts; }

    void redo() override
    {
        if (m_isDone) {
            for (const Part &part : *m_parts)
                restore(part.change, part.forward);
        }
        m_isDone = true; // pushing it redoes it for the first time
    }

    void undo() override
    {
        for (auto part = m_parts->rbegin(); part != m_parts->rend(); ++part)
            restore(part->change, !part->forward);
    }

private:
    void restore(const HotkeyChange &change, bool forward) const
    {
        if (m_history->store.isNull() || m_history->isBroken)
            return;
        m_history->isRestoring = true;
        if (forward)
            m_history->store->redoChange(change);
        else
            m_history->store->undoChange(change);
        m_history->isRestoring = false;
    }

    Private *m_history;
    std::shared_ptr<Parts> m_parts;
    bool m_isDone = false;
};

void QvelHotkeyHistory::Private::follow(const HotkeyChange &change)
{
    if (isRestoring) {
        isBroken = true;
        return;
    }
    switch (change.kind()) {
    case HotkeyChange::Kind::Edit:
        q->push(new Command(this, change));
        break;
    case HotkeyChange::Kind::Upkeep:
        attach(change);
        break;
    case HotkeyChange::Kind::Reset:
        q->clear();
        break;
    }
    followModified();
}

// The steps have changed between two commands: both lead to the new ones.
void QvelHotkeyHistory::Private::attach(const HotkeyChange &change) const
{
    const auto partsOf = [this](int index) -> Command::Parts * {
        const auto *command = dynamic_cast<const Command *>(q->command(index));
        return command != nullptr ? &command->parts() : nullptr;
    };
    if (Command::Parts *last = partsOf(q->index() - 1))
        last->push_back({change, true});
    if (Command::Parts *next = partsOf(q->index()))
        next->insert(next->begin(), {change, false});
}

void QvelHotkeyHistory::Private::followIndex()
{
    if (isBroken) {
        isBroken = false;
        q->clear();
    }
    followModified();
}

void QvelHotkeyHistory::Private::followModified()
{
    if (store.isNull())
        return;
    if (!store->isUserModified())
        q->setClean();
    else if (q->isClean())
        q->resetClean();
}

QvelHotkeyHistory::QvelHotkeyHistory(QvelShortcutManager *store, QObject *parent)
    : QUndoStack(parent), d(std::make_unique<Private>(this, store))
{
    connect(this, &QUndoStack::indexChanged, this, [this] { d->followIndex(); });
    if (store == nullptr)
        return;
    connect(store, &QvelShortcutManager::hotkeysChanged, this,
            [this](const HotkeyChange &change) { d->follow(change); });
    d->followModified();
}

QvelHotkeyHistory::~QvelHotkeyHistory()
{
    disconnect(this, nullptr, this, nullptr); // the stack clears itself
}

} // namespace CUI
