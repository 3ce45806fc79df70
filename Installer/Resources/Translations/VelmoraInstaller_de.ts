<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<!-- SPDX-FileCopyrightText: 2026 The Velmora Installer authors -->
<!-- SPDX-License-Identifier: Apache-2.0 -->
<context>
    <name>InstallerWindow</name>
    <message>
        <source>%1$@ requires version %2$@ of the system, or a newer one. Look for an older version of %1$@ in our software archive.</source>
        <translation>%1$@ braucht Version %2$@ des Systems oder eine neuere. Suchen Sie in unserem Software-Archiv nach einer älteren Version von %1$@.</translation>
    </message>
    <message>
        <source>There is too little space: %1$@ are needed, and %2$@ are free. Empty the Trash, or delete what you no longer need.</source>
        <translation>Der Platz reicht nicht: %1$@ werden gebraucht, %2$@ sind frei. Leeren Sie den Papierkorb oder löschen Sie, was Sie nicht mehr brauchen.</translation>
    </message>
    <message>
        <source>%@ of space are needed.</source>
        <translation>%@ Platz werden gebraucht.</translation>
    </message>
    <message>
        <source>%1$@ of space are needed; %2$@ are free.</source>
        <translation>%1$@ Platz werden gebraucht, %2$@ sind frei.</translation>
    </message>
    <message>
        <source>%1$@ is in use by %2$@ and cannot be quit from here. Ask %2$@ to quit it first.</source>
        <translation>%1$@ wird von %2$@ benutzt und kann von hier aus nicht beendet werden. Bitten Sie %2$@, es vorher zu beenden.</translation>
    </message>
    <message>
        <source>%@ is running and will be quit.</source>
        <translation>%@ läuft und wird beendet.</translation>
    </message>
    <message>
        <source>The copy that is there now is moved to the Trash.</source>
        <translation>Die vorhandene Kopie wird in den Papierkorb gelegt.</translation>
    </message>
    <message>
        <source>Version %@, which is there now, is moved to the Trash.</source>
        <translation>Die vorhandene Version %@ wird in den Papierkorb gelegt.</translation>
    </message>
    <message>
        <source>The older version %@, which is there now, is moved to the Trash.</source>
        <translation>Die vorhandene ältere Version %@ wird in den Papierkorb gelegt.</translation>
    </message>
    <message>
        <source>The same version, %@, is there now and is moved to the Trash.</source>
        <translation>Dieselbe Version, %@, ist vorhanden und wird in den Papierkorb gelegt.</translation>
    </message>
    <message>
        <source>A newer version, %@, is there now. Install only if you want the older one back.</source>
        <translation>Eine neuere Version, %@, ist vorhanden. Installieren Sie nur, wenn Sie die ältere zurückhaben möchten.</translation>
    </message>
    <message>
        <source>You will be asked for an administrator&apos;s password.</source>
        <translation>Sie werden nach dem Passwort eines Administrators gefragt.</translation>
    </message>
    <message>
        <source>Product: %@</source>
        <translation>Produkt: %@</translation>
    </message>
    <message>
        <source>From: %@</source>
        <translation>Von: %@</translation>
    </message>
    <message>
        <source>To: %@</source>
        <translation>Nach: %@</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problem</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>missing source path</source>
        <translation>Der Pfad des Produkts fehlt</translation>
    </message>
    <message>
        <source>missing program name</source>
        <translation>Der Name des Programms fehlt</translation>
    </message>
    <message>
        <source>missing product signature</source>
        <translation>Die Signatur des Produkts fehlt</translation>
    </message>
    <message>
        <source>The installation was stopped.</source>
        <translation>Die Installation wurde angehalten.</translation>
    </message>
    <message>
        <source>Authorized copying failed.</source>
        <translation>Das Kopieren mit Administratorrechten ist fehlgeschlagen.</translation>
    </message>
    <message>
        <source>Could not delete existing copy.</source>
        <translation>Die vorhandene Kopie konnte nicht gelöscht werden.</translation>
    </message>
    <message>
        <source>Installation failed.</source>
        <translation>Die Installation ist fehlgeschlagen.</translation>
    </message>
    <message>
        <source>%@ is being installed.</source>
        <translation>%@ wird gerade installiert.</translation>
    </message>
    <message>
        <source>The earlier copy of %1$@ is in the Trash.</source>
        <translation>Die frühere Kopie von %1$@ liegt im Papierkorb.</translation>
    </message>
    <message>
        <source>Try installing %1$@ manually by copying it to the Applications folder.</source>
        <translation>Versuchen Sie, %1$@ von Hand zu installieren, indem Sie es in den Programme-Ordner kopieren.</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Installieren</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortfahren</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Returns to the read-me.</source>
        <translation>Kehrt zur Lies-mich-Datei zurück.</translation>
    </message>
    <message>
        <source>Quits without installing.</source>
        <translation>Beendet das Programm, ohne zu installieren.</translation>
    </message>
    <message>
        <source>%@ was successfully installed.</source>
        <translation>%@ wurde erfolgreich installiert.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>%1$@ cannot be running during the installation.<byte value="xd"/>Quit %1$@, then click &quot;Install&quot; again.</source>
        <translation>%1$@ darf während der Installation nicht laufen.<byte value="xd"/>Beenden Sie %1$@ und klicken Sie dann noch einmal auf „Installieren“.</translation>
    </message>
    <message>
        <source>If you wish to read the documentation first, click the &quot;?&quot; button.</source>
        <translation>Wenn Sie zuerst die Dokumentation lesen möchten, klicken Sie auf „?“.</translation>
    </message>
    <message>
        <source>The read-me could not be shown. You can open it yourself; it is here:
%@</source>
        <translation>Die Lies-mich-Datei konnte nicht gezeigt werden. Sie können sie selbst öffnen; sie liegt hier:
%@</translation>
    </message>
    <message>
        <source>%1$@ %2$@ cannot be installed on this computer because it requires Mac OS X %3$@ or newer.</source>
        <translation>%1$@ %2$@ kann auf diesem Computer nicht installiert werden, weil es Mac OS X %3$@ oder neuer braucht.</translation>
    </message>
    <message>
        <source>To check if an older version of %@ is available for your computer, please visit our software archive.</source>
        <translation>Ob es eine ältere Version von %@ für Ihren Computer gibt, sehen Sie in unserem Software-Archiv.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Visit Archive</source>
        <translation>Archiv besuchen</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Protokoll</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Copies all lines.</source>
        <translation>Kopiert alle Zeilen.</translation>
    </message>
    <message>
        <source>Copying %1$@: %2$d %%</source>
        <translation>%1$@ wird kopiert: %2$d %%</translation>
    </message>
    <message>
        <source>The value of %1$@ must be one of %2$@, not &quot;%3$@&quot;.</source>
        <translation>Der Wert von %1$@ muss einer von %2$@ sein, nicht „%3$@“.</translation>
    </message>
    <message>
        <source>There is too little space for %@.</source>
        <translation>Der Platz für %@ reicht nicht.</translation>
    </message>
    <message>
        <source>%@ can be installed.</source>
        <translation>%@ kann installiert werden.</translation>
    </message>
    <message>
        <source>There is no product at %@.</source>
        <translation>Bei %@ liegt kein Produkt.</translation>
    </message>
    <message>
        <source>Only an administrator may install %1$@ in %2$@. Run the installer with sudo, or choose another place with -destinationPath.</source>
        <translation>Nur ein Administrator darf %1$@ in %2$@ installieren. Starten Sie das Installationsprogramm mit sudo oder wählen Sie mit -destinationPath einen anderen Ort.</translation>
    </message>
    <message>
        <source>%1$@ cannot be running during the installation. Quit %1$@, then start the installation again.</source>
        <translation>%1$@ darf während der Installation nicht laufen. Beenden Sie %1$@ und starten Sie dann die Installation noch einmal.</translation>
    </message>
    <message>
        <source>Install %@</source>
        <translation>%@ installieren</translation>
    </message>
    <message>
        <source>Product icon</source>
        <translation>Symbol des Produkts</translation>
    </message>
    <message>
        <source>Read Me</source>
        <translation>Lies mich</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>Erfolg</translation>
    </message>
    <message>
        <source>This installs %@ on your computer, at this place:</source>
        <translation>Damit wird %@ auf Ihrem Computer installiert, an diesem Ort:</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Ziel</translation>
    </message>
    <message>
        <source>Click &quot;Install&quot; to begin. If an earlier copy of %@ is there already, it is moved to the Trash.</source>
        <translation>Klicken Sie auf „Installieren“, um zu beginnen. Wenn dort schon eine frühere Kopie von %@ liegt, kommt sie in den Papierkorb.</translation>
    </message>
    <message>
        <source>What will happen</source>
        <translation>Was geschehen wird</translation>
    </message>
    <message>
        <source>Installing</source>
        <translation>Installation</translation>
    </message>
    <message>
        <source>Copying</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Stops the copying.</source>
        <translation>Hält das Kopieren an.</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Open the documentation</source>
        <translation>Dokumentation öffnen</translation>
    </message>
    <message>
        <source>Shows what was noted during the installation.</source>
        <translation>Zeigt, was während der Installation notiert wurde.</translation>
    </message>
    <message>
        <source>Show Log</source>
        <translation>Protokoll zeigen</translation>
    </message>
</context>
</TS>
