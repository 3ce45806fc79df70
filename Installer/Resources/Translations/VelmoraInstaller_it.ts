<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<!-- SPDX-FileCopyrightText: 2026 The Velmora Installer authors -->
<!-- SPDX-License-Identifier: Apache-2.0 -->
<context>
    <name>InstallerWindow</name>
    <message>
        <source>%1$@ requires version %2$@ of the system, or a newer one. Look for an older version of %1$@ in our software archive.</source>
        <translation>%1$@ richiede la versione %2$@ del sistema o una più recente. Cercare una versione precedente di %1$@ nel nostro archivio software.</translation>
    </message>
    <message>
        <source>There is too little space: %1$@ are needed, and %2$@ are free. Empty the Trash, or delete what you no longer need.</source>
        <translation>Spazio insufficiente: sono necessari %1$@ e sono liberi %2$@. Svuotare il cestino o eliminare ciò che non serve più.</translation>
    </message>
    <message>
        <source>%@ of space are needed.</source>
        <translation>Spazio necessario: %@.</translation>
    </message>
    <message>
        <source>%1$@ of space are needed; %2$@ are free.</source>
        <translation>Spazio necessario: %1$@; spazio libero: %2$@.</translation>
    </message>
    <message>
        <source>%1$@ is in use by %2$@ and cannot be quit from here. Ask %2$@ to quit it first.</source>
        <translation>L’applicazione %1$@ è in uso da parte di %2$@ e non può essere chiusa da qui. Chiedere prima a %2$@ di chiuderla.</translation>
    </message>
    <message>
        <source>%@ is running and will be quit.</source>
        <translation>L’applicazione %@ è in esecuzione e verrà chiusa.</translation>
    </message>
    <message>
        <source>The copy that is there now is moved to the Trash.</source>
        <translation>La copia attualmente presente verrà spostata nel cestino.</translation>
    </message>
    <message>
        <source>Version %@, which is there now, is moved to the Trash.</source>
        <translation>La versione attualmente presente, %@, verrà spostata nel cestino.</translation>
    </message>
    <message>
        <source>The older version %@, which is there now, is moved to the Trash.</source>
        <translation>La versione attualmente presente, %@, è meno recente e verrà spostata nel cestino.</translation>
    </message>
    <message>
        <source>The same version, %@, is there now and is moved to the Trash.</source>
        <translation>La stessa versione, %@, è già presente e verrà spostata nel cestino.</translation>
    </message>
    <message>
        <source>A newer version, %@, is there now. Install only if you want the older one back.</source>
        <translation>È già presente una versione più recente, %@. Installare solo se si vuole tornare a quella precedente.</translation>
    </message>
    <message>
        <source>You will be asked for an administrator&apos;s password.</source>
        <translation>Verrà richiesta la password di un amministratore.</translation>
    </message>
    <message>
        <source>Product: %@</source>
        <translation>Prodotto: %@</translation>
    </message>
    <message>
        <source>From: %@</source>
        <translation>Origine: %@</translation>
    </message>
    <message>
        <source>To: %@</source>
        <translation>Destinazione: %@</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problema</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>Nota</translation>
    </message>
    <message>
        <source>missing source path</source>
        <translation>Manca il percorso del prodotto</translation>
    </message>
    <message>
        <source>missing program name</source>
        <translation>Manca il nome del programma</translation>
    </message>
    <message>
        <source>missing product signature</source>
        <translation>Manca la firma del prodotto</translation>
    </message>
    <message>
        <source>The installation was stopped.</source>
        <translation>L’installazione è stata interrotta.</translation>
    </message>
    <message>
        <source>Authorized copying failed.</source>
        <translation>La copia con privilegi di amministratore non è riuscita.</translation>
    </message>
    <message>
        <source>Could not delete existing copy.</source>
        <translation>Impossibile eliminare la copia esistente.</translation>
    </message>
    <message>
        <source>Installation failed.</source>
        <translation>Installazione non riuscita.</translation>
    </message>
    <message>
        <source>%@ is being installed.</source>
        <translation>Installazione di %@ in corso.</translation>
    </message>
    <message>
        <source>The earlier copy of %1$@ is in the Trash.</source>
        <translation>La copia precedente di %1$@ è nel cestino.</translation>
    </message>
    <message>
        <source>Try installing %1$@ manually by copying it to the Applications folder.</source>
        <translation>Provare a installare %1$@ manualmente copiando l’applicazione nella cartella Applicazioni.</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Installa</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continua</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Returns to the read-me.</source>
        <translation>Torna al file Leggimi.</translation>
    </message>
    <message>
        <source>Quits without installing.</source>
        <translation>Esce senza installare.</translation>
    </message>
    <message>
        <source>%@ was successfully installed.</source>
        <translation>L’installazione di %@ è stata completata.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>%1$@ cannot be running during the installation.<byte value="xd"/>Quit %1$@, then click &quot;Install&quot; again.</source>
        <translation>%1$@ non può essere in esecuzione durante l’installazione.<byte value="xd"/>Chiudere %1$@, quindi fare di nuovo clic su «Installa».</translation>
    </message>
    <message>
        <source>If you wish to read the documentation first, click the &quot;?&quot; button.</source>
        <translation>Per leggere prima la documentazione, fare clic sul pulsante «?».</translation>
    </message>
    <message>
        <source>The read-me could not be shown. You can open it yourself; it is here:
