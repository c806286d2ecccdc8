#include "QvelCommandPalette.h"

#include "ICuiActionManager.h"
#include "PaletteDelegate.h"
#include "PaletteHotkeyEdit.h"
#include "PaletteRows.h"
#include "QvelActionBinder.h"

#include <QAction>
#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMetaMethod>
#include <QPointer>
#include <QScreen>
#include <QStackedLayout>
#include <QTreeView>
#include <QVBoxLayout>
#include <QWindow>

#include <algorithm>

namespace CUI {

namespace {

using Model = QvelActionItemModel;

constexpr std::size_t recentCount = 20;
constexpr QSize wantedSize(680, 420);
constexpr int margin = 24;

} // namespace

class QvelCommandPalette::Private
{
    Q_DECLARE_TR_FUNCTIONS(CUI::QvelCommandPalette)

public:
    Private(QvelCommandPalette *palette, QvelActionItemModel *model, QvelShortcutManager *manager,
            QvelActionBinder *actionBinder);

    void build();
    void retranslate();
    void open();
    /// The widget that gets the focus back when the palette closes.
    enum class Focus { Back, Stays };
    void close(Focus focus);
    bool readKey(const QKeyEvent &event);
    void run();
    void endHotkey();
    bool isChangingHotkey() const { return m_field->currentWidget() == m_hotkey; }

    QPointer<QvelActionBinder> binder;
    Reason reason;
    std::vector<ActionIdentifier> recent;
    QLineEdit *search;
    PaletteRows *rows;

private:
    void place();
    void changeHotkey();
    void select(int row);
    void showMessage();
    QString reasonOf(const ActionIdentifier &action) const;
    void noteUse(const ActionIdentifier &action);

