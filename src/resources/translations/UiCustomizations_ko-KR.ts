<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR" sourcelanguage="en">
<context>
    <name>CUI</name>
    <message>
        <source>Velstudio Default Keyset</source>
        <translation>Velstudio 기본 단축키 세트</translation>
    </message>
    <message>
        <source>Zarvi Default Keyset</source>
        <translation>Zarvi 기본 단축키 세트</translation>
    </message>
</context>
<context>
    <name>CUI::HotkeyAudit</name>
    <message>
        <source>In %1 this key runs %2, never %3.</source>
        <translation>%1에서 이 키는 %2을(를) 실행하고 %3은(는) 실행하지 않습니다.</translation>
    </message>
    <message>
        <source>Elsewhere it runs nothing, since these count there equally: %1.</source>
        <translation>그 밖의 곳에서는 다음이 동등하므로 아무것도 실행하지 않습니다: %1.</translation>
    </message>
    <message>
        <source>This key runs nothing, since these count everywhere equally: %1.</source>
        <translation>다음이 어디서나 동등하므로 이 키는 아무것도 실행하지 않습니다: %1.</translation>
    </message>
    <message>
        <source>Elsewhere it runs %1.</source>
        <translation>그 밖의 곳에서는 %1을(를) 실행합니다.</translation>
    </message>
    <message>
        <source>Elsewhere it runs %1, never %2.</source>
        <translation>그 밖의 곳에서는 %1을(를) 실행하고 %2은(는) 실행하지 않습니다.</translation>
    </message>
    <message>
        <source>Everywhere this key runs %1, never %2.</source>
        <translation>어디서나 이 키는 %1을(를) 실행하고 %2은(는) 실행하지 않습니다.</translation>
    </message>
    <message>
        <source>In %1 this key runs %2.</source>
        <translation>%1에서 이 키는 %2을(를) 실행합니다.</translation>
    </message>
    <message>
        <source>While text is typed, this key does not run %1: %2.</source>
        <translation>텍스트를 입력하는 동안 이 키는 %1을(를) 실행하지 않습니다: %2.</translation>
    </message>
    <message>
        <source>%1 has lost %2.</source>
        <translation>%1에서 %2이(가) 제거되었습니다.</translation>
    </message>
    <message>
        <source>%1 has lost %2, and %3 has it now.</source>
        <translation>%1에서 %2이(가) 제거되었고, 지금은 %3에 할당되어 있습니다.</translation>
    </message>
    <message>
        <source>No key has this name, so that none runs %1.</source>
        <translation>이 이름의 키가 없어 %1을(를) 실행할 수 없습니다.</translation>
    </message>
    <message>
        <source>The keyboard in use has no such key, so that none runs %1.</source>
        <translation>사용 중인 키보드에 이 키가 없어 %1을(를) 실행할 수 없습니다.</translation>
    </message>
    <message>
        <source>%1 runs %2, %3 runs %4.</source>
        <translation>%1은(는) %2을(를), %3은(는) %4을(를) 실행합니다.</translation>
    </message>
    <message>
        <source>%1 holds %2 of %3 hotkeys.</source>
        <translation>%1의 단축키: %3개 중 %2개.</translation>
    </message>
    <message>
        <source>%1 may take this key before it runs %2.</source>
        <translation>%1에서 이 키가 %2을(를) 실행하기 전에 사용할 수 있습니다.</translation>
    </message>
    <message>
        <source>In %1 this key runs %2, not %3.</source>
        <translation>%1에서 이 키는 %3이(가) 아니라 %2을(를) 실행합니다.</translation>
    </message>
</context>
<context>
    <name>CUI::HotkeyFinding</name>
    <message>
        <source>Held twice</source>
        <translation>중복 할당</translation>
    </message>
    <message>
        <source>Ambiguous</source>
        <translation>모호함</translation>
    </message>
    <message>
        <source>Names no key</source>
        <translation>없는 키 이름</translation>
    </message>
    <message>
        <source>Not on the keyboard</source>
        <translation>키보드에 없음</translation>
    </message>
    <message>
        <source>Shadowed</source>
        <translation>가려짐</translation>
    </message>
    <message>
        <source>Taken by the desktop</source>
        <translation>데스크톱에서 사용</translation>
    </message>
    <message>
        <source>Hotkey lost</source>
        <translation>단축키 상실</translation>
    </message>
    <message>
        <source>Taken by text fields</source>
        <translation>텍스트 입력란에서 사용</translation>
    </message>
    <message>
        <source>Differs by keypad only</source>
        <translation>숫자 키패드만 다름</translation>
    </message>
    <message>
        <source>Differs by Shift only</source>
        <translation>Shift 키만 다름</translation>
    </message>
    <message>
        <source>Close to the limit</source>
        <translation>한도에 가까움</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>참고</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>경고</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>오류</translation>
    </message>
