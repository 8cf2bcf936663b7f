<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR" sourcelanguage="en_US">
<context>
    <name>Advice</name>
    <message>
        <source>Point the camera at the pole and press Connect.</source>
        <translation>카메라를 극으로 향하고 &quot;연결&quot;을 누르세요.</translation>
    </message>
    <message>
        <source>No camera was found. Plug it in: the search goes on.</source>
        <translation>카메라가 없습니다. 꽂으세요. 검색은 계속됩니다.</translation>
    </message>
    <message>
        <source>The camera library cannot be used: %1</source>
        <translation>카메라 라이브러리를 쓸 수 없습니다: %1</translation>
    </message>
    <message>
        <source>The camera %1 cannot be opened. It is tried again.</source>
        <translation>카메라 %1을(를) 열 수 없습니다. 계속 다시 시도합니다.</translation>
    </message>
    <message>
        <source>No picture for %1 s. Check the camera’s cable.</source>
        <translation>%1초 동안 영상이 없습니다. 카메라 케이블을 확인하세요.</translation>
    </message>
    <message>
        <source>The camera has not answered for %1 s. Plug it in again.</source>
        <translation>카메라가 %1초 동안 응답하지 않습니다. 다시 꽂으세요.</translation>
    </message>
    <message>
        <source>Looking for the stars at the pole …</source>
        <translation>극 주위의 별을 찾고 있습니다…</translation>
    </message>
    <message>
        <source>No light at all. Take the cover off the lens.</source>
        <translation>빛이 전혀 없습니다. 렌즈 덮개를 벗기세요.</translation>
    </message>
    <message>
        <source>Too few stars (%1). Expose longer.</source>
        <translation>별이 너무 적습니다(%1). 노출을 늘리세요.</translation>
    </message>
    <message>
        <source>The picture is too bright. Expose shorter.</source>
        <translation>영상이 너무 밝습니다. 노출을 줄이세요.</translation>
    </message>
    <message>
        <source>This is not the night sky. Point the camera at the pole.</source>
        <translation>밤하늘이 아닙니다. 카메라를 극으로 향하세요.</translation>
    </message>
    <message>
        <source>The stars are %1 pixels wide. Focus the lens.</source>
        <translation>별의 폭이 %1픽셀입니다. 초점을 맞추세요.</translation>
    </message>
    <message>
        <source>The stars are trailed. Let the mount come to rest.</source>
        <translation>별이 흘렀습니다. 가대가 멈출 때까지 기다리세요.</translation>
    </message>
    <message>
        <source>Too few stars: clouds? It goes on when they are back.</source>
        <translation>별이 너무 적습니다. 구름인가요? 별이 돌아오면 계속합니다.</translation>
    </message>
    <message>
        <source>%1 stars, but not those at the pole. Point the mount at it.</source>
        <translation>별 %1개가 있지만 극의 별이 아닙니다. 적도의를 극으로 향하세요.</translation>
    </message>
    <message>
        <source>The pole is %1° outside the picture. Follow the arrow.</source>
        <translation>극이 영상에서 %1° 밖에 있습니다. 화살표를 따라가세요.</translation>
    </message>
    <message>
        <source>These stars are of the other hemisphere. Check the latitude.</source>
        <translation>다른 반구의 별입니다. 위도를 확인하세요.</translation>
    </message>
    <message>
        <source>The computer’s clock may be wrong. Check date and time.</source>
        <translation>컴퓨터 시계가 틀릴 수 있습니다. 날짜와 시간을 확인하세요.</translation>
    </message>
    <message>
        <source>The computer’s clock is behind. Set date and time.</source>
        <translation>컴퓨터 시계가 늦습니다. 날짜와 시간을 맞추세요.</translation>
    </message>
    <message>
        <source>The clock was set by %1 s. Check date and time.</source>
        <translation>시계가 %1초 바뀌었습니다. 날짜와 시간을 확인하세요.</translation>
    </message>
    <message>
        <source>Turn the RA axis, either way.</source>
        <translation>적경축을 어느 쪽으로든 돌리세요.</translation>
    </message>
    <message>
        <source>Turn the RA axis further: %1 so far.</source>
        <translation>적경축을 더 돌리세요. 지금까지 %1.</translation>
    </message>
    <message>
        <source>Enough: the axis is known to %1. Now turn the bolts.</source>
        <translation>충분합니다. 축이 %1까지 알려졌습니다. 이제 나사를 돌리세요.</translation>
    </message>
    <message>
        <source>The mount was moved. Turn the RA axis once more.</source>
        <translation>적도의가 움직였습니다. 적경축을 다시 한 번 돌리세요.</translation>
    </message>
    <message>
        <source>The camera slipped on the axis. Turn the RA axis once more.</source>
        <translation>카메라가 축에서 미끄러졌습니다. 적경축을 다시 한 번 돌리세요.</translation>
    </message>
    <message>
        <source>Turn the bolts as the arrows say: %1 to go.</source>
        <translation>화살표대로 나사를 돌리세요. %1 남았습니다.</translation>
    </message>
    <message>
        <source>Nearly there. Turn the bolts a little at a time.</source>
        <translation>거의 다 됐습니다. 나사를 조금씩 돌리세요.</translation>
    </message>
    <message>
        <source>Aligned. Tighten the bolts and watch the number.</source>
        <translation>정렬되었습니다. 숫자를 보면서 나사를 조이세요.</translation>
    </message>
    <message>
        <source>Enter the site to see which way each bolt must go.</source>
        <translation>관측지를 입력하면 각 나사의 방향을 볼 수 있습니다.</translation>
    </message>
    <message>
        <source>So near to the Earth’s pole, follow the arrow in the picture.</source>
        <translation>지구의 극이 이렇게 가까우니 영상의 화살표를 따르세요.</translation>
    </message>
    <message>
        <source>Recording stopped: the folder %1 cannot be written.</source>
        <translation>기록을 멈췄습니다: %1 폴더에 쓸 수 없습니다.</translation>
    </message>
    <message>
        <source>The recording reached its limit and stopped.</source>
        <translation>기록이 한도에 이르러 멈췄습니다.</translation>
    </message>
    <message>
        <source>Turn the bolts until the arrow is gone: %1 to go.</source>
        <translation>화살표가 없어질 때까지 나사를 돌리세요. %1 남았습니다.</translation>
    </message>
    <message>
        <source>The camera library cannot be used.</source>
        <translation>카메라 라이브러리를 쓸 수 없습니다.</translation>
    </message>
    <message>
        <source>Each minute that it is off turns altitude and azimuth by 0.25° about the pole; the total error hardly changes.</source>
        <translation>시계가 1분 틀릴 때마다 고도와 방위각이 극을 중심으로 0.25° 돌아갑니다. 전체 오차는 거의 변하지 않습니다.</translation>
    </message>
