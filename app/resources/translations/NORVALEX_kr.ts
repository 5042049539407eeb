<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR" sourcelanguage="en_US">
<context>
    <name>Clean_View</name>
    <message>
        <source>Clean</source>
        <translation>정리</translation>
    </message>
</context>
<context>
    <name>ColorNames</name>
    <message>
        <source>red</source>
        <translation>빨간색</translation>
    </message>
    <message>
        <source>orange</source>
        <translation>주황색</translation>
    </message>
    <message>
        <source>yellow</source>
        <translation>노란색</translation>
    </message>
    <message>
        <source>green</source>
        <translation>초록색</translation>
    </message>
    <message>
        <source>cyan</source>
        <translation>청록색</translation>
    </message>
    <message>
        <source>blue</source>
        <translation>파란색</translation>
    </message>
    <message>
        <source>purple</source>
        <translation>보라색</translation>
    </message>
    <message>
        <source>magenta</source>
        <translation>자홍색</translation>
    </message>
    <message>
        <source>off</source>
        <translation>꺼짐</translation>
    </message>
    <message>
        <source>white</source>
        <translation>흰색</translation>
    </message>
    <message>
        <source>gray</source>
        <translation>회색</translation>
    </message>
    <message>
        <source>dark gray</source>
        <translation>진한 회색</translation>
    </message>
    <message>
        <source>dark %1</source>
        <translation>어두운 %1</translation>
    </message>
    <message>
        <source>pale %1</source>
        <translation>연한 %1</translation>
    </message>
</context>
<context>
    <name>Information_Slots_View</name>
    <message>
        <source>Type:</source>
        <translation>유형: </translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>용량: </translation>
    </message>
    <message>
        <source>Frequency:</source>
        <translation>주파수: </translation>
    </message>
    <message>
        <source>Temperature:</source>
        <translation>온도: </translation>
    </message>
</context>
<context>
    <name>Information_View</name>
    <message>
        <source>Channel:</source>
        <translation>채널: </translation>
    </message>
    <message>
        <source>CAS# Latency (CL):</source>
        <translation>CAS# 레이턴시 (CL): </translation>
    </message>
    <message>
        <source>RAS# to CAS# Delay (tRCD):</source>
        <translation>RAS#-CAS# 지연 (tRCD): </translation>
    </message>
    <message>
        <source>Frequency:</source>
        <translation>주파수: </translation>
    </message>
    <message>
        <source>Load</source>
        <translation>부하</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>낮음</translation>
    </message>
    <message>
        <source>High</source>
        <translation>높음</translation>
    </message>
