<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR" sourcelanguage="en_US">
<context>
    <name>ColorSelectButton</name>
    <message>
        <source>None</source>
        <translation>없음</translation>
    </message>
</context>
<context>
    <name>ConfigurationWindow</name>
    <message>
        <source>Quorvi Configuration</source>
        <translation>Quorvi 설정</translation>
    </message>
    <message>
        <source>Restore All Default</source>
        <translation>모두 기본값으로 복원</translation>
    </message>
    <message>
        <source>Restore Default</source>
        <translation>기본값으로 복원</translation>
    </message>
</context>
<context>
    <name>KeySequenceEdit</name>
    <message>
        <source>Press shortcut key</source>
        <translation>단축키를 누르세요</translation>
    </message>
    <message>
        <source>Clear shortcut key</source>
        <translation>단축키 지우기</translation>
    </message>
    <message>
        <source>Shortkey [%1] is too simple.
To avoid conflicts with other functions and prevent accidental activations, please set a more complex hotkey combination.

If you need to set simple shortcuts, go to the [System] Settings page and check [Allow simple global hotkeys].</source>
        <translation>단축키 [%1]이(가) 너무 단순합니다.
다른 기능과의 충돌이나 의도하지 않은 실행을 방지하려면 더 복잡한 키 조합을 설정하세요.

