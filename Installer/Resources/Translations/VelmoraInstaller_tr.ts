<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr" sourcelanguage="en">
<!-- SPDX-FileCopyrightText: 2026 The Velmora Installer authors -->
<!-- SPDX-License-Identifier: Apache-2.0 -->
<context>
    <name>InstallerWindow</name>
    <message>
        <source>%1$@ requires version %2$@ of the system, or a newer one. Look for an older version of %1$@ in our software archive.</source>
        <translation>%1$@ programı için sistemin %2$@ veya daha yeni bir sürümü gerekiyor. %1$@ programının daha eski bir sürümünü yazılım arşivimizde arayın.</translation>
    </message>
    <message>
        <source>There is too little space: %1$@ are needed, and %2$@ are free. Empty the Trash, or delete what you no longer need.</source>
        <translation>Yeterli alan yok: %1$@ gerekiyor, %2$@ boş. Çöpü boşaltın veya artık gerek duymadıklarınızı silin.</translation>
    </message>
    <message>
        <source>%@ of space are needed.</source>
        <translation>Gereken alan: %@.</translation>
    </message>
    <message>
        <source>%1$@ of space are needed; %2$@ are free.</source>
        <translation>Gereken alan: %1$@, boş alan: %2$@.</translation>
    </message>
    <message>
        <source>%1$@ is in use by %2$@ and cannot be quit from here. Ask %2$@ to quit it first.</source>
        <translation>%1$@ programı %2$@ kullanıcısı tarafından kullanılıyor ve buradan kapatılamaz. Önce %2$@ kullanıcısından programı kapatmasını isteyin.</translation>
    </message>
    <message>
        <source>%@ is running and will be quit.</source>
        <translation>%@ programı çalışıyor ve kapatılacak.</translation>
    </message>
    <message>
        <source>The copy that is there now is moved to the Trash.</source>
        <translation>Var olan kopya çöpe taşınacak.</translation>
    </message>
    <message>
        <source>Version %@, which is there now, is moved to the Trash.</source>
        <translation>Var olan %@ sürümü çöpe taşınacak.</translation>
    </message>
    <message>
        <source>The older version %@, which is there now, is moved to the Trash.</source>
        <translation>Var olan, daha eski %@ sürümü çöpe taşınacak.</translation>
    </message>
    <message>
        <source>The same version, %@, is there now and is moved to the Trash.</source>
        <translation>Aynı sürüm (%@) zaten var ve çöpe taşınacak.</translation>
    </message>
    <message>
        <source>A newer version, %@, is there now. Install only if you want the older one back.</source>
        <translation>Daha yeni bir sürüm (%@) zaten var. Yalnızca eskisine dönmek istiyorsanız kurun.</translation>
    </message>
    <message>
        <source>You will be asked for an administrator&apos;s password.</source>
        <translation>Sizden bir yönetici parolası istenecek.</translation>
    </message>
    <message>
        <source>Product: %@</source>
        <translation>Ürün: %@</translation>
    </message>
    <message>
        <source>From: %@</source>
        <translation>Kaynak: %@</translation>
    </message>
    <message>
        <source>To: %@</source>
        <translation>Hedef: %@</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Sorun</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>Bilgi</translation>
    </message>
    <message>
        <source>missing source path</source>
        <translation>Ürünün yolu eksik</translation>
    </message>
    <message>
        <source>missing program name</source>
        <translation>Programın adı eksik</translation>
    </message>
    <message>
        <source>missing product signature</source>
        <translation>Ürünün imzası eksik</translation>
    </message>
    <message>
        <source>The installation was stopped.</source>
        <translation>Kurulum durduruldu.</translation>
    </message>
    <message>
        <source>Authorized copying failed.</source>
        <translation>Yönetici yetkisiyle kopyalama başarısız oldu.</translation>
    </message>
    <message>
        <source>Could not delete existing copy.</source>
        <translation>Var olan kopya silinemedi.</translation>
    </message>
    <message>
        <source>Installation failed.</source>
        <translation>Kurulum başarısız oldu.</translation>
    </message>
    <message>
        <source>%@ is being installed.</source>
        <translation>%@ kuruluyor.</translation>
    </message>
    <message>
        <source>The earlier copy of %1$@ is in the Trash.</source>
        <translation>%1$@ programının önceki kopyası çöpte.</translation>
    </message>
    <message>
        <source>Try installing %1$@ manually by copying it to the Applications folder.</source>
        <translation>%1$@ programını Uygulamalar klasörüne kopyalayarak elle kurmayı deneyin.</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Kur</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Devam Et</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>Geri</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal Et</translation>
    </message>
    <message>
        <source>Returns to the read-me.</source>
        <translation>Beni Oku dosyasına döner.</translation>
    </message>
    <message>
        <source>Quits without installing.</source>
        <translation>Kurmadan çıkar.</translation>
    </message>
    <message>
        <source>%@ was successfully installed.</source>
        <translation>%@ başarıyla kuruldu.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>%1$@ cannot be running during the installation.<byte value="xd"/>Quit %1$@, then click &quot;Install&quot; again.</source>
        <translation>Kurulum sırasında %1$@ programı çalışıyor olmamalıdır.<byte value="xd"/>%1$@ programını kapatın, ardından yeniden “Kur” düğmesine tıklayın.</translation>
    </message>
    <message>
        <source>If you wish to read the documentation first, click the &quot;?&quot; button.</source>
        <translation>Önce belgeleri okumak isterseniz “?” düğmesine tıklayın.</translation>
    </message>
    <message>
        <source>The read-me could not be shown. You can open it yourself; it is here:
%@</source>
        <translation>Beni Oku dosyası gösterilemedi. Kendiniz açabilirsiniz; dosya burada:
%@</translation>
    </message>
    <message>
        <source>%1$@ %2$@ cannot be installed on this computer because it requires Mac OS X %3$@ or newer.</source>
        <translation>%1$@ %2$@ bu bilgisayara kurulamıyor, çünkü Mac OS X %3$@ veya daha yenisi gerekiyor.</translation>
    </message>
    <message>
        <source>To check if an older version of %@ is available for your computer, please visit our software archive.</source>
        <translation>%@ programının bilgisayarınıza uygun daha eski bir sürümü olup olmadığını öğrenmek için yazılım arşivimizi ziyaret edin.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Çık</translation>
    </message>
    <message>
        <source>Visit Archive</source>
        <translation>Arşive Git</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Günlük</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopyala</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Kapat</translation>
    </message>
    <message>
        <source>Copies all lines.</source>
        <translation>Tüm satırları kopyalar.</translation>
    </message>
    <message>
        <source>Copying %1$@: %2$d %%</source>
        <translation>%1$@ kopyalanıyor: %%%2$d</translation>
    </message>
    <message>
        <source>The value of %1$@ must be one of %2$@, not &quot;%3$@&quot;.</source>
        <translation>%1$@ için geçersiz değer: “%3$@”. Geçerli değerler: %2$@.</translation>
    </message>
    <message>
        <source>There is too little space for %@.</source>
        <translation>%@ için yeterli alan yok.</translation>
    </message>
    <message>
        <source>%@ can be installed.</source>
        <translation>%@ kurulabilir.</translation>
    </message>
    <message>
        <source>There is no product at %@.</source>
        <translation>%@ konumunda ürün yok.</translation>
    </message>
    <message>
        <source>Only an administrator may install %1$@ in %2$@. Run the installer with sudo, or choose another place with -destinationPath.</source>
        <translation>%1$@ programını %2$@ konumuna yalnızca bir yönetici kurabilir. Kurulum programını sudo ile çalıştırın veya -destinationPath ile başka bir yer seçin.</translation>
    </message>
    <message>
        <source>%1$@ cannot be running during the installation. Quit %1$@, then start the installation again.</source>
        <translation>Kurulum sırasında %1$@ programı çalışıyor olmamalıdır. %1$@ programını kapatın, ardından kurulumu yeniden başlatın.</translation>
    </message>
    <message>
        <source>Install %@</source>
        <translation>%@ Kurulumu</translation>
    </message>
    <message>
        <source>Product icon</source>
        <translation>Ürün simgesi</translation>
    </message>
    <message>
        <source>Read Me</source>
        <translation>Beni Oku</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>Başarılı</translation>
    </message>
    <message>
        <source>This installs %@ on your computer, at this place:</source>
        <translation>%@ bilgisayarınızda şu konuma kurulacak:</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Hedef</translation>
    </message>
    <message>
        <source>Click &quot;Install&quot; to begin. If an earlier copy of %@ is there already, it is moved to the Trash.</source>
        <translation>Başlamak için “Kur” düğmesine tıklayın. Orada %@ programının önceki bir kopyası varsa çöpe taşınır.</translation>
    </message>
    <message>
        <source>What will happen</source>
        <translation>Neler olacak</translation>
    </message>
    <message>
        <source>Installing</source>
        <translation>Kurulum</translation>
    </message>
    <message>
        <source>Copying</source>
        <translation>Kopyalama</translation>
    </message>
    <message>
        <source>Stops the copying.</source>
        <translation>Kopyalamayı durdurur.</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Durdur</translation>
    </message>
    <message>
        <source>Open the documentation</source>
        <translation>Belgeleri aç</translation>
    </message>
    <message>
        <source>Shows what was noted during the installation.</source>
        <translation>Kurulum sırasında kaydedilenleri gösterir.</translation>
    </message>
    <message>
        <source>Show Log</source>
        <translation>Günlüğü Göster</translation>
    </message>
</context>
</TS>