</context>
<context>
    <name>CUI::HotkeyKeyboard</name>
    <message>
        <source>Not a hotkey</source>
        <translation>단축키 불가</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>비어 있음</translation>
    </message>
    <message>
        <source>Taken</source>
        <translation>사용 중</translation>
    </message>
    <message>
        <source>Taken in several groups</source>
        <translation>여러 그룹에서 사용 중</translation>
    </message>
    <message>
        <source>Reserved by the system</source>
        <translation>시스템이 예약함</translation>
    </message>
    <message>
        <source>Without modifiers</source>
        <translation>조합 키 없음</translation>
    </message>
</context>
<context>
    <name>CUI::HotkeyReservation</name>
    <message>
        <source>Close window</source>
        <translation>창 닫기</translation>
    </message>
    <message>
        <source>Switch windows</source>
        <translation>창 전환</translation>
    </message>
    <message>
        <source>Window menu</source>
        <translation>창 메뉴</translation>
    </message>
    <message>
        <source>Move or resize window</source>
        <translation>창 이동 또는 크기 조정</translation>
    </message>
    <message>
        <source>Hide or minimize window</source>
        <translation>창 숨기기 또는 최소화</translation>
    </message>
    <message>
        <source>Show all windows</source>
        <translation>모든 창 표시</translation>
    </message>
    <message>
        <source>Show the desktop</source>
        <translation>바탕 화면 표시</translation>
    </message>
    <message>
        <source>Switch workspace</source>
        <translation>작업 공간 전환</translation>
    </message>
    <message>
        <source>Move window to a workspace</source>
        <translation>창을 작업 공간으로 이동</translation>
    </message>
    <message>
        <source>Search or start a program</source>
        <translation>프로그램 검색 또는 시작</translation>
    </message>
    <message>
        <source>Open a terminal</source>
        <translation>터미널 열기</translation>
    </message>
    <message>
        <source>Log out or lock the screen</source>
        <translation>로그아웃 또는 화면 잠금</translation>
    </message>
    <message>
        <source>Task manager or force quit</source>
        <translation>작업 관리자 또는 강제 종료</translation>
    </message>
    <message>
        <source>Picture of the screen</source>
        <translation>화면 캡처</translation>
    </message>
    <message>
        <source>Switch to a text console</source>
        <translation>텍스트 콘솔로 전환</translation>
    </message>
    <message>
        <source>Accessibility</source>
        <translation>손쉬운 사용</translation>
    </message>
    <message>
        <source>Cut, copy or paste</source>
        <translation>잘라내기, 복사 또는 붙여넣기</translation>
    </message>
    <message>
        <source>Undo or redo</source>
        <translation>실행 취소 또는 다시 실행</translation>
    </message>
    <message>
        <source>Select text</source>
        <translation>텍스트 선택</translation>
    </message>
    <message>
        <source>Delete text</source>
        <translation>텍스트 삭제</translation>
    </message>
    <message>
        <source>Move the text cursor</source>
        <translation>텍스트 커서 이동</translation>
    </message>
    <message>
        <source>KDE: System Settings &gt; Keyboard &gt; Shortcuts</source>
        <translation>KDE: 시스템 설정 &gt; 키보드 &gt; 단축키</translation>
    </message>
    <message>
        <source>GNOME: Settings &gt; Keyboard</source>
        <translation>그놈: 설정 &gt; 키보드</translation>
    </message>
    <message>
        <source>macOS: System Settings &gt; Keyboard &gt; Keyboard Shortcuts</source>
        <translation>macOS: 시스템 설정 &gt; 키보드 &gt; 키보드 단축키</translation>
    </message>
    <message>
        <source>Text fields of Qt</source>
        <translation>Qt의 텍스트 입력란</translation>
    </message>
    <message>
        <source>Text fields</source>
        <translation>텍스트 입력란</translation>
    </message>
    <message>
        <source>Show or hide the Dock</source>
        <translation>Dock 표시 또는 숨기기</translation>
    </message>
    <message>
        <source>%1: built into the system</source>
        <translation>%1: 시스템에 내장</translation>
    </message>
