<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR" sourcelanguage="en_US">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About</source>
        <translation>Quorvandel 정보</translation>
    </message>
    <message>
        <source>Quorvandel V1.3.2.6, release 2016-08-10</source>
        <translation>Quorvandel V1.3.2.6, 2016-08-10 배포</translation>
    </message>
    <message>
        <source>© 2021 Quorvandel. All rights reserved.</source>
        <translation>© 2021 Quorvandel. 모든 권리 보유.</translation>
    </message>
    <message>
        <source>Web site</source>
        <translation>웹사이트</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>English translation by the makers of Quorvandel.</source>
        <translation>한국어 번역: Quorvandel 제작진</translation>
    </message>
</context>
<context>
    <name>AstroRefractionDialog</name>
    <message>
        <source>Astronomical Refraction</source>
        <translation>대기 굴절</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>위도</translation>
    </message>
    <message>
        <source>Latitude in degrees</source>
        <translation>위도(도)</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>경도</translation>
    </message>
    <message>
        <source>Longitude in degrees</source>
        <translation>경도(도)</translation>
    </message>
    <message>
        <source>Unit of pressure</source>
        <translation>기압 단위</translation>
    </message>
    <message>
        <source>P(kPa)</source>
        <translation>P(kPa)</translation>
    </message>
    <message>
        <source>P(hPa)</source>
        <translation>P(hPa)</translation>
    </message>
    <message>
        <source>Air pressure</source>
        <translation>기압</translation>
    </message>
    <message>
        <source>T(℃)</source>
        <translation>T(℃)</translation>
    </message>
    <message>
        <source>Air temperature in degrees Celsius</source>
        <translation>기온(℃)</translation>
    </message>
    <message>
        <source>Enable Astronomical Refraction Correction</source>
        <translation>대기 굴절 보정 사용</translation>
    </message>
