#pragma once

#include "HotkeyAudit.h"
#include "KeyboardLayout.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QRectF>
#include <QString>
#include <QVector>

#include <memory>
#include <vector>

class QPainter;
class QPalette;

namespace CUI {

class QvelShortcutManager;

/// A keyboard on which every key shows whether it is free as a hotkey: the keys with their labels
/// and states, and the picture of them as SVG or through a QPainter.
///
/// The hotkeys are those that a store had when readHotkeys() was last called; names of actions and
/// contexts come from the installed ICuiActionManager. Nothing reports an error.
/// User-interface thread only, but needs no QGuiApplication unless it paints.
class CUI_CORE_EXPORT HotkeyKeyboard
{
    Q_DECLARE_TR_FUNCTIONS(CUI::HotkeyKeyboard)

public:
    /// What a key is good for, together with the modifiers.
    enum class State {
        NoHotkey, ///< makes no hotkey, such as Escape and the modifiers themselves
        Free,
        Taken, ///< by an action of one context
        TakenInSeveralContexts,
        Shadowed, ///< an action gives way to one of another context in some part of the window
        Reserved, ///< a desktop takes it before any application; it may be taken as well
    };

    /// An action that has the hotkey of a key. The store may have another text for the same keys.
    using Holder = HotkeyFinding::Holder;

    /// A key of the picture. A value, as of the last change of the keyboard.
    struct Key {
        /// As in KeyboardLayout.
        int code = 0;
        /// The cap is their union: one rectangle, or two for an Enter in two rows. In the
        /// coordinates of size().
        QVector<QRectF> parts;
        /// The hotkey or, without one, the key, in the user's language.
        QString name;
        /// What stands on the cap: what the key types, in upper case, or its name or sign.
        QString label;
        /// What it types with Shift; empty when that is the label again.
        QString shiftedLabel;
        /// The key as hotkeys name it, when neither label says so; else empty.
        QString hotkeyLabel;
        /// The hotkey, in the portable form; empty in the state NoHotkey.
        QString hotkey;
        /// What the key is good for, together with the modifiers that are chosen.
        State state = State::NoHotkey;
        /// What the key stands for, of Shift, Control and Alt; none for other keys.
        Qt::KeyboardModifier modifier = Qt::NoModifier;
        /// True for the keys of the modifiers that are chosen.
        bool isHeld = false;
        /// By context and action.
        std::vector<Holder> holders;
    };

    /// A keyboard of @p layout without hotkeys: each key that makes one is free or reserved.
    explicit HotkeyKeyboard(const KeyboardLayout &layout = KeyboardLayout());
    ~HotkeyKeyboard();
    /// A copy changes on its own.
    HotkeyKeyboard(const HotkeyKeyboard &other);
    /// Takes over all that @p other has.
    HotkeyKeyboard &operator=(const HotkeyKeyboard &other);

    /// The shape of the keyboard and the characters of its keys.
    const KeyboardLayout &layout() const;
    /// Replaces the layout; contexts, options, modifiers and hotkeys stay.
    void setLayout(const KeyboardLayout &layout);

    /// The contexts whose actions count; with none, which is so at first, those of all contexts do.
    void setContexts(const std::vector<unsigned long> &contexts);

    /// The contexts that count everywhere or together, and the desktops whose reservations count,
    /// as in an audit; other options have no effect. Without such contexts, which is so at first,
    /// no key is shadowed.
    void setOptions(const HotkeyAudit::Options &options);

    /// Those of Shift, Control and Alt that are pressed together with each key; others are ignored.
    /// None at first.
    void setModifiers(Qt::KeyboardModifiers modifiers);
    /// The modifiers that are chosen.
    Qt::KeyboardModifiers modifiers() const;

    /// Takes over the hotkeys in effect.
    void readHotkeys(const QvelShortcutManager &store);

    /// Row by row from the left: the typing keys, then those at the right. Valid until something is
    /// changed.
    const std::vector<Key> &keys() const;
    /// The key that makes @p hotkey, whatever its modifiers; null when there is none.
    const Key *keyOf(const QString &hotkey) const;

    /// Who has @p hotkey, with its own modifiers, as Key::holders.
    std::vector<Holder> holdersOf(const QString &hotkey) const;
    /// The state, the actions that have the hotkey with their contexts, what it does when it is
    /// shadowed, and who reserves it, one a line.
    QString describe(const Key &key) const;
    /// The name of a state, as the legend has it.
    static QString textOf(State state);
    /// The names of the modifiers in the user's language, such as "Ctrl+Shift"; for none of Shift,
    /// Control and Alt "Without modifiers".
    static QString textOf(Qt::KeyboardModifiers modifiers);

    /// The size of the picture. A letter key with its gap is 100 wide.
    static QSizeF size();
    /// Paints the keys and the legend into @p target, as large as they fit. The colours are made of
    /// those of text and base. The painter's state is kept.
    void paint(QPainter &painter, const QRectF &target, const QPalette &palette) const;
    /// The same as an SVG document. The actions of a key show while the mouse is over it, and the
    /// colours follow whether the viewer is set to dark.
    QByteArray toSvg() const;

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace CUI
