<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en">
<context>
    <name>CUI</name>
    <message>
        <source>Velstudio Default Keyset</source>
        <translation>Velstudio デフォルトホットキーセット</translation>
    </message>
    <message>
        <source>Zarvi Default Keyset</source>
        <translation>Zarvi デフォルトホットキーセット</translation>
    </message>
</context>
<context>
    <name>CUI::HotkeyAudit</name>
    <message>
        <source>In %1 this key runs %2, never %3.</source>
        <translation>%1 では、このキーは %2 を実行し、%3 は実行しません。</translation>
    </message>
    <message>
        <source>Elsewhere it runs nothing, since these count there equally: %1.</source>
        <translation>それ以外では、次のものが同等なため何も実行しません: %1。</translation>
    </message>
    <message>
        <source>This key runs nothing, since these count everywhere equally: %1.</source>
        <translation>次のものがどこでも同等なため、このキーは何も実行しません: %1。</translation>
    </message>
    <message>
        <source>Elsewhere it runs %1.</source>
        <translation>それ以外では %1 を実行します。</translation>
    </message>
    <message>
        <source>Elsewhere it runs %1, never %2.</source>
        <translation>それ以外では %1 を実行し、%2 は実行しません。</translation>
    </message>
    <message>
        <source>Everywhere this key runs %1, never %2.</source>
        <translation>どこでも、このキーは %1 を実行し、%2 は実行しません。</translation>
    </message>
    <message>
        <source>In %1 this key runs %2.</source>
        <translation>%1 では、このキーは %2 を実行します。</translation>
    </message>
    <message>
        <source>While text is typed, this key does not run %1: %2.</source>
        <translation>テキストの入力中、このキーは %1 を実行しません: %2。</translation>
    </message>
    <message>
        <source>%1 has lost %2.</source>
        <translation>%1 は %2 を失いました。</translation>
    </message>
    <message>
        <source>%1 has lost %2, and %3 has it now.</source>
        <translation>%1 は %2 を失い、現在は %3 が使用しています。</translation>
    </message>
    <message>
        <source>No key has this name, so that none runs %1.</source>
        <translation>この名前のキーはないため、%1 は実行されません。</translation>
    </message>
    <message>
        <source>The keyboard in use has no such key, so that none runs %1.</source>
        <translation>使用中のキーボードにこのキーがないため、%1 は実行されません。</translation>
    </message>
    <message>
        <source>%1 runs %2, %3 runs %4.</source>
        <translation>%1 は %2 を、%3 は %4 を実行します。</translation>
    </message>
    <message>
        <source>%1 holds %2 of %3 hotkeys.</source>
        <translation>%1 のホットキーは %3 個中 %2 個です。</translation>
    </message>
    <message>
        <source>%1 may take this key before it runs %2.</source>
        <translation>このキーは、%2 を実行する前に %1 に使われることがあります。</translation>
    </message>
    <message>
        <source>In %1 this key runs %2, not %3.</source>
        <translation>%1 では、このキーは %3 ではなく %2 を実行します。</translation>
    </message>
</context>
<context>
    <name>CUI::HotkeyFinding</name>
    <message>
        <source>Held twice</source>
        <translation>重複</translation>
    </message>
    <message>
        <source>Ambiguous</source>
        <translation>あいまい</translation>
    </message>
    <message>
        <source>Names no key</source>
        <translation>存在しないキー</translation>
    </message>
    <message>
        <source>Not on the keyboard</source>
        <translation>キーボードにないキー</translation>
    </message>
    <message>
        <source>Shadowed</source>
        <translation>隠れている</translation>
    </message>
    <message>
        <source>Taken by the desktop</source>
        <translation>デスクトップが使用</translation>
    </message>
    <message>
        <source>Hotkey lost</source>
        <translation>ホットキーの喪失</translation>
    </message>
    <message>
        <source>Taken by text fields</source>
        <translation>テキスト入力欄が使用</translation>
    </message>
    <message>
        <source>Differs by keypad only</source>
        <translation>テンキーだけの違い</translation>
    </message>
    <message>
        <source>Differs by Shift only</source>
        <translation>Shift だけの違い</translation>
    </message>
    <message>
        <source>Close to the limit</source>
        <translation>上限に近い</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>注記</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
