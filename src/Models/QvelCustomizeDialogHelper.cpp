#include "QvelCustomizeDialogHelper.h"

#include "FileBrowser.h"
#include "ICuiActionManager.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QFile>
#include <QMap>
#include <QSet>
#include <QStringList>
#include <QVariant>

#include <algorithm>
#include <optional>

namespace CUI::QvelCustomizeDialogHelper {

namespace {

// The proxy takes this text, in whatever language, as the absence of a category filter.
const QLatin1String allCategories("All Subgroups/Categories");

bool isBefore(const QString &a, const QString &b)
{
    const int order = a.compare(b, Qt::CaseInsensitive);
    return order != 0 ? order < 0 : a < b;
}

QStringList sortedCategories(std::optional<unsigned long> contextId)
{
    const ICuiActionManager *registry = ICuiActionManager::get();
    if (registry == nullptr)
        return {};
    QSet<QString> categories;
    for (const auto &entry : registry->actions()) {
        const VelAction &action = *entry.second;
        if (contextId && action.contextId() != *contextId)
            continue;
        if (registry->getActionContext(action.contextId()) != nullptr)
            categories.insert(action.category());
    }
    categories.remove(allCategories);

    QStringList sorted = categories.values();
    std::sort(sorted.begin(), sorted.end(), isBefore);
    return sorted;
}

void fill(QComboBox *comboBox, const QStringList &texts)
{
    comboBox->clear();
    comboBox->addItems(texts);
    comboBox->setCurrentIndex(0);
}

void fillWithCategories(QComboBox *comboBox, std::optional<unsigned long> contextId)
{
    fill(comboBox, QStringList(allCategories) + sortedCategories(contextId));
}

} // namespace

void initializeContextList(QComboBox *comboBox)
{
    comboBox->clear();
    QMap<QString, VelActionContext> contexts;
    if (const ICuiActionManager *registry = ICuiActionManager::get()) {
        for (const auto &entry : registry->actionContexts())
            contexts.insert(entry.second->name().toUpper(), *entry.second);
    }
    for (const VelActionContext &context : qAsConst(contexts))
        comboBox->addItem(context.name(), QVariant(qulonglong{context.id()}));
    comboBox->insertItem(0, QCoreApplication::translate("QvelCustomizeUiDialog", "All Groups"));
    comboBox->setCurrentIndex(0);
}

void initializeCategoryList(QComboBox *comboBox)
{
    fillWithCategories(comboBox, {});
}

void updateCategoryList(QComboBox *comboBox, unsigned long contextId)
{
    fillWithCategories(comboBox, contextId);
}

void initializeHotkeyFilterList(QComboBox *comboBox)
{
    fill(comboBox, {QCoreApplication::translate("QvelCustomizeUiDialog", "All Actions"),
                    QCoreApplication::translate("QvelCustomizeUiDialog", "Assigned Hotkeys Only"),
                    QCoreApplication::translate("QvelCustomizeUiDialog", "Customized Hotkeys Only"),
                    QCoreApplication::translate("QvelCustomizeUiDialog", "Unsaved Hotkeys Only")});
}

void showFileInFolder(const QString &filePath)
{
    if (QFile::exists(filePath))
        FileBrowser::showFile(filePath);
}

} // namespace CUI::QvelCustomizeDialogHelper
