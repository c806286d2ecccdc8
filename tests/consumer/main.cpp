// Uses what an installation offers as a host would: its own registry and path manager, a store, a
// hotkey set on disk. Exits with the number of the expectations that were not met.

#include <UiCustomizations/ICuiActionManager.h>
#include <UiCustomizations/IPathManager.h>
#include <UiCustomizations/QvelFileMessageLogger.h>
#include <UiCustomizations/QvelMessageLog.h>
#include <UiCustomizations/QvelShortcutManager.h>

#include <QCoreApplication>
#include <QFile>
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
    explicit Paths(const QString &folder) : m_folder(folder) { }

    QString getLogFilePath() const override { return m_folder + QStringLiteral("/log.txt"); }
    QString getLegacyHotkeyDirectory() const override { return {}; }
    QString getDefaultPresetDirectory() const override { return {}; }
    QString getUserPresetDirectory() const override { return m_folder; }
    QString getCurrentConfigurationFile(CUI::ConfigType) const override { return m_current; }
    QString getDefaultConfigurationFile(CUI::ConfigType) const override { return {}; }
    void setCurrentConfigurationFile(CUI::ConfigType, const QString &path) override
    {
        m_current = path;
    }
    QStringList getBaseHotkeyFiles() const override { return {}; }

private:
    QString m_folder;
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
    expect(store.getShortcutsFromActionId(undo) == QLatin1String("Ctrl+Z"),
           "the registry's default accelerator is there");

    int assigned = 0;
    QObject::connect(&store, &CUI::QvelShortcutManager::shortcutAssigned, &store,
                     [&assigned] { ++assigned; });
    store.assignShortcut(redo, QStringLiteral("Ctrl+Z"), QStringLiteral("Redo"));
    expect(assigned == 1, "an edit is announced once");
    expect(store.getActionIdFromShortcut(QStringLiteral("ctrl+z"), 1) == redo,
           "an edit moves a hotkey within its context");
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
    expect(store.getShortcutsFromActionId(undo).isEmpty(), "and what it took");
    expect(CUI::IPathManager::get()->getCurrentConfigurationFile(CUI::ConfigType::HotkeySet) == set,
           "the host is told which set is in use");
}

void refuseDamage(const QString &path)
{
    QFile file(path);
    expect(file.open(QIODevice::WriteOnly) && file.write("<Nothing/>") > 0, "a file is written");
    file.close();

    int lines = 0;
    const auto counting =
            QObject::connect(&CUI::QvelMessageLog::getInstance(),
                             &CUI::QvelMessageLog::messageLogged, [&lines] { ++lines; });
    CUI::QvelShortcutManager store;
    expect(!store.loadShortcutTransforms(path), "a file of another kind is refused");
    expect(lines > 0, "and the log says so");
    QObject::disconnect(counting);
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    QTemporaryDir folder;

    std::unique_ptr<CUI::ICuiActionManager> registry = std::make_unique<Registry>();
    registry->registerActions();
    CUI::ICuiActionManager::set(registry);
    std::unique_ptr<CUI::IPathManager> paths = std::make_unique<Paths>(folder.path());
    CUI::IPathManager::set(paths);

    CUI::QvelFileMessageLogger logger;
    QObject::connect(&CUI::QvelMessageLog::getInstance(), &CUI::QvelMessageLog::messageLogged,
                     &logger, &CUI::QvelFileMessageLogger::logMessage);

    editAndSave(folder.filePath(QStringLiteral("mine.hsx")));
    loadAgain(folder.filePath(QStringLiteral("mine.hsx")));
    refuseDamage(folder.filePath(QStringLiteral("damaged.hsx")));
    expect(QFile::exists(folder.filePath(QStringLiteral("log.txt"))), "the log is on disk");

    std::unique_ptr<CUI::ICuiActionManager> noRegistry;
    CUI::ICuiActionManager::set(noRegistry);
    std::unique_ptr<CUI::IPathManager> noPaths;
    CUI::IPathManager::set(noPaths);
    return unmet;
}

#include "main.moc"