</context>
<context>
    <name>CUI::HotkeySheet</name>
    <message>
        <source>Hotkeys</source>
        <translation>단축키</translation>
    </message>
    <message>
        <source>en</source>
        <comment>the code of this translation&apos;s language</comment>
        <translation>ko</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>검색</translation>
    </message>
    <message>
        <source>%1 (continued)</source>
        <translation>%1(계속)</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>%1/%2페이지</translation>
    </message>
</context>
<context>
    <name>CUI::KeyboardChoosers</name>
    <message>
        <source>%1 groups</source>
        <translation>그룹 %1개</translation>
    </message>
    <message>
        <source>Modifiers:</source>
        <translation>조합 키:</translation>
    </message>
    <message>
        <source>Shape:</source>
        <translation>모양:</translation>
    </message>
    <message>
        <source>Of the layout in use</source>
        <translation>사용 중인 자판에 맞춤</translation>
    </message>
</context>
<context>
    <name>CUI::QvelActionItemModel</name>
    <message>
        <source>Action</source>
        <translation>동작</translation>
    </message>
    <message>
        <source>Hotkey</source>
        <translation>단축키</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>그룹</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>범주</translation>
    </message>
</context>
<context>
    <name>CUI::QvelAssignedShortcutListItem</name>
    <message>
        <source>Remove</source>
        <translation>제거</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>실행 취소</translation>
    </message>
    <message>
        <source>Successfully removed</source>
        <translation>제거했습니다</translation>
    </message>
</context>
<context>
    <name>CUI::QvelCommandPalette</name>
    <message>
        <source>%1 (not available)</source>
        <translation>%1(사용할 수 없음)</translation>
    </message>
    <message>
        <source>Press keys...</source>
        <translation>키를 누르십시오...</translation>
    </message>
    <message>
        <source>Assign</source>
        <translation>할당</translation>
    </message>
    <message>
        <source>New hotkey for %1:</source>
        <translation>%1의 새 단축키:</translation>
    </message>
    <message>
        <source>New hotkey for %1 instead of %2:</source>
        <translation>%1의 새 단축키(%2 대신):</translation>
    </message>
    <message>
        <source>Press the new hotkey, or Escape to leave it.</source>
        <translation>새 단축키를 누르십시오. 그만두려면 Esc 키를 누르십시오.</translation>
    </message>
    <message>
        <source>Enter assigns it.</source>
        <translation>Enter 키를 누르면 할당합니다.</translation>
    </message>
    <message>
        <source>Conflicts with: %1. Enter takes it from there.</source>
        <translation>다음과 충돌: %1. Enter 키를 누르면 가져옵니다.</translation>
    </message>
    <message>
        <source>Assign %1 to %2</source>
        <translation>%1을(를) %2에 할당</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>명령</translation>
    </message>
    <message>
        <source>Type to search by Actions...</source>
        <translation>동작 이름으로 검색...</translation>
    </message>
    <message>
        <source>Search for a command</source>
        <translation>명령 검색</translation>
    </message>
    <message>
        <source>It acts only while its hotkey is held.</source>
        <translation>단축키를 누르고 있는 동안만 작동합니다.</translation>
    </message>
    <message>
        <source>It is disabled at the moment.</source>
        <translation>지금은 사용할 수 없습니다.</translation>
    </message>
    <message>
        <source>The application does not perform it.</source>
        <translation>응용 프로그램이 실행하지 않습니다.</translation>
    </message>
    <message>
        <source>No command has this name.</source>
        <translation>이 이름의 명령이 없습니다.</translation>
    </message>
    <message>
        <source>Enter runs it, Tab changes its hotkey, Escape closes.</source>
        <translation>Enter: 실행, Tab: 단축키 변경, Esc: 닫기</translation>
    </message>
