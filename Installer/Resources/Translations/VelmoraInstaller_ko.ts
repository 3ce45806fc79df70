<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="en">
<!-- SPDX-FileCopyrightText: 2026 The Velmora Installer authors -->
<!-- SPDX-License-Identifier: Apache-2.0 -->
<context>
    <name>InstallerWindow</name>
    <message>
        <source>%1$@ requires version %2$@ of the system, or a newer one. Look for an older version of %1$@ in our software archive.</source>
        <translation>%1$@ 프로그램을 사용하려면 시스템 버전 %2$@ 이상이 필요합니다. 소프트웨어 보관소에서 %1$@ 프로그램의 이전 버전을 찾아보십시오.</translation>
    </message>
    <message>
        <source>There is too little space: %1$@ are needed, and %2$@ are free. Empty the Trash, or delete what you no longer need.</source>
        <translation>공간이 부족합니다. %1$@의 공간이 필요하지만 여유 공간은 %2$@입니다. 휴지통을 비우거나 더 이상 필요 없는 항목을 삭제하십시오.</translation>
    </message>
    <message>
        <source>%@ of space are needed.</source>
        <translation>%@의 공간이 필요합니다.</translation>
    </message>
    <message>
        <source>%1$@ of space are needed; %2$@ are free.</source>
        <translation>%1$@의 공간이 필요하며, 여유 공간은 %2$@입니다.</translation>
    </message>
    <message>
        <source>%1$@ is in use by %2$@ and cannot be quit from here. Ask %2$@ to quit it first.</source>
        <translation>%1$@ 프로그램을 %2$@ 사용자가 사용하고 있어 여기에서 종료할 수 없습니다. 먼저 %2$@ 사용자에게 종료해 달라고 요청하십시오.</translation>
    </message>
    <message>
        <source>%@ is running and will be quit.</source>
        <translation>%@ 프로그램이 실행 중이며, 설치할 때 종료됩니다.</translation>
    </message>
    <message>
        <source>The copy that is there now is moved to the Trash.</source>
        <translation>현재 있는 사본은 휴지통으로 옮겨집니다.</translation>
    </message>
    <message>
        <source>Version %@, which is there now, is moved to the Trash.</source>
        <translation>현재 있는 %@ 버전은 휴지통으로 옮겨집니다.</translation>
    </message>
    <message>
        <source>The older version %@, which is there now, is moved to the Trash.</source>
        <translation>현재 있는 더 오래된 %@ 버전은 휴지통으로 옮겨집니다.</translation>
    </message>
    <message>
        <source>The same version, %@, is there now and is moved to the Trash.</source>
        <translation>같은 버전(%@)이 이미 있으며, 휴지통으로 옮겨집니다.</translation>
    </message>
    <message>
        <source>A newer version, %@, is there now. Install only if you want the older one back.</source>
        <translation>더 새로운 버전(%@)이 이미 있습니다. 이전 버전으로 되돌리려는 경우에만 설치하십시오.</translation>
    </message>
    <message>
        <source>You will be asked for an administrator&apos;s password.</source>
        <translation>관리자 암호를 입력해야 합니다.</translation>
    </message>
    <message>
        <source>Product: %@</source>
        <translation>제품: %@</translation>
    </message>
    <message>
        <source>From: %@</source>
        <translation>원본: %@</translation>
    </message>
    <message>
        <source>To: %@</source>
        <translation>대상: %@</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>문제</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>알림</translation>
    </message>
    <message>
        <source>missing source path</source>
        <translation>제품 경로가 없습니다</translation>
    </message>
    <message>
        <source>missing program name</source>
        <translation>프로그램 이름이 없습니다</translation>
    </message>
    <message>
        <source>missing product signature</source>
        <translation>제품 시그니처가 없습니다</translation>
    </message>
    <message>
        <source>The installation was stopped.</source>
        <translation>설치가 중지되었습니다.</translation>
    </message>
    <message>
        <source>Authorized copying failed.</source>
        <translation>관리자 권한으로 복사하지 못했습니다.</translation>
    </message>
    <message>
        <source>Could not delete existing copy.</source>
        <translation>기존 사본을 삭제하지 못했습니다.</translation>
    </message>
    <message>
        <source>Installation failed.</source>
        <translation>설치하지 못했습니다.</translation>
    </message>
    <message>
        <source>%@ is being installed.</source>
        <translation>%@ 프로그램을 설치하는 중입니다.</translation>
    </message>
    <message>
        <source>The earlier copy of %1$@ is in the Trash.</source>
        <translation>%1$@ 프로그램의 이전 사본은 휴지통에 있습니다.</translation>
    </message>
    <message>
        <source>Try installing %1$@ manually by copying it to the Applications folder.</source>
        <translation>%1$@ 프로그램을 응용 프로그램 폴더에 복사하여 직접 설치해 보십시오.</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>설치</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>계속</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>뒤로</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Returns to the read-me.</source>
        <translation>읽어보기 파일로 돌아갑니다.</translation>
    </message>
    <message>
        <source>Quits without installing.</source>
        <translation>설치하지 않고 끝냅니다.</translation>
    </message>
    <message>
        <source>%@ was successfully installed.</source>
        <translation>%@ 프로그램을 설치했습니다.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>%1$@ cannot be running during the installation.<byte value="xd"/>Quit %1$@, then click &quot;Install&quot; again.</source>
        <translation>%1$@ 프로그램이 실행 중일 때는 설치할 수 없습니다.<byte value="xd"/>%1$@ 프로그램을 종료한 다음 “설치” 단추를 다시 클릭하십시오.</translation>
    </message>
    <message>
        <source>If you wish to read the documentation first, click the &quot;?&quot; button.</source>
        <translation>먼저 문서를 읽으려면 “?” 단추를 클릭하십시오.</translation>
    </message>
    <message>
        <source>The read-me could not be shown. You can open it yourself; it is here:
%@</source>
        <translation>읽어보기 파일을 표시하지 못했습니다. 다음 위치에서 직접 열 수 있습니다.
%@</translation>
    </message>
    <message>
        <source>%1$@ %2$@ cannot be installed on this computer because it requires Mac OS X %3$@ or newer.</source>
        <translation>%1$@ %2$@ 버전은 Mac OS X %3$@ 이상이 필요하므로 이 컴퓨터에 설치할 수 없습니다.</translation>
    </message>
    <message>
        <source>To check if an older version of %@ is available for your computer, please visit our software archive.</source>
        <translation>이 컴퓨터에서 사용할 수 있는 %@ 프로그램의 이전 버전이 있는지 알아보려면 소프트웨어 보관소를 방문하십시오.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>끝내기</translation>
    </message>
    <message>
        <source>Visit Archive</source>
        <translation>보관소 방문</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>로그</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>복사</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>Copies all lines.</source>
        <translation>모든 줄을 복사합니다.</translation>
    </message>
    <message>
        <source>Copying %1$@: %2$d %%</source>
        <translation>%1$@ 복사 중: %2$d%%</translation>
    </message>
    <message>
        <source>The value of %1$@ must be one of %2$@, not &quot;%3$@&quot;.</source>
        <translation>%1$@ 옵션의 값 “%3$@”은(는) 올바르지 않습니다. 사용할 수 있는 값: %2$@.</translation>
    </message>
    <message>
        <source>There is too little space for %@.</source>
        <translation>%@ 프로그램을 설치할 공간이 부족합니다.</translation>
    </message>
    <message>
        <source>%@ can be installed.</source>
        <translation>%@ 프로그램을 설치할 수 있습니다.</translation>
    </message>
    <message>
        <source>There is no product at %@.</source>
        <translation>%@ 위치에 제품이 없습니다.</translation>
    </message>
    <message>
        <source>Only an administrator may install %1$@ in %2$@. Run the installer with sudo, or choose another place with -destinationPath.</source>
        <translation>%1$@ 프로그램은 관리자만 %2$@ 위치에 설치할 수 있습니다. 설치 프로그램을 sudo로 실행하거나 -destinationPath 옵션으로 다른 위치를 선택하십시오.</translation>
    </message>
    <message>
        <source>%1$@ cannot be running during the installation. Quit %1$@, then start the installation again.</source>
        <translation>%1$@ 프로그램이 실행 중일 때는 설치할 수 없습니다. %1$@ 프로그램을 종료한 다음 설치를 다시 시작하십시오.</translation>
    </message>
    <message>
        <source>Install %@</source>
        <translation>%@ 설치</translation>
    </message>
    <message>
        <source>Product icon</source>
        <translation>제품 아이콘</translation>
    </message>
    <message>
        <source>Read Me</source>
        <translation>읽어보기</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>성공</translation>
    </message>
    <message>
        <source>This installs %@ on your computer, at this place:</source>
        <translation>%@ 프로그램을 이 컴퓨터의 다음 위치에 설치합니다.</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>대상 위치</translation>
    </message>
    <message>
        <source>Click &quot;Install&quot; to begin. If an earlier copy of %@ is there already, it is moved to the Trash.</source>
        <translation>시작하려면 “설치” 단추를 클릭하십시오. %@ 프로그램의 이전 사본이 이미 있으면 휴지통으로 옮겨집니다.</translation>
    </message>
    <message>
        <source>What will happen</source>
        <translation>진행될 작업</translation>
    </message>
    <message>
        <source>Installing</source>
        <translation>설치</translation>
    </message>
    <message>
        <source>Copying</source>
        <translation>복사</translation>
    </message>
    <message>
        <source>Stops the copying.</source>
        <translation>복사를 중지합니다.</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>중지</translation>
    </message>
    <message>
        <source>Open the documentation</source>
        <translation>문서 열기</translation>
    </message>
    <message>
        <source>Shows what was noted during the installation.</source>
        <translation>설치하는 동안 기록된 내용을 표시합니다.</translation>
    </message>
    <message>
        <source>Show Log</source>
        <translation>로그 보기</translation>
    </message>
</context>
</TS>
