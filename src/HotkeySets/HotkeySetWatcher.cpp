#include "HotkeySetWatcher.h"

#include "HotkeyEditGroup.h"
#include "HotkeyFileInput.h"
#include "KnownFile.h"
#include "QvelShortcutManager.h"

#include <QFileInfo>
#include <QFileSystemWatcher>
#include <QPointer>
#include <QTimer>

#include <algorithm>

namespace CUI {

namespace {

/// Time for a program to finish writing, in milliseconds.
constexpr int delay = 100;

/// Adds the folder of @p path and those above it, as far as they exist: a file can also go with
/// any of them.
void addFolders(QStringList &folders, const QString &path)
{
    QString folder = QFileInfo(path).absolutePath();
    for (;;) {
        const QString canonical = QFileInfo(folder).canonicalFilePath();
        if (!canonical.isEmpty() && !folders.contains(canonical))
            folders << canonical;
        const QString parent = QFileInfo(folder).absolutePath();
        if (parent == folder)
            return;
        folder = parent;
    }
}

/// The folders in which something must change before the path leads to another file.
QStringList foldersOf(const QString &path)
{
    constexpr int maximumLinks = 40;
    QStringList folders;
    QString place = path;
    addFolders(folders, place);
    for (int i = 0; i < maximumLinks && QFileInfo(place).isSymLink(); ++i) {
        place = QFileInfo(place).symLinkTarget();
        addFolders(folders, place);
    }
    addFolders(folders, QFileInfo(path).canonicalFilePath());
    return folders;
}

using Steps = HotkeySetMerge::Steps;

/// The steps in an order that begins like that of @p first as far as it makes no difference, so
/// that what the file holds already is no unsaved edit.
Steps inOrderOf(const Steps &first, Steps steps)
{
    Steps ordered;
    for (const ShortcutTransformation &step : first) {
        // Steps for one action or one hotkey have to keep their order.
        const auto next = std::find_if(steps.begin(), steps.end(), [&step](const auto &other) {
            return other.actionId() == step.actionId()
                   || other.shortcut().compare(step.shortcut(), Qt::CaseInsensitive) == 0;
        });
        if (next == steps.end() || next->kind() != step.kind()
            || next->actionId() != step.actionId() || next->shortcut() != step.shortcut())
            break;
        ordered.push_back(*next);
        steps.erase(next);
    }
    ordered.insert(ordered.end(), steps.begin(), steps.end());
    return ordered;
}

/// Asked without a word in the log: a file that is half written is no error.
bool isHotkeySet(const QString &path)
{
    return HotkeyFileInput(path).check(HotkeyFileInput::Kind::Set).isValid;
}

} // namespace

class HotkeySetWatcher::Private
{
public:
    Private(HotkeySetWatcher *watcher, QvelShortcutManager *manager);

    void adoptFile();
    void look();
    void setState(State state);

    QString path() const { return store.isNull() ? QString() : store->transformsFile(); }

    HotkeySetWatcher *const q;
    QPointer<QvelShortcutManager> store;
    State state = State::NoFile;
    KnownFile mergedFile;
    /// What the store loaded or saved last: what a merge starts from.
    Steps knownSteps;

private:
    void watch(const QString &path);
    void schedule();

    QFileSystemWatcher m_watcher;
    QTimer m_timer;
};

HotkeySetWatcher::Private::Private(HotkeySetWatcher *watcher, QvelShortcutManager *manager)
    : q(watcher), store(manager)
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(delay);
    connect(&m_timer, &QTimer::timeout, q, [this] { look(); });
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, q, [this] { schedule(); });
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, q, [this] { schedule(); });
    if (manager == nullptr)
        return;
    for (const auto signal : {&QvelShortcutManager::shortcutTransformsLoaded,
                              &QvelShortcutManager::shortcutTransformsSaved,
                              &QvelShortcutManager::shortcutConfigurationLoaded})
        connect(manager, signal, q, [this] { adoptFile(); });
    connect(manager, &QvelShortcutManager::shortcutsUnModified, q, [this] { schedule(); });
    adoptFile();
}