</context>
<context>
    <name>CUI::QvelConflictsWidget</name>
    <message>
        <source>Severity</source>
        <translation>심각도</translation>
    </message>
    <message>
        <source>Finding</source>
        <translation>발견 항목</translation>
    </message>
    <message>
        <source>Hotkey</source>
        <translation>단축키</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>동작</translation>
    </message>
    <message>
        <source>What happens today</source>
        <translation>현재 동작</translation>
    </message>
    <message>
        <source>Findings: %1 of %2</source>
        <translation>발견 항목: %1/%2</translation>
    </message>
    <message>
        <source>Errors only</source>
        <translation>오류만</translation>
    </message>
    <message>
        <source>Errors and warnings</source>
        <translation>오류 및 경고</translation>
    </message>
    <message>
        <source>All findings</source>
        <translation>모든 발견 항목</translation>
    </message>
    <message>
        <source>All kinds</source>
        <translation>모든 종류</translation>
    </message>
    <message>
        <source>Type to search...</source>
        <translation>검색어 입력...</translation>
    </message>
    <message>
        <source>Search the findings</source>
        <translation>발견 항목 검색</translation>
    </message>
    <message>
        <source>Least severe finding</source>
        <translation>최소 심각도</translation>
    </message>
    <message>
        <source>Kind of finding</source>
        <translation>발견 항목의 종류</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>발견 항목</translation>
    </message>
    <message>
        <source>What settles the finding</source>
        <translation>해결 방법</translation>
    </message>
    <message>
        <source>Select a finding to see what settles it.</source>
        <translation>해결 방법을 보려면 발견 항목을 선택하십시오.</translation>
    </message>
    <message>
        <source>Give back</source>
        <translation>되돌려 주기</translation>
    </message>
    <message>
        <source>Give to this action</source>
        <translation>이 동작에 할당</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>제거</translation>
    </message>
    <message>
        <source>Choose another</source>
        <translation>다른 것 선택</translation>
    </message>
    <message>
        <source>Remove %1 from %2</source>
        <translation>%2에서 %1 제거</translation>
    </message>
    <message>
        <source>Give %1 to %2</source>
        <translation>%1을(를) %2에 할당</translation>
    </message>
    <message>
        <source>Give %1 back to %2</source>
        <translation>%1을(를) %2에 되돌려 주기</translation>
    </message>
    <message>
        <source>Change %1 to %2 for %3</source>
        <translation>%1을(를) %2(으)로 변경: %3</translation>
    </message>
</context>
<context>
    <name>CUI::QvelKeyboardWidget</name>
    <message>
        <source>Show in the Table</source>
        <translation>표에 표시</translation>
    </message>
    <message>
        <source>Assign to %1</source>
        <translation>%1에 할당</translation>
    </message>
    <message>
        <source>Move %1 to Another Key</source>
        <translation>%1을(를) 다른 키로 이동</translation>
    </message>
    <message>
        <source>Move %1 Here</source>
        <translation>%1을(를) 여기로 이동</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation>키보드</translation>
    </message>
    <message>
        <source>Actions of the key</source>
        <translation>키의 동작</translation>
    </message>
    <message>
        <source>Move %1 to %2</source>
        <translation>%1을(를) %2(으)로 이동</translation>
    </message>
</context>
<context>
    <name>CUI::QvelMessageLogWidget</name>
    <message>
        <source>Copy</source>
        <translation>복사</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>모두 선택</translation>
    </message>
    <message>
        <source>Clear Log</source>
        <translation>로그 지우기</translation>
    </message>
</context>
<context>
    <name>CUI::QvelPresetComboBox</name>
    <message>
        <source>[Unsaved Changes*]</source>
        <translation>[저장하지 않은 변경 사항*]</translation>
    </message>
</context>
<context>
    <name>CUI::QvelShortcutManager</name>
    <message>
        <source>Add</source>
        <translation>추가:</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>제거:</translation>
    </message>
    <message>
        <source>to</source>
        <translation>대상:</translation>
    </message>
    <message>
        <source>from</source>
        <translation>대상:</translation>
    </message>
</context>
<context>
    <name>QvelCustomizeUiDialog</name>
    <message>
        <source>All Groups</source>
        <translation>모든 그룹</translation>
    </message>
    <message>
        <source>All Actions</source>
        <translation>모든 동작</translation>
    </message>
    <message>
        <source>Assigned Hotkeys Only</source>
        <translation>할당된 단축키만</translation>
    </message>
    <message>
        <source>Customized Hotkeys Only</source>
        <translation>사용자 지정 단축키만</translation>
    </message>
    <message>
        <source>Unsaved Hotkeys Only</source>
        <translation>저장하지 않은 단축키만</translation>
    </message>