</context>
<context>
    <name>Aim</name>
    <message>
        <source>pole as the air shows it</source>
        <translation>대기를 통해 보이는 극</translation>
    </message>
    <message>
        <source>true pole, no refraction</source>
        <translation>참 극, 굴절 없음</translation>
    </message>
    <message>
        <source>true pole, refraction at %1 hPa, %2 °C</source>
        <translation>참 극, 굴절 %1 hPa, %2 °C</translation>
    </message>
    <message>
        <source>refracted pole, at %1 hPa, %2 °C</source>
        <translation>굴절된 극, %1 hPa, %2 °C</translation>
    </message>
</context>
<context>
    <name>AssistantWindow</name>
    <message>
        <source>Quorvandel Assistant</source>
        <extracomment>The window&apos;s title</extracomment>
        <translation>Quorvandel 도우미</translation>
    </message>
</context>
<context>
    <name>Bolts</name>
    <message>
        <source>up</source>
        <translation>위로</translation>
    </message>
    <message>
        <source>down</source>
        <translation>아래로</translation>
    </message>
    <message>
        <source>east</source>
        <translation>동쪽</translation>
    </message>
    <message>
        <source>west</source>
        <translation>서쪽</translation>
    </message>
    <message>
        <source>good</source>
        <translation>좋음</translation>
    </message>
</context>
<context>
    <name>Display</name>
    <message>
        <source>Stars recognised: %1 of %2</source>
        <translation>인식한 별: %1 / %2</translation>
    </message>
    <message>
        <source>Width of the stars: %1 pixels</source>
        <translation>별의 폭: %1픽셀</translation>
    </message>
    <message>
        <source>Aimed at: %1</source>
        <extracomment>Before a text such as: true pole, no refraction</extracomment>
        <translation>목표: %1</translation>
    </message>
</context>
<context>
    <name>Figures</name>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
</context>
<context>
    <name>LargePage</name>
    <message>
        <source>Back</source>
        <translation>뒤로</translation>
    </message>
