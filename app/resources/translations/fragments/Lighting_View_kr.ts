<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR" sourcelanguage="en_US">
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
        <translation>물결</translation>
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
        <translation>웨이브</translation>
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
        <translation>조명 속도</translation>
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
</context>
</TS>
