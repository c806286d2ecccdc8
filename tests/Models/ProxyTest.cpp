#include "ProxyTest.h"

#include <UiCustomizations/QvelActionItem.h>
#include <UiCustomizations/QvelMessageLog.h>

using CUI::QvelActionItemModel;
using CUI::QvelShortcutManager;

void ProxyTest::init()
{
    CUI::QvelMessageLog::getInstance().setMessageLogLevel(CUI::QvelMessageLog::MessageType(0));
    m_host = std::make_unique<TestHost>();
    m_host->registry()->addActionContext(5, s("Edit"));
    m_host->registry()->addActionContext(6, s("View"));
    m_store = std::make_unique<QvelShortcutManager>();
    m_model = std::make_unique<QvelActionItemModel>(m_store.get());
    m_proxy = std::make_unique<Proxy>(m_store.get());
    m_proxy->setSourceModel(m_model.get());
    m_proxy->setSortCaseSensitivity(Qt::CaseInsensitive);
}

void ProxyTest::cleanup()
{
    m_proxy.reset();
    m_model.reset();
    m_store.reset();
    m_host.reset();
    CUI::QvelMessageLog::getInstance().setMessageLogLevel(CUI::QvelMessageLog::Warning);
}

void ProxyTest::show(const std::vector<Action> &actions)
{
    for (const Action &action : actions) {
        m_host->registry()->addAction(idOf(action.name), s(action.name), action.context,
                                      s(action.category), false);
        for (const QString &hotkey : list(action.hotkeys))
            m_store->assignShortcut(idOf(action.name), hotkey, QString());
    }
    m_model->loadActionsToModel();
}

QStringList ProxyTest::names() const
{
    QStringList result;
    for (int row = 0; row < m_proxy->rowCount(); ++row)
        result << m_proxy->index(row, 0).data().toString();
    return result;
}

QStringList ProxyTest::sortedNames() const
{
    QStringList result = names();
    result.sort();
    return result;
}

QModelIndex ProxyTest::cell(const char *name, int column) const
{
    return m_model->itemFromVelAction(column, idOf(name))->index();
}
