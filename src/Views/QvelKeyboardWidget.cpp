#include "QvelKeyboardWidget.h"

#include "HotkeyRecorder.h"
#include "ICuiActionManager.h"
#include "KeyNames.h"
#include "KeyboardChoosers.h"
#include "KeyboardEdits.h"
#include "KeyboardView.h"
#include "NativeKeys.h"
#include "QvelShortcutManager.h"
#include "VelAction.h"

#include <QApplication>
#include <QKeyEvent>
#include <QKeySequence>
#include <QMenu>
#include <QPlainTextEdit>
#include <QTimer>
#include <QVBoxLayout>

namespace CUI {

namespace {

using Key = HotkeyKeyboard::Key;

constexpr Qt::KeyboardModifiers hotkeyModifiers =
        Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier;

} // namespace

class QvelKeyboardWidget::Private
{
public:
    Private(QvelKeyboardWidget *widget, QvelShortcutManager *shortcutManager);

    void connectStore();
    void connectView();
    /// The store has changed, and may change again before anything is painted.
    void readLater();
    void read();
    void readIfStale();
    void readLayout();
    void showModifiers();
    void hold(Qt::KeyboardModifiers modifiers);
    void toggle(Qt::KeyboardModifier modifier);
    void showDetails();
    void showMenu(const QPoint &position);
    const Key &currentKey() const { return keyAt(view->currentKey()); }
    const Key &keyAt(int index) const
    {
        return keyboard.keys().at(static_cast<std::size_t>(index));
    }
    void retranslate();