</context>
<context>
    <name>Lighting_View</name>
    <message>
        <source>Flow</source>
        <translation>흐름</translation>
    </message>
    <message>
        <source>RGB Spectrum</source>
        <translation>RGB 스펙트럼</translation>
    </message>
    <message>
        <source>Ripple</source>
        <translation>파문</translation>
    </message>
    <message>
        <source>Blink</source>
        <translation>깜빡임</translation>
    </message>
    <message>
        <source>Pulse</source>
        <translation>펄스</translation>
    </message>
    <message>
        <source>Wave</source>
        <translation>물결</translation>
    </message>
    <message>
        <source>Static</source>
        <translation>고정</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>복사</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>영화</translation>
    </message>
    <message>
        <source>Gaming</source>
        <translation>게임</translation>
    </message>
    <message>
        <source>Party</source>
        <translation>파티</translation>
    </message>
    <message>
        <source>Mobile_Movie</source>
        <translation>모바일 영화</translation>
    </message>
    <message>
        <source>Mobile_Gaming</source>
        <translation>모바일 게임</translation>
    </message>
    <message>
        <source>Mobile_Party</source>
        <translation>모바일 파티</translation>
    </message>
    <message>
        <source>Temp.</source>
        <translation>온도</translation>
    </message>
    <message>
        <source>Cross</source>
        <translation>크로스</translation>
    </message>
    <message>
        <source>Hello</source>
        <translation>헬로</translation>
    </message>
    <message>
        <source>Shooting Star</source>
        <translation>별똥별</translation>
    </message>
    <message>
        <source>Black Hole</source>
        <translation>블랙홀</translation>
    </message>
    <message>
        <source>Aurora</source>
        <translation>오로라</translation>
    </message>
    <message>
        <source>RGB Sync</source>
        <translation>RGB 동기화</translation>
    </message>
    <message>
        <source>Twinkle</source>
        <translation>반짝임</translation>
    </message>
    <message>
        <source>Script</source>
        <translation>스크립트</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>날씨</translation>
    </message>
    <message>
        <source>Raindrop</source>
        <translation>빗방울</translation>
    </message>
    <message>
        <source>Heartbeat</source>
        <translation>심장 박동</translation>
    </message>
    <message>
        <source>Stack</source>
        <translation>쌓기</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>스캔</translation>
    </message>
    <message>
        <source>Swirl</source>
        <translation>소용돌이</translation>
    </message>
    <message>
        <source>Screen Gaming</source>
        <translation>화면 게임</translation>
    </message>
    <message>
        <source>Screen Movie</source>
        <translation>화면 영화</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>시계</translation>
    </message>
    <message>
        <source>Rain</source>
        <translation>비</translation>
    </message>
    <message>
        <source>Fireworks</source>
        <translation>불꽃놀이</translation>
    </message>
    <message>
        <source>Explosion</source>
        <translation>폭발</translation>
    </message>
    <message>
        <source>MB Sync</source>
        <translation>메인보드 동기화</translation>
    </message>
    <message>
        <source>Radiation</source>
        <translation>방사</translation>
    </message>
    <message>
        <source>Aim</source>
        <translation>조준</translation>
    </message>
    <message>
        <source>RGB</source>
        <translation>RGB</translation>
    </message>
    <message>
        <source>Single</source>
        <translation>단색</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>끄기</translation>
    </message>
    <message>
        <source>Random</source>
        <translation>무작위</translation>
    </message>
    <message>
        <source>Extreme</source>
        <translation>최고속</translation>
    </message>
    <message>
        <source>Fast</source>
        <translation>빠름</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>보통</translation>
    </message>
    <message>
        <source>Slow</source>
        <translation>느림</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>프로필</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>적용</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>기본값</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>편집</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>미리 보기</translation>
    </message>
    <message>
        <source>Color Mode</source>
        <translation>색상 모드</translation>
    </message>
    <message>
        <source>Light Speed</source>
        <translation>효과 속도</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>켜기</translation>
    </message>
    <message>
        <source>Light Switch</source>
        <translation>조명</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>밝기</translation>
    </message>
    <message>
        <source>MB_Sync_Warning_Content</source>
        <translation>이 모듈은 메인보드 조명 소프트웨어를 따릅니다. 조명은 해당 소프트웨어에서 설정하세요.</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>빨강</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>초록</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>파랑</translation>
    </message>
    <message>
        <source>Color wheel</source>
        <translation>색상환</translation>
    </message>
    <message>
        <source>Light Mode</source>
        <translation>조명 모드</translation>
    </message>
    <message>
        <source>LED row %1</source>
        <translation>LED 줄 %1</translation>
    </message>
</context>
<context>
    <name>Loading_View</name>
    <message>
        <source>Can not Find QX NORVALEX</source>
        <translation>NORVALEX 메모리 모듈을 찾을 수 없습니다</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
</context>
<context>
    <name>Main_View</name>
    <message>
        <source>Information</source>
        <translation>정보</translation>
    </message>
    <message>
        <source>Lighting</source>
        <translation>조명</translation>
    </message>
    <message>
        <source>Notification</source>
        <translation>알림</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>설정</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>최소화</translation>
    </message>
</context>
<context>
    <name>Memory_RGB_View</name>
    <message>
        <source>Slot %1, LED %2, %3</source>
        <translation>슬롯 %1, LED %2, %3</translation>
    </message>
    <message>
        <source>Slot %1</source>
        <translation>슬롯 %1</translation>
    </message>