    QvelCommandPalette *q;
    QStackedLayout *m_field = nullptr; ///< the search or the new hotkey
    PaletteHotkeyEdit *m_hotkey;
    QTreeView *m_list;
    QLabel *m_message;
    PaletteDelegate *m_delegate;
    QPointer<QWidget> m_place; ///< what had the focus
    QPointer<QWidget> m_window; ///< and its window
};

QvelCommandPalette::Private::Private(QvelCommandPalette *palette, QvelActionItemModel *model,
                                     QvelShortcutManager *manager, QvelActionBinder *actionBinder)
    : binder(actionBinder),
      search(new QLineEdit),
      rows(new PaletteRows(manager, model, palette)),
      q(palette),
      m_hotkey(new PaletteHotkeyEdit(manager, palette)),
      m_list(new QTreeView),
      m_message(new QLabel),
      m_delegate(new PaletteDelegate(
              [this](const QModelIndex &index) {
                  return reasonOf(rows->actionAt(index)).isEmpty();
              },
              palette))
{
}

// Construction

void QvelCommandPalette::Private::build()
{
    search->setObjectName(QStringLiteral("paletteSearch"));
    m_list->setObjectName(QStringLiteral("paletteList"));
    m_message->setObjectName(QStringLiteral("paletteMessage"));
    m_message->setTextFormat(Qt::PlainText);
    m_message->setWordWrap(true);
    search->installEventFilter(q);
    q->setFrameStyle(int{QFrame::Box} | int{QFrame::Plain}); // the window has no frame
    auto *layout = new QVBoxLayout(q);
    m_field = new QStackedLayout;
    m_field->addWidget(search);
    m_field->addWidget(m_hotkey);
    layout->addLayout(m_field);
    layout->addWidget(m_list, 1);
    layout->addWidget(m_message);

    m_list->setModel(rows);
    m_list->setItemDelegate(m_delegate);
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    m_list->setHeaderHidden(true);
    m_list->setFocusPolicy(Qt::NoFocus);
    m_list->setColumnHidden(Model::CategoryColumn, true);
    QHeaderView *header = m_list->header();
    header->moveSection(header->visualIndex(Model::HotkeyColumn), Model::CategoryColumn);
    header->setStretchLastSection(false);
    header->setSectionResizeMode(Model::ActionColumn, QHeaderView::Stretch);

    connect(search, &QLineEdit::textChanged, q, [this](const QString &text) {
        m_delegate->setSearch(text);
        rows->search(text);
        select(0);
    });
    connect(m_list->selectionModel(), &QItemSelectionModel::currentRowChanged, q,
            [this] { showMessage(); });
    connect(m_list, &QTreeView::doubleClicked, q, [this] { run(); });
    connect(m_hotkey, &PaletteHotkeyEdit::ended, q, [this] { endHotkey(); });
    connect(m_hotkey, &PaletteHotkeyEdit::messageChanged, m_message, &QLabel::setText);
}

void QvelCommandPalette::Private::retranslate()
{
    q->setWindowTitle(tr("Commands"));
    search->setPlaceholderText(tr("Type to search by Actions..."));
    search->setAccessibleName(tr("Search for a command"));
    m_list->setAccessibleName(tr("Commands"));
    m_hotkey->retranslate();
    showMessage();
}

// Opening and closing

void QvelCommandPalette::Private::open()
{
    if (q->isVisible())
        return;
    m_place = QApplication::focusWidget();
    m_window = QApplication::activeWindow();
    m_field->setCurrentWidget(search);
    const bool isNew = search->text().isEmpty();
    search->clear(); // lists all
    if (isNew)
        rows->search(QString());
    place();
    // As a child of the window, it can be used while that one is modal.
    q->winId();
    if (!m_window.isNull() && q->windowHandle() != nullptr)
        q->windowHandle()->setTransientParent(m_window->windowHandle());
    q->show();
    q->raise();
    q->activateWindow();
    search->setFocus(Qt::OtherFocusReason);
    select(0);
}

/// Over the upper part of the window, and on its screen.
void QvelCommandPalette::Private::place()
{
    const QRect screen = q->screen()->availableGeometry();
    QRect window = m_window.isNull() ? screen : m_window->frameGeometry().intersected(screen);
    if (window.width() < wantedSize.width() / 2 || window.height() < wantedSize.height() / 2)
        window = screen;
    const QSize size = wantedSize.boundedTo(window.size() - QSize(2 * margin, 2 * margin));
    q->setGeometry(
            QRect(QPoint(window.center().x() - size.width() / 2, window.top() + margin), size));
    const int character = m_list->fontMetrics().averageCharWidth();
    m_list->setColumnWidth(Model::GroupColumn, std::min(24 * character, size.width() / 4));
    m_list->setColumnWidth(Model::HotkeyColumn, std::min(20 * character, size.width() / 4));
}

void QvelCommandPalette::Private::close(Focus focus)
{
    if (!q->isVisible())
        return;
    q->hide();
    if (focus == Focus::Stays || m_window.isNull())
        return;
    // The window system answers later; what is run now asks for the focus at once.
    m_window->activateWindow();
    QApplication::setActiveWindow(m_window);
    if (!m_place.isNull())
        m_place->setFocus(Qt::OtherFocusReason);
}

// Keys

bool QvelCommandPalette::Private::readKey(const QKeyEvent &event)
{
    const int row = m_list->currentIndex().row();
    const int page =
            std::max(m_list->viewport()->height() / std::max(m_list->sizeHintForRow(0), 1), 1);
    switch (event.key()) {
    case Qt::Key_Up:
        select(row - 1);
        return true;
    case Qt::Key_Down:
        select(row + 1);
        return true;
    case Qt::Key_PageUp:
        select(row - page);
        return true;
    case Qt::Key_PageDown:
        select(row + page);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        run();
        return true;
    case Qt::Key_Tab:
        changeHotkey();
        return true;
    case Qt::Key_Escape:
        close(Focus::Back);
        return true;
    default:
        return false;
    }
}

void QvelCommandPalette::Private::select(int row)
{
    const int last = rows->rowCount() - 1;
    m_list->setCurrentIndex(rows->index(std::min(std::max(row, 0), last), Model::ActionColumn));
    showMessage();
}

// What can be done with an action

QString QvelCommandPalette::Private::reasonOf(const ActionIdentifier &action) const
{
    const QAction *bound = binder.isNull() ? nullptr : binder->actionOf(action);
    const ICuiActionManager *registry = ICuiActionManager::get();
    const VelAction *known = registry != nullptr ? registry->getAction(action) : nullptr;
    if (known != nullptr && known->momentary())
        return tr("It acts only while its hotkey is held.");
    const QString told = reason ? reason(action) : QString();
    if (!told.isEmpty())
        return told;
    if (bound != nullptr)
        return bound->isEnabled() ? QString() : tr("It is disabled at the moment.");
    const bool isHeard =
            q->isSignalConnected(QMetaMethod::fromSignal(&QvelCommandPalette::triggered));
    return isHeard ? QString() : tr("The application does not perform it.");
}

void QvelCommandPalette::Private::showMessage()
{
    if (isChangingHotkey())
        return;
    const ActionIdentifier action = rows->actionAt(m_list->currentIndex());
    if (action.isEmpty()) {
        m_message->setText(tr("No command has this name."));
        return;
    }
    const QString why = reasonOf(action);
    m_message->setText(why.isEmpty() ? tr("Enter runs it, Tab changes its hotkey, Escape closes.")
                                     : why);
}

void QvelCommandPalette::Private::run()
{
    const ActionIdentifier action = rows->actionAt(m_list->currentIndex());
    if (action.isEmpty() || !reasonOf(action).isEmpty()) {
        QApplication::beep();
        return;
    }
    noteUse(action);
    const QPointer<QvelCommandPalette> alive(q);
    close(Focus::Back);
    if (alive.isNull())
        return;
    // Asked when the focus is back: several may be bound to it.
    QAction *bound = binder.isNull() ? nullptr : binder->actionOf(action);
    if (bound != nullptr)
        bound->trigger();
    else
        Q_EMIT q->triggered(action);
}

void QvelCommandPalette::Private::noteUse(const ActionIdentifier &action)
{
    recent.erase(std::remove(recent.begin(), recent.end(), action), recent.end());
    recent.insert(recent.begin(), action);
    recent.resize(std::min(recent.size(), recentCount));
    rows->setRecent(recent);
}

void QvelCommandPalette::Private::changeHotkey()
{
    const ActionIdentifier action = rows->actionAt(m_list->currentIndex());
    if (action.isEmpty())
        return;
    m_field->setCurrentWidget(m_hotkey);
    m_hotkey->begin(action);
}

void QvelCommandPalette::Private::endHotkey()
{
    m_field->setCurrentWidget(search);
    search->setFocus(Qt::OtherFocusReason);
    showMessage();
}

QvelCommandPalette::QvelCommandPalette(QvelActionItemModel *model, QvelShortcutManager *manager,
                                       QvelActionBinder *binder, QWidget *parent)
    : QFrame(parent, Qt::Dialog | Qt::FramelessWindowHint),
      d(std::make_unique<Private>(this, model, manager, binder))
{
    d->build(); // filters events, for which it has to be there
    d->retranslate();
}

QvelCommandPalette::~QvelCommandPalette() = default;

void QvelCommandPalette::setReason(const Reason &reason)
{
    d->reason = reason;
}

std::vector<ActionIdentifier> QvelCommandPalette::recentlyUsed() const
{
    return d->recent;
}

void QvelCommandPalette::setRecentlyUsed(const std::vector<ActionIdentifier> &actions)
{
    d->recent = actions;
    d->recent.resize(std::min(actions.size(), recentCount));
    d->rows->setRecent(d->recent);
}

void QvelCommandPalette::open()
{
    d->open();
}

bool QvelCommandPalette::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == d->search && event->type() == QEvent::KeyPress)
        return d->readKey(*static_cast<QKeyEvent *>(event));
    return QFrame::eventFilter(watched, event);
}

bool QvelCommandPalette::event(QEvent *event)
{
    if (event->type() == QEvent::WindowDeactivate)
        d->close(Private::Focus::Stays);
    return QFrame::event(event);
}

void QvelCommandPalette::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        d->close(Private::Focus::Back);
    else
        QFrame::keyPressEvent(event);
}

void QvelCommandPalette::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        d->retranslate();
    QFrame::changeEvent(event);
}

} // namespace CUI
