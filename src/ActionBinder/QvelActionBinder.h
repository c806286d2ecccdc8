#pragma once

#include "ActionIdentifier.h"
#include "UiCustomizationsExport.h"

#include <QObject>
#include <QString>

#include <memory>
#include <optional>
#include <utility>
#include <vector>

class QAction;
class QKeySequence;
class QWidget;

namespace CUI {

class QvelShortcutManager;

/// Keeps the shortcuts of an application's QActions in step with the store.
///
/// An application with menus and toolbars needs two calls, in this order, before its window is
/// shown:
///
///     binder.adopt(&window);
///     manager.loadCurrentShortcutConfiguration(); // or loadShortcutConfiguration()
///
/// The first registers the actions of the window, their shortcuts as the default ones, and binds
/// them; the second puts the user's hotkey set on top. Between the two no bound action has a
/// shortcut, since the store is empty. What is adopted later has its default hotkeys from the next
/// load on. Models, and the hotkey editor on top of them, are created after adopt(), or load their
/// actions again. An application that registers its actions itself calls bind() for each of
/// them, before or after a load.
///
/// A bound action has the shortcuts that the store says are in effect, and shows the first of them
/// in its tool tip: "Undo (Ctrl+Z)", in the language and the symbols of the system. They follow
/// every edit and every load; during a load nothing changes, and after it each action changes at
/// most once, with one QAction::changed(). Texts that name no key are left out. Shortcuts that the
/// application sets on a bound action are replaced at once. A tool tip that it sets is shown with
/// the hotkey; without one, the tool tip follows the action's text, as it does in Qt.
///
/// Within one context a key never is ambiguous between bound actions. Where the store has two texts
/// for one key (Ctrl+Shift+Z, Shift+Ctrl+Z, or on a keyboard of the USA, Ctrl+Shift+= and Ctrl++),
/// the action with the smallest identifier gets it, and where several QActions are bound to one
/// identifier, the first of them that is enabled and within reach is triggered. The hotkey editor
/// records the Return key as Enter: a hotkey with Enter is triggered by Return as well, unless
/// another action of the context has a hotkey with Return.
/// Where actions of several contexts are within reach, the one whose context's widget is nearest to
/// the keyboard focus is triggered, and one of a context without widget last. setContextOrder()
/// decides between contexts that are equally near; without it they are ambiguous, and so are
/// shortcuts that are not bound, as they are in Qt. A hotkey comes before the mnemonic of a menu
/// bar. While a text is edited, Return, Enter, Escape and Tab belong to the text, with or without
/// Shift.
///
/// An action that is registered as momentary is active while its hotkey is held: pressed() and
/// released() are emitted, and the QAction is not triggered. A hotkey that is held repeats the
/// others, where QAction::autoRepeat() is set.
///
/// Manager, actions, widgets and binder may be destroyed in any order. Without the manager, bound
/// actions keep what they have. A binder that is destroyed unbinds its actions. An action is bound
/// to one binder at a time. User-interface thread only; nothing reports an error.
class CUI_EXPORT QvelActionBinder : public QObject
{
    Q_OBJECT

public:
    /// A binder without actions. It does not own @p manager.
    explicit QvelActionBinder(QvelShortcutManager *manager, QObject *parent = nullptr);
    ~QvelActionBinder() override;

    /// \name Single actions
    /// @{

    /// Binds @p action to @p identifier. An action that is bound already is bound again; an empty
    /// identifier unbinds it. Several actions may be bound to one identifier. The context is the
    /// one that the installed registry knows for the identifier; refresh() asks for it again, and
    /// so does every load.
    void bind(const ActionIdentifier &identifier, QAction *action);

    /// Gives @p action its own shortcuts, their context and its own tool tip back: those it was
    /// bound with, or that the application has set since. Does nothing when it is not bound.
    void unbind(QAction *action);

    /// What @p action is bound to; the empty identifier when it is not bound.
    ActionIdentifier identifierOf(const QAction *action) const;

    /// The action that stands for @p identifier: of those that are bound to it, the first that is
    /// enabled and within reach of the keyboard focus, else the first that is enabled, else the
    /// first. Null when none is bound.
    QAction *actionOf(const ActionIdentifier &identifier) const;
    /// The action that a press of @p key would trigger with the keyboard focus where it is; null
    /// when there is none, or it is ambiguous.
    QAction *actionOf(const QKeySequence &key) const;
    /// @}

    /// \name Contexts
    /// @{

