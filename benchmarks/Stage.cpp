#include "Stage.h"

#include "BaseHotkeyFile.h"
#include "HotkeySetFile.h"
#include "Table.h"

#include <QDir>
#include <QFile>

namespace CUI::Bench {

namespace {

/// The place of an action among those of its context.
int slotOf(int action)
{
    return action / contextCount;
}

/// One of many hotkeys, each number another text.
QString hotkeyText(int number)
{
    static const QString keys = QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789");
    static const char *const modifiers[] = {"Meta+", "Ctrl+", "Alt+", "Shift+"};
    constexpr int modifierSets = 15; // all but the empty one
    QString text;
    for (int i = 0; i < 4; ++i) {
        if (((number % modifierSets + 1) >> i & 1) != 0)
            text += QLatin1String(modifiers[i]);
    }
    // Keyboards of other scripts have as many keys as the largest registry needs.
    const int key = number / modifierSets;
    return text + (key < keys.size() ? keys.at(key) : QChar(0x4e00 + key));
}

BaseHotkeyFile::Entry entryOf(int action)
{
    BaseHotkeyFile::Entry entry;
    entry.actionId = actionAt(action);
    entry.shortcuts << hotkeyOf(action);
    if ((slotOf(action) + action) % 5 < 2)
        entry.shortcuts << hotkeyOf(action, 1);
    entry.description = QStringLiteral("Command %1").arg(action);
    return entry;
}

ShortcutTransformation stepOf(int action)
{
    const int kind = slotOf(action) % 10;
    const QString description = QStringLiteral("Command %1").arg(action);
    if (kind >= 7)
        return {ShortcutTransformation::Unassign, actionAt(action), hotkeyOf(action), description};
    // The first hotkey of another action of the context, or one that no action has.
    const QString hotkey = kind >= 4 ? hotkeyOf(action - 4 * contextCount) : hotkeyOf(action, 2);
    return {ShortcutTransformation::Assign, actionAt(action), hotkey, description};
}

} // namespace

unsigned long contextOf(int action)
{
    return static_cast<unsigned long>(action % contextCount);
}

ActionIdentifier actionAt(int number)
{
    return {1, QStringLiteral("view.command.%1").arg(number, 6, 10, QLatin1Char('0'))};
}

QString hotkeyOf(int action, int place)
{
    return hotkeyText(3 * slotOf(action) + place);
}

QString unusedHotkey(int number)
{
    return hotkeyText(100000 + number);
}

QStringList hotkeysOf(int action)
{
    const int place = (slotOf(action) + action) % 10;
    if (place >= 4)
        return {};
    return place > 0 ? QStringList{hotkeyOf(action)}
                     : QStringList{hotkeyOf(action), hotkeyOf(action, 1)};
}

QString nameOf(int number)
{
    constexpr int words = 20;
    const auto list = [](const char *text) {
        return QString::fromLatin1(text).split(QLatin1Char(' '));
    };
    static const QStringList verbs =
            list("Add Align Bake Bend Copy Cut Delete Export Freeze Group Hide Lock Mirror Paint "
                 "Rotate Select Smooth Toggle Unwrap Weld");
    static const QStringList kinds =
            list("Active All Border Closed Curved Even First Hidden Inner Last Linked Long Nearest "
                 "Painted Random Sharp Short Similar Upper Visible");
    static const QStringList things =
            list("Bones Cameras Curves Edges Faces Handles Islands Keys Layers Lights Meshes Nodes "
                 "Objects Patches Points Rings Seams Tags Views Weights");
    // Neighbours of one context are not neighbours in the order of names.
    const int mixed = static_cast<int>(number * 7919LL % (words * words * words));
    QStringList name{verbs.at(mixed % words), kinds.at(mixed / words % words),
                     things.at(mixed / words / words)};
    if (number >= words * words * words)
        name << QString::number(number / (words * words * words) + 1);
    if (number % 1000 == 999)
        name << QStringLiteral("Quickly");
    return name.join(QLatin1Char(' '));
}

QString categoryOf(int number)
{
    constexpr int categories = 60;
    return QStringLiteral("Tools %1").arg(number * 7 % categories);
}

QString writeSet(const QString &directory, int first, int end)
{
    std::vector<ShortcutTransformation> steps;
    for (int i = first; i < end; ++i)
        steps.push_back(stepOf(i));
    // Names are in the order of the numbers.
    const QString path =
            QStringLiteral("%1/%2.hsx").arg(directory).arg(end, 6, 10, QLatin1Char('0'));
    QFile file(path);
    if (!QDir().mkpath(directory) || !file.open(QIODevice::WriteOnly)
        || !HotkeySetFile::write(file, steps, HotkeySetFile::LockAttribute::WriteUnlocked))
        qFatal("A hotkey set cannot be written.");
    return path;
}

Configuration::Configuration(int actionCount)
    : basePath(Stage::instance().host().path(QStringLiteral("%1.hsxb").arg(actionCount))),
      setPath(writeSet(Stage::instance().host().path(QString()), 0, actionCount)),
      m_count(actionCount)
{
    std::vector<BaseHotkeyFile::Entry> entries;
    for (int i = 0; i < actionCount; ++i)
        entries.push_back(entryOf(i));
    QFile file(basePath);
    if (!file.open(QIODevice::WriteOnly) || !BaseHotkeyFile::write(file, entries))
        qFatal("A base file cannot be written.");
}

void Configuration::load(QvelShortcutManager &store) const
{
    Stage::instance().host().paths()->baseFiles = QStringList{basePath};
    store.loadShortcutConfiguration(setPath);
}

QString Configuration::fault() const
{
    QvelShortcutManager store;
    load(store);
    int hotkeys = 0;
    for (const auto &[actionId, list] : store.getShortcuts())
        hotkeys += list.size();
    return faultUnless(store.currentTransformations().size() == static_cast<std::size_t>(m_count)
                               && hotkeys == m_count / 10 * 15,
                       "the wrong hotkeys are loaded");
}

Stage &Stage::instance()
{
    static Stage stage;
    return stage;
}

Stage::Stage()
{
    for (int i = 0; i < contextCount; ++i)
        m_host.registry()->addActionContext(contextOf(i), QStringLiteral("View %1").arg(i));
    registerActions(0, usualCount);
    for (int i = 0; i < usualCount; ++i) {
        for (const QString &hotkey : hotkeysOf(i))
            m_store.assignShortcut(actionAt(i), hotkey, {});
    }
    m_store.applyTransforms();
    m_model = std::make_unique<QvelActionItemModel>(&m_store);
}

void Stage::registerActions(int first, int end)
{
    for (int i = first; i < end; ++i)
        m_host.registry()->addAction(actionAt(i), nameOf(i), contextOf(i), categoryOf(i), false);
}

QvelActionItemModel &Stage::largeModel()
{
    if (m_largeModel == nullptr) {
        registerActions(usualCount, largeCount);
        m_largeModel = std::make_unique<QvelActionItemModel>(&m_store);
    }
    return *m_largeModel;
}

HotkeyAudit::Options Stage::auditOptions()
{
    HotkeyAudit::Options options;
    options.everywhere = {0};
    return options;
}

} // namespace CUI::Bench
