<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR" sourcelanguage="en_US">
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Select All</source>
        <translation>모두 선택(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>늘리기(&amp;S)</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>줄이기(&amp;D)</translation>
    </message>
</context>
<context>
    <name>QIODevice</name>
    <message>
        <source>Permission denied</source>
        <translation>권한이 없습니다</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>열린 파일이 너무 많습니다</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>그런 파일이나 폴더가 없습니다</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>장치에 남은 공간이 없습니다</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>실행 취소(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>다시 실행(&amp;R)</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>잘라내기(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>복사(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>붙여넣기(&amp;P)</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>삭제</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>모두 선택</translation>
    </message>
</context>
<context>
    <name>QShortcut</name>
    <message>
        <source>Ctrl</source>
        <translation>Ctrl</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Shift</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>위쪽 화살표</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>아래쪽 화살표</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>왼쪽 화살표</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>오른쪽 화살표</translation>
    </message>
</context>
<context>
    <name>SkyDocument</name>
    <message>
        <source>another program holds it locked</source>
        <translation>다른 프로그램이 잠그고 있습니다</translation>
    </message>
</context>
<context>
    <name>SkyFault</name>
    <message>
        <source>not an ordinary file</source>
        <translation>일반 파일이 아닙니다</translation>
    </message>
    <message>
        <source>longer than 64 KiB</source>
        <translation>64 KiB보다 깁니다</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>파일이 비어 있습니다</translation>
    </message>
    <message>
        <source>the last line has no end: the file is half-written</source>
        <translation>마지막 줄이 끝나지 않았습니다(파일이 쓰다 만 상태입니다)</translation>
    </message>
    <message>
        <source>the section&apos;s ] is missing</source>
        <translation>섹션의 ]가 없습니다</translation>
    </message>
    <message>
        <source>unknown section [%1]</source>
        <translation>알 수 없는 섹션 [%1]</translation>
    </message>
    <message>
        <source>not of the form key = value</source>
        <translation>‘키 = 값’ 형식이 아닙니다</translation>
    </message>
    <message>
        <source>appears before any section</source>
        <translation>첫 섹션보다 앞에 있습니다</translation>
    </message>
    <message>
        <source>unknown key in [%1]</source>
        <translation>[%1]에 알 수 없는 키가 있습니다</translation>
    </message>
    <message>
        <source>duplicate key</source>
        <translation>두 번 나옵니다</translation>
    </message>
    <message>
        <source>must lie between %1 and %2</source>
        <translation>%1에서 %2 사이여야 합니다</translation>
    </message>
    <message>
        <source>must be %1 or %2</source>
        <translation>%1 또는 %2여야 합니다</translation>
    </message>
    <message>
        <source>must be %1, %2 or %3</source>
        <translation>%1, %2, %3 중 하나여야 합니다</translation>
    </message>
    <message>
        <source>unknown operation: &quot;%1&quot;</source>
        <translation>그런 동작은 없습니다: ‘%1’</translation>
    </message>
    <message>
        <source>must be %1 or a date from %2 to %3 like %4</source>
        <translation>%1이거나 %4 같은 %2~%3년의 날짜여야 합니다</translation>
    </message>
    <message>
        <source>must be a whole number</source>
        <translation>정수여야 합니다</translation>
    </message>
    <message>
        <source>must be a number</source>
        <translation>숫자여야 합니다</translation>
    </message>
    <message>
        <source>must be 1 or 3</source>
        <translation>1 또는 3이어야 합니다</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>%1행: %2</translation>
    </message>
</context>
<context>
    <name>virtualmount</name>
    <message>
        <source>%1 too high</source>
        <translation>위로 %1</translation>
    </message>
    <message>
        <source>%1 too low</source>
        <translation>아래로 %1</translation>
    </message>
    <message>
        <source>%1 too far east</source>
        <translation>동쪽으로 %1</translation>
    </message>
    <message>
        <source>%1 too far west</source>
        <translation>서쪽으로 %1</translation>
    </message>
    <message>
        <source>%1 up</source>
        <translation>위로 %1</translation>
    </message>
    <message>
        <source>%1 down</source>
        <translation>아래로 %1</translation>
    </message>
    <message>
        <source>%1 east</source>
        <translation>동쪽 %1</translation>
    </message>
    <message>
        <source>%1 west</source>
        <translation>서쪽 %1</translation>
    </message>
</context>
<context>
    <name>virtualmount::MountWindow</name>
    <message>
        <source>RA axis</source>
        <translation>적경축(RA)</translation>
    </message>
    <message>
        <source>Angle of the RA axis in degrees</source>
        <translation>적경축 각도(도)</translation>
    </message>
    <message>
        <source>Turns the RA axis; clockwise as the mount tracks</source>
        <translation>적경축을 돌립니다. 시계 방향이 적도의의 추적 방향입니다</translation>
    </message>
    <message>
        <source>&amp;Angle:</source>
        <translation>각도(&amp;A):</translation>
    </message>
    <message>
        <source>+%1°</source>
        <translation>+%1°</translation>
    </message>
    <message>
        <source>−%1°</source>
        <translation>−%1°</translation>
    </message>
    <message>
        <source>Turn the RA axis by %1 degrees</source>
        <translation>적경축을 %1도 돌리기</translation>
    </message>
    <message>
        <source>&amp;Home</source>
        <translation>홈(&amp;H)</translation>
    </message>
    <message>
        <source>Turn the RA axis back to 0</source>
        <translation>적경축을 0으로 되돌리기</translation>
    </message>
    <message>
        <source>Trac&amp;king</source>
        <translation>추적(&amp;K)</translation>
    </message>
    <message>
        <source>The RA axis follows the sky</source>
        <translation>적경축이 하늘을 따라 돕니다</translation>
    </message>
    <message>
        <source>▼ Down</source>
        <translation>▼ 아래</translation>
    </message>
    <message>
        <source>Altitude bolt: down, a quarter of a turn</source>
        <translation>고도 나사: 아래로 4분의 1바퀴</translation>
    </message>
    <message>
        <source>fine ▼</source>
        <translation>미세 ▼</translation>
    </message>
    <message>
        <source>Altitude bolt: down, finely</source>
        <translation>고도 나사: 아래로 미세 조절</translation>
    </message>
    <message>
        <source>▲ fine</source>
        <translation>▲ 미세</translation>
    </message>
    <message>
        <source>Altitude bolt: up, finely</source>
        <translation>고도 나사: 위로 미세 조절</translation>
    </message>
    <message>
        <source>Up ▲</source>
        <translation>위 ▲</translation>
    </message>
    <message>
        <source>Altitude bolt: up, a quarter of a turn</source>
        <translation>고도 나사: 위로 4분의 1바퀴</translation>
    </message>
    <message>
        <source>◀ West</source>
        <translation>◀ 서쪽</translation>
    </message>
    <message>
        <source>Azimuth bolt: west, a quarter of a turn</source>
        <translation>방위각 나사: 서쪽으로 4분의 1바퀴</translation>
    </message>
    <message>
        <source>fine ◀</source>
        <translation>미세 ◀</translation>
    </message>
    <message>
        <source>Azimuth bolt: west, finely</source>
        <translation>방위각 나사: 서쪽으로 미세 조절</translation>
    </message>
    <message>
        <source>▶ fine</source>
        <translation>▶ 미세</translation>
    </message>
    <message>
        <source>Azimuth bolt: east, finely</source>
        <translation>방위각 나사: 동쪽으로 미세 조절</translation>
    </message>
    <message>
        <source>East ▶</source>
        <translation>동쪽 ▶</translation>
    </message>
    <message>
        <source>Azimuth bolt: east, a quarter of a turn</source>
        <translation>방위각 나사: 동쪽으로 4분의 1바퀴</translation>
    </message>
    <message>
        <source>Turns of the altitude knob</source>
        <translation>고도 나사의 회전수</translation>
    </message>
    <message>
        <source>Turns of the azimuth knob</source>
        <translation>방위각 나사의 회전수</translation>
    </message>
    <message>
        <source>Show or hide the remaining error</source>
        <translation>남은 오차를 보이거나 숨기기</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>초기화(&amp;R)</translation>
    </message>
    <message>
        <source>Reset to the values at the start</source>
        <translation>모두 처음 상태로 되돌리기</translation>
    </message>
    <message>
        <source>Resets everything to the values at the start</source>
        <translation>모두 처음 상태로 되돌립니다</translation>
    </message>
    <message>
        <source>Remaining error</source>
        <translation>남은 오차</translation>
    </message>
    <message>
        <source>Replace &amp;it</source>
        <translation>바꾸기(&amp;I)</translation>
    </message>
    <message>
        <source>Write a new sky file over the one with the fault</source>
        <translation>오류가 있는 하늘 파일을 새 파일로 바꾸기</translation>
    </message>
    <message>
        <source>Quorvandel Virtual Mount</source>
        <translation>Quorvandel 가상 적도의</translation>
    </message>
    <message>
        <source>Hide the tru&amp;th</source>
        <translation>정답 숨기기(&amp;T)</translation>
    </message>
    <message>
        <source>Show me the tru&amp;th</source>
        <translation>정답 보기(&amp;T)</translation>
    </message>
    <message>
        <source>What is left of the error is hidden.</source>
        <translation>남은 오차는 숨겨져 있습니다.</translation>
    </message>
    <message>
        <source>The RA axis misses the pole by %1:
%2 and %3.</source>
        <translation>적경축이 극에서 %1 벗어나 있습니다:
%2, %3.</translation>
    </message>
    <message>
        <source>The sky file cannot be written: %1.</source>
        <translation>하늘 파일을 쓸 수 없습니다: %1.</translation>
    </message>
    <message>
        <source>Fault in the sky file: %1. Nothing is written.</source>
        <translation>하늘 파일 오류: %1. 아무것도 쓰지 않습니다.</translation>
    </message>
    <message>
        <source>Arrow keys turn the bolts, with Shift finely.
Ctrl+1 to Ctrl+6 turn the axis, Esc leaves a field.</source>
        <translation>화살표 키로 나사를 돌립니다(Shift: 미세 조절).
Ctrl+1~Ctrl+6으로 축을 돌리고 Esc로 입력란에서 나옵니다.</translation>
    </message>
    <message>
        <source>Which time it is</source>
        <translation>어떤 시각을 쓸지</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>현재</translation>
    </message>
    <message>
        <source>Runs from</source>
        <translation>여기서 시작</translation>
    </message>
    <message>
        <source>Fixed at</source>
        <translation>여기서 정지</translation>
    </message>
    <message>
        <source>Date and time, UTC</source>
        <translation>날짜와 시각(UTC)</translation>
    </message>
    <message>
        <source>Site and time (UTC)</source>
        <translation>관측지와 시각(UTC)</translation>
    </message>
    <message>
        <source>&amp;Latitude</source>
        <translation>위도(&amp;L)</translation>
    </message>
    <message>
        <source>North</source>
        <translation>북위</translation>
    </message>
    <message>
        <source>South</source>
        <translation>남위</translation>
    </message>
    <message>
        <source>Latitude in degrees</source>
        <translation>위도(도)</translation>
    </message>
    <message>
        <source>Latitude: north or south</source>
        <translation>위도: 북위 또는 남위</translation>
    </message>
    <message>
        <source>L&amp;ongitude</source>
        <translation>경도(&amp;O)</translation>
    </message>
    <message>
        <source>East</source>
        <translation>동경</translation>
    </message>
    <message>
        <source>West</source>
        <translation>서경</translation>
    </message>
    <message>
        <source>Longitude in degrees</source>
        <translation>경도(도)</translation>
    </message>
    <message>
        <source>Longitude: east or west</source>
        <translation>경도: 동경 또는 서경</translation>
    </message>
    <message>
        <source>&amp;Date</source>
        <translation>날짜(&amp;D)</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>날씨</translation>
    </message>
    <message>
        <source>&amp;Clouds</source>
        <translation>구름(&amp;C)</translation>
    </message>
    <message>
        <source>Clouds in percent</source>
        <translation>구름(%)</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>&amp;Moon</source>
        <translation>달빛(&amp;M)</translation>
    </message>
    <message>
        <source>Glow of the moon in percent</source>
        <translation>달빛(%)</translation>
    </message>
    <message>
        <source>&amp;Seeing</source>
        <translation>시상(&amp;S)</translation>
    </message>
    <message>
        <source>Seeing in seconds of arc</source>
        <translation>시상(초각)</translation>
    </message>
    <message>
        <source>%1″</source>
        <translation>%1″</translation>
    </message>
    <message>
        <source>&amp;Passing</source>
        <translation>지나가는 구름(&amp;P)</translation>
    </message>
    <message>
        <source>Clouds come and go</source>
        <translation>구름이 오고 갑니다</translation>
    </message>
    <message>
        <source>Re&amp;fraction</source>
        <translation>대기 굴절(&amp;F)</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>카메라</translation>
    </message>
    <message>
        <source>&amp;Unplugged</source>
        <translation>케이블 뽑기(&amp;U)</translation>
    </message>
    <message>
        <source>Slo&amp;w USB</source>
        <translation>느린 USB(&amp;W)</translation>
    </message>
    <message>
        <source>Altitude and azimuth bolts: turns</source>
        <translation>고도·방위각 조절 나사: 회전수</translation>
    </message>
    <message>
        <source>&amp;New exercise</source>
        <translation>새 연습(&amp;N)</translation>
    </message>
    <message>
        <source>Turns the bolts and the camera at random, to start again from there</source>
        <translation>나사와 카메라 방향을 무작위로 바꾸어 거기서 다시 시작합니다</translation>
    </message>
    <message>
        <source>Error of the star angles</source>
        <translation>별 각도 데이터의 오차</translation>
    </message>
    <message>
        <source>The age of the star angles (%1) alone makes %2.</source>
        <translation>별 각도 데이터(%1년)가 오래되어 생긴 오차: %2</translation>
    </message>
    <message>
        <source>The mount is already aligned.
“New exercise” moves it away from the pole.</source>
        <translation>적도의의 극축이 이미 맞춰져 있습니다.
‘새 연습’을 누르면 극에서 벗어납니다.</translation>
    </message>
    <message>
        <source>West ▶</source>
        <translation>서쪽 ▶</translation>
    </message>
    <message>
        <source>◀ East</source>
        <translation>◀ 동쪽</translation>
    </message>
</context>
</TS>
