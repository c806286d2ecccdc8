<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>CUI</name>
    <message>
        <source>Velstudio Default Keyset</source>
        <translation>Velstudio 默认快捷键集</translation>
    </message>
    <message>
        <source>Zarvi Default Keyset</source>
        <translation>Zarvi 默认快捷键集</translation>
    </message>
</context>
<context>
    <name>CUI::HotkeyAudit</name>
    <message>
        <source>In %1 this key runs %2, never %3.</source>
        <translation>在 %1 中，此按键执行 %2，从不执行 %3。</translation>
    </message>
    <message>
        <source>Elsewhere it runs nothing, since these count there equally: %1.</source>
        <translation>在其他位置不执行任何操作，因为以下各项同等有效：%1。</translation>
    </message>
    <message>
        <source>This key runs nothing, since these count everywhere equally: %1.</source>
        <translation>此按键不执行任何操作，因为以下各项在任何位置都同等有效：%1。</translation>
    </message>
    <message>
        <source>Elsewhere it runs %1.</source>
        <translation>在其他位置执行 %1。</translation>
    </message>
    <message>
        <source>Elsewhere it runs %1, never %2.</source>
        <translation>在其他位置执行 %1，从不执行 %2。</translation>
    </message>
    <message>
        <source>Everywhere this key runs %1, never %2.</source>
        <translation>在任何位置，此按键都执行 %1，从不执行 %2。</translation>
    </message>
    <message>
        <source>In %1 this key runs %2.</source>
        <translation>在 %1 中，此按键执行 %2。</translation>
    </message>
    <message>
        <source>While text is typed, this key does not run %1: %2.</source>
        <translation>输入文本时，此按键不执行 %1：%2。</translation>
    </message>
    <message>
        <source>%1 has lost %2.</source>
        <translation>%1 已失去 %2。</translation>
    </message>
    <message>
        <source>%1 has lost %2, and %3 has it now.</source>
        <translation>%1 已失去 %2，现由 %3 使用。</translation>
    </message>
    <message>
        <source>No key has this name, so that none runs %1.</source>
        <translation>没有此名称的按键，因此无法执行 %1。</translation>
    </message>
    <message>
        <source>The keyboard in use has no such key, so that none runs %1.</source>
        <translation>当前键盘没有此按键，因此无法执行 %1。</translation>
    </message>
    <message>
        <source>%1 runs %2, %3 runs %4.</source>
        <translation>%1 执行 %2，%3 执行 %4。</translation>
    </message>
    <message>
        <source>%1 holds %2 of %3 hotkeys.</source>
        <translation>%1 有 %2 个快捷键，上限为 %3 个。</translation>
    </message>
    <message>
        <source>%1 may take this key before it runs %2.</source>
        <translation>%1 可能会在此按键执行 %2 之前将其占用。</translation>
    </message>
    <message>
        <source>In %1 this key runs %2, not %3.</source>
        <translation>在 %1 中，此按键执行 %2，而不是 %3。</translation>
    </message>
</context>
<context>
    <name>CUI::HotkeyFinding</name>
    <message>
        <source>Held twice</source>
        <translation>重复指定</translation>
    </message>
    <message>
        <source>Ambiguous</source>
        <translation>有歧义</translation>
    </message>
    <message>
        <source>Names no key</source>
        <translation>无此按键</translation>
    </message>
    <message>
        <source>Not on the keyboard</source>
        <translation>键盘上没有</translation>
    </message>
    <message>
        <source>Shadowed</source>
        <translation>被遮蔽</translation>
    </message>
    <message>
        <source>Taken by the desktop</source>
        <translation>被桌面占用</translation>
    </message>
    <message>
        <source>Hotkey lost</source>
        <translation>失去快捷键</translation>
    </message>
    <message>
        <source>Taken by text fields</source>
        <translation>被文本框占用</translation>
    </message>
    <message>
        <source>Differs by keypad only</source>
        <translation>仅小键盘不同</translation>
    </message>
    <message>
        <source>Differs by Shift only</source>
        <translation>仅 Shift 不同</translation>
    </message>
    <message>
        <source>Close to the limit</source>
        <translation>接近上限</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
</context>
<context>
    <name>CUI::HotkeyKeyboard</name>
    <message>
        <source>Not a hotkey</source>
        <translation>不能作快捷键</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>空闲</translation>
    </message>
    <message>
        <source>Taken</source>
        <translation>已占用</translation>
    </message>
    <message>
        <source>Taken in several groups</source>
        <translation>在多个组中已占用</translation>
    </message>
    <message>
        <source>Reserved by the system</source>
        <translation>由系统保留</translation>
    </message>
    <message>
        <source>Without modifiers</source>
        <translation>无修饰键</translation>
    </message>