</context>
<context>
    <name>QvelMenusWidget</name>
    <message>
        <source>QvelMenusWidget</source>
        <translation>메뉴</translation>
    </message>
</context>
<context>
    <name>QvelShortcutsWidget</name>
    <message>
        <source>QvelShortcutsWidget</source>
        <translation>단축키 편집기</translation>
    </message>
    <message>
        <source>Type to search by Hotkeys...</source>
        <translation>단축키로 검색...</translation>
    </message>
    <message>
        <source>Type to search by Actions...</source>
        <translation>동작 이름으로 검색...</translation>
    </message>
    <message>
        <source>Type to search...</source>
        <translation>검색어 입력...</translation>
    </message>
    <message>
        <source>Press and hold to temporarily activate.</source>
        <translation>누르고 있는 동안만 활성화됩니다.</translation>
    </message>
    <message>
        <source>No action selected</source>
        <translation>선택한 동작 없음</translation>
    </message>
    <message>
        <source>Select an action in the table to edit its hotkeys.</source>
        <translation>단축키를 편집하려면 표에서 동작을 선택하십시오.</translation>
    </message>
    <message>
        <source>Select an action in the table on the left to edit its hotkeys</source>
        <translation>단축키를 편집하려면 왼쪽 표에서 동작을 선택하십시오</translation>
    </message>
    <message>
        <source>Too Many Hotkeys</source>
        <translation>단축키가 너무 많음</translation>
    </message>
    <message>
        <source>An action can have at most %1 hotkeys.

Remove one of them before you assign another.
</source>
        <translation>한 동작에는 단축키를 %1개까지 할당할 수 있습니다.

다른 단축키를 할당하려면 먼저 하나를 제거하십시오.
</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>저장</translation>
    </message>
    <message>
        <source>Save changes...</source>
        <translation>변경 사항을 현재 단축키 세트에 저장합니다. 세트가 잠겨 있으면 새 세트에 저장합니다.</translation>
    </message>
    <message>
        <source>Hotkey Set:</source>
        <translation>단축키 세트:</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Save, load...</source>
        <translation>단축키 세트를 저장하거나 불러오거나 초기화하거나 가져옵니다.</translation>
    </message>
    <message>
        <source>Change the active...</source>
        <translation>사용할 단축키 세트를 선택합니다.</translation>
    </message>
    <message>
        <source>Filter the list... assigned</source>
        <translation>단축키의 상태(할당됨, 사용자 지정, 저장하지 않음)에 따라 동작 목록을 필터링합니다.</translation>
    </message>
    <message>
        <source>Group:</source>
        <translation>그룹:</translation>
    </message>
    <message>
        <source>Filter the list...context</source>
        <translation>동작 목록을 그룹별로 필터링합니다.</translation>
    </message>
    <message>
        <source>Filter:</source>
        <translation>필터:</translation>
    </message>
    <message>
        <source>Press keys and modifiers...</source>
        <translation>동작 이름의 일부를 입력하십시오. 단축키로 검색할 때는 찾으려는 단축키를 누르십시오.</translation>
    </message>
    <message>
        <source>Hotkeys</source>
        <translation>단축키</translation>
    </message>
    <message>
        <source>Search will be... hotkey</source>
        <translation>단축키로 검색합니다. 찾으려는 단축키를 누르십시오.</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>동작</translation>
    </message>
    <message>
        <source>Search will be... action</source>
        <translation>동작 이름으로 검색합니다. 이름의 일부를 입력하십시오.</translation>
    </message>
    <message>
        <source>Type new hotkey...</source>
        <translation>새 단축키 입력...</translation>
    </message>
    <message>
        <source>Press keys and... assign</source>
        <translation>선택한 동작에 할당할 단축키를 누르십시오.</translation>
    </message>
    <message>
        <source>Press keys...</source>
        <translation>키를 누르십시오...</translation>
    </message>
    <message>
        <source>Assign</source>
        <translation>할당</translation>
    </message>
    <message>
        <source>Assigns the hotkey...</source>
        <translation>선택한 동작에 단축키를 할당합니다.</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>실행 취소</translation>
    </message>
    <message>
        <source>Reassign the hotkey...</source>
        <translation>단축키를 원래 동작에 다시 할당합니다.</translation>
    </message>
    <message>
        <source>Removed from:</source>
        <translation>다음에서 제거됨:</translation>
    </message>
    <message>
        <source>Conflicts with:</source>
        <translation>다음과 충돌:</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>제거</translation>
    </message>
    <message>
        <source>Removes the assignment...</source>
        <translation>이 단축키를 현재 사용 중인 동작에서 제거하여 선택한 동작에 할당할 수 있게 합니다.</translation>
    </message>
    <message>
        <source>Validate Shortcut File</source>
        <translation>단축키 파일 검증</translation>
    </message>
    <message>
        <source>Shortcut File Validation</source>
        <translation>단축키 파일 검증 결과</translation>
    </message>
    <message>
        <source>Validate Shortcut Transform File</source>
        <translation>단축키 변경 파일 검증</translation>
    </message>
    <message>
        <source>Shortcut Transform File Validation</source>
        <translation>단축키 변경 파일 검증 결과</translation>
    </message>
    <message>
        <source>Save Shortcuts</source>
        <translation>단축키 저장</translation>
    </message>
    <message>
        <source>Load Shortcuts</source>
        <translation>단축키 불러오기</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>초기화</translation>
    </message>
    <message>
        <source>Unsaved Changes</source>
        <translation>저장하지 않은 변경 사항</translation>
    </message>
    <message>
        <source>Save your changes, discard them, or cancel to continue making changes.