단순한 단축키를 설정하려면 [시스템] 설정 페이지로 이동하여 [단순한 전역 단축키 허용]을 선택하세요.</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfDefWidgetQKeySequence</name>
    <message>
        <source>Not set</source>
        <translation>설정되지 않음</translation>
    </message>
    <message>
        <source>Setup failed, the hotkey may be occupied. Click to try setup again.</source>
        <translation>설정하지 못했습니다. 이미 사용 중인 단축키일 수 있습니다. 다시 시도하려면 클릭하세요.</translation>
    </message>
    <message>
        <source>Setup success.</source>
        <translation>설정되었습니다.</translation>
    </message>
    <message>
        <source>Disabled.</source>
        <translation>비활성화되었습니다.</translation>
    </message>
    <message>
        <source>Another program may use this hotkey.</source>
        <translation>다른 프로그램에서 이 단축키를 사용 중일 수 있습니다.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>다시 시도</translation>
    </message>
    <message>
        <source>The desktop has not answered yet.</source>
        <translation>데스크톱 환경이 아직 응답하지 않았습니다.</translation>
    </message>
    <message>
        <source>The hotkey has not been set up yet.</source>
        <translation>단축키가 아직 설정되지 않았습니다.</translation>
    </message>
    <message>
        <source>A global hotkey is one key, alone or with modifiers.</source>
        <translation>전역 단축키는 키 하나로 지정하며, 보조 키와 함께 사용할 수 있습니다.</translation>
    </message>
    <message>
        <source>This keyboard does not have the key.</source>
        <translation>이 키보드에는 해당 키가 없습니다.</translation>
    </message>
    <message>
        <source>Another program uses this hotkey.</source>
        <translation>다른 프로그램에서 이 단축키를 사용 중입니다.</translation>
    </message>
    <message>
        <source>The hotkey was refused by you or by the desktop.</source>
        <translation>사용자 또는 데스크톱 환경에서 단축키를 거부했습니다.</translation>
    </message>
    <message>
        <source>Global hotkeys are not available on this system.</source>
        <translation>이 시스템에서는 전역 단축키를 사용할 수 없습니다.</translation>
    </message>
    <message>
        <source>Click to try again.</source>
        <translation>다시 시도하려면 클릭하세요.</translation>
    </message>
    <message>
        <source>Assigned by the desktop: %1</source>
        <translation>데스크톱 환경에서 할당함: %1</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetDateTime</name>
    <message>
        <source>Not set</source>
        <translation>설정되지 않음</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>지우기</translation>
    </message>
    <message>
        <source>Enter a date and time from %1 to %2</source>
        <translation>%1~%2 범위의 날짜와 시간을 입력하세요</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetLanguage</name>
    <message>
        <source>Follow the system</source>
        <translation>시스템 설정에 따름</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetMouseAction</name>
    <message>
        <source>None</source>
        <translation>없음</translation>
    </message>
    <message>
        <source>Left Click</source>
        <translation>왼쪽 클릭</translation>
    </message>
    <message>
        <source>Left Double Click</source>
        <translation>왼쪽 더블 클릭</translation>
    </message>
    <message>
        <source>Right Click</source>
        <translation>오른쪽 클릭</translation>
    </message>
    <message>
        <source>Right Double Click</source>
        <translation>오른쪽 더블 클릭</translation>
    </message>
    <message>
        <source>Middle Click</source>
        <translation>가운데 클릭</translation>
    </message>
    <message>
        <source>Middle Double Click</source>
        <translation>가운데 더블 클릭</translation>
    </message>
    <message>
        <source>Wheel</source>
        <translation>휠</translation>
    </message>
    <message>
        <source>Left Drag</source>
        <translation>왼쪽 드래그</translation>
    </message>
    <message>
        <source>Right Drag</source>
        <translation>오른쪽 드래그</translation>
    </message>
    <message>
        <source>Middle Drag</source>
        <translation>가운데 드래그</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Shift</translation>
    </message>
    <message>
        <source>Ctrl</source>
        <translation>Ctrl</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Super</source>
        <translation>Super</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetPassword</name>
    <message>
        <source>Show</source>
        <translation>표시</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetPath</name>
    <message>
        <source>Browse...</source>
        <translation>찾아보기…</translation>
    </message>
    <message>
        <source>This folder does not exist.</source>
        <translation>이 폴더는 존재하지 않습니다.</translation>
    </message>
    <message>
        <source>This is a file, not a folder.</source>
        <translation>폴더가 아니라 파일입니다.</translation>
    </message>
    <message>
        <source>This is a folder, not a file.</source>
        <translation>파일이 아니라 폴더입니다.</translation>
    </message>
    <message>
        <source>The folder of this file does not exist.</source>
        <translation>이 파일의 폴더가 존재하지 않습니다.</translation>
    </message>
    <message>
        <source>This file does not exist.</source>
        <translation>이 파일은 존재하지 않습니다.</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetStringList</name>
    <message>
        <source>Add</source>
        <translation>추가</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>제거</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>위로 이동</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>아래로 이동</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfigItemWidget</name>
    <message>
        <source>From %1 to %2</source>
        <translation>%1~%2</translation>
    </message>
    <message>
        <source>Enter a number from %1 to %2</source>
        <translation>%1~%2 범위의 숫자를 입력하세요</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfigurationWindow</name>
    <message>
        <source>Confirm</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Are you sure to restore current page default?</source>
        <translation>현재 페이지를 기본값으로 복원하시겠습니까?</translation>
    </message>
    <message>
        <source>Are you sure to restore all default?</source>
        <translation>모든 설정을 기본값으로 복원하시겠습니까?</translation>
    </message>
</context>
<context>
    <name>MtConf::DependencyNote</name>
    <message>
        <source>Needs “%1”</source>
        <translation>‘%1’ 필요</translation>
    </message>
    <message>
        <source>Not with “%1”</source>
        <translation>‘%1’과(와) 함께 사용할 수 없음</translation>
    </message>
    <message>
        <source>Needs “%1”: %2</source>
        <translation>‘%1’ 필요: %2</translation>
    </message>
