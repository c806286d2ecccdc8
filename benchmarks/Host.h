#pragma once

#include "ActionIdentifier.h"
#include "ICuiActionManager.h"
#include "IPathManager.h"

#include <QString>
#include <QStringList>

#include <map>
#include <memory>

namespace CUI::Bench {

/// Every registry spreads its actions over that many contexts.
constexpr int contextCount = 20;

/// The action of that number, the same in registries of all sizes.
ActionIdentifier actionAt(int number);

inline unsigned long contextOf(int number)
{
    return static_cast<unsigned long>(number % contextCount);
}

/// The place of an action among those of its context.
inline int slotOf(int number)
{
    return number / contextCount;
}

/// The display text of the action: three words, of which each stands in one name of twenty, and a
/// fourth in one name of a thousand.
QString nameOf(int number);
/// One of sixty categories.
QString categoryOf(int number);

/// One of many hotkeys, each number another text.
QString hotkeyText(int number);

/// The hotkeys that go with an action. Actions of different contexts share them, as commands of
/// different windows do; inside a context no two do.
inline QString firstHotkeyOf(int number)
{
    return hotkeyText(3 * slotOf(number));
}
inline QString secondHotkeyOf(int number)
{
    return hotkeyText(3 * slotOf(number) + 1);
}
inline QString addedHotkeyOf(int number)
{
    return hotkeyText(3 * slotOf(number) + 2);
}

/// A hotkey that no action has unless an edit gives it one.
inline QString unusedHotkey(int number)
{
    return hotkeyText(100000 + number);
}

/// Answers from one of several registries, so that stores of different sizes can take turns.
class Registry : public ICuiActionManager
{
public:
    Registry();
    ~Registry() override;

    /// Answers from the registry of that many actions from now on.
    void select(int actionCount);

    void registerActions() override { }
    bool triggerAction(const ActionIdentifier &) override { return false; }
    const ContextMap &actionContexts() const override;
    const ActionMap &actions() const override;
    VelActionContext *getActionContext(unsigned long id) const override;
    VelAction *getAction(const ActionIdentifier &identifier) const override;

private:
    class Actions;

    std::map<int, std::unique_ptr<Actions>> m_registries;
    Actions *m_selected;
};

/// Names the one base file that is to be loaded, and the directories of the sets.
class Paths : public IPathManager
{
public:
    void setBaseHotkeyFile(const QString &path) { m_baseHotkeyFile = path; }
    void setPresetDirectories(const QString &shipped, const QString &user)
    {
        m_defaultPresetDirectory = shipped;
        m_userPresetDirectory = user;
    }

    QString getLogFilePath() const override { return {}; }
    QString getLegacyHotkeyDirectory() const override { return {}; }
    QString getDefaultPresetDirectory() const override { return m_defaultPresetDirectory; }
    QString getUserPresetDirectory() const override { return m_userPresetDirectory; }
    QString getCurrentConfigurationFile(ConfigType) const override { return {}; }
    QString getDefaultConfigurationFile(ConfigType) const override { return {}; }
    void setCurrentConfigurationFile(ConfigType, const QString &) override { }
    QStringList getBaseHotkeyFiles() const override { return {m_baseHotkeyFile}; }

private:
    QString m_baseHotkeyFile;
    QString m_defaultPresetDirectory;
    QString m_userPresetDirectory;
};

} // namespace CUI::Bench