</context>
<context>
    <name>CUI::HotkeyKeyboard</name>
    <message>
        <source>Not a hotkey</source>
        <translation>ホットキー不可</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>空き</translation>
    </message>
    <message>
        <source>Taken</source>
        <translation>使用中</translation>
    </message>
    <message>
        <source>Taken in several groups</source>
        <translation>複数のグループで使用中</translation>
    </message>
    <message>
        <source>Reserved by the system</source>
        <translation>システムが予約</translation>
    </message>
    <message>
        <source>Without modifiers</source>
        <translation>修飾キーなし</translation>
    </message>
</context>
<context>
    <name>CUI::HotkeyReservation</name>
    <message>
        <source>Close window</source>
        <translation>ウィンドウを閉じる</translation>
    </message>
    <message>
        <source>Switch windows</source>
        <translation>ウィンドウの切り替え</translation>
    </message>
    <message>
        <source>Window menu</source>
        <translation>ウィンドウメニュー</translation>
    </message>
    <message>
        <source>Move or resize window</source>
        <translation>ウィンドウの移動またはサイズ変更</translation>
    </message>
    <message>
        <source>Hide or minimize window</source>
        <translation>ウィンドウを隠すまたは最小化</translation>
    </message>
    <message>
        <source>Show all windows</source>
        <translation>すべてのウィンドウを表示</translation>
    </message>
    <message>
        <source>Show the desktop</source>
        <translation>デスクトップを表示</translation>
    </message>
    <message>
        <source>Switch workspace</source>
        <translation>ワークスペースの切り替え</translation>
    </message>
    <message>
        <source>Move window to a workspace</source>
        <translation>ウィンドウをワークスペースに移動</translation>
    </message>
    <message>
        <source>Search or start a program</source>
        <translation>プログラムの検索または起動</translation>
    </message>
    <message>
        <source>Open a terminal</source>
        <translation>端末を開く</translation>
    </message>
    <message>
        <source>Log out or lock the screen</source>
        <translation>ログアウトまたは画面のロック</translation>
    </message>
    <message>
        <source>Task manager or force quit</source>
        <translation>タスクマネージャーまたは強制終了</translation>
    </message>
    <message>
        <source>Picture of the screen</source>
        <translation>スクリーンショット</translation>
    </message>
    <message>
        <source>Switch to a text console</source>
        <translation>テキストコンソールに切り替え</translation>
    </message>
    <message>
        <source>Accessibility</source>
        <translation>アクセシビリティ</translation>
    </message>
    <message>
        <source>Cut, copy or paste</source>
        <translation>切り取り、コピー、貼り付け</translation>
    </message>
    <message>
        <source>Undo or redo</source>
        <translation>元に戻すまたはやり直す</translation>
    </message>
    <message>
        <source>Select text</source>
        <translation>テキストの選択</translation>
    </message>
    <message>
        <source>Delete text</source>
        <translation>テキストの削除</translation>
    </message>
    <message>
        <source>Move the text cursor</source>
        <translation>テキストカーソルの移動</translation>
    </message>
    <message>
        <source>KDE: System Settings &gt; Keyboard &gt; Shortcuts</source>
        <translation>KDE: システム設定 &gt; キーボード &gt; ショートカット</translation>
    </message>
    <message>
        <source>GNOME: Settings &gt; Keyboard</source>
        <translation>GNOME: 設定 &gt; キーボード</translation>
    </message>
    <message>
        <source>macOS: System Settings &gt; Keyboard &gt; Keyboard Shortcuts</source>
        <translation>macOS: システム設定 &gt; キーボード &gt; キーボードショートカット</translation>
    </message>
    <message>
        <source>Text fields of Qt</source>
        <translation>Qt のテキスト入力欄</translation>
    </message>
    <message>
        <source>Text fields</source>
        <translation>テキスト入力欄</translation>
    </message>
    <message>
        <source>Show or hide the Dock</source>
        <translation>Dock を表示または非表示</translation>
    </message>
    <message>
        <source>%1: built into the system</source>
        <translation>%1: システムに組み込み</translation>
    </message>
