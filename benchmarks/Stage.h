#pragma once

#include "HotkeyAudit.h"
#include "QvelActionItemModel.h"
#include "QvelShortcutManager.h"
#include "TestHost.h"

#include <memory>
#include <vector>

namespace CUI::Bench {

constexpr int usualCount = 10000; // of actions, unless a row says otherwise
constexpr int largeCount = 100000;
constexpr int contextCount = 20; // over which the actions are spread

ActionIdentifier actionAt(int number);
unsigned long contextOf(int number);
/// The display text of the action: three words, of which each stands in one name of twenty, and a
/// fourth in one name of a thousand.
QString nameOf(int number);
/// One of sixty categories.
QString categoryOf(int number);

/// One of the three hotkeys that go with an action. Actions of different contexts share them, as
/// commands of different windows do; inside a context no two do.
QString hotkeyOf(int action, int place = 0);
/// Those that an action has in the store of the stage: four in ten have one, one in ten a second.
QStringList hotkeysOf(int action);
/// A hotkey that no action has unless an edit gives it one.
QString unusedHotkey(int number);

/// Writes a set into the directory and returns its path: a step for each of these actions. Three in
/// ten remove a hotkey, the others add one, and as many as remove one take it from another action
/// of the context.
QString writeSet(const QString &directory, int first, int end);

/// A base file with an entry for each of the first actions, four in ten of them with two hotkeys,
/// and a set of as many steps.
class Configuration
{
public:
    explicit Configuration(int actionCount);

    void load(QvelShortcutManager &store) const;
    /// What is wrong with loading it; empty when nothing is.
    QString fault() const;

    const QString basePath;
    const QString setPath;

private:
    int m_count;
};

/// What the rows are measured on: registered actions, and their hotkeys in a store and a model.
class Stage
{
public:
    static Stage &instance();

    QvelShortcutManager &store() { return m_store; }
    QvelActionItemModel &model() { return *m_model; }
    /// The model of all actions with as many registered. Those stay for the rows that follow.
    QvelActionItemModel &largeModel();
    TestHost &host() { return m_host; }
    /// The hotkeys of one context count everywhere.
    static HotkeyAudit::Options auditOptions();

private:
    Stage();
    void registerActions(int first, int end);

    TestHost m_host;
    QvelShortcutManager m_store;
    std::unique_ptr<QvelActionItemModel> m_model;
    std::unique_ptr<QvelActionItemModel> m_largeModel;
};

} // namespace CUI::Bench