    /// Makes the hotkeys of a context act only while the keyboard focus is in @p widget, so that a
    /// key can do different things in different parts of a window. The bound actions of the context
    /// are added to the widget (QWidget::addAction(), which shows them where its
    /// contextMenuPolicy() is Qt::ActionsContextMenu) and get Qt::WidgetWithChildrenShortcut; so do
    /// those that are bound later. A context has one widget: another one takes its place. With
    /// null, and when the widget has been destroyed, the actions get Qt::WindowShortcut, as those
    /// of a context that never had a widget do.
    ///
    /// The menu bars, toolbars and other widgets that an action is in count as parts of the widget:
    /// its hotkeys act while one of those has the focus. Only those that contain the widget, such
    /// as the window, do not count.
    void setContextWidget(unsigned long contextId, QWidget *widget);

    /// The same with several widgets: the hotkeys of the context act in each of them. Without any
    /// they act nowhere, until the context has a widget again, or setContextWidget() with null
    /// gives it the window. So an application that has modes lets one of them act at a time. Null
    /// widgets are left out. When the last of the widgets has been destroyed, the actions get
    /// Qt::WindowShortcut.
    void setContextWidgets(unsigned long contextId, const std::vector<QWidget *> &widgets);

    /// Of contexts that are equally near to the focus, the first in @p contextIds gets the key;
    /// contexts that are not in it come last. Replaces the previous order.
    void setContextOrder(const std::vector<unsigned long> &contextIds);
    /// @}

    /// \name Whole windows
    /// @{

    /// Registers the actions of @p window and binds them: those of its menu bars, menus and
    /// toolbars, then window->actions(), then those of menus that are its children. Separators and
    /// actions that open a menu are skipped; so are actions that are bound already, so that a part
    /// of a window may be adopted first, with a context and a widget of its own, and a window again
    /// when it has got more actions.
    ///
    /// They are registered in the installed ICuiActionManager, with
    /// - @p tableId and QAction::objectName(), or where it is empty, title of the menu and text in
    ///   lower camel case ("fileSaveAs"). A name that is taken gets a number from 2 on at its end;
    ///   object names come before derived ones. Identifiers are written to the user's files: an
    ///   application whose texts change, with its language for example, gives its actions object
    ///   names.
    /// - the text without mnemonic and ellipsis ("&Open..." is "Open"), and the title of the menu
    ///   or toolbar as category.
    /// - @p contextId. Where it is not given, the context of that name, or a new one. A context
    ///   that the registry does not know is registered as @p contextName or, when that is empty,
    ///   by the window's title, object name or class name, whichever there is first.
    ///
    /// An identifier that the registry has in the same context already is only bound: windows of
    /// one kind, under the same context, share their hotkeys, and an application may register an
    /// action itself.
    ///
    /// Each shortcut of an action becomes a default hotkey. The later one of two actions with the
    /// same gets it, with a warning in the log, as everywhere in the store. Shortcuts of several
    /// key combinations (Ctrl+K, Ctrl+C) are no hotkeys and are left out, with a warning.
    ///
    /// When no registry is installed, the binder installs one, which stays when the binder is
    /// destroyed. It hands the default hotkeys to the store, and its triggerAction() triggers the
    /// action. An application that has installed its own calls defaultAccelerators() in its
    /// getDefaultAccelerators().
    ///
    /// Returns the id of the context; 0 for a null @p window.
    unsigned long adopt(QWidget *window, unsigned long tableId = 1,
                        std::optional<unsigned long> contextId = std::nullopt,
                        const QString &contextName = QString());

    /// Appends the default hotkeys of everything that adopt() has registered.
    void defaultAccelerators(std::vector<std::pair<ActionIdentifier, QString>> &accelerators) const;
    /// @}

public Q_SLOTS:
    /// Reads all contexts and hotkeys again. For an application that has registered, moved or
    /// renamed actions after they were bound.
    void refresh();

Q_SIGNALS:
    /// The hotkey of a momentary action was pressed. Not emitted while the key repeats, nor for a
    /// second hotkey of the action.
    void pressed(const CUI::ActionIdentifier &identifier);
    /// A momentary action ends: its hotkey was released, the keyboard focus has changed, the
    /// application is no longer active, or a configuration is about to be loaded. Follows each
    /// pressed() once, unless the binder is destroyed before.
    void released(const CUI::ActionIdentifier &identifier);

protected:
    /// Chooses the action that a key triggers where Qt would find it ambiguous or trigger one of
    /// another context, and keeps track of held keys.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace CUI
