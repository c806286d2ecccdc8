// The smallest host: one context, two actions, one hotkey that both want.
#include <UiCustomizations/ICuiActionManager.h>
#include <UiCustomizations/IPathManager.h>
#include <UiCustomizations/QvelMessageLog.h>
#include <UiCustomizations/QvelShortcutManager.h>

#include <QCoreApplication>
#include <QTemporaryDir>

#include <iostream>

class Registry : public CUI::ICuiActionManager
{
    void registerActions() override
    {
        addActionContext(1, QStringLiteral("Editing"));
        addAction(1, QStringLiteral("cut"), QStringLiteral("Cut"), 1, QStringLiteral("Edit"),
                  false);
        addAction(1, QStringLiteral("export"), QStringLiteral("Export"), 1, {}, false);
    }
    bool triggerAction(const CUI::ActionIdentifier &) override { return false; }
};

struct Paths : CUI::IPathManager {
    QString getLogFilePath() const override { return {}; }
    QString getLegacyHotkeyDirectory() const override { return {}; }
    QString getDefaultPresetDirectory() const override { return {}; }
    QString getUserPresetDirectory() const override { return folder.path(); }
    QString getCurrentConfigurationFile(CUI::ConfigType) const override { return current; }
    QString getDefaultConfigurationFile(CUI::ConfigType) const override { return {}; }
    void setCurrentConfigurationFile(CUI::ConfigType, const QString &s) override { current = s; }
    QStringList getBaseHotkeyFiles() const override { return {}; }

    QTemporaryDir folder;
    QString current;
};

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    std::unique_ptr<CUI::ICuiActionManager> registry = std::make_unique<Registry>();
    registry->registerActions();
    CUI::ICuiActionManager::set(registry);
    std::unique_ptr<CUI::IPathManager> paths = std::make_unique<Paths>();
    CUI::IPathManager::set(paths);
    QObject::connect(&CUI::QvelMessageLog::getInstance(), &CUI::QvelMessageLog::messageLogged,
                     [](const QString &line) { std::cout << qPrintable(line) << '\n'; });

    const CUI::ActionIdentifier cut = {1, QStringLiteral("cut")};
    const CUI::ActionIdentifier exportAction = {1, QStringLiteral("export")};
    const QString set =
            CUI::IPathManager::get()->getUserPresetDirectory() + QStringLiteral("/Mine.hsx");
    CUI::QvelShortcutManager hotkeys;
    hotkeys.loadCurrentShortcutConfiguration();
    hotkeys.assignShortcut(cut, QStringLiteral("Ctrl+X"), QStringLiteral("Cut"));
    hotkeys.assignShortcut(exportAction, QStringLiteral("Ctrl+X"), QStringLiteral("Export"));
    if (!hotkeys.saveShortcutTransforms(set))
        return 1;
    hotkeys.loadShortcutConfiguration(set);
    return hotkeys.getActionIdFromShortcut(QStringLiteral("Ctrl+X"), 1) == exportAction ? 0 : 1;
}