</context>
<context>
    <name>CUI::HotkeyReservation</name>
    <message>
        <source>Close window</source>
        <translation>关闭窗口</translation>
    </message>
    <message>
        <source>Switch windows</source>
        <translation>切换窗口</translation>
    </message>
    <message>
        <source>Window menu</source>
        <translation>窗口菜单</translation>
    </message>
    <message>
        <source>Move or resize window</source>
        <translation>移动窗口或调整其大小</translation>
    </message>
    <message>
        <source>Hide or minimize window</source>
        <translation>隐藏或最小化窗口</translation>
    </message>
    <message>
        <source>Show all windows</source>
        <translation>显示所有窗口</translation>
    </message>
    <message>
        <source>Show the desktop</source>
        <translation>显示桌面</translation>
    </message>
    <message>
        <source>Switch workspace</source>
        <translation>切换工作区</translation>
    </message>
    <message>
        <source>Move window to a workspace</source>
        <translation>将窗口移到工作区</translation>
    </message>
    <message>
        <source>Search or start a program</source>
        <translation>搜索或启动程序</translation>
    </message>
    <message>
        <source>Open a terminal</source>
        <translation>打开终端</translation>
    </message>
    <message>
        <source>Log out or lock the screen</source>
        <translation>注销或锁定屏幕</translation>
    </message>
    <message>
        <source>Task manager or force quit</source>
        <translation>任务管理器或强制退出</translation>
    </message>
    <message>
        <source>Picture of the screen</source>
        <translation>屏幕截图</translation>
    </message>
    <message>
        <source>Switch to a text console</source>
        <translation>切换到文本控制台</translation>
    </message>
    <message>
        <source>Accessibility</source>
        <translation>辅助功能</translation>
    </message>
    <message>
        <source>Cut, copy or paste</source>
        <translation>剪切、复制或粘贴</translation>
    </message>
    <message>
        <source>Undo or redo</source>
        <translation>撤销或重做</translation>
    </message>
    <message>
        <source>Select text</source>
        <translation>选择文本</translation>
    </message>
    <message>
        <source>Delete text</source>
        <translation>删除文本</translation>
    </message>
    <message>
        <source>Move the text cursor</source>
        <translation>移动文本光标</translation>
    </message>
    <message>
        <source>KDE: System Settings &gt; Keyboard &gt; Shortcuts</source>
        <translation>KDE：系统设置 &gt; 键盘 &gt; 快捷键</translation>
    </message>
    <message>
        <source>GNOME: Settings &gt; Keyboard</source>
        <translation>GNOME：设置 &gt; 键盘</translation>
    </message>
    <message>
        <source>macOS: System Settings &gt; Keyboard &gt; Keyboard Shortcuts</source>
        <translation>macOS：系统设置 &gt; 键盘 &gt; 键盘快捷键</translation>
    </message>
    <message>
        <source>Text fields of Qt</source>
        <translation>Qt 的文本框</translation>
    </message>
    <message>
        <source>Text fields</source>
        <translation>文本框</translation>
    </message>
    <message>
        <source>Show or hide the Dock</source>
        <translation>显示或隐藏程序坞</translation>
    </message>
    <message>
        <source>%1: built into the system</source>
        <translation>%1：系统内置</translation>
    </message>
</context>
<context>
    <name>CUI::HotkeySheet</name>
    <message>
        <source>Hotkeys</source>
        <translation>快捷键</translation>
    </message>
    <message>
        <source>en</source>
        <comment>the code of this translation&apos;s language</comment>
        <translation>zh-Hans</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>%1 (continued)</source>
        <translation>%1（续）</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>第 %1 页，共 %2 页</translation>
    </message>
</context>
<context>
    <name>CUI::KeyboardChoosers</name>
    <message>
        <source>%1 groups</source>
        <translation>%1 个组</translation>
    </message>
    <message>
        <source>Modifiers:</source>
        <translation>修饰键：</translation>
    </message>
    <message>
        <source>Shape:</source>
        <translation>形状：</translation>
    </message>
    <message>
        <source>Of the layout in use</source>
        <translation>与所用布局一致</translation>
    </message>
</context>
<context>
    <name>CUI::QvelActionItemModel</name>
    <message>
        <source>Action</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>Hotkey</source>
        <translation>快捷键</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>组</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>类别</translation>
    </message>
