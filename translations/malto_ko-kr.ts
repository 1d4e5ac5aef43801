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