</context>
<context>
    <name>MainPage</name>
    <message>
        <source>Disconnect</source>
        <translation>연결 끊기</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>연결</translation>
    </message>
    <message>
        <source>Start again</source>
        <translation>다시 시작</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>카메라</translation>
    </message>
    <message>
        <source>Exposure</source>
        <translation>노출</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>자동</translation>
    </message>
    <message>
        <source>Total error</source>
        <translation>전체 오차</translation>
    </message>
    <message>
        <source>Altitude</source>
        <translation>고도</translation>
    </message>
    <message>
        <source>Azimuth</source>
        <translation>방위각</translation>
    </message>
    <message>
        <source>Enter the site</source>
        <translation>관측지 입력</translation>
    </message>
    <message>
        <source>Turn the bolts until the arrow in the picture is gone. With the site, the assistant says which way each bolt must go.</source>
        <translation>영상의 화살표가 없어질 때까지 나사를 돌리세요. 관측지를 알면 각 나사의 방향을 알려 줍니다.</translation>
    </message>
    <message>
        <source>The camera must see the pole; it need not be in the middle.</source>
        <translation>카메라에 극이 보여야 하지만 가운데일 필요는 없습니다.</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>보고서</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>설정</translation>
    </message>
    <message>
        <source>Large view</source>
        <translation>크게 보기</translation>
    </message>
    <message>
        <source>Live picture; a tap opens the large view</source>
        <translation>실시간 영상. 누르면 크게 보기가 열립니다</translation>
    </message>
    <message>
        <source>%1 are enough, %2 if the axis is then known to %3. Further turning makes it more exact.</source>
        <translation>%1, 또는 축이 %3까지 알려지면 %2로 충분합니다. 더 돌리면 더 정확해집니다.</translation>
    </message>
</context>
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
</context>
<context>
    <name>Report</name>
    <message>
        <source>%1 an hour</source>
        <translation>시간당 %1</translation>
    </message>
    <message>
        <source>Error before</source>
        <translation>이전 오차</translation>
    </message>
    <message>
        <source>Error now</source>
        <translation>현재 오차</translation>
    </message>
    <message>
        <source>in altitude</source>
        <translation>고도</translation>
    </message>
    <message>
        <source>in azimuth</source>
        <translation>방위각</translation>
    </message>
    <message>
        <source>Time taken</source>
        <translation>걸린 시간</translation>
    </message>
    <message>
        <source>Polar alignment</source>
        <translation>극축 정렬</translation>
    </message>
    <message>
        <source>Aimed at</source>
        <translation>목표</translation>
    </message>
    <message>
        <source>Drift in declination, anywhere, at most</source>
        <translation>적위 이동(어디서나), 최대</translation>
    </message>
    <message>
        <source>Angle of field rotation at most, at the equator and at declination 60°</source>
        <translation>시야 회전각 최대, 적도와 적위 60°에서</translation>
    </message>
    <message>
        <source>Date and site</source>
        <translation>날짜와 관측지</translation>
    </message>
    <message>
        <source>axis %1 above the pole</source>
        <translation>축이 극보다 %1 위</translation>
    </message>
    <message>
        <source>axis %1 below the pole</source>
        <translation>축이 극보다 %1 아래</translation>
    </message>
    <message>
        <source>axis %1 east of the pole</source>
        <translation>축이 극보다 %1 동쪽</translation>
    </message>
    <message>
        <source>axis %1 west of the pole</source>
        <translation>축이 극보다 %1 서쪽</translation>
    </message>