</context>
<context>
    <name>CUI::QvelAssignedShortcutListItem</name>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>Successfully removed</source>
        <translation>已成功移除</translation>
    </message>
</context>
<context>
    <name>CUI::QvelCommandPalette</name>
    <message>
        <source>%1 (not available)</source>
        <translation>%1（不可用）</translation>
    </message>
    <message>
        <source>Press keys...</source>
        <translation>按下按键...</translation>
    </message>
    <message>
        <source>Assign</source>
        <translation>指定</translation>
    </message>
    <message>
        <source>New hotkey for %1:</source>
        <translation>%1 的新快捷键：</translation>
    </message>
    <message>
        <source>New hotkey for %1 instead of %2:</source>
        <translation>%1 的新快捷键（代替 %2）：</translation>
    </message>
    <message>
        <source>Press the new hotkey, or Escape to leave it.</source>
        <translation>请按下新快捷键，或按 Esc 放弃。</translation>
    </message>
    <message>
        <source>Enter assigns it.</source>
        <translation>按 Enter 指定。</translation>
    </message>
    <message>
        <source>Conflicts with: %1. Enter takes it from there.</source>
        <translation>冲突操作：%1。按 Enter 从该操作取走。</translation>
    </message>
    <message>
        <source>Assign %1 to %2</source>
        <translation>将 %1 指定给 %2</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>命令</translation>
    </message>
    <message>
        <source>Type to search by Actions...</source>
        <translation>按操作名称搜索...</translation>
    </message>
    <message>
        <source>Search for a command</source>
        <translation>搜索命令</translation>
    </message>
    <message>
        <source>It acts only while its hotkey is held.</source>
        <translation>仅在按住快捷键时有效。</translation>
    </message>
    <message>
        <source>It is disabled at the moment.</source>
        <translation>目前已禁用。</translation>
    </message>
    <message>
        <source>The application does not perform it.</source>
        <translation>应用程序不执行此操作。</translation>
    </message>
    <message>
        <source>No command has this name.</source>
        <translation>没有此名称的命令。</translation>
    </message>
    <message>
        <source>Enter runs it, Tab changes its hotkey, Escape closes.</source>
        <translation>Enter：执行，Tab：更改快捷键，Esc：关闭。</translation>
    </message>
</context>
<context>
    <name>CUI::QvelConflictsWidget</name>
    <message>
        <source>Severity</source>
        <translation>严重程度</translation>
    </message>
    <message>
        <source>Finding</source>
        <translation>发现项</translation>
    </message>
    <message>
        <source>Hotkey</source>
        <translation>快捷键</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>What happens today</source>
        <translation>当前情况</translation>
    </message>
    <message>
        <source>Findings: %1 of %2</source>
        <translation>发现项：%1 / %2</translation>
    </message>
    <message>
        <source>Errors only</source>
        <translation>仅错误</translation>
    </message>
    <message>
        <source>Errors and warnings</source>
        <translation>错误和警告</translation>
    </message>
    <message>
        <source>All findings</source>
        <translation>所有发现项</translation>
    </message>
    <message>
        <source>All kinds</source>
        <translation>所有类型</translation>
    </message>
    <message>
        <source>Type to search...</source>
        <translation>输入以搜索...</translation>
    </message>
    <message>
        <source>Search the findings</source>
        <translation>搜索发现项</translation>
    </message>
    <message>
        <source>Least severe finding</source>
        <translation>最低严重程度</translation>
    </message>
    <message>
        <source>Kind of finding</source>
        <translation>发现项类型</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>发现项</translation>
    </message>
    <message>
        <source>What settles the finding</source>
        <translation>解决方法</translation>
    </message>
    <message>
        <source>Select a finding to see what settles it.</source>
        <translation>选择一个发现项以查看解决方法。</translation>
    </message>
    <message>
        <source>Give back</source>
        <translation>归还</translation>
    </message>
    <message>
        <source>Give to this action</source>
        <translation>指定给此操作</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Choose another</source>
        <translation>选择其他</translation>
    </message>
    <message>
        <source>Remove %1 from %2</source>
        <translation>从 %2 移除 %1</translation>
    </message>
    <message>
        <source>Give %1 to %2</source>
        <translation>将 %1 指定给 %2</translation>
    </message>
    <message>
        <source>Give %1 back to %2</source>
        <translation>将 %1 归还给 %2</translation>
    </message>
    <message>
        <source>Change %1 to %2 for %3</source>
        <translation>将 %1 更改为 %2：%3</translation>
    </message>
