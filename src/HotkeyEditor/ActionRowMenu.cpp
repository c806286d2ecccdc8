#include "ActionRowMenu.h"

#include "ActionSearch.h"
#include "ConflictDialogs.h"
#include "EditorText.h"
#include "ICuiActionManager.h"
#include "JoinedHotkeys.h"
#include "QvelActionItemModel.h"
#include "QvelShortcutManager.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QMenu>
#include <QPointer>
#include <QSortFilterProxyModel>
#include <QTreeView>

namespace CUI {

namespace {

QString nameOf(const ActionIdentifier &identifier)
{
    const ICuiActionManager *registry = ICuiActionManager::get();
    const VelAction *action = registry != nullptr ? registry->getAction(identifier) : nullptr;
    return action != nullptr ? action->name() : identifier.actionId;
}

bool isShiftF10(const QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return false;
    const auto *press = static_cast<const QKeyEvent *>(event);
    return press->key() == Qt::Key_F10 && press->modifiers() == Qt::ShiftModifier;
}

} // namespace

ActionRowMenu::ActionRowMenu(QTreeView *tree, const QvelActionItemModel *model,
                             const QSortFilterProxyModel *proxy, QvelShortcutManager *manager,
                             ActionSearch *search, QObject *parent)
    : QObject(parent),
      m_tree(tree),
      m_model(model),
      m_proxy(proxy),
      m_manager(manager),
      m_search(search)
{
    tree->installEventFilter(this); // keys
    tree->viewport()->installEventFilter(this); // the mouse
}

bool ActionRowMenu::eventFilter(QObject *watched, QEvent *event)
{
    // Not every system makes a request for a menu of Shift+F10.
    if (watched == m_tree && isShiftF10(event))
        return openForCurrentRow();
    if (event->type() != QEvent::ContextMenu)
        return QObject::eventFilter(watched, event);
    const auto *request = static_cast<QContextMenuEvent *>(event);
    if (request->reason() == QContextMenuEvent::Keyboard)
        return openForCurrentRow();
    return watched == m_tree->viewport()
           && open(m_tree->indexAt(request->pos()), request->globalPos());
}

bool ActionRowMenu::openForCurrentRow()
{
    const QModelIndex current = m_tree->currentIndex();
    if (current.isValid())
        m_tree->scrollTo(current);
    const QPoint corner = m_tree->visualRect(current).bottomLeft();
    return open(current, m_tree->viewport()->mapToGlobal(corner));
}

bool ActionRowMenu::open(const QModelIndex &index, const QPoint &globalPosition)
{
    const QModelIndex source = m_proxy->mapToSource(index);
    const VelAction *action = m_model->velActionFromModelIdx(source);
    if (action == nullptr)
        return false;
    auto *menu = new QMenu(m_tree);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const QString hotkeys = m_manager->getShortcutsFromActionId(action->identifier());
    addHotkeyEntries(menu, JoinedHotkeys::split(hotkeys));
    menu->addSeparator();
    addResets(menu, *action,
              source.siblingAtColumn(QvelActionItemModel::GroupColumn).data().toString());
    menu->popup(globalPosition);
    return true;
}

void ActionRowMenu::addHotkeyEntries(QMenu *menu, const QStringList &hotkeys)
{
    QAction *copy =
            menu->addAction(editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Copy Hotkey")));
    copy->setEnabled(!hotkeys.isEmpty());
    connect(copy, &QAction::triggered, this,
            [hotkeys] { QGuiApplication::clipboard()->setText(JoinedHotkeys::join(hotkeys)); });

    const QString text =
            editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Show What Has This Hotkey"));
    QMenu *choices = hotkeys.size() > 1 ? menu->addMenu(text) : menu;
    for (const QString &hotkey : hotkeys) {
        QString name = hotkey;
        name.replace(QLatin1Char('&'), QLatin1String("&&")); // not a mark of a mnemonic
        QAction *show = choices->addAction(choices == menu ? text : name);
        connect(show, &QAction::triggered, this,
                [this, hotkey] { m_search->searchForHotkey(hotkey); });
    }
    if (hotkeys.isEmpty())
        menu->addAction(text)->setEnabled(false);
}

void ActionRowMenu::addResets(QMenu *menu, const VelAction &action, const QString &group)
{
    const QString command =
            editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Reset %1 to Default"));
    addReset(menu, editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Reset to Default")),
             command.arg(action.name()), [this, id = action.identifier()] {
                 return HotkeyDefaults::planForAction(*m_manager, id);
             });
    addReset(menu, editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Reset Group to Default")),
             command.arg(group), [this, id = action.contextId()] {
                 return HotkeyDefaults::planForContext(*m_manager, id);
             });
    const QString all =
            editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Reset All to Default"));
    addReset(menu, all, all, [this] { return HotkeyDefaults::planForAll(*m_manager); });
}

void ActionRowMenu::addReset(QMenu *menu, const QString &text, const QString &command,
                             const Planner &planner)
{
    QAction *entry = menu->addAction(text);
    entry->setEnabled(!planner().steps.empty());
    // Asks once the menu is gone.
    connect(
            entry, &QAction::triggered, this, [this, command, planner] { reset(command, planner); },
            Qt::QueuedConnection);
}

void ActionRowMenu::reset(const QString &command, const Planner &planner)
{
    auto held = HotkeyDefaults::Held::Take;
    const std::vector<HotkeyDefaults::Holding> holdings = planner().held;
    if (!holdings.empty()) {
        QStringList holders;
        for (const HotkeyDefaults::Holding &holding : holdings)
            holders << ConflictDialogs::holderLine(holding.hotkey, nameOf(holding.holder));
        const QPointer<ActionRowMenu> self(this);
        const auto answer = ConflictDialogs::askAboutHeldDefaults(m_tree->window(), holders);
        if (self.isNull() || !answer)
            return;
        held = *answer;
    }
    // Planned after the question, during which the store can have followed its file.
    HotkeyDefaults::apply(*m_manager, planner(), held, command);
    Q_EMIT resetDone();
}

} // namespace CUI