</context>
<context>
    <name>Noti_View</name>
    <message>
        <source>Setting Notification</source>
        <translation>알림 설정</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>부하</translation>
    </message>
    <message>
        <source>Trigger all LED </source>
        <translation>모든 LED를 이 색으로</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>메모리</translation>
    </message>
    <message>
        <source>CPU</source>
        <translation>CPU</translation>
    </message>
    <message>
        <source>Shutdown PC</source>
        <translation>손상을 막기 위해 PC 종료를 안내</translation>
    </message>
    <message>
        <source>Set all fans to 100%</source>
        <translation>모든 팬을 최대 속도로 설정</translation>
    </message>
    <message>
        <source>threshold</source>
        <translation>임계값</translation>
    </message>
    <message>
        <source>unit</source>
        <translation>단위</translation>
    </message>
    <message>
        <source>color</source>
        <translation>색상</translation>
    </message>
</context>
<context>
    <name>Setting_View</name>
    <message>
        <source>en</source>
        <translation>English</translation>
    </message>
    <message>
        <source>tc</source>
        <translation>正體中文</translation>
    </message>
    <message>
        <source>sc</source>
        <translation>簡體中文</translation>
    </message>
    <message>
        <source>de</source>
        <translation>Deutsch</translation>
    </message>
    <message>
        <source>fr</source>
        <translation>Français</translation>
    </message>
    <message>
        <source>jp</source>
        <translation>日本語</translation>
    </message>
    <message>
        <source>th</source>
        <translation>ไทย</translation>
    </message>
    <message>
        <source>ru</source>
        <translation>Русский</translation>
    </message>
    <message>
        <source>kr</source>
        <translation>한국어</translation>
    </message>
    <message>
        <source>es</source>
        <translation>Spanish</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>언어</translation>
    </message>
    <message>
        <source>Auto Update</source>
        <translation>자동 업데이트</translation>
    </message>
    <message>
        <source>Run NORVALEX RGB Program when Windows starts.</source>
        <translation>시스템 시작 후 최소화</translation>
    </message>
    <message>
        <source>Current_Location</source>
        <translation>위치 서비스를 켜서 지역 날씨 정보 받기</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>버전</translation>
    </message>
</context>
<context>
    <name>Widget_Language</name>
    <message>
        <source>en</source>
        <translation>English</translation>
    </message>
    <message>
        <source>tc</source>
        <translation>正體中文</translation>
    </message>
    <message>
        <source>sc</source>
        <translation>簡體中文</translation>
    </message>
    <message>
        <source>de</source>
        <translation>Deutsch</translation>
    </message>
    <message>
        <source>fr</source>
        <translation>Français</translation>
    </message>
    <message>
        <source>jp</source>
        <translation>日本語</translation>
    </message>
    <message>
        <source>th</source>
        <translation>ไทย</translation>
    </message>
    <message>
        <source>ru</source>
        <translation>Русский</translation>
    </message>
    <message>
        <source>kr</source>
        <translation>한국어</translation>
    </message>
    <message>
        <source>es</source>
        <translation>Spanish</translation>
    </message>
</context>
<context>
    <name>Widget_LocationPolicy</name>
    <message>
        <source>NORVALEX Privacy Policy</source>
        <translation>개인정보 처리방침</translation>
    </message>
    <message>
        <source>Location_Warning_Title</source>
        <translation>개인정보 처리방침</translation>
    </message>
    <message>
        <source>Location_Warning_Content</source>
        <translation>Prismveil - NORVALEX에서 시간과 날씨 정보를 가져오기 위해 현재 위치를 사용하려고 합니다.</translation>
    </message>
    <message>
        <source>Location_Not_Remind</source>
        <translation>허용</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
</context>
<context>
    <name>Widget_Preview</name>
    <message>
        <source>Slot %1</source>
        <translation>슬롯 %1</translation>
    </message>
    <message>
        <source>%1: empty</source>
        <translation>%1: 비어 있음</translation>
    </message>
</context>
</TS>