</context>
<context>
    <name>FavoriteDialog</name>
    <message>
        <source>Favorite</source>
        <translation>즐겨찾기</translation>
    </message>
    <message>
        <source>Play Music</source>
        <translation>음악 재생</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Quorvandel</source>
        <translation>Quorvandel</translation>
    </message>
    <message>
        <source>Region Selection</source>
        <translation>반구 선택</translation>
    </message>
    <message>
        <source>North</source>
        <translation>북반구</translation>
    </message>
    <message>
        <source>South</source>
        <translation>남반구</translation>
    </message>
    <message>
        <source>Quorvandel Setting</source>
        <translation>Quorvandel 설정</translation>
    </message>
    <message>
        <source>Exp(ms)</source>
        <translation>노출(ms)</translation>
    </message>
    <message>
        <source>Exposure in milliseconds</source>
        <translation>노출 시간(밀리초)</translation>
    </message>
    <message>
        <source>Gain</source>
        <translation>게인</translation>
    </message>
    <message>
        <source>Traffic</source>
        <translation>트래픽</translation>
    </message>
    <message>
        <source>USB traffic</source>
        <translation>USB 트래픽</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>속도</translation>
    </message>
    <message>
        <source>Confirm Polaris/σ Oct</source>
        <translation>북극성/σ Oct 확인</translation>
    </message>
    <message>
        <source>Matching Template</source>
        <translation>템플릿 맞추기</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>회전</translation>
    </message>
    <message>
        <source>Turn the template back by one degree</source>
        <translation>템플릿을 1도 뒤로 돌리기</translation>
    </message>
    <message>
        <source>-</source>
        <translation>-</translation>
    </message>
    <message>
        <source>Template angle in degrees</source>
        <translation>템플릿 각도(도)</translation>
    </message>
    <message>
        <source>Turn the template on by one degree</source>
        <translation>템플릿을 1도 앞으로 돌리기</translation>
    </message>
    <message>
        <source>+</source>
        <translation>+</translation>
    </message>
    <message>
        <source>Rough Pole</source>
        <translation>극축 대략 정렬</translation>
    </message>
    <message>
        <source>Axis Center</source>
        <translation>회전축 중심</translation>
    </message>
    <message>
        <source>Chose the same star every times</source>
        <translation>매번 같은 별을 선택하세요</translation>
    </message>
    <message>
        <source>Lamp of star position 1</source>
        <translation>별 위치 1 표시등</translation>
    </message>
    <message>
        <source>Star Pos 1</source>
        <translation>별 위치 1</translation>
    </message>
    <message>
        <source>Lamp of star position 2</source>
        <translation>별 위치 2 표시등</translation>
    </message>
    <message>
        <source>Star Pos 2</source>
        <translation>별 위치 2</translation>
    </message>
    <message>
        <source>Lamp of star position 3</source>
        <translation>별 위치 3 표시등</translation>
    </message>
    <message>
        <source>Star Pos 3</source>
        <translation>별 위치 3</translation>
    </message>
    <message>
        <source>Axis:</source>
        <translation>축:</translation>
    </message>
    <message>
        <source>(0,0)</source>
        <translation>(0,0)</translation>
    </message>
    <message>
        <source>Current Polaris/σ Oct</source>
        <translation>북극성/σ Oct 현재 위치</translation>
    </message>
    <message>
        <source>Expected Polaris/σ Oct</source>
        <translation>북극성/σ Oct 목표 위치</translation>
    </message>
    <message>
        <source>Precise Pole</source>
        <translation>극축 정밀 정렬</translation>
    </message>
    <message>
        <source>Pole:</source>
        <translation>극:</translation>
    </message>
    <message>
        <source>Mark of the pole</source>
        <translation>극 표시</translation>
    </message>
    <message>
        <source>Mark of the axis</source>
        <translation>축 표시</translation>
    </message>
    <message>
        <source>Enlarged picture of the pole star</source>
        <translation>극성 확대 영상</translation>
    </message>
    <message>
        <source>roiBigger_image</source>
        <translation>확대 영상</translation>
    </message>
    <message>
        <source>Monitor Pole</source>
        <translation>극 모니터링</translation>
    </message>
    <message>
        <source>Reference Star A</source>
        <translation>기준성 A</translation>
    </message>
    <message>
        <source>Position:</source>
        <translation>위치:</translation>
    </message>
    <message>
        <source>Reference Star B</source>
        <translation>기준성 B</translation>
    </message>
    <message>
        <source>Start Monitor</source>
        <translation>모니터링 시작</translation>
    </message>
    <message>
        <source>Live picture</source>
        <translation>실시간 영상</translation>
    </message>
    <message>
        <source>Star template</source>
        <translation>별 템플릿</translation>
    </message>
    <message>
        <source>template_image</source>
        <translation>템플릿 영상</translation>
    </message>
    <message>
        <source>File</source>
        <translation>파일</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>장치</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>도구</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>확대/축소</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>언어</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>도움말</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>다른 이름으로 저장...</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>종료</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>연결</translation>
    </message>
    <message>
        <source>Display Template</source>
        <translation>템플릿 표시</translation>
    </message>
    <message>
        <source>Mono Style</source>
        <translation>흑백 스타일</translation>
    </message>
    <message>
        <source>Stretch</source>
        <translation>스트레치</translation>
    </message>
    <message>
        <source>Astronomical Refraction</source>
        <translation>대기 굴절</translation>
    </message>
    <message>
        <source>Manual Trace</source>
        <translation>수동 추적</translation>
    </message>
    <message>
        <source>Unfreeze</source>
        <translation>동결 해제</translation>
    </message>
    <message>
        <source>Favorite</source>
        <translation>즐겨찾기</translation>
    </message>
    <message>
        <source>100%</source>
        <translation>100%</translation>
    </message>
    <message>
        <source>75%</source>
        <translation>75%</translation>
    </message>
    <message>
        <source>50%</source>
        <translation>50%</translation>
    </message>
    <message>
        <source>English</source>
        <translation>English</translation>
    </message>
    <message>
        <source>简体中文</source>
        <translation>简体中文</translation>
    </message>
    <message>
        <source>日本語</source>
        <translation>日本語</translation>
    </message>
    <message>
        <source>русский</source>
        <translation>русский</translation>
    </message>
    <message>
        <source>français</source>
        <translation>français</translation>
    </message>
    <message>
        <source>Deutsch</source>
        <translation>Deutsch</translation>
    </message>
    <message>
        <source>Español</source>
        <translation>Español</translation>
    </message>
    <message>
        <source>português</source>
        <translation>português</translation>
    </message>
    <message>
        <source>italiano</source>
        <translation>italiano</translation>
    </message>
    <message>
        <source>한국어</source>
        <translation>한국어</translation>
    </message>
    <message>
        <source>Quorvandel Manual</source>
        <translation>Quorvandel 설명서</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Quorvandel 정보</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>연결 해제</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>알림</translation>
    </message>
    <message>
        <source>Not Found VELDIX Quorvandel equipment!</source>
        <translation>VELDIX Quorvandel 장비를 찾을 수 없습니다!</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>오류</translation>
    </message>
    <message>
        <source>Can not connect Quorvandel as OpenVELDIX error!</source>
        <translation>OpenVELDIX 오류로 Quorvandel에 연결할 수 없습니다!</translation>
    </message>
    <message>
        <source>Can not connect Quorvandel as InitVELDIX error!</source>
        <translation>InitVELDIX 오류로 Quorvandel에 연결할 수 없습니다!</translation>
    </message>
    <message>
        <source>Warn</source>
        <translation>경고</translation>
    </message>
    <message>
        <source>Seems no star in this point, please try other point.</source>
        <translation>이 위치에는 별이 없는 것 같습니다. 다른 위치를 시도해 보세요.</translation>
    </message>
    <message>
        <source>Can not get the Axis center, please click &apos;reset&apos; to re-find it.</source>
        <translation>회전축 중심을 구할 수 없습니다. ‘초기화’를 눌러 다시 찾아 주세요.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>저장</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>질문</translation>
    </message>
    <message>
        <source>Would you like to use the &apos;Axis center position&apos; recorded last time you used Quorvandel ?</source>
        <translation>지난번 Quorvandel을 사용할 때 기록된 ‘회전축 중심 위치’를 사용하시겠습니까?</translation>
    </message>
    <message>
        <source>Set the parameters to the left to make more stars around Polaris visable.</source>
        <translation>북극성 주변의 별이 더 많이 보이도록 왼쪽의 값을 조정해 주세요.</translation>
    </message>
    <message>
        <source>Set the parameters to the left to make more stars around σ Oct visable.</source>
        <translation>σ Oct 주변의 별이 더 많이 보이도록 왼쪽의 값을 조정해 주세요.</translation>
    </message>
    <message>
        <source>Has setting up finished?</source>
        <translation>설정이 끝났습니까?</translation>
    </message>
    <message>
        <source>Setting Finished</source>
        <translation>설정 완료</translation>
    </message>
    <message>
        <source>Double Click Polaris and use the &apos;Rotate&apos; slider on the left to rotate the Template to match up to the stars around Polaris.</source>
        <translation>북극성을 더블클릭한 다음 왼쪽의 ‘회전’ 슬라이더로 템플릿을 돌려 북극성 주변의 별과 맞춰 주세요.</translation>
    </message>
    <message>
        <source>Double Click σ Oct and use the &apos;Rotate&apos; slider on the left to rotate the Template to match up to the stars around σ Oct.</source>
        <translation>σ Oct를 더블클릭한 다음 왼쪽의 ‘회전’ 슬라이더로 템플릿을 돌려 σ Oct 주변의 별과 맞춰 주세요.</translation>
    </message>
    <message>
        <source>Does match success?</source>
        <translation>템플릿이 잘 맞았습니까?</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>맞추기 완료</translation>
    </message>
    <message>
        <source>Choose a star other than Polaris and Double click it in the image. Remember this star, you will be selecting it again in the following steps (Step 1 of 3).</source>
        <translation>북극성을 제외한 별 하나를 골라 영상에서 더블클릭해 주세요. 이후 단계에서 다시 선택해야 하므로 이 별을 기억해 두세요(3단계 중 1단계).</translation>
    </message>
    <message>
        <source>Choose a star other than σ Oct and Double click it in the image. Remember this star, you will be selecting it again in the following steps (Step 1 of 3).</source>
        <translation>σ Oct를 제외한 별 하나를 골라 영상에서 더블클릭해 주세요. 이후 단계에서 다시 선택해야 하므로 이 별을 기억해 두세요(3단계 중 1단계).</translation>
    </message>
    <message>
        <source>Rotate your mounts &apos;RA&apos; axis in the direction indicated by the arrow now at the top of the screen (rotate a minimum of 30 degree&apos;s).</source>
        <translation>화면 위쪽의 화살표가 가리키는 방향으로 적도의의 적경축(RA)을 돌려 주세요(30도 이상).</translation>
    </message>
    <message>
        <source>Has rotation finished?</source>
        <translation>회전이 끝났습니까?</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>초기화</translation>
    </message>
    <message>
        <source>rotation Finished</source>
        <translation>회전 완료</translation>
    </message>
    <message>
        <source>Double click the same star again chosen in the previous step (Step 2 of 3).</source>
        <translation>이전 단계에서 선택한 별을 다시 더블클릭해 주세요(3단계 중 2단계).</translation>
    </message>
    <message>
        <source>Again, Rotate your mounts &apos;RA&apos; axis in the same direction at least 30 degrees.</source>
        <translation>적도의의 적경축(RA)을 같은 방향으로 다시 30도 이상 돌려 주세요.</translation>
    </message>
    <message>
        <source>Double click the same star one last time chosen in the previous 2 steps (Step 3 of 3).</source>
        <translation>앞의 두 단계에서 선택한 별을 마지막으로 한 번 더 더블클릭해 주세요(3단계 중 3단계).</translation>
    </message>
    <message>
        <source>Return the &apos;RA&apos; axis to the &apos;Home&apos; position - Ensure your chosen star stays on the circle while your mount rotates to the PARK position.</source>
        <translation>적경축(RA)을 ‘홈’ 위치로 되돌려 주세요. 적도의가 파크 위치까지 회전하는 동안 선택한 별이 원을 벗어나지 않는지 확인하세요.</translation>
    </message>
    <message>
        <source>Is the axis center correct?</source>
        <translation>회전축 중심이 맞습니까?</translation>
    </message>
    <message>
        <source>Correct</source>
        <translation>맞음</translation>
    </message>
    <message>
        <source>Expected position: Double Click Polaris and use the &apos;Rotate&apos; slider on the left to rotate the Template to match up to the stars around Polaris.</source>
        <translation>목표 위치: 북극성을 더블클릭한 다음 왼쪽의 ‘회전’ 슬라이더로 템플릿을 돌려 북극성 주변의 별과 맞춰 주세요.</translation>
    </message>
    <message>
        <source>Expected position: Double Click σ Oct and use the &apos;Rotate&apos; slider on the left to rotate the Template to match up to the stars around σ Oct.</source>
        <translation>목표 위치: σ Oct를 더블클릭한 다음 왼쪽의 ‘회전’ 슬라이더로 템플릿을 돌려 σ Oct 주변의 별과 맞춰 주세요.</translation>
    </message>
    <message>
        <source>Using your Altitude and Azimuth bolts, move Polaris into the center of the small Rotating circle now shown on the image.</source>
        <translation>고도·방위각 조절 나사를 사용하여 북극성을 영상에 표시된 회전하는 작은 원의 중심으로 옮겨 주세요.</translation>
    </message>
    <message>
        <source>Using your Altitude and Azimuth bolts, move σ Oct into the center of the small Rotating circle now shown on the image.</source>
        <translation>고도·방위각 조절 나사를 사용하여 σ Oct를 영상에 표시된 회전하는 작은 원의 중심으로 옮겨 주세요.</translation>
    </message>
    <message>
        <source>Has adjustment finished?</source>
        <translation>조정이 끝났습니까?</translation>
    </message>
    <message>
        <source>adjustment Finished</source>
        <translation>조정 완료</translation>
    </message>
    <message>
        <source>Current position: Double Click Polaris and use the &apos;Rotate&apos; slider on the left to rotate the Template to match up to the stars around Polaris.</source>
        <translation>현재 위치: 북극성을 더블클릭한 다음 왼쪽의 ‘회전’ 슬라이더로 템플릿을 돌려 북극성 주변의 별과 맞춰 주세요.</translation>
    </message>
    <message>
        <source>Current position: Double Click σ Oct and use the &apos;Rotate&apos; slider on the left to rotate the Template to match up to the stars around σ Oct.</source>
        <translation>현재 위치: σ Oct를 더블클릭한 다음 왼쪽의 ‘회전’ 슬라이더로 템플릿을 돌려 σ Oct 주변의 별과 맞춰 주세요.</translation>
    </message>
    <message>
        <source>Please click the &apos;Start Monitor&apos; button.</source>
        <translation>‘모니터링 시작’ 버튼을 눌러 주세요.</translation>
    </message>
    <message>
        <source>Use your Altitude and Azimuth bolts only to move the Pole rectangle on top of the Axis circle.</source>
        <translation>고도·방위각 조절 나사만 사용하여 극의 사각형을 축의 원에 겹쳐 주세요.</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>다시 시작</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>완료</translation>
    </message>