</context>
<context>
    <name>MtConf::HistoryFeature</name>
    <message>
        <source>Removed 1 entry.</source>
        <translation>항목 1개를 제거했습니다.</translation>
    </message>
    <message numerus="yes">
        <source>Removed %n entries.</source>
        <translation>
            <numerusform>항목 %n개를 제거했습니다.</numerusform>
        </translation>
    </message>
    <message>
        <source>Imported 1 setting.</source>
        <translation>설정 1개를 가져왔습니다.</translation>
    </message>
    <message numerus="yes">
        <source>Imported %n settings.</source>
        <translation>
            <numerusform>설정 %n개를 가져왔습니다.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Restored %n settings.</source>
        <translation>
            <numerusform>설정 %n개를 기본값으로 복원했습니다.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MtConf::ImportDialog</name>
    <message>
        <source>Import settings</source>
        <translation>설정 가져오기</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; changes these settings. Those that are checked are imported.</source>
        <translation>‘%1’ 파일은 다음 설정을 변경합니다. 선택한 설정만 가져옵니다.</translation>
    </message>
    <message>
        <source>Settings in the file</source>
        <translation>파일의 설정</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>설정</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>현재</translation>
    </message>
    <message>
        <source>In the file</source>
        <translation>파일</translation>
    </message>
    <message>
        <source>%1, here: %2, in the file: %3</source>
        <translation>%1, 현재: %2, 파일: %3</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>모두 선택</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>모두 해제</translation>
    </message>
    <message>
        <source>Import (%1)</source>
        <translation>가져오기 (%1)</translation>
    </message>
    <message>
        <source>Other settings</source>
        <translation>기타 설정</translation>
    </message>
    <message>
        <source>%1 (default)</source>
        <translation>%1 (기본값)</translation>
    </message>
    <message>
        <source>Does not exist</source>
        <translation>없음</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>제거됨</translation>
    </message>
    <message>
        <source>Entries of other versions, which are left out: %1</source>
        <translation>제외되는 다른 버전의 항목: %1</translation>
    </message>
    <message>
        <source>Entries that cannot be read, which are left out: %1</source>
        <translation>제외되는 읽을 수 없는 항목: %1</translation>
    </message>
    <message>
        <source>Settings that stay on each computer, which are left out: %1</source>
        <translation>제외되는 컴퓨터별 설정: %1</translation>
    </message>
    <message>
        <source>Locked settings, which are left out: %1</source>
        <translation>제외되는 잠긴 설정: %1</translation>
    </message>
    <message>
        <source>Settings whose value is not accepted here: %1</source>
        <translation>여기에서 허용되지 않는 값의 설정: %1</translation>
    </message>
</context>
<context>
    <name>MtConf::ImportExport</name>
    <message>
        <source>Import…</source>
        <translation>가져오기…</translation>
    </message>
    <message>
        <source>Import settings from a file</source>
        <translation>파일에서 설정 가져오기</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>내보내기…</translation>
    </message>
    <message>
        <source>Export the settings to a file</source>
        <translation>설정을 파일로 내보내기</translation>
    </message>
    <message>
        <source>Settings (*.json)</source>
        <translation>설정 (*.json)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>모든 파일 (*)</translation>
    </message>
    <message>
        <source>Export settings</source>
        <translation>설정 내보내기</translation>
    </message>
    <message>
        <source>Import settings</source>
        <translation>설정 가져오기</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; changes nothing here.</source>
        <translation>‘%1’ 파일로 변경되는 설정이 없습니다.</translation>
    </message>
    <message>
        <source>Settings that could not be imported: %1</source>
        <translation>가져오지 못한 설정: %1</translation>
    </message>
</context>
<context>
    <name>MtConf::InputConflicts</name>
    <message>
        <source>%1 is used by: %2</source>
        <translation>%1을(를) 사용하는 항목: %2</translation>
    </message>
    <message>
        <source>Also used by: %1</source>
        <translation>다음에서도 사용 중: %1</translation>
    </message>
    <message>
        <source>%1 is needed for typing and editing.</source>
        <translation>%1은(는) 입력과 편집에 필요합니다.</translation>
    </message>
</context>
<context>
    <name>MtConf::InputOffer</name>
    <message>
        <source>Replace</source>
        <translation>대체</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>맞바꾸기</translation>
    </message>
    <message>
        <source>Keep both</source>
        <translation>둘 다 유지</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