</context>
<context>
    <name>CUI::HotkeySheet</name>
    <message>
        <source>Hotkeys</source>
        <translation>ホットキー</translation>
    </message>
    <message>
        <source>en</source>
        <comment>the code of this translation&apos;s language</comment>
        <translation>ja</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>%1 (continued)</source>
        <translation>%1（続き）</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>%1 / %2 ページ</translation>
    </message>
</context>
<context>
    <name>CUI::KeyboardChoosers</name>
    <message>
        <source>%1 groups</source>
        <translation>%1 グループ</translation>
    </message>
    <message>
        <source>Modifiers:</source>
        <translation>修飾キー:</translation>
    </message>
    <message>
        <source>Shape:</source>
        <translation>形状:</translation>
    </message>
    <message>
        <source>Of the layout in use</source>
        <translation>使用中の配列に合わせる</translation>
    </message>
</context>
<context>
    <name>CUI::QvelActionItemModel</name>
    <message>
        <source>Action</source>
        <translation>アクション</translation>
    </message>
    <message>
        <source>Hotkey</source>
        <translation>ホットキー</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>グループ</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>カテゴリ</translation>
    </message>
</context>
<context>
    <name>CUI::QvelAssignedShortcutListItem</name>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Successfully removed</source>
        <translation>削除しました</translation>
    </message>
</context>
<context>
    <name>CUI::QvelCommandPalette</name>
    <message>
        <source>%1 (not available)</source>
        <translation>%1（使用不可）</translation>
    </message>
    <message>
        <source>Press keys...</source>
        <translation>キーを押してください...</translation>
    </message>
    <message>
        <source>Assign</source>
        <translation>割り当て</translation>
    </message>
    <message>
        <source>New hotkey for %1:</source>
        <translation>%1 の新しいホットキー:</translation>
    </message>
    <message>
        <source>New hotkey for %1 instead of %2:</source>
        <translation>%1 の %2 に代わる新しいホットキー:</translation>
    </message>
    <message>
        <source>Press the new hotkey, or Escape to leave it.</source>
        <translation>新しいホットキーを押してください。Esc で中止します。</translation>
    </message>
    <message>
        <source>Enter assigns it.</source>
        <translation>Enter で割り当てます。</translation>
    </message>
    <message>
        <source>Conflicts with: %1. Enter takes it from there.</source>
        <translation>競合先: %1。Enter でそこから移します。</translation>
    </message>
    <message>
        <source>Assign %1 to %2</source>
        <translation>%1 を %2 に割り当て</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>コマンド</translation>
    </message>
    <message>
        <source>Type to search by Actions...</source>
        <translation>アクション名で検索...</translation>
    </message>
    <message>
        <source>Search for a command</source>
        <translation>コマンドを検索</translation>
    </message>
    <message>
        <source>It acts only while its hotkey is held.</source>
        <translation>ホットキーを押している間だけ有効です。</translation>
    </message>
    <message>
        <source>It is disabled at the moment.</source>
        <translation>現在は無効です。</translation>
    </message>
    <message>
        <source>The application does not perform it.</source>
        <translation>アプリケーションはこれを実行しません。</translation>
    </message>
    <message>
        <source>No command has this name.</source>
        <translation>この名前のコマンドはありません。</translation>
    </message>
    <message>
        <source>Enter runs it, Tab changes its hotkey, Escape closes.</source>
        <translation>Enter: 実行、Tab: ホットキーの変更、Esc: 閉じる</translation>
    </message>
