<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<!-- SPDX-FileCopyrightText: 2026 The Velmora Installer authors -->
<!-- SPDX-License-Identifier: Apache-2.0 -->
<context>
    <name>InstallerWindow</name>
    <message>
        <source>%1$@ requires version %2$@ of the system, or a newer one. Look for an older version of %1$@ in our software archive.</source>
        <translation>%1$@ にはシステムのバージョン %2$@ 以降が必要です。当社のソフトウェアアーカイブで %1$@ の以前のバージョンを探してください。</translation>
    </message>
    <message>
        <source>There is too little space: %1$@ are needed, and %2$@ are free. Empty the Trash, or delete what you no longer need.</source>
        <translation>空き容量が足りません。%1$@ 必要ですが、空きは %2$@ です。ゴミ箱を空にするか、不要なものを削除してください。</translation>
    </message>
    <message>
        <source>%@ of space are needed.</source>
        <translation>%@ の容量が必要です。</translation>
    </message>
    <message>
        <source>%1$@ of space are needed; %2$@ are free.</source>
        <translation>%1$@ の容量が必要です。空き容量は %2$@ です。</translation>
    </message>
    <message>
        <source>%1$@ is in use by %2$@ and cannot be quit from here. Ask %2$@ to quit it first.</source>
        <translation>%1$@ は %2$@ さんが使用しているため、ここからは終了できません。先に %2$@ さんに終了を依頼してください。</translation>
    </message>
    <message>
        <source>%@ is running and will be quit.</source>
        <translation>%@ は実行中です。インストール時に終了します。</translation>
    </message>
    <message>
        <source>The copy that is there now is moved to the Trash.</source>
        <translation>現在あるコピーはゴミ箱に移動されます。</translation>
    </message>
    <message>
        <source>Version %@, which is there now, is moved to the Trash.</source>
        <translation>現在あるバージョン %@ はゴミ箱に移動されます。</translation>
    </message>
    <message>
        <source>The older version %@, which is there now, is moved to the Trash.</source>
        <translation>現在ある古いバージョン %@ はゴミ箱に移動されます。</translation>
    </message>
    <message>
        <source>The same version, %@, is there now and is moved to the Trash.</source>
        <translation>同じバージョン %@ がすでにあり、ゴミ箱に移動されます。</translation>
    </message>
    <message>
        <source>A newer version, %@, is there now. Install only if you want the older one back.</source>
        <translation>より新しいバージョン %@ がすでにあります。古いバージョンに戻す場合にのみインストールしてください。</translation>
    </message>
    <message>
        <source>You will be asked for an administrator&apos;s password.</source>
        <translation>管理者のパスワードの入力が求められます。</translation>
    </message>
    <message>
        <source>Product: %@</source>
        <translation>製品: %@</translation>
    </message>
    <message>
        <source>From: %@</source>
        <translation>コピー元: %@</translation>
    </message>
    <message>
        <source>To: %@</source>
        <translation>コピー先: %@</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>問題</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>お知らせ</translation>
    </message>
    <message>
        <source>missing source path</source>
        <translation>製品のパスがありません</translation>
    </message>
    <message>
        <source>missing program name</source>
        <translation>プログラムの名前がありません</translation>
    </message>
    <message>
        <source>missing product signature</source>
        <translation>製品のシグネチャがありません</translation>
    </message>
    <message>
        <source>The installation was stopped.</source>
        <translation>インストールは中止されました。</translation>
    </message>
    <message>
        <source>Authorized copying failed.</source>
        <translation>管理者権限でのコピーに失敗しました。</translation>
    </message>
    <message>
        <source>Could not delete existing copy.</source>
        <translation>既存のコピーを削除できませんでした。</translation>
    </message>
    <message>
        <source>Installation failed.</source>
        <translation>インストールに失敗しました。</translation>
    </message>
    <message>
        <source>%@ is being installed.</source>
        <translation>%@ をインストールしています。</translation>
    </message>
    <message>
        <source>The earlier copy of %1$@ is in the Trash.</source>
        <translation>%1$@ の以前のコピーはゴミ箱にあります。</translation>
    </message>
    <message>
        <source>Try installing %1$@ manually by copying it to the Applications folder.</source>
        <translation>%1$@ を「アプリケーション」フォルダーにコピーして、手動でインストールしてみてください。</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>インストール</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>続ける</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Returns to the read-me.</source>
        <translation>「お読みください」ファイルに戻ります。</translation>
    </message>
    <message>
        <source>Quits without installing.</source>
        <translation>インストールせずに終了します。</translation>
    </message>
    <message>
        <source>%@ was successfully installed.</source>
        <translation>%@ は正常にインストールされました。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>%1$@ cannot be running during the installation.<byte value="xd"/>Quit %1$@, then click &quot;Install&quot; again.</source>
        <translation>%1$@ の実行中はインストールできません。<byte value="xd"/>%1$@ を終了してから、もう一度「インストール」をクリックしてください。</translation>
    </message>
    <message>
        <source>If you wish to read the documentation first, click the &quot;?&quot; button.</source>
        <translation>先にドキュメントを読むには、「?」ボタンをクリックしてください。</translation>
    </message>
    <message>
        <source>The read-me could not be shown. You can open it yourself; it is here:
%@</source>
        <translation>「お読みください」ファイルを表示できませんでした。次の場所から直接開くことができます:
%@</translation>
    </message>
    <message>
        <source>%1$@ %2$@ cannot be installed on this computer because it requires Mac OS X %3$@ or newer.</source>
        <translation>%1$@ %2$@ には Mac OS X %3$@ 以降が必要なため、このコンピューターにはインストールできません。</translation>
    </message>
    <message>
        <source>To check if an older version of %@ is available for your computer, please visit our software archive.</source>
        <translation>お使いのコンピューターで使える %@ の以前のバージョンがあるかどうかは、当社のソフトウェアアーカイブで確認してください。</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Visit Archive</source>
        <translation>アーカイブを見る</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>ログ</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Copies all lines.</source>
        <translation>すべての行をコピーします。</translation>
    </message>
    <message>
        <source>Copying %1$@: %2$d %%</source>
        <translation>%1$@ をコピーしています: %2$d%%</translation>
    </message>
    <message>
        <source>The value of %1$@ must be one of %2$@, not &quot;%3$@&quot;.</source>
        <translation>%1$@ の値「%3$@」は無効です。指定できる値は %2$@ です。</translation>
    </message>
    <message>
        <source>There is too little space for %@.</source>
        <translation>%@ をインストールするための空き容量が足りません。</translation>
    </message>
    <message>
        <source>%@ can be installed.</source>
        <translation>%@ はインストールできます。</translation>
    </message>
    <message>
        <source>There is no product at %@.</source>
        <translation>%@ に製品がありません。</translation>
    </message>
    <message>
        <source>Only an administrator may install %1$@ in %2$@. Run the installer with sudo, or choose another place with -destinationPath.</source>
        <translation>%1$@ を %2$@ にインストールできるのは管理者だけです。sudo を付けてインストーラーを実行するか、-destinationPath で別の場所を指定してください。</translation>
    </message>
    <message>
        <source>%1$@ cannot be running during the installation. Quit %1$@, then start the installation again.</source>
        <translation>%1$@ の実行中はインストールできません。%1$@ を終了してから、もう一度インストールを始めてください。</translation>
    </message>
    <message>
        <source>Install %@</source>
        <translation>%@ のインストール</translation>
    </message>
    <message>
        <source>Product icon</source>
        <translation>製品のアイコン</translation>
    </message>
    <message>
        <source>Read Me</source>
        <translation>お読みください</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>成功</translation>
    </message>
    <message>
        <source>This installs %@ on your computer, at this place:</source>
        <translation>%@ をこのコンピューターの次の場所にインストールします:</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>インストール先</translation>
    </message>
    <message>
        <source>Click &quot;Install&quot; to begin. If an earlier copy of %@ is there already, it is moved to the Trash.</source>
        <translation>「インストール」をクリックすると始まります。%@ の以前のコピーがすでにある場合、そのコピーはゴミ箱に移動されます。</translation>
    </message>
    <message>
        <source>What will happen</source>
        <translation>これから行われること</translation>
    </message>
    <message>
        <source>Installing</source>
        <translation>インストール</translation>
    </message>
    <message>
        <source>Copying</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Stops the copying.</source>
        <translation>コピーを中止します。</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>中止</translation>
    </message>
    <message>
        <source>Open the documentation</source>
        <translation>ドキュメントを開く</translation>
    </message>
    <message>
        <source>Shows what was noted during the installation.</source>
        <translation>インストール中に記録された内容を表示します。</translation>
    </message>
    <message>
        <source>Show Log</source>
        <translation>ログを表示</translation>
    </message>
</context>
</TS>