void HotkeySetWatcher::Private::adoptFile()
{
    knownSteps = store->allTransforms();
    watch(path());
    setState(path().isEmpty() ? State::NoFile : State::Unchanged);
    schedule(); // it may have changed before it was watched
}

// A file is watched by its number in the file system. Once more than one name leads to it, nothing
// says that the watched name leads to another one now.
void HotkeySetWatcher::Private::watch(const QString &path)
{
    const QString file = QFileInfo(path).canonicalFilePath();
    const QStringList folders = path.isEmpty() ? QStringList() : foldersOf(path);
    QStringList old = m_watcher.files();
    if (m_watcher.directories() != folders)
        old += m_watcher.directories();
    if (!old.isEmpty())
        m_watcher.removePaths(old);
    QStringList places = m_watcher.directories() == folders ? QStringList() : folders;
    if (!path.isEmpty() && QFileInfo(file).isFile())
        places << file;
    if (!places.isEmpty())
        m_watcher.addPaths(places);
}

void HotkeySetWatcher::Private::schedule()
{
    if (!m_timer.isActive()) // a file that is written to all the time is looked at all the same
        m_timer.start();
}

void HotkeySetWatcher::Private::setState(State newState)
{
    if (state == newState)
        return;
    state = newState;
    Q_EMIT q->stateChanged(state);
}

void HotkeySetWatcher::Private::look()
{
    m_timer.stop();
    if (store.isNull() || path().isEmpty()) {
        setState(State::NoFile);
        return;
    }
    const QString file = path();
    watch(file);
    const KnownFile now(file);
    if (now.isMissing()) {
        setState(QFileInfo::exists(file) ? State::Unreadable : State::Missing);
    } else if (!store->hasTransformsFileChanged()) {
        setState(State::Unchanged);
    } else if (!isHotkeySet(file)) {
        setState(State::Unreadable);
    } else if (store->isUserModified()) {
        setState(State::Changed);
    } else if (store->loadShortcutTransforms(file)) {
        Q_EMIT q->setReloaded(file);
    }
}

HotkeySetWatcher::HotkeySetWatcher(QvelShortcutManager *store, QObject *parent)
    : QObject(parent), d(std::make_unique<Private>(this, store))
{
}

HotkeySetWatcher::~HotkeySetWatcher() = default;

QString HotkeySetWatcher::path() const
{
    return d->path();
}

HotkeySetWatcher::State HotkeySetWatcher::state() const
{
    return d->state;
}

void HotkeySetWatcher::check()
{
    d->look();
}

void HotkeySetWatcher::keepMine()
{
    if (path().isEmpty())
        return;
    QvelShortcutManager::readTransforms(path(), d->knownSteps);
    d->store->keepOverTransformsFile();
    d->setState(State::Unchanged);
}

bool HotkeySetWatcher::loadTheirs()
{
    return !path().isEmpty() && d->store->loadShortcutTransforms(path());
}

HotkeySetMerge HotkeySetWatcher::merge()
{
    Steps theirs = d->knownSteps;
    d->mergedFile = KnownFile(path());
    if (path().isEmpty() || !QvelShortcutManager::readTransforms(path(), theirs))
        theirs = d->knownSteps;
    return {d->knownSteps, d->store.isNull() ? HotkeySetMerge::Steps() : d->store->allTransforms(),
            theirs};
}

bool HotkeySetWatcher::applyMerge(const HotkeySetMerge &merge, const QString &text)
{
    if (path().isEmpty() || KnownFile(path()) != d->mergedFile || !loadTheirs())
        return false;
    const HotkeyEditGroup command(d->store, text);
    d->store->replaceTransforms(inOrderOf(d->store->allTransforms(), merge.result()));
    return true;
}

} // namespace CUI
