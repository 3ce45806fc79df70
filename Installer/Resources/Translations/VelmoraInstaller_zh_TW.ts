<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en">
<!-- SPDX-FileCopyrightText: 2026 The Velmora Installer authors -->
<!-- SPDX-License-Identifier: Apache-2.0 -->
<context>
    <name>InstallerWindow</name>
    <message>
        <source>%1$@ requires version %2$@ of the system, or a newer one. Look for an older version of %1$@ in our software archive.</source>
        <translation>%1$@ 需要 %2$@ 或更新版本的系統。請在我們的軟體封存庫中尋找 %1$@ 的舊版本。</translation>
    </message>
    <message>
        <source>There is too little space: %1$@ are needed, and %2$@ are free. Empty the Trash, or delete what you no longer need.</source>
        <translation>空間不足：需要 %1$@，可用 %2$@。請清空垃圾桶，或刪除不再需要的檔案。</translation>
    </message>
    <message>
        <source>%@ of space are needed.</source>
        <translation>需要 %@ 的空間。</translation>
    </message>
    <message>
        <source>%1$@ of space are needed; %2$@ are free.</source>
        <translation>需要 %1$@ 的空間；可用空間為 %2$@。</translation>
    </message>
    <message>
        <source>%1$@ is in use by %2$@ and cannot be quit from here. Ask %2$@ to quit it first.</source>
        <translation>使用者 %2$@ 正在使用 %1$@，無法從這裡結束。請先請使用者 %2$@ 結束該程式。</translation>
    </message>
    <message>
        <source>%@ is running and will be quit.</source>
        <translation>%@ 正在執行，安裝時會將其結束。</translation>
    </message>
    <message>
        <source>The copy that is there now is moved to the Trash.</source>
        <translation>現有的副本將移至垃圾桶。</translation>
    </message>
    <message>
        <source>Version %@, which is there now, is moved to the Trash.</source>
        <translation>現有的版本 %@ 將移至垃圾桶。</translation>
    </message>
    <message>
        <source>The older version %@, which is there now, is moved to the Trash.</source>
        <translation>現有的舊版本 %@ 將移至垃圾桶。</translation>
    </message>
    <message>
        <source>The same version, %@, is there now and is moved to the Trash.</source>
        <translation>相同的版本 %@ 已存在，將移至垃圾桶。</translation>
    </message>
    <message>
        <source>A newer version, %@, is there now. Install only if you want the older one back.</source>
        <translation>已有較新的版本 %@。只有在您想換回舊版本時才安裝。</translation>
    </message>
    <message>
        <source>You will be asked for an administrator&apos;s password.</source>
        <translation>將會要求您輸入管理員密碼。</translation>
    </message>
    <message>
        <source>Product: %@</source>
        <translation>產品：%@</translation>
    </message>
    <message>
        <source>From: %@</source>
        <translation>來源：%@</translation>
    </message>
    <message>
        <source>To: %@</source>
        <translation>目的地：%@</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>問題</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>missing source path</source>
        <translation>缺少產品路徑</translation>
    </message>
    <message>
        <source>missing program name</source>
        <translation>缺少程式名稱</translation>
    </message>
    <message>
        <source>missing product signature</source>
        <translation>缺少產品簽章</translation>
    </message>
    <message>
        <source>The installation was stopped.</source>
        <translation>安裝已停止。</translation>
    </message>
    <message>
        <source>Authorized copying failed.</source>
        <translation>以管理員權限複製失敗。</translation>
    </message>
    <message>
        <source>Could not delete existing copy.</source>
        <translation>無法刪除現有的副本。</translation>
    </message>
    <message>
        <source>Installation failed.</source>
        <translation>安裝失敗。</translation>
    </message>
    <message>
        <source>%@ is being installed.</source>
        <translation>正在安裝 %@。</translation>
    </message>
    <message>
        <source>The earlier copy of %1$@ is in the Trash.</source>
        <translation>%1$@ 先前的副本在垃圾桶中。</translation>
    </message>
    <message>
        <source>Try installing %1$@ manually by copying it to the Applications folder.</source>
        <translation>請嘗試將 %1$@ 複製到「應用程式」資料夾來手動安裝。</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>安裝</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>繼續</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Returns to the read-me.</source>
        <translation>返回讀我檔案。</translation>
    </message>
    <message>
        <source>Quits without installing.</source>
        <translation>不安裝，直接結束。</translation>
    </message>
    <message>
        <source>%@ was successfully installed.</source>
        <translation>已成功安裝 %@。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>確定</translation>
    </message>
    <message>
        <source>%1$@ cannot be running during the installation.<byte value="xd"/>Quit %1$@, then click &quot;Install&quot; again.</source>
        <translation>%1$@ 執行時無法進行安裝。<byte value="xd"/>請結束 %1$@，然後再按一次「安裝」。</translation>
    </message>
    <message>
        <source>If you wish to read the documentation first, click the &quot;?&quot; button.</source>
        <translation>如果您想先閱讀文件，請按「?」按鈕。</translation>
    </message>
    <message>
        <source>The read-me could not be shown. You can open it yourself; it is here:
%@</source>
        <translation>無法顯示讀我檔案。您可以自行開啟，它位於：
%@</translation>
    </message>
    <message>
        <source>%1$@ %2$@ cannot be installed on this computer because it requires Mac OS X %3$@ or newer.</source>
        <translation>無法在這部電腦上安裝 %1$@ %2$@，因為它需要 Mac OS X %3$@ 或更新版本。</translation>
    </message>
    <message>
        <source>To check if an older version of %@ is available for your computer, please visit our software archive.</source>
        <translation>若要查看是否有適用於您電腦的 %@ 舊版本，請造訪我們的軟體封存庫。</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>結束</translation>
    </message>
    <message>
        <source>Visit Archive</source>
        <translation>造訪封存庫</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>記錄檔</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>複製</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>Copies all lines.</source>
        <translation>複製所有行。</translation>
    </message>
    <message>
        <source>Copying %1$@: %2$d %%</source>
        <translation>正在複製 %1$@：%2$d%%</translation>
    </message>
    <message>
        <source>The value of %1$@ must be one of %2$@, not &quot;%3$@&quot;.</source>
        <translation>%1$@ 的值「%3$@」無效。可用的值：%2$@。</translation>
    </message>
    <message>
        <source>There is too little space for %@.</source>
        <translation>空間不足，無法安裝 %@。</translation>
    </message>
    <message>
        <source>%@ can be installed.</source>
        <translation>可以安裝 %@。</translation>
    </message>
    <message>
        <source>There is no product at %@.</source>
        <translation>在 %@ 找不到產品。</translation>
    </message>
    <message>
        <source>Only an administrator may install %1$@ in %2$@. Run the installer with sudo, or choose another place with -destinationPath.</source>
        <translation>只有管理員才能將 %1$@ 安裝到 %2$@。請使用 sudo 執行安裝程式，或用 -destinationPath 選擇其他位置。</translation>
    </message>
    <message>
        <source>%1$@ cannot be running during the installation. Quit %1$@, then start the installation again.</source>
        <translation>%1$@ 執行時無法進行安裝。請結束 %1$@，然後重新開始安裝。</translation>
    </message>
    <message>
        <source>Install %@</source>
        <translation>安裝 %@</translation>
    </message>
    <message>
        <source>Product icon</source>
        <translation>產品圖示</translation>
    </message>
    <message>
        <source>Read Me</source>
        <translation>讀我檔案</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>成功</translation>
    </message>
    <message>
        <source>This installs %@ on your computer, at this place:</source>
        <translation>%@ 將安裝到您電腦的以下位置：</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>目的地</translation>
    </message>
    <message>
        <source>Click &quot;Install&quot; to begin. If an earlier copy of %@ is there already, it is moved to the Trash.</source>
        <translation>按「安裝」開始。如果已有 %@ 先前的副本，會將其移至垃圾桶。</translation>
    </message>
    <message>
        <source>What will happen</source>
        <translation>即將執行的動作</translation>
    </message>
    <message>
        <source>Installing</source>
        <translation>安裝</translation>
    </message>
    <message>
        <source>Copying</source>
        <translation>複製</translation>
    </message>
    <message>
        <source>Stops the copying.</source>
        <translation>停止複製。</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Open the documentation</source>
        <translation>開啟文件</translation>
    </message>
    <message>
        <source>Shows what was noted during the installation.</source>
        <translation>顯示安裝期間記錄的內容。</translation>
    </message>
    <message>
        <source>Show Log</source>
        <translation>顯示記錄檔</translation>
    </message>
</context>
</TS>