</context>
<context>
    <name>CUI::QvelConflictsWidget</name>
    <message>
        <source>Severity</source>
        <translation>重大度</translation>
    </message>
    <message>
        <source>Finding</source>
        <translation>検出内容</translation>
    </message>
    <message>
        <source>Hotkey</source>
        <translation>ホットキー</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>アクション</translation>
    </message>
    <message>
        <source>What happens today</source>
        <translation>現在の動作</translation>
    </message>
    <message>
        <source>Findings: %1 of %2</source>
        <translation>検出結果: %1 / %2</translation>
    </message>
    <message>
        <source>Errors only</source>
        <translation>エラーのみ</translation>
    </message>
    <message>
        <source>Errors and warnings</source>
        <translation>エラーと警告</translation>
    </message>
    <message>
        <source>All findings</source>
        <translation>すべての検出結果</translation>
    </message>
    <message>
        <source>All kinds</source>
        <translation>すべての種類</translation>
    </message>
    <message>
        <source>Type to search...</source>
        <translation>入力して検索...</translation>
    </message>
    <message>
        <source>Search the findings</source>
        <translation>検出結果を検索</translation>
    </message>
    <message>
        <source>Least severe finding</source>
        <translation>最低の重大度</translation>
    </message>
    <message>
        <source>Kind of finding</source>
        <translation>検出内容の種類</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>検出結果</translation>
    </message>
    <message>
        <source>What settles the finding</source>
        <translation>解決方法</translation>
    </message>
    <message>
        <source>Select a finding to see what settles it.</source>
        <translation>検出結果を選択すると、解決方法が表示されます。</translation>
    </message>
    <message>
        <source>Give back</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Give to this action</source>
        <translation>このアクションに割り当て</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Choose another</source>
        <translation>別のものを選択</translation>
    </message>
    <message>
        <source>Remove %1 from %2</source>
        <translation>%1 を %2 から削除</translation>
    </message>
    <message>
        <source>Give %1 to %2</source>
        <translation>%1 を %2 に割り当て</translation>
    </message>
    <message>
        <source>Give %1 back to %2</source>
        <translation>%1 を %2 に戻す</translation>
    </message>
    <message>
        <source>Change %1 to %2 for %3</source>
        <translation>%1 を %2 に変更: %3</translation>
    </message>
</context>
<context>
    <name>CUI::QvelKeyboardWidget</name>
    <message>
        <source>Show in the Table</source>
        <translation>表に表示</translation>
    </message>
    <message>
        <source>Assign to %1</source>
        <translation>%1 に割り当て</translation>
    </message>
    <message>
        <source>Move %1 to Another Key</source>
        <translation>%1 を別のキーに移動</translation>
    </message>
    <message>
        <source>Move %1 Here</source>
        <translation>%1 をここに移動</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation>キーボード</translation>
    </message>
    <message>
        <source>Actions of the key</source>
        <translation>キーのアクション</translation>
    </message>
    <message>
        <source>Move %1 to %2</source>
        <translation>%1 を %2 に移動</translation>
    </message>
</context>
<context>
    <name>CUI::QvelMessageLogWidget</name>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>すべて選択</translation>
    </message>
    <message>
        <source>Clear Log</source>
        <translation>ログをクリア</translation>
    </message>
</context>
<context>
    <name>CUI::QvelPresetComboBox</name>
    <message>
        <source>[Unsaved Changes*]</source>
        <translation>[未保存の変更*]</translation>
    </message>
</context>
<context>
    <name>CUI::QvelShortcutManager</name>
    <message>
        <source>Add</source>
        <translation>追加:</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除:</translation>
    </message>
    <message>
        <source>to</source>
        <translation>追加先:</translation>
    </message>
    <message>
        <source>from</source>
        <translation>削除元:</translation>
    </message>
</context>
<context>
    <name>QvelCustomizeUiDialog</name>
    <message>
        <source>All Groups</source>
        <translation>すべてのグループ</translation>
    </message>
    <message>
        <source>All Actions</source>
        <translation>すべてのアクション</translation>
    </message>
    <message>
        <source>Assigned Hotkeys Only</source>
        <translation>割り当て済みのホットキーのみ</translation>
    </message>
    <message>
        <source>Customized Hotkeys Only</source>
        <translation>カスタマイズ済みのホットキーのみ</translation>
    </message>
    <message>
        <source>Unsaved Hotkeys Only</source>
        <translation>未保存のホットキーのみ</translation>
    </message>