%@</source>
        <translation>Impossibile mostrare il file Leggimi. È possibile aprirlo manualmente; si trova qui:
%@</translation>
    </message>
    <message>
        <source>%1$@ %2$@ cannot be installed on this computer because it requires Mac OS X %3$@ or newer.</source>
        <translation>Impossibile installare %1$@ %2$@ su questo computer perché richiede Mac OS X %3$@ o successivo.</translation>
    </message>
    <message>
        <source>To check if an older version of %@ is available for your computer, please visit our software archive.</source>
        <translation>Per verificare se è disponibile una versione precedente di %@ per questo computer, visitare il nostro archivio software.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Esci</translation>
    </message>
    <message>
        <source>Visit Archive</source>
        <translation>Visita l’archivio</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Registro</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copia</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Copies all lines.</source>
        <translation>Copia tutte le righe.</translation>
    </message>
    <message>
        <source>Copying %1$@: %2$d %%</source>
        <translation>Copia di %1$@: %2$d%%</translation>
    </message>
    <message>
        <source>The value of %1$@ must be one of %2$@, not &quot;%3$@&quot;.</source>
        <translation>Valore non valido per %1$@: «%3$@». Valori possibili: %2$@.</translation>
    </message>
    <message>
        <source>There is too little space for %@.</source>
        <translation>Spazio insufficiente per %@.</translation>
    </message>
    <message>
        <source>%@ can be installed.</source>
        <translation>È possibile installare %@.</translation>
    </message>
    <message>
        <source>There is no product at %@.</source>
        <translation>Non c’è alcun prodotto in %@.</translation>
    </message>
    <message>
        <source>Only an administrator may install %1$@ in %2$@. Run the installer with sudo, or choose another place with -destinationPath.</source>
        <translation>Solo un amministratore può installare %1$@ in %2$@. Eseguire il programma di installazione con sudo o scegliere un’altra posizione con -destinationPath.</translation>
    </message>
    <message>
        <source>%1$@ cannot be running during the installation. Quit %1$@, then start the installation again.</source>
        <translation>%1$@ non può essere in esecuzione durante l’installazione. Chiudere %1$@, quindi avviare di nuovo l’installazione.</translation>
    </message>
    <message>
        <source>Install %@</source>
        <translation>Installazione di %@</translation>
    </message>
    <message>
        <source>Product icon</source>
        <translation>Icona del prodotto</translation>
    </message>
    <message>
        <source>Read Me</source>
        <translation>Leggimi</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>Operazione riuscita</translation>
    </message>
    <message>
        <source>This installs %@ on your computer, at this place:</source>
        <translation>L’applicazione %@ verrà installata sul computer, in questa posizione:</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destinazione</translation>
    </message>
    <message>
        <source>Click &quot;Install&quot; to begin. If an earlier copy of %@ is there already, it is moved to the Trash.</source>
        <translation>Fare clic su «Installa» per iniziare. Se è già presente una copia precedente di %@, verrà spostata nel cestino.</translation>
    </message>
    <message>
        <source>What will happen</source>
        <translation>Che cosa accadrà</translation>
    </message>
    <message>
        <source>Installing</source>
        <translation>Installazione</translation>
    </message>
    <message>
        <source>Copying</source>
        <translation>Copia</translation>
    </message>
    <message>
        <source>Stops the copying.</source>
        <translation>Interrompe la copia.</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Interrompi</translation>
    </message>
    <message>
        <source>Open the documentation</source>
        <translation>Apri la documentazione</translation>
    </message>
    <message>
        <source>Shows what was noted during the installation.</source>
        <translation>Mostra ciò che è stato annotato durante l’installazione.</translation>
    </message>
    <message>
        <source>Show Log</source>
        <translation>Mostra registro</translation>
    </message>
</context>
</TS>
