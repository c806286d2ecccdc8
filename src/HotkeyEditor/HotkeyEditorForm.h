#pragma once

class QComboBox;
class QFrame;
class QGridLayout;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QSplitter;
class QToolButton;
class QTreeView;
class QVBoxLayout;
class QWidget;

namespace CUI {

class QvelAssignedShortcutsScrollArea;
class QvelPresetComboBox;

/// The widget tree of the hotkey editor. It is built once; its texts can be set again at any time.
/// The widgets belong to the editor.
class HotkeyEditorForm
{
public:
    /// Builds the tree inside @p editor, without texts.
    void build(QWidget *editor);
    /// Sets every text, tooltip and accessible name in the current language. Those that follow the
    /// selection are set to what they are without one.
    void retranslate(QWidget *editor);

    // Top: the hotkey set.
    QLabel *hotkeySetLabel = nullptr;
    QvelPresetComboBox *hotkeySetComboBox = nullptr;
    QToolButton *presetOptionsButton = nullptr;
    QToolButton *savePresetButton = nullptr;

    QSplitter *splitter = nullptr;

    // Left: the actions.
    QLabel *groupLabel = nullptr;
    QComboBox *contextComboBox = nullptr;
    QLabel *filterLabel = nullptr;
    QComboBox *hotkeyFilterComboBox = nullptr;
    QLineEdit *searchLineEdit = nullptr;
    QRadioButton *hotkeyRadioButton = nullptr;
    QRadioButton *actionRadioButton = nullptr;
    QTreeView *keyActionsTreeView = nullptr;

    // Right: the selected action.
    QLabel *selectedActionLabel = nullptr;
    QLabel *actionDescriptionLabel = nullptr;
    QGroupBox *newHotkeysGroupBox = nullptr;
    QLineEdit *shortcutLineEdit = nullptr;
    QPushButton *assignShortcutButton = nullptr;
    QLabel *alreadyAssignedLabel = nullptr;
    QLabel *assignedToLabel = nullptr;
    QPushButton *removeShortcutButton = nullptr;
    QLabel *successRemoveLabel = nullptr;
    QLabel *removedFromLabel = nullptr;
    QPushButton *undoRemoveButton = nullptr;
    QFrame *hotkeyListSeparatorLine = nullptr;
    QvelAssignedShortcutsScrollArea *assignedHotkeysScrollArea = nullptr;
    QWidget *assignedHotkeysWidget = nullptr;

private:
    void buildSetRow(QWidget *editor, QVBoxLayout *outer);
    QWidget *buildActionsPane();
    void buildFilters(QVBoxLayout *pane);
    void buildSearch(QVBoxLayout *pane);
    QWidget *buildSelectionPane();
    void buildHotkeysBox(QVBoxLayout *pane);
    void buildConflictRows(QGridLayout *box);
    void buildAssignedList(QGridLayout *box);
    void setTabOrder();
    void retranslateSelection();
};

} // namespace CUI