</context>
<context>
    <name>Notice</name>
    <message>
        <source>The camera library cannot be used: see the log.</source>
        <translation>카메라 라이브러리를 사용할 수 없습니다: 로그를 확인하세요.</translation>
    </message>
    <message>
        <source>No camera is connected.</source>
        <translation>연결된 카메라가 없습니다.</translation>
    </message>
    <message>
        <source>No picture for %1 s.</source>
        <translation>%1초 동안 영상이 없습니다.</translation>
    </message>
    <message>
        <source>The zoom in the settings file shows no picture.</source>
        <translation>설정 파일의 확대/축소 값으로는 영상이 보이지 않습니다.</translation>
    </message>
    <message>
        <source>No axis yet: pick one star at three RA angles first.</source>
        <translation>아직 회전축이 없습니다: 먼저 별 하나를 적경 각도 세 곳에서 선택하세요.</translation>
    </message>
    <message>
        <source>Monitoring without an alignment: press &apos;Restart&apos;.</source>
        <translation>극축 정렬 없이 모니터링 중입니다: ‘다시 시작’을 누르세요.</translation>
    </message>
    <message>
        <source>The pole star was not double clicked.</source>
        <translation>극성을 더블클릭하지 않았습니다.</translation>
    </message>
    <message>
        <source>The template was not placed on the pole star.</source>
        <translation>템플릿을 극성에 놓지 않았습니다.</translation>
    </message>
    <message>
        <source>Old place of the template: double click the pole star again.</source>
        <translation>템플릿이 이전 위치에 있습니다: 극성을 다시 더블클릭하세요.</translation>
    </message>
    <message>
        <source>No star here.</source>
        <translation>여기에는 별이 없습니다.</translation>
    </message>
    <message>
        <source>No star here (pick %1 of 3).</source>
        <translation>여기에는 별이 없습니다(선택 %1/3).</translation>
    </message>
    <message>
        <source>Stars A and B lost.</source>
        <translation>별 A와 별 B를 놓쳤습니다.</translation>
    </message>
    <message>
        <source>Star A lost.</source>
        <translation>별 A를 놓쳤습니다.</translation>
    </message>
    <message>
        <source>Star B lost.</source>
        <translation>별 B를 놓쳤습니다.</translation>
    </message>
    <message>
        <source>The template does not fit: %1 of %2 rings hold a star.</source>
        <translation>템플릿이 맞지 않습니다: 고리 %2개 중 별이 있는 것은 %1개입니다.</translation>
    </message>
    <message>
        <source>The star moved by only %1 px between the picks.</source>
        <translation>선택하는 동안 별이 %1 px만 움직였습니다.</translation>
    </message>
    <message>
        <source>The axis turned by only %1° between the picks.</source>
        <translation>선택하는 동안 축이 %1°만 돌았습니다.</translation>
    </message>
    <message>
        <source>The tracking dial still stands at %1°: reset it.</source>
        <translation>추적 다이얼이 아직 %1°에 있습니다: 초기화하세요.</translation>
    </message>
    <message>
        <source>The ring lies under the magnifier.</source>
        <translation>회전하는 원이 돋보기 아래에 있습니다.</translation>
    </message>
    <message>
        <source>Settings will not be kept: their file cannot be written.</source>
        <translation>설정이 저장되지 않습니다: 파일에 쓸 수 없습니다.</translation>
    </message>
    <message>
        <source>Settings will not be kept: Quorvandel.ini is not a file.</source>
        <translation>설정이 저장되지 않습니다: Quorvandel.ini가 파일이 아닙니다.</translation>
    </message>
    <message>
        <source>Settings will not be kept: the disk is full.</source>
        <translation>설정이 저장되지 않습니다: 디스크가 가득 찼습니다.</translation>
    </message>
    <message>
        <source>Settings will not be kept: their folder cannot be written.</source>
        <translation>설정이 저장되지 않습니다: 폴더에 쓸 수 없습니다.</translation>
    </message>