</context>
<context>
    <name>CUI::QvelKeyboardWidget</name>
    <message>
        <source>Show in the Table</source>
        <translation>在表中显示</translation>
    </message>
    <message>
        <source>Assign to %1</source>
        <translation>指定给 %1</translation>
    </message>
    <message>
        <source>Move %1 to Another Key</source>
        <translation>将 %1 移到其他键</translation>
    </message>
    <message>
        <source>Move %1 Here</source>
        <translation>将 %1 移到此处</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation>键盘</translation>
    </message>
    <message>
        <source>Actions of the key</source>
        <translation>按键的操作</translation>
    </message>
    <message>
        <source>Move %1 to %2</source>
        <translation>将 %1 移到 %2</translation>
    </message>
</context>
<context>
    <name>CUI::QvelMessageLogWidget</name>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>全选</translation>
    </message>
    <message>
        <source>Clear Log</source>
        <translation>清除日志</translation>
    </message>
</context>
<context>
    <name>CUI::QvelPresetComboBox</name>
    <message>
        <source>[Unsaved Changes*]</source>
        <translation>[未保存的更改*]</translation>
    </message>
</context>
<context>
    <name>CUI::QvelShortcutManager</name>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>to</source>
        <translation>到</translation>
    </message>
    <message>
        <source>from</source>
        <translation>自</translation>
    </message>
</context>
<context>
    <name>QvelCustomizeUiDialog</name>
    <message>
        <source>All Groups</source>
        <translation>所有组</translation>
    </message>
    <message>
        <source>All Actions</source>
        <translation>所有操作</translation>
    </message>
    <message>
        <source>Assigned Hotkeys Only</source>
        <translation>仅已指定的快捷键</translation>
    </message>
    <message>
        <source>Customized Hotkeys Only</source>
        <translation>仅自定义的快捷键</translation>
    </message>
    <message>
        <source>Unsaved Hotkeys Only</source>
        <translation>仅未保存的快捷键</translation>
    </message>
</context>
<context>
    <name>QvelMenusWidget</name>
    <message>
        <source>QvelMenusWidget</source>
        <translation>菜单</translation>
    </message>
</context>
<context>
    <name>QvelShortcutsWidget</name>
    <message>
        <source>QvelShortcutsWidget</source>
        <translation>快捷键编辑器</translation>
    </message>
    <message>
        <source>Type to search by Hotkeys...</source>
        <translation>按快捷键搜索...</translation>
    </message>
    <message>
        <source>Type to search by Actions...</source>
        <translation>按操作名称搜索...</translation>
    </message>
    <message>
        <source>Type to search...</source>
        <translation>输入以搜索...</translation>
    </message>
    <message>
        <source>Press and hold to temporarily activate.</source>
        <translation>按住可临时激活。</translation>
    </message>
    <message>
        <source>No action selected</source>
        <translation>未选择操作</translation>
    </message>
    <message>
        <source>Select an action in the table to edit its hotkeys.</source>
        <translation>在表格中选择一个操作以编辑其快捷键。</translation>
    </message>
    <message>
        <source>Select an action in the table on the left to edit its hotkeys</source>
        <translation>在左侧表格中选择一个操作以编辑其快捷键</translation>
    </message>
    <message>
        <source>Too Many Hotkeys</source>
        <translation>快捷键过多</translation>
    </message>
    <message>
        <source>An action can have at most %1 hotkeys.

Remove one of them before you assign another.
</source>
        <translation>一个操作最多可以有 %1 个快捷键。