</context>
<context>
    <name>MtConf::InputRegistry</name>
    <message>
        <source>another shortcut of this program</source>
        <translation>이 프로그램의 다른 단축키</translation>
    </message>
</context>
<context>
    <name>MtConf::LivePages</name>
    <message>
        <source>Changed elsewhere meanwhile. What you type replaces it.</source>
        <translation>그동안 다른 곳에서 변경되었습니다. 입력한 내용으로 대체됩니다.</translation>
    </message>
</context>
<context>
    <name>MtConf::ModernPageBuilder</name>
    <message>
        <source>, </source>
        <comment>between the chosen entries</comment>
        <translation>, </translation>
    </message>
    <message>
        <source>No modifier key</source>
        <translation>보조 키 없음</translation>
    </message>
</context>
<context>
    <name>MtConf::ModernWindow</name>
    <message>
        <source>Reset this page…</source>
        <translation>이 페이지 복원…</translation>
    </message>
    <message>
        <source>Reset all settings…</source>
        <translation>모든 설정 복원…</translation>
    </message>
    <message>
        <source>More</source>
        <translation>더 보기</translation>
    </message>
</context>
<context>
    <name>MtConf::ResetQuestion</name>
    <message>
        <source>Reset this page?</source>
        <translation>이 페이지를 기본값으로 복원하시겠습니까?</translation>
    </message>
    <message>
        <source>Reset all settings?</source>
        <translation>모든 설정을 기본값으로 복원하시겠습니까?</translation>
    </message>
    <message>
        <source>Reset 1 setting on this page?</source>
        <translation>이 페이지의 설정 1개를 복원하시겠습니까?</translation>
    </message>
    <message>
        <source>Reset 1 setting on all pages?</source>
        <translation>모든 페이지의 설정 1개를 복원하시겠습니까?</translation>
    </message>
    <message numerus="yes">
        <source>Reset %n settings on this page?</source>
        <translation>
            <numerusform>이 페이지의 설정 %n개를 복원하시겠습니까?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Reset %n settings on all pages?</source>
        <translation>
            <numerusform>모든 페이지의 설정 %n개를 복원하시겠습니까?</numerusform>
        </translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>복원</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
</context>
<context>
    <name>MtConf::RowReset</name>
    <message>
        <source>Show changed</source>
        <translation>변경된 항목 표시</translation>
    </message>
    <message numerus="yes">
        <source>%n changed</source>
        <translation>
            <numerusform>%n개 변경됨</numerusform>
        </translation>
    </message>
    <message>
        <source>Reset %1</source>
        <translation>%1 복원</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>복원</translation>
    </message>
    <message>
        <source>Copy key</source>
        <translation>키 복사</translation>
    </message>
    <message>
        <source>Copy value</source>
        <translation>값 복사</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>변경됨</translation>
    </message>
    <message>
        <source>Changed settings</source>
        <translation>변경된 설정</translation>
    </message>
</context>
<context>
    <name>MtConf::RowWords</name>
    <message>
        <source>Default: %1</source>
        <translation>기본값: %1</translation>
    </message>
    <message>
        <source>Not changed</source>
        <translation>변경되지 않음</translation>
    </message>
    <message>
        <source>Changed on %1</source>
        <translation>변경 시각: %1</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>변경됨</translation>
    </message>
    <message>
        <source>From the file %1</source>
        <translation>파일 %1의 값</translation>
    </message>
    <message>
        <source>Changed by another program or computer on %1</source>
        <translation>다른 프로그램이나 컴퓨터에서 변경됨: %1</translation>
    </message>
    <message>
        <source>Changed by another program or computer</source>
        <translation>다른 프로그램이나 컴퓨터에서 변경됨</translation>
    </message>
    <message>
        <source>Locked by the administrator</source>
        <translation>관리자가 잠금</translation>
    </message>