</context>
<context>
    <name>ReportPage</name>
    <message>
        <source>The folder cannot be made.</source>
        <translation>폴더를 만들 수 없습니다.</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>저장했습니다: %1</translation>
    </message>
    <message>
        <source>Not saved: %1 The report is still here.</source>
        <translation>저장하지 못했습니다: %1 보고서는 그대로 있습니다.</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>보고서</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>뒤로</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>폴더</translation>
    </message>
    <message>
        <source>Save picture</source>
        <translation>그림 저장</translation>
    </message>
    <message>
        <source>Save table</source>
        <translation>표 저장</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Settings</source>
        <translation>설정</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>뒤로</translation>
    </message>
    <message>
        <source>Site</source>
        <translation>관측지</translation>
    </message>
    <message>
        <source>Pole</source>
        <translation>극</translation>
    </message>
    <message>
        <source>Night and sound</source>
        <translation>야간과 소리</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>기록</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>언어</translation>
    </message>
    <message>
        <source>True pole</source>
        <translation>참 극</translation>
    </message>
    <message>
        <source>The Earth’s own axis: best for long exposures all over the sky.</source>
        <translation>지구 자전축: 온 하늘에서 긴 노출에 가장 좋습니다.</translation>
    </message>
    <message>
        <source>Refracted pole</source>
        <translation>굴절된 극</translation>
    </message>
    <message>
        <source>Where the air shows the pole: best for long exposures near the pole.</source>
        <translation>대기를 통해 보이는 극: 극 근처의 긴 노출에 가장 좋습니다.</translation>
    </message>
    <message>
        <source>Air pressure, hPa</source>
        <translation>기압(hPa)</translation>
    </message>
    <message>
        <source>Temperature, °C</source>
        <translation>기온(°C)</translation>
    </message>
    <message>
        <source>Red light only</source>
        <translation>붉은 빛만</translation>
    </message>
    <message>
        <source>Keeps eyes used to the dark: the window emits no green and no blue.</source>
        <translation>어둠에 익숙한 눈을 지켜 줍니다. 녹색과 파란색 빛을 내지 않습니다.</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>소리</translation>
    </message>
    <message>
        <source>Pulses come faster as the error shrinks; a steady tone at the goal.</source>
        <translation>오차가 줄수록 소리가 빨라지고, 목표에서는 계속 울립니다.</translation>
    </message>
    <message>
        <source>Speech</source>
        <translation>음성</translation>
    </message>
    <message>
        <source>Says which bolt to turn, and how far.</source>
        <translation>어느 나사를 얼마나 돌릴지 말해 줍니다.</translation>
    </message>
    <message>
        <source>Speech is not available on this computer.</source>
        <translation>이 컴퓨터에서는 음성을 쓸 수 없습니다.</translation>
    </message>
    <message>
        <source>Goal: aligned below</source>
        <translation>목표: 이보다 작으면 정렬</translation>
    </message>
    <message>
        <source>Record the frames</source>
        <translation>영상 기록</translation>
    </message>
    <message>
        <source>Saves at most one frame a second as a FITS file, for a report of a fault.</source>
        <translation>결함을 알릴 수 있도록 영상을 초당 최대 한 장씩 FITS 파일로 저장합니다.</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>폴더</translation>
    </message>
    <message>
        <source>Limit of disk space, MB</source>
        <translation>디스크 공간 한도(MB)</translation>
    </message>
    <message>
        <source>Air pressure, hPa (0: no refraction)</source>
        <translation>기압(hPa, 0: 굴절 없음)</translation>
    </message>
</context>
<context>
    <name>SitePanel</name>
    <message>
        <source>With the site, the assistant says which way each bolt must go.</source>
        <translation>관측지를 알면 각 나사의 방향을 알려 줍니다.</translation>
    </message>
    <message>
        <source>Latitude: north positive, or N, S</source>
        <translation>위도(북쪽 +, 또는 N, S)</translation>
    </message>
    <message>
        <source>Longitude: east positive, or E, W</source>
        <translation>경도(동쪽 +, 또는 E, W)</translation>
    </message>
</context>
<context>
    <name>SkyPicture</name>
    <message>
        <source>Do not show this again until the next start</source>
        <translation>다음에 시작할 때까지 표시하지 않음</translation>
    </message>
</context>
<context>
    <name>Speech</name>
    <message>
        <source>1 degree</source>
        <translation>1도</translation>
    </message>
    <message numerus="yes">
        <source>%n degrees</source>
        <translation>
            <numerusform>%n도</numerusform>
        </translation>
    </message>
    <message>
        <source>1 minute</source>
        <translation>1분</translation>
    </message>
    <message numerus="yes">
        <source>%n minutes</source>
        <translation>
            <numerusform>%n분</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n seconds</source>
        <translation>
            <numerusform>%n초</numerusform>
        </translation>
    </message>
    <message>
        <source>aligned</source>
        <translation>정렬되었습니다</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>A direction and a size, such as &quot;up, 2 minutes&quot;</extracomment>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>Stage</name>
    <message>
        <source>Sky</source>
        <translation>하늘</translation>
    </message>
    <message>
        <source>Axis</source>
        <translation>축</translation>
    </message>
    <message>
        <source>Bolts</source>
        <translation>나사</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>카메라</translation>
    </message>
</context>
</TS>