请先移除其中一个，然后再指定新的快捷键。
</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Save changes...</source>
        <translation>将更改保存到当前快捷键集；如果当前快捷键集已锁定，则保存到新的快捷键集。</translation>
    </message>
    <message>
        <source>Hotkey Set:</source>
        <translation>快捷键集：</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Save, load...</source>
        <translation>保存、加载、重置或导入快捷键集。</translation>
    </message>
    <message>
        <source>Change the active...</source>
        <translation>切换当前使用的快捷键集。</translation>
    </message>
    <message>
        <source>Filter the list... assigned</source>
        <translation>按快捷键的状态（已指定、自定义或未保存）过滤操作列表。</translation>
    </message>
    <message>
        <source>Group:</source>
        <translation>组：</translation>
    </message>
    <message>
        <source>Filter the list...context</source>
        <translation>按操作所属的组过滤操作列表。</translation>
    </message>
    <message>
        <source>Filter:</source>
        <translation>过滤器：</translation>
    </message>
    <message>
        <source>Press keys and modifiers...</source>
        <translation>输入操作名称的一部分；按快捷键搜索时，请按下要查找的快捷键。</translation>
    </message>
    <message>
        <source>Hotkeys</source>
        <translation>快捷键</translation>
    </message>
    <message>
        <source>Search will be... hotkey</source>
        <translation>按快捷键搜索：请按下要查找的快捷键。</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>Search will be... action</source>
        <translation>按操作名称搜索：请输入名称的一部分。</translation>
    </message>
    <message>
        <source>Type new hotkey...</source>
        <translation>输入新快捷键...</translation>
    </message>
    <message>
        <source>Press keys and... assign</source>
        <translation>请按下要指定给所选操作的快捷键。</translation>
    </message>
    <message>
        <source>Press keys...</source>
        <translation>按下快捷键...</translation>
    </message>
    <message>
        <source>Assign</source>
        <translation>指定</translation>
    </message>
    <message>
        <source>Assigns the hotkey...</source>
        <translation>将快捷键指定给所选操作。</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>Reassign the hotkey...</source>
        <translation>将快捷键重新指定给原来的操作。</translation>
    </message>
    <message>
        <source>Removed from:</source>
        <translation>已从以下操作移除：</translation>
    </message>
    <message>
        <source>Conflicts with:</source>
        <translation>冲突操作：</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Removes the assignment...</source>
        <translation>从当前使用该快捷键的操作中移除它，以便将其指定给所选操作。</translation>
    </message>
    <message>
        <source>Validate Shortcut File</source>
        <translation>验证快捷键文件</translation>
    </message>
    <message>
        <source>Shortcut File Validation</source>
        <translation>快捷键文件验证结果</translation>
    </message>
    <message>
        <source>Validate Shortcut Transform File</source>
        <translation>验证快捷键更改文件</translation>
    </message>
    <message>
        <source>Shortcut Transform File Validation</source>
        <translation>快捷键更改文件验证结果</translation>
    </message>
    <message>
        <source>Save Shortcuts</source>
        <translation>保存快捷键</translation>
    </message>
    <message>
        <source>Load Shortcuts</source>
        <translation>加载快捷键</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重置</translation>
    </message>
    <message>
        <source>Unsaved Changes</source>
        <translation>未保存的更改</translation>
    </message>
    <message>
        <source>Save your changes, discard them, or cancel to continue making changes.
</source>
        <translation>请保存或丢弃更改，也可以取消以继续进行更改。
</translation>
    </message>
    <message>
        <source>Reset Hotkeys</source>
        <translation>重置快捷键</translation>
    </message>
    <message>
        <source>Reset to discard all unsaved changes.
</source>
        <translation>重置将丢弃所有未保存的更改。
</translation>
    </message>
    <message>
        <source>File not Found</source>
        <translation>找不到文件</translation>
    </message>
    <message>
        <source>The file for hotkey set &apos;%1&apos; cannot be found.

You can either preserve the loaded hotkeys by saving them to a file or reset to the default hotkey set.
</source>
        <translation>找不到快捷键集“%1”的文件。

您可以将已加载的快捷键保存到文件以保留它们，也可以重置为默认快捷键集。
</translation>
    </message>
    <message>
        <source>The file for hotkey set &apos;%1&apos; cannot be found.

The missing set will be removed from the list.
</source>
        <translation>找不到快捷键集“%1”的文件。

缺少的快捷键集将从列表中移除。
</translation>
    </message>
    <message>
        <source>Hotkey File Already Exists</source>
        <translation>快捷键文件已存在</translation>
    </message>
    <message>
        <source>%1 already exists in the User Customization folder.

Do you want to replace it?</source>
        <translation>用户设置文件夹中已存在 %1。

要替换它吗？</translation>
    </message>
    <message>
        <source>Save Changes Error</source>
        <translation>保存更改时出错</translation>
    </message>
    <message>
        <source>Cannot overwrite a locked preset file!</source>
        <translation>无法覆盖已锁定的快捷键集。</translation>
    </message>
    <message>
        <source>The hotkeys cannot be saved to %1.

Your changes are still here.
</source>
        <translation>无法将快捷键保存到 %1。

您的更改未丢失。
</translation>
    </message>
    <message>
        <source>Open Log File</source>
        <translation>打开日志文件</translation>
    </message>
    <message>
        <source>Hotkey Set Not Loaded</source>
        <translation>快捷键集未加载</translation>
    </message>
    <message>
        <source>%1 cannot be loaded.

