#pragma once

#include "ActionListTreeItemDelegate.h"
#include "ActionRowMenu.h"
#include "ActionSearch.h"
#include "ActionSelectionPanel.h"
#include "ActionTableProxy.h"
#include "CurrentSet.h"
#include "HotkeyEditorForm.h"
#include "HotkeySetCommands.h"
#include "QvelActionItemModel.h"
#include "QvelPresetComboBox.h"
#include "QvelShortcutManager.h"
#include "QvelShortcutsWidget.h"
#include "TransformationListDialog.h"

#include <QList>
#include <QTimer>

class QAction;
class QFileSystemWatcher;

namespace CUI {

/// Puts the pieces of the hotkey editor together. All objects are children of the editor.
class QvelShortcutsWidget::Private
{
public:
    Private(QvelShortcutsWidget *editor, QvelActionItemModel *actionModel,
            QvelShortcutManager *shortcutManager);

    void build();
    void connectAll();
    void retranslate();
    void saveHeadersSizes();
    void restoreHeadersSizes();

    QvelShortcutsWidget *q;
    QvelActionItemModel *model;
    QvelShortcutManager *manager;
    HotkeyEditorForm form;
    ActionTableProxy *proxy = nullptr;
    QFileSystemWatcher *watcher = nullptr;
    ActionListTreeItemDelegate *delegate = nullptr;
    ActionSelectionPanel *panel = nullptr;
    ActionSearch *search = nullptr;
    ActionRowMenu *rowMenu = nullptr;
    CurrentSet *currentSet = nullptr;
    HotkeySetCommands *commands = nullptr;
    TransformationListDialog *transformationDialog = nullptr;

private:
    void scaleWidths();
    void watchUserPresets();
    void followDirectory(const QString &changed);
    void setUpPresetComboBox();
    void setUpPresetOptionsButton();
    void setUpTree();
    void setUpFields();
    void alignFilterLabels();
    void setDefaultHeadersSizes();
    void retranslateFilters();
    void retranslateLists();
    void connectLists();
    void connectSelection();
    void connectStore();
    void connectRows();
    void connectCommands();
    void filterByHotkeyState(int index);
    void filterByContext(int index);
    void refilterByHotkeys();
    void keepCurrentActionInView();

    QList<QAction *> m_optionActions;
    QList<int> m_savedColumnWidths;
    QTimer m_refilter; // once for however many signals
};

} // namespace CUI
