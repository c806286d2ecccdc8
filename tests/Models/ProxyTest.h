#pragma once

#include "TestHost.h"

#include <UiCustomizations/QvelActionItemModel.h>
#include <UiCustomizations/QvelShortcutManager.h>
#include <UiCustomizations/QvelSortFilterProxyModel.h>

#include <QObject>

#include <memory>
#include <vector>

inline QString s(const char *text)
{
    return QString::fromUtf8(text);
}

inline QStringList list(const char *text)
{
    return s(text).isEmpty() ? QStringList() : s(text).split(QLatin1Char('|'));
}

/// A test of the proxy: over a model of two contexts, 5 and 6, without actions.
class ProxyTest : public QObject
{
    Q_OBJECT

protected:
    /// Makes the protected operations public.
    class Proxy : public CUI::QvelSortFilterProxyModel
    {
    public:
        using QvelSortFilterProxyModel::evaluateStringSearch;
        using QvelSortFilterProxyModel::getModifierAndKey;
        using QvelSortFilterProxyModel::getRegularExpressionResult;
        using QvelSortFilterProxyModel::getSearchedHotkey;
        using QvelSortFilterProxyModel::lessThan;
        using QvelSortFilterProxyModel::QvelSortFilterProxyModel;
        using QvelSortFilterProxyModel::switchIndexOnEqualString;
    };

    /// What an action of the test is made of.
    struct Action {
        const char *name;
        unsigned long context = 5;
        const char *category = "Tools";
        const char *hotkeys = "";
    };

    void show(const std::vector<Action> &actions);
    /// The names of the listed rows in their order.
    QStringList names() const;
    QStringList sortedNames() const;
    QModelIndex cell(const char *name, int column) const;
    static CUI::ActionIdentifier idOf(const char *name) { return {1, s(name)}; }

    std::unique_ptr<TestHost> m_host;
    std::unique_ptr<CUI::QvelShortcutManager> m_store;
    std::unique_ptr<CUI::QvelActionItemModel> m_model;
    std::unique_ptr<Proxy> m_proxy;

private Q_SLOTS:
    void init();
    void cleanup();
};