</context>
<context>
    <name>QvelMenusWidget</name>
    <message>
        <source>QvelMenusWidget</source>
        <translation>メニュー</translation>
    </message>
</context>
<context>
    <name>QvelShortcutsWidget</name>
    <message>
        <source>QvelShortcutsWidget</source>
        <translation>ホットキーエディター</translation>
    </message>
    <message>
        <source>Type to search by Hotkeys...</source>
        <translation>ホットキーで検索...</translation>
    </message>
    <message>
        <source>Type to search by Actions...</source>
        <translation>アクション名で検索...</translation>
    </message>
    <message>
        <source>Type to search...</source>
        <translation>入力して検索...</translation>
    </message>
    <message>
        <source>Press and hold to temporarily activate.</source>
        <translation>押している間だけ有効になります。</translation>
    </message>
    <message>
        <source>No action selected</source>
        <translation>アクションが選択されていません</translation>
    </message>
    <message>
        <source>Select an action in the table to edit its hotkeys.</source>
        <translation>ホットキーを編集するアクションを表で選択してください。</translation>
    </message>
    <message>
        <source>Select an action in the table on the left to edit its hotkeys</source>
        <translation>ホットキーを編集するアクションを左の表で選択してください</translation>
    </message>
    <message>
        <source>Too Many Hotkeys</source>
        <translation>ホットキーが多すぎます</translation>
    </message>
    <message>
        <source>An action can have at most %1 hotkeys.

Remove one of them before you assign another.
</source>
        <translation>1 つのアクションに割り当てられるホットキーは %1 個までです。

別のホットキーを割り当てる前に、いずれかを削除してください。
</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Save changes...</source>
        <translation>変更を現在のホットキーセットに保存します。ロックされている場合は、新しいセットに保存します。</translation>
    </message>
    <message>
        <source>Hotkey Set:</source>
        <translation>ホットキーセット:</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Save, load...</source>
        <translation>ホットキーセットの保存、読み込み、リセット、インポートを行います。</translation>
    </message>
    <message>
        <source>Change the active...</source>
        <translation>使用するホットキーセットを切り替えます。</translation>
    </message>
    <message>
        <source>Filter the list... assigned</source>
        <translation>ホットキーの状態（割り当て済み、カスタマイズ済み、未保存）でアクションのリストを絞り込みます。</translation>
    </message>
    <message>
        <source>Group:</source>
        <translation>グループ:</translation>
    </message>
    <message>
        <source>Filter the list...context</source>
        <translation>アクションのリストをグループで絞り込みます。</translation>
    </message>
    <message>
        <source>Filter:</source>
        <translation>フィルター:</translation>
    </message>
    <message>
        <source>Press keys and modifiers...</source>
        <translation>アクション名の一部を入力してください。ホットキーで検索するときは、探しているホットキーを押してください。</translation>
    </message>
    <message>
        <source>Hotkeys</source>
        <translation>ホットキー</translation>
    </message>
    <message>
        <source>Search will be... hotkey</source>
        <translation>ホットキーで検索します。探しているホットキーを押してください。</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>アクション</translation>
    </message>
    <message>
        <source>Search will be... action</source>
        <translation>アクション名で検索します。名前の一部を入力してください。</translation>
    </message>
    <message>
        <source>Type new hotkey...</source>
        <translation>新しいホットキーを入力...</translation>
    </message>
    <message>
        <source>Press keys and... assign</source>
        <translation>選択したアクションに割り当てるホットキーを押してください。</translation>
    </message>
    <message>
        <source>Press keys...</source>
        <translation>キーを押してください...</translation>
    </message>
    <message>
        <source>Assign</source>
        <translation>割り当て</translation>
    </message>
    <message>
        <source>Assigns the hotkey...</source>
        <translation>ホットキーを選択したアクションに割り当てます。</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Reassign the hotkey...</source>
        <translation>ホットキーを削除元のアクションに割り当て直します。</translation>
    </message>
    <message>
        <source>Removed from:</source>
        <translation>削除元:</translation>
    </message>
    <message>
        <source>Conflicts with:</source>
        <translation>競合先:</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Removes the assignment...</source>
        <translation>このホットキーを現在使用しているアクションから削除し、選択したアクションに割り当てられるようにします。</translation>
    </message>
    <message>
        <source>Validate Shortcut File</source>
        <translation>ホットキーファイルを検証</translation>
    </message>
    <message>
        <source>Shortcut File Validation</source>
        <translation>ホットキーファイルの検証結果</translation>
    </message>
    <message>
        <source>Validate Shortcut Transform File</source>
        <translation>ホットキー変更ファイルを検証</translation>
    </message>
    <message>
        <source>Shortcut Transform File Validation</source>
        <translation>ホットキー変更ファイルの検証結果</translation>
    </message>
    <message>
        <source>Save Shortcuts</source>
        <translation>ホットキーを保存</translation>
    </message>
    <message>
        <source>Load Shortcuts</source>
        <translation>ホットキーを読み込む</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>リセット</translation>
    </message>
    <message>
        <source>Unsaved Changes</source>
        <translation>未保存の変更</translation>
    </message>
    <message>
        <source>Save your changes, discard them, or cancel to continue making changes.