See the log for more details.</source>
        <translation>无法加载 %1。

有关详细信息，请参阅日志。</translation>
    </message>
    <message>
        <source>Hotkey File Converted</source>
        <translation>快捷键文件已转换</translation>
    </message>
    <message>
        <source>%1 was successfully converted and loaded.

The new file, %2, is saved in your User Settings folder.</source>
        <translation>%1 已成功转换并加载。

新文件 %2 保存在您的用户设置文件夹中。</translation>
    </message>
    <message>
        <source>Open File Location</source>
        <translation>打开文件位置</translation>
    </message>
    <message>
        <source>Hotkeys Conversion Failed</source>
        <translation>快捷键转换失败</translation>
    </message>
    <message>
        <source>Something went wrong while converting %1.

See the log for more details.</source>
        <translation>转换 %1 时出错。

有关详细信息，请参阅日志。</translation>
    </message>
    <message>
        <source>Xml File valid!! According to schema definition.</source>
        <translation>该 XML 文件有效，符合架构定义。</translation>
    </message>
    <message>
        <source>Xml File invalid!! According to schema definition.</source>
        <translation>该 XML 文件无效，不符合架构定义。</translation>
    </message>
    <message>
        <source>Hotkey Set File (*.%1)</source>
        <translation>快捷键集文件 (*.%1)</translation>
    </message>
    <message>
        <source>Shortcut File (*.%1)</source>
        <translation>快捷键文件 (*.%1)</translation>
    </message>
    <message>
        <source>Save Hotkey Set As</source>
        <translation>快捷键集另存为</translation>
    </message>
    <message>
        <source>Load Hotkey Set</source>
        <translation>加载快捷键集</translation>
    </message>
    <message>
        <source>Convert Legacy Hotkeys</source>
        <translation>转换旧版快捷键</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts (*.%1)</source>
        <translation>键盘快捷键 (*.%1)</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>导入</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>另存为...</translation>
    </message>
    <message>
        <source>Load From File...</source>
        <translation>从文件加载...</translation>
    </message>
    <message>
        <source>Import Legacy Hotkeys...</source>
        <translation>导入旧版快捷键...</translation>
    </message>
    <message>
        <source>Shortcut Transformation List</source>
        <translation>快捷键更改列表</translation>
    </message>
    <message>
        <source>The file cannot be opened.</source>
        <translation>无法打开该文件。</translation>
    </message>
    <message>
        <source>Hotkey Set Changed</source>
        <translation>快捷键集已更改</translation>
    </message>
    <message>
        <source>The file of hotkey set &apos;%1&apos; was changed by another program since it was loaded.

Saving replaces those changes by yours.
</source>
        <translation>快捷键集“%1”的文件在加载后已被其他程序更改。

保存会用您的更改替换那些更改。
</translation>
    </message>
    <message>
        <source>Save Anyway</source>
        <translation>仍然保存</translation>
    </message>
    <message>
        <source>%1 is already assigned to:

%2

Reassign it?</source>
        <translation>%1 已指定给：

%2

要重新指定吗？</translation>
    </message>
    <message>
        <source>Reassign Hotkey</source>
        <translation>重新指定快捷键</translation>
    </message>
    <message>
        <source>Copy Hotkey</source>
        <translation>复制快捷键</translation>
    </message>
    <message>
        <source>Show What Has This Hotkey</source>
        <translation>显示使用此快捷键的操作</translation>
    </message>
    <message>
        <source>Reset %1 to Default</source>
        <translation>将“%1”重置为默认</translation>
    </message>
    <message>
        <source>Reset to Default</source>
        <translation>重置为默认</translation>
    </message>
    <message>
        <source>Reset Group to Default</source>
        <translation>将组重置为默认</translation>
    </message>
    <message>
        <source>Reset All to Default</source>
        <translation>全部重置为默认</translation>
    </message>
    <message>
        <source>Default: none</source>
        <translation>默认：无</translation>
    </message>
    <message>
        <source>Default: %1</source>
        <translation>默认：%1</translation>
    </message>
    <message>
        <source>Other actions have these default hotkeys now:

%1

Take them back?</source>
        <translation>以下默认快捷键现在由其他操作使用：

%1

要收回吗？</translation>
    </message>
    <message>
        <source>Take Back</source>
        <translation>收回</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>保留</translation>
    </message>
</context>
</TS>
