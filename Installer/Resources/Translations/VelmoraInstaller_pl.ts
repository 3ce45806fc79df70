<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<!-- SPDX-FileCopyrightText: 2026 The Velmora Installer authors -->
<!-- SPDX-License-Identifier: Apache-2.0 -->
<context>
    <name>InstallerWindow</name>
    <message>
        <source>%1$@ requires version %2$@ of the system, or a newer one. Look for an older version of %1$@ in our software archive.</source>
        <translation>Program %1$@ wymaga systemu w&#xa0;wersji %2$@ lub nowszej. Starszej wersji programu %1$@ można poszukać w&#xa0;naszym archiwum oprogramowania.</translation>
    </message>
    <message>
        <source>There is too little space: %1$@ are needed, and %2$@ are free. Empty the Trash, or delete what you no longer need.</source>
        <translation>Za mało miejsca: potrzeba %1$@, a&#xa0;wolne jest %2$@. Należy opróżnić kosz lub usunąć niepotrzebne pliki.</translation>
    </message>
    <message>
        <source>%@ of space are needed.</source>
        <translation>Potrzebne miejsce: %@.</translation>
    </message>
    <message>
        <source>%1$@ of space are needed; %2$@ are free.</source>
        <translation>Potrzebne miejsce: %1$@, wolne miejsce: %2$@.</translation>
    </message>
    <message>
        <source>%1$@ is in use by %2$@ and cannot be quit from here. Ask %2$@ to quit it first.</source>
        <translation>Program %1$@ jest używany przez użytkownika %2$@ i&#xa0;nie można go stąd zakończyć. Należy najpierw poprosić użytkownika %2$@ o&#xa0;zakończenie programu.</translation>
    </message>
    <message>
        <source>%@ is running and will be quit.</source>
        <translation>Program %@ jest uruchomiony i&#xa0;zostanie zakończony.</translation>
    </message>
    <message>
        <source>The copy that is there now is moved to the Trash.</source>
        <translation>Obecna kopia zostanie przeniesiona do kosza.</translation>
    </message>
    <message>
        <source>Version %@, which is there now, is moved to the Trash.</source>
        <translation>Obecna wersja, %@, zostanie przeniesiona do kosza.</translation>
    </message>
    <message>
        <source>The older version %@, which is there now, is moved to the Trash.</source>
        <translation>Obecna wersja, %@, jest starsza i&#xa0;zostanie przeniesiona do kosza.</translation>
    </message>
    <message>
        <source>The same version, %@, is there now and is moved to the Trash.</source>
        <translation>Ta sama wersja, %@, jest już zainstalowana i&#xa0;zostanie przeniesiona do kosza.</translation>
    </message>
    <message>
        <source>A newer version, %@, is there now. Install only if you want the older one back.</source>
        <translation>Zainstalowana jest już nowsza wersja, %@. Należy instalować tylko w&#xa0;celu powrotu do starszej.</translation>
    </message>
    <message>
        <source>You will be asked for an administrator&apos;s password.</source>
        <translation>Konieczne będzie podanie hasła administratora.</translation>
    </message>
    <message>
        <source>Product: %@</source>
        <translation>Produkt: %@</translation>
    </message>
    <message>
        <source>From: %@</source>
        <translation>Źródło: %@</translation>
    </message>
    <message>
        <source>To: %@</source>
        <translation>Cel: %@</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problem</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>Informacja</translation>
    </message>
    <message>
        <source>missing source path</source>
        <translation>Brak ścieżki do produktu</translation>
    </message>
    <message>
        <source>missing program name</source>
        <translation>Brak nazwy programu</translation>
    </message>
    <message>
        <source>missing product signature</source>
        <translation>Brak sygnatury produktu</translation>
    </message>
    <message>
        <source>The installation was stopped.</source>
        <translation>Instalacja została zatrzymana.</translation>
    </message>
    <message>
        <source>Authorized copying failed.</source>
        <translation>Kopiowanie z&#xa0;uprawnieniami administratora się nie powiodło.</translation>
    </message>
    <message>
        <source>Could not delete existing copy.</source>
        <translation>Nie można usunąć istniejącej kopii.</translation>
    </message>
    <message>
        <source>Installation failed.</source>
        <translation>Instalacja się nie powiodła.</translation>
    </message>
    <message>
        <source>%@ is being installed.</source>
        <translation>Trwa instalacja programu %@.</translation>
    </message>
    <message>
        <source>The earlier copy of %1$@ is in the Trash.</source>
        <translation>Poprzednia kopia programu %1$@ jest w&#xa0;koszu.</translation>
    </message>
    <message>
        <source>Try installing %1$@ manually by copying it to the Applications folder.</source>
        <translation>Można spróbować zainstalować program %1$@ ręcznie, kopiując go do katalogu Programy.</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Zainstaluj</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Kontynuuj</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>Wstecz</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Returns to the read-me.</source>
        <translation>Wraca do pliku „Przeczytaj mnie”.</translation>
    </message>
    <message>
        <source>Quits without installing.</source>
        <translation>Kończy program bez instalowania.</translation>
    </message>
    <message>
        <source>%@ was successfully installed.</source>
        <translation>Program %@ został pomyślnie zainstalowany.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>%1$@ cannot be running during the installation.<byte value="xd"/>Quit %1$@, then click &quot;Install&quot; again.</source>
        <translation>Program %1$@ nie może być uruchomiony podczas instalacji.<byte value="xd"/>Należy zakończyć program %1$@, a&#xa0;następnie ponownie kliknąć przycisk „Zainstaluj”.</translation>
    </message>
    <message>
        <source>If you wish to read the documentation first, click the &quot;?&quot; button.</source>
        <translation>Aby najpierw przeczytać dokumentację, należy kliknąć przycisk „?”.</translation>
    </message>
    <message>
        <source>The read-me could not be shown. You can open it yourself; it is here:
%@</source>
        <translation>Nie można wyświetlić pliku „Przeczytaj mnie”. Można go otworzyć samodzielnie; znajduje się tutaj:
%@</translation>
    </message>
    <message>
        <source>%1$@ %2$@ cannot be installed on this computer because it requires Mac OS X %3$@ or newer.</source>
        <translation>Nie można zainstalować programu %1$@ %2$@ na tym komputerze, ponieważ wymaga on systemu Mac OS X %3$@ lub nowszego.</translation>
    </message>
    <message>
        <source>To check if an older version of %@ is available for your computer, please visit our software archive.</source>
        <translation>Aby sprawdzić, czy dla tego komputera jest dostępna starsza wersja programu %@, należy odwiedzić nasze archiwum oprogramowania.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Zakończ</translation>
    </message>
    <message>
        <source>Visit Archive</source>
        <translation>Odwiedź archiwum</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Dziennik</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Skopiuj</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
    <message>
        <source>Copies all lines.</source>
        <translation>Kopiuje wszystkie wiersze.</translation>
    </message>
    <message>
        <source>Copying %1$@: %2$d %%</source>
        <translation>Kopiowanie programu %1$@: %2$d%%</translation>
    </message>
    <message>
        <source>The value of %1$@ must be one of %2$@, not &quot;%3$@&quot;.</source>
        <translation>Nieprawidłowa wartość opcji %1$@: „%3$@”. Możliwe wartości: %2$@.</translation>
    </message>
    <message>
        <source>There is too little space for %@.</source>
        <translation>Za mało miejsca na program %@.</translation>
    </message>
    <message>
        <source>%@ can be installed.</source>
        <translation>Program %@ można zainstalować.</translation>
    </message>
    <message>
        <source>There is no product at %@.</source>
        <translation>Pod ścieżką %@ nie ma produktu.</translation>
    </message>
    <message>
        <source>Only an administrator may install %1$@ in %2$@. Run the installer with sudo, or choose another place with -destinationPath.</source>
        <translation>Tylko administrator może zainstalować program %1$@ w&#xa0;katalogu %2$@. Należy uruchomić instalator za pomocą sudo lub wybrać inne miejsce opcją -destinationPath.</translation>
    </message>
    <message>
        <source>%1$@ cannot be running during the installation. Quit %1$@, then start the installation again.</source>
        <translation>Program %1$@ nie może być uruchomiony podczas instalacji. Należy zakończyć program %1$@, a&#xa0;następnie ponownie rozpocząć instalację.</translation>
    </message>
    <message>
        <source>Install %@</source>
        <translation>Instalacja programu %@</translation>
    </message>
    <message>
        <source>Product icon</source>
        <translation>Ikona produktu</translation>
    </message>
    <message>
        <source>Read Me</source>
        <translation>Przeczytaj mnie</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>Sukces</translation>
    </message>
    <message>
        <source>This installs %@ on your computer, at this place:</source>
        <translation>Program %@ zostanie zainstalowany na tym komputerze w&#xa0;następującym miejscu:</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Miejsce docelowe</translation>
    </message>
    <message>
        <source>Click &quot;Install&quot; to begin. If an earlier copy of %@ is there already, it is moved to the Trash.</source>
        <translation>Aby rozpocząć, należy kliknąć przycisk „Zainstaluj”. Jeśli istnieje już poprzednia kopia programu %@, zostanie przeniesiona do kosza.</translation>
    </message>
    <message>
        <source>What will happen</source>
        <translation>Co się stanie</translation>
    </message>
    <message>
        <source>Installing</source>
        <translation>Instalacja</translation>
    </message>
    <message>
        <source>Copying</source>
        <translation>Kopiowanie</translation>
    </message>
    <message>
        <source>Stops the copying.</source>
        <translation>Zatrzymuje kopiowanie.</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Zatrzymaj</translation>
    </message>
    <message>
        <source>Open the documentation</source>
        <translation>Otwórz dokumentację</translation>
    </message>
    <message>
        <source>Shows what was noted during the installation.</source>
        <translation>Wyświetla informacje zapisane podczas instalacji.</translation>
    </message>
    <message>
        <source>Show Log</source>
        <translation>Wyświetl dziennik</translation>
    </message>
</context>
</TS>
