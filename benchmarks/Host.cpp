#include "Host.h"

namespace CUI::Bench {

namespace {

QString keyText(int number)
{
    constexpr int letters = 26;
    constexpr int digits = 10;
    constexpr int functionKeys = 35;
    if (number < letters)
        return QChar('A' + number);
    number -= letters;
    if (number < digits)
        return QChar('0' + number);
    number -= digits;
    if (number < functionKeys)
        return QLatin1Char('F') + QString::number(number + 1);
    // Keyboards of other scripts have as many keys as the largest registry needs.
    constexpr int firstIdeograph = 0x4e00;
    return QChar(firstIdeograph + number - functionKeys);
}

} // namespace

ActionIdentifier actionAt(int number)
{
    return {1, QStringLiteral("view.command.%1").arg(number, 6, 10, QLatin1Char('0'))};
}

QString hotkeyText(int number)
{
    constexpr int modifierSets = 15; // all but the empty one
    const int modifiers = number % modifierSets + 1;
    QString text;
    if ((modifiers & 8) != 0)
        text += QLatin1String("Meta+");
    if ((modifiers & 1) != 0)
        text += QLatin1String("Ctrl+");
    if ((modifiers & 2) != 0)
        text += QLatin1String("Alt+");
    if ((modifiers & 4) != 0)
        text += QLatin1String("Shift+");
    return text + keyText(number / modifierSets);
}

QString nameOf(int number)
{
    static const char *const verbs[] = {"Add",    "Align",  "Bake",   "Bend",   "Copy",
                                        "Cut",    "Delete", "Export", "Freeze", "Group",
                                        "Hide",   "Lock",   "Mirror", "Paint",  "Rotate",
                                        "Select", "Smooth", "Toggle", "Unwrap", "Weld"};
    static const char *const kinds[] = {"Active", "All",   "Border",  "Closed",  "Curved",
                                        "Even",   "First", "Hidden",  "Inner",   "Last",
                                        "Linked", "Long",  "Nearest", "Painted", "Random",
                                        "Sharp",  "Short", "Similar", "Upper",   "Visible"};
    static const char *const things[] = {"Bones",   "Cameras", "Curves",  "Edges",   "Faces",
                                         "Handles", "Islands", "Keys",    "Layers",  "Lights",
                                         "Meshes",  "Nodes",   "Objects", "Patches", "Points",
                                         "Rings",   "Seams",   "Tags",    "Views",   "Weights"};
    constexpr int words = 20;
    // Neighbours of one context are not neighbours in the order of names.
    const int mixed = static_cast<int>(number * 7919LL % (words * words * words));
    QString name = QString::fromLatin1(verbs[mixed % words]) + QLatin1Char(' ')
                   + QLatin1String(kinds[mixed / words % words]) + QLatin1Char(' ')
                   + QLatin1String(things[mixed / words / words]);
    if (number >= words * words * words)
        name += QLatin1Char(' ') + QString::number(number / (words * words * words) + 1);
    return number % 1000 == 999 ? name + QLatin1String(" Quickly") : name;
}

QString categoryOf(int number)
{
    constexpr int categories = 60;
    return QStringLiteral("Tools %1").arg(number * 7 % categories);
}

class Registry::Actions : public ICuiActionManager
{
public:
    explicit Actions(int count)
    {
        for (int i = 0; i < contextCount; ++i)
            addActionContext(contextOf(i), QStringLiteral("View %1").arg(i));
        for (int i = 0; i < count; ++i)
            addAction(actionAt(i), nameOf(i), contextOf(i), categoryOf(i), false);
    }

    void registerActions() override { }
    bool triggerAction(const ActionIdentifier &) override { return false; }
};

Registry::Registry() : m_selected(nullptr)
{
    select(0);
}

Registry::~Registry() = default;

void Registry::select(int actionCount)
{
    std::unique_ptr<Actions> &selected = m_registries[actionCount];
    if (selected == nullptr)
        selected = std::make_unique<Actions>(actionCount);
    m_selected = selected.get();
}

const ICuiActionManager::ContextMap &Registry::actionContexts() const
{
    return m_selected->actionContexts();
}

const ICuiActionManager::ActionMap &Registry::actions() const
{
    return m_selected->actions();
}

VelActionContext *Registry::getActionContext(unsigned long id) const
{
    return m_selected->getActionContext(id);
}

VelAction *Registry::getAction(const ActionIdentifier &identifier) const
{
    return m_selected->getAction(identifier);
}

} // namespace CUI::Bench
