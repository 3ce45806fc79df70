<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<!-- SPDX-FileCopyrightText: 2026 The Velmora Installer authors -->
<!-- SPDX-License-Identifier: Apache-2.0 -->
<context>
    <name>InstallerWindow</name>
    <message>
        <source>%1$@ requires version %2$@ of the system, or a newer one. Look for an older version of %1$@ in our software archive.</source>
        <translation>%1$@ nécessite la version %2$@ du système ou une version plus récente. Cherchez une version antérieure de l’application %1$@ dans nos archives de logiciels.</translation>
    </message>
    <message>
        <source>There is too little space: %1$@ are needed, and %2$@ are free. Empty the Trash, or delete what you no longer need.</source>
        <translation>L’espace libre est insuffisant&#xa0;: %1$@ nécessaires, %2$@ disponibles. Videz la corbeille ou supprimez ce dont vous n’avez plus besoin.</translation>
    </message>
    <message>
        <source>%@ of space are needed.</source>
        <translation>Espace nécessaire&#xa0;: %@.</translation>
    </message>
    <message>
        <source>%1$@ of space are needed; %2$@ are free.</source>
        <translation>Espace nécessaire&#xa0;: %1$@&#xa0;; espace libre&#xa0;: %2$@.</translation>
    </message>
    <message>
        <source>%1$@ is in use by %2$@ and cannot be quit from here. Ask %2$@ to quit it first.</source>
        <translation>L’application %1$@ est utilisée par %2$@ et ne peut pas être quittée d’ici. Demandez d’abord à %2$@ de la quitter.</translation>
    </message>
    <message>
        <source>%@ is running and will be quit.</source>
        <translation>L’application %@ est en cours d’exécution et sera quittée.</translation>
    </message>
    <message>
        <source>The copy that is there now is moved to the Trash.</source>
        <translation>La copie actuellement présente sera placée dans la corbeille.</translation>
    </message>
    <message>
        <source>Version %@, which is there now, is moved to the Trash.</source>
        <translation>La version %@, actuellement présente, sera placée dans la corbeille.</translation>
    </message>
    <message>
        <source>The older version %@, which is there now, is moved to the Trash.</source>
        <translation>La version %@, actuellement présente et plus ancienne, sera placée dans la corbeille.</translation>
    </message>
    <message>
        <source>The same version, %@, is there now and is moved to the Trash.</source>
        <translation>La même version, %@, est déjà présente et sera placée dans la corbeille.</translation>
    </message>
    <message>
        <source>A newer version, %@, is there now. Install only if you want the older one back.</source>
        <translation>Une version plus récente, %@, est déjà présente. N’installez que si vous souhaitez revenir à l’ancienne.</translation>
    </message>
    <message>
        <source>You will be asked for an administrator&apos;s password.</source>
        <translation>Le mot de passe d’un administrateur vous sera demandé.</translation>
    </message>
    <message>
        <source>Product: %@</source>
        <translation>Produit&#xa0;: %@</translation>
    </message>
    <message>
        <source>From: %@</source>
        <translation>De&#xa0;: %@</translation>
    </message>
    <message>
        <source>To: %@</source>
        <translation>Vers&#xa0;: %@</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problème</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>Remarque</translation>
    </message>
    <message>
        <source>missing source path</source>
        <translation>Le chemin du produit est manquant</translation>
    </message>
    <message>
        <source>missing program name</source>
        <translation>Le nom du programme est manquant</translation>
    </message>
    <message>
        <source>missing product signature</source>
        <translation>La signature du produit est manquante</translation>
    </message>
    <message>
        <source>The installation was stopped.</source>
        <translation>L’installation a été arrêtée.</translation>
    </message>
    <message>
        <source>Authorized copying failed.</source>
        <translation>La copie avec les droits d’administrateur a échoué.</translation>
    </message>
    <message>
        <source>Could not delete existing copy.</source>
        <translation>La copie existante n’a pas pu être supprimée.</translation>
    </message>
    <message>
        <source>Installation failed.</source>
        <translation>L’installation a échoué.</translation>
    </message>
    <message>
        <source>%@ is being installed.</source>
        <translation>%@ est en cours d’installation.</translation>
    </message>
    <message>
        <source>The earlier copy of %1$@ is in the Trash.</source>
        <translation>La copie précédente de l’application %1$@ est dans la corbeille.</translation>
    </message>
    <message>
        <source>Try installing %1$@ manually by copying it to the Applications folder.</source>
        <translation>Essayez d’installer %1$@ manuellement en copiant l’application dans le dossier Applications.</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Installer</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuer</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>Revenir</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Returns to the read-me.</source>
        <translation>Revient au fichier Lisez-moi.</translation>
    </message>
    <message>
        <source>Quits without installing.</source>
        <translation>Quitte sans installer.</translation>
    </message>
    <message>
        <source>%@ was successfully installed.</source>
        <translation>L’application %@ a été installée avec succès.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>%1$@ cannot be running during the installation.<byte value="xd"/>Quit %1$@, then click &quot;Install&quot; again.</source>
        <translation>L’application %1$@ ne doit pas être en cours d’exécution pendant l’installation.<byte value="xd"/>Quittez %1$@, puis cliquez à nouveau sur «&#xa0;Installer&#xa0;».</translation>
    </message>
    <message>
        <source>If you wish to read the documentation first, click the &quot;?&quot; button.</source>
        <translation>Si vous souhaitez d’abord lire la documentation, cliquez sur le bouton «&#xa0;?&#xa0;».</translation>
    </message>
    <message>
        <source>The read-me could not be shown. You can open it yourself; it is here:
%@</source>
        <translation>Le fichier Lisez-moi n’a pas pu être affiché. Vous pouvez l’ouvrir vous-même&#xa0;; il se trouve ici&#xa0;:
%@</translation>
    </message>
    <message>
        <source>%1$@ %2$@ cannot be installed on this computer because it requires Mac OS X %3$@ or newer.</source>
        <translation>Impossible d’installer %1$@ %2$@ sur cet ordinateur, car Mac OS X %3$@ ou une version plus récente est nécessaire.</translation>
    </message>
    <message>
        <source>To check if an older version of %@ is available for your computer, please visit our software archive.</source>
        <translation>Pour savoir si une version antérieure de l’application %@ est disponible pour votre ordinateur, consultez nos archives de logiciels.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Visit Archive</source>
        <translation>Voir les archives</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Journal</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Copies all lines.</source>
        <translation>Copie toutes les lignes.</translation>
    </message>
    <message>
        <source>Copying %1$@: %2$d %%</source>
        <translation>Copie de l’application %1$@&#xa0;: %2$d&#xa0;%%</translation>
    </message>
    <message>
        <source>The value of %1$@ must be one of %2$@, not &quot;%3$@&quot;.</source>
        <translation>Valeur incorrecte pour %1$@&#xa0;: «&#xa0;%3$@&#xa0;». Valeurs possibles&#xa0;: %2$@.</translation>
    </message>
    <message>
        <source>There is too little space for %@.</source>
        <translation>L’espace libre est insuffisant pour %@.</translation>
    </message>
    <message>
        <source>%@ can be installed.</source>
        <translation>L’application %@ peut être installée.</translation>
    </message>
    <message>
        <source>There is no product at %@.</source>
        <translation>Aucun produit ne se trouve à l’emplacement %@.</translation>
    </message>
    <message>
        <source>Only an administrator may install %1$@ in %2$@. Run the installer with sudo, or choose another place with -destinationPath.</source>
        <translation>Seul un administrateur peut installer %1$@ dans %2$@. Lancez le programme d’installation avec sudo ou choisissez un autre emplacement avec -destinationPath.</translation>
    </message>
    <message>
        <source>%1$@ cannot be running during the installation. Quit %1$@, then start the installation again.</source>
        <translation>L’application %1$@ ne doit pas être en cours d’exécution pendant l’installation. Quittez %1$@, puis relancez l’installation.</translation>
    </message>
    <message>
        <source>Install %@</source>
        <translation>Installer %@</translation>
    </message>
    <message>
        <source>Product icon</source>
        <translation>Icône du produit</translation>
    </message>
    <message>
        <source>Read Me</source>
        <translation>Lisez-moi</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>Succès</translation>
    </message>
    <message>
        <source>This installs %@ on your computer, at this place:</source>
        <translation>L’application %@ va être installée sur votre ordinateur, à cet emplacement&#xa0;:</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destination</translation>
    </message>
    <message>
        <source>Click &quot;Install&quot; to begin. If an earlier copy of %@ is there already, it is moved to the Trash.</source>
        <translation>Cliquez sur «&#xa0;Installer&#xa0;» pour commencer. Si une copie précédente de l’application %@ s’y trouve déjà, elle sera placée dans la corbeille.</translation>
    </message>
    <message>
        <source>What will happen</source>
        <translation>Ce qui va se passer</translation>
    </message>
    <message>
        <source>Installing</source>
        <translation>Installation</translation>
    </message>
    <message>
        <source>Copying</source>
        <translation>Copie</translation>
    </message>
    <message>
        <source>Stops the copying.</source>
        <translation>Arrête la copie.</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Open the documentation</source>
        <translation>Ouvrir la documentation</translation>
    </message>
    <message>
        <source>Shows what was noted during the installation.</source>
        <translation>Affiche ce qui a été consigné pendant l’installation.</translation>
    </message>
    <message>
        <source>Show Log</source>
        <translation>Afficher le journal</translation>
    </message>
</context>
</TS>
