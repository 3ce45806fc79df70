<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<!-- SPDX-FileCopyrightText: 2026 The Velmora Installer authors -->
<!-- SPDX-License-Identifier: Apache-2.0 -->
<context>
    <name>InstallerWindow</name>
    <message>
        <source>%1$@ requires version %2$@ of the system, or a newer one. Look for an older version of %1$@ in our software archive.</source>
        <translation>%1$@ 需要 %2$@ 或更高版本的系统。请在我们的软件存档中查找 %1$@ 的旧版本。</translation>
    </message>
    <message>
        <source>There is too little space: %1$@ are needed, and %2$@ are free. Empty the Trash, or delete what you no longer need.</source>
        <translation>空间不足：需要 %1$@，可用 %2$@。请清空回收站，或删除不再需要的文件。</translation>
    </message>
    <message>
        <source>%@ of space are needed.</source>
        <translation>需要 %@ 的空间。</translation>
    </message>
    <message>
        <source>%1$@ of space are needed; %2$@ are free.</source>
        <translation>需要 %1$@ 的空间；可用空间为 %2$@。</translation>
    </message>
    <message>
        <source>%1$@ is in use by %2$@ and cannot be quit from here. Ask %2$@ to quit it first.</source>
        <translation>%1$@ 正由用户 %2$@ 使用，无法从这里退出。请先让用户 %2$@ 退出该程序。</translation>
    </message>
    <message>
        <source>%@ is running and will be quit.</source>
        <translation>%@ 正在运行，安装时会将其退出。</translation>
    </message>
    <message>
        <source>The copy that is there now is moved to the Trash.</source>
        <translation>现有的副本将移到回收站。</translation>
    </message>
    <message>
        <source>Version %@, which is there now, is moved to the Trash.</source>
        <translation>现有的版本 %@ 将移到回收站。</translation>
    </message>
    <message>
        <source>The older version %@, which is there now, is moved to the Trash.</source>
        <translation>现有的旧版本 %@ 将移到回收站。</translation>
    </message>
    <message>
        <source>The same version, %@, is there now and is moved to the Trash.</source>
        <translation>相同的版本 %@ 已存在，将移到回收站。</translation>
    </message>
    <message>
        <source>A newer version, %@, is there now. Install only if you want the older one back.</source>
        <translation>已有更新的版本 %@。仅在您想换回旧版本时才安装。</translation>
    </message>
    <message>
        <source>You will be asked for an administrator&apos;s password.</source>
        <translation>将要求您输入管理员密码。</translation>
    </message>
    <message>
        <source>Product: %@</source>
        <translation>产品：%@</translation>
    </message>
    <message>
        <source>From: %@</source>
        <translation>来源：%@</translation>
    </message>
    <message>
        <source>To: %@</source>
        <translation>目标位置：%@</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>问题</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>missing source path</source>
        <translation>缺少产品路径</translation>
    </message>
    <message>
        <source>missing program name</source>
        <translation>缺少程序名称</translation>
    </message>
    <message>
        <source>missing product signature</source>
        <translation>缺少产品签名</translation>
    </message>
    <message>
        <source>The installation was stopped.</source>
        <translation>安装已停止。</translation>
    </message>
    <message>
        <source>Authorized copying failed.</source>
        <translation>以管理员权限复制失败。</translation>
    </message>
    <message>
        <source>Could not delete existing copy.</source>
        <translation>无法删除现有的副本。</translation>
    </message>
    <message>
        <source>Installation failed.</source>
        <translation>安装失败。</translation>
    </message>
    <message>
        <source>%@ is being installed.</source>
        <translation>正在安装 %@。</translation>
    </message>
    <message>
        <source>The earlier copy of %1$@ is in the Trash.</source>
        <translation>%1$@ 之前的副本在回收站中。</translation>
    </message>
    <message>
        <source>Try installing %1$@ manually by copying it to the Applications folder.</source>
        <translation>请尝试将 %1$@ 复制到“应用程序”文件夹来手动安装。</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>安装</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>继续</translation>
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
        <translation>返回自述文件。</translation>
    </message>
    <message>
        <source>Quits without installing.</source>
        <translation>不安装，直接退出。</translation>
    </message>
    <message>
        <source>%@ was successfully installed.</source>
        <translation>%@ 已成功安装。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>%1$@ cannot be running during the installation.<byte value="xd"/>Quit %1$@, then click &quot;Install&quot; again.</source>
        <translation>%1$@ 运行时无法进行安装。<byte value="xd"/>请退出 %1$@，然后再次点击“安装”。</translation>
    </message>
    <message>
        <source>If you wish to read the documentation first, click the &quot;?&quot; button.</source>
        <translation>如果您想先阅读文档，请点击“?”按钮。</translation>
    </message>
    <message>
        <source>The read-me could not be shown. You can open it yourself; it is here:
%@</source>
        <translation>无法显示自述文件。您可以自行打开，它位于：
%@</translation>
    </message>
    <message>
        <source>%1$@ %2$@ cannot be installed on this computer because it requires Mac OS X %3$@ or newer.</source>
        <translation>无法在这台计算机上安装 %1$@ %2$@，因为它需要 Mac OS X %3$@ 或更高版本。</translation>
    </message>
    <message>
        <source>To check if an older version of %@ is available for your computer, please visit our software archive.</source>
        <translation>要查看是否有适用于您计算机的 %@ 旧版本，请访问我们的软件存档。</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>Visit Archive</source>
        <translation>访问存档</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>日志</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Copies all lines.</source>
        <translation>复制所有行。</translation>
    </message>
    <message>
        <source>Copying %1$@: %2$d %%</source>
        <translation>正在复制 %1$@：%2$d%%</translation>
    </message>
    <message>
        <source>The value of %1$@ must be one of %2$@, not &quot;%3$@&quot;.</source>
        <translation>%1$@ 的值“%3$@”无效。可用的值：%2$@。</translation>
    </message>
    <message>
        <source>There is too little space for %@.</source>
        <translation>空间不足，无法安装 %@。</translation>
    </message>
    <message>
        <source>%@ can be installed.</source>
        <translation>可以安装 %@。</translation>
    </message>
    <message>
        <source>There is no product at %@.</source>
        <translation>%@ 处没有产品。</translation>
    </message>
    <message>
        <source>Only an administrator may install %1$@ in %2$@. Run the installer with sudo, or choose another place with -destinationPath.</source>
        <translation>只有管理员才能将 %1$@ 安装到 %2$@。请使用 sudo 运行安装程序，或用 -destinationPath 选择其他位置。</translation>
    </message>
    <message>
        <source>%1$@ cannot be running during the installation. Quit %1$@, then start the installation again.</source>
        <translation>%1$@ 运行时无法进行安装。请退出 %1$@，然后重新开始安装。</translation>
    </message>
    <message>
        <source>Install %@</source>
        <translation>安装 %@</translation>
    </message>
    <message>
        <source>Product icon</source>
        <translation>产品图标</translation>
    </message>
    <message>
        <source>Read Me</source>
        <translation>自述文件</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>成功</translation>
    </message>
    <message>
        <source>This installs %@ on your computer, at this place:</source>
        <translation>%@ 将安装到您计算机的以下位置：</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>目标位置</translation>
    </message>
    <message>
        <source>Click &quot;Install&quot; to begin. If an earlier copy of %@ is there already, it is moved to the Trash.</source>
        <translation>点击“安装”开始。如果已有 %@ 之前的副本，会将其移到回收站。</translation>
    </message>
    <message>
        <source>What will happen</source>
        <translation>将要执行的操作</translation>
    </message>
    <message>
        <source>Installing</source>
        <translation>安装</translation>
    </message>
    <message>
        <source>Copying</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Stops the copying.</source>
        <translation>停止复制。</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Open the documentation</source>
        <translation>打开文档</translation>
    </message>
    <message>
        <source>Shows what was noted during the installation.</source>
        <translation>显示安装期间记录的内容。</translation>
    </message>
    <message>
        <source>Show Log</source>
        <translation>显示日志</translation>
    </message>
</context>
</TS>