</context>
<context>
    <name>MtConf::SettingsFile</name>
    <message>
        <source>&quot;%1&quot; is not a file.</source>
        <translation>‘%1’은(는) 파일이 아닙니다.</translation>
    </message>
    <message>
        <source>The settings could not be saved in &quot;%1&quot;.</source>
        <translation>설정을 ‘%1’에 저장하지 못했습니다.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; does not exist.</source>
        <translation>‘%1’ 파일은 존재하지 않습니다.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is larger than %2.</source>
        <translation>‘%1’ 파일이 %2보다 큽니다.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; could not be read.</source>
        <translation>‘%1’ 파일을 읽지 못했습니다.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is empty.</source>
        <translation>‘%1’ 파일이 비어 있습니다.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is damaged: its content is nested too deeply.</source>
        <translation>‘%1’ 파일이 손상되었습니다. 내용이 너무 깊게 중첩되어 있습니다.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is damaged or not complete.</source>
        <translation>‘%1’ 파일이 손상되었거나 완전하지 않습니다.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; does not contain settings.</source>
        <translation>‘%1’ 파일에 설정이 없습니다.</translation>
    </message>
    <message>
        <source>%1 settings</source>
        <comment>name of a file</comment>
        <translation>%1 설정</translation>
    </message>
</context>
<context>
    <name>MtConf::SettingsFind</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Search settings</source>
        <translation>설정 검색</translation>
    </message>
    <message>
        <source>Clear the search</source>
        <translation>검색어 지우기</translation>
    </message>
    <message>
        <source>Show more (%1)</source>
        <translation>더 보기 (%1)</translation>
    </message>
    <message>
        <source>No setting matches “%1”</source>
        <translation>‘%1’과(와) 일치하는 설정이 없습니다</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>검색 결과</translation>
    </message>
    <message>
        <source>Enter opens the page</source>
        <translation>Enter 키로 페이지 열기</translation>
    </message>
</context>
<context>
    <name>MtConf::UndoBar</name>
    <message>
        <source>Undo</source>
        <translation>실행 취소</translation>
    </message>
</context>
<context>
    <name>MtConf::ValueInWords</name>
    <message>
        <source>Yes</source>
        <translation>예</translation>
    </message>
    <message>
        <source>No</source>
        <translation>아니요</translation>
    </message>
    <message>
        <source>None</source>
        <translation>없음</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>설정되지 않음</translation>
    </message>
    <message>
        <source>Empty</source>
        <translation>비어 있음</translation>
    </message>
    <message>
        <source>%1 px</source>
        <translation>%1px</translation>
    </message>
    <message>
        <source>%1 pt</source>
        <translation>%1pt</translation>
    </message>
    <message>
        <source>bold</source>
        <translation>굵게</translation>
    </message>
    <message>
        <source>italic</source>
        <translation>기울임꼴</translation>
    </message>
    <message>
        <source>underlined</source>
        <translation>밑줄</translation>
    </message>
</context>
<context>
    <name>MtConf::WindowIdentity</name>
    <message>
        <source>Settings</source>
        <translation>설정</translation>
    </message>
    <message>
        <source>Settings — %1</source>
        <translation>설정 — %1</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Cannot set left-click separately</source>
        <translation>왼쪽 클릭을 단독으로 설정할 수 없습니다</translation>
    </message>
    <message>
        <source>No set</source>
        <translation>설정되지 않음</translation>
    </message>
    <message>
        <source>Conflict with %1</source>
        <translation>‘%1’과(와) 충돌</translation>
    </message>
    <message>
        <source> ms</source>
        <translation>ms</translation>
    </message>
    <message>
        <source> s</source>
        <translation>초</translation>
    </message>
    <message>
        <source> min</source>
        <translation>분</translation>
    </message>
    <message>
        <source> h</source>
        <translation>시간</translation>
    </message>
    <message>
        <source> d</source>
        <translation>일</translation>
    </message>
</context>
</TS>
