<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR" sourcelanguage="en_US">
<context>
    <name>BoundValueModel</name>
    <message>
        <source>changed</source>
        <translation>변경됨</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>설정</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>값</translation>
    </message>
    <message>
        <source>State</source>
        <translation>상태</translation>
    </message>
    <message>
        <source>%1, %2 px</source>
        <translation>%1, %2px</translation>
    </message>
</context>
<context>
    <name>LogPane</name>
    <message>
        <source>What the library logs appears here.</source>
        <translation>라이브러리의 로그가 여기에 표시됩니다.</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Quorvi Capture</source>
        <translation>Quorvi Capture</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>로그</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>설정…</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>저장</translation>
    </message>
    <message>
        <source>Restore all</source>
        <translation>모두 복원</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>파일(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Settings…</source>
        <translation>설정(&amp;S)…</translation>
    </message>
    <message>
        <source>Sa&amp;ve</source>
        <translation>저장(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Restore all…</source>
        <translation>모두 복원(&amp;R)…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>종료(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>테마(&amp;T)</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>라이트</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>다크</translation>
    </message>
    <message>
        <source>Variables — %1 of %2 changed</source>
        <translation>변수 — %2개 중 %1개 변경됨</translation>
    </message>
    <message>
        <source>Hotkey pressed: %1 (%2)</source>
        <translation>누른 단축키: %1(%2)</translation>
    </message>
    <message>
        <source>Saved to %1</source>
        <translation>%1에 저장됨</translation>
    </message>
    <message>
        <source>Could not write %1</source>
        <translation>%1에 쓰지 못했습니다</translation>
    </message>
    <message>
        <source>Restore the defaults of all settings and the presets of the profiles?</source>
        <translation>모든 설정의 기본값과 기본 제공 프로필을 복원하시겠습니까?</translation>
    </message>
    <message>
        <source>Follow the system</source>
        <translation>시스템 설정에 따름</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfigurationWindow</name>
    <message>
        <source>General</source>
        <translation>일반</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>모양</translation>
    </message>
    <message>
        <source>Capture</source>
        <translation>캡처</translation>
    </message>
    <message>
        <source>Hotkeys</source>
        <translation>단축키</translation>
    </message>
    <message>
        <source>Mouse</source>
        <translation>마우스</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>출력</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>프로필</translation>
    </message>
    <message>
        <source>System</source>
        <translation>시스템</translation>
    </message>
    <message>
        <source>Stored data</source>
        <translation>저장된 데이터</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>업데이트</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>선택 영역</translation>
    </message>
    <message>
        <source>Magnifier</source>
        <translation>돋보기</translation>
    </message>
    <message>
        <source>Size label</source>
        <translation>크기 표시</translation>
    </message>
    <message>
        <source>Snapping</source>
        <translation>스냅</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>도구</translation>
    </message>
    <message>
        <source>Pinned pictures</source>
        <translation>고정한 이미지</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>이미지</translation>
    </message>
    <message>
        <source>After a capture</source>
        <translation>캡처 후</translation>
    </message>
    <message>
        <source>Texts</source>
        <translation>텍스트</translation>
    </message>
    <message>
        <source>Numbers</source>
        <translation>숫자</translation>
    </message>
    <message>
        <source>Choices</source>
        <translation>선택 항목</translation>
    </message>
    <message>
        <source>In this program</source>
        <translation>이 앱에서</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>파일</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>네트워크</translation>
    </message>
</context>
<context>
    <name>ProfileStore</name>
    <message>
        <source>Screen</source>
        <translation>화면</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>윈도우</translation>
    </message>
    <message>
        <source>Thumbnail</source>
        <translation>썸네일</translation>
    </message>
    <message>
        <source>A profile needs a name.</source>
        <translation>프로필에는 이름이 필요합니다.</translation>
    </message>
    <message>
        <source>A name can have at most %1 characters.</source>
        <translation>이름은 최대 %1자입니다.</translation>
    </message>
    <message>
        <source>Another profile has this name.</source>
        <translation>같은 이름의 프로필이 있습니다.</translation>
    </message>
    <message>
        <source>New profile</source>
        <translation>새 프로필</translation>
    </message>
    <message>
        <source>New profile %1</source>
        <translation>새 프로필 %1</translation>
    </message>
</context>
<context>
    <name>ProfilesPage</name>
    <message>
        <source>Profiles</source>
        <translation>프로필</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>추가</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>삭제</translation>
    </message>
    <message>
        <source>Restore presets</source>
        <translation>기본 제공 프로필 복원</translation>
    </message>
    <message>
        <source>There is no profile.
Add one, or restore the presets.</source>
        <translation>프로필이 없습니다.
프로필을 추가하거나 기본 제공 프로필을 복원하세요.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>이름 변경</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>너비</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>높이</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>테두리</translation>
    </message>
    <message>
        <source>Include the mouse pointer</source>
        <translation>마우스 포인터 포함</translation>
    </message>
    <message>
        <source>A preset, unchanged.</source>
        <translation>변경하지 않은 기본 제공 프로필입니다.</translation>
    </message>
    <message>
        <source>Yours, or a changed preset.</source>
        <translation>직접 만들었거나 변경한 프로필입니다.</translation>
    </message>
    <message>
        <source>“%1” keeps its name. %2</source>
        <translation>“%1”의 이름은 그대로입니다. %2</translation>
    </message>
    <message>
        <source>Delete the profile “%1”?</source>
        <translation>프로필 “%1”을(를) 삭제할까요?</translation>
    </message>
    <message>
        <source>Restore the presets? This deletes your own profiles and undoes your changes of the presets.</source>
        <translation>기본 제공 프로필을 복원할까요? 직접 만든 프로필이 삭제되고 기본 제공 프로필의 변경 사항이 취소됩니다.</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Language</source>
        <translation>언어</translation>
    </message>
    <message>
        <source>Start at login</source>
        <translation>로그인 시 시작</translation>
    </message>
    <message>
        <source>Show icon in the menu bar</source>
        <translation>메뉴 막대에 아이콘 표시</translation>
    </message>
    <message>
        <source>Play a sound after a capture</source>
        <translation>캡처 후 소리 재생</translation>
    </message>
    <message>
        <source>Show tips</source>
        <translation>팁 표시</translation>
    </message>
    <message>
        <source>Recent captures in the menu</source>
        <translation>메뉴의 최근 캡처 수</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>업데이트 확인</translation>
    </message>
    <message>
        <source>Check interval (days)</source>
        <translation>확인 간격(일)</translation>
    </message>
    <message>
        <source>Offer beta versions</source>
        <translation>베타 버전 제공</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>테마</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>라이트</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>다크</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>테두리</translation>
    </message>
    <message>
        <source>Width of the frame</source>
        <translation>테두리 두께</translation>
    </message>
    <message>
        <source>Shade outside</source>
        <translation>바깥쪽 음영</translation>
    </message>
    <message>
        <source>Show magnifier</source>
        <translation>돋보기 표시</translation>
    </message>
    <message>
        <source>Magnification</source>
        <translation>확대 배율</translation>
    </message>
    <message>
        <source>Show size beside the selection</source>
        <translation>선택 영역 옆에 크기 표시</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>서체</translation>
    </message>
    <message>
        <source>Delay before a capture</source>
        <translation>캡처 전 지연</translation>
    </message>
    <message>
        <source>Count down on the screen</source>
        <translation>화면에 카운트다운 표시</translation>
    </message>
    <message>
        <source>Include the mouse pointer</source>
        <translation>마우스 포인터 포함</translation>
    </message>
    <message>
        <source>Include the shadow of windows</source>
        <translation>윈도우 그림자 포함</translation>
    </message>
    <message>
        <source>Freeze the screen while selecting</source>
        <translation>선택하는 동안 화면 정지</translation>
    </message>
    <message>
        <source>Frames per second of videos</source>
        <translation>비디오 초당 프레임 수</translation>
    </message>
    <message>
        <source>Snap to</source>
        <translation>스냅 대상</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>윈도우</translation>
    </message>
    <message>
        <source>Screen edges</source>
        <translation>화면 가장자리</translation>
    </message>
    <message>
        <source>Guides</source>
        <translation>안내선</translation>
    </message>
    <message>
        <source>Last selection</source>
        <translation>마지막 선택 영역</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>거리</translation>
    </message>
    <message>
        <source>Hotkeys in full-screen applications</source>
        <translation>전체 화면 앱에서 단축키 사용</translation>
    </message>
    <message>
        <source>Repeat delay</source>
        <translation>반복 지연</translation>
    </message>
    <message>
        <source>Capture an area</source>
        <translation>영역 캡처</translation>
    </message>
    <message>
        <source>Capture a window</source>
        <translation>윈도우 캡처</translation>
    </message>
    <message>
        <source>Capture the screen</source>
        <translation>화면 캡처</translation>
    </message>
    <message>
        <source>Pin the clipboard</source>
        <translation>클립보드 고정</translation>
    </message>
    <message>
        <source>Double-click to finish</source>
        <translation>더블 클릭하여 완료</translation>
    </message>
    <message>
        <source>Invert the wheel</source>
        <translation>휠 방향 반전</translation>
    </message>
    <message>
        <source>Movement that begins a drag</source>
        <translation>드래그 시작 거리</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>확대/축소</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>불투명도</translation>
    </message>
    <message>
        <source>Show the menu</source>
        <translation>메뉴 표시</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>복사</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>가리기</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>이동</translation>
    </message>
    <message>
        <source>Draw</source>
        <translation>그리기</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>포맷</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>품질</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>크기</translation>
    </message>
    <message>
        <source>Watermark</source>
        <translation>워터마크</translation>
    </message>
    <message>
        <source>Copy it</source>
        <translation>복사</translation>
    </message>
    <message>
        <source>Save it</source>
        <translation>저장</translation>
    </message>
    <message>
        <source>Open it in the editor</source>
        <translation>편집기에서 열기</translation>
    </message>
    <message>
        <source>Allow simple global hotkeys</source>
        <translation>단순한 전역 단축키 허용</translation>
    </message>
    <message>
        <source>Show expert settings</source>
        <translation>고급 설정 표시</translation>
    </message>
    <message>
        <source>Steps that can be undone</source>
        <translation>실행 취소 단계 수</translation>
    </message>
    <message>
        <source>Bring pinned pictures back at start</source>
        <translation>고정한 이미지를 시작할 때 복원</translation>
    </message>
    <message>
        <source>Cache (MB)</source>
        <translation>캐시(MB)</translation>
    </message>
    <message>
        <source>Threads that compress</source>
        <translation>압축 스레드 수</translation>
    </message>
    <message>
        <source>Draw with the graphics card</source>
        <translation>그래픽 카드로 그리기</translation>
    </message>
    <message>
        <source>Show times of drawing</source>
        <translation>그리기 시간 표시</translation>
    </message>
    <message>
        <source>Write a log file</source>
        <translation>로그 파일 기록</translation>
    </message>
    <message>
        <source>Open the settings</source>
        <translation>설정 열기</translation>
    </message>
    <message>
        <source>Save now</source>
        <translation>지금 저장</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>종료</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>작성자</translation>
    </message>
    <message>
        <source>Your name</source>
        <translation>내 이름</translation>
    </message>
    <message>
        <source>Pictures contain it if the details include the author.</source>
        <translation>파일에 포함할 정보로 작성자를 선택하면 이미지에 포함됩니다.</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>메모</translation>
    </message>
    <message>
        <source>Token for uploads</source>
        <translation>업로드 토큰</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>태그</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>폴더</translation>
    </message>
    <message>
        <source>Logo</source>
        <translation>로고</translation>
    </message>
    <message>
        <source>Pictures (*.png *.svg)</source>
        <translation>이미지(*.png *.svg)</translation>
    </message>
    <message>
        <source>Log file</source>
        <translation>로그 파일</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>밝기</translation>
    </message>
    <message>
        <source>Margin</source>
        <translation>여백</translation>
    </message>
    <message>
        <source>Save every</source>
        <translation>저장 간격</translation>
    </message>
    <message>
        <source>Remind me</source>
        <translation>미리 알림</translation>
    </message>
    <message>
        <source>Name of the file</source>
        <translation>파일 이름</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>날짜 및 시간</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>번호</translation>
    </message>
    <message>
        <source>Title of the window</source>
        <translation>윈도우 제목</translation>
    </message>
    <message>
        <source>Details in the file</source>
        <translation>파일에 포함할 정보</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>위치</translation>
    </message>
    <message>
        <source>Use a proxy</source>
        <translation>프록시 사용</translation>
    </message>
    <message>
        <source>Host</source>
        <translation>호스트</translation>
    </message>
    <message>
        <source>A host has no blanks.</source>
        <translation>호스트 이름에는 공백을 사용할 수 없습니다.</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>포트</translation>
    </message>
    <message>
        <source> px</source>
        <translation>px</translation>
    </message>
    <message>
        <source> s</source>
        <translation>초</translation>
    </message>
    <message>
        <source> ms</source>
        <translation>ms</translation>
    </message>
    <message>
        <source>Follow the system</source>
        <translation>시스템 설정에 따름</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>색상</translation>
    </message>
    <message>
        <source>Pick a color</source>
        <translation>색상 추출</translation>
    </message>
</context>
<context>
    <name>StoredDataPage</name>
    <message>
        <source>Stored data</source>
        <translation>저장된 데이터</translation>
    </message>
    <message>
        <source>Nothing has been changed yet.</source>
        <translation>아직 변경된 항목이 없습니다.</translation>
    </message>
</context>
<context>
    <name>WatermarkEditor</name>
    <message>
        <source>Opacity</source>
        <translation>불투명도</translation>
    </message>
    <message>
        <source>None if empty</source>
        <translation>비우면 없음</translation>
    </message>
</context>
<context>
    <name>takePictures</name>
    <message>
        <source>Cannot write %1</source>
        <translation>%1에 쓸 수 없습니다</translation>
    </message>
</context>
</TS>