</source>
        <translation>変更を保存するか破棄してください。編集を続ける場合はキャンセルしてください。
</translation>
    </message>
    <message>
        <source>Reset Hotkeys</source>
        <translation>ホットキーをリセット</translation>
    </message>
    <message>
        <source>Reset to discard all unsaved changes.
</source>
        <translation>リセットすると、未保存の変更はすべて破棄されます。
</translation>
    </message>
    <message>
        <source>File not Found</source>
        <translation>ファイルが見つかりません</translation>
    </message>
    <message>
        <source>The file for hotkey set &apos;%1&apos; cannot be found.

You can either preserve the loaded hotkeys by saving them to a file or reset to the default hotkey set.
</source>
        <translation>ホットキーセット「%1」のファイルが見つかりません。

読み込まれているホットキーをファイルに保存して残すか、デフォルトのホットキーセットにリセットできます。
</translation>
    </message>
    <message>
        <source>The file for hotkey set &apos;%1&apos; cannot be found.

The missing set will be removed from the list.
</source>
        <translation>ホットキーセット「%1」のファイルが見つかりません。

見つからないセットはリストから削除されます。
</translation>
    </message>
    <message>
        <source>Hotkey File Already Exists</source>
        <translation>ホットキーファイルは既に存在します</translation>
    </message>
    <message>
        <source>%1 already exists in the User Customization folder.

Do you want to replace it?</source>
        <translation>%1 はユーザー設定フォルダーに既に存在します。

置き換えますか？</translation>
    </message>
    <message>
        <source>Save Changes Error</source>
        <translation>変更の保存エラー</translation>
    </message>
    <message>
        <source>Cannot overwrite a locked preset file!</source>
        <translation>ロックされたホットキーセットは上書きできません。</translation>
    </message>
    <message>
        <source>The hotkeys cannot be saved to %1.

Your changes are still here.
</source>
        <translation>ホットキーを %1 に保存できません。

変更内容は失われていません。
</translation>
    </message>
    <message>
        <source>Open Log File</source>
        <translation>ログファイルを開く</translation>
    </message>
    <message>
        <source>Hotkey Set Not Loaded</source>
        <translation>ホットキーセットを読み込めません</translation>
    </message>
    <message>
        <source>%1 cannot be loaded.

See the log for more details.</source>
        <translation>%1 を読み込めません。

詳細はログを参照してください。</translation>
    </message>
    <message>
        <source>Hotkey File Converted</source>
        <translation>ホットキーファイルを変換しました</translation>
    </message>
    <message>
        <source>%1 was successfully converted and loaded.

The new file, %2, is saved in your User Settings folder.</source>
        <translation>%1 を変換して読み込みました。

新しいファイル %2 はユーザー設定フォルダーに保存されています。</translation>
    </message>
    <message>
        <source>Open File Location</source>
        <translation>ファイルの場所を開く</translation>
    </message>
    <message>
        <source>Hotkeys Conversion Failed</source>
        <translation>ホットキーの変換に失敗しました</translation>
    </message>
    <message>
        <source>Something went wrong while converting %1.

