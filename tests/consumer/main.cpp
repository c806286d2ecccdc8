// Uses what an installation offers as a host would: its own registry and path manager, a store, a
// hotkey set on disk. Exits with the number of the expectations that were not met.

#include <UiCustomizations/ICuiActionManager.h>
#include <UiCustomizations/IPathManager.h>
#include <UiCustomizations/QvelShortcutManager.h>

#include <QCoreApplication>
#include <QTemporaryDir>

#include <iostream>

namespace {

const CUI::ActionIdentifier undo = {1, QStringLiteral("undo")};
const CUI::ActionIdentifier redo = {1, QStringLiteral("redo")};

class Registry : public CUI::ICuiActionManager
{
    Q_OBJECT

public:
    void registerActions() override
    {
        addActionContext(1, QStringLiteral("Editing"));
        addAction(undo, QStringLiteral("Undo"), 1, QStringLiteral("Edit"), false);
        addAction(redo, QStringLiteral("Redo"), 1, QStringLiteral("Edit"), false);
    }
    bool triggerAction(const CUI::ActionIdentifier &) override { return false; }
    void getDefaultAccelerators(
            CUI::QvelShortcutManager *,
            std::vector<std::pair<CUI::ActionIdentifier, QString>> &accelerators) override
    {
        accelerators.emplace_back(undo, QStringLiteral("Ctrl+Z"));
    }
};

class Paths : public CUI::IPathManager
{
public:
    QString getLogFilePath() const override { return {}; }
    QString getLegacyHotkeyDirectory() const override { return {}; }
    QString getDefaultPresetDirectory() const override { return {}; }
    QString getUserPresetDirectory() const override { return {}; }
    QString getCurrentConfigurationFile(CUI::ConfigType) const override { return m_current; }
    QString getDefaultConfigurationFile(CUI::ConfigType) const override { return {}; }
    void setCurrentConfigurationFile(CUI::ConfigType, const QString &path) override
    {
        m_current = path;
    }
    QStringList getBaseHotkeyFiles() const override { return {}; }

private:
    QString m_current;
};

int unmet = 0;

void expect(bool condition, const char *what)
{
    if (!condition) {
        std::cerr << "not met: " << what << '\n';
        ++unmet;
    }
}

void editAndSave(const QString &set)
{
    CUI::QvelShortcutManager store;
    store.loadCurrentShortcutConfiguration();
    int assigned = 0;
    QObject::connect(&store, &CUI::QvelShortcutManager::shortcutAssigned, &store,
                     [&assigned] { ++assigned; });
    store.assignShortcut(redo, QStringLiteral("Ctrl+Z"), QStringLiteral("Redo"));
    expect(assigned == 1, "an edit is announced");
    expect(store.getShortcutsFromActionId(undo).isEmpty(),
           "an edit takes the registry's default accelerator from another action");
    expect(store.saveShortcutTransforms(set), "a set can be saved");
}

void loadAgain(const QString &set)
{
    expect(CUI::QvelShortcutManager::validateShortcutsTransforms(set),
           "a saved set follows the schema beside the executable");
    CUI::QvelShortcutManager store;
    store.loadShortcutConfiguration(set);
    expect(store.getShortcutsFromActionId(redo) == QLatin1String("Ctrl+Z"),
           "a loaded set brings the edit back");
    expect(CUI::IPathManager::get()->getCurrentConfigurationFile(CUI::ConfigType::HotkeySet) == set,
           "the host is told which set is in use");
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    const QTemporaryDir folder;

    std::unique_ptr<CUI::ICuiActionManager> registry = std::make_unique<Registry>();
    registry->registerActions();
    CUI::ICuiActionManager::set(registry);
    std::unique_ptr<CUI::IPathManager> paths = std::make_unique<Paths>();
    CUI::IPathManager::set(paths);

    editAndSave(folder.filePath(QStringLiteral("mine.hsx")));
    loadAgain(folder.filePath(QStringLiteral("mine.hsx")));

    registry.reset();
    CUI::ICuiActionManager::set(registry);
    paths.reset();
    CUI::IPathManager::set(paths);
    return unmet;
}

#include "main.moc"