</context>
<context>
    <name>PoleTrackingDialog</name>
    <message>
        <source>Pole Tracking</source>
        <translation>극 추적</translation>
    </message>
    <message>
        <source>If the Pole was lost after used GOTO in the astrograph, then you can this to track.</source>
        <translation>망원경이 GOTO로 이동한 뒤 극을 놓쳤다면 여기서 추적할 수 있습니다.</translation>
    </message>
    <message>
        <source>Tracking:</source>
        <translation>추적:</translation>
    </message>
    <message>
        <source>Turn back by one degree</source>
        <translation>1도 뒤로 돌리기</translation>
    </message>
    <message>
        <source>-</source>
        <translation>-</translation>
    </message>
    <message>
        <source>Tracking angle in degrees</source>
        <translation>추적 각도(도)</translation>
    </message>
    <message>
        <source>Turn on by one degree</source>
        <translation>1도 앞으로 돌리기</translation>
    </message>
    <message>
        <source>+</source>
        <translation>+</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>초기화</translation>
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
    <name>QFileDialog</name>
    <message>
        <source>Look in:</source>
        <translation>찾는 위치:</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>폴더:</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>파일 이름(&amp;N):</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>파일 형식:</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>저장(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>열기(&amp;O)</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>뒤로</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>앞으로</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>상위 폴더</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>새 폴더 만들기</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>목록 보기</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>자세히 보기</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 파일이 이미 있습니다.
바꾸시겠습니까?</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>뒤로 가기</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>앞으로 가기</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>상위 폴더로 가기</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>새 폴더 만들기</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>목록 보기로 바꾸기</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>자세히 보기로 바꾸기</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>사이드바</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>위치와 책갈피 목록</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>파일</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>모든 파일 (*)</translation>
    </message>
    <message>
        <source>Show </source>
        <translation>표시: </translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>이름 바꾸기(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>삭제(&amp;D)</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>숨긴 파일 표시(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>새 폴더(&amp;N)</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>새 폴더</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>삭제</translation>
    </message>
    <message>
        <source>Are you sure you want to delete &apos;%1&apos;?</source>
        <translation>‘%1’을(를) 삭제할까요?</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is write protected.
Do you want to delete it anyway?</source>
        <translation>‘%1’은(는) 쓰기가 금지되어 있습니다.
그래도 삭제할까요?</translation>
    </message>
    <message>
        <source>Could not delete directory.</source>
        <translation>폴더를 삭제할 수 없습니다.</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>드라이브</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>%1 파일</translation>
    </message>
    <message>
        <source>File</source>
        <translation>파일</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>폴더</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>알 수 없음</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Name</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>크기</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>컴퓨터</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>수정한 날짜</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>종류</translation>
    </message>
    <message>
        <source>Invalid filename</source>
        <translation>잘못된 파일 이름</translation>
    </message>
    <message>
        <source>&lt;b&gt;The name &quot;%1&quot; cannot be used.&lt;/b&gt;&lt;p&gt;Try using another name, with fewer characters or no punctuation marks.</source>
        <translation>&lt;b&gt;‘%1’ 이름은 쓸 수 없습니다.&lt;/b&gt;&lt;p&gt;더 짧거나 문장 부호가 없는 이름을 쓰십시오.</translation>
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
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>예(&amp;Y)</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>아니요(&amp;N)</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>저장</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>열기</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>여기로 스크롤</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>왼쪽 끝</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>맨 위</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>오른쪽 끝</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>맨 아래</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>한 페이지 왼쪽으로</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>한 페이지 위로</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>한 페이지 오른쪽으로</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>한 페이지 아래로</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>왼쪽으로 스크롤</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>위로 스크롤</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>오른쪽으로 스크롤</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>아래로 스크롤</translation>
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
    <name>QSidebar</name>
    <message>
        <source>Remove</source>
        <translation>제거</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>링크 주소 복사(&amp;L)</translation>
    </message>
</context>
</TS>