See the log for more details.</source>
        <translation>%1 の変換中に問題が発生しました。

詳細はログを参照してください。</translation>
    </message>
    <message>
        <source>Xml File valid!! According to schema definition.</source>
        <translation>XML ファイルはスキーマ定義に準拠しています。</translation>
    </message>
    <message>
        <source>Xml File invalid!! According to schema definition.</source>
        <translation>XML ファイルはスキーマ定義に準拠していません。</translation>
    </message>
    <message>
        <source>Hotkey Set File (*.%1)</source>
        <translation>ホットキーセットファイル (*.%1)</translation>
    </message>
    <message>
        <source>Shortcut File (*.%1)</source>
        <translation>ホットキーファイル (*.%1)</translation>
    </message>
    <message>
        <source>Save Hotkey Set As</source>
        <translation>名前を付けてホットキーセットを保存</translation>
    </message>
    <message>
        <source>Load Hotkey Set</source>
        <translation>ホットキーセットを読み込む</translation>
    </message>
    <message>
        <source>Convert Legacy Hotkeys</source>
        <translation>旧バージョンのホットキーを変換</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts (*.%1)</source>
        <translation>ホットキー (*.%1)</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>インポート</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>名前を付けて保存...</translation>
    </message>
    <message>
        <source>Load From File...</source>
        <translation>ファイルから読み込む...</translation>
    </message>
    <message>
        <source>Import Legacy Hotkeys...</source>
        <translation>旧バージョンのホットキーをインポート...</translation>
    </message>
    <message>
        <source>Shortcut Transformation List</source>
        <translation>ホットキー変更リスト</translation>
    </message>
    <message>
        <source>The file cannot be opened.</source>
        <translation>ファイルを開けません。</translation>
    </message>
    <message>
        <source>Hotkey Set Changed</source>
        <translation>ホットキーセットが変更されました</translation>
    </message>
    <message>
        <source>The file of hotkey set &apos;%1&apos; was changed by another program since it was loaded.

Saving replaces those changes by yours.
</source>
        <translation>ホットキーセット「%1」のファイルは、読み込み後に別のプログラムによって変更されています。

保存すると、それらの変更は現在の変更に置き換えられます。
</translation>
    </message>
    <message>
        <source>Save Anyway</source>
        <translation>このまま保存</translation>
    </message>
    <message>
        <source>%1 is already assigned to:

%2

Reassign it?</source>
        <translation>%1 は次に割り当て済みです:

%2

再割り当てしますか?</translation>
    </message>
    <message>
        <source>Reassign Hotkey</source>
        <translation>ホットキーの再割り当て</translation>
    </message>
    <message>
        <source>Copy Hotkey</source>
        <translation>ホットキーをコピー</translation>
    </message>
    <message>
        <source>Show What Has This Hotkey</source>
        <translation>このホットキーを持つ項目を表示</translation>
    </message>
    <message>
        <source>Reset %1 to Default</source>
        <translation>%1 を既定値に戻す</translation>
    </message>
    <message>
        <source>Reset to Default</source>
        <translation>既定値に戻す</translation>
    </message>
    <message>
        <source>Reset Group to Default</source>
        <translation>グループを既定値に戻す</translation>
    </message>
    <message>
        <source>Reset All to Default</source>
        <translation>すべて既定値に戻す</translation>
    </message>
    <message>
        <source>Default: none</source>
        <translation>既定: なし</translation>
    </message>
    <message>
        <source>Default: %1</source>
        <translation>既定: %1</translation>
    </message>
    <message>
        <source>Other actions have these default hotkeys now:

%1

Take them back?</source>
        <translation>次の既定のホットキーは現在、他のアクションに割り当てられています:

%1

元に戻しますか?</translation>
    </message>
    <message>
        <source>Take Back</source>
        <translation>取り戻す</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>そのままにする</translation>
    </message>
</context>
</TS>