    QvelKeyboardWidget *q;
    QvelShortcutManager *manager;
    HotkeyKeyboard keyboard;
    KeyboardEdits edits;
    KeyboardChoosers *choosers;
    KeyboardView *view;
    QPlainTextEdit *details;
    QTimer reading;
    bool isStale = false;
    Qt::KeyboardModifiers chosen;
    Qt::KeyboardModifiers held;
    std::optional<KeyboardLayout> givenLayout;
    ActionIdentifier currentAction;
    /// The key whose hotkeys are to be moved, chosen in the context menu.
    QString moved;
};

QvelKeyboardWidget::Private::Private(QvelKeyboardWidget *widget,
                                     QvelShortcutManager *shortcutManager)
    : q(widget),
      manager(shortcutManager),
      edits(shortcutManager, widget),
      choosers(new KeyboardChoosers),
      view(new KeyboardView(keyboard)),
      details(new QPlainTextEdit)
{
    HotkeyAudit::Options options;
    options.systems = HotkeyReservation::systemsHere();
    keyboard.setOptions(options);
    details->setReadOnly(true);
    details->setTabChangesFocus(true);
    constexpr int leastLines = 4;
    details->setMinimumHeight(details->fontMetrics().lineSpacing() * leastLines);
    view->setObjectName(QStringLiteral("QvelKeyboardWidget_keyboard"));
    details->setObjectName(QStringLiteral("QvelKeyboardWidget_details"));
    auto *layout = new QVBoxLayout(widget);
    layout->addWidget(choosers);
    layout->addWidget(view, 4);
    layout->addWidget(details, 1);
    reading.setSingleShot(true);
    connectStore();
    connectView();
    retranslate();
    readLayout();
    read();
}

void QvelKeyboardWidget::Private::connectStore()
{
    QObject::connect(&reading, &QTimer::timeout, q, [this] { readIfStale(); });
    const auto later = [this] { readLater(); };
    QObject::connect(manager, &QvelShortcutManager::shortcutAssigned, q, later);
    QObject::connect(manager, &QvelShortcutManager::shortcutUnassigned, q, later);
    QObject::connect(manager, &QvelShortcutManager::shortcutTransformsCleared, q, later);
    QObject::connect(manager, &QvelShortcutManager::shortcutsCleared, q, later);
    QObject::connect(manager, &QvelShortcutManager::shortcutConfigurationLoaded, q, later);
}

void QvelKeyboardWidget::Private::connectView()
{
    QObject::connect(view, &KeyboardView::shownKeyChanged, q, [this] { showDetails(); });
    QObject::connect(view, &KeyboardView::hotkeyActivated, q, &QvelKeyboardWidget::hotkeyActivated);
    const auto toggled = [this](Qt::KeyboardModifier modifier) { toggle(modifier); };
    QObject::connect(view, &KeyboardView::modifierToggled, q, toggled);
    QObject::connect(choosers, &KeyboardChoosers::modifierToggled, q, toggled);
    QObject::connect(view, &KeyboardView::modifiersHeld, q,
                     [this](Qt::KeyboardModifiers modifiers) { hold(modifiers); });
    QObject::connect(view, &KeyboardView::menuRequested, q,
                     [this](const QPoint &position) { showMenu(position); });
    // What is asked would have to wait for the end of the drag, which waits for the drop.
    QObject::connect(view, &KeyboardView::actionDropped, q,
                     [this](const ActionIdentifier &action, const QString &hotkey) {
                         QTimer::singleShot(0, q, [=] { edits.assign(action, hotkey); });
                     });
    QObject::connect(
            view, &KeyboardView::hotkeyDropped, q, [this](const QString &from, const QString &to) {
                QTimer::singleShot(0, q, [=] { edits.move(from, keyboard.holdersOf(from), to); });
            });
    QObject::connect(choosers, &KeyboardChoosers::contextsChosen, q, [this] {
        keyboard.setContexts(choosers->contexts());
        view->keyboardChanged();
    });
    QObject::connect(choosers, &KeyboardChoosers::shapeChosen, q, [this] { readLayout(); });
}

void QvelKeyboardWidget::Private::readLater()
{
    isStale = true;
    if (q->isVisible())
        reading.start(0);
}

void QvelKeyboardWidget::Private::readIfStale()
{
    if (isStale)
        read();
}

void QvelKeyboardWidget::Private::read()
{
    isStale = false;
    keyboard.readHotkeys(*manager);
    view->keyboardChanged();
}

void QvelKeyboardWidget::Private::readLayout()
{
    KeyboardLayout layout = givenLayout ? *givenLayout : NativeKeys::layoutInUse();
    if (const auto shape = choosers->shape())
        layout.setShape(*shape);
    keyboard.setLayout(layout);
    view->keyboardChanged();
}

// Modifiers

void QvelKeyboardWidget::Private::showModifiers()
{
    const Qt::KeyboardModifiers shown = held != Qt::NoModifier ? held : chosen;
    choosers->showModifiers(shown);
    if (shown == keyboard.modifiers())
        return;
    keyboard.setModifiers(shown);
    view->keyboardChanged();
}

void QvelKeyboardWidget::Private::hold(Qt::KeyboardModifiers modifiers)
{
    held = modifiers & hotkeyModifiers;
    showModifiers();
}

void QvelKeyboardWidget::Private::toggle(Qt::KeyboardModifier modifier)
{
    chosen ^= modifier;
    showModifiers();
}

// The current key

void QvelKeyboardWidget::Private::showDetails()
{
    const Key &shown = keyAt(view->shownKey());
    details->setPlainText(shown.name + QLatin1String(": ") + keyboard.describe(shown));
}

void QvelKeyboardWidget::Private::showMenu(const QPoint &position)
{
    const QString hotkey = currentKey().hotkey;
    const QString name = currentKey().name;
    if (hotkey.isEmpty())
        return;
    auto *menu = new QMenu(q);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const auto add = [this, menu](QString text, const auto &trigger) {
        text.replace(QLatin1Char('&'), QLatin1String("&&"));
        menu->addAction(text, q, trigger);
    };
    add(tr("Show in the Table"), [this, hotkey] { Q_EMIT q->hotkeyActivated(hotkey); });
    const ICuiActionManager *registry = ICuiActionManager::get();
    const VelAction *action = registry != nullptr ? registry->getAction(currentAction) : nullptr;
    if (action != nullptr) {
        add(tr("Assign to %1").arg(action->name()),
            [this, hotkey] { edits.assign(currentAction, hotkey); });
    }
    if (!currentKey().holders.empty())
        add(tr("Move %1 to Another Key").arg(name), [this, hotkey] { moved = hotkey; });
    if (!moved.isEmpty() && moved != hotkey) {
        const QString movedName = KeyNames::keyOf(moved).toString(QKeySequence::NativeText);
        add(tr("Move %1 Here").arg(movedName), [this, hotkey] {
            const QString from = std::exchange(moved, QString());
            edits.move(from, keyboard.holdersOf(from), hotkey);
        });
    }
    menu->popup(position);
}

void QvelKeyboardWidget::Private::retranslate()
{
    view->setAccessibleName(tr("Keyboard"));
    details->setAccessibleName(tr("Actions of the key"));
    choosers->retranslate();
    readLayout();
}

QvelKeyboardWidget::QvelKeyboardWidget(QvelShortcutManager *manager, QWidget *parent)
    : QWidget(parent), d(std::make_unique<Private>(this, manager))
{
    if (objectName().isEmpty())
        setObjectName(QStringLiteral("QvelKeyboardWidget"));
    setFocusProxy(d->view);
}

QvelKeyboardWidget::~QvelKeyboardWidget() = default;

void QvelKeyboardWidget::setOptions(const HotkeyAudit::Options &options)
{
    d->keyboard.setOptions(options);
    d->view->keyboardChanged();
}

void QvelKeyboardWidget::setContexts(const std::vector<unsigned long> &contexts)
{
    d->choosers->setContexts(contexts);
    d->keyboard.setContexts(contexts);
    d->view->keyboardChanged();
}

const std::vector<unsigned long> &QvelKeyboardWidget::contexts() const
{
    return d->choosers->contexts();
}

void QvelKeyboardWidget::setModifiers(Qt::KeyboardModifiers modifiers)
{
    d->chosen = modifiers & hotkeyModifiers;
    d->showModifiers();
}

Qt::KeyboardModifiers QvelKeyboardWidget::modifiers() const
{
    return d->chosen;
}

void QvelKeyboardWidget::setKeyboardLayout(const KeyboardLayout &layout)
{
    d->givenLayout = layout;
    d->readLayout();
}

HotkeyKeyboard QvelKeyboardWidget::keyboard() const
{
    HotkeyKeyboard copy(d->keyboard);
    copy.readHotkeys(*d->manager);
    return copy;
}

void QvelKeyboardWidget::setCurrentAction(const ActionIdentifier &action)
{
    d->currentAction = action;
}

QString QvelKeyboardWidget::currentHotkey() const
{
    return d->currentKey().hotkey;
}

bool QvelKeyboardWidget::setCurrentHotkey(const QString &hotkey)
{
    const Key *key = d->keyboard.keyOf(hotkey);
    if (key == nullptr)
        return false;
    const int index = static_cast<int>(key - d->keyboard.keys().data());
    setModifiers(Qt::KeyboardModifiers(KeyNames::keyOf(hotkey)[0]));
    d->view->setCurrentKey(index);
    return true;
}

bool QvelKeyboardWidget::eventFilter(QObject *watched, QEvent *event)
{
    const bool isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease;
    if (isKey && QApplication::activeWindow() == window())
        d->hold(HotkeyRecorder::heldAfter(*static_cast<QKeyEvent *>(event)));
    else if (watched == window() && event->type() == QEvent::WindowDeactivate)
        d->hold(Qt::NoModifier); // keys will be released in another window
    else if (watched == window() && event->type() == QEvent::WindowActivate)
        d->readLayout();
    return QWidget::eventFilter(watched, event);
}

void QvelKeyboardWidget::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        d->retranslate();
    QWidget::changeEvent(event);
}

void QvelKeyboardWidget::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    d->readLayout();
    d->readIfStale();
    qApp->installEventFilter(this);
}

void QvelKeyboardWidget::hideEvent(QHideEvent *event)
{
    qApp->removeEventFilter(this);
    d->hold(Qt::NoModifier);
    QWidget::hideEvent(event);
}

} // namespace CUI