</source>
        <translation>변경 사항을 저장하거나 무시할 수 있습니다. 계속 변경하려면 취소하십시오.
</translation>
    </message>
    <message>
        <source>Reset Hotkeys</source>
        <translation>단축키 초기화</translation>
    </message>
    <message>
        <source>Reset to discard all unsaved changes.
</source>
        <translation>초기화하면 저장하지 않은 변경 사항을 모두 잃게 됩니다.
</translation>
    </message>
    <message>
        <source>File not Found</source>
        <translation>파일을 찾을 수 없음</translation>
    </message>
    <message>
        <source>The file for hotkey set &apos;%1&apos; cannot be found.

You can either preserve the loaded hotkeys by saving them to a file or reset to the default hotkey set.
</source>
        <translation>단축키 세트 &apos;%1&apos;의 파일을 찾을 수 없습니다.

불러온 단축키를 파일에 저장하여 유지하거나 기본 단축키 세트로 초기화할 수 있습니다.
</translation>
    </message>
    <message>
        <source>The file for hotkey set &apos;%1&apos; cannot be found.

The missing set will be removed from the list.
</source>
        <translation>단축키 세트 &apos;%1&apos;의 파일을 찾을 수 없습니다.

찾을 수 없는 세트는 목록에서 제거됩니다.
</translation>
    </message>
    <message>
        <source>Hotkey File Already Exists</source>
        <translation>단축키 파일이 이미 있음</translation>
    </message>
    <message>
        <source>%1 already exists in the User Customization folder.

Do you want to replace it?</source>
        <translation>%1이(가) 사용자 설정 폴더에 이미 있습니다.

바꾸시겠습니까?</translation>
    </message>
    <message>
        <source>Save Changes Error</source>
        <translation>변경 사항 저장 오류</translation>
    </message>
    <message>
        <source>Cannot overwrite a locked preset file!</source>
        <translation>잠긴 단축키 세트는 덮어쓸 수 없습니다.</translation>
    </message>
    <message>
        <source>The hotkeys cannot be saved to %1.

Your changes are still here.
</source>
        <translation>단축키를 %1에 저장할 수 없습니다.

변경 사항은 그대로 유지됩니다.
</translation>
    </message>
    <message>
        <source>Open Log File</source>
        <translation>로그 파일 열기</translation>
    </message>
    <message>
        <source>Hotkey Set Not Loaded</source>
        <translation>단축키 세트를 불러오지 못함</translation>
    </message>
    <message>
        <source>%1 cannot be loaded.

See the log for more details.</source>
        <translation>%1을(를) 불러올 수 없습니다.

자세한 내용은 로그를 참조하십시오.</translation>
    </message>
    <message>
        <source>Hotkey File Converted</source>
        <translation>단축키 파일 변환 완료</translation>
    </message>
    <message>
        <source>%1 was successfully converted and loaded.

The new file, %2, is saved in your User Settings folder.</source>
        <translation>%1을(를) 변환하여 불러왔습니다.

새 파일 %2은(는) 사용자 설정 폴더에 저장되었습니다.</translation>
    </message>
    <message>
        <source>Open File Location</source>
        <translation>파일 위치 열기</translation>
    </message>
    <message>
        <source>Hotkeys Conversion Failed</source>
        <translation>단축키 변환 실패</translation>
    </message>
    <message>
        <source>Something went wrong while converting %1.

See the log for more details.</source>
        <translation>%1을(를) 변환하는 중에 문제가 발생했습니다.

자세한 내용은 로그를 참조하십시오.</translation>
    </message>
    <message>
        <source>Xml File valid!! According to schema definition.</source>
        <translation>스키마 정의에 맞는 유효한 XML 파일입니다.</translation>
    </message>
    <message>
        <source>Xml File invalid!! According to schema definition.</source>
        <translation>스키마 정의에 맞지 않는 XML 파일입니다.</translation>
    </message>
    <message>
        <source>Hotkey Set File (*.%1)</source>
        <translation>단축키 세트 파일 (*.%1)</translation>
    </message>
    <message>
        <source>Shortcut File (*.%1)</source>
        <translation>단축키 파일 (*.%1)</translation>
    </message>
    <message>
        <source>Save Hotkey Set As</source>
        <translation>다른 이름으로 단축키 세트 저장</translation>
    </message>
    <message>
        <source>Load Hotkey Set</source>
        <translation>단축키 세트 불러오기</translation>
    </message>
    <message>
        <source>Convert Legacy Hotkeys</source>
        <translation>이전 버전 단축키 변환</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts (*.%1)</source>
        <translation>키보드 단축키 (*.%1)</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>가져오기</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>다른 이름으로 저장...</translation>
    </message>
    <message>
        <source>Load From File...</source>
        <translation>파일에서 불러오기...</translation>
    </message>
    <message>
        <source>Import Legacy Hotkeys...</source>
        <translation>이전 버전 단축키 가져오기...</translation>
    </message>
    <message>
        <source>Shortcut Transformation List</source>
        <translation>단축키 변경 목록</translation>
    </message>
    <message>
        <source>The file cannot be opened.</source>
        <translation>파일을 열 수 없습니다.</translation>
    </message>
    <message>
        <source>Hotkey Set Changed</source>
        <translation>단축키 세트 변경됨</translation>
    </message>
    <message>
        <source>The file of hotkey set &apos;%1&apos; was changed by another program since it was loaded.

Saving replaces those changes by yours.
</source>
        <translation>단축키 세트 &apos;%1&apos;의 파일이 불러온 이후 다른 프로그램에 의해 변경되었습니다.

저장하면 그 변경 내용이 현재 변경 내용으로 바뀝니다.
</translation>
    </message>
    <message>
        <source>Save Anyway</source>
        <translation>그래도 저장</translation>
    </message>
    <message>
        <source>%1 is already assigned to:

%2

Reassign it?</source>
        <translation>%1은(는) 이미 다음에 할당되어 있습니다:

%2

다시 할당하시겠습니까?</translation>
    </message>
    <message>
        <source>Reassign Hotkey</source>
        <translation>단축키 다시 할당</translation>
    </message>
    <message>
        <source>Copy Hotkey</source>
        <translation>단축키 복사</translation>
    </message>
    <message>
        <source>Show What Has This Hotkey</source>
        <translation>이 단축키가 할당된 항목 표시</translation>
    </message>
    <message>
        <source>Reset %1 to Default</source>
        <translation>%1을(를) 기본값으로 초기화</translation>
    </message>
    <message>
        <source>Reset to Default</source>
        <translation>기본값으로 초기화</translation>
    </message>
    <message>
        <source>Reset Group to Default</source>
        <translation>그룹을 기본값으로 초기화</translation>
    </message>
    <message>
        <source>Reset All to Default</source>
        <translation>모두 기본값으로 초기화</translation>
    </message>
    <message>
        <source>Default: none</source>
        <translation>기본값: 없음</translation>
    </message>
    <message>
        <source>Default: %1</source>
        <translation>기본값: %1</translation>
    </message>
    <message>
        <source>Other actions have these default hotkeys now:

%1

Take them back?</source>
        <translation>다음 기본 단축키가 현재 다른 동작에 할당되어 있습니다:

%1

다시 가져오시겠습니까?</translation>
    </message>
    <message>
        <source>Take Back</source>
        <translation>가져오기</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>그대로 두기</translation>
    </message>
</context>
</TS>
